// The four bar background pages of the theme editor (Taskbar Background, Today Menubar,
// Application Menubar, SoftKeys): one page driven by a table of what differs between them.
#pragma once

#include "pages/appearance/panel_page.h"

namespace cv2 {

enum class BarKind { TaskbarBackground, TodayMenubar, ApplicationMenubar, SoftKeys };

// The page of a bar, newly made; null when it could not be made.
SettingsPage* NewBarBackgroundPage(BarKind kind);

} // namespace cv2
