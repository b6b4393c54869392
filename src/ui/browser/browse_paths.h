// The file browser's text rules, apart from any window: the filter string, folder paths built
// from the names in the folder tree, the remembered folder of a chosen path, and the order of
// the files shown.
#pragma once

#include <string>
#include <vector>

namespace cv2 {

// One choice of the filter drop-down: its label and its patterns ("*.jpg;*.png").
struct FilterChoice {
    std::wstring label;
    std::wstring patterns;
};

// Reads "label|patterns|label|patterns": every field is joined to the next by '|'. A label left
// without patterns at the end gets none (it lists nothing).
std::vector<FilterChoice> ParseFilter(const std::wstring& filter);

// The patterns of one choice, split at ';'; empty parts are dropped.
std::vector<std::wstring> SplitPatterns(const std::wstring& patterns);

// The names of a folder path from the top down, split at '\' ("C:\Themes\Blue" gives "C:",
// "Themes", "Blue"; "\Windows" gives "Windows"); empty parts are dropped.
std::vector<std::wstring> SplitFolderPath(const std::wstring& path);

// The path of the folder reached through these names below "My Device". A first name that is a
// drive ("C:") starts the path ("C:\Themes", and "C:\" for the drive alone); otherwise the path
// starts at the root ("\Windows\Start Menu"; "\" for no names).
std::wstring JoinFolderPath(const std::vector<std::wstring>& names);

// `folder` and `pattern` joined by one backslash ("C:\" and "*.*" give "C:\*.*").
std::wstring InFolder(const std::wstring& folder, const std::wstring& name);

// The folder remembered for a chosen path: the path up to its last backslash (without it), at
// most 260 characters. A path without a backslash gives an empty text.
std::wstring RememberedFolderOf(const std::wstring& path);

// True when `a` sorts before `b` comparing letters without regard to case.
bool LessNoCase(const std::wstring& a, const std::wstring& b);
// Sorts paths by name without regard to case (ties keep their order).
void SortNoCase(std::vector<std::wstring>& paths);

} // namespace cv2
