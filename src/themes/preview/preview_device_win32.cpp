#include "themes/preview/preview_device.h"

#include "pages/behaviour/clock_locale.h"
#include "pages/behaviour/plugins/plugin_registry.h"
#include "pages/platform_colors.h"
#include "platform/device_phone.h"

namespace cv2 {

PreviewDevice ThisDevicePreview(ScenePainter& painter) {
    PreviewDevice device;
    device.colors = &PlatformColors();
    device.hasPhone = DeviceHasPhone();
    device.now = LocalClockTime();
    device.names = UserClockNames();
    device.locale = UserLocaleTimeFacts();
    SharedPlugins().AppendOrderItems(device.pluginButtons);
    device.pictureSize = [&painter](const std::wstring& path, SceneSize& size) {
        return painter.PictureSize(path, size);
    };
    device.textSize = [&painter](const FontKeys& font, const std::wstring& text, int dpi) {
        return painter.TextSize(font, text, dpi);
    };
    return device;
}

} // namespace cv2
