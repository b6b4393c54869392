#include "pages/appearance/panel_path_keys.h"

#include "pages/appearance/bar_background_values.h"
#include "pages/appearance/image_pair_values.h"
#include "pages/appearance/start_menu_skin_values.h"
#include "pages/appearance/taskbar_buttons_values.h"

namespace cv2 {

std::vector<PathKey> PanelPathKeys() {
    return PathKeysOf({&kTopbarSection, &kTodayMenubarSection, &kMenubarSection, &kSoftKeySection,
                       &ButtonImagesSection(), &kVolumeBubbleSection, &kCheckRadioSection,
                       &kStartMenuSkinSection});
}

} // namespace cv2
