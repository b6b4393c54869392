#include "pages/behaviour/rule_list_page.h"

#include "ids_behaviour.h"
#include "pages/behaviour/custom_task_dialog.h"
#include "store/scale.h"
#include "ui/control_layout.h"
#include "ui/shared_fonts.h"

namespace cv2 {

RuleListPage::RuleListPage(const RulePageInfo& info) : SettingsPage(info.name), m_info(info) {}

HWND RuleListPage::MakeChild(const wchar_t* cls, const wchar_t* text, DWORD style, int id,
                             HFONT font) {
    HWND child = CreateWindowExW(
        0, cls, text, WS_CHILD | style, 0, 0, 0, 0, m_host,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
        reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(m_host, GWLP_HINSTANCE)), nullptr);
    SetControlFont(child, font);
    return child;
}

void RuleListPage::Create(HWND host) {
    m_host = host;
    if (m_info.caption)
        m_caption = MakeChild(L"STATIC", Localized(m_info.caption), SS_LEFT, IDC_RULE_CAPTION,
                              CaptionFont());
    m_list = MakeChild(L"LISTBOX", L"",
                       WS_BORDER | WS_VSCROLL | WS_TABSTOP | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
                       IDC_RULE_LIST, TextFont());
    if (m_info.optionLabel)
        m_option = MakeChild(L"BUTTON", Localized(m_info.optionLabel), BS_AUTOCHECKBOX | WS_TABSTOP,
                             IDC_RULE_OPTION, TextFont());
    const DWORD button = BS_PUSHBUTTON | WS_TABSTOP;
    m_add = MakeChild(L"BUTTON", Localized(IDS_ADD), button, IDC_RULE_ADD, CaptionFont());
    m_modify = MakeChild(L"BUTTON", Localized(IDS_MODIFY), button, IDC_RULE_MODIFY, CaptionFont());
    m_delete = MakeChild(L"BUTTON", Localized(IDS_DELETE), button, IDC_RULE_DELETE, CaptionFont());
    EnableEditing(false);
    OnSize(Area());
}

void RuleListPage::Show(bool visible) {
    const HWND controls[] = {m_caption, m_list, m_option, m_add, m_modify, m_delete};
    ShowWindows(controls, sizeof controls / sizeof controls[0], visible);
}

// The optional caption, the list, the optional check box, and the three buttons in a row
// along the bottom. The three rule pages share control ids, so controls are placed by handle.
void RuleListPage::OnSize(const RECT&) {
    constexpr FromY kBottom = FromY::Bottom;
    const ControlPlace caption = {0, From::Left, 4, From::Right, -4, 7, 16};
    const ControlPlace option = {0, From::Left, 4, From::Right, -4, -50, 18, kBottom};
    // The list ends above the check box when there is one, else above the buttons.
    const ControlPlace list = {
        0,          From::Left, 0, From::Right, 0, m_caption ? 25 : 3, m_option ? -52 : -30,
        FromY::Top, true};
    const ControlPlace buttons[] = {
        {0, From::Left, 4, From::Third, -2, -26, 22, kBottom},
        {0, From::Third, 2, From::TwoThirds, -2, -26, 22, kBottom},
        {0, From::TwoThirds, 2, From::Right, -4, -26, 22, kBottom},
    };
    const RECT& area = Area();
    PlaceWindow(m_caption, caption, area);
    PlaceWindow(m_list, list, area);
    PlaceWindow(m_option, option, area);
    PlaceWindow(m_add, buttons[0], area);
    PlaceWindow(m_modify, buttons[1], area);
    PlaceWindow(m_delete, buttons[2], area);
}

void RuleListPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    if (!doc)
        return;
    LoadRules(*doc, *m_info.format, LocalizedLabels(*m_info.format), m_rules);
    FillList();
    if (m_option) {
        const bool on = doc->GetBool(m_info.optionSection, m_info.optionKey, m_info.optionDefault);
        SendMessageW(m_option, BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
    }
}

