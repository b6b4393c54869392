// Measuring text in the font a control shows it in, for laying out controls around their labels.
#pragma once

#include <windows.h>

namespace cv2 {

// Width in pixels of `text` in the control's font.
int TextWidth(HWND control, const wchar_t* text);
// Width of the control's own window text.
int WindowTextWidth(HWND control);
// Height in pixels of one line of the control's font, with its leading.
int LineHeight(HWND control);
// Height in pixels of a multi-line check box's or radio button's own text broken into lines to
// fit beside its mark in a box `boxWidth` pixels wide; at least one line.
int WrappedLabelHeight(HWND button, int boxWidth);

} // namespace cv2
