// The first page of the theme editor: "Import Theme" replaces the edited theme's appearance
// sections by those of another theme file, "Export Theme" writes the theme as the pages now
// hold it into a new theme file with its own theme information, or into one theme package. The
// page keeps no values of its own; it talks to the editor through the editor's two registered
// messages.
#pragma once

#include "themes/theme_info_dialog.h"
#include "ui/settings_page.h"

namespace cv2 {

class ImportThemePage : public SettingsPage {
  public:
    ImportThemePage();

    void Create(HWND host) override;
    void Show(bool visible) override;
    bool OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnDestroy() override;

  private:
    void Import();
    void Export();
    void ExportAsPackage(IniDocument& theme, const ThemeInfo& info);

    HWND m_host = nullptr;
    HWND m_buttons[2] = {};
};

} // namespace cv2
