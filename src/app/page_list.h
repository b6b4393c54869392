#pragma once

#include <string>
#include <vector>

#include "ui/settings_page.h"

namespace cv2 {

// The main window's pages, newly made, in the order of the page menu. A page that could not be
// made is a null entry; the host skips null pages. My Theme looks for themes below
// programFolder + "Themes\", by default below the program's own folder.
std::vector<SettingsPage*> CreateMainPages();
std::vector<SettingsPage*> CreateMainPages(const std::wstring& programFolder);

} // namespace cv2
