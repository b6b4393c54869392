#include "ui/pickers/font_picker.h"

#include <commctrl.h>

#include <string>

#include "ids_ui.h"
#include "platform/shell.h"
#include "store/scale.h"
#include "store/strings.h"
#include "ui/pickers/color_picker.h"
#include "ui/control_layout.h"

namespace cv2 {
namespace {

// What the dialog edits: a copy of the record's values, taken back only on OK.
struct FontChoice {
    std::wstring face;
    int size = 0;
    ColorRef color = 0;
    ColorRef shadowColor = 0;
    bool styles[6] = {}; // one per style word, in their order
    FontRecord sample;   // the choice as it is drawn, for the sample strip
};

// The check box of each style word, in the same order.
const int kStyleBoxes[6] = {IDC_FONT_BOLD,      IDC_FONT_ITALIC, IDC_FONT_UNDERLINE,
                            IDC_FONT_STRIKEOUT, IDC_FONT_SHADOW, IDC_FONT_GLOW};

const ControlText kTexts[] = {
    {IDC_FONT_NAME_LABEL, IDS_FONT_NAME},     {IDC_FONT_SIZE_LABEL, IDS_FONT_SIZE},
    {IDC_FONT_COLOR, IDS_FONT_COLOR},         {IDC_FONT_SHADOW_COLOR, IDS_FONT_SHADOW_COLOR},
    {IDC_FONT_STYLE_LABEL, IDS_FONT_STYLE},   {IDC_FONT_BOLD, IDS_FONT_BOLD},
    {IDC_FONT_ITALIC, IDS_FONT_ITALIC},       {IDC_FONT_UNDERLINE, IDS_FONT_UNDERLINE},
    {IDC_FONT_STRIKEOUT, IDS_FONT_STRIKEOUT}, {IDC_FONT_SHADOW, IDS_FONT_SHADOW},
    {IDC_FONT_GLOW, IDS_FONT_GLOW},
};
const int kBoldLabels[] = {IDC_FONT_NAME_LABEL, IDC_FONT_SIZE_LABEL, IDC_FONT_STYLE_LABEL};

// Combo box heights include their drop-down lists.
const ControlPlace kTallPlaces[] = {
    {IDC_FONT_NAME_LABEL, From::Left, 4, From::Right, -4, 4, 16},
    {IDC_FONT_FACE, From::Left, 4, From::Right, -4, 20, 150},
    {IDC_FONT_SIZE_LABEL, From::Left, 4, From::Middle, -3, 48, 16},
    {IDC_FONT_SIZE, From::Left, 4, From::Middle, -3, 64, 150},
    {IDC_FONT_COLOR, From::Middle, 3, From::Right, -4, 42, 23},
    {IDC_FONT_SHADOW_COLOR, From::Middle, 3, From::Right, -4, 67, 23},
    {IDC_FONT_STYLE_LABEL, From::Left, 4, From::Right, -4, 98, 16},
    {IDC_FONT_BOLD, From::Left, 4, From::Middle, -3, 116, 18},
    {IDC_FONT_ITALIC, From::Middle, 3, From::Right, -4, 116, 18},
    {IDC_FONT_UNDERLINE, From::Left, 4, From::Middle, -3, 136, 18},
    {IDC_FONT_STRIKEOUT, From::Middle, 3, From::Right, -4, 136, 18},
    {IDC_FONT_SHADOW, From::Left, 4, From::Middle, -3, 156, 18},
    {IDC_FONT_GLOW, From::Middle, 3, From::Right, -4, 156, 18},
};
const int kTallSampleTop = 182;

// Landscape and square screens: face, size and colours on the left, styles on the right.
const ControlPlace kWidePlaces[] = {
    {IDC_FONT_NAME_LABEL, From::Left, 4, From::Middle, -3, 4, 16},
    {IDC_FONT_FACE, From::Left, 4, From::Middle, -3, 20, 150},
    {IDC_FONT_SIZE_LABEL, From::Left, 4, From::Middle, -3, 46, 16},
    {IDC_FONT_SIZE, From::Left, 4, From::Middle, -3, 62, 150},
    {IDC_FONT_COLOR, From::Left, 4, From::Middle, -3, 90, 23},
    {IDC_FONT_SHADOW_COLOR, From::Left, 4, From::Middle, -3, 116, 23},
    {IDC_FONT_STYLE_LABEL, From::Middle, 3, From::Right, -4, 4, 16},
    {IDC_FONT_BOLD, From::Middle, 3, From::Right, -4, 22, 18},
    {IDC_FONT_ITALIC, From::Middle, 3, From::Right, -4, 42, 18},
    {IDC_FONT_UNDERLINE, From::Middle, 3, From::Right, -4, 62, 18},
    {IDC_FONT_STRIKEOUT, From::Middle, 3, From::Right, -4, 82, 18},
    {IDC_FONT_SHADOW, From::Middle, 3, From::Right, -4, 102, 18},
    {IDC_FONT_GLOW, From::Middle, 3, From::Right, -4, 122, 18},
};
const int kWideSampleTop = 146;

FontChoice* ChoiceOf(HWND dlg) {
    return reinterpret_cast<FontChoice*>(GetWindowLongPtrW(dlg, DWLP_USER));
}

void PlaceAll(HWND dlg) {
    if (UseWideLayout())
        PlaceControls(dlg, kWidePlaces, sizeof kWidePlaces / sizeof kWidePlaces[0]);
    else
        PlaceControls(dlg, kTallPlaces, sizeof kTallPlaces / sizeof kTallPlaces[0]);
}

// The strip under the controls where the choice is drawn; empty when the screen has no room.
RECT SampleRect(HWND dlg) {
    RECT client;
    GetClientRect(dlg, &client);
    const ControlPlace strip = {
        0, From::Left, 4, From::Right, -4, UseWideLayout() ? kWideSampleTop : kTallSampleTop, 44};
    RECT r = PlaceRect(strip, client.right);
    if (r.bottom > client.bottom - Scale(4))
        r.bottom = client.bottom - Scale(4);
    if (r.bottom - r.top < Scale(20))
        SetRectEmpty(&r);
    return r;
}

BOOL CALLBACK AddFamilyProc(const LOGFONTW* lf, const TEXTMETRICW*, DWORD, LPARAM combo) {
    // Vertical variants of a family are not faces the bar can use.
    if (lf->lfFaceName[0] == L'@')
        return TRUE;
    const HWND box = reinterpret_cast<HWND>(combo);
    const LPARAM name = reinterpret_cast<LPARAM>(lf->lfFaceName);
    if (SendMessageW(box, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), name) == CB_ERR)
        SendMessageW(box, CB_ADDSTRING, 0, name);
    return TRUE;
}

void FillFaces(HWND dlg, const std::wstring& face) {
    HWND box = GetDlgItem(dlg, IDC_FONT_FACE);
    HDC dc = GetDC(dlg);
    EnumFontFamiliesW(dc, nullptr, reinterpret_cast<FONTENUMPROCW>(AddFamilyProc),
                      reinterpret_cast<LPARAM>(box));
    ReleaseDC(dlg, dc);
    const LRESULT at = SendMessageW(box, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                    reinterpret_cast<LPARAM>(face.c_str()));
    if (at != CB_ERR)
        SendMessageW(box, CB_SETCURSEL, static_cast<WPARAM>(at), 0);
    SetWindowTextW(box, face.c_str());
}

void FillSizes(HWND dlg, int size) {
    HWND box = GetDlgItem(dlg, IDC_FONT_SIZE);
    for (int points : kFontSizes)
        SendMessageW(box, CB_ADDSTRING, 0,
                     reinterpret_cast<LPARAM>(std::to_wstring(points).c_str()));
    SetWindowTextW(box, std::to_wstring(size).c_str());
}

// The text of a combo box, also in the middle of a selection change (when its edit still holds
// the old text).
std::wstring ComboText(HWND dlg, int id, int maxChars, bool selectionChanging) {
    HWND box = GetDlgItem(dlg, id);
    std::wstring text(static_cast<size_t>(maxChars) + 1, L'\0');
    const LRESULT sel = SendMessageW(box, CB_GETCURSEL, 0, 0);
    if (selectionChanging && sel != CB_ERR &&
        SendMessageW(box, CB_GETLBTEXTLEN, static_cast<WPARAM>(sel), 0) <= maxChars) {
        SendMessageW(box, CB_GETLBTEXT, static_cast<WPARAM>(sel),
                     reinterpret_cast<LPARAM>(&text[0]));
    } else {
        GetWindowTextW(box, &text[0], maxChars + 1);
    }
    text.resize(wcslen(text.c_str()));
    return text;
}

uint32_t StyleOfBoxes(HWND dlg) {
    uint32_t style = 0;
    for (int i = 0; i < 6; ++i) {
        if (IsDlgButtonChecked(dlg, kStyleBoxes[i]) == BST_CHECKED)
            style |= kStyleWords[i].flag;
    }
    return style;
}

// Reads the controls into the choice (OK) or only into the sample (while editing).
void ReadControls(HWND dlg, FontChoice& choice, bool selectionChanging) {
    choice.face = ComboText(dlg, IDC_FONT_FACE, kFaceReadChars, selectionChanging);
    const std::wstring size = ComboText(dlg, IDC_FONT_SIZE, 15, selectionChanging);
    choice.size = static_cast<int>(LeadingLong(size.c_str()));
    const uint32_t style = StyleOfBoxes(dlg);
    for (int i = 0; i < 6; ++i)
        choice.styles[i] = (style & kStyleWords[i].flag) != 0;
}

uint32_t StyleOfChoice(const FontChoice& choice) {
    uint32_t style = 0;
    for (int i = 0; i < 6; ++i) {
        if (choice.styles[i])
            style |= kStyleWords[i].flag;
    }
    return style;
}

void RefreshSample(HWND dlg, bool selectionChanging) {
    FontChoice* choice = ChoiceOf(dlg);
    if (!choice)
        return;
    FontChoice now = {};
    ReadControls(dlg, now, selectionChanging);
    // Huge sizes would only draw a blur; the strip shows at most its own height.
    const int shown = now.size > 36 ? 36 : now.size;
    choice->sample.Create(now.face.c_str(), shown, StyleOfChoice(now), false);
    choice->sample.color = choice->color;
    choice->sample.shadowColor = choice->shadowColor;
    const RECT strip = SampleRect(dlg);
    InvalidateRect(dlg, &strip, TRUE);
}

void PaintSample(HWND dlg) {
    PAINTSTRUCT ps;
    HDC dc = BeginPaint(dlg, &ps);
    FontChoice* choice = ChoiceOf(dlg);
    RECT strip = SampleRect(dlg);
    if (choice && !IsRectEmpty(&strip)) {
        // A light text is shown on dark ground and a dark one on white, as on the bar.
        const ColorRef c = choice->color;
        const int lightness = (RedOf(c) * 30 + GreenOf(c) * 59 + BlueOf(c) * 11) / 100;
        HBRUSH ground = CreateSolidBrush(lightness > 128 ? RGB(64, 64, 64) : RGB(255, 255, 255));
        FillRect(dc, &strip, ground);
        DeleteObject(ground);
        FrameRect(dc, &strip, GetSysColorBrush(COLOR_WINDOWFRAME));
        const std::wstring text =
            choice->sample.face + std::wstring(L" ") + std::to_wstring(choice->sample.size);
        RECT inner = strip;
        InflateRect(&inner, -Scale(4), -Scale(2));
        choice->sample.Draw(dc, text.c_str(), &inner,
                            DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS,
                            true);
    }
    EndPaint(dlg, &ps);
}

INT_PTR OnInitDialog(HWND dlg, FontChoice* choice) {
    SHINITDLGINFO info = {SHIDIM_FLAGS, dlg, SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN};
    if (!SHInitDialog(&info))
        return E_FAIL;
    SetWindowLongPtrW(dlg, DWLP_USER, reinterpret_cast<LONG_PTR>(choice));
    SetWindowTextW(dlg, Localized(IDS_FONT_PICKER_TITLE));
    SetControlTexts(dlg, kTexts, sizeof kTexts / sizeof kTexts[0]);
    SetDialogFonts(dlg, kBoldLabels, sizeof kBoldLabels / sizeof kBoldLabels[0]);
    FillFaces(dlg, choice->face);
    FillSizes(dlg, choice->size);
    for (int i = 0; i < 6; ++i)
        CheckDlgButton(dlg, kStyleBoxes[i], choice->styles[i] ? BST_CHECKED : BST_UNCHECKED);
    PlaceAll(dlg);
    RefreshSample(dlg, false);
    return TRUE;
}

// Shadow and glow exclude each other: checking one clears the other.
void OnStyleClicked(HWND dlg, int id) {
    if (IsDlgButtonChecked(dlg, id) != BST_CHECKED)
        return;
    if (id == IDC_FONT_SHADOW)
        CheckDlgButton(dlg, IDC_FONT_GLOW, BST_UNCHECKED);
    else if (id == IDC_FONT_GLOW)
        CheckDlgButton(dlg, IDC_FONT_SHADOW, BST_UNCHECKED);
}

void OnCommand(HWND dlg, WPARAM wParam) {
    FontChoice* choice = ChoiceOf(dlg);
    if (!choice)
        return;
    const int id = LOWORD(wParam);
    const int code = HIWORD(wParam);
    switch (id) {
    case IDOK:
        ReadControls(dlg, *choice, false);
        EndDialog(dlg, IDOK);
        return;
    case IDCANCEL:
        EndDialog(dlg, IDCANCEL);
        return;
    case IDC_FONT_COLOR:
        EditColor(choice->color, dlg);
        break;
    case IDC_FONT_SHADOW_COLOR:
        EditColor(choice->shadowColor, dlg);
        break;
    case IDC_FONT_FACE:
    case IDC_FONT_SIZE:
        if (code != CBN_SELCHANGE && code != CBN_EDITCHANGE)
            return;
        RefreshSample(dlg, code == CBN_SELCHANGE);
        return;
    default:
        if (id < IDC_FONT_BOLD || id > IDC_FONT_GLOW)
            return;
        OnStyleClicked(dlg, id);
        break;
    }
    RefreshSample(dlg, false);
}

INT_PTR CALLBACK FontDialogProc(HWND dlg, UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_INITDIALOG:
        return OnInitDialog(dlg, reinterpret_cast<FontChoice*>(lParam));
    case WM_COMMAND:
        OnCommand(dlg, wParam);
        return TRUE;
    case WM_SIZE:
        PlaceAll(dlg);
        InvalidateRect(dlg, nullptr, TRUE);
        return TRUE;
    case WM_PAINT:
        PaintSample(dlg);
        return TRUE;
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
        return StaticColors(reinterpret_cast<HDC>(wParam));
    }
    return FALSE;
}

} // namespace

bool PickFont(FontRecord& record, HWND parent) {
    FontChoice choice;
    choice.face = record.face;
    choice.size = record.size;
    choice.color = record.color;
    choice.shadowColor = record.shadowColor;
    for (int i = 0; i < 6; ++i)
        choice.styles[i] = (record.style & kStyleWords[i].flag) != 0;
    const INT_PTR result =
        DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_FONT_PICKER), parent,
                        FontDialogProc, reinterpret_cast<LPARAM>(&choice));
    if (result != IDOK)
        return false;
    record.Create(choice.face.c_str(), choice.size, StyleOfChoice(choice), false);
    record.color = choice.color;
    record.shadowColor = choice.shadowColor;
    return true;
}

} // namespace cv2
