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

// For tests: the observer hears the path of every file ReadWholeFile is asked to read, before it
// is opened, from whichever thread reads it, one call at a time; null ends it.
using FileReadObserver = void (*)(const std::wstring& path);
void ObserveFileReads(FileReadObserver observer);

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

// For tests: every later replacing write, and every OutputFile, fails at `step` with `error`,
// the way a full disk or a locked file would make it fail there; WriteStep::None ends the fault.
void InjectWriteFault(WriteStep step, unsigned long error);

// A file read piece by piece at any offset, for files too large to hold whole (packages).
class InputFile {
  public:
    InputFile() = default;
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
    ~InputFile();

    // False when the file cannot be opened for reading.
    bool Open(const std::wstring& path);
    uint64_t Size() const { return m_size; }
    // Reads exactly `count` bytes from `offset`; false when the file ends first or a read fails.
    bool ReadAt(uint64_t offset, unsigned char* out, size_t count);

  private:
    intptr_t m_handle = -1;
    uint64_t m_size = 0;
};

// A file written piece by piece. Its steps are those of a replacing write (creation is
// WriteStep::CreateTemporary), and an injected fault stops it the same way.
class OutputFile {
  public:
    OutputFile() = default;
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    ~OutputFile(); // closes the file if still open; it stays on disk

    // Creates the file. With `replaceExisting` false, a name already taken fails, so nothing
    // that is there is ever written over.
    bool Create(const std::wstring& path, bool replaceExisting);
    bool Write(const unsigned char* data, size_t count);
    // With `flush`, Windows is asked to put the bytes on the disk first (elsewhere each write
    // has already handed them to the system). False when anything written did not reach the
    // file.
    bool Close(bool flush);
    const WriteFailure& Failure() const { return m_failure; }

  private:
    intptr_t m_handle = -1;
    WriteFailure m_failure;
};

// A file written piece by piece into a temporary file beside `path`, which replaces `path` only
// on Commit. When a step fails, or the object goes away without Commit, the temporary file is
// removed and `path` stays as it was. WriteFileReplacing writes through it.
class ReplacingFile {
  public:
    explicit ReplacingFile(const std::wstring& path);
    ~ReplacingFile();

    bool Open();
    bool Write(const unsigned char* data, size_t count);
    bool Commit();
    const WriteFailure& Failure() const;

  private:
    void Discard();
    std::wstring m_path;
    std::wstring m_temp;
    OutputFile m_file;
    WriteFailure m_failure;
    bool m_open = false;
};

// Renames `temp` over `path`, replacing a file there; on Windows a read-only `path` is refused.
// False when it fails (the platform's error number is then the last error).
bool ReplaceFileWith(const std::wstring& temp, const std::wstring& path);

// The platform's error number of the last failed file call (GetLastError on Windows, errno
// elsewhere).
unsigned long LastFileError();

// Creates one folder; false when it cannot be made or anything already has that name.
bool MakeFolder(const std::wstring& path);

// Renames or moves a folder within one disk; false when `to` is already taken or it fails.
bool MoveFolder(const std::wstring& from, const std::wstring& to);

// Creates a new, empty folder named `prefix` and a number inside `parent` and returns its path
// with a trailing backslash; empty when none could be made.
std::wstring MakeTempFolder(const std::wstring& parent, const std::wstring& prefix);

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
