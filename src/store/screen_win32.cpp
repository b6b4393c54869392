#include "store/screen.h"

#include <windows.h>

#include "store/scale.h"

namespace cv2 {
namespace {

int ScreenCaps(int index) {
    HDC dc = GetDC(nullptr);
    int value = GetDeviceCaps(dc, index);
    ReleaseDC(nullptr, dc);
    return value;
}

} // namespace

void ReadScreenDensities() {
    if (g_dpiX != 0 && g_dpiY != 0)
        return;
    HDC dc = GetDC(nullptr);
    g_dpiX = GetDeviceCaps(dc, LOGPIXELSX);
    g_dpiY = GetDeviceCaps(dc, LOGPIXELSY);
    ReleaseDC(nullptr, dc);
}

int ScreenWidth() { return ScreenCaps(HORZRES); }
int ScreenHeight() { return ScreenCaps(VERTRES); }
bool IsHighResolution() { return ScreenCaps(LOGPIXELSY) == 192; }

} // namespace cv2
