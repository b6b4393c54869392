// The Today menubar dialog: the bar's background (through the background dialog), whether the
// Today screen's "New" button shows its text, and that button's font.
#pragma once

#include <windows.h>

#include "ui/backgrounds/background_record.h"
#include "ui/pickers/font_style.h"

namespace cv2 {

struct TodayMenubarLook {
    BackgroundFill fill;
    bool displayNewText = true;
    FontKeys font;
};

// Runs the dialog on a copy of `look`, which takes the copy only on OK.
bool EditTodayMenubar(TodayMenubarLook& look, HWND owner);

} // namespace cv2
