#include "pages/appearance/today_menubar_dialog.h"

#include "ids_appearance_panel.h"
#include "pages/appearance/panel_page.h"
#include "ui/backgrounds/background_dialog.h"
#include "ui/control_layout.h"
#include "ui/dialog_layout.h"
#include "ui/dialog_object.h"
#include "ui/pickers/font_picker.h"

namespace cv2 {
namespace {

const DialogTemplates kTemplates = {IDD_TODAY_MENUBAR, IDD_TODAY_MENUBAR, 0};

const ControlText kTexts[] = {
    {IDC_TODAY_BACKGROUND_LABEL, IDS_BACKGROUND_SETTINGS},
    {IDC_TODAY_CHANGE, IDS_CHANGE},
    {IDC_TODAY_DISPLAY_NEW, IDS_DISPLAY_NEW_TEXT},
    {IDC_TODAY_FONT_LABEL, IDS_NEW_BUTTON_FONT},
    {IDC_TODAY_FONT, IDS_FONT_BUTTON},
};
// The two labels are headings.
const int kHeadings[] = {IDC_TODAY_BACKGROUND_LABEL, IDC_TODAY_FONT_LABEL};

const ControlPlace kPlaces[] = {
    {IDC_TODAY_BACKGROUND_LABEL, From::Left, 4, From::Right, -4, 6, 16},
    {IDC_TODAY_CHANGE, From::Left, 4, From::Left, 110, 24, 23},
    {IDC_TODAY_DISPLAY_NEW, From::Left, 4, From::Right, -4, 56, 18},
    {IDC_TODAY_FONT_LABEL, From::Left, 4, From::Right, -4, 84, 16},
    {IDC_TODAY_FONT, From::Left, 4, From::Left, 110, 102, 23},
};

void PickNewButtonFont(HWND dialog, FontKeys& font) {
    FontRecord record = FontRecordOf(font);
    if (PickFont(record, dialog))
        font = FontKeysOf(record);
}

// Full-screen with the shell's OK button. When the shell cannot make it so, the dialog still
// runs, but as its template stands: template texts and the check box not set.
void OnInit(HWND dialog, const TodayMenubarLook& look) {
    if (!InitFullScreenDialog(dialog) || !AddEmptyMenuBar(dialog))
        return;
    SetWindowTextW(dialog, Localized(IDS_TODAY_MENUBAR));
    SetControlTexts(dialog, kTexts, sizeof kTexts / sizeof kTexts[0]);
    SetDialogFonts(dialog, kHeadings, sizeof kHeadings / sizeof kHeadings[0]);
    CheckDlgButton(dialog, IDC_TODAY_DISPLAY_NEW,
                   look.displayNewText ? BST_CHECKED : BST_UNCHECKED);
}

void OnCommand(HWND dialog, TodayMenubarLook& look, WORD id) {
    switch (id) {
    case IDOK:
    case IDCANCEL:
        EndDialog(dialog, id);
        break;
    case IDC_TODAY_CHANGE:
        EditBackground(look.fill, dialog);
        break;
    case IDC_TODAY_DISPLAY_NEW:
        look.displayNewText = IsDlgButtonChecked(dialog, IDC_TODAY_DISPLAY_NEW) == BST_CHECKED;
        break;
    case IDC_TODAY_FONT:
        PickNewButtonFont(dialog, look.font);
        break;
    }
}

INT_PTR CALLBACK TodayMenubarProc(HWND dialog, UINT msg, WPARAM wParam, LPARAM lParam) {
    TodayMenubarLook* look = DialogObject<TodayMenubarLook>(dialog, msg, lParam);
    if (!look)
        return FALSE;
    switch (msg) {
    case WM_INITDIALOG:
        OnInit(dialog, *look);
        PlaceControls(dialog, kPlaces, sizeof kPlaces / sizeof kPlaces[0]);
        return TRUE;
    case WM_SIZE:
        PlaceControls(dialog, kPlaces, sizeof kPlaces / sizeof kPlaces[0]);
        return TRUE;
    case WM_COMMAND:
        if (HIWORD(wParam) == BN_CLICKED)
            OnCommand(dialog, *look, LOWORD(wParam));
        return TRUE;
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        return StaticColors(reinterpret_cast<HDC>(wParam));
    }
    return FALSE;
}

} // namespace

bool EditTodayMenubar(TodayMenubarLook& look, HWND owner) {
    TodayMenubarLook copy = look;
    if (RunDialog(owner, kTemplates, TodayMenubarProc, reinterpret_cast<LPARAM>(&copy)) != IDOK)
        return false;
    look = copy;
    return true;
}

} // namespace cv2
