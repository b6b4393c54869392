// The interactive editor's life: single instance, screen densities, COM, the main window and
// its message loop.
#include <windows.h>

#include <string>

#include "app/desktop_screen.h"
#include "app/page_list.h"
#include "app/settings_app.h"
#include "pages/behaviour/plugins/plugin_registry.h"
#include "pages/behaviour/top_bar_state.h"
#include "platform/com.h"
#include "ids_app.h"
#include "platform/device_phone.h"
#include "platform/device_screen.h"
#include "platform/exe_folder.h"
#include "store/screen.h"
#include "store/strings.h"
#include "ui/icon_grid.h"

namespace cv2 {
namespace {

// Escape pressed in any control of the main window counts as Escape in the window itself, so
// the cancel question comes wherever the focus is.
void RouteEscapeToMainWindow(MSG& msg, HWND main) {
    if (msg.message == WM_KEYDOWN && msg.wParam == VK_ESCAPE && msg.hwnd != main &&
        IsChild(main, msg.hwnd))
        msg.hwnd = main;
}

// Tab, Shift+Tab and the arrow keys move between the shown page's controls as in a dialog; the
// dialog manager passes over hidden controls, so the focus never leaves the current page. Enter
// and Escape are kept from it: they keep the main window's own meaning.
bool MoveFocusByKey(MSG& msg, HWND main) {
    if (msg.message != WM_KEYDOWN || (msg.hwnd != main && !IsChild(main, msg.hwnd)))
        return false;
    switch (msg.wParam) {
    case VK_TAB:
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
        return IsDialogMessageW(main, &msg) != FALSE;
    default:
        return false;
    }
}

// On a desktop larger than every device screen the editor runs in a window showing one.
void OpenScreen(const std::wstring& commandLine) {
    if (const DeviceScreen* screen = ChooseDesktopScreen(commandLine))
        OpenDeviceScreen(*screen, Localized(IDS_APP_TITLE));
}

} // namespace

int RunEditor(HINSTANCE instance, const std::wstring& commandLine) {
    HANDLE mutex = CreateMutexW(nullptr, FALSE, L"CV2Settings_Mutex");
    if (GetLastError() == ERROR_ALREADY_EXISTS) {
        if (HWND first = FindWindowW(SettingsApp::kWindowClass, nullptr))
            SetForegroundWindow(first);
        CloseHandle(mutex);
        return 0;
    }
    OpenScreen(commandLine);
    ReadScreenDensities();
    InitializeCom();
    RegisterIconGridClass(instance);
    // Pages read both while they are made, so both are settled first.
    SharedTopBar().hasPhone = DeviceHasPhone();
    SharedPlugins().LoadFromRegistry();
    {
        SettingsApp app(instance, ExeFolder() + L"config.ini", CreateMainPages());
        HostInDeviceScreen(app.Window(), IDC_CANCEL_EDITS);
        SetForegroundWindow(app.Window());
        MSG msg;
        while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
            RouteEscapeToMainWindow(msg, app.Window());
            if (MoveFocusByKey(msg, app.Window()))
                continue;
            TranslateMessage(&msg);
            DispatchMessageW(&msg);
        }
    }
    // The pages are gone: no one holds a plug-in any more.
    SharedPlugins().Release();
    UninitializeCom();
    CloseDeviceScreen();
    CloseHandle(mutex);
    return 0;
}

} // namespace cv2
