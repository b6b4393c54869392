#include "ui/backgrounds/background_dialog.h"

#include "ids_ui.h"
#include "ui/backgrounds/background_paint.h"
#include "store/strings.h"
#include "ui/control_layout.h"
#include "ui/dialog_layout.h"
#include "ui/dialog_object.h"
#include "ui/pickers/color_picker.h"

namespace cv2 {
namespace {

// The fill modes in list order: the selected index is the mode.
const StringId kModeNames[kBackgroundModeCount] = {IDS_MODE_SCALED, IDS_MODE_TILED, IDS_MODE_COLOR,
                                                   IDS_MODE_GRADIENT, IDS_MODE_NONE};

const ControlText kTexts[] = {
    {IDC_BACKGROUND_MODE_LABEL, IDS_BACKGROUND_MODE},
    {IDC_BACKGROUND_SOLID_LABEL, IDS_SOLID_COLOR},
    {IDC_BACKGROUND_SOLID, IDS_CHANGE},
    {IDC_BACKGROUND_GRADIENT_LABEL, IDS_GRADIENT_COLORS},
    {IDC_BACKGROUND_THEME_COLORS, IDS_USE_TODAY_COLORS},
    {IDC_BACKGROUND_LEFT, IDS_LEFT_COLOR},
    {IDC_BACKGROUND_RIGHT, IDS_RIGHT_COLOR},
};

// One column: the mode list, then the solid colour's row, then the gradient's controls. The
// list's height includes its drop-down part.
const ControlPlace kPlaces[] = {
    {IDC_BACKGROUND_MODE_LABEL, From::Left, 4, From::Right, -4, 6, 16},
    {IDC_BACKGROUND_MODE, From::Left, 4, From::Right, -4, 24, 120},
    {IDC_BACKGROUND_SOLID_LABEL, From::Left, 4, From::Middle, -3, 60, 16},
    {IDC_BACKGROUND_SOLID, From::Middle, 3, From::Right, -4, 56, 23},
    {IDC_BACKGROUND_GRADIENT_LABEL, From::Left, 4, From::Right, -4, 92, 16},
    {IDC_BACKGROUND_THEME_COLORS, From::Left, 4, From::Right, -4, 110, 18},
    {IDC_BACKGROUND_LEFT, From::Left, 4, From::Middle, -3, 134, 23},
    {IDC_BACKGROUND_RIGHT, From::Middle, 3, From::Right, -4, 134, 23},
};
// Under the controls, the fill as the bar would paint it with the chosen colours.
const ControlPlace kPreviewPlace = {0, From::Left, 4, From::Right, -4, 166, 24};

void Enable(HWND dlg, int id, bool on) {
    EnableWindow(GetDlgItem(dlg, id), on ? TRUE : FALSE);
}

// Each colour control is usable only where the fill uses it; the gradient's own two colours
// give way to the Today theme's when the box is checked.
void UpdateEnabled(HWND dlg, const BackgroundFill& fill) {
    const bool gradient = fill.mode == kModeGradient;
    Enable(dlg, IDC_BACKGROUND_SOLID, fill.mode == kModeColor);
    Enable(dlg, IDC_BACKGROUND_THEME_COLORS, gradient);
    Enable(dlg, IDC_BACKGROUND_LEFT, gradient && fill.useThemeColors == 0);
    Enable(dlg, IDC_BACKGROUND_RIGHT, gradient && fill.useThemeColors == 0);
}

void InvalidatePreview(HWND dlg) {
    RECT client;
    GetClientRect(dlg, &client);
    const RECT strip = BackgroundPreviewRect(client.right);
    InvalidateRect(dlg, &strip, TRUE);
}

// Draws the fill into the strip: the solid colour, or the gradient from the left colour to the
// right one. Pictures, no fill and the device's theme colours are not known here, so those
// leave the strip empty.
void PaintPreview(HWND dlg, const BackgroundDialog* self) {
    PAINTSTRUCT ps;
    HDC dc = BeginPaint(dlg, &ps);
    RECT client;
    GetClientRect(dlg, &client);
    const RECT strip = BackgroundPreviewRect(client.right);
    const BackgroundFill* fill = self ? &self->fill : nullptr;
    if (fill && fill->mode == kModeColor) {
        PaintSolid(dc, strip, fill->solidColor);
        FrameRect(dc, &strip, GetSysColorBrush(COLOR_WINDOWFRAME));
    } else if (fill && fill->mode == kModeGradient && fill->useThemeColors == 0) {
        PaintGradient(dc, strip, fill->leftColor, fill->rightColor);
        FrameRect(dc, &strip, GetSysColorBrush(COLOR_WINDOWFRAME));
    }
    EndPaint(dlg, &ps);
}

void OnModeChanged(HWND dlg, BackgroundFill& fill) {
    const LRESULT sel = SendDlgItemMessageW(dlg, IDC_BACKGROUND_MODE, CB_GETCURSEL, 0, 0);
    // A mode outside the list selects nothing; it stays as it was until one is picked.
    if (sel != CB_ERR)
        fill.mode = static_cast<int32_t>(sel);
    UpdateEnabled(dlg, fill);
    InvalidatePreview(dlg);
}

void OnThemeColorsClicked(HWND dlg, BackgroundFill& fill) {
    fill.useThemeColors = IsDlgButtonChecked(dlg, IDC_BACKGROUND_THEME_COLORS) == BST_CHECKED;
    UpdateEnabled(dlg, fill);
    InvalidatePreview(dlg);
}

void PickColor(HWND dlg, ColorRef& color) {
    EditColor(color, dlg);
    InvalidatePreview(dlg);
}

INT_PTR OnInitDialog(HWND dlg, BackgroundDialog* self) {
    if (!InitFullScreenDialog(dlg))
        return E_FAIL;
    if (!self)
        return TRUE;
    BackgroundFill& fill = self->fill;
    SetWindowTextW(dlg, Localized(IDS_BACKGROUND_SETTINGS));
    SetControlTexts(dlg, kTexts, sizeof kTexts / sizeof kTexts[0]);
    SetDialogFonts(dlg, nullptr, 0);
    HWND list = GetDlgItem(dlg, IDC_BACKGROUND_MODE);
    for (StringId name : kModeNames)
        SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Localized(name)));
    SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(fill.mode), 0);
    CheckDlgButton(dlg, IDC_BACKGROUND_THEME_COLORS,
                   fill.useThemeColors ? BST_CHECKED : BST_UNCHECKED);
    OnModeChanged(dlg, fill);
    PlaceControls(dlg, kPlaces, sizeof kPlaces / sizeof kPlaces[0]);
    return TRUE;
}

