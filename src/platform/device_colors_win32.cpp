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

LRESULT DeviceDefWindowProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_CTLCOLORSTATIC) {
        HDC dc = reinterpret_cast<HDC>(wParam);
        SetTextColor(dc, DeviceSysColor(COLOR_STATICTEXT));
        SetBkColor(dc, DeviceSysColor(COLOR_STATIC));
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
    }
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

} // namespace cv2
