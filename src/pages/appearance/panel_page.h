// Base of the theme editor's pages that own no controls and borrow the editor's image panel: the
// page's values are one described section; one or two of its paths live in the panel's path
// boxes while the page is current, and in the page otherwise.
#pragma once

#include <windows.h>

#include <string>

#include "pages/appearance/image_panel.h"
#include "pages/setting_table.h"
#include "store/strings.h"
#include "ui/pickers/font_record.h"
#include "ui/settings_page.h"

namespace cv2 {

// How a page uses the panel when it is shown: the row labels it sets (0 leaves both labels as
// the page shown before left them), the parts it shows and then the parts it hides (finer parts
// inside the shown ones, such as the previews or the second row).
struct PanelView {
    StringId firstLabel;
    StringId secondLabel;
    unsigned shown;
    unsigned hidden;
};

// A page's title: looked up by number, or a fixed text when `fixed` is set.
struct PageTitle {
    StringId id;
    const wchar_t* fixed;
};

// The value rows that the panel's two path rows show; kNoPathRow for a panel row not used.
constexpr size_t kNoPathRow = static_cast<size_t>(-1);
struct PanelRows {
    size_t first;
    size_t second;
};

class PanelPage : public SettingsPage {
  public:
    PanelPage(const PageTitle& title, const SettingSection& section, const PanelView& view,
              const PanelRows& rows);

    void Create(HWND host) override { m_host = host; }
    void Show(bool visible) override;
    // Takes over paths typed into the panel when the page is current, then writes every key.
    void Save(IniDocument* target) override;
    void Load(IniDocument* doc) override;
    void OnActivate() override;
    void OnDeactivate() override;
    // Readies the picture decoder while the user reads the first page, so that the first page
    // that shows pictures does not wait for it to load.
    void OnHostShown() override;

    const SettingValues& Values() const { return m_values; }

  protected:
    ImagePanel* Panel() const { return PanelOf(m_host); }
    // The owner of the dialogs the page opens.
    HWND Owner() const;
    // The path panel row `row` shows, and where a path from it goes.
    virtual std::wstring RowPath(int row) const;
    virtual void SetRowPath(int row, const std::wstring& path);
    // Writes the page's keys; pages that write more or other than their values override it.
    virtual void Write(IniDocument& doc) const { m_values.Save(doc); }
    // True for a click on the panel's "Settings" button while the page is current.
    bool IsSettingsClick(WPARAM wParam) const;

    SettingValues m_values;

  private:
    size_t PathRow(int row) const { return row == 0 ? m_rows.first : m_rows.second; }

    HWND m_host = nullptr;
    PanelView m_view;
    PanelRows m_rows;
};

} // namespace cv2
