// Pages make their controls from constant tables: one row per control, in creation order
// (which is also the tab order). Controls start hidden, at no size; the page places them.
#pragma once

#include <windows.h>

#include <cstddef>

#include "store/strings.h"

namespace cv2 {

struct ChildControl {
    const wchar_t* windowClass;
    DWORD style; // besides WS_CHILD
    DWORD exStyle;
    StringId text; // 0: no text
    int id;
};

// Creates every control of the table as a hidden child of `host`, with the shared text font,
// and stores the handles in `out` (one per row).
void CreateChildControls(HWND host, const ChildControl* rows, size_t count, HWND* out);

} // namespace cv2
