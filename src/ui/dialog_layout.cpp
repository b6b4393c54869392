#include "ui/dialog_layout.h"

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

} // namespace cv2
