#include "pages/appearance/theme_path_keys.h"

namespace cv2 {

std::vector<PathKey> ThemePathKeys() {
    return PathKeysOf({});
}

} // namespace cv2
