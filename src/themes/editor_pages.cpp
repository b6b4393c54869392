#include <new>

#include "pages/appearance/editor_buttons_page.h"
#include "pages/appearance/list_pages.h"
#include "pages/appearance/notifications_page.h"
#include "themes/import_theme_page.h"
#include "themes/theme_editor.h"

namespace cv2 {

// Allocation failure gives a null page instead of an exception.
template <class Page> SettingsPage* MakeEditorPage() {
    return new (std::nothrow) Page();
}

std::vector<SettingsPage*> EditorPages() {
    std::vector<SettingsPage*> pages;
    // "Import Theme"
    pages.push_back(MakeEditorPage<ImportThemePage>());
    // "Taskbar Background"
    // "Today Menubar"
    // "Application Menubar"
    // "SoftKeys"
    // "Taskbar Buttons"
    // "Volume Bubble"
    // "Application Buttons"
    pages.push_back(NewAppButtonsPage());
    // "Checkbox/Radio Buttons"
    // "Taskbar Fonts"
    pages.push_back(NewTaskbarFontsPage());
    // "Start Menu Skin"
    // "Sound Events"
    pages.push_back(NewSoundEventsPage());
    // "Notifications"
    pages.push_back(NewNotificationsPage());
    // "System Colors"
    pages.push_back(NewSystemColorsPage());
    return pages;
}

} // namespace cv2
