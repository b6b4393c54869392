#include "app/settings_app.h"

#include "app/about_box.h"
#include "app/bar_notify.h"
#include "app/desktop_screen.h"
#include "app/save_failure.h"
#include "app/screen_menu.h"
#include "ids_app.h"
#include "platform/device_colors.h"
#include "platform/device_screen.h"
#include "platform/shell.h"
#include "store/scale.h"
#include "store/screen.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

// The editor's cursor, loaded once when the application object is made.
HCURSOR g_arrowCursor = nullptr;

// The ctl-colour message bound by number: edit controls ask it on the device.
const UINT kCtlColorButton = 0x135;

} // namespace

SettingsApp::SettingsApp(HINSTANCE instance, const std::wstring& configPath,
                         const std::vector<SettingsPage*>& pages) {
    m_config.Load(configPath);
    g_arrowCursor = LoadCursorW(nullptr, IDC_ARROW);
    LoadMenuBarImages(instance);
    for (SettingsPage* page : pages)
        AddPage(page);
    CreateMainWindow(instance);
    if (!m_hwnd) {
        PostQuitMessage(1);
        return;
    }
    CreateMenuBar(instance);
    SelectPage(0);
    // Shown once its first page is in place; the other pages are made after the first paint.
    ShowWindow(m_hwnd, SW_SHOW);
}

SettingsApp::~SettingsApp() {
    if (m_images)
        ImageList_Destroy(m_images);
    if (IsWindow(m_hwnd))
        DestroyWindow(m_hwnd);
    DestroySharedFonts();
    // The page host deletes the pages; the document frees itself.
}

void SettingsApp::LoadMenuBarImages(HINSTANCE instance) {
    if (m_images)
        ImageList_Destroy(m_images);
    const bool highResolution = IsHighResolution();
    m_images = ImageList_LoadImageW(
        instance, MAKEINTRESOURCEW(highResolution ? IDB_MENUBAR_LARGE : IDB_MENUBAR_SMALL),
        highResolution ? 32 : 16, 1, RGB(255, 0, 255), IMAGE_BITMAP, LR_CREATEDIBSECTION);
}

void SettingsApp::CreateMainWindow(HINSTANCE instance) {
    WNDCLASSW wc = {};
    wc.style = CS_VREDRAW | CS_HREDRAW | CS_NOCLOSE;
    wc.lpfnWndProc = WindowProc;
    wc.hInstance = instance;
    wc.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    wc.hCursor = g_arrowCursor;
    wc.lpszClassName = kWindowClass;
    RegisterClassW(&wc);

    // On a desktop the window lives in the device screen's window, which owns it.
    const RECT wa = ScreenWorkArea();
    CreateWindowExW(0, kWindowClass, Localized(IDS_APP_TITLE), WS_POPUP, wa.left, wa.top,
                    wa.right - wa.left, wa.bottom - wa.top - MenuBarHeight(), DeviceScreenWindow(),
                    nullptr, instance, this);
}

void SettingsApp::CreateMenuBar(HINSTANCE instance) {
    SHMENUBARINFO mbi = {};
    mbi.cbSize = sizeof mbi;
    mbi.hwndParent = m_hwnd;
    mbi.dwFlags = SHCMBF_HMENU;
    mbi.nToolBarId = IDM_MAIN_MENUBAR;
    mbi.hInstRes = instance;
    if (!SHCreateMenuBar(&mbi)) {
        PostQuitMessage(1);
        return;
    }
    m_menuBar = mbi.hwndMB;
    SendMessageW(m_menuBar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(m_images));
    TBBUTTON buttons[2] = {};
    buttons[0].iBitmap = 0;
    buttons[0].idCommand = IDC_APPLY;
    buttons[1].iBitmap = 1;
    buttons[1].idCommand = IDC_CANCEL_EDITS;
    for (TBBUTTON& b : buttons) {
        b.fsState = TBSTATE_ENABLED;
        b.fsStyle = BTNS_BUTTON | BTNS_AUTOSIZE;
    }
    SendMessageW(m_menuBar, TB_ADDBUTTONSW, 2, reinterpret_cast<LPARAM>(buttons));
    AddScreenMenu(m_menuBar);
}

