#include "platform/device_root.h"

#include <windows.h>

namespace cv2 {

std::vector<std::wstring> MyDeviceFolders() {
    std::vector<std::wstring> drives;
    const DWORD mask = GetLogicalDrives();
    for (int letter = 0; letter < 26; ++letter) {
        if (!(mask & (1u << letter)))
            continue;
        const wchar_t root[] = {static_cast<wchar_t>(L'A' + letter), L':', L'\\', 0};
        // Drives that hold no folders the user could pick (no media, unknown) are left out.
        const UINT type = GetDriveTypeW(root);
        if (type == DRIVE_NO_ROOT_DIR || type == DRIVE_UNKNOWN)
            continue;
        drives.push_back(std::wstring(root, 2));
    }
    return drives;
}

std::wstring MyDeviceFiles() {
    return std::wstring();
}

std::wstring MyDeviceIconPath() {
    wchar_t windows[MAX_PATH] = {};
    const UINT length = GetWindowsDirectoryW(windows, MAX_PATH);
    if (length >= 2 && windows[1] == L':')
        return std::wstring(windows, 2) + L"\\";
    return L"C:\\";
}

} // namespace cv2
