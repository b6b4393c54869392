// The real stores of General Settings' two special rows: a shortcut file in the Startup folder
// and a DWORD in the user's registry.
#pragma once

#include <memory>
#include <string>

#include "pages/behaviour/check_list_rows.h"

namespace cv2 {

class DeviceOutsideStores : public OutsideStores {
  public:
    // `shortcutPath` may be empty (no Startup folder): the shortcut then reads absent and is
    // never made.
    DeviceOutsideStores(std::wstring shortcutPath, std::wstring shortcutTarget,
                        std::wstring registryKey);

    bool ShortcutExists() override;
    bool CreateShortcut() override;
    bool DeleteShortcut() override;
    bool ReadSoundHookValue(unsigned long& value) override;
    bool WriteSoundHookValue(unsigned long value) override;

    const std::wstring& ShortcutPath() const { return m_shortcutPath; }
    const std::wstring& ShortcutTarget() const { return m_shortcutTarget; }

  private:
    std::wstring m_shortcutPath;
    std::wstring m_shortcutTarget;
    std::wstring m_registryKey;
};

// The user's Startup folder, without creating it; empty when the shell does not know it.
std::wstring StartupFolder();

// The stores of this device: the shortcut in the user's Startup folder, starting the bar beside
// this program; the value under the bar's registry key.
std::unique_ptr<OutsideStores> MakeDeviceOutsideStores();

} // namespace cv2
