// The colour picker: a full-screen dialog with a slider and a number box for each of red, green
// and blue over a swatch of the resulting colour.
//
//   EditColor(current, parent); // changes `current` only when the user confirms
#pragma once

#include <windows.h>

#include "ui/pickers/color_value.h"

namespace cv2 {

class ColorPicker {
  public:
    // Fixes the swatch for the screen's density.
    ColorPicker();
    ColorPicker(const ColorPicker&) = delete;
    ColorPicker& operator=(const ColorPicker&) = delete;

    // Shows the dialog; true when the user confirmed, `color` then holding the choice.
    bool Run(HWND parent);

    ColorRef color = 0;
    RECT preview; // swatch in client pixels
};

// Opens the picker on `color` and stores the choice in it only when the user confirmed.
bool EditColor(ColorRef& color, HWND parent);

} // namespace cv2
