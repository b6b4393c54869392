#include <new>

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
    // "Checkbox/Radio Buttons"
    // "Taskbar Fonts"
    // "Start Menu Skin"
    // "Sound Events"
    // "Notifications"
    // "System Colors"
    return pages;
}

} // namespace cv2
