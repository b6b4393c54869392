#include "platform/device_screen.h"

#include <vector>

#include "platform/shell.h"
#include "store/scale.h"

namespace cv2 {
namespace {

const wchar_t kFrameClass[] = L"CV2DeviceScreen";
const DWORD kFrameStyle =
    WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;

struct ShownScreen {
    const DeviceScreen* screen = nullptr;
    HWND frame = nullptr;
    HWND main = nullptr;
    UINT closeCommand = 0;
    POINT origin = {}; // the client area's top-left corner in screen coordinates
};
ShownScreen g_shown;
HHOOK g_centring = nullptr;
bool g_testDesktop = false;
DesktopFacts g_desktop = {};

// Every window of this thread that lives in the device screen: owned, directly or not, by it.
std::vector<HWND> WindowsInScreen() {
    std::vector<HWND> windows;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND hwnd, LPARAM list) -> BOOL {
            if (hwnd != g_shown.frame && GetAncestor(hwnd, GA_ROOTOWNER) == g_shown.frame)
                reinterpret_cast<std::vector<HWND>*>(list)->push_back(hwnd);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    return windows;
}

POINT ClientOrigin(HWND frame) {
    POINT origin = {0, 0};
    ClientToScreen(frame, &origin);
    return origin;
}

// The windows in the device screen go wherever its window is moved.
void FollowFrame(HWND frame) {
    const POINT now = ClientOrigin(frame);
    const int dx = now.x - g_shown.origin.x, dy = now.y - g_shown.origin.y;
    g_shown.origin = now;
    if (dx == 0 && dy == 0)
        return;
    for (HWND hwnd : WindowsInScreen()) {
        RECT r;
        GetWindowRect(hwnd, &r);
        SetWindowPos(hwnd, nullptr, r.left + dx, r.top + dy, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

// The topmost enabled window in the device screen: the main window, or the dialog open over it.
HWND TopWindowInScreen() {
    for (HWND hwnd = GetTopWindow(nullptr); hwnd; hwnd = GetWindow(hwnd, GW_HWNDNEXT)) {
        if (hwnd != g_shown.frame && IsWindowVisible(hwnd) && IsWindowEnabled(hwnd) &&
            !(GetWindowLongW(hwnd, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) &&
            GetAncestor(hwnd, GA_ROOTOWNER) == g_shown.frame)
            return hwnd;
    }
    return nullptr;
}

void OnClose() {
    // While a dialog is open the main window is disabled: the dialog is answered first.
    if (g_shown.main && IsWindowEnabled(g_shown.main))
        PostMessageW(g_shown.main, WM_COMMAND, MAKEWPARAM(g_shown.closeCommand, 0), 0);
    else if (HWND top = TopWindowInScreen())
        SetForegroundWindow(top);
}

LRESULT CALLBACK FrameProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_MOVE:
        if (hwnd == g_shown.frame && !IsIconic(hwnd))
            FollowFrame(hwnd);
        return 0;
    case WM_ACTIVATE:
        // The caption belongs to the frame; the keyboard belongs to what is shown inside it.
        if (LOWORD(wParam) != WA_INACTIVE && !HIWORD(wParam)) {
            if (HWND top = TopWindowInScreen())
                SetActiveWindow(top);
        }
        return 0;
    case WM_CLOSE:
        OnClose();
        return 0;
    case WM_GETMINMAXINFO:
        // The window always has the device screen's size, even on a real screen smaller than
        // that (the tests run on one).
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMaxTrackSize = {0x7FFF, 0x7FFF};
        return 0;
    case WM_ERASEBKGND: {
        RECT r;
        GetClientRect(hwnd, &r);
        FillRect(reinterpret_cast<HDC>(wParam), &r,
                 static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        return 1;
    }
    }
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

// Message boxes and other dialogs smaller than the screen come up in the middle of the device
// screen, wherever its window stands, instead of in the middle of the desktop. Full-screen
// dialogs are already in place.
void CentreInScreen(HWND hwnd) {
    wchar_t className[16] = {};
    GetClassNameW(hwnd, className, 16);
    if (lstrcmpW(className, L"#32770") != 0 || GetPropW(hwnd, L"CV2Centred") ||
        GetAncestor(hwnd, GA_ROOTOWNER) != g_shown.frame)
        return;
    SetPropW(hwnd, L"CV2Centred", hwnd);
    RECT r;
    GetWindowRect(hwnd, &r);
    const int width = r.right - r.left, height = r.bottom - r.top;
    if (width >= g_shown.screen->width)
        return;
    const int x = g_shown.origin.x + (g_shown.screen->width - width) / 2;
    const int y = g_shown.origin.y + (g_shown.screen->height - height) / 2;
    SetWindowPos(hwnd, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT CALLBACK CentringHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE && g_shown.frame)
        CentreInScreen(reinterpret_cast<HWND>(wParam));
    return CallNextHookEx(g_centring, code, wParam, lParam);
}

bool RegisterFrameClass(HINSTANCE instance) {
    WNDCLASSW wc = {};
    if (GetClassInfoW(instance, kFrameClass, &wc))
        return true;
    wc.lpfnWndProc = FrameProc;
    wc.hInstance = instance;
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    wc.lpszClassName = kFrameClass;
    return RegisterClassW(&wc) != 0;
}

// The window's outer size for a client area of the screen's size.
SIZE FrameSize(const DeviceScreen& screen) {
    RECT r = {0, 0, screen.width, screen.height};
    AdjustWindowRectEx(&r, kFrameStyle, FALSE, 0);
    return {r.right - r.left, r.bottom - r.top};
}

void UseDensities(const DeviceScreen& screen) {
    g_dpiX = screen.dpi;
    g_dpiY = screen.dpi;
}

int RealCaps(int index) {
    HDC dc = GetDC(nullptr);
    const int value = GetDeviceCaps(dc, index);
    ReleaseDC(nullptr, dc);
    return value;
}

RECT RealWorkArea() {
    RECT wa;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &wa, 0);
    return wa;
}

} // namespace

DesktopFacts Desktop() {
    if (g_testDesktop)
        return g_desktop;
    return {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), RealWorkArea(),
            RealCaps(LOGPIXELSY)};
}

void SetDesktopForTests(const DesktopFacts* facts) {
    g_testDesktop = facts != nullptr;
    if (facts)
        g_desktop = *facts;
}

bool OpenDeviceScreen(const DeviceScreen& screen, const wchar_t* title) {
    CloseDeviceScreen();
    HINSTANCE instance = GetModuleHandleW(nullptr);
    if (!RegisterFrameClass(instance))
        return false;
    const RECT wa = Desktop().workArea;
    const SIZE size = FrameSize(screen);
    const int x = wa.left + ((wa.right - wa.left) - size.cx) / 2;
    const int y = wa.top + ((wa.bottom - wa.top) - size.cy) / 2;
    HWND frame = CreateWindowExW(0, kFrameClass, title ? title : L"", kFrameStyle,
                                 x < wa.left ? wa.left : x, y < wa.top ? wa.top : y, size.cx,
                                 size.cy, nullptr, nullptr, instance, nullptr);
    if (!frame)
        return false;
    g_shown = ShownScreen();
    g_shown.screen = &screen;
    g_shown.frame = frame;
    g_shown.origin = ClientOrigin(frame);
    UseDensities(screen);
    g_centring = SetWindowsHookExW(WH_CBT, CentringHook, nullptr, GetCurrentThreadId());
    return true;
}

void HostInDeviceScreen(HWND main, UINT closeCommand) {
    if (!g_shown.frame)
        return;
    g_shown.main = main;
    g_shown.closeCommand = closeCommand;
    ShowWindow(g_shown.frame, SW_SHOW);
    // The frame came up behind what lives in it; the main window stays above it.
    SetWindowPos(main, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void SelectDeviceScreen(const DeviceScreen& screen) {
    if (!g_shown.frame)
        return;
    g_shown.screen = &screen;
    UseDensities(screen);
}

void FitWindowsToDeviceScreen() {
    if (!g_shown.frame)
        return;
    RECT frame;
    GetWindowRect(g_shown.frame, &frame);
    const SIZE size = FrameSize(*g_shown.screen);
    SetWindowPos(g_shown.frame, nullptr, 0, 0, size.cx, size.cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    g_shown.origin = ClientOrigin(g_shown.frame);
    FitMenuBarsToWorkArea();
}

void CloseDeviceScreen() {
    if (g_centring)
        UnhookWindowsHookEx(g_centring);
    g_centring = nullptr;
    if (g_shown.frame && IsWindow(g_shown.frame))
        DestroyWindow(g_shown.frame);
    g_shown = ShownScreen();
}

const DeviceScreen* ShownDeviceScreen() {
    return g_shown.screen;
}

HWND DeviceScreenWindow() {
    return g_shown.frame;
}

RECT ScreenWorkArea() {
    if (!g_shown.screen)
        return RealWorkArea();
    return {g_shown.origin.x, g_shown.origin.y, g_shown.origin.x + g_shown.screen->width,
            g_shown.origin.y + g_shown.screen->height};
}

int ScreenPixelWidth() {
    return g_shown.screen ? g_shown.screen->width : RealCaps(HORZRES);
}
int ScreenPixelHeight() {
    return g_shown.screen ? g_shown.screen->height : RealCaps(VERTRES);
}
int ScreenDpiX() {
    return g_shown.screen ? g_shown.screen->dpi : RealCaps(LOGPIXELSX);
}
int ScreenDpiY() {
    return g_shown.screen ? g_shown.screen->dpi : RealCaps(LOGPIXELSY);
}

int FontDpiY(HDC dc) {
    return g_shown.screen ? g_shown.screen->dpi : GetDeviceCaps(dc, LOGPIXELSY);
}

} // namespace cv2
