#include "archive/entry_names.h"

#include <cstdint>
#include <vector>

#include "store/ini_document.h"

namespace cv2 {
namespace {

// The upper half of code page 437, the DOS code page that zip tools on Windows write names in.
const wchar_t kCodePage437[128] = {
    0x00C7, 0x00FC, 0x00E9, 0x00E2, 0x00E4, 0x00E0, 0x00E5, 0x00E7, 0x00EA, 0x00EB, 0x00E8, 0x00EF,
    0x00EE, 0x00EC, 0x00C4, 0x00C5, 0x00C9, 0x00E6, 0x00C6, 0x00F4, 0x00F6, 0x00F2, 0x00FB, 0x00F9,
    0x00FF, 0x00D6, 0x00DC, 0x00A2, 0x00A3, 0x00A5, 0x20A7, 0x0192, 0x00E1, 0x00ED, 0x00F3, 0x00FA,
    0x00F1, 0x00D1, 0x00AA, 0x00BA, 0x00BF, 0x2310, 0x00AC, 0x00BD, 0x00BC, 0x00A1, 0x00AB, 0x00BB,
    0x2591, 0x2592, 0x2593, 0x2502, 0x2524, 0x2561, 0x2562, 0x2556, 0x2555, 0x2563, 0x2551, 0x2557,
    0x255D, 0x255C, 0x255B, 0x2510, 0x2514, 0x2534, 0x252C, 0x251C, 0x2500, 0x253C, 0x255E, 0x255F,
    0x255A, 0x2554, 0x2569, 0x2566, 0x2560, 0x2550, 0x256C, 0x2567, 0x2568, 0x2564, 0x2565, 0x2559,
    0x2558, 0x2552, 0x2553, 0x256B, 0x256A, 0x2518, 0x250C, 0x2588, 0x2584, 0x258C, 0x2590, 0x2580,
    0x03B1, 0x00DF, 0x0393, 0x03C0, 0x03A3, 0x03C3, 0x00B5, 0x03C4, 0x03A6, 0x0398, 0x03A9, 0x03B4,
    0x221E, 0x03C6, 0x03B5, 0x2229, 0x2261, 0x00B1, 0x2265, 0x2264, 0x2320, 0x2321, 0x00F7, 0x2248,
    0x00B0, 0x2219, 0x00B7, 0x221A, 0x207F, 0x00B2, 0x25A0, 0x00A0,
};

// Appends a code point in the wide form of the platform (UTF-16 where wchar_t has 16 bits).
void AppendCodePoint(std::wstring& out, uint32_t cp) {
    if (sizeof(wchar_t) == 2 && cp >= 0x10000) {
        cp -= 0x10000;
        out += static_cast<wchar_t>(0xD800 + (cp >> 10));
        out += static_cast<wchar_t>(0xDC00 + (cp & 0x3FF));
    } else {
        out += static_cast<wchar_t>(cp);
    }
}

// Strict UTF-8: no overlong forms, no surrogates, nothing past U+10FFFF. False when the bytes
// are not UTF-8 at all.
bool DecodeUtf8(const std::string& raw, std::wstring& out) {
    out.clear();
    const auto* p = reinterpret_cast<const unsigned char*>(raw.data());
    const size_t n = raw.size();
    for (size_t i = 0; i < n;) {
        const unsigned lead = p[i];
        const size_t extra = lead < 0x80 ? 0 : lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
        if ((lead >= 0x80 && lead < 0xC2) || lead > 0xF4 || (extra > 0 && i + extra >= n))
            return false;
        uint32_t cp = extra == 0 ? lead : lead & (0x3F >> extra);
        for (size_t k = 1; k <= extra; ++k) {
            if ((p[i + k] & 0xC0) != 0x80)
                return false;
            cp = (cp << 6) | (p[i + k] & 0x3F);
        }
        const uint32_t least[] = {0, 0x80, 0x800, 0x10000};
        if (cp < least[extra] || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF))
            return false;
        AppendCodePoint(out, cp);
        i += extra + 1;
    }
    return true;
}

std::wstring DecodeCodePage437(const std::string& raw) {
    std::wstring out;
    for (const char c : raw) {
        const auto b = static_cast<unsigned char>(c);
        out += b < 0x80 ? static_cast<wchar_t>(b) : kCodePage437[b - 0x80];
    }
    return out;
}

bool IsAscii(const std::string& raw) {
    for (const char c : raw)
        if (static_cast<unsigned char>(c) >= 0x80)
            return false;
    return true;
}

bool IsSeparator(wchar_t c) {
    return c == L'/' || c == L'\\';
}

bool IsUnfitCharacter(wchar_t c) {
    return c < 0x20 || c == L'<' || c == L'>' || c == L':' || c == L'"' || c == L'|' || c == L'?' ||
           c == L'*';
}

ZipProblem CheckPart(const std::wstring& part) {
    if (part == L"..")
        return ZipProblem::LeavesFolder;
    if (part.empty() || part == L".")
        return ZipProblem::UnfitName;
    for (const wchar_t c : part)
        if (IsUnfitCharacter(c))
            return ZipProblem::UnfitName;
    // Windows drops a trailing dot or space, so "a." and "a" would be one file.
    if (part.back() == L'.' || part.back() == L' ' || IsDeviceName(part))
        return ZipProblem::UnfitName;
    return ZipProblem::None;
}

} // namespace

