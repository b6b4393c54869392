#include "app/about_box.h"

namespace cv2 {

// The About box (logo, version line, legal notice) arrives with the image loading it needs;
// until then the command is accepted and does nothing.
void ShowAboutBox(HWND) {}

} // namespace cv2
