#include "ui/full_screen_dialog.h"

#include "store/strings.h"

namespace cv2 {

INT_PTR FullScreenDialog::Run(HWND owner, const DialogTemplates& templates) {
    return RunDialog(owner, templates, Proc, reinterpret_cast<LPARAM>(this));
}

void FullScreenDialog::Place(HWND dialog) const {
    size_t count = 0;
    const ControlPlace* places = Places(&count);
    PlaceControls(dialog, places, count);
}

bool FullScreenDialog::Init(HWND dialog) {
    if (!InitFullScreenDialog(dialog) || !AddEmptyMenuBar(dialog))
        return false;
    Place(dialog);
    OnInit(dialog);
    return true;
}

INT_PTR CALLBACK FullScreenDialog::Proc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<FullScreenDialog*>(GetWindowLongPtrW(dialog, DWLP_USER));
    switch (msg) {
    case WM_INITDIALOG:
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        if (!reinterpret_cast<FullScreenDialog*>(lParam)->Init(dialog))
            EndDialog(dialog, -1);
        return FALSE; // OnInit sets the focus
    case WM_SIZE:
        if (self)
            self->Place(dialog);
        return TRUE;
    case WM_COMMAND:
        if (!self)
            return FALSE;
        if (LOWORD(wParam) == IDCANCEL)
            EndDialog(dialog, IDCANCEL);
        else
            self->OnCommand(dialog, LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    }
    return FALSE;
}

void SetLocalizedItemText(HWND dialog, int id, unsigned stringId) {
    SetDlgItemTextW(dialog, id, Localized(static_cast<StringId>(stringId)));
}

} // namespace cv2
