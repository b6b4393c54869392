#include "pages/appearance/image_pair_values.h"

#include "store/config_sections.h"
namespace cv2 {
namespace {

constexpr SettingKey kCheckRadioKeys[] = {
    {L"Checkbox", SettingType::Path},
    {L"Radiobutton", SettingType::Path},
};
constexpr SettingKey kVolumeBubbleKeys[] = {
    {L"Image", SettingType::Path},
};

} // namespace

const SettingSection kCheckRadioSection = SectionOf(config::kButtons, kCheckRadioKeys);
const SettingSection kVolumeBubbleSection = SectionOf(config::kVolumeBubble, kVolumeBubbleKeys);

} // namespace cv2
