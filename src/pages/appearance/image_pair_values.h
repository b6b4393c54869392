// Sections of the pages that only move one or two picture paths through the image panel:
// Checkbox/Radio Buttons (two keys of "Buttons", a section Application Buttons also writes) and
// Volume Bubble (one key).
#pragma once

#include "pages/setting_table.h"

namespace cv2 {

extern const SettingSection kCheckRadioSection;
extern const SettingSection kVolumeBubbleSection;

} // namespace cv2
