#include "ui/full_screen_dialog.h"

#include "store/strings.h"

namespace cv2 {

void DialogAnchors::Capture(HWND dialog, const ControlAnchor* anchors, size_t count) {
    RECT client;
    GetClientRect(dialog, &client);
    m_client = {client.right, client.bottom};
    m_controls.clear();
    for (size_t i = 0; i < count; ++i) {
        HWND control = GetDlgItem(dialog, anchors[i].id);
        if (!control)
            continue;
        RECT r;
        GetWindowRect(control, &r);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&r), 2);
        m_controls.push_back(Placed{control, anchors[i].flags, r});
    }
}

void DialogAnchors::Apply(HWND dialog) const {
    RECT client;
    GetClientRect(dialog, &client);
    const int dx = client.right - m_client.cx;
    const int dy = client.bottom - m_client.cy;
    for (const Placed& p : m_controls) {
        RECT r = p.rect;
        if (p.flags & kFollowRight)
            OffsetRect(&r, dx, 0);
        if (p.flags & kFollowBottom)
            OffsetRect(&r, 0, dy);
        if (p.flags & kStretchRight)
            r.right = r.right + dx > r.left ? r.right + dx : r.left + 1;
        if (p.flags & kStretchDown)
            r.bottom = r.bottom + dy > r.top ? r.bottom + dy : r.top + 1;
        MoveWindow(p.control, r.left, r.top, r.right - r.left, r.bottom - r.top, TRUE);
    }
}

INT_PTR FullScreenDialog::Run(HWND owner, const DialogTemplates& templates) {
    return RunDialog(owner, templates, Proc, reinterpret_cast<LPARAM>(this));
}

bool FullScreenDialog::Init(HWND dialog) {
    size_t count = 0;
    const ControlAnchor* anchors = Anchors(&count);
    m_anchors.Capture(dialog, anchors, count);
    if (!InitFullScreenDialog(dialog) || !AddEmptyMenuBar(dialog))
        return false;
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
            self->m_anchors.Apply(dialog);
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
