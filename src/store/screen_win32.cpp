#include "store/screen.h"

#include "platform/device_screen.h"
#include "store/scale.h"

namespace cv2 {

void ReadScreenDensities() {
    if (g_dpiX != 0 && g_dpiY != 0)
        return;
    g_dpiX = ScreenDpiX();
    g_dpiY = ScreenDpiY();
}

int ScreenWidth() {
    return ScreenPixelWidth();
}
int ScreenHeight() {
    return ScreenPixelHeight();
}
bool IsHighResolution() {
    return ScreenDpiY() == 192;
}

} // namespace cv2
