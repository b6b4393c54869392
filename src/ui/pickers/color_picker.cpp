#include "ui/pickers/color_picker.h"

#include "platform/device_colors.h"

#include <commctrl.h>

#include <cwchar>

#include "ids_ui.h"
#include "platform/shell.h"
#include "store/scale.h"
#include "store/screen.h"
#include "store/strings.h"
#include "ui/control_layout.h"
#include "ui/dialog_object.h"
#include "ui/off_screen_paint.h"

namespace cv2 {
namespace {

struct Channel {
    int slider;
    int edit;
    int shift; // bit position of the channel in a COLORREF
};
const Channel kChannels[] = {
    {IDC_COLOR_RED_SLIDER, IDC_COLOR_RED_EDIT, 0},
    {IDC_COLOR_GREEN_SLIDER, IDC_COLOR_GREEN_EDIT, 8},
    {IDC_COLOR_BLUE_SLIDER, IDC_COLOR_BLUE_EDIT, 16},
};

const ControlText kTexts[] = {
    {IDC_COLOR_RED_LABEL, IDS_COLOR_RED},
    {IDC_COLOR_GREEN_LABEL, IDS_COLOR_GREEN},
    {IDC_COLOR_BLUE_LABEL, IDS_COLOR_BLUE},
};

// One row per channel above the swatch: label, slider stretching with the screen, number box.
const ControlPlace kPlaces[] = {
    {IDC_COLOR_RED_LABEL, From::Left, 3, From::Left, 50, 9, 16},
    {IDC_COLOR_RED_SLIDER, From::Left, 50, From::Right, -50, 5, 24},
    {IDC_COLOR_RED_EDIT, From::Right, -46, From::Right, -4, 7, 20},
    {IDC_COLOR_GREEN_LABEL, From::Left, 3, From::Left, 50, 37, 16},
    {IDC_COLOR_GREEN_SLIDER, From::Left, 50, From::Right, -50, 33, 24},
    {IDC_COLOR_GREEN_EDIT, From::Right, -46, From::Right, -4, 35, 20},
    {IDC_COLOR_BLUE_LABEL, From::Left, 3, From::Left, 50, 65, 16},
    {IDC_COLOR_BLUE_SLIDER, From::Left, 50, From::Right, -50, 61, 24},
    {IDC_COLOR_BLUE_EDIT, From::Right, -46, From::Right, -4, 63, 20},
};

int SliderPos(HWND dlg, int slider) {
    return static_cast<int>(SendDlgItemMessageW(dlg, slider, TBM_GETPOS, 0, 0));
}

ColorRef ColorOfSliders(HWND dlg) {
    ColorRef c = 0;
    for (const Channel& ch : kChannels)
        c |= static_cast<ColorRef>(SliderPos(dlg, ch.slider) & 0xFF) << ch.shift;
    return c;
}

void InvalidatePreview(HWND dlg, const ColorPicker* self) {
    if (self)
        InvalidateRect(dlg, &self->preview, FALSE);
}

INT_PTR OnInitDialog(HWND dlg, const ColorPicker* self) {
    SHINITDLGINFO info = {SHIDIM_FLAGS, dlg, SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN};
    if (!SHInitDialog(&info))
        return E_FAIL;
    SetWindowTextW(dlg, Localized(IDS_COLOR_PICKER_TITLE));
    SetControlTexts(dlg, kTexts, sizeof kTexts / sizeof kTexts[0]);
    SetDialogFonts(dlg, nullptr, 0);
    const ColorRef color = self ? self->color : 0;
    for (const Channel& ch : kChannels) {
        const int value = static_cast<int>((color >> ch.shift) & 0xFF);
        SendDlgItemMessageW(dlg, ch.slider, TBM_SETRANGE, TRUE, MAKELPARAM(0, 255));
        SendDlgItemMessageW(dlg, ch.slider, TBM_SETPOS, TRUE, value);
        SetDlgItemInt(dlg, ch.edit, static_cast<UINT>(value), FALSE);
    }
    PlaceControls(dlg, kPlaces, sizeof kPlaces / sizeof kPlaces[0]);
    return TRUE;
}

void OnSliderMoved(HWND dlg, const ColorPicker* self, HWND slider) {
    for (const Channel& ch : kChannels) {
        if (GetDlgItem(dlg, ch.slider) != slider)
            continue;
        SetDlgItemInt(dlg, ch.edit, static_cast<UINT>(SliderPos(dlg, ch.slider)), FALSE);
        InvalidatePreview(dlg, self);
    }
}

void OnNumberChanged(HWND dlg, const ColorPicker* self, int edit) {
    for (const Channel& ch : kChannels) {
        if (ch.edit != edit)
            continue;
        wchar_t text[kChannelTextChars + 1] = {};
        GetDlgItemTextW(dlg, edit, text, kChannelTextChars + 1);
        SendDlgItemMessageW(dlg, ch.slider, TBM_SETPOS, TRUE, ChannelFromText(text));
        InvalidatePreview(dlg, self);
    }
}

void OnPaint(HWND dlg, const ColorPicker* self) {
    PaintOffScreen(dlg, [dlg, self](HDC mem, const RECT& client) {
        FillRect(mem, &client, DeviceStaticBrush());
        RECT swatch;
        if (self && IntersectRect(&swatch, &self->preview, &client)) {
            HBRUSH brush = CreateSolidBrush(ColorOfSliders(dlg));
            HGDIOBJ oldBrush = SelectObject(mem, brush);
            const RECT& p = self->preview;
            Rectangle(mem, p.left, p.top, p.right, p.bottom);
            SelectObject(mem, oldBrush);
            DeleteObject(brush);
        }
    });
}

void OnCommand(HWND dlg, ColorPicker* self, WPARAM wParam) {
    const int id = LOWORD(wParam);
    if (HIWORD(wParam) == EN_CHANGE) {
        OnNumberChanged(dlg, self, id);
    } else if (id == IDOK) {
        if (self)
            self->color = ColorOfSliders(dlg);
        EndDialog(dlg, IDOK);
    } else if (id == IDCANCEL) {
        EndDialog(dlg, IDCANCEL);
    }
}

INT_PTR CALLBACK ColorDialogProc(HWND dlg, UINT msg, WPARAM wParam, LPARAM lParam) {
    ColorPicker* self = DialogObject<ColorPicker>(dlg, msg, lParam);
    switch (msg) {
    case WM_INITDIALOG:
        return OnInitDialog(dlg, self);
    case WM_HSCROLL:
        OnSliderMoved(dlg, self, reinterpret_cast<HWND>(lParam));
        return TRUE;
    case WM_COMMAND:
        OnCommand(dlg, self, wParam);
        return TRUE;
    case WM_SIZE:
        PlaceControls(dlg, kPlaces, sizeof kPlaces / sizeof kPlaces[0]);
        return TRUE;
    case WM_ERASEBKGND:
        // Painting covers the whole client area from its off-screen copy.
        SetWindowLongPtrW(dlg, DWLP_MSGRESULT, 1);
        return TRUE;
    case WM_PAINT:
        OnPaint(dlg, self);
        return TRUE;
    case WM_CTLCOLORSTATIC:
        return StaticColors(reinterpret_cast<HDC>(wParam));
    }
    return FALSE;
}

} // namespace

ColorPicker::ColorPicker() {
    ReadScreenDensities();
    const PreviewBox box = ColorPreviewBox(g_dpiX, g_dpiY);
    preview = {box.left, box.top, box.right, box.bottom};
}

bool ColorPicker::Run(HWND parent) {
    INITCOMMONCONTROLSEX icc = {sizeof icc, ICC_BAR_CLASSES};
    InitCommonControlsEx(&icc);
    const INT_PTR result =
        DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_COLOR_PICKER), parent,
                        ColorDialogProc, reinterpret_cast<LPARAM>(this));
    return result == IDOK;
}

bool EditColor(ColorRef& color, HWND parent) {
    ColorPicker picker;
    picker.color = color;
    if (!picker.Run(parent))
        return false;
    color = picker.color;
    return true;
}

} // namespace cv2
