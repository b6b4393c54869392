// "Delays/Timers": four timings of the bar in plain number boxes, each with its caption above
// and a "Seconds" label beside it.
#pragma once

#include "pages/behaviour/delay_settings.h"
#include "ui/settings_page.h"

namespace cv2 {

class DelaysPage : public SettingsPage {
  public:
    DelaysPage();
    ~DelaysPage() override;
    void Create(HWND host) override;
    void Show(bool visible) override;
    void Save(IniDocument* target) override;
    void Load(IniDocument* doc) override;
    void OnSize(const RECT& client) override;

    // The number box of setting `index` (table order), for tests and layout.
    HWND Edit(int index) const { return m_controls[index][1]; }

  private:
    // Per setting: caption label, number box, unit label.
    HWND m_controls[kDelaySettingCount][3] = {};
};

} // namespace cv2
