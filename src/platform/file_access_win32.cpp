#include "platform/file_access.h"

#include <windows.h>

#include "platform/write_fault.h"
#include "store/paths.h"

namespace cv2 {
namespace {

struct FolderEntry {
    std::wstring name;
    DWORD attributes;
};

// Every entry of the folder but "." and "..", read completely before anyone changes the folder.
std::vector<FolderEntry> Entries(const std::wstring& folder) {
    std::vector<FolderEntry> entries;
    WIN32_FIND_DATAW found;
    HANDLE find = FindFirstFileW((FolderWithSlash(folder) + L"*.*").c_str(), &found);
    if (find == INVALID_HANDLE_VALUE)
        return entries;
    do {
        const std::wstring name = found.cFileName;
        if (name != L"." && name != L"..")
            entries.push_back({name, found.dwFileAttributes});
    } while (FindNextFileW(find, &found));
    FindClose(find);
    return entries;
}

bool IsFolder(DWORD attributes) {
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

} // namespace

bool ReadWholeFile(const std::wstring& path, Bytes& out) {
    out.clear();
    HANDLE h = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                           OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE)
        return false;
    bool ok = true;
    unsigned char chunk[16384];
    for (;;) {
        DWORD got = 0;
        if (!ReadFile(h, chunk, sizeof chunk, &got, nullptr)) {
            ok = false;
            break;
        }
        if (got == 0)
            break;
        out.insert(out.end(), chunk, chunk + got);
    }
    CloseHandle(h);
    return ok;
}

namespace {

unsigned long LastError() {
    return GetLastError();
}

// A read-only file is not replaced: Windows refuses that, and Wine would not.
bool ReplaceWithTemporary(const std::wstring& temp, const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY)) {
        SetLastError(ERROR_ACCESS_DENIED);
        return false;
    }
    return MoveFileExW(temp.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

} // namespace

bool WriteFileReplacing(const std::wstring& path, const Bytes& bytes, WriteFailure* failure) {
    WriteFailure local;
    WriteFailure& f = failure ? *failure : local;
    f = WriteFailure{};
    const std::wstring temp = path + L".tmp~";
    HANDLE h = INVALID_HANDLE_VALUE;
    if (!RunWriteStep(
            WriteStep::CreateTemporary, f,
            [&] {
                h = CreateFileW(temp.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL, nullptr);
                return h != INVALID_HANDLE_VALUE;
            },
            LastError))
        return false; // nothing of ours to clean up: whatever is at the temporary path stays
    bool ok = RunWriteStep(
        WriteStep::Write, f,
        [&] {
            DWORD written = 0;
            return bytes.empty() || (WriteFile(h, bytes.data(), static_cast<DWORD>(bytes.size()),
                                               &written, nullptr) &&
                                     written == bytes.size());
        },
        LastError);
    ok = ok && RunWriteStep(
                   WriteStep::Flush, f, [&] { return FlushFileBuffers(h) != 0; }, LastError);
    const bool closed = CloseHandle(h) != 0; // closed whatever happened before
    ok = ok && RunWriteStep(
                   WriteStep::Close, f, [&] { return closed; }, LastError);
    ok = ok &&
         RunWriteStep(
             WriteStep::Replace, f, [&] { return ReplaceWithTemporary(temp, path); }, LastError);
    if (!ok)
        DeleteFileW(temp.c_str());
    return ok;
}

bool FileExists(const std::wstring& path) {
    DWORD attr = GetFileAttributesW(path.c_str());
    return attr != INVALID_FILE_ATTRIBUTES && !(attr & FILE_ATTRIBUTE_DIRECTORY);
}

bool RemoveFile(const std::wstring& path) {
    return DeleteFileW(path.c_str()) != 0;
}

std::vector<std::wstring> ListSubfolders(const std::wstring& folder) {
    std::vector<std::wstring> names;
    for (const FolderEntry& e : Entries(folder)) {
        if (IsFolder(e.attributes))
            names.push_back(e.name);
    }
    return names;
}

// The whole folder is listed and matched here rather than by the file system, so that every
// platform matches the same names.
std::vector<std::wstring> ListFiles(const std::wstring& folder, const std::wstring& pattern) {
    std::vector<std::wstring> names;
    for (const FolderEntry& e : Entries(folder)) {
        if (!IsFolder(e.attributes) && MatchesPattern(e.name, pattern))
            names.push_back(e.name);
    }
    return names;
}

// A linked folder (reparse point) is removed as a link; what it points to stays.
bool RemoveFolderTree(const std::wstring& folder) {
    const std::wstring base = FolderWithSlash(folder);
    for (const FolderEntry& e : Entries(folder)) {
        const std::wstring path = base + e.name;
        if (!IsFolder(e.attributes))
            DeleteFileW(path.c_str());
        else if (e.attributes & FILE_ATTRIBUTE_REPARSE_POINT)
            RemoveDirectoryW(path.c_str());
        else
            RemoveFolderTree(path);
    }
    return RemoveDirectoryW(folder.c_str()) != 0;
}

uint32_t FileAttributes(const std::wstring& path) {
    uint32_t injected = 0;
    if (InjectedAttributesOf(path, injected))
        return injected;
    return GetFileAttributesW(path.c_str());
}

const char* TextLineEnd() {
    return "\r\n";
}

} // namespace cv2
