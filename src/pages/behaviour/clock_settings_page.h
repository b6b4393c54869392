// "Clock Settings": standard or small clock, whether the standard clock shows time and date, and
// the time and date pictures.
#pragma once

#include "pages/behaviour/clock_values.h"
#include "ui/settings_page.h"

namespace cv2 {

class ClockSettingsPage : public SettingsPage {
  public:
    using LocaleReader = LocaleTimeFacts (*)();
    // The locale is read at each Load, for the default pictures.
    explicit ClockSettingsPage(LocaleReader readLocale = nullptr);

    void Create(HWND host) override;
    void Show(bool visible) override;
    void Save(IniDocument* target) override;
    void OnDestroy() override;
    bool OnCommand(WPARAM wParam, LPARAM lParam) override;
    void Load(IniDocument* doc) override;
    void OnSize(const RECT& client) override;

    enum Control { Style, TimeLabel, Time, DateLabel, Date, ShowTime, ShowDate, Note, Count };
    HWND Window(Control c) const { return m_controls[c]; }

  private:
    bool StandardClock() const;
    // The two check boxes belong to the standard clock: they show only with it.
    void FollowClockStyle();

    LocaleReader m_readLocale;
    HWND m_controls[Count] = {};
    bool m_visible = false;
};

} // namespace cv2
