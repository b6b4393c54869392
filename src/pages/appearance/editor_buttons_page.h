// Pages that are a column of push buttons, each opening an editor on some of the page's values:
// Application Buttons (the images dialog, the font picker, two colour pickers) and Taskbar Fonts
// (three font pickers). Nothing reaches the document before Save.
#pragma once

#include "ui/settings_page.h"

namespace cv2 {

SettingsPage* NewAppButtonsPage();
SettingsPage* NewTaskbarFontsPage();

} // namespace cv2
