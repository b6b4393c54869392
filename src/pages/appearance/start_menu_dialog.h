// The start menu dialog: the start menu's icons, margins, font and (instead of images) colours.
// It comes in three layouts of the same controls, chosen by the screen's shape.
#pragma once

#include <windows.h>

#include "pages/appearance/start_menu_skin_values.h"

namespace cv2 {

// Runs the dialog on a copy of `look`, which takes the copy only on OK.
bool EditStartMenu(StartMenuLook& look, HWND owner);

} // namespace cv2
