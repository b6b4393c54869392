// The button images dialog: the pictures of a bar's buttons in their three states, the font and
// pressed colour of their text, their margins, and (through the background dialog) the fill of
// the area behind them.
//
//   ButtonImagesDialog dialog;
//   dialog.Fill(current);        // the dialog works on this copy
//   if (dialog.Run(owner))
//       dialog.CopyTo(current);
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "ui/backgrounds/background_record.h"
#include "ui/pickers/font_record.h"

namespace cv2 {

struct ButtonImages {
    FontRecord font; // of the button text
    ColorRef pressedColor = 0;
    // Paths of the pictures, at most kBackgroundPathChars - 1 characters each.
    std::wstring normalImage;
    std::wstring pressedImage;
    std::wstring disabledImage;
    BackgroundFill background;
    int32_t leftMargin = 0; // pixels
    int32_t rightMargin = 0;
};

class ButtonImagesDialog {
  public:
    ButtonImagesDialog() = default;
    ButtonImagesDialog(const ButtonImagesDialog&) = delete;
    ButtonImagesDialog& operator=(const ButtonImagesDialog&) = delete;

    // Takes the caller's values: the font is made anew with ClearType, as the bar draws it, and
    // the paths are cut to their buffers.
    void Fill(const ButtonImages& values);
    // Shows the dialog full-screen with the template for the screen's shape; true when it ended
    // with OK.
    bool Run(HWND parent);
    // Gives every value back to the caller.
    void CopyTo(ButtonImages& values) const;

    ButtonImages record;
};

// Runs the dialog on a copy of `values`, which take the copy only when the user confirmed.
bool EditButtonImages(ButtonImages& values, HWND parent);

} // namespace cv2
