// The device's theme colours, read from the registry (the table and its fall-backs are in
// platform/theme_color_table.h). Every page and conversion that needs them asks here.
#pragma once

#include "store/color_ref.h"

namespace cv2 {

// Theme colour `index` (0 to 7) of the device, or its fall-back when the registry does not have
// it; 0 for any other index. Never fails.
ColorRef DeviceThemeColor(int index);

} // namespace cv2
