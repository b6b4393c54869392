// The desktop's stand-in for the "ok" button a full-screen dialog shows at the right end of the
// device's title bar: a push button reading "ok" (a localisable text) drawn over the caption's
// close box, in the caption's font and sized to its text. A click on it ends the dialog with OK;
// a press released away from it does nothing. Escape stays Cancel and Enter stays OK, as the
// dialog's own keys have them. The system menu's Close (Alt+F4) reports OK as well, as the
// close box it replaces did.
#pragma once

#include <windows.h>

namespace cv2 {

// Gives `dialog` the button; the dialog must have a caption.
void InstallDoneButton(HWND dialog);

// Where the button stands, in screen coordinates; empty when `dialog` has none.
RECT DoneButtonRect(HWND dialog);

} // namespace cv2
