// Steps shared by the tests of the background and button images dialogs.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "color_dialog_driver.h"
#include "ui/text_extent.h"

namespace cv2test {

// Defined with the rule page support: expects the visible children of `parent` inside its client
// area and clear of each other.
void ExpectLaidOutApart(HWND parent);

inline std::wstring ItemTextOf(HWND dlg, int id) {
    wchar_t text[512] = {};
    GetDlgItemTextW(dlg, id, text, 512);
    return text;
}

inline bool ItemEnabled(HWND dlg, int id) {
    return IsWindowEnabled(GetDlgItem(dlg, id)) != FALSE;
}

inline bool ItemChecked(HWND dlg, int id) {
    return IsDlgButtonChecked(dlg, id) == BST_CHECKED;
}

// Picks a row of a drop-down list the way a tap does: new selection, then the notice.
inline void SelectListRow(HWND dlg, int id, int row) {
    HWND list = GetDlgItem(dlg, id);
    SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
    SendMessageW(dlg, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
}

// The control's place in its dialog's client coordinates.
inline RECT ItemRect(HWND dlg, int id) {
    RECT r = {};
    GetWindowRect(GetDlgItem(dlg, id), &r);
    MapWindowPoints(nullptr, dlg, reinterpret_cast<POINT*>(&r), 2);
    return r;
}

// The height the control's text takes when wrapped at word breaks into `width` pixels, in the
// control's own font.
inline int WrappedTextHeight(HWND control, int width) {
    wchar_t text[512] = {};
    GetWindowTextW(control, text, 512);
    HDC dc = GetDC(control);
    HGDIOBJ old =
        SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
    RECT r = {0, 0, width, 0};
    DrawTextW(dc, text, -1, &r, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    SelectObject(dc, old);
    ReleaseDC(control, dc);
    return r.bottom;
}

// Expects the text of every visible label, button and check box to fit its control's width
// (check boxes leave room for their box, push buttons for their edges); text that may wrap must
// fit the control's height once wrapped.
inline void ExpectTextsFit(HWND dlg) {
    for (HWND c = GetWindow(dlg, GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT)) {
        if (!IsWindowVisible(c))
            continue;
        wchar_t cls[32] = {};
        GetClassNameW(c, cls, 32);
        int room = 0;
        RECT r;
        GetClientRect(c, &r);
        const LONG style = GetWindowLongW(c, GWL_STYLE);
        if (lstrcmpiW(cls, L"Static") == 0) {
            room = r.right;
        } else if (lstrcmpiW(cls, L"Button") == 0) {
            const LONG kind = style & BS_TYPEMASK;
            const bool box = kind == BS_CHECKBOX || kind == BS_AUTOCHECKBOX ||
                             kind == BS_RADIOBUTTON || kind == BS_AUTORADIOBUTTON;
            room = r.right - (box ? GetSystemMetrics(SM_CXMENUCHECK) + 4 : 6);
        } else {
            continue;
        }
        if (style & BS_MULTILINE)
            EXPECT_LE(WrappedTextHeight(c, room), r.bottom)
                << "wrapped text cut off in control " << GetDlgCtrlID(c);
        else
            EXPECT_LE(cv2::WindowTextWidth(c), room)
                << "text cut off in control " << GetDlgCtrlID(c);
    }
}

} // namespace cv2test
