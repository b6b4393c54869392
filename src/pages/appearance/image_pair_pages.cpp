#include "pages/appearance/image_pair_pages.h"

#include <new>

#include "pages/appearance/image_pair_values.h"
#include "pages/appearance/panel_page.h"

namespace cv2 {
namespace {

struct ImagePairKindRow {
    PageTitle title;
    const SettingSection* section;
    PanelView view;
    PanelRows rows;
};

const ImagePairKindRow kKinds[] = {
    {{IDS_CHECK_RADIO_BUTTONS, nullptr},
     &kCheckRadioSection,
     {IDS_CHECKS_ROW, IDS_RADIOS_ROW, kPanelRows, kPanelList | kPanelSettings | kPanelCustomColors},
     {0, 1}},
    // The bubble's row keeps the label the page shown before gave it.
    {{IDS_VOLUME_BUBBLE, nullptr},
     &kVolumeBubbleSection,
     {StringId{}, StringId{}, kPanelRows,
      kPanelSecondRow | kPanelList | kPanelSettings | kPanelCustomColors},
     {0, kNoPathRow}},
};

} // namespace

SettingsPage* NewImagePairPage(ImagePairKind kind) {
    const ImagePairKindRow& k = kKinds[static_cast<int>(kind)];
    return new (std::nothrow) PanelPage(k.title, *k.section, k.view, k.rows);
}

} // namespace cv2
