#include "ui/backgrounds/graphics_browse.h"

namespace cv2 {

// Stands in while the file browser is not built: nothing is chosen.
bool BrowseGraphicsFile(HWND, std::wstring&) {
    return false;
}

} // namespace cv2
