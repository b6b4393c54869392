#include "ui/dialog_layout.h"

#include <commctrl.h>

#include "platform/shell.h"
#include "store/scale.h"
#include "store/screen.h"

namespace cv2 {

WORD ChooseTemplate(const DialogTemplates& t) {
    switch (ChooseLayout(ScreenWidth(), ScreenHeight(), t.square != 0)) {
    case DialogLayout::Square:
        return t.square;
    case DialogLayout::Portrait:
        return t.portrait;
    default:
        return t.landscape;
    }
}

INT_PTR RunDialog(HWND owner, const DialogTemplates& templates, DLGPROC proc, LPARAM param) {
    return DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(ChooseTemplate(templates)),
                           owner, proc, param);
}

bool InitFullScreenDialog(HWND dialog) {
    SHINITDLGINFO info = {SHIDIM_FLAGS, dialog, SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN};
    return SHInitDialog(&info) != FALSE;
}

bool AddEmptyMenuBar(HWND dialog) {
    SHMENUBARINFO bar = {};
    bar.cbSize = sizeof bar;
    bar.hwndParent = dialog;
    bar.dwFlags = SHCMBF_EMPTYBAR;
    return SHCreateMenuBar(&bar) != FALSE;
}

bool AddMenuBarButton(HWND dialog, int command, const wchar_t* text) {
    HWND bar = SHFindMenuBar(dialog);
    if (!bar)
        return false;
    TBBUTTON button = {};
    button.iBitmap = I_IMAGENONE;
    button.idCommand = command;
    button.fsState = TBSTATE_ENABLED;
    button.fsStyle = BTNS_BUTTON | BTNS_AUTOSIZE | BTNS_SHOWTEXT;
    button.iString = reinterpret_cast<INT_PTR>(text);
    return SendMessageW(bar, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button)) != FALSE;
}

} // namespace cv2
