#include "pages/appearance/control_path_keys.h"

#include "pages/appearance/control_page_keys.h"

namespace cv2 {

std::vector<PathKey> ControlPathKeys() {
    return PathKeysOf({&kAppButtonsSection, &kSoundsSection, &kNotifyImagesSection});
}

} // namespace cv2
