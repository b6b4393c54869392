// Whole-file access for the portable core. Paths are device-style wide strings with backslashes;
// the POSIX implementation maps them to '/' so the same code and tests run natively and under Wine.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace cv2 {

using Bytes = std::vector<unsigned char>;

// Reads the whole file; false when it cannot be opened or read.
bool ReadWholeFile(const std::wstring& path, Bytes& out);

// The steps of a replacing write, in order.
enum class WriteStep { None, CreateTemporary, Write, Flush, Close, Replace };

// Where a replacing write stopped and the platform's error number there (GetLastError on
// Windows, errno elsewhere).
struct WriteFailure {
    WriteStep step = WriteStep::None;
    unsigned long error = 0;
};

// Writes the bytes to a temporary file beside `path` and only then replaces `path`,
// so a failed write never leaves a half-written target. False when anything fails;
// the old file is then untouched, no temporary file is left, and `failure` (when given) says
// where and why it failed.
bool WriteFileReplacing(const std::wstring& path, const Bytes& bytes,
                        WriteFailure* failure = nullptr);

// For tests: every later replacing write fails at `step` with `error`, the way a full disk or a
// locked file would make it fail there; WriteStep::None ends the fault.
void InjectWriteFault(WriteStep step, unsigned long error);

// True when `path` names an existing regular file (not a folder).
bool FileExists(const std::wstring& path);

// Removes a file; false when it did not exist or could not be removed.
bool RemoveFile(const std::wstring& path);

// Names (not paths) of the folders directly inside `folder`, without "." and "..", in the order
// the file system gives them. Empty when the folder cannot be listed.
std::vector<std::wstring> ListSubfolders(const std::wstring& folder);

// Names of the files (not folders) directly inside `folder` whose name matches `pattern`, where
// '*' stands for any run of characters and '?' for one, letters compared without regard to case
// ("*.skin"). Empty when the folder cannot be listed.
std::vector<std::wstring> ListFiles(const std::wstring& folder, const std::wstring& pattern);

// Removes the folder with every file and sub-folder in it. Goes on past anything that cannot be
// removed and leaves it in place; true when the folder is gone in the end.
bool RemoveFolderTree(const std::wstring& folder);

// The file system's attribute bits of a file or folder, with the platform's values (read-only
// 0x1, folder 0x10, temporary 0x100, ...); kNoFileAttributes when the query fails.
constexpr uint32_t kNoFileAttributes = 0xFFFFFFFFu;
constexpr uint32_t kAttributeFolder = 0x10;
constexpr uint32_t kAttributeTemporary = 0x100;
uint32_t FileAttributes(const std::wstring& path);
void InjectFileAttributes(const std::wstring& path, uint32_t attributes); // tests: write_fault.h

// The platform's text-mode line end: "\r\n" on Windows, "\n" elsewhere.
const char* TextLineEnd();

} // namespace cv2
