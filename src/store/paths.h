// Path rules shared by the whole program. Device paths start with '\'; desktop paths start with a
// drive letter or a UNC prefix. Every rule that asks whether a path is absolute asks here.
#pragma once

#include <string>

namespace cv2 {

constexpr size_t kMaxPath = 260;

// True for "\x", "C:\x" / "C:/x" and "\\server\share".
bool IsAbsolutePath(const std::wstring& path);

// Everything up to and including the last backslash; empty when there is none.
std::wstring FolderOf(const std::wstring& path);

// Like FolderOf, with a backslash appended when the folder is not empty and lacks one.
std::wstring FolderWithSlash(const std::wstring& folder);

// Cuts a text the way a fixed buffer of `bufferChars` characters would hold it.
std::wstring CutToBuffer(const std::wstring& text, size_t bufferChars);

// True when `name` matches `pattern`, where '*' stands for any run of characters and '?' for
// exactly one; letters compare without regard to case, as the file system compares names.
bool MatchesPattern(const std::wstring& name, const std::wstring& pattern);

} // namespace cv2
