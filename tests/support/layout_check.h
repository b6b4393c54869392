// A check of a laid-out window that the screen tests share.
#pragma once

#include <windows.h>

namespace cv2test {

// Expects the visible children of `parent` inside its client area and clear of each other.
void ExpectLaidOutApart(HWND parent);

} // namespace cv2test
