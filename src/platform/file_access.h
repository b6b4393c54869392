// Whole-file access for the portable core. Paths are device-style wide strings with backslashes;
// the POSIX implementation maps them to '/' so the same code and tests run natively and under Wine.
#pragma once

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

// The platform's text-mode line end: "\r\n" on Windows, "\n" elsewhere.
const char* TextLineEnd();

} // namespace cv2
