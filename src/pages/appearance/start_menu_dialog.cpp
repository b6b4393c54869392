#include "pages/appearance/start_menu_dialog.h"

#include <vector>

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

// Where a layout puts the icon rows: each row a label, its path box and its browse button,
// `height` high, the rows `step` apart from `top`, ending `right` from `rightFrom`.
struct IconRows {
    int top;
    int step;
    int height;
    From rightFrom;
    int right;
};
// The label column's width.
constexpr int kIconLabelWidth = 84;

// Where a layout puts the two margin rows: each a heading over "Left:" and "Right:" with their
// boxes, `boxHeight` high, the sublevel row `step` below the first-level one at `top`. From the
// left, `x` holds six columns: where the left label starts, the left box starts and ends, the right
// label starts, and the right box starts and ends; the headings end `headingRight` from
// `headingRightFrom`.
struct MarginRows {
    int top;
    int step;
    int boxHeight;
    const int* x;
    From headingRightFrom;
    int headingRight;
};

// The margin controls of one level, in the order of the heading, left label and box, right label
// and box.
struct MarginLevel {
    int heading;
    int leftLabel;
    int left;
    int rightLabel;
    int right;
};
const MarginLevel kMarginLevels[] = {
    {IDC_MENU_FIRST_MARGINS, IDC_MENU_LEFT_LABEL, IDC_MENU_LEFT, IDC_MENU_RIGHT_LABEL,
     IDC_MENU_RIGHT},
    {IDC_MENU_SUB_MARGINS, IDC_MENU_SUB_LEFT_LABEL, IDC_MENU_SUB_LEFT, IDC_MENU_SUB_RIGHT_LABEL,
     IDC_MENU_SUB_RIGHT},
};

// The margin columns of portrait and landscape screens, and of the narrower square ones.
constexpr int kMarginColumns[6] = {4, 34, 66, 70, 102, 134};
constexpr int kSquareMarginColumns[6] = {4, 30, 58, 61, 95, 120};

// Portrait: every row under the one before.
constexpr IconRows kPortraitIcons = {4, 22, 20, From::Right, -4};
constexpr MarginRows kPortraitMargins = {116, 40, 20, kMarginColumns, From::Right, -4};
const ControlPlace kPortraitPlaces[] = {
    {IDC_MENU_FONT, From::Left, 4, From::Middle, -3, 198, 23},
    {IDC_MENU_NO_IMAGES, From::Middle, 3, From::Right, -4, 200, 20},
    {IDC_MENU_BACKGROUND, From::Left, 4, From::Middle, -3, 225, 23},
    {IDC_MENU_HIGHLIGHT, From::Middle, 3, From::Right, -4, 225, 23},
};

// Landscape: the icons across the whole width, then the margins on the left half and the
// buttons on the right half.
constexpr IconRows kLandscapeIcons = {2, 20, 19, From::Right, -4};
constexpr MarginRows kLandscapeMargins = {103, 37, 19, kMarginColumns, From::Middle, -4};
const ControlPlace kLandscapePlaces[] = {
    {IDC_MENU_FONT, From::Middle, 4, From::Right, -4, 104, 20},
    {IDC_MENU_BACKGROUND, From::Middle, 4, From::Right, -4, 126, 20},
    {IDC_MENU_HIGHLIGHT, From::Middle, 4, From::Right, -4, 148, 20},
    {IDC_MENU_NO_IMAGES, From::Middle, 4, From::Right, -4, 171, 17},
};

// Square: the icons, then the margins on the left and the buttons in a column on the right.
constexpr IconRows kSquareIcons = {2, 19, 19, From::Right, -4};
constexpr MarginRows kSquareMargins = {99, 37, 19, kSquareMarginColumns, From::Left, 122};
const ControlPlace kSquarePlaces[] = {
    {IDC_MENU_FONT, From::Left, 124, From::Right, -4, 99, 20},
    {IDC_MENU_BACKGROUND, From::Left, 124, From::Right, -4, 121, 20},
    {IDC_MENU_HIGHLIGHT, From::Left, 124, From::Right, -4, 143, 20},
    {IDC_MENU_NO_IMAGES, From::Left, 124, From::Right, -4, 166, 17},
};

void AddIconPlaces(const IconRows& icons, std::vector<ControlPlace>& places) {
    for (size_t i = 0; i < kStartMenuIconCount; ++i) {
        const IconRow& row = kIconRows[i];
        const int top = icons.top + static_cast<int>(i) * icons.step;
        places.push_back({row.label, From::Left, 4, From::Left, 4 + kIconLabelWidth, top + 3, 16});
        places.push_back({row.edit, From::Left, 6 + kIconLabelWidth, icons.rightFrom,
                          icons.right - 27, top, icons.height});
        places.push_back({row.browse, icons.rightFrom, icons.right - 24, icons.rightFrom,
                          icons.right, top, icons.height});
    }
}

// The labels sit 3 pixels lower than the boxes, so their text lines up with the boxes' text.
void AddMarginPlaces(const MarginRows& m, std::vector<ControlPlace>& places) {
    int top = m.top;
    for (const MarginLevel& level : kMarginLevels) {
        const int row = top + 16;
        places.push_back(
            {level.heading, From::Left, 4, m.headingRightFrom, m.headingRight, top, 16});
        places.push_back({level.leftLabel, From::Left, m.x[0], From::Left, m.x[1], row + 3, 16});
        places.push_back({level.left, From::Left, m.x[1], From::Left, m.x[2], row, m.boxHeight});
        places.push_back({level.rightLabel, From::Left, m.x[3], From::Left, m.x[4], row + 3, 16});
        places.push_back({level.right, From::Left, m.x[4], From::Left, m.x[5], row, m.boxHeight});
        top += m.step;
    }
}

// Every control's place in a layout: the icon rows, the margin rows, then the buttons.
template <size_t N>
std::vector<ControlPlace> LayoutPlaces(const IconRows& icons, const MarginRows& margins,
                                       const ControlPlace (&buttons)[N]) {
    std::vector<ControlPlace> places;
    AddIconPlaces(icons, places);
    AddMarginPlaces(margins, places);
    places.insert(places.end(), buttons, buttons + N);
    return places;
}

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
    // The layout of the screen's shape, chosen again at every size (the screen may turn).
    const ControlPlace* Places(size_t* count) const override {
        switch (StartMenuLayout(ScreenWidth(), ScreenHeight())) {
        case DialogLayout::Square:
            m_places = LayoutPlaces(kSquareIcons, kSquareMargins, kSquarePlaces);
            break;
        case DialogLayout::Portrait:
            m_places = LayoutPlaces(kPortraitIcons, kPortraitMargins, kPortraitPlaces);
            break;
        default:
            m_places = LayoutPlaces(kLandscapeIcons, kLandscapeMargins, kLandscapePlaces);
            break;
        }
        *count = m_places.size();
        return m_places.data();
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

    mutable std::vector<ControlPlace> m_places; // of the layout last chosen
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
