// The device colours a conversion of an older theme falls back to, asked of this device. The
// catalogue's Apply and the theme editor's import both convert with these.
#pragma once

#include "themes/older_theme.h"

namespace cv2 {

OlderThemeColors DeviceOlderThemeColors();

} // namespace cv2
