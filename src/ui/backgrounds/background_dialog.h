// The background settings dialog: how a bar or button area is filled (a scaled or tiled picture,
// a solid colour, a gradient or nothing) and the colours that the chosen fill needs.
//
//   BackgroundDialog dialog;
//   dialog.fill = current;   // the dialog works on this copy
//   if (dialog.Run(owner))
//       current = dialog.fill;
#pragma once

#include <windows.h>

#include "ui/backgrounds/background_record.h"

namespace cv2 {

class BackgroundDialog {
  public:
    BackgroundDialog() = default;
    BackgroundDialog(const BackgroundDialog&) = delete;
    BackgroundDialog& operator=(const BackgroundDialog&) = delete;

    // Shows the dialog full-screen; true when it ended with OK. The dialog changes `fill` as the
    // user works, so after a false return it holds whatever was chosen before cancelling.
    bool Run(HWND parent);

    BackgroundFill fill;
};

// Where the dialog shows the fill with its chosen colours, in client pixels of a dialog
// `clientWidth` pixels wide.
RECT BackgroundPreviewRect(int clientWidth);

// Runs the dialog on a copy of `fill`, which takes the copy only when the user confirmed.
bool EditBackground(BackgroundFill& fill, HWND parent);

} // namespace cv2
