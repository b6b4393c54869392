#include "themes/older_theme_device.h"

#include <windows.h>

#include "platform/device_colors.h"
#include "platform/theme_colors.h"

namespace cv2 {

OlderThemeColors DeviceOlderThemeColors() {
    return {DeviceThemeColor(0), DeviceThemeColor(1), DeviceSysColor(COLOR_ACTIVECAPTION)};
}

} // namespace cv2
