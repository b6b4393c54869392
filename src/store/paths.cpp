#include "store/paths.h"

#include "store/ini_document.h"

namespace cv2 {

bool IsAbsolutePath(const std::wstring& path) {
    if (!path.empty() && (path[0] == L'\\' || path[0] == L'/'))
        return true;
    if (path.size() >= 3 && path[1] == L':' && (path[2] == L'\\' || path[2] == L'/')) {
        wchar_t d = path[0];
        return (d >= L'A' && d <= L'Z') || (d >= L'a' && d <= L'z');
    }
    return false;
}

std::wstring FolderOf(const std::wstring& path) {
    size_t slash = path.find_last_of(L'\\');
    return slash == std::wstring::npos ? std::wstring() : path.substr(0, slash + 1);
}

std::wstring FolderWithSlash(const std::wstring& folder) {
    if (folder.empty() || folder.back() == L'\\')
        return folder;
    return folder + L'\\';
}

std::wstring CutToBuffer(const std::wstring& text, size_t bufferChars) {
    if (bufferChars == 0)
        return std::wstring();
    return text.size() < bufferChars ? text : text.substr(0, bufferChars - 1);
}

// Greedy matching that goes back only to the last '*': linear in practice, and never
// exponential however many stars a pattern holds.
bool MatchesPattern(const std::wstring& name, const std::wstring& pattern) {
    size_t n = 0, p = 0;
    size_t starAt = std::wstring::npos, resumeAt = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == L'*') {
            starAt = p++;
            resumeAt = n;
        } else if (p < pattern.size() &&
                   (pattern[p] == L'?' || FoldCase(pattern[p]) == FoldCase(name[n]))) {
            ++n;
            ++p;
        } else if (starAt != std::wstring::npos) {
            p = starAt + 1;
            n = ++resumeAt;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == L'*')
        ++p;
    return p == pattern.size();
}

} // namespace cv2
