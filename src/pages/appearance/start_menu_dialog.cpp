#include "pages/appearance/start_menu_dialog.h"

#include "ids_appearance_panel.h"
#include "pages/appearance/panel_page.h"
#include "store/paths.h"
#include "store/screen.h"
#include "ui/backgrounds/graphics_browse.h"
#include "ui/full_screen_dialog.h"
#include "ui/pickers/color_picker.h"
#include "ui/pickers/font_picker.h"

namespace cv2 {
namespace {

const DialogTemplates kTemplates = {IDD_START_MENU_PORTRAIT, IDD_START_MENU_LANDSCAPE,
                                    IDD_START_MENU_SQUARE};
constexpr int kPathChars = 259;
constexpr int kMarginChars = 100;

// The icon rows, in the order of StartMenuLook::icons.
struct IconRow {
    int label;
    int edit;
    int browse;
    StringId text;
};
const IconRow kIconRows[kStartMenuIconCount] = {
    {IDC_MENU_PROGRAM_LABEL, IDC_MENU_PROGRAM, IDC_MENU_PROGRAM_BROWSE, IDS_PROGRAM_GROUP},
    {IDC_MENU_SETTINGS_LABEL, IDC_MENU_SETTINGS, IDC_MENU_SETTINGS_BROWSE, IDS_SETTINGS_GROUP},
    {IDC_MENU_FIND_LABEL, IDC_MENU_FIND, IDC_MENU_FIND_BROWSE, IDS_FIND_ICON},
    {IDC_MENU_HELP_LABEL, IDC_MENU_HELP, IDC_MENU_HELP_BROWSE, IDS_HELP_ICON},
    {IDC_MENU_ARROW_LABEL, IDC_MENU_ARROW, IDC_MENU_ARROW_BROWSE, IDS_SUBMENU_ARROW},
};
// The submenu arrow's row is left out of the images-or-colours rule.
constexpr size_t kRuledIconRows = 4;

// The margin boxes, in the order of StartMenuLook::margins.
const int kMarginBoxes[kStartMenuMarginCount] = {IDC_MENU_LEFT, IDC_MENU_RIGHT, IDC_MENU_SUB_LEFT,
                                                 IDC_MENU_SUB_RIGHT};

const ControlText kTexts[] = {
    {IDC_MENU_FIRST_MARGINS, IDS_FIRST_LEVEL_MARGINS},
    {IDC_MENU_SUB_MARGINS, IDS_SUBLEVEL_MARGINS},
    {IDC_MENU_LEFT_LABEL, IDS_LEFT_SHORT},
    {IDC_MENU_RIGHT_LABEL, IDS_RIGHT_SHORT},
    {IDC_MENU_SUB_LEFT_LABEL, IDS_LEFT_SHORT},
    {IDC_MENU_SUB_RIGHT_LABEL, IDS_RIGHT_SHORT},
    {IDC_MENU_FONT, IDS_FONT_BUTTON},
    {IDC_MENU_NO_IMAGES, IDS_DONT_USE_IMAGES},
    {IDC_MENU_BACKGROUND, IDS_MENU_BACKGROUND},
    {IDC_MENU_HIGHLIGHT, IDS_MENU_HIGHLIGHT},
};
const int kHeadings[] = {IDC_MENU_FIRST_MARGINS, IDC_MENU_SUB_MARGINS};

// An icon row's three controls at `top`: label, path box, browse button, the label `labelWidth`
// wide and the row ending at `right` from `rightFrom`.
#define ICON_ROW(n, top, labelWidth, rightFrom, right)                                           \
    {IDC_MENU_##n##_LABEL, From::Left, 4, From::Left, 4 + (labelWidth), (top) + 3, 16},          \
        {IDC_MENU_##n, From::Left, 6 + (labelWidth), rightFrom, (right)-27, top, 20},            \
        {IDC_MENU_##n##_BROWSE, rightFrom, (right)-24, rightFrom, right, top, 20}

// A margin pair at `top` between `from`+`left` and `from`+`right`: "Left:" box "Right:" box.
#define MARGIN_ROW(l, r, from, left, top)                                                         \
    {IDC_MENU_##l##_LABEL, from, left, from, (left) + 30, (top) + 3, 16},                        \
        {IDC_MENU_##l, from, (left) + 30, from, (left) + 62, top, 20},                          \
        {IDC_MENU_##r##_LABEL, from, (left) + 66, from, (left) + 98, (top) + 3, 16},             \
        {IDC_MENU_##r, from, (left) + 98, from, (left) + 130, top, 20}

// Portrait: every row under the one before.
const ControlPlace kPortraitPlaces[] = {
    ICON_ROW(PROGRAM, 4, 84, From::Right, -4),
    ICON_ROW(SETTINGS, 26, 84, From::Right, -4),
    ICON_ROW(FIND, 48, 84, From::Right, -4),
    ICON_ROW(HELP, 70, 84, From::Right, -4),
    ICON_ROW(ARROW, 92, 84, From::Right, -4),
    {IDC_MENU_FIRST_MARGINS, From::Left, 4, From::Right, -4, 116, 16},
    MARGIN_ROW(LEFT, RIGHT, From::Left, 4, 132),
    {IDC_MENU_SUB_MARGINS, From::Left, 4, From::Right, -4, 156, 16},
    MARGIN_ROW(SUB_LEFT, SUB_RIGHT, From::Left, 4, 172),
    {IDC_MENU_FONT, From::Left, 4, From::Middle, -3, 198, 23},
    {IDC_MENU_NO_IMAGES, From::Middle, 3, From::Right, -4, 200, 20},
    {IDC_MENU_BACKGROUND, From::Left, 4, From::Middle, -3, 225, 23},
    {IDC_MENU_HIGHLIGHT, From::Middle, 3, From::Right, -4, 225, 23},
};

// Landscape: the icons on the left half, margins and buttons on the right half.
const ControlPlace kLandscapePlaces[] = {
    ICON_ROW(PROGRAM, 4, 84, From::Middle, -2),
    ICON_ROW(SETTINGS, 28, 84, From::Middle, -2),
    ICON_ROW(FIND, 52, 84, From::Middle, -2),
    ICON_ROW(HELP, 76, 84, From::Middle, -2),
    ICON_ROW(ARROW, 100, 84, From::Middle, -2),
    {IDC_MENU_FIRST_MARGINS, From::Middle, 4, From::Right, -4, 4, 16},
    MARGIN_ROW(LEFT, RIGHT, From::Middle, 4, 20),
    {IDC_MENU_SUB_MARGINS, From::Middle, 4, From::Right, -4, 46, 16},
    MARGIN_ROW(SUB_LEFT, SUB_RIGHT, From::Middle, 4, 62),
    {IDC_MENU_FONT, From::Middle, 4, From::Right, -4, 90, 22},
    {IDC_MENU_NO_IMAGES, From::Left, 4, From::Middle, -2, 126, 20},
    {IDC_MENU_BACKGROUND, From::Middle, 4, From::Right, -4, 114, 22},
    {IDC_MENU_HIGHLIGHT, From::Middle, 4, From::Right, -4, 138, 22},
};

// Square: the icons, then the two margin pairs side by side, then two rows of buttons.
const ControlPlace kSquarePlaces[] = {
    ICON_ROW(PROGRAM, 2, 84, From::Right, -4),
    ICON_ROW(SETTINGS, 23, 84, From::Right, -4),
    ICON_ROW(FIND, 44, 84, From::Right, -4),
    ICON_ROW(HELP, 65, 84, From::Right, -4),
    ICON_ROW(ARROW, 86, 84, From::Right, -4),
    {IDC_MENU_FIRST_MARGINS, From::Left, 4, From::Middle, -2, 108, 16},
    {IDC_MENU_SUB_MARGINS, From::Middle, 2, From::Right, -4, 108, 16},
    {IDC_MENU_LEFT_LABEL, From::Left, 4, From::Left, 30, 127, 16},
    {IDC_MENU_LEFT, From::Left, 30, From::Left, 56, 124, 20},
    {IDC_MENU_RIGHT_LABEL, From::Left, 58, From::Left, 88, 127, 16},
    {IDC_MENU_RIGHT, From::Left, 88, From::Middle, -4, 124, 20},
    {IDC_MENU_SUB_LEFT_LABEL, From::Middle, 2, From::Middle, 28, 127, 16},
    {IDC_MENU_SUB_LEFT, From::Middle, 28, From::Middle, 54, 124, 20},
    {IDC_MENU_SUB_RIGHT_LABEL, From::Middle, 56, From::Middle, 86, 127, 16},
    {IDC_MENU_SUB_RIGHT, From::Middle, 86, From::Right, -4, 124, 20},
    {IDC_MENU_FONT, From::Left, 4, From::Middle, -2, 146, 21},
    {IDC_MENU_NO_IMAGES, From::Middle, 2, From::Right, -4, 147, 20},
    {IDC_MENU_BACKGROUND, From::Left, 4, From::Middle, -2, 169, 21},
    {IDC_MENU_HIGHLIGHT, From::Middle, 2, From::Right, -4, 169, 21},
};

#undef ICON_ROW
#undef MARGIN_ROW

void Enable(HWND dialog, int id, bool on) {
    EnableWindow(GetDlgItem(dialog, id), on ? TRUE : FALSE);
}

std::wstring ItemText(HWND dialog, int id, int maxChars) {
    std::wstring text(static_cast<size_t>(maxChars) + 1, L'\0');
    text.resize(GetDlgItemTextW(dialog, id, &text[0], maxChars + 1));
    return text;
}

class StartMenuDialog : public FullScreenDialog {
  public:
    explicit StartMenuDialog(const StartMenuLook& look) : look(look) {}
    StartMenuLook look;

  protected:
    const ControlPlace* Places(size_t* count) const override {
        switch (StartMenuLayout(ScreenWidth(), ScreenHeight())) {
        case DialogLayout::Square:
            *count = sizeof kSquarePlaces / sizeof kSquarePlaces[0];
            return kSquarePlaces;
        case DialogLayout::Portrait:
            *count = sizeof kPortraitPlaces / sizeof kPortraitPlaces[0];
            return kPortraitPlaces;
        default:
            *count = sizeof kLandscapePlaces / sizeof kLandscapePlaces[0];
            return kLandscapePlaces;
        }
    }
    void OnInit(HWND dialog) override {
        SetWindowTextW(dialog, Localized(IDS_START_MENU_SKIN));
        SetControlTexts(dialog, kTexts, sizeof kTexts / sizeof kTexts[0]);
        for (size_t i = 0; i < kStartMenuIconCount; ++i) {
            const IconRow& row = kIconRows[i];
            SetDlgItemTextW(dialog, row.label, Localized(row.text));
            SendDlgItemMessageW(dialog, row.edit, EM_LIMITTEXT, kPathChars, 0);
            SetDlgItemTextW(dialog, row.edit, look.icons[i].c_str());
        }
        SetDialogFonts(dialog, kHeadings, sizeof kHeadings / sizeof kHeadings[0]);
        for (size_t i = 0; i < kStartMenuMarginCount; ++i)
            SetDlgItemInt(dialog, kMarginBoxes[i], static_cast<UINT>(look.margins[i]), TRUE);
        CheckDlgButton(dialog, IDC_MENU_NO_IMAGES, look.useColors ? BST_CHECKED : BST_UNCHECKED);
        ApplyColorsRule(dialog);
    }
    void OnCommand(HWND dialog, WORD id, WORD code) override {
        if (code != BN_CLICKED)
            return;
        switch (id) {
        case IDOK:
            TakeFields(dialog);
            EndDialog(dialog, IDOK);
            return;
        case IDC_MENU_NO_IMAGES:
            ApplyColorsRule(dialog);
            return;
        case IDC_MENU_FONT:
            PickMenuFont(dialog);
            return;
        case IDC_MENU_BACKGROUND:
            EditColor(look.backgroundColor, dialog);
            return;
        case IDC_MENU_HIGHLIGHT:
            EditColor(look.highlightColor, dialog);
            return;
        }
        for (const IconRow& row : kIconRows) {
            std::wstring path;
            if (id == row.browse && BrowseGraphicsFile(dialog, path))
                SetDlgItemTextW(dialog, row.edit, path.c_str());
        }
    }

  private:
    // Without images the menu is drawn in the two colours: the icons and margins give way to
    // the colour buttons. The submenu arrow is drawn either way, so its row stays usable.
    static void ApplyColorsRule(HWND dialog) {
        const bool colors = IsDlgButtonChecked(dialog, IDC_MENU_NO_IMAGES) == BST_CHECKED;
        for (size_t i = 0; i < kRuledIconRows; ++i) {
            Enable(dialog, kIconRows[i].edit, !colors);
            Enable(dialog, kIconRows[i].browse, !colors);
        }
        for (int box : kMarginBoxes)
            Enable(dialog, box, !colors);
        Enable(dialog, IDC_MENU_BACKGROUND, colors);
        Enable(dialog, IDC_MENU_HIGHLIGHT, colors);
    }
    void TakeFields(HWND dialog) {
        for (size_t i = 0; i < kStartMenuIconCount; ++i)
            look.icons[i] = ItemText(dialog, kIconRows[i].edit, kPathChars);
        for (size_t i = 0; i < kStartMenuMarginCount; ++i)
            look.margins[i] = LeadingLong(ItemText(dialog, kMarginBoxes[i], kMarginChars).c_str());
        look.useColors = IsDlgButtonChecked(dialog, IDC_MENU_NO_IMAGES) == BST_CHECKED;
    }
    void PickMenuFont(HWND dialog) {
        FontRecord record = FontRecordOf(look.font);
        if (PickFont(record, dialog))
            look.font = FontKeysOf(record);
    }
};

} // namespace

bool EditStartMenu(StartMenuLook& look, HWND owner) {
    StartMenuLook cut = look;
    for (std::wstring& icon : cut.icons)
        icon = CutToBuffer(icon, kPathChars + 1);
    StartMenuDialog dialog(cut);
    if (dialog.Run(owner, kTemplates) != IDOK)
        return false;
    look = dialog.look;
    return true;
}

} // namespace cv2
