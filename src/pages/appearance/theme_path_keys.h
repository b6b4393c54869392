// Every key of a theme that names a picture or sound file, gathered from the appearance pages'
// own tables; the theme health check and self-contained export read them here.
#pragma once

#include <vector>

#include "pages/setting_table.h"

namespace cv2 {

std::vector<PathKey> ThemePathKeys();

} // namespace cv2
