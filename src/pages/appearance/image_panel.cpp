#include "pages/appearance/image_panel.h"

#include "ids_editor.h"
#include "platform/device_colors.h"
#include "store/strings.h"
#include "ui/backgrounds/graphics_browse.h"
#include "ui/control_layout.h"
#include "ui/image/image_draw.h"
#include "ui/image/image_loader.h"
#include "ui/image/image_scale.h"

namespace cv2 {
namespace {

// The editor window keeps its panel under this property, so a page finds it from the only
// window it is given.
const wchar_t kPanelProperty[] = L"CV2ImagePanel";

// The device colour the page host paints pages on.
const int kPageGround = 25;

struct Row {
    int label;
    int path;
    int browse;
    int preview;
};
const Row kRows[2] = {
    {IDC_PANEL_FIRST_LABEL, IDC_PANEL_FIRST_PATH, IDC_PANEL_FIRST_BROWSE, IDC_PANEL_FIRST_PREVIEW},
    {IDC_PANEL_SECOND_LABEL, IDC_PANEL_SECOND_PATH, IDC_PANEL_SECOND_BROWSE,
     IDC_PANEL_SECOND_PREVIEW},
};

struct Part {
    int id;
    unsigned part;
};
const Part kParts[] = {
    {IDC_PANEL_FIRST_LABEL, kPanelRows},
    {IDC_PANEL_FIRST_PATH, kPanelRows},
    {IDC_PANEL_FIRST_BROWSE, kPanelRows},
    {IDC_PANEL_FIRST_PREVIEW, kPanelRows | kPanelPreviews},
    {IDC_PANEL_SECOND_LABEL, kPanelRows | kPanelSecondRow},
    {IDC_PANEL_SECOND_PATH, kPanelRows | kPanelSecondRow},
    {IDC_PANEL_SECOND_BROWSE, kPanelRows | kPanelSecondRow},
    {IDC_PANEL_SECOND_PREVIEW, kPanelRows | kPanelSecondRow | kPanelPreviews},
    {IDC_PANEL_LIST, kPanelList},
    {IDC_PANEL_SETTINGS, kPanelSettings},
    {IDC_PANEL_CUSTOM_COLORS, kPanelCustomColors},
};

const ControlText kTexts[] = {
    {IDC_PANEL_SETTINGS, IDS_PANEL_SETTINGS},
    {IDC_PANEL_CUSTOM_COLORS, IDS_PANEL_CUSTOM_COLORS},
};

// Portrait screens: the rows one under the other, each preview under its path box.
const ControlPlace kTallPlaces[] = {
    {IDC_PANEL_FIRST_LABEL, From::Left, 4, From::Right, -4, 26, 16},
    {IDC_PANEL_FIRST_PATH, From::Left, 4, From::Right, -31, 42, 21},
    {IDC_PANEL_FIRST_BROWSE, From::Right, -28, From::Right, -4, 42, 21},
    {IDC_PANEL_FIRST_PREVIEW, From::Left, 4, From::Right, -4, 66, 36},
    {IDC_PANEL_SECOND_LABEL, From::Left, 4, From::Right, -4, 106, 16},
    {IDC_PANEL_SECOND_PATH, From::Left, 4, From::Right, -31, 122, 21},
    {IDC_PANEL_SECOND_BROWSE, From::Right, -28, From::Right, -4, 122, 21},
    {IDC_PANEL_SECOND_PREVIEW, From::Left, 4, From::Right, -4, 146, 36},
    {IDC_PANEL_LIST, From::Left, 4, From::Right, -4, 188, 100},
    {IDC_PANEL_SETTINGS, From::Left, 4, From::Middle, -3, 214, 23},
    {IDC_PANEL_CUSTOM_COLORS, From::Middle, 3, From::Right, -4, 215, 21},
};

// Landscape and square screens: the rows on the left two thirds, their previews in the third
// beside them (or, on a page without previews, these rows across the whole width). A path is the
// longer thing to read, so its box takes the larger share.
const ControlPlace kWideRows[] = {
    {IDC_PANEL_FIRST_LABEL, From::Left, 4, From::TwoThirds, -4, 26, 16},
    {IDC_PANEL_FIRST_PATH, From::Left, 4, From::TwoThirds, -31, 42, 21},
    {IDC_PANEL_FIRST_BROWSE, From::TwoThirds, -28, From::TwoThirds, -4, 42, 21},
    {IDC_PANEL_SECOND_LABEL, From::Left, 4, From::TwoThirds, -4, 68, 16},
    {IDC_PANEL_SECOND_PATH, From::Left, 4, From::TwoThirds, -31, 84, 21},
    {IDC_PANEL_SECOND_BROWSE, From::TwoThirds, -28, From::TwoThirds, -4, 84, 21},
};
const ControlPlace kWideOthers[] = {
    {IDC_PANEL_FIRST_PREVIEW, From::TwoThirds, 4, From::Right, -4, 26, 37},
    {IDC_PANEL_SECOND_PREVIEW, From::TwoThirds, 4, From::Right, -4, 68, 37},
    {IDC_PANEL_LIST, From::Left, 4, From::Middle, -4, 112, 100},
    {IDC_PANEL_SETTINGS, From::Left, 4, From::Middle, -4, 138, 23},
    {IDC_PANEL_CUSTOM_COLORS, From::Middle, 4, From::Right, -4, 112, 21},
};

std::wstring WindowTextOf(HWND control) {
    wchar_t text[kPanelPathChars + 1] = {};
    GetWindowTextW(control, text, kPanelPathChars + 1);
    return text;
}

// The largest size of the picture that fits the box keeping its shape; small pictures keep
// their own size.
SIZE FitSize(int width, int height, const RECT& box) {
    const int boxW = box.right - box.left, boxH = box.bottom - box.top;
    SIZE s = {width, height};
    if (s.cx > boxW) {
        s.cy = static_cast<LONG>(static_cast<long long>(s.cy) * boxW / s.cx);
        s.cx = boxW;
    }
    if (s.cy > boxH) {
        s.cx = static_cast<LONG>(static_cast<long long>(s.cx) * boxH / s.cy);
        s.cy = boxH;
    }
    if (s.cx < 1)
        s.cx = 1;
    if (s.cy < 1)
        s.cy = 1;
    return s;
}

} // namespace

ImagePanel* PanelOf(HWND host) {
    return host ? static_cast<ImagePanel*>(GetPropW(host, kPanelProperty)) : nullptr;
}

void ImagePanel::Attach(HWND dialog) {
    m_dialog = dialog;
    SetPropW(dialog, kPanelProperty, this);
    SetControlTexts(dialog, kTexts, sizeof kTexts / sizeof kTexts[0]);
    for (const Row& row : kRows)
        SendDlgItemMessageW(dialog, row.path, EM_LIMITTEXT, kPanelPathChars, 0);
    HideAll();
    Layout();
}

void ImagePanel::Detach() {
    for (LoadedImage& image : m_previews)
        image.Reset();
    if (m_dialog && GetPropW(m_dialog, kPanelProperty) == this)
        RemovePropW(m_dialog, kPanelProperty);
    m_dialog = nullptr;
}

void ImagePanel::Layout() {
    if (UseWideLayout()) {
        PlaceControls(m_dialog, kWideOthers, sizeof kWideOthers / sizeof kWideOthers[0]);
        PlaceWideRows();
    } else {
        PlaceControls(m_dialog, kTallPlaces, sizeof kTallPlaces / sizeof kTallPlaces[0]);
    }
    // The previews are made for their boxes' sizes, which may have changed.
    RefreshPreviews();
}

// Beside the previews, or across their room when the page hides them. The window's own flag
// is read, not IsWindowVisible: the editor may itself be hidden while a page is set up.
void ImagePanel::PlaceWideRows() {
    const LONG_PTR style = GetWindowLongPtrW(GetDlgItem(m_dialog, kRows[0].preview), GWL_STYLE);
    const bool besidePreviews = (style & WS_VISIBLE) != 0;
    for (ControlPlace place : kWideRows) {
        if (!besidePreviews) {
            // Every edge at the previews' side moves to the right edge.
            place.leftFrom = place.leftFrom == From::TwoThirds ? From::Right : place.leftFrom;
            place.rightFrom = place.rightFrom == From::TwoThirds ? From::Right : place.rightFrom;
        }
        PlaceControls(m_dialog, &place, 1);
    }
    // A moved control that had not painted yet would keep the bits it was moved with.
    RedrawWindow(m_dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void ImagePanel::ShowParts(unsigned parts, bool visible) {
    for (const Part& p : kParts) {
        if (p.part & parts)
            ShowWindow(GetDlgItem(m_dialog, p.id), visible ? SW_SHOW : SW_HIDE);
    }
    if ((parts & (kPanelRows | kPanelPreviews)) && UseWideLayout())
        PlaceWideRows();
}

void ImagePanel::SetRowLabels(const wchar_t* first, const wchar_t* second) {
    SetDlgItemTextW(m_dialog, kRows[0].label, first ? first : L"");
    SetDlgItemTextW(m_dialog, kRows[1].label, second ? second : L"");
}

void ImagePanel::SetPath(int row, const std::wstring& path) {
    const std::wstring cut = path.substr(0, kPanelPathChars);
    // The box reports the new text as a change; the preview is loaded once, here.
    m_settingPath = true;
    SetDlgItemTextW(m_dialog, kRows[row & 1].path, cut.c_str());
    m_settingPath = false;
    LoadPreview(row & 1);
}

std::wstring ImagePanel::Path(int row) const {
    return WindowTextOf(GetDlgItem(m_dialog, kRows[row & 1].path));
}

void ImagePanel::RefreshPreviews() {
    for (int row = 0; row < 2; ++row) {
        if (IsWindowVisible(GetDlgItem(m_dialog, kRows[row].preview)))
            LoadPreview(row);
    }
}

void ImagePanel::SetListItems(const std::vector<std::wstring>& items, int selected) {
    HWND list = GetDlgItem(m_dialog, IDC_PANEL_LIST);
    SendMessageW(list, CB_RESETCONTENT, 0, 0);
    for (const std::wstring& item : items)
        SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
    SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(selected), 0);
}

int ImagePanel::ListSelection() const {
    return static_cast<int>(SendDlgItemMessageW(m_dialog, IDC_PANEL_LIST, CB_GETCURSEL, 0, 0));
}

bool ImagePanel::CustomColors() const {
    return IsDlgButtonChecked(m_dialog, IDC_PANEL_CUSTOM_COLORS) == BST_CHECKED;
}

void ImagePanel::SetCustomColors(bool checked) {
    CheckDlgButton(m_dialog, IDC_PANEL_CUSTOM_COLORS, checked ? BST_CHECKED : BST_UNCHECKED);
}

bool ImagePanel::IsSettingsClick(WPARAM wParam) const {
    return LOWORD(wParam) == IDC_PANEL_SETTINGS && HIWORD(wParam) == BN_CLICKED;
}

bool ImagePanel::IsListChange(WPARAM wParam) const {
    return LOWORD(wParam) == IDC_PANEL_LIST && HIWORD(wParam) == CBN_SELCHANGE;
}

bool ImagePanel::IsCustomColorsClick(WPARAM wParam) const {
    return LOWORD(wParam) == IDC_PANEL_CUSTOM_COLORS && HIWORD(wParam) == BN_CLICKED;
}

bool ImagePanel::OnCommand(WPARAM wParam) {
    const int id = LOWORD(wParam);
    for (int row = 0; row < 2; ++row) {
        if (id == kRows[row].browse && HIWORD(wParam) == BN_CLICKED) {
            Browse(row);
            return true;
        }
        if (id == kRows[row].path && HIWORD(wParam) == EN_CHANGE) {
            if (!m_settingPath)
                LoadPreview(row);
            return true;
        }
    }
    return false;
}

void ImagePanel::Browse(int row) {
    std::wstring path;
    if (BrowseGraphicsFile(m_dialog, path))
        SetPath(row, path);
}

// A preview is the picture shrunk to fit its box; anything that cannot be read (missing,
// truncated or malformed files) leaves the box empty.
void ImagePanel::LoadPreview(int row) {
    HWND box = GetDlgItem(m_dialog, kRows[row].preview);
    LoadedImage& image = m_previews[row];
    image.Reset();
    const std::wstring path = Path(row);
    RECT r = {};
    GetClientRect(box, &r);
    if (!path.empty() && r.right > 0 && r.bottom > 0) {
        const PixelImage pixels = ReadImagePixels(path);
        if (!pixels.Empty()) {
            const SIZE s = FitSize(pixels.width, pixels.height, r);
            image = LoadedImage::FromPixels(ScaleImage(pixels, s.cx, s.cy));
        }
    }
    InvalidateRect(box, nullptr, TRUE);
}

bool ImagePanel::DrawItem(const DRAWITEMSTRUCT& item) {
    for (int row = 0; row < 2; ++row) {
        if (static_cast<int>(item.CtlID) != kRows[row].preview)
            continue;
        // On the page's own ground, so an empty preview is no box at all.
        HBRUSH ground = CreateSolidBrush(DeviceSysColor(kPageGround));
        FillRect(item.hDC, &item.rcItem, ground);
        DeleteObject(ground);
        const LoadedImage& image = m_previews[row];
        if (!image.IsEmpty()) {
            const int y =
                item.rcItem.top + (item.rcItem.bottom - item.rcItem.top - image.Height()) / 2;
            DrawImage(item.hDC, image, item.rcItem.left, y);
        }
        return true;
    }
    return false;
}

} // namespace cv2
