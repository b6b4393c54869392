// A page that is one list of check boxes, each row a switch from a constant table. General
// Settings and Start Menu Settings are this page with their own tables.
#pragma once

#include <memory>

#include "pages/behaviour/check_list_rows.h"
#include "ui/settings_page.h"

namespace cv2 {

class CheckListPage : public SettingsPage {
  public:
    // `outside` serves the table's rows that are not in config.ini; it may be null when there
    // are none.
    CheckListPage(StringId nameId, CheckTable table, std::unique_ptr<OutsideStores> outside,
                  int listId);
    ~CheckListPage() override;

    void Create(HWND host) override;
    void Show(bool visible) override;
    void Save(IniDocument* target) override;
    void OnDestroy() override;
    void Load(IniDocument* doc) override;
    void OnSize(const RECT& client) override;

    HWND List() const { return m_list; }

  private:
    void FitColumn();
    std::vector<bool> CheckStates() const;

    CheckTable m_table;
    std::unique_ptr<OutsideStores> m_outside;
    int m_listId;
    HWND m_list = nullptr;
};

} // namespace cv2
