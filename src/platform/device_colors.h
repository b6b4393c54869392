// System colours by the device's index numbers. The device has indices the desktop lacks
// (25, the background of static controls; 26, their text); the desktop answers those with the
// colours a device shows there.
#pragma once

#include <windows.h>

namespace cv2 {

constexpr int COLOR_STATIC = 25;
constexpr int COLOR_STATICTEXT = 26;

COLORREF DeviceSysColor(int index);

// The brush of the device's static-control colour (owned by the system; never deleted).
HBRUSH DeviceStaticBrush();
// Sets the static-control text and background colours on `dc` and returns DeviceStaticBrush():
// the answer to WM_CTLCOLORDLG and WM_CTLCOLORSTATIC where the device paints dialogs, labels
// and check boxes on one ground.
HBRUSH DeviceStaticColors(HDC dc);

// Default window processing as the device does it. The one difference that shows: static
// controls are painted on the static-control colour of the device (white), not on the
// desktop's button face.
LRESULT DeviceDefWindowProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam);

} // namespace cv2
