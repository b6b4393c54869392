#include "pages/behaviour/rule_list_page.h"

#include "ids_behaviour.h"
#include "pages/behaviour/custom_task_dialog.h"
#include "store/scale.h"
#include "ui/shared_fonts.h"

namespace cv2 {

RuleListPage::RuleListPage(const RulePageInfo& info) : SettingsPage(info.name), m_info(info) {}

HWND RuleListPage::MakeChild(const wchar_t* cls, const wchar_t* text, DWORD style, int id,
                             HFONT font) {
    return CreatePageControl(m_host, cls, text, style, id, font);
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
    RECT client;
    GetClientRect(host, &client);
    OnSize(client);
}

void RuleListPage::Show(bool visible) {
    const HWND controls[] = {m_caption, m_list, m_option, m_add, m_modify, m_delete};
    ShowWindows(controls, sizeof controls / sizeof controls[0], visible);
}

// Below the header strip: the optional caption, the list, the optional check box, and the
// three buttons in a row along the bottom.
void RuleListPage::OnSize(const RECT& client) {
    const int margin = ScaleX(4);
    const int width = client.right - client.left;
    int top = client.top + Scale(23);
    if (m_caption) {
        MoveWindow(m_caption, margin, top + Scale(4), width - 2 * margin, Scale(16), TRUE);
        top += Scale(22);
    }
    const int buttonHeight = Scale(22);
    const int buttonTop = client.bottom - Scale(4) - buttonHeight;
    int listBottom = buttonTop - Scale(4);
    if (m_option) {
        const int optionTop = listBottom - Scale(20);
        MoveWindow(m_option, margin, optionTop, width - 2 * margin, Scale(18), TRUE);
        listBottom = optionTop - Scale(2);
    }
    MoveWindow(m_list, client.left, top, width, listBottom > top ? listBottom - top : 0, TRUE);
    const int buttonWidth = (width - 4 * margin) / 3;
    const HWND buttons[] = {m_add, m_modify, m_delete};
    for (int i = 0; i < 3; ++i)
        MoveWindow(buttons[i], margin + i * (buttonWidth + margin), buttonTop, buttonWidth,
                   buttonHeight, TRUE);
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
    if (!target && !m_doc)
        return;
    IniDocument& doc = SaveTarget(target);
    SaveRules(doc, *m_info.format, m_rules);
    if (m_option)
        doc.SetBool(m_info.optionSection, m_info.optionKey,
                    SendMessageW(m_option, BM_GETCHECK, 0, 0) == BST_CHECKED);
}

void RuleListPage::OnDestroy() {
    HWND* const controls[] = {&m_caption, &m_list, &m_option, &m_add, &m_modify, &m_delete};
    DestroyWindows(controls, sizeof controls / sizeof controls[0]);
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
    if (RunCustomTaskDialog(m_host, m_name.c_str(), record))
        Insert(EntryOfRecord(*m_info.format, record, LocalizedLabels(*m_info.format)));
}

void RuleListPage::ModifyRule() {
    const int selected = Selected();
    if (selected < 0)
        return;
    RuleRecord record = RecordOfEntry(*m_info.format, m_rules[static_cast<size_t>(selected)]);
    if (!RunCustomTaskDialog(m_host, m_name.c_str(), record))
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
