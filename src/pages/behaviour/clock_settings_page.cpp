#include "pages/behaviour/clock_settings_page.h"

#include "ui/child_controls.h"

#include <algorithm>

#include "ids_behaviour.h"
#include "pages/behaviour/clock_locale.h"
#include "store/scale.h"
#include "ui/shared_fonts.h"
#include "ui/text_extent.h"

namespace cv2 {
namespace {

// In creation order, which is also the tab order.
const ChildControl kControls[ClockSettingsPage::Count] = {
    {L"COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, 0, StringId(0), IDC_CLOCK_STYLE},
    {L"STATIC", SS_LEFT, 0, IDS_CLOCK_TIME_FORMAT, IDC_CLOCK_TIME_LABEL},
    {L"EDIT", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 0, StringId(0), IDC_CLOCK_TIME},
    {L"STATIC", SS_LEFT, 0, IDS_CLOCK_DATE_FORMAT, IDC_CLOCK_DATE_LABEL},
    {L"EDIT", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 0, StringId(0), IDC_CLOCK_DATE},
    {L"BUTTON", BS_AUTOCHECKBOX | WS_TABSTOP, 0, IDS_CLOCK_SHOW_TIME, IDC_CLOCK_SHOW_TIME},
    {L"BUTTON", BS_AUTOCHECKBOX | WS_TABSTOP, 0, IDS_CLOCK_SHOW_DATE, IDC_CLOCK_SHOW_DATE},
    {L"STATIC", SS_LEFT, 0, IDS_CLOCK_NOTE, IDC_CLOCK_NOTE},
};

// Layout in 96-dpi units from the page's top: one column, the labels as wide as their texts.
constexpr int kMargin = 6;
constexpr int kStyleTop = 10;
constexpr int kTimeTop = 38;
constexpr int kDateTop = 64;
constexpr int kChecksTop = 90;
constexpr int kNoteTop = 114;
constexpr int kRowHeight = 20;
constexpr int kDropHeight = 80;
constexpr int kNoteLines = 3;

void Place(HWND control, int x, int y, int width, int height) {
    SetWindowPos(control, nullptr, x, y, std::max(0, width), std::max(0, height),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

ClockSettingsPage::ClockSettingsPage(LocaleReader readLocale)
    : SettingsPage(IDS_CLOCK_SETTINGS),
      m_readLocale(readLocale ? readLocale : UserLocaleTimeFacts) {}

void ClockSettingsPage::Create(HWND host) {
    CreateChildControls(host, kControls, Count, m_controls);
    SendMessageW(m_controls[Style], CB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(Localized(IDS_CLOCK_STANDARD)));
    SendMessageW(m_controls[Style], CB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(Localized(IDS_CLOCK_SMALL)));
    SendMessageW(m_controls[Time], EM_LIMITTEXT, kPictureChars - 1, 0);
    SendMessageW(m_controls[Date], EM_LIMITTEXT, kPictureChars - 1, 0);
    OnSize(Area());
}

void ClockSettingsPage::OnSize(const RECT&) {
    if (!m_controls[Style])
        return;
    const RECT& area = Area();
    const int left = area.left + ScaleX(kMargin);
    const int width = (area.right - area.left) - 2 * ScaleX(kMargin);
    const auto Top = [&area](int units) { return static_cast<int>(area.top) + Scale(units); };
    const int row = Scale(kRowHeight);
    const int labelWidth =
        std::max(WindowTextWidth(m_controls[TimeLabel]), WindowTextWidth(m_controls[DateLabel])) +
        ScaleX(4);
    const int editLeft = left + labelWidth;
    const int labelDrop = Scale(3); // labels sit on the edit boxes' text line

    Place(m_controls[Style], left, Top(kStyleTop), width, row + Scale(kDropHeight));
    Place(m_controls[TimeLabel], left, Top(kTimeTop) + labelDrop, labelWidth, row);
    Place(m_controls[Time], editLeft, Top(kTimeTop), width - labelWidth, row);
    Place(m_controls[DateLabel], left, Top(kDateTop) + labelDrop, labelWidth, row);
    Place(m_controls[Date], editLeft, Top(kDateTop), width - labelWidth, row);
    Place(m_controls[ShowTime], left, Top(kChecksTop), width / 2, row);
    Place(m_controls[ShowDate], left + width / 2, Top(kChecksTop), width - width / 2, row);
    Place(m_controls[Note], left, Top(kNoteTop), width,
          kNoteLines * LineHeight(m_controls[Note]) + Scale(2));
}

bool ClockSettingsPage::StandardClock() const {
    return SendMessageW(m_controls[Style], CB_GETCURSEL, 0, 0) == 0;
}

void ClockSettingsPage::FollowClockStyle() {
    const bool shown = m_visible && StandardClock();
    ShowWindows(&m_controls[ShowTime], 2, shown);
}

void ClockSettingsPage::Show(bool visible) {
    m_visible = visible;
    ShowWindows(m_controls, Count, visible);
    FollowClockStyle();
}

bool ClockSettingsPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (!m_controls[Style] || reinterpret_cast<HWND>(lParam) != m_controls[Style] ||
        HIWORD(wParam) != CBN_SELCHANGE)
        return false;
    FollowClockStyle();
    return true;
}

void ClockSettingsPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    if (!doc || !m_controls[Style])
        return;
    const ClockValues v = ReadClockValues(*doc, m_readLocale());
    SendMessageW(m_controls[Style], CB_SETCURSEL, v.normalClock ? 0 : 1, 0);
    SendMessageW(m_controls[ShowTime], BM_SETCHECK, v.showTime ? BST_CHECKED : BST_UNCHECKED, 0);
    SendMessageW(m_controls[ShowDate], BM_SETCHECK, v.showDate ? BST_CHECKED : BST_UNCHECKED, 0);
    SetWindowTextW(m_controls[Time], v.timeFormat.c_str());
    SetWindowTextW(m_controls[Date], v.dateFormat.c_str());
    // Goes through the host like a user's choice, so the check boxes follow it.
    SendMessageW(GetParent(m_controls[Style]), WM_COMMAND,
                 MAKEWPARAM(IDC_CLOCK_STYLE, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(m_controls[Style]));
}

void ClockSettingsPage::Save(IniDocument* target) {
    if ((!target && !Doc()) || !m_controls[Style])
        return;
    ClockValues v;
    v.normalClock = StandardClock();
    v.showTime = SendMessageW(m_controls[ShowTime], BM_GETCHECK, 0, 0) == BST_CHECKED;
    v.showDate = SendMessageW(m_controls[ShowDate], BM_GETCHECK, 0, 0) == BST_CHECKED;
    wchar_t text[kPictureChars] = {};
    GetWindowTextW(m_controls[Time], text, kPictureChars);
    v.timeFormat = text;
    GetWindowTextW(m_controls[Date], text, kPictureChars);
    v.dateFormat = text;
    WriteClockValues(SaveTarget(target), v);
}

void ClockSettingsPage::OnDestroy() {
    for (HWND& control : m_controls) {
        if (control && IsWindow(control))
            DestroyWindow(control);
        control = nullptr;
    }
}

} // namespace cv2
