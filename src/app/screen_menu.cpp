#include "app/screen_menu.h"

#include "ids_app.h"
#include "platform/device_screen.h"
#include "platform/shell.h"
#include "store/strings.h"

namespace cv2 {
namespace {

// The item texts in the order of the device screens.
const StringId kScreenTexts[] = {IDS_SCREEN_QVGA_PORTRAIT, IDS_SCREEN_QVGA_LANDSCAPE,
                                 IDS_SCREEN_QVGA_SQUARE,   IDS_SCREEN_VGA_PORTRAIT,
                                 IDS_SCREEN_VGA_LANDSCAPE, IDS_SCREEN_VGA_SQUARE};

HMENU ScreenPopup(HWND menuBar) {
    HMENU menu = MenuOfMenuBar(menuBar);
    HMENU first = menu ? GetSubMenu(menu, 0) : nullptr;
    return first ? GetSubMenu(first, 0) : nullptr;
}

} // namespace

void AddScreenMenu(HWND menuBar) {
    HMENU menu = MenuOfMenuBar(menuBar);
    HMENU first = menu ? GetSubMenu(menu, 0) : nullptr;
    if (!first || !ShownDeviceScreen())
        return;
    HMENU screens = CreatePopupMenu();
    size_t count = 0;
    DeviceScreens(&count);
    for (size_t i = 0; i < count; ++i)
        AppendMenuW(screens, MF_STRING, IDC_SCREEN_FIRST + i, Localized(kScreenTexts[i]));
    InsertMenuW(first, 0, MF_BYPOSITION | MF_POPUP, reinterpret_cast<UINT_PTR>(screens),
                Localized(IDS_SCREEN_MENU));
    CheckShownScreen(menuBar);
}

const DeviceScreen* ScreenOfCommand(UINT id) {
    size_t count = 0;
    const DeviceScreen* screens = DeviceScreens(&count);
    if (id < IDC_SCREEN_FIRST || id >= IDC_SCREEN_FIRST + count)
        return nullptr;
    return &screens[id - IDC_SCREEN_FIRST];
}

void CheckShownScreen(HWND menuBar) {
    HMENU screens = ScreenPopup(menuBar);
    const DeviceScreen* shown = ShownDeviceScreen();
    size_t count = 0;
    const DeviceScreen* all = DeviceScreens(&count);
    if (!screens || !shown)
        return;
    CheckMenuRadioItem(screens, IDC_SCREEN_FIRST, IDC_SCREEN_LAST,
                       IDC_SCREEN_FIRST + static_cast<UINT>(shown - all), MF_BYCOMMAND);
}

} // namespace cv2
