// The "Screen" submenu of the main window's menu, on a desktop that shows a device screen: the
// six screens, with a check on the one shown.
#pragma once

#include <windows.h>

#include "platform/device_screens.h"

namespace cv2 {

// Puts the submenu first in the menu bar's first popup; nothing on a device screen.
void AddScreenMenu(HWND menuBar);
// The screen a command of the submenu shows, or null for any other command.
const DeviceScreen* ScreenOfCommand(UINT id);
// Moves the check to the screen shown now.
void CheckShownScreen(HWND menuBar);

} // namespace cv2
