#include "app/page_list.h"

#include <new>

#include "pages/behaviour/delays_page.h"

namespace cv2 {

// Allocation failure gives a null page instead of an exception.
template <class Page> SettingsPage* Make() { return new (std::nothrow) Page(); }

std::vector<SettingsPage*> CreateMainPages() {
    std::vector<SettingsPage*> pages;
    // "My Theme"
    // "Program Directories"
    // "General Settings"
    // "Start Menu Settings"
    // "Task Management"
    // "SIP Panel"
    // "Clock Settings"
    // "Button Assignments"
    // "Button Order"
    // "Skinned Applications"
    // "Theme Overrides"
    // "Delays/Timers"
    pages.push_back(Make<DelaysPage>());
    // "Plugins"
    return pages;
}

} // namespace cv2
