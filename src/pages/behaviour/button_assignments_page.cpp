#include "pages/behaviour/button_assignments_page.h"

#include "ids_behaviour.h"
#include "pages/behaviour/button_order_values.h"
#include "store/paths.h"
#include "ui/child_controls.h"
#include "ui/control_layout.h"
#include "ui/file_browser.h"

namespace cv2 {
namespace {

// In creation order, which is also the tab order.
const ChildControl kControls[ButtonAssignmentsPage::Count] = {
    {L"COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, 0, StringId(0), IDC_ASSIGN_BUTTON},
    {L"BUTTON", BS_AUTOCHECKBOX | WS_TABSTOP, 0, IDS_ITEM_VISIBLE, IDC_ASSIGN_VISIBLE},
    {L"STATIC", SS_LEFT, 0, IDS_TAP, IDC_ASSIGN_TAP_LABEL},
    {L"COMBOBOX", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP, 0, StringId(0),
     IDC_ASSIGN_TAP},
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, StringId(0), IDC_ASSIGN_TAP_BROWSE},
    {L"STATIC", SS_LEFT, 0, IDS_HOLD, IDC_ASSIGN_HOLD_LABEL},
    {L"COMBOBOX", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP, 0, StringId(0),
     IDC_ASSIGN_HOLD},
    {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP, 0, StringId(0), IDC_ASSIGN_HOLD_BROWSE},
};

// Laid out for a 240-pixel-wide page and stretched with wider ones; in the order of the Control
// enumeration. A combo box's height includes its drop-down list.
const ControlPlace kPlaces[ButtonAssignmentsPage::Count] = {
    {IDC_ASSIGN_BUTTON, From::Left, 3, From::Right, -6, 13, 160},
    {IDC_ASSIGN_VISIBLE, From::Left, 3, From::Right, -6, 39, 16},
    {IDC_ASSIGN_TAP_LABEL, From::Left, 3, From::Right, -40, 60, 15},
    {IDC_ASSIGN_TAP, From::Left, 3, From::Right, -40, 76, 160},
    {IDC_ASSIGN_TAP_BROWSE, From::Right, -36, From::Right, -6, 75, 22},
    {IDC_ASSIGN_HOLD_LABEL, From::Left, 3, From::Right, -40, 101, 15},
    {IDC_ASSIGN_HOLD, From::Left, 3, From::Right, -40, 117, 160},
    {IDC_ASSIGN_HOLD_BROWSE, From::Right, -36, From::Right, -6, 116, 22},
};

std::wstring ComboRowText(HWND combo, int row) {
    const LRESULT length = SendMessageW(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(row), 0);
    if (length < 0)
        return std::wstring();
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    const LRESULT got = SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(row),
                                     reinterpret_cast<LPARAM>(&text[0]));
    text.resize(got > 0 ? static_cast<size_t>(got) : 0);
    return text;
}

void AddRow(HWND combo, const wchar_t* text) {
    SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
}

bool Checked(HWND box) {
    return SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

} // namespace

ButtonAssignmentsPage::ButtonAssignmentsPage(const PluginRegistry& plugins, TopBarState& state)
    : SettingsPage(IDS_BUTTON_ASSIGNMENTS), m_plugins(plugins), m_state(state) {}

ButtonAssignmentsPage::~ButtonAssignmentsPage() {
    OnDestroy();
}

void ButtonAssignmentsPage::Create(HWND host) {
    m_host = host;
    CreateChildControls(host, kControls, Count, m_controls);
    SetWindowTextW(m_controls[TapBrowse], L"...");
    SetWindowTextW(m_controls[HoldBrowse], L"...");
    FillCombos();
    OnSize(Area());
}

void ButtonAssignmentsPage::FillCombos() {
    for (size_t row = 0; row < kAssignedButtons; ++row)
        AddRow(m_controls[Selector], Localized(AssignedButtonLabel(row)));
    m_plugins.AddButtonNames(m_controls[Selector]);
    SendMessageW(m_controls[Selector], CB_SETCURSEL, 0, 0);
    for (size_t position = 0; position < kBuiltInActions; ++position) {
        const std::wstring label = Localized(BuiltInActionLabel(position));
        AddRow(m_controls[Tap], label.c_str());
        AddRow(m_controls[Hold], label.c_str());
    }
    m_plugins.AddActionNames(m_controls[Tap]);
    m_plugins.AddActionNames(m_controls[Hold]);
}

void ButtonAssignmentsPage::Show(bool visible) {
    ShowWindows(m_controls, Count, visible);
}

void ButtonAssignmentsPage::OnSize(const RECT&) {
    if (m_controls[Selector])
        PlaceControls(m_host, Area(), kPlaces);
}

void ButtonAssignmentsPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    if (!doc)
        return;
    m_values = ReadAssignments(*doc);
    std::vector<const wchar_t*> keys;
    for (size_t k = 0; k < m_plugins.ButtonTotal(); ++k)
        keys.push_back(m_plugins.ButtonKey(k));
    m_state.visible =
        ReadVisibility(*doc, ReadOrderValue(*doc, m_state.hasPhone), m_state.hasPhone, keys);
    m_current = -1;
    if (m_controls[Selector])
        SelectButton(static_cast<int>(SendMessageW(m_controls[Selector], CB_GETCURSEL, 0, 0)));
}

