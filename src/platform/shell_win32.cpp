#include "platform/shell.h"

#include <commctrl.h>
#include <objbase.h>
#include <shlobj.h>

#include <string>

#include <algorithm>
#include <cstdlib>

#include "platform/device_screen.h"
#include "platform/done_button.h"
#include "store/scale.h"

namespace cv2 {
namespace {

const wchar_t kBarClass[] = L"CV2MenuBar";
const wchar_t kOwnerProp[] = L"CV2MenuBarOwner";
const UINT kFirstMenuButton = 0xE000; // ids of the buttons that open the menu's popups

RECT WorkArea() {
    return ScreenWorkArea();
}

// Opens the popup of menu button `index` above the bar and sends the chosen command.
void OpenMenuPopup(HWND container, HWND toolbar, UINT index) {
    HMENU menu = reinterpret_cast<HMENU>(GetPropW(container, L"CV2Menu"));
    HMENU popup = menu ? GetSubMenu(menu, static_cast<int>(index)) : nullptr;
    if (!popup)
        return;
    RECT button;
    SendMessageW(toolbar, TB_GETRECT, kFirstMenuButton + index, reinterpret_cast<LPARAM>(&button));
    MapWindowPoints(toolbar, nullptr, reinterpret_cast<POINT*>(&button), 2);
    HWND owner = GetWindow(container, GW_OWNER);
    UINT cmd = TrackPopupMenu(popup, TPM_LEFTALIGN | TPM_BOTTOMALIGN | TPM_RETURNCMD, button.left,
                              button.top, 0, owner, nullptr);
    if (cmd)
        SendMessageW(owner, WM_COMMAND, MAKEWPARAM(cmd, 0), 0);
}

LRESULT CALLBACK BarProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_COMMAND: {
        const UINT id = LOWORD(wParam);
        HWND toolbar = GetWindow(hwnd, GW_CHILD);
        if (id >= kFirstMenuButton && id < kFirstMenuButton + 0x100)
            OpenMenuPopup(hwnd, toolbar, id - kFirstMenuButton);
        else
            SendMessageW(GetWindow(hwnd, GW_OWNER), WM_COMMAND, MAKEWPARAM(id, 0), 0);
        return 0;
    }
    case WM_SIZE:
        MoveWindow(GetWindow(hwnd, GW_CHILD), 0, 0, LOWORD(lParam), HIWORD(lParam), TRUE);
        return 0;
    case WM_DESTROY:
        if (HMENU menu = reinterpret_cast<HMENU>(RemovePropW(hwnd, L"CV2Menu")))
            DestroyMenu(menu);
        return 0;
    }
    return DefWindowProcW(hwnd, msg, wParam, lParam);
}

void RegisterBarClass(HINSTANCE instance) {
    WNDCLASSW wc = {};
    if (GetClassInfoW(instance, kBarClass, &wc))
        return;
    wc.lpfnWndProc = BarProc;
    wc.hInstance = instance;
    wc.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    wc.lpszClassName = kBarClass;
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    RegisterClassW(&wc);
}

// One text button per top-level item of the menu.
void AddMenuButtons(HWND toolbar, HMENU menu) {
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        wchar_t text[64] = {};
        GetMenuStringW(menu, static_cast<UINT>(i), text, 64, MF_BYPOSITION);
        TBBUTTON button = {};
        button.iBitmap = I_IMAGENONE;
        button.idCommand = static_cast<int>(kFirstMenuButton + i);
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = BTNS_BUTTON | BTNS_AUTOSIZE | BTNS_SHOWTEXT;
        button.iString = reinterpret_cast<INT_PTR>(text);
        SendMessageW(toolbar, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
    }
}

