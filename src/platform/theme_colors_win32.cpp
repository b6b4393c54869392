#include "platform/theme_colors.h"

#include <windows.h>

#include "platform/device_colors.h"
#include "platform/theme_color_table.h"

namespace cv2 {
namespace {

bool ReadRegistryColor(const wchar_t* valueName, uint32_t& value) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, kThemeColorKey, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    DWORD data = 0;
    DWORD size = sizeof data;
    const LONG got =
        RegQueryValueExW(key, valueName, nullptr, nullptr, reinterpret_cast<BYTE*>(&data), &size);
    RegCloseKey(key);
    if (got != ERROR_SUCCESS || size != sizeof data)
        return false;
    value = data;
    return true;
}

// The device asks for these with its system-colour-index flag; the desktop has no such flag
// and answers the plain index.
ColorRef SystemColorOf(int index) {
    return DeviceSysColor(index);
}

} // namespace

ColorRef DeviceThemeColor(int index) {
    return ResolveThemeColor(index, ReadRegistryColor, SystemColorOf);
}

} // namespace cv2
