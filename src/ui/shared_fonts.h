// The three 8-point "Tahoma" fonts that every page puts on its controls. They are made when the
// main window is created and freed when it is destroyed.
#pragma once

#include <windows.h>

namespace cv2 {

void CreateSharedFonts();
void DestroySharedFonts();
// Makes the fonts again for the screen's present density and gives the new ones to every control
// in `window` that had an old one (the density changes when a desktop shows another screen).
void RemakeSharedFonts(HWND window);

// Plain text: edit boxes, lists, combo boxes, unit labels.
HFONT TextFont();
// Bold: captions of settings, push buttons, the header strip's page name.
HFONT CaptionFont();
// Underlined: link-like labels.
HFONT UnderlineFont();

// Gives a control a font without redrawing it.
void SetControlFont(HWND control, HFONT font);

} // namespace cv2
