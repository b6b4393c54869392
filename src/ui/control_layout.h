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

// Thirds serve a row of three equal buttons.
enum class From : unsigned char { Left, Third, Middle, TwoThirds, Right };
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

// A control that fills the width and the rest of the height from `top` down.
constexpr ControlPlace FillingPlace(int id, int top) {
    return {id, From::Left, 0, From::Right, 0, top, 0, FromY::Top, true};
}

// The place in client pixels for a client area `clientWidth` x `clientHeight` pixels.
RECT PlaceRect(const ControlPlace& place, int clientWidth, int clientHeight = 0);
// Moves every control of the table to its place.
void PlaceControls(HWND dialog, const ControlPlace* places, size_t count);
// The place in client pixels of a control inside a page's `area` (client pixels of the host):
// tops, bottoms and edges are measured from the area, not the host's client.
RECT PlaceRectIn(const ControlPlace& place, const RECT& area);
// Moves one control to its place inside `area` (for controls whose id is not unique).
void PlaceWindow(HWND control, const ControlPlace& place, const RECT& area);
// The same for a page's controls, children of `host` with the places' ids.
void PlaceControls(HWND host, const RECT& area, const ControlPlace* places, size_t count);
template <size_t N>
void PlaceControls(HWND host, const RECT& area, const ControlPlace (&places)[N]) {
    PlaceControls(host, area, places, N);
}

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