void ButtonAssignmentsPage::CommitCurrent() {
    if (m_current < 0 || !m_controls[Visible])
        return;
    const size_t row = static_cast<size_t>(m_current);
    if (row < kAssignedButtons) {
        m_values.tap[row] = StoredValueOfCombo(m_controls[Tap]);
        m_values.hold[row] = StoredValueOfCombo(m_controls[Hold]);
    }
    if (row < m_state.visible.size())
        m_state.visible[row] = Checked(m_controls[Visible]);
}

std::wstring ButtonAssignmentsPage::StoredValueOfCombo(HWND combo) const {
    wchar_t text[kAssignmentChars] = {};
    GetWindowTextW(combo, text, kAssignmentChars);
    std::vector<std::wstring> labels;
    for (int row = 0; row < static_cast<int>(kBuiltInActions); ++row)
        labels.push_back(ComboRowText(combo, row));
    const PluginRegistry& plugins = m_plugins;
    return StoredValueOf(text, labels,
                         [&plugins](const wchar_t* name) { return plugins.ActionValue(name); });
}

// A plug-in action is shown by its display name, found among the rows after the built-in
// ones; a program path is shown as it is stored.
void ButtonAssignmentsPage::ShowStored(HWND combo, const std::wstring& stored) {
    SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    int row = -1;
    switch (ClassifyStored(stored.c_str(), row)) {
    case StoredKind::Empty:
        SetWindowTextW(combo, L"");
        return;
    case StoredKind::BuiltIn:
        SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
        return;
    case StoredKind::Other:
        break;
    }
    const wchar_t* name = m_plugins.ActionName(stored.c_str());
    if (!name) {
        SetWindowTextW(combo, stored.c_str());
        return;
    }
    const int rows = static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0));
    for (int r = static_cast<int>(kBuiltInActions); r < rows; ++r) {
        if (EqualsNoCase(ComboRowText(combo, r).c_str(), name)) {
            SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(r), 0);
            return;
        }
    }
}

void ButtonAssignmentsPage::SelectButton(int row) {
    CommitCurrent();
    if (row < 0)
        row = 0;
    const bool builtIn = static_cast<size_t>(row) < kAssignedButtons;
    if (builtIn) {
        ShowStored(m_controls[Tap], m_values.tap[row]);
        ShowStored(m_controls[Hold], m_values.hold[row]);
    } else {
        for (Control c : {Tap, Hold}) {
            SendMessageW(m_controls[c], CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
            SetWindowTextW(m_controls[c], L"");
        }
    }
    const bool shown = static_cast<size_t>(row) < m_state.visible.size() &&
                       m_state.visible[static_cast<size_t>(row)];
    SendMessageW(m_controls[Visible], BM_SETCHECK, shown ? BST_CHECKED : BST_UNCHECKED, 0);
    m_current = row;
    EnableWindow(m_controls[Visible],
                 static_cast<size_t>(row) != kSignalRow || m_state.hasPhone ? TRUE : FALSE);
    for (Control c : {Tap, TapBrowse, Hold, HoldBrowse})
        EnableWindow(m_controls[c], builtIn ? TRUE : FALSE);
}

void ButtonAssignmentsPage::Browse(HWND combo) {
    FileBrowser browser(false, false);
    browser.SetFilter(Localized(IDS_EXECUTABLES_FILTER), true, L"Exes");
    if (browser.Run(m_host))
        SetWindowTextW(combo, browser.result.c_str());
}

bool ButtonAssignmentsPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    HWND from = reinterpret_cast<HWND>(lParam);
    if (!from)
        return false;
    const WORD code = HIWORD(wParam);
    if (from == m_controls[Selector]) {
        if (code != CBN_SELCHANGE)
            return false;
        SelectButton(static_cast<int>(SendMessageW(from, CB_GETCURSEL, 0, 0)));
        return true;
    }
    if (from == m_controls[TapBrowse] || from == m_controls[HoldBrowse]) {
        if (code == BN_CLICKED)
            Browse(from == m_controls[TapBrowse] ? m_controls[Tap] : m_controls[Hold]);
        return true;
    }
    return from == m_controls[Visible];
}

void ButtonAssignmentsPage::OnDeactivate() {
    CommitCurrent();
}

void ButtonAssignmentsPage::Save(IniDocument* target) {
    if (!target && !Doc())
        return;
    CommitCurrent();
    WriteAssignments(SaveTarget(target), m_values, m_state.visible);
}

void ButtonAssignmentsPage::OnDestroy() {
    DestroyWindows(m_controls, Count);
    m_current = -1;
}

} // namespace cv2
