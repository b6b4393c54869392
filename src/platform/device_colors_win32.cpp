#include "platform/device_colors.h"

namespace cv2 {

COLORREF DeviceSysColor(int index) {
    switch (index) {
    case COLOR_STATIC:
        return GetSysColor(COLOR_WINDOW);
    case COLOR_STATICTEXT:
        return GetSysColor(COLOR_WINDOWTEXT);
    default:
        return GetSysColor(index);
    }
}

// The desktop's window colour stands in for the device's static colour (see DeviceSysColor).
HBRUSH DeviceStaticBrush() { return GetSysColorBrush(COLOR_WINDOW); }

HBRUSH DeviceStaticColors(HDC dc) {
    SetTextColor(dc, DeviceSysColor(COLOR_STATICTEXT));
    SetBkColor(dc, DeviceSysColor(COLOR_STATIC));
    return DeviceStaticBrush();
}

LRESULT DeviceDefWindowProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_CTLCOLORSTATIC)
        return reinterpret_cast<LRESULT>(DeviceStaticColors(reinterpret_cast<HDC>(wParam)));
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

} // namespace cv2
