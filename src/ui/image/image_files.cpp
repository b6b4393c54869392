#include "ui/image/image_files.h"

#include "platform/file_access.h"
#include "ui/image/icon_reader.h"
#include "ui/image/targa_reader.h"

namespace cv2 {
namespace {

// Only ASCII letters matter for the extensions looked for.
std::wstring LowerAscii(std::wstring text) {
    for (wchar_t& c : text) {
        if (c >= L'A' && c <= L'Z')
            c = static_cast<wchar_t>(c - L'A' + L'a');
    }
    return text;
}

// A positive decimal number, or 0 when the text is anything else. Large values stop growing at
// a size no icon has, so they cannot overflow.
int ParseSize(const std::wstring& text) {
    if (text.empty())
        return 0;
    int value = 0;
    for (wchar_t c : text) {
        if (c < L'0' || c > L'9')
            return 0;
        value = value < 100000 ? value * 10 + (c - L'0') : value;
    }
    return value;
}

} // namespace

ImageReader ReaderForPath(const std::wstring& path) {
    const std::wstring lower = LowerAscii(path);
    if (lower.find(L".ico") != std::wstring::npos)
        return ImageReader::Icon;
    if (lower.find(L".tga") != std::wstring::npos)
        return ImageReader::Targa;
    return ImageReader::Platform;
}

std::wstring SplitIconSize(const std::wstring& path, int defaultSize, int& size) {
    size = defaultSize;
    const size_t bar = path.rfind(L'|');
    if (bar == std::wstring::npos)
        return path;
    if (const int given = ParseSize(path.substr(bar + 1)))
        size = given;
    return path.substr(0, bar);
}

PixelImage ReadTargaFile(const std::wstring& path) {
    Bytes bytes;
    if (!ReadWholeFile(path, bytes))
        return {};
    return ReadTarga(bytes.data(), bytes.size());
}

PixelImage ReadIconFile(const std::wstring& path, int defaultSize, const PngDecoder& decodePng) {
    int size = 0;
    const std::wstring file = SplitIconSize(path, defaultSize, size);
    Bytes bytes;
    if (!ReadWholeFile(file, bytes))
        return {};
    return ReadIcon(bytes.data(), bytes.size(), size, decodePng);
}

} // namespace cv2
