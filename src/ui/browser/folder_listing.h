// Listing a folder for the file browser: its sub-folders for the tree, its files for the grid.
// A folder that cannot be listed gives nothing.
#pragma once

#include <string>
#include <vector>

namespace cv2 {

// The names of the sub-folders of `folder`, in the order the file system gives them ("." and
// ".." left out).
std::vector<std::wstring> ListSubFolders(const std::wstring& folder);

// True when `folder` holds at least one sub-folder.
bool HasSubFolder(const std::wstring& folder);

// The full paths of the files in `folder` that match any of `patterns`, one pattern after the
// other, leaving out folders and hidden files; sorted by name without regard to case.
std::vector<std::wstring> ListFiles(const std::wstring& folder,
                                    const std::vector<std::wstring>& patterns);

} // namespace cv2
