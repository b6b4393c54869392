#include "ui/image/image_loader.h"

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

} // namespace

PixelImage DecodeWithPlatform(const std::wstring& path) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    BYTE chunk[8192];
    HBITMAP bitmap = nullptr;
    DecompressImageInfo info = {};
    info.dwSize = sizeof info;
    info.pbBuffer = chunk;
    info.dwBufferMax = sizeof chunk;
    info.phBM = &bitmap;
    info.iBitDepth = 32;
    info.lParam = reinterpret_cast<LPARAM>(file);
    info.pfnGetData = ReadChunk;
    const HRESULT hr = DecompressImageIndirect(&info);
    CloseHandle(file);
    if (FAILED(hr) || !bitmap)
        return {};
    PixelImage pixels = PixelsFromBitmap(bitmap);
    DeleteObject(bitmap);
    return pixels;
}

PixelImage ReadImagePixels(const std::wstring& path) {
    switch (ReaderForPath(path)) {
    case ImageReader::Icon:
        return ReadIconFile(path, GetSystemMetrics(SM_CXICON));
    case ImageReader::Targa:
        return ReadTargaFile(path);
    case ImageReader::Platform:
        break;
    }
    return DecodeWithPlatform(path);
}

LoadedImage LoadImageFile(const std::wstring& path, int wantedWidth, int wantedHeight) {
    return LoadedImage::FromPixels(ScaleImage(ReadImagePixels(path), wantedWidth, wantedHeight));
}

} // namespace cv2
