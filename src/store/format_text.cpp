#include "store/format_text.h"

namespace cv2 {

std::wstring FormatText(const std::wstring& pattern, std::initializer_list<std::wstring> args) {
    std::wstring out;
    auto next = args.begin();
    for (size_t i = 0; i < pattern.size(); ++i) {
        const wchar_t c = pattern[i];
        const wchar_t following = i + 1 < pattern.size() ? pattern[i + 1] : L'\0';
        if (c == L'%' && following == L's') {
            if (next != args.end())
                out += *next++;
            ++i;
        } else if (c == L'%' && following == L'%') {
            out += L'%';
            ++i;
        } else {
            out += c;
        }
    }
    return out;
}

} // namespace cv2
