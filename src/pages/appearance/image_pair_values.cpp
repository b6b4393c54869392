#include "pages/appearance/image_pair_values.h"

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

const SettingSection kCheckRadioSection = SectionOf(L"Buttons", kCheckRadioKeys);
const SettingSection kVolumeBubbleSection = SectionOf(L"Volume Bubble", kVolumeBubbleKeys);

} // namespace cv2
