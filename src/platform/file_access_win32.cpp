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

HANDLE HandleOf(intptr_t handle) {
    return reinterpret_cast<HANDLE>(handle);
}

} // namespace

InputFile::~InputFile() {
    if (m_handle != -1)
        CloseHandle(HandleOf(m_handle));
}

bool InputFile::Open(const std::wstring& path) {
    if (m_handle != -1)
        CloseHandle(HandleOf(m_handle));
    m_size = 0;
    HANDLE h = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                           FILE_ATTRIBUTE_NORMAL | FILE_FLAG_RANDOM_ACCESS, nullptr);
    m_handle = reinterpret_cast<intptr_t>(h);
    LARGE_INTEGER size;
    if (h == INVALID_HANDLE_VALUE || !GetFileSizeEx(h, &size) || size.QuadPart < 0)
        return false;
    m_size = static_cast<uint64_t>(size.QuadPart);
    return true;
}

bool InputFile::ReadAt(uint64_t offset, unsigned char* out, size_t count) {
    if (m_handle == -1 || offset > m_size || count > m_size - offset)
        return false;
    while (count > 0) {
        OVERLAPPED at = {};
        at.Offset = static_cast<DWORD>(offset);
        at.OffsetHigh = static_cast<DWORD>(offset >> 32);
        const DWORD piece = count > 0x40000000u ? 0x40000000u : static_cast<DWORD>(count);
        DWORD got = 0;
        if (!ReadFile(HandleOf(m_handle), out, piece, &got, &at) || got == 0)
            return false;
        out += got;
        offset += got;
        count -= got;
    }
    return true;
}

OutputFile::~OutputFile() {
    if (m_handle != -1)
        CloseHandle(HandleOf(m_handle));
}

bool OutputFile::Create(const std::wstring& path, bool replaceExisting) {
    m_failure = WriteFailure{};
    return RunWriteStep(
        WriteStep::CreateTemporary, m_failure,
        [&] {
            HANDLE h = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr,
                                   replaceExisting ? CREATE_ALWAYS : CREATE_NEW,
                                   FILE_ATTRIBUTE_NORMAL, nullptr);
            m_handle = reinterpret_cast<intptr_t>(h);
            return h != INVALID_HANDLE_VALUE;
        },
        LastFileError);
}

bool OutputFile::Write(const unsigned char* data, size_t count) {
    return RunWriteStep(
        WriteStep::Write, m_failure,
        [&] {
            while (count > 0 && m_handle != -1) {
                const DWORD piece = count > 0x40000000u ? 0x40000000u : static_cast<DWORD>(count);
                DWORD put = 0;
                if (!WriteFile(HandleOf(m_handle), data, piece, &put, nullptr) || put != piece)
                    return false;
                data += put;
                count -= put;
            }
            return m_handle != -1;
        },
        LastFileError);
}

bool OutputFile::Close(bool flush) {
    if (m_handle == -1)
        return false;
    HANDLE h = HandleOf(m_handle);
    bool ok = RunWriteStep(
        WriteStep::Flush, m_failure, [&] { return !flush || FlushFileBuffers(h) != 0; },
        LastFileError);
    const bool closed = CloseHandle(h) != 0; // closed whatever happened before
    m_handle = -1;
    ok = ok && RunWriteStep(
                   WriteStep::Close, m_failure, [&] { return closed; }, LastFileError);
    return ok;
}

// A read-only file is not replaced: Windows refuses that, and Wine would not.
bool ReplaceFileWith(const std::wstring& temp, const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY)) {
        SetLastError(ERROR_ACCESS_DENIED);
        return false;
    }
    return MoveFileExW(temp.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

unsigned long LastFileError() {
    return GetLastError();
}

bool MakeFolder(const std::wstring& path) {
    return CreateDirectoryW(path.c_str(), nullptr) != 0;
}

bool MoveFolder(const std::wstring& from, const std::wstring& to) {
    if (GetFileAttributesW(to.c_str()) != INVALID_FILE_ATTRIBUTES)
        return false;
    return MoveFileExW(from.c_str(), to.c_str(), 0) != 0;
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
    return GetFileAttributesW(path.c_str());
}

const char* TextLineEnd() {
    return "\r\n";
}

} // namespace cv2
