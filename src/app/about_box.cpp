#include "app/about_box.h"

#include "app/exe_folder.h"
#include "app/version_info.h"
#include "ids_app.h"
#include "store/strings.h"
#include "ui/dialog_layout.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

const DialogTemplates kAboutTemplates = {IDD_ABOUT_PORTRAIT, IDD_ABOUT_LANDSCAPE, 0};

void SetText(HWND dialog, int id, const std::wstring& text) {
    SetDlgItemTextW(dialog, id, text.c_str());
}

void InitAboutBox(HWND dialog) {
    InitFullScreenDialog(dialog);
    for (int id = IDC_ABOUT_TITLE; id <= IDC_ABOUT_CREDITS; ++id)
        SetControlFont(GetDlgItem(dialog, id), TextFont());
    SetControlFont(GetDlgItem(dialog, IDC_ABOUT_TITLE), CaptionFont());
    SetControlFont(GetDlgItem(dialog, IDC_ABOUT_VERSION), CaptionFont());
    SetText(dialog, IDC_ABOUT_HOME_LABEL, Localized(IDS_ABOUT_HOME_PAGE));
    SetText(dialog, IDC_ABOUT_SUPPORT_LABEL, Localized(IDS_ABOUT_SUPPORT));
    SetText(dialog, IDC_ABOUT_CREDITS, Localized(IDS_ABOUT_CREDITS));

    wchar_t exe[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, exe, MAX_PATH);
    const VersionInfo version = ReadVersionInfo(exe);
    SetText(dialog, IDC_ABOUT_VERSION, VersionLine(version));
    SetText(dialog, IDC_ABOUT_VERSION2, VersionLine(version));
    SetText(dialog, IDC_ABOUT_LEGAL, version.legalCopyright);
}

INT_PTR CALLBACK AboutProc(HWND dialog, UINT msg, WPARAM wParam, LPARAM) {
    switch (msg) {
    case WM_INITDIALOG:
        InitAboutBox(dialog);
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) {
            EndDialog(dialog, IDOK);
            return TRUE;
        }
        break;
    }
    return FALSE;
}

} // namespace

void ShowAboutBox(HWND owner) { RunDialog(owner, kAboutTemplates, AboutProc, 0); }

} // namespace cv2
