#include "ui/browser/folder_listing.h"

#include <windows.h>

#include "ui/browser/browse_paths.h"

namespace cv2 {
namespace {

bool IsDots(const wchar_t* name) {
    return name[0] == L'.' && (name[1] == 0 || (name[1] == L'.' && name[2] == 0));
}

bool IsFolder(const WIN32_FIND_DATAW& found) {
    return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Calls `take` for every entry matching `pattern` in `folder` until it returns false.
template <class Take>
void ForEachEntry(const std::wstring& folder, const wchar_t* pattern, Take take) {
    WIN32_FIND_DATAW found;
    HANDLE find = FindFirstFileW(InFolder(folder, pattern).c_str(), &found);
    if (find == INVALID_HANDLE_VALUE)
        return;
    do {
        if (!take(found))
            break;
    } while (FindNextFileW(find, &found));
    FindClose(find);
}

} // namespace

std::vector<std::wstring> ListSubFolders(const std::wstring& folder) {
    std::vector<std::wstring> names;
    ForEachEntry(folder, L"*.*", [&](const WIN32_FIND_DATAW& found) {
        if (IsFolder(found) && !IsDots(found.cFileName))
            names.emplace_back(found.cFileName);
        return true;
    });
    return names;
}

bool HasSubFolder(const std::wstring& folder) {
    bool any = false;
    ForEachEntry(folder, L"*.*", [&](const WIN32_FIND_DATAW& found) {
        any = IsFolder(found) && !IsDots(found.cFileName);
        return !any;
    });
    return any;
}

std::vector<std::wstring> ListFiles(const std::wstring& folder,
                                    const std::vector<std::wstring>& patterns) {
    std::vector<std::wstring> paths;
    for (const std::wstring& pattern : patterns) {
        ForEachEntry(folder, pattern.c_str(), [&](const WIN32_FIND_DATAW& found) {
            if (!IsFolder(found) && !(found.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN))
                paths.push_back(InFolder(folder, found.cFileName));
            return true;
        });
    }
    SortNoCase(paths);
    return paths;
}

} // namespace cv2
