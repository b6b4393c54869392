#include "ui/backgrounds/button_images_dialog.h"

#include "ids_ui.h"
#include "store/paths.h"
#include "store/scale.h"
#include "store/screen.h"
#include "store/strings.h"
#include "ui/backgrounds/background_dialog.h"
#include "ui/backgrounds/graphics_browse.h"
#include "ui/control_layout.h"
#include "ui/dialog_layout.h"
#include "ui/dialog_object.h"
#include "ui/pickers/color_picker.h"
#include "ui/pickers/font_picker.h"

namespace cv2 {
namespace {

const DialogTemplates kTemplates = {IDD_BUTTON_IMAGES_PORTRAIT, IDD_BUTTON_IMAGES_LANDSCAPE, 0};

// Longest margin text read.
constexpr int kMarginChars = 100;

// A picture row: its path box, the browse button beside it and the record's path.
struct ImageRow {
    int edit;
    int browse;
    std::wstring ButtonImages::*path;
};
const ImageRow kImageRows[] = {
    {IDC_BUTTONS_NORMAL, IDC_BUTTONS_NORMAL_BROWSE, &ButtonImages::normalImage},
    {IDC_BUTTONS_PRESSED, IDC_BUTTONS_PRESSED_BROWSE, &ButtonImages::pressedImage},
    {IDC_BUTTONS_DISABLED, IDC_BUTTONS_DISABLED_BROWSE, &ButtonImages::disabledImage},
};

struct MarginBox {
    int edit;
    int32_t ButtonImages::*margin;
};
const MarginBox kMarginBoxes[] = {
    {IDC_BUTTONS_LEFT, &ButtonImages::leftMargin},
    {IDC_BUTTONS_RIGHT, &ButtonImages::rightMargin},
};

const ControlText kTexts[] = {
    {IDC_BUTTONS_HEADING, IDS_BUTTON_IMAGES},
    {IDC_BUTTONS_NORMAL_LABEL, IDS_NORMAL_IMAGE},
    {IDC_BUTTONS_PRESSED_LABEL, IDS_PRESSED_IMAGE},
    {IDC_BUTTONS_DISABLED_LABEL, IDS_DISABLED_IMAGE},
    {IDC_BUTTONS_LEFT_LABEL, IDS_LEFT_MARGIN},
    {IDC_BUTTONS_RIGHT_LABEL, IDS_RIGHT_MARGIN},
    {IDC_BUTTONS_FONT, IDS_FONT_BUTTON},
    {IDC_BUTTONS_PRESSED_COLOR, IDS_PRESSED_COLOR},
    {IDC_BUTTONS_BACKGROUND, IDS_BACKGROUND_SETTINGS},
};
const int kBoldLabels[] = {IDC_BUTTONS_HEADING};

// Both layouts put each picture's label beside its path box and browse button; they differ
// below the pictures.
const ControlPlace kImagePlaces[] = {
    {IDC_BUTTONS_HEADING, From::Left, 4, From::Right, -4, 4, 16},
    {IDC_BUTTONS_NORMAL_LABEL, From::Left, 4, From::Left, 58, 26, 16},
    {IDC_BUTTONS_NORMAL, From::Left, 60, From::Right, -31, 23, 21},
    {IDC_BUTTONS_NORMAL_BROWSE, From::Right, -28, From::Right, -4, 23, 21},
    {IDC_BUTTONS_PRESSED_LABEL, From::Left, 4, From::Left, 58, 51, 16},
    {IDC_BUTTONS_PRESSED, From::Left, 60, From::Right, -31, 48, 21},
    {IDC_BUTTONS_PRESSED_BROWSE, From::Right, -28, From::Right, -4, 48, 21},
    {IDC_BUTTONS_DISABLED_LABEL, From::Left, 4, From::Left, 58, 76, 16},
    {IDC_BUTTONS_DISABLED, From::Left, 60, From::Right, -31, 73, 21},
    {IDC_BUTTONS_DISABLED_BROWSE, From::Right, -28, From::Right, -4, 73, 21},
};

// Portrait (and square) screens: each margin's label over its box, then the buttons in two
// rows.
const ControlPlace kPortraitPlaces[] = {
    {IDC_BUTTONS_LEFT_LABEL, From::Left, 4, From::Middle, -3, 102, 16},
    {IDC_BUTTONS_LEFT, From::Left, 4, From::Middle, -3, 118, 21},
    {IDC_BUTTONS_RIGHT_LABEL, From::Middle, 3, From::Right, -4, 102, 16},
    {IDC_BUTTONS_RIGHT, From::Middle, 3, From::Right, -4, 118, 21},
    {IDC_BUTTONS_FONT, From::Left, 4, From::Middle, -3, 146, 23},
    {IDC_BUTTONS_PRESSED_COLOR, From::Middle, 3, From::Right, -4, 146, 23},
    {IDC_BUTTONS_BACKGROUND, From::Left, 4, From::Right, -4, 173, 23},
};

// Landscape screens: both margins on one row, the three buttons on the next.
const ControlPlace kLandscapePlaces[] = {
    {IDC_BUTTONS_LEFT_LABEL, From::Left, 4, From::Left, 84, 103, 16},
    {IDC_BUTTONS_LEFT, From::Left, 86, From::Middle, -8, 100, 21},
    {IDC_BUTTONS_RIGHT_LABEL, From::Middle, 4, From::Middle, 84, 103, 16},
    {IDC_BUTTONS_RIGHT, From::Middle, 86, From::Right, -4, 100, 21},
    {IDC_BUTTONS_FONT, From::Left, 4, From::Left, 70, 130, 23},
    {IDC_BUTTONS_PRESSED_COLOR, From::Left, 74, From::Middle, 6, 130, 23},
    {IDC_BUTTONS_BACKGROUND, From::Middle, 10, From::Right, -4, 130, 23},
};

bool PortraitScreen() {
    return IsPortraitWidth(ScreenWidth());
}

void PlaceAll(HWND dlg) {
    PlaceControls(dlg, kImagePlaces, sizeof kImagePlaces / sizeof kImagePlaces[0]);
    if (PortraitScreen())
        PlaceControls(dlg, kPortraitPlaces, sizeof kPortraitPlaces / sizeof kPortraitPlaces[0]);
    else
        PlaceControls(dlg, kLandscapePlaces, sizeof kLandscapePlaces / sizeof kLandscapePlaces[0]);
}

// Puts the record's values and the labels on the controls, replacing anything typed since.
void Refill(HWND dlg, const ButtonImages& record) {
    SetControlTexts(dlg, kTexts, sizeof kTexts / sizeof kTexts[0]);
    for (const ImageRow& row : kImageRows)
        SetDlgItemTextW(dlg, row.edit, (record.*row.path).c_str());
    for (const MarginBox& box : kMarginBoxes)
        SetDlgItemInt(dlg, box.edit, static_cast<UINT>(record.*box.margin), TRUE);
}

// Lays the dialog out for the screen's shape and refills it; done on every size change, so that
// a turned screen shows the record again in the other layout.
void Relayout(HWND dlg, const ButtonImagesDialog* self) {
    PlaceAll(dlg);
    if (self)
        Refill(dlg, self->record);
}

INT_PTR OnInitDialog(HWND dlg, const ButtonImagesDialog* self) {
    if (!InitFullScreenDialog(dlg))
        return E_FAIL;
    SetWindowTextW(dlg, Localized(IDS_BUTTON_IMAGES));
    SetDialogFonts(dlg, kBoldLabels, sizeof kBoldLabels / sizeof kBoldLabels[0]);
    for (const ImageRow& row : kImageRows)
        SendDlgItemMessageW(dlg, row.edit, EM_LIMITTEXT, kBackgroundPathChars - 1, 0);
    Relayout(dlg, self);
    return TRUE;
}

std::wstring ItemText(HWND dlg, int id, int maxChars) {
    std::wstring text(static_cast<size_t>(maxChars) + 1, L'\0');
    const UINT got = GetDlgItemTextW(dlg, id, &text[0], maxChars + 1);
    text.resize(got);
    return text;
}

void OnOk(HWND dlg, ButtonImages& record) {
    for (const ImageRow& row : kImageRows)
        record.*row.path = ItemText(dlg, row.edit, kBackgroundPathChars - 1);
    for (const MarginBox& box : kMarginBoxes)
        record.*box.margin =
            static_cast<int32_t>(LeadingLong(ItemText(dlg, box.edit, kMarginChars).c_str()));
    EndDialog(dlg, IDOK);
}

void PickButtonFont(HWND dlg, FontRecord& font) {
    FontRecord choice = font;
    if (!PickFont(choice, dlg))
        return;
    font.Create(choice.face, choice.size, choice.style, true);
    font.color = choice.color;
    font.shadowColor = choice.shadowColor;
}

void Browse(HWND dlg, int edit) {
    std::wstring path;
    if (BrowseGraphicsFile(dlg, path))
        SetDlgItemTextW(dlg, edit, path.c_str());
}

void OnCommand(HWND dlg, ButtonImagesDialog* self, WORD id) {
    if (id == IDCANCEL) {
        EndDialog(dlg, IDCANCEL);
        return;
    }
    if (!self) {
        if (id == IDOK)
            EndDialog(dlg, IDOK);
        return;
    }
    ButtonImages& record = self->record;
    switch (id) {
    case IDOK:
        OnOk(dlg, record);
        return;
    case IDC_BUTTONS_FONT:
        PickButtonFont(dlg, record.font);
        return;
    case IDC_BUTTONS_PRESSED_COLOR:
        EditColor(record.pressedColor, dlg);
        return;
    case IDC_BUTTONS_BACKGROUND:
        EditBackground(record.background, dlg);
        return;
    }
    for (const ImageRow& row : kImageRows) {
        if (row.browse == id)
            Browse(dlg, row.edit);
    }
}

INT_PTR CALLBACK ButtonImagesProc(HWND dlg, UINT msg, WPARAM wParam, LPARAM lParam) {
    ButtonImagesDialog* self = DialogObject<ButtonImagesDialog>(dlg, msg, lParam);
    switch (msg) {
    case WM_INITDIALOG:
        return OnInitDialog(dlg, self);
    case WM_COMMAND:
        if (HIWORD(wParam) == BN_CLICKED)
            OnCommand(dlg, self, LOWORD(wParam));
        return TRUE;
    case WM_SIZE:
        Relayout(dlg, self);
        return TRUE;
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        return StaticColors(reinterpret_cast<HDC>(wParam));
    }
    return FALSE;
}

} // namespace

void ButtonImagesDialog::Fill(const ButtonImages& values) {
    record.font.Create(values.font.face, values.font.size, values.font.style, true);
    record.font.shadowX = values.font.shadowX;
    record.font.shadowY = values.font.shadowY;
    record.font.color = values.font.color;
    record.font.shadowColor = values.font.shadowColor;
    record.pressedColor = values.pressedColor;
    record.normalImage = CutToBuffer(values.normalImage, kBackgroundPathChars);
    record.pressedImage = CutToBuffer(values.pressedImage, kBackgroundPathChars);
    record.disabledImage = CutToBuffer(values.disabledImage, kBackgroundPathChars);
    record.background = values.background;
    record.leftMargin = values.leftMargin;
    record.rightMargin = values.rightMargin;
}

bool ButtonImagesDialog::Run(HWND parent) {
    return RunDialog(parent, kTemplates, ButtonImagesProc, reinterpret_cast<LPARAM>(this)) == IDOK;
}

void ButtonImagesDialog::CopyTo(ButtonImages& values) const {
    values = record;
}

bool EditButtonImages(ButtonImages& values, HWND parent) {
    ButtonImagesDialog dialog;
    dialog.Fill(values);
    if (!dialog.Run(parent))
        return false;
    dialog.CopyTo(values);
    return true;
}

} // namespace cv2
