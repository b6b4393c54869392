#include "themes/overrides_page.h"

#include <algorithm>

#include "ui/child_controls.h"

#include "ids_themes.h"
#include "themes/overrides_values.h"
#include "ui/control_layout.h"
#include "ui/text_extent.h"

namespace cv2 {
namespace {

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

// Places in 96-dpi units inside the page's area, in the order of the controls: the three boxes
// one under another, the font list under the last, lined up with its text.
constexpr int kLeft = 3;
constexpr int kBoxRight = kLeft + 234;
constexpr int kBox = 20;
constexpr int kListLeft = kLeft + 18;
constexpr int kListDrop = 120;
const ControlPlace kPlaces[ThemeOverridesPage::Count] = {
    {IDC_OVERRIDE_SOUNDS, From::Left, kLeft, From::Left, kBoxRight, 10, kBox},
    {IDC_OVERRIDE_COLORS, From::Left, kLeft, From::Left, kBoxRight, 32, kBox},
    {IDC_OVERRIDE_FONTS, From::Left, kLeft, From::Left, kBoxRight, 54, kBox},
    {IDC_OVERRIDE_FONT_LIST, From::Left, kListLeft, From::Left, kListLeft + 150, 76,
     kBox + kListDrop},
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

// A translated box text may need more lines than the box is high: the box grows by the extra
// lines and everything under it moves down as far.
void ThemeOverridesPage::OnSize(const RECT&) {
    if (!m_controls[Sounds])
        return;
    const RECT area = Area();
    int drop = 0;
    for (int i = 0; i < Count; ++i) {
        RECT r = PlaceRectIn(kPlaces[i], area);
        OffsetRect(&r, 0, drop);
        if (i != FontList) {
            const int extra =
                WrappedLabelHeight(m_controls[i], r.right - r.left) - LineHeight(m_controls[i]);
            r.bottom += std::max(0, extra);
            drop += std::max(0, extra);
        }
        MoveWindow(m_controls[i], r.left, r.top, r.right - r.left, r.bottom - r.top, TRUE);
    }
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
