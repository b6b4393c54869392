// The device's colours as the defaults of described settings: system colours by the device's
// index numbers and the Today theme's colours from the registry.
#pragma once

#include "pages/setting_table.h"

namespace cv2 {

const DeviceColors& PlatformColors();

} // namespace cv2
