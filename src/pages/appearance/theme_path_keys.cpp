#include "pages/appearance/theme_path_keys.h"

#include "pages/appearance/control_path_keys.h"
#include "pages/appearance/panel_path_keys.h"

namespace cv2 {

std::vector<PathKey> ThemePathKeys() {
    // Gathered once: the tables are constant, and the catalogue asks on every selection.
    static const std::vector<PathKey> keys = [] {
        std::vector<PathKey> all = PanelPathKeys();
        const std::vector<PathKey> controls = ControlPathKeys();
        all.insert(all.end(), controls.begin(), controls.end());
        return all;
    }();
    return keys;
}

} // namespace cv2
