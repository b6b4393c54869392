#include "platform/std_error.h"

#include <windows.h>

#include <string>

namespace cv2 {
namespace {

// A program of the windowed kind has no standard error of its own unless its starter handed one
// over; the console of the starter, when there is one, takes its place.
HANDLE ErrorHandle() {
    HANDLE handle = GetStdHandle(STD_ERROR_HANDLE);
    if (handle && handle != INVALID_HANDLE_VALUE)
        return handle;
    if (!AttachConsole(ATTACH_PARENT_PROCESS))
        return nullptr;
    handle = CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                         nullptr);
    return handle == INVALID_HANDLE_VALUE ? nullptr : handle;
}

} // namespace

void WriteStdError(const std::wstring& text) {
    HANDLE handle = ErrorHandle();
    if (!handle || text.empty())
        return;
    DWORD written = 0;
    DWORD mode = 0;
    if (GetConsoleMode(handle, &mode)) {
        WriteConsoleW(handle, text.c_str(), static_cast<DWORD>(text.size()), &written, nullptr);
        return;
    }
    // Redirected to a file or a pipe: 8-bit text, as the program's files are.
    const int size = WideCharToMultiByte(CP_ACP, 0, text.c_str(), static_cast<int>(text.size()),
                                         nullptr, 0, nullptr, nullptr);
    if (size <= 0)
        return;
    std::string bytes(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.c_str(), static_cast<int>(text.size()), &bytes[0], size,
                        nullptr, nullptr);
    WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

} // namespace cv2