std::wstring DecodeEntryName(const std::string& raw, bool utf8Flag) {
    std::wstring text;
    if ((utf8Flag || !IsAscii(raw)) && DecodeUtf8(raw, text))
        return text;
    return DecodeCodePage437(raw);
}

std::string EncodeEntryName(const std::wstring& name, bool& utf8) {
    std::string out;
    utf8 = false;
    for (size_t i = 0; i < name.size(); ++i) {
        uint32_t cp = static_cast<uint32_t>(name[i]);
        if (sizeof(wchar_t) == 2 && cp >= 0xD800 && cp < 0xDC00 && i + 1 < name.size()) {
            const uint32_t low = static_cast<uint32_t>(name[i + 1]);
            if (low >= 0xDC00 && low < 0xE000) {
                cp = 0x10000 + ((cp - 0xD800) << 10) + (low - 0xDC00);
                ++i;
            }
        }
        if (cp < 0x80) {
            out += static_cast<char>(cp);
            continue;
        }
        utf8 = true;
        // Lead byte, then six bits per continuation byte.
        const int extra = cp < 0x800 ? 1 : cp < 0x10000 ? 2 : 3;
        const unsigned leadMark[] = {0, 0xC0, 0xE0, 0xF0};
        out += static_cast<char>(leadMark[extra] | (cp >> (6 * extra)));
        for (int k = extra - 1; k >= 0; --k)
            out += static_cast<char>(0x80 | ((cp >> (6 * k)) & 0x3F));
    }
    return out;
}

bool IsDeviceName(const std::wstring& part) {
    // The device is reached whatever follows the first dot, and trailing spaces are ignored.
    std::wstring base = Folded(part.substr(0, part.find(L'.')).c_str());
    while (!base.empty() && base.back() == L' ')
        base.pop_back();
    static const wchar_t* const kDevices[] = {L"con",    L"prn",     L"aux",   L"nul",
                                              L"conin$", L"conout$", L"clock$"};
    for (const wchar_t* device : kDevices)
        if (base == device)
            return true;
    return base.size() == 4 &&
           (base.compare(0, 3, L"com") == 0 || base.compare(0, 3, L"lpt") == 0) &&
           base[3] >= L'1' && base[3] <= L'9';
}

ZipProblem CheckEntryName(const std::wstring& name, size_t maxChars, CleanName& clean) {
    if (name.empty())
        return ZipProblem::UnfitName;
    const bool drive =
        name.size() >= 2 && name[1] == L':' &&
        ((name[0] >= L'A' && name[0] <= L'Z') || (name[0] >= L'a' && name[0] <= L'z'));
    if (IsSeparator(name[0]) || drive)
        return ZipProblem::AbsolutePath;
    const bool folder = IsSeparator(name.back());
    const std::wstring body = folder ? name.substr(0, name.size() - 1) : name;
    std::wstring path;
    size_t start = 0;
    for (;;) {
        size_t end = start;
        while (end < body.size() && !IsSeparator(body[end]))
            ++end;
        const std::wstring part = body.substr(start, end - start);
        const ZipProblem problem = CheckPart(part);
        if (problem != ZipProblem::None)
            return problem;
        path += (path.empty() ? L"" : L"/") + part;
        if (end >= body.size())
            break;
        start = end + 1;
    }
    if (path.size() > maxChars)
        return ZipProblem::NameTooLong;
    clean.path = path;
    clean.folder = folder;
    return ZipProblem::None;
}

} // namespace cv2
