// Every key of the sections of the pages that borrow the image panel that names a picture file.
#pragma once

#include <vector>

#include "pages/setting_table.h"

namespace cv2 {

std::vector<PathKey> PanelPathKeys();

} // namespace cv2
