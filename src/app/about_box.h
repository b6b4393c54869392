#pragma once

#include <windows.h>

namespace cv2 {

// Shows the About box, owned by `owner`; it ends with OK and saves nothing.
void ShowAboutBox(HWND owner);

} // namespace cv2