void RuleListPage::Save(IniDocument* target) {
    if (!target && !Doc())
        return;
    IniDocument& doc = SaveTarget(target);
    SaveRules(doc, *m_info.format, m_rules);
    if (m_option)
        doc.SetBool(m_info.optionSection, m_info.optionKey,
                    SendMessageW(m_option, BM_GETCHECK, 0, 0) == BST_CHECKED);
}

void RuleListPage::OnDestroy() {
    HWND* controls[] = {&m_caption, &m_list, &m_option, &m_add, &m_modify, &m_delete};
    for (HWND* control : controls) {
        if (*control)
            DestroyWindow(*control);
        *control = nullptr;
    }
}

// All pages see every command, and other pages use the same button ids, so only commands from
// this page's own controls are taken.
bool RuleListPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    HWND from = reinterpret_cast<HWND>(lParam);
    if (!from)
        return false;
    const WORD code = HIWORD(wParam);
    if (from == m_list) {
        if (code == LBN_SELCHANGE)
            EnableEditing(Selected() >= 0);
        else if (code == LBN_DBLCLK)
            ModifyRule();
        return true;
    }
    if (from == m_add || from == m_modify || from == m_delete) {
        if (code == BN_CLICKED) {
            if (from == m_add)
                AddRule();
            else if (from == m_modify)
                ModifyRule();
            else
                DeleteRule();
        }
        return true;
    }
    return from == m_option;
}

void RuleListPage::AddRule() {
    RuleRecord record = NewRecord(*m_info.format);
    if (RunCustomTaskDialog(m_host, GetName(), record))
        Insert(EntryOfRecord(*m_info.format, record, LocalizedLabels(*m_info.format)));
}

void RuleListPage::ModifyRule() {
    const int selected = Selected();
    if (selected < 0)
        return;
    RuleRecord record = RecordOfEntry(*m_info.format, m_rules[static_cast<size_t>(selected)]);
    if (!RunCustomTaskDialog(m_host, GetName(), record))
        return;
    RemoveAt(static_cast<size_t>(selected));
    Insert(EntryOfRecord(*m_info.format, record, LocalizedLabels(*m_info.format)));
}

// The buttons stay enabled; without a selection they do nothing.
void RuleListPage::DeleteRule() {
    const int selected = Selected();
    if (selected >= 0)
        RemoveAt(static_cast<size_t>(selected));
}

void RuleListPage::Insert(const RuleEntry& entry) {
    const size_t at = m_rules.Add(entry.text, entry.data);
    const WPARAM index = static_cast<WPARAM>(at);
    SendMessageW(m_list, LB_INSERTSTRING, index, reinterpret_cast<LPARAM>(entry.text.c_str()));
    SendMessageW(m_list, LB_SETITEMDATA, index, static_cast<LPARAM>(entry.data));
    SendMessageW(m_list, LB_SETCURSEL, index, 0);
    EnableEditing(true);
}

void RuleListPage::RemoveAt(size_t index) {
    if (m_rules.Remove(index))
        SendMessageW(m_list, LB_DELETESTRING, static_cast<WPARAM>(index), 0);
}

void RuleListPage::FillList() {
    SendMessageW(m_list, LB_RESETCONTENT, 0, 0);
    for (const RuleEntry& entry : m_rules.Entries()) {
        const LRESULT at =
            SendMessageW(m_list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.text.c_str()));
        SendMessageW(m_list, LB_SETITEMDATA, static_cast<WPARAM>(at),
                     static_cast<LPARAM>(entry.data));
    }
    EnableEditing(false);
}

void RuleListPage::EnableEditing(bool enable) {
    EnableWindow(m_modify, enable);
    EnableWindow(m_delete, enable);
}

int RuleListPage::Selected() const {
    const LRESULT at = SendMessageW(m_list, LB_GETCURSEL, 0, 0);
    return at >= 0 && static_cast<size_t>(at) < m_rules.Size() ? static_cast<int>(at) : -1;
}

} // namespace cv2