// Keeps the owner clear of the bar: a window reaching into the bar's strip is shortened.
void MakeRoomAbove(HWND owner, const RECT& bar) {
    RECT r;
    GetWindowRect(owner, &r);
    if (r.bottom > bar.top && r.top < bar.top)
        SetWindowPos(owner, nullptr, 0, 0, r.right - r.left, bar.top - r.top,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Splits a command line into the program and the rest: a leading quoted part is the program
// (without its quotes), else everything up to the first blank.
void SplitCommandLine(const std::wstring& line, std::wstring& program, std::wstring& arguments) {
    size_t end;
    if (!line.empty() && line[0] == L'"') {
        const size_t close = line.find(L'"', 1);
        end = close == std::wstring::npos ? line.size() : close + 1;
        program = line.substr(1, (close == std::wstring::npos ? line.size() : close) - 1);
    } else {
        end = line.find(L' ');
        if (end == std::wstring::npos)
            end = line.size();
        program = line.substr(0, end);
    }
    const size_t rest = line.find_first_not_of(L' ', end);
    arguments = rest == std::wstring::npos ? std::wstring() : line.substr(rest);
}

bool SaveShellLink(const wchar_t* file, const std::wstring& program,
                   const std::wstring& arguments) {
    IShellLinkW* link = nullptr;
    if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                reinterpret_cast<void**>(&link))))
        return false;
    IPersistFile* persist = nullptr;
    bool saved =
        SUCCEEDED(link->SetPath(program.c_str())) &&
        SUCCEEDED(link->SetArguments(arguments.c_str())) &&
        SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&persist)));
    if (saved) {
        saved = SUCCEEDED(persist->Save(file, TRUE));
        persist->Release();
    }
    link->Release();
    return saved;
}

} // namespace

BOOL SHCreateShortcut(LPWSTR szShortcut, LPWSTR szTarget) {
    if (!szShortcut || !szTarget || !*szShortcut)
        return FALSE;
    std::wstring program, arguments;
    SplitCommandLine(szTarget, program, arguments);
    // The link object needs COM on this thread; the editor has it already, other callers may not.
    const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const bool saved = SaveShellLink(szShortcut, program, arguments);
    if (SUCCEEDED(com))
        CoUninitialize();
    return saved ? TRUE : FALSE;
}

int MenuBarHeight() {
    return Scale(26);
}

BOOL SHInitDialog(SHINITDLGINFO* info) {
    if (!info || !IsWindow(info->hDlg) || !(info->dwMask & SHIDIM_FLAGS))
        return FALSE;
    if (info->dwFlags & (SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIZEDLG)) {
        const RECT wa = WorkArea();
        SetWindowPos(info->hDlg, nullptr, wa.left, wa.top, wa.right - wa.left, wa.bottom - wa.top,
                     SWP_NOZORDER);
    }
    if (info->dwFlags & SHIDIF_DONEBUTTON)
        InstallDoneButton(info->hDlg);
    return TRUE;
}

BOOL SHCreateMenuBar(SHMENUBARINFO* info) {
    if (!info || !IsWindow(info->hwndParent))
        return FALSE;
    HINSTANCE instance = info->hInstRes ? info->hInstRes : GetModuleHandleW(nullptr);
    HMENU menu = nullptr;
    if (!(info->dwFlags & SHCMBF_EMPTYBAR)) {
        menu = LoadMenuW(instance, MAKEINTRESOURCEW(info->nToolBarId));
        if (!menu)
            return FALSE;
    }
    INITCOMMONCONTROLSEX icc = {sizeof icc, ICC_BAR_CLASSES};
    InitCommonControlsEx(&icc);
    RegisterBarClass(instance);

    const RECT wa = WorkArea();
    const RECT bar = {wa.left, wa.bottom - MenuBarHeight(), wa.right, wa.bottom};
    const DWORD visible = (info->dwFlags & SHCMBF_HIDDEN) ? 0 : WS_VISIBLE;
    HWND container = CreateWindowExW(WS_EX_TOOLWINDOW, kBarClass, L"", WS_POPUP | visible, bar.left,
                                     bar.top, bar.right - bar.left, bar.bottom - bar.top,
                                     info->hwndParent, nullptr, instance, nullptr);
    if (!container) {
        if (menu)
            DestroyMenu(menu);
        return FALSE;
    }
    SetPropW(container, L"CV2Menu", menu);
    SetPropW(info->hwndParent, kOwnerProp, container);
    HWND toolbar = CreateWindowExW(0, TOOLBARCLASSNAMEW, L"",
                                   WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | TBSTYLE_LIST |
                                       CCS_NORESIZE | CCS_NODIVIDER | CCS_NOPARENTALIGN,
                                   0, 0, bar.right - bar.left, bar.bottom - bar.top, container,
                                   nullptr, instance, nullptr);
    SendMessageW(toolbar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessageW(toolbar, TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS);
    if (menu)
        AddMenuButtons(toolbar, menu);
    MakeRoomAbove(info->hwndParent, bar);
    info->hwndMB = toolbar;
    return TRUE;
}

void FitMenuBarsToWorkArea() {
    const RECT wa = WorkArea();
    const RECT bar = {wa.left, wa.bottom - MenuBarHeight(), wa.right, wa.bottom};
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND owner, LPARAM barRect) -> BOOL {
            HWND container = static_cast<HWND>(GetPropW(owner, kOwnerProp));
            if (!IsWindow(container))
                return TRUE;
            const RECT& r = *reinterpret_cast<const RECT*>(barRect);
            const RECT wa = WorkArea();
            SetWindowPos(container, nullptr, r.left, r.top, r.right - r.left, r.bottom - r.top,
                         SWP_NOZORDER | SWP_NOACTIVATE);
            SetWindowPos(owner, nullptr, wa.left, wa.top, wa.right - wa.left, r.top - wa.top,
                         SWP_NOZORDER | SWP_NOACTIVATE);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&bar));
}

