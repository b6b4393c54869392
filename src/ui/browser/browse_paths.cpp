#include "ui/browser/browse_paths.h"

#include <algorithm>

#include "store/ini_document.h"
#include "store/paths.h"

namespace cv2 {
namespace {

std::vector<std::wstring> Split(const std::wstring& text, wchar_t separator, bool keepEmpty) {
    std::vector<std::wstring> parts;
    size_t start = 0;
    for (;;) {
        const size_t end = text.find(separator, start);
        const std::wstring part =
            text.substr(start, end == std::wstring::npos ? std::wstring::npos : end - start);
        if (keepEmpty || !part.empty())
            parts.push_back(part);
        if (end == std::wstring::npos)
            return parts;
        start = end + 1;
    }
}

bool IsDriveName(const std::wstring& name) {
    return name.size() == 2 && name[1] == L':' &&
           ((name[0] >= L'A' && name[0] <= L'Z') || (name[0] >= L'a' && name[0] <= L'z'));
}

} // namespace

std::vector<FilterChoice> ParseFilter(const std::wstring& filter) {
    std::vector<FilterChoice> choices;
    if (filter.empty())
        return choices;
    const std::vector<std::wstring> fields = Split(filter, L'|', true);
    for (size_t i = 0; i < fields.size(); i += 2) {
        if (fields[i].empty() && i + 1 >= fields.size())
            break; // a trailing '|'
        choices.push_back({fields[i], i + 1 < fields.size() ? fields[i + 1] : std::wstring()});
    }
    return choices;
}

std::vector<std::wstring> SplitPatterns(const std::wstring& patterns) {
    return Split(patterns, L';', false);
}

std::vector<std::wstring> SplitFolderPath(const std::wstring& path) {
    return Split(path, L'\\', false);
}

std::wstring JoinFolderPath(const std::vector<std::wstring>& names) {
    if (names.empty())
        return L"\\";
    std::wstring path;
    size_t next = 0;
    if (IsDriveName(names[0])) {
        path = names[0];
        next = 1;
        if (names.size() == 1)
            return path + L"\\";
    }
    for (; next < names.size(); ++next)
        path += L"\\" + names[next];
    return path;
}

std::wstring InFolder(const std::wstring& folder, const std::wstring& name) {
    if (!folder.empty() && folder.back() == L'\\')
        return folder + name;
    return folder + L"\\" + name;
}

std::wstring RememberedFolderOf(const std::wstring& path) {
    std::wstring folder = FolderOf(path);
    if (!folder.empty())
        folder.pop_back();
    return CutToBuffer(folder, kMaxPath + 1);
}

bool LessNoCase(const std::wstring& a, const std::wstring& b) {
    return std::lexicographical_compare(
        a.begin(), a.end(), b.begin(), b.end(),
        [](wchar_t x, wchar_t y) { return FoldCase(x) < FoldCase(y); });
}

void SortNoCase(std::vector<std::wstring>& paths) {
    std::stable_sort(paths.begin(), paths.end(), LessNoCase);
}

} // namespace cv2
