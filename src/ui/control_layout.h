// Placement of dialog controls. A place is written in 96-dpi units for a screen of any size:
// each horizontal edge is measured from the client's left edge, its middle or its right edge,
// and the top from the client's top or bottom edge, so one table serves narrow and wide, short
// and tall screens; the numbers are scaled to the screen's density when applied. Places are
// applied again whenever the dialog's size changes.
#pragma once

#include <windows.h>

#include <cstddef>

#include "store/strings.h"

namespace cv2 {

enum class From : unsigned char { Left, Middle, Right };
enum class FromY : unsigned char { Top, Bottom };

struct ControlPlace {
    int id;
    From leftFrom;
    int left;
    From rightFrom;
    int right;
    int top;
    int height;
    // Controls that keep to the client's bottom edge: the top measured from the bottom edge
    // (a negative offset), or, with `stretchDown`, `height` read as the bottom edge's offset
    // from the client's bottom edge, so that the control grows with the client.
    FromY topFrom = FromY::Top;
    bool stretchDown = false;
};

// The place in client pixels for a client area `clientWidth` x `clientHeight` pixels.
RECT PlaceRect(const ControlPlace& place, int clientWidth, int clientHeight = 0);
// Moves every control of the table to its place.
void PlaceControls(HWND dialog, const ControlPlace* places, size_t count);

struct ControlText {
    int id;
    StringId text;
};
// Puts the localised texts on the controls.
void SetControlTexts(HWND dialog, const ControlText* texts, size_t count);
// Gives every child the shared text font and the listed ones the bold caption font (when the
// shared fonts exist).
void SetDialogFonts(HWND dialog, const int* boldIds, size_t boldCount);

// Answers WM_CTLCOLORDLG and WM_CTLCOLORSTATIC: dialogs are painted in the device's
// static-control colours, labels, sliders and check boxes on the same ground as the dialog.
INT_PTR StaticColors(HDC dc);

// True when the screen is wide enough for controls side by side (landscape or square).
bool UseWideLayout();

} // namespace cv2