HWND SHFindMenuBar(HWND owner) {
    if (!owner)
        return nullptr;
    HWND container = static_cast<HWND>(GetPropW(owner, kOwnerProp));
    return IsWindow(container) ? GetWindow(container, GW_CHILD) : nullptr;
}

HMENU MenuOfMenuBar(HWND menuBar) {
    HWND container = menuBar ? GetParent(menuBar) : nullptr;
    return container ? static_cast<HMENU>(GetPropW(container, L"CV2Menu")) : nullptr;
}

DWORD SHRecognizeGesture(SHRGINFO* info) {
    if (!info || !IsWindow(info->hwndClient) || !(info->dwFlags & SHRG_RETURNCMD))
        return 0;
    HWND hwnd = info->hwndClient;
    const DWORD hold = GetDoubleClickTime() * ((info->dwFlags & SHRG_LONGDELAY) ? 2 : 1);
    const int slackX = GetSystemMetrics(SM_CXDRAG), slackY = GetSystemMetrics(SM_CYDRAG);
    // The pen is captured on the device; here the mouse is, so a release anywhere is seen.
    const bool capture = GetCapture() != hwnd;
    if (capture)
        SetCapture(hwnd);
    const DWORD start = GetTickCount();
    DWORD result = GN_CONTEXTMENU;
    for (;;) {
        MSG msg;
        if (PeekMessageW(&msg, hwnd, WM_MOUSEFIRST, WM_MOUSELAST, PM_NOREMOVE)) {
            // A release or another button ends the press as a tap; the message stays queued.
            if (msg.message != WM_MOUSEMOVE) {
                result = 0;
                break;
            }
            PeekMessageW(&msg, hwnd, WM_MOUSEMOVE, WM_MOUSEMOVE, PM_REMOVE);
            const int x = static_cast<short>(LOWORD(msg.lParam));
            const int y = static_cast<short>(HIWORD(msg.lParam));
            if (abs(x - info->ptDown.x) > slackX || abs(y - info->ptDown.y) > slackY) {
                result = 0;
                break;
            }
            continue;
        }
        const DWORD elapsed = GetTickCount() - start;
        if (elapsed >= hold)
            break;
        // Short waits: a posted pen-up does not always wake a wait for input.
        MsgWaitForMultipleObjects(0, nullptr, FALSE, std::min<DWORD>(hold - elapsed, 20),
                                  QS_MOUSE | QS_POSTMESSAGE);
    }
    if (capture && GetCapture() == hwnd)
        ReleaseCapture();
    return result;
}

BOOL SHDoneButton(HWND hwnd, DWORD state) {
    // The desktop has no navigation bar to put the button in; the request is accepted.
    return IsWindow(hwnd) && (state == SHDB_SHOW || state == SHDB_HIDE);
}

} // namespace cv2
