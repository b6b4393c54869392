#include "store/text_codec.h"

#include <cstring>

namespace cv2 {
namespace {

// Windows-1252 for 0x80..0x9F. The five bytes the code page leaves undefined map to the C1
// control of the same number, as Windows itself does, so every byte survives a round trip.
const wchar_t kHighControls[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                   0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

wchar_t DecodeByte(unsigned char b) {
    if (b >= 0x80 && b < 0xA0)
        return kHighControls[b - 0x80];
    return static_cast<wchar_t>(b);
}

char EncodeChar(wchar_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    for (int i = 0; i < 32; ++i) {
        if (kHighControls[i] == c)
            return static_cast<char>(0x80 + i);
    }
    return '?';
}

} // namespace

std::wstring DecodeAnsi(const unsigned char* bytes, size_t size) {
    // The text ends at the first NUL byte, as a C string would.
    const void* nul = std::memchr(bytes, 0, size);
    const size_t length =
        nul ? static_cast<size_t>(static_cast<const unsigned char*>(nul) - bytes) : size;
    std::wstring text(length, L'\0');
    for (size_t i = 0; i < length; ++i)
        text[i] = DecodeByte(bytes[i]);
    return text;
}

std::string EncodeAnsi(const std::wstring& text) {
    std::string out;
    out.reserve(text.size());
    for (wchar_t c : text)
        out.push_back(EncodeChar(c));
    return out;
}

std::string EncodeUtf8(const std::wstring& text) {
    std::string out;
    for (wchar_t wc : text) {
        unsigned long c = static_cast<unsigned long>(wc);
        if (c < 0x80) {
            out.push_back(static_cast<char>(c));
        } else if (c < 0x800) {
            out.push_back(static_cast<char>(0xC0 | (c >> 6)));
            out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else if (c < 0x10000) {
            out.push_back(static_cast<char>(0xE0 | (c >> 12)));
            out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        } else {
            out.push_back(static_cast<char>(0xF0 | (c >> 18)));
            out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
        }
    }
    return out;
}

} // namespace cv2
