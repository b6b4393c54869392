// Which device screen the editor shows on a desktop, and remembering the user's choice.
#pragma once

#include <string>

#include "platform/device_screens.h"

namespace cv2 {

// The registry value (under the bar's key) that holds the name of the chosen screen.
constexpr wchar_t kDesktopScreenValue[] = L"Desktop Screen";

// The device screen to show on this desktop: the one named by "--screen=<name>" in `commandLine`,
// else the remembered choice, else the default for the desktop's work area. Null when the real
// screen is no larger than a device screen: the editor then takes the whole screen.
const DeviceScreen* ChooseDesktopScreen(const std::wstring& commandLine);
// Keeps `screen` as the choice for the next start.
void RememberDesktopScreen(const DeviceScreen& screen);

} // namespace cv2
