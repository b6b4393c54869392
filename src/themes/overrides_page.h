// "Theme Overrides": keep the current theme's images but refuse its sounds, its colours or its
// fonts, the fonts being replaced by one face for the whole bar. Bound to section "Overrides" of
// config.ini, so the choice holds whichever theme is current.
#pragma once

#include <string>
#include <vector>

#include "ui/settings_page.h"

namespace cv2 {

class ThemeOverridesPage : public SettingsPage {
  public:
    ThemeOverridesPage();

    void Create(HWND host) override;
    void Show(bool visible) override;
    void Save(IniDocument* target) override;
    bool OnCommand(WPARAM wParam, LPARAM lParam) override;
    void Load(IniDocument* doc) override;
    void OnSize(const RECT& client) override;

    enum Control { Sounds, Colors, Fonts, FontList, Count };
    HWND Window(Control c) const { return m_controls[c]; }

  private:
    HWND m_controls[Count] = {};
};

// Every font family the screen reports, in the order it reports them.
std::vector<std::wstring> ScreenFontFamilies();

// Adds the families a user may choose to the font list: each name once, "@" families left out.
void FillFontList(HWND list, const std::vector<std::wstring>& families);

} // namespace cv2
