#include "pages/appearance/today_menubar_dialog.h"

#include "ids_appearance_panel.h"
#include "pages/appearance/panel_page.h"
#include "ui/backgrounds/background_dialog.h"
#include "ui/full_screen_dialog.h"
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

class TodayMenubarDialog : public FullScreenDialog {
  public:
    explicit TodayMenubarDialog(const TodayMenubarLook& look) : look(look) {}
    TodayMenubarLook look;

  protected:
    const ControlPlace* Places(size_t* count) const override {
        *count = sizeof kPlaces / sizeof kPlaces[0];
        return kPlaces;
    }
    void OnInit(HWND dialog) override {
        SetWindowTextW(dialog, Localized(IDS_TODAY_MENUBAR));
        SetControlTexts(dialog, kTexts, sizeof kTexts / sizeof kTexts[0]);
        SetDialogFonts(dialog, kHeadings, sizeof kHeadings / sizeof kHeadings[0]);
        CheckDlgButton(dialog, IDC_TODAY_DISPLAY_NEW,
                       look.displayNewText ? BST_CHECKED : BST_UNCHECKED);
    }
    void OnCommand(HWND dialog, WORD id, WORD code) override {
        if (code != BN_CLICKED)
            return;
        switch (id) {
        case IDOK:
            EndDialog(dialog, IDOK);
            break;
        case IDC_TODAY_CHANGE:
            EditBackground(look.fill, dialog);
            break;
        case IDC_TODAY_DISPLAY_NEW:
            look.displayNewText = IsDlgButtonChecked(dialog, IDC_TODAY_DISPLAY_NEW) == BST_CHECKED;
            break;
        case IDC_TODAY_FONT:
            PickNewButtonFont(dialog);
            break;
        }
    }

  private:
    void PickNewButtonFont(HWND dialog) {
        FontRecord record = FontRecordOf(look.font);
        if (PickFont(record, dialog))
            look.font = FontKeysOf(record);
    }
};

} // namespace

bool EditTodayMenubar(TodayMenubarLook& look, HWND owner) {
    TodayMenubarDialog dialog(look);
    if (dialog.Run(owner, kTemplates) != IDOK)
        return false;
    look = dialog.look;
    return true;
}

} // namespace cv2
