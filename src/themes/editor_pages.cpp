#include <new>

#include "pages/appearance/bar_background_page.h"
#include "pages/appearance/image_pair_pages.h"
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
    // "Checkbox/Radio Buttons"
    pages.push_back(NewImagePairPage(ImagePairKind::CheckRadioButtons));
    // "Taskbar Fonts"
    // "Start Menu Skin"
    pages.push_back(MakeEditorPage<StartMenuSkinPage>());
    // "Sound Events"
    // "Notifications"
    // "System Colors"
    return pages;
}

} // namespace cv2
