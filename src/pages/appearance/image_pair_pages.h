// The pages that only move their pictures' paths through the image panel: Checkbox/Radio
// Buttons (two rows) and Volume Bubble (the first row only).
#pragma once

#include "ui/settings_page.h"

namespace cv2 {

enum class ImagePairKind { CheckRadioButtons, VolumeBubble };

// The page, newly made; null when it could not be made.
SettingsPage* NewImagePairPage(ImagePairKind kind);

} // namespace cv2
