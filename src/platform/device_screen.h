// The screen as the program sees it. On a device, or on a real screen no larger than a device
// screen, that is the real screen. On a larger desktop the editor runs in an ordinary top-level
// window whose client area is one device screen, and every question about the screen (size,
// work area, density) is answered as that device would answer it, so pages, pickers and dialogs
// lay themselves out exactly as on the device.
#pragma once

#include <windows.h>

#include "platform/device_screens.h"

namespace cv2 {

// The real desktop: the primary screen's size, its work area and its vertical density.
struct DesktopFacts {
    int width;
    int height;
    RECT workArea;
    int dpi;
};
// The real desktop, or the one set by SetDesktopForTests.
DesktopFacts Desktop();
// Tests describe a desktop of their choosing; null returns to the real one.
void SetDesktopForTests(const DesktopFacts* facts);

// Opens the window that shows `screen` (caption `title`, minimise and close), centred on the
// desktop's work area, and answers every screen question for it from now on. Dialogs smaller
// than the screen, message boxes among them, come up centred on it. The window is
// shown with the first window that lives in it (HostInDeviceScreen). False when it cannot be
// made; the real screen is then used.
bool OpenDeviceScreen(const DeviceScreen& screen, const wchar_t* title);
// The program's main window, which fills the device screen above its menu bar: closing the
// device screen's window posts it WM_COMMAND `closeCommand` (its Cancel), and the device screen
// is shown and activated with it.
void HostInDeviceScreen(HWND main, UINT closeCommand);
// Shows another device screen in the same window, keeping its top-left corner: the densities
// change to the new screen's at once; FitWindowsToDeviceScreen then resizes the window and
// places the program's windows in it.
void SelectDeviceScreen(const DeviceScreen& screen);
// Resizes the window to the selected screen and lays the full-screen windows and their menu
// bars out on it again, as the device does when it rotates.
void FitWindowsToDeviceScreen();
// Destroys the window; the real screen answers again.
void CloseDeviceScreen();
// The device screen shown in a window, or null when the program has the real screen.
const DeviceScreen* ShownDeviceScreen();
// The window that shows the device screen, or null.
HWND DeviceScreenWindow();

// What the program asks of the screen: its work area (screen coordinates), its size in pixels and
// its logical pixels per inch.
RECT ScreenWorkArea();
int ScreenPixelWidth();
int ScreenPixelHeight();
int ScreenDpiX();
int ScreenDpiY();
// The density fonts are made for when drawn on `dc`: the device screen's while one is shown.
int FontDpiY(HDC dc);

} // namespace cv2
