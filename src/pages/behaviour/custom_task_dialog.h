// The custom task dialog: a window title (or a process name) and what to do with that window.
// Its mode flags come with the record: process mode asks for a process name and offers no
// action; show/hide mode offers "Hide" and "Show" instead of the three window actions.
#pragma once

#include <windows.h>

#include "pages/behaviour/rule_format.h"

namespace cv2 {

// Runs the dialog on `record`, titled `caption`. True on OK, with the record holding the full
// text of the field and the chosen action; on Cancel (or when the dialog cannot open) the record
// stays as it was.
bool RunCustomTaskDialog(HWND owner, const wchar_t* caption, RuleRecord& record);

} // namespace cv2
