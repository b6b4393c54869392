#include "store/text_codec.h"

#include <cstring>
#include <windows.h>

namespace cv2 {
namespace {

std::wstring Decode(UINT codePage, const char* bytes, int size) {
    if (size <= 0)
        return std::wstring();
    int chars = MultiByteToWideChar(codePage, 0, bytes, size, nullptr, 0);
    std::wstring text(static_cast<size_t>(chars), L'\0');
    MultiByteToWideChar(codePage, 0, bytes, size, &text[0], chars);
    return text;
}

std::string Encode(UINT codePage, const std::wstring& text) {
    if (text.empty())
        return std::string();
    const int size = static_cast<int>(text.size());
    int bytes = WideCharToMultiByte(codePage, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string out(static_cast<size_t>(bytes), '\0');
    WideCharToMultiByte(codePage, 0, text.data(), size, &out[0], bytes, nullptr, nullptr);
    return out;
}

} // namespace

std::wstring DecodeAnsi(const unsigned char* bytes, size_t size) {
    const void* nul = std::memchr(bytes, 0, size);
    if (nul)
        size = static_cast<size_t>(static_cast<const unsigned char*>(nul) - bytes);
    return Decode(CP_ACP, reinterpret_cast<const char*>(bytes), static_cast<int>(size));
}

std::string EncodeAnsi(const std::wstring& text) { return Encode(CP_ACP, text); }

std::string EncodeUtf8(const std::wstring& text) { return Encode(CP_UTF8, text); }

} // namespace cv2