void OnCommand(HWND dlg, BackgroundDialog* self, WORD id, WORD code) {
    if (id == IDOK || id == IDCANCEL) {
        EndDialog(dlg, id);
        return;
    }
    if (!self)
        return;
    BackgroundFill& fill = self->fill;
    switch (id) {
    case IDC_BACKGROUND_MODE:
        if (code == CBN_SELCHANGE)
            OnModeChanged(dlg, fill);
        break;
    case IDC_BACKGROUND_THEME_COLORS:
        if (code == BN_CLICKED)
            OnThemeColorsClicked(dlg, fill);
        break;
    case IDC_BACKGROUND_SOLID:
        PickColor(dlg, fill.solidColor);
        break;
    case IDC_BACKGROUND_LEFT:
        PickColor(dlg, fill.leftColor);
        break;
    case IDC_BACKGROUND_RIGHT:
        PickColor(dlg, fill.rightColor);
        break;
    }
}

INT_PTR CALLBACK BackgroundDialogProc(HWND dlg, UINT msg, WPARAM wParam, LPARAM lParam) {
    BackgroundDialog* self = DialogObject<BackgroundDialog>(dlg, msg, lParam);
    switch (msg) {
    case WM_INITDIALOG:
        return OnInitDialog(dlg, self);
    case WM_COMMAND:
        OnCommand(dlg, self, LOWORD(wParam), HIWORD(wParam));
        return TRUE;
    case WM_SIZE:
        PlaceControls(dlg, kPlaces, sizeof kPlaces / sizeof kPlaces[0]);
        InvalidateRect(dlg, nullptr, TRUE);
        return TRUE;
    case WM_PAINT:
        PaintPreview(dlg, self);
        return TRUE;
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        return StaticColors(reinterpret_cast<HDC>(wParam));
    }
    return FALSE;
}

} // namespace

RECT BackgroundPreviewRect(int clientWidth) {
    return PlaceRect(kPreviewPlace, clientWidth);
}

bool BackgroundDialog::Run(HWND parent) {
    const INT_PTR result =
        DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_BACKGROUND), parent,
                        BackgroundDialogProc, reinterpret_cast<LPARAM>(this));
    return result == IDOK;
}

bool EditBackground(BackgroundFill& fill, HWND parent) {
    BackgroundDialog dialog;
    dialog.fill = fill;
    if (!dialog.Run(parent))
        return false;
    fill = dialog.fill;
    return true;
}

} // namespace cv2
