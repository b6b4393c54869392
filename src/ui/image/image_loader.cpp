#include "ui/image/image_loader.h"

#include <algorithm>

#include "platform/image_decoder.h"
#include "ui/image/image_files.h"
#include "ui/image/image_scale.h"

namespace cv2 {
namespace {

DWORD CALLBACK ReadChunk(LPSTR buffer, DWORD bufferMax, LPARAM lParam) {
    DWORD got = 0;
    if (!ReadFile(reinterpret_cast<HANDLE>(lParam), buffer, bufferMax, &got, nullptr))
        return 0;
    return got;
}

// Bytes in memory handed out in chunks, as the decoder reads a file.
struct MemoryFile {
    const unsigned char* data;
    size_t size;
    size_t at = 0;
};

DWORD CALLBACK ReadMemoryChunk(LPSTR buffer, DWORD bufferMax, LPARAM lParam) {
    auto* file = reinterpret_cast<MemoryFile*>(lParam);
    const size_t count = std::min<size_t>(bufferMax, file->size - file->at);
    std::copy_n(file->data + file->at, count, buffer);
    file->at += count;
    return static_cast<DWORD>(count);
}

// Decodes what `read` hands out; larger than maxWidth x maxHeight (when given) it is shrunk to fit
// while it decodes.
PixelImage Decode(GETIMAGEDATA read, LPARAM source, int maxWidth = 0, int maxHeight = 0) {
    BYTE chunk[8192];
    HBITMAP bitmap = nullptr;
    DecompressImageInfo info = {};
    info.dwSize = sizeof info;
    info.pbBuffer = chunk;
    info.dwBufferMax = sizeof chunk;
    info.phBM = &bitmap;
    info.iBitDepth = 32;
    info.lParam = source;
    info.iMaxWidth = maxWidth > 0 ? maxWidth : 0;
    info.iMaxHeight = maxHeight > 0 ? maxHeight : 0;
    info.pfnGetData = read;
    const HRESULT hr = DecompressImageIndirect(&info);
    if (FAILED(hr) || !bitmap)
        return {};
    PixelImage pixels = PixelsFromBitmap(bitmap);
    DeleteObject(bitmap);
    return pixels;
}

} // namespace

PixelImage DecodeWithPlatform(const std::wstring& path, int maxWidth, int maxHeight) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    PixelImage pixels = Decode(ReadChunk, reinterpret_cast<LPARAM>(file), maxWidth, maxHeight);
    CloseHandle(file);
    return pixels;
}

PixelImage DecodeBytesWithPlatform(const unsigned char* data, size_t size) {
    MemoryFile file{data, size};
    return Decode(ReadMemoryChunk, reinterpret_cast<LPARAM>(&file));
}

PixelImage ReadImagePixels(const std::wstring& path) {
    switch (ReaderForPath(path)) {
    case ImageReader::Icon:
        return ReadIconFile(path, GetSystemMetrics(SM_CXICON), DecodeBytesWithPlatform);
    case ImageReader::Targa:
        return ReadTargaFile(path);
    case ImageReader::Platform:
        break;
    }
    return DecodeWithPlatform(path);
}

PixelImage ReadImagePixels(const std::wstring& path, int maxWidth, int maxHeight) {
    if (maxWidth <= 0 || maxHeight <= 0)
        return ReadImagePixels(path);
    PixelImage pixels = ReaderForPath(path) == ImageReader::Platform
                            ? DecodeWithPlatform(path, maxWidth, maxHeight)
                            : ReadImagePixels(path);
    if (pixels.Empty() || (pixels.width <= maxWidth && pixels.height <= maxHeight))
        return pixels;
    // The program's own readers give the whole picture (within the pixel cap); it is shrunk here.
    const double factor = std::min(static_cast<double>(maxWidth) / pixels.width,
                                   static_cast<double>(maxHeight) / pixels.height);
    return ScaleImage(pixels, std::max(1, static_cast<int>(pixels.width * factor)),
                      std::max(1, static_cast<int>(pixels.height * factor)));
}

LoadedImage LoadImageFile(const std::wstring& path, int wantedWidth, int wantedHeight) {
    return LoadedImage::FromPixels(ScaleImage(ReadImagePixels(path), wantedWidth, wantedHeight));
}

} // namespace cv2
