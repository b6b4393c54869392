#include "app/page_list.h"

#include <new>

#include "pages/behaviour/delays_page.h"
#include "pages/behaviour/rule_pages.h"

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
    pages.push_back(Make<TaskManagementPage>());
    // "SIP Panel"
    pages.push_back(Make<SipPanelPage>());
    // "Clock Settings"
    // "Button Assignments"
    // "Button Order"
    // "Skinned Applications"
    pages.push_back(Make<SkinnedApplicationsPage>());
    // "Theme Overrides"
    // "Delays/Timers"
    pages.push_back(Make<DelaysPage>());
    // "Plugins"
    return pages;
}

} // namespace cv2
