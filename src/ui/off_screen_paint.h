// Painting a window's whole client area off-screen and copying it to the screen once, so that
// nothing flickers while it is drawn in layers.
#pragma once

#include <windows.h>

#include <functional>

namespace cv2 {

// Answers WM_PAINT: `draw` gets a memory device context and bitmap of the client's size, whose
// every pixel it is expected to cover.
void PaintOffScreen(HWND window, const std::function<void(HDC dc, const RECT& client)>& draw);

} // namespace cv2
