// Every key of the pages with controls of their own that names a picture or sound file: the
// application buttons' pictures, the sound events and the custom notifications' pictures. A
// section name ending in "*" stands for every section whose name starts with the text before it.
#pragma once

#include <vector>

#include "pages/setting_table.h"

namespace cv2 {

std::vector<PathKey> ControlPathKeys();

} // namespace cv2
