#include "themes/overrides_page.h"

#include "ui/child_controls.h"

#include <algorithm>

#include "ids_themes.h"
#include "store/scale.h"
#include "themes/overrides_values.h"
#include "ui/shared_fonts.h"
#include "ui/text_extent.h"

namespace cv2 {
namespace {

// Layout in 96-dpi units, from the page's top left.
constexpr int kLeft = 3;
constexpr int kTop = 10;
constexpr int kBoxWidth = 234;
constexpr int kBoxHeight = 20;
constexpr int kBoxGap = 2;
constexpr int kListIndent = 18; // the font list lines up with the check box's text
constexpr int kListWidth = 150;
constexpr int kListDrop = 120;

const ChildControl kControls[ThemeOverridesPage::Count] = {
    {L"BUTTON", BS_AUTOCHECKBOX | BS_MULTILINE | WS_TABSTOP, 0, IDS_OVERRIDE_SOUNDS,
     IDC_OVERRIDE_SOUNDS},
    {L"BUTTON", BS_AUTOCHECKBOX | BS_MULTILINE | WS_TABSTOP, 0, IDS_OVERRIDE_COLORS,
     IDC_OVERRIDE_COLORS},
    {L"BUTTON", BS_AUTOCHECKBOX | BS_MULTILINE | WS_TABSTOP, 0, IDS_OVERRIDE_FONTS,
     IDC_OVERRIDE_FONTS},
    {L"COMBOBOX", CBS_DROPDOWNLIST | CBS_SORT | WS_BORDER | WS_VSCROLL | WS_TABSTOP, 0, StringId(0),
     IDC_OVERRIDE_FONT_LIST},
};

int CALLBACK AddFamily(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM param) {
    reinterpret_cast<std::vector<std::wstring>*>(param)->push_back(font->lfFaceName);
    return 1;
}

bool Checked(HWND box) {
    return SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void SetChecked(HWND box, bool on) {
    SendMessageW(box, BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
}

// A check box's height for its text: one row, or as many lines as a long text needs.
int CheckBoxHeight(HWND box, int width) {
    const int textRoom = width - GetSystemMetrics(SM_CXMENUCHECK) - ScaleX(6);
    const int textWidth = WindowTextWidth(box);
    if (textRoom <= 0 || textWidth <= textRoom)
        return Scale(kBoxHeight);
    const int lines = (textWidth + textRoom - 1) / textRoom;
    return std::max(Scale(kBoxHeight), lines * LineHeight(box) + Scale(4));
}

} // namespace

std::vector<std::wstring> ScreenFontFamilies() {
    std::vector<std::wstring> families;
    HDC dc = GetDC(nullptr);
    EnumFontFamiliesW(dc, nullptr, AddFamily, reinterpret_cast<LPARAM>(&families));
    ReleaseDC(nullptr, dc);
    return families;
}

void FillFontList(HWND list, const std::vector<std::wstring>& families) {
    for (const std::wstring& family : families) {
        if (!IsOfferedFontFamily(family.c_str()))
            continue;
        const LPARAM name = reinterpret_cast<LPARAM>(family.c_str());
        if (SendMessageW(list, CB_FINDSTRINGEXACT, WPARAM(-1), name) == CB_ERR)
            SendMessageW(list, CB_ADDSTRING, 0, name);
    }
}

ThemeOverridesPage::ThemeOverridesPage() : SettingsPage(IDS_THEME_OVERRIDES) {}

void ThemeOverridesPage::Create(HWND host) {
    CreateChildControls(host, kControls, Count, m_controls);
    OnSize(Area());
    FillFontList(m_controls[FontList], ScreenFontFamilies());
}

void ThemeOverridesPage::OnSize(const RECT&) {
    if (!m_controls[Sounds])
        return;
    const int left = Area().left + ScaleX(kLeft);
    const int width = ScaleX(kBoxWidth);
    int y = Area().top + Scale(kTop);
    for (int i = Sounds; i <= Fonts; ++i) {
        // A text wider than its box wraps, and the controls below move clear of it.
        const int height = CheckBoxHeight(m_controls[i], width);
        SetWindowPos(m_controls[i], nullptr, left, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
        y += height + Scale(kBoxGap);
    }
    SetWindowPos(m_controls[FontList], nullptr, left + ScaleX(kListIndent), y, ScaleX(kListWidth),
                 Scale(kBoxHeight + kListDrop), SWP_NOZORDER | SWP_NOACTIVATE);
}

void ThemeOverridesPage::Show(bool visible) {
    ShowWindows(m_controls, Count, visible);
}

bool ThemeOverridesPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (!m_controls[Fonts] || reinterpret_cast<HWND>(lParam) != m_controls[Fonts] ||
        HIWORD(wParam) != BN_CLICKED)
        return false;
    EnableWindow(m_controls[FontList], Checked(m_controls[Fonts]));
    return true;
}

void ThemeOverridesPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    if (!doc || !m_controls[Sounds])
        return;
    const OverrideValues v = ReadOverrideValues(*doc);
    SetChecked(m_controls[Sounds], v.useSounds);
    SetChecked(m_controls[Colors], v.useColors);
    SetChecked(m_controls[Fonts], v.customFont);
    // A name that is not in the list leaves it without a selection; Save then writes an empty
    // name. The user sees that the font is gone and chooses one that exists.
    const LRESULT index = SendMessageW(m_controls[FontList], CB_FINDSTRINGEXACT, WPARAM(-1),
                                       reinterpret_cast<LPARAM>(v.fontName.c_str()));
    SendMessageW(m_controls[FontList], CB_SETCURSEL, index == CB_ERR ? WPARAM(-1) : index, 0);
    EnableWindow(m_controls[FontList], v.customFont);
}

void ThemeOverridesPage::Save(IniDocument* target) {
    if ((!target && !Doc()) || !m_controls[Sounds])
        return;
    OverrideValues v;
    v.useSounds = Checked(m_controls[Sounds]);
    v.useColors = Checked(m_controls[Colors]);
    v.customFont = Checked(m_controls[Fonts]);
    v.fontName.clear();
    const LRESULT index = SendMessageW(m_controls[FontList], CB_GETCURSEL, 0, 0);
    if (index != CB_ERR) {
        const LRESULT length = SendMessageW(m_controls[FontList], CB_GETLBTEXTLEN, index, 0);
        if (length > 0) {
            std::wstring text(static_cast<size_t>(length) + 1, L'\0');
            SendMessageW(m_controls[FontList], CB_GETLBTEXT, index,
                         reinterpret_cast<LPARAM>(&text[0]));
            v.fontName = text.c_str();
        }
    }
    WriteOverrideValues(SaveTarget(target), v);
}

} // namespace cv2
