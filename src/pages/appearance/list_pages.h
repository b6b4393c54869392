// The two pages that are a list of named rows with the selected row's name above it: System
// Colors (a swatch of the row's colour and "Change") and Sound Events (the row's sound file
// with "...", and ">" to play it).
#pragma once

#include "ui/settings_page.h"

namespace cv2 {

SettingsPage* NewSystemColorsPage();
SettingsPage* NewSoundEventsPage();

} // namespace cv2