// The user picked another device screen: the window takes its size and every page is laid out
// for it, as on a device that rotates; a change of density also remakes the fonts and the menu
// bar's images.
void SettingsApp::ShowScreen(const DeviceScreen& screen) {
    const bool newDensity = screen.dpi != g_dpiY;
    SelectDeviceScreen(screen);
    if (newDensity) {
        RemakeSharedFonts(m_hwnd);
        LoadMenuBarImages(GetModuleHandleW(nullptr));
        SendMessageW(m_menuBar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(m_images));
        SendMessageW(m_menuBar, TB_AUTOSIZE, 0, 0);
    }
    FitWindowsToDeviceScreen();
    RememberDesktopScreen(screen);
    CheckShownScreen(m_menuBar);
    InvalidateRect(m_hwnd, nullptr, TRUE);
}

bool SettingsApp::Apply() {
    m_host.SaveAll(nullptr);
    WriteFailure failure;
    if (!m_config.Save(nullptr, &failure)) {
        // The old file is still whole; the bar keeps it and the pages keep the user's edits.
        ReportSaveFailure(m_hwnd, m_config.Path(), failure);
        return false;
    }
    NotifyBar(BarWalk::FromFirstChild);
    return true;
}

bool SettingsApp::ConfirmCancel() {
    // The caption is copied first: the next look-up may reuse the same buffer.
    const std::wstring caption = Localized(IDS_CANCEL_CAPTION);
    return MessageBoxW(m_hwnd, Localized(IDS_CANCEL_QUESTION), caption.c_str(),
                       MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void SettingsApp::OnCreate(HWND hwnd) {
    SHDoneButton(hwnd, SHDB_SHOW);
    m_hwnd = hwnd;
    CreateSharedFonts();
    m_host.BuildPages(hwnd, &m_config, PageHost::Making::RestAfterFirstPaint);
    SetWindowPos(hwnd, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

bool SettingsApp::OnCommand(WPARAM wParam, LPARAM lParam) {
    switch (LOWORD(wParam)) {
    case IDC_APPLY:
    case IDOK:
        // Done leaves only once the settings are on disk.
        if (Apply() && LOWORD(wParam) == IDOK)
            PostMessageW(m_hwnd, WM_CLOSE, 0, 0);
        return true;
    case IDC_CANCEL_EDITS:
        if (ConfirmCancel())
            PostMessageW(m_hwnd, WM_CLOSE, 0, 0);
        return true;
    case IDC_ABOUT:
        ShowAboutBox(m_hwnd);
        return true;
    default:
        if (const DeviceScreen* screen = ScreenOfCommand(LOWORD(wParam))) {
            ShowScreen(*screen);
            return true;
        }
        return m_host.DispatchCommand(wParam, lParam);
    }
}

// Enabled edit controls are painted on the window colour; the handler is bound to this message
// number only, not to the static or edit colour messages.
LRESULT SettingsApp::OnCtlColorButton(WPARAM wParam, LPARAM lParam) {
    HWND control = reinterpret_cast<HWND>(lParam);
    wchar_t className[50] = {};
    GetClassNameW(control, className, 50);
    if (lstrcmpiW(className, L"EDIT") == 0 && IsWindowEnabled(control))
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
    return DeviceDefWindowProc(m_hwnd, kCtlColorButton, wParam, lParam);
}

LRESULT SettingsApp::HandleMessage(UINT msg, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (m_host.HandleMessage(msg, wParam, lParam, result))
        return result;
    switch (msg) {
    case WM_KEYDOWN:
        if (wParam == VK_ESCAPE) {
            if (ConfirmCancel())
                PostMessageW(m_hwnd, WM_CLOSE, 0, 0);
            return 0;
        }
        break;
    case WM_COMMAND:
        if (OnCommand(wParam, lParam))
            return 0;
        break;
    case kCtlColorButton:
        return OnCtlColorButton(wParam, lParam);
    case WM_CLOSE:
        DestroyWindow(m_hwnd);
        return 0;
    case WM_DESTROY:
        m_host.DestroyAll();
        PostQuitMessage(0);
        return 0;
    }
    return DeviceDefWindowProc(m_hwnd, msg, wParam, lParam);
}

LRESULT CALLBACK SettingsApp::WindowProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    if (msg == WM_CREATE) {
        auto* app =
            static_cast<SettingsApp*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(app));
        app->OnCreate(hwnd);
        return 0;
    }
    auto* app = reinterpret_cast<SettingsApp*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (!app || app->m_hwnd != hwnd)
        return DefWindowProcW(hwnd, msg, wParam, lParam);
    return app->HandleMessage(msg, wParam, lParam);
}

} // namespace cv2
