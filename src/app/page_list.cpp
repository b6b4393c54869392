#include "app/page_list.h"

#include <new>

#include "platform/exe_folder.h"
#include "pages/behaviour/button_assignments_page.h"
#include "pages/behaviour/button_order_page.h"
#include "pages/behaviour/clock_settings_page.h"
#include "pages/behaviour/delays_page.h"
#include "pages/behaviour/general_settings_page.h"
#include "pages/behaviour/plugins/plugins_page.h"
#include "pages/behaviour/program_directories_page.h"
#include "pages/behaviour/rule_pages.h"
#include "pages/behaviour/start_menu_settings_page.h"
#include "themes/overrides_page.h"
#include "themes/theme_catalogue_page.h"

namespace cv2 {

// Allocation failure gives a null page instead of an exception.
template <class Page> SettingsPage* Make() {
    return new (std::nothrow) Page();
}

std::vector<SettingsPage*> CreateMainPages() {
    return CreateMainPages(ExeFolder());
}

std::vector<SettingsPage*> CreateMainPages(const std::wstring& programFolder) {
    std::vector<SettingsPage*> pages;
    // "My Theme"
    auto* catalogue = new (std::nothrow) ThemeCataloguePage(programFolder);
    pages.push_back(catalogue);
    // "Program Directories": saving new theme folders lists the themes in them.
    auto* directories = new (std::nothrow) ProgramDirectoriesPage();
    if (directories && catalogue)
        directories->SetThemesReload([catalogue] { catalogue->ThemeFoldersSaved(); });
    pages.push_back(directories);
    // "General Settings"
    pages.push_back(Make<GeneralSettingsPage>());
    // "Start Menu Settings"
    pages.push_back(Make<StartMenuSettingsPage>());
    // "Task Management"
    pages.push_back(Make<TaskManagementPage>());
    // "SIP Panel"
    pages.push_back(Make<SipPanelPage>());
    // "Clock Settings"
    pages.push_back(Make<ClockSettingsPage>());
    // "Button Assignments"
    pages.push_back(Make<ButtonAssignmentsPage>());
    // "Button Order"
    pages.push_back(Make<ButtonOrderPage>());
    // "Skinned Applications"
    pages.push_back(Make<SkinnedApplicationsPage>());
    // "Theme Overrides"
    pages.push_back(Make<ThemeOverridesPage>());
    // "Delays/Timers"
    pages.push_back(Make<DelaysPage>());
    // "Plugins"
    pages.push_back(Make<PluginsPage>());
    return pages;
}

} // namespace cv2
