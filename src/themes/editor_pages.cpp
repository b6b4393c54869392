#include <new>

#include "pages/appearance/bar_background_page.h"
#include "pages/appearance/editor_buttons_page.h"
#include "pages/appearance/image_pair_pages.h"
#include "pages/appearance/list_pages.h"
#include "pages/appearance/notifications_page.h"
#include "pages/appearance/start_menu_skin_page.h"
#include "pages/appearance/taskbar_buttons_page.h"
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
    pages.push_back(NewBarBackgroundPage(BarKind::TaskbarBackground));
    // "Today Menubar"
    pages.push_back(NewBarBackgroundPage(BarKind::TodayMenubar));
    // "Application Menubar"
    pages.push_back(NewBarBackgroundPage(BarKind::ApplicationMenubar));
    // "SoftKeys"
    pages.push_back(NewBarBackgroundPage(BarKind::SoftKeys));
    // "Taskbar Buttons"
    pages.push_back(MakeEditorPage<TaskbarButtonsPage>());
    // "Volume Bubble"
    pages.push_back(NewImagePairPage(ImagePairKind::VolumeBubble));
    // "Application Buttons"
    pages.push_back(NewAppButtonsPage());
    // "Checkbox/Radio Buttons"
    pages.push_back(NewImagePairPage(ImagePairKind::CheckRadioButtons));
    // "Taskbar Fonts"
    pages.push_back(NewTaskbarFontsPage());
    // "Start Menu Skin"
    pages.push_back(MakeEditorPage<StartMenuSkinPage>());
    // "Sound Events"
    pages.push_back(NewSoundEventsPage());
    // "Notifications"
    pages.push_back(NewNotificationsPage());
    // "System Colors"
    pages.push_back(NewSystemColorsPage());
    return pages;
}

} // namespace cv2
