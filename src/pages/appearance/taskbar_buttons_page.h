// The Taskbar Buttons page: a normal and a pressed picture for each button of the bar, one
// button at a time, chosen in the image panel's drop-down list. The seventeen built-in buttons
// come first; buttons that plug-ins add follow and are read and written by the plug-in list.
#pragma once

#include <string>
#include <vector>

#include "pages/appearance/panel_page.h"

namespace cv2 {

class TaskbarButtonsPage : public PanelPage {
  public:
    TaskbarButtonsPage();

    void Create(HWND host) override;
    void Show(bool visible) override;
    void Load(IniDocument* doc) override;
    bool OnCommand(WPARAM wParam, LPARAM lParam) override;

    // The list row whose pictures the panel shows.
    int SelectedRow() const { return m_selected; }
    // A plug-in row's pictures (row counted from the first plug-in row).
    const std::wstring& PluginPath(size_t pluginRow, int state) const;

  protected:
    std::wstring RowPath(int row) const override;
    void SetRowPath(int row, const std::wstring& path) override;
    void Write(IniDocument& doc) const override;

  private:
    void ShowCustomColors();

    struct PluginRow {
        std::wstring name;
        std::wstring paths[2]; // normal, pressed
    };
    std::vector<PluginRow> m_plugins;
    int m_selected = 0;
};

} // namespace cv2
