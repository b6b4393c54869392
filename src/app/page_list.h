#pragma once

#include <vector>

#include "ui/settings_page.h"

namespace cv2 {

// The main window's pages, newly made, in the order of the page menu. A page that could not be
// made is a null entry; the host skips null pages.
std::vector<SettingsPage*> CreateMainPages();

} // namespace cv2
