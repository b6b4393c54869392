// "Plugins": every registered plug-in with a check box that enables it. Save writes each
// plug-in's registry value back, with ",0" after the path of an unchecked one; the loaded
// plug-ins themselves change only at the next start.
#pragma once

#include "pages/behaviour/plugins/plugin_registry.h"
#include "ui/settings_page.h"

namespace cv2 {

class PluginsPage : public SettingsPage {
  public:
    explicit PluginsPage(const PluginRegistry& plugins = SharedPlugins());
    ~PluginsPage() override;

    void Create(HWND host) override;
    void Show(bool visible) override;
    void Save(IniDocument* target) override;
    void OnDestroy() override;
    void Load(IniDocument* doc) override;
    void OnSize(const RECT& client) override;

    HWND List() const { return m_list; }

  private:
    const PluginRegistry& m_plugins;
    HWND m_list = nullptr;
};

} // namespace cv2
