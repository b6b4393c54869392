// A page that is a sorted list of rules with Add, Modify and Delete buttons, edited through the
// custom task dialog. The window rules, the input panel rules and the unskinned applications
// are this page with different tables.
#pragma once

#include <windows.h>

#include "pages/behaviour/rule_format.h"
#include "ui/settings_page.h"

namespace cv2 {

struct RulePageInfo {
    StringId name;
    const RuleFormat* format;
    // A caption above the list, or 0.
    StringId caption;
    // A check box under the list bound to a boolean key, or 0.
    StringId optionLabel;
    const wchar_t* optionSection;
    const wchar_t* optionKey;
    bool optionDefault;
};

class RuleListPage : public SettingsPage {
  public:
    explicit RuleListPage(const RulePageInfo& info);

    void Create(HWND host) override;
    void Show(bool visible) override;
    void Save(IniDocument* target) override;
    void OnDestroy() override;
    bool OnCommand(WPARAM wParam, LPARAM lParam) override;
    void Load(IniDocument* doc) override;
    void OnSize(const RECT& client) override;

  private:
    HWND MakeChild(const wchar_t* cls, const wchar_t* text, DWORD style, int id, HFONT font);
    void AddRule();
    void ModifyRule();
    void DeleteRule();
    // Puts the entry at its sorted place in the list and selects it.
    void Insert(const RuleEntry& entry);
    void RemoveAt(size_t index);
    void FillList();
    void EnableEditing(bool enable);
    // The selected entry's index, or -1.
    int Selected() const;

    const RulePageInfo& m_info;
    RuleList m_rules;
    HWND m_host = nullptr;
    HWND m_caption = nullptr;
    HWND m_list = nullptr;
    HWND m_option = nullptr;
    HWND m_add = nullptr;
    HWND m_modify = nullptr;
    HWND m_delete = nullptr;
};

} // namespace cv2
