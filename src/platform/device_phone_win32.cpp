#include "platform/device_phone.h"

#include <windows.h>

namespace cv2 {

bool DeviceHasPhone() {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, kPhoneStateKey, 0, KEY_QUERY_VALUE, &key) !=
        ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

} // namespace cv2
