// The interactive editor's life: single instance, screen densities, COM, the main window and
// its message loop.
#include <windows.h>

namespace cv2 {

int RunEditor(HINSTANCE) { return 0; }

} // namespace cv2
