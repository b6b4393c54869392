#include "pages/platform_colors.h"

#include "platform/device_colors.h"
#include "platform/theme_colors.h"

namespace cv2 {
namespace {

class Colors : public DeviceColors {
  public:
    ColorRef SystemColor(int index) const override { return DeviceSysColor(index); }
    ColorRef ThemeColor(int index) const override { return DeviceThemeColor(index); }
};

} // namespace

const DeviceColors& PlatformColors() {
    static const Colors colors;
    return colors;
}

} // namespace cv2
