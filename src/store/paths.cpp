#include "store/paths.h"

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

} // namespace cv2
