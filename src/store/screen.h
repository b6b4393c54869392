// Facts about the screen, read from its device context (Windows only).
#pragma once

namespace cv2 {

// Reads g_dpiX and g_dpiY from the screen if they are still zero.
void ReadScreenDensities();
// Screen size in pixels, read anew at each call (the device may rotate).
int ScreenWidth();
int ScreenHeight();
// True when the screen has exactly 192 logical pixels per inch vertically.
bool IsHighResolution();

} // namespace cv2
