// "My Theme", the first page of the main window: every theme on the device in a sorted list,
// with the details of the selected one, deletion of a theme's folder, installation of theme
// packages, the theme editor on the custom theme, and on Apply the chosen theme stored in
// config.ini.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "themes/theme_catalogue.h"
#include "ui/settings_page.h"

namespace cv2 {

class ThemeCataloguePage : public SettingsPage {
  public:
    // Themes are looked for below programFolder + "Themes\"; by default the program's folder.
    ThemeCataloguePage();
    explicit ThemeCataloguePage(const std::wstring& programFolder);
    ~ThemeCataloguePage() override;

    void Create(HWND host) override;
    void Show(bool visible) override;
    void Save(IniDocument* target) override;
    void OnDestroy() override;
    bool OnCommand(WPARAM wParam, LPARAM lParam) override;
    void Load(IniDocument* doc) override;
    void OnSize(const RECT& client) override;

    // Lists the themes anew and selects the one config.ini names (the theme folders may have
    // changed). Does nothing before Load. While the host window has not been shown yet (the
    // program is starting), the list is filled once the window has painted instead, so the
    // window shows at once however many themes there are.
    void Reload();
    void OnHostShown() override;

    enum Control { List, Customize, Delete, Install, DetailsText, DetailsButton, Count };
    HWND Window(Control c) const { return m_controls[c]; }

  private:
    // Fills the list now if a deferred Reload has not yet.
    void FinishPendingFill();
    void Fill();
    void SelectThemeFile();
    // The entry of the selected row; null for "Custom Theme" and when nothing is selected.
    const ThemeEntry* Selected(bool* customTheme = nullptr) const;
    void OnSelectionChange();
    void ShowDetails(const ThemeEntry* entry);
    void OpenEditor();
    void DeleteSelected();
    void InstallPackageFile();
    // Selects the first row whose theme file lies in `folder` (which ends in a backslash).
    void SelectThemeIn(const std::wstring& folder);
    void ShowDetailsBox() const;

    std::wstring m_programFolder;
    HWND m_host = nullptr;
    HWND m_controls[Count] = {};
    bool m_fillPending = false;
    // Owned here; the list rows point at them.
    std::vector<std::unique_ptr<ThemeEntry>> m_entries;
};

} // namespace cv2
