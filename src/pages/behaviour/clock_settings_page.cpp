#include "pages/behaviour/clock_settings_page.h"

#include "ui/child_controls.h"

#include "ids_behaviour.h"
#include "pages/behaviour/clock_locale.h"
#include "ui/control_layout.h"

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

// Places in 96-dpi units inside the page's area, in the order of the controls: one column, the
// labels on the edit boxes' text line, the two check boxes side by side.
constexpr int kMargin = 6;
constexpr int kLabelRight = 80; // room for "Time Format:" and "Date Format:" on one line
constexpr int kRow = 20;
constexpr int kDropHeight = 80;
constexpr int kNoteHeight = 42; // three lines of the page's text
const ControlPlace kPlaces[ClockSettingsPage::Count] = {
    {IDC_CLOCK_STYLE, From::Left, kMargin, From::Right, -kMargin, 10, kRow + kDropHeight},
    {IDC_CLOCK_TIME_LABEL, From::Left, kMargin, From::Left, kLabelRight, 41, kRow},
    {IDC_CLOCK_TIME, From::Left, kLabelRight, From::Right, -kMargin, 38, kRow},
    {IDC_CLOCK_DATE_LABEL, From::Left, kMargin, From::Left, kLabelRight, 67, kRow},
    {IDC_CLOCK_DATE, From::Left, kLabelRight, From::Right, -kMargin, 64, kRow},
    {IDC_CLOCK_SHOW_TIME, From::Left, kMargin, From::Middle, 0, 90, kRow},
    {IDC_CLOCK_SHOW_DATE, From::Middle, 0, From::Right, -kMargin, 90, kRow},
    {IDC_CLOCK_NOTE, From::Left, kMargin, From::Right, -kMargin, 114, kNoteHeight},
};

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
    for (int i = 0; i < Count; ++i)
        PlaceWindow(m_controls[i], kPlaces[i], Area());
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
