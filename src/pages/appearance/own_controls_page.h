// A theme editor page with controls of its own rather than the shared image panel: its
// controls come from a table (kind, text, id, place inside the page's area), its values from the
// tables of the sections it binds. Showing the page hides the image panel that another page may
// have left showing.
#pragma once

#include <vector>

#include "pages/setting_table.h"
#include "ui/child_controls.h"
#include "ui/control_layout.h"
#include "ui/settings_page.h"

namespace cv2 {

struct OwnControl {
    ChildControl control;
    ControlPlace place; // inside the page's area
    bool heading;       // in the bold caption font rather than the text font
};

class OwnControlsPage : public SettingsPage {
  public:
    OwnControlsPage(StringId nameId, std::vector<OwnControl> controls,
                    std::vector<const SettingSection*> sections);
    ~OwnControlsPage() override;

    // Makes the controls, places them, then lets the page fill them (OnCreated).
    void Create(HWND host) override;
    void Show(bool visible) override;
    void OnSize(const RECT& client) override;
    void OnDestroy() override;
    // Reads every section (a missing key takes its default), then OnLoaded.
    void Load(IniDocument* doc) override;
    // Writes every section in table order.
    void Save(IniDocument* target) override;

  protected:
    HWND HostWindow() const { return m_host; }
    // The page's control with `id`; null before Create and after OnDestroy.
    HWND Control(int id) const;
    SettingValues& Values(size_t section) { return m_values[section]; }
    virtual void OnCreated() {}
    virtual void OnLoaded() {}

  private:
    std::vector<OwnControl> m_table;
    std::vector<HWND> m_controls;
    std::vector<SettingValues> m_values;
    HWND m_host = nullptr;
};

// The two controls of a page that lists named rows: the selected row's name on the first line,
// and the list below the row's own controls, filling the rest of the page.
OwnControl RowNameLabel(int id);
OwnControl RowList(int id);

// Puts the localised names into a list box in table order and selects the first.
void FillNameList(HWND list, const StringId* names, size_t count);
// The selected row of a list box; `count` when none is selected.
size_t SelectedRow(HWND list, size_t count);
// The text of a control, cut as a buffer of `maxChars` + 1 would cut it.
std::wstring TextOfWindow(HWND control, int maxChars);

} // namespace cv2
