#include "platform/file_access.h"

#include <windows.h>

namespace cv2 {

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

bool WriteFileReplacing(const std::wstring& path, const Bytes& bytes) {
    const std::wstring temp = path + L".tmp~";
    HANDLE h = CreateFileW(temp.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
    if (h == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    bool ok = bytes.empty() ||
              (WriteFile(h, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
               written == bytes.size());
    ok = FlushFileBuffers(h) && ok;
    ok = CloseHandle(h) && ok;
    if (ok && MoveFileExW(temp.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING))
        return true;
    DeleteFileW(temp.c_str());
    return false;
}

bool FileExists(const std::wstring& path) {
    DWORD attr = GetFileAttributesW(path.c_str());
    return attr != INVALID_FILE_ATTRIBUTES && !(attr & FILE_ATTRIBUTE_DIRECTORY);
}

bool RemoveFile(const std::wstring& path) { return DeleteFileW(path.c_str()) != 0; }

const char* TextLineEnd() { return "\r\n"; }

} // namespace cv2
