// "Button Order": the shown top-bar buttons in a list, left to right from top to bottom, moved
// with an up-down control. The list is the "Order" value of config.ini; a button hidden on the
// Button Assignments page leaves the list and so the order.
#pragma once

#include <vector>

#include "pages/behaviour/button_order_values.h"
#include "pages/behaviour/plugins/plugin_registry.h"
#include "pages/behaviour/top_bar_state.h"
#include "ui/settings_page.h"

namespace cv2 {

class ButtonOrderPage : public SettingsPage {
  public:
    explicit ButtonOrderPage(const PluginRegistry& plugins = SharedPlugins(),
                             TopBarState& state = SharedTopBar());
    ~ButtonOrderPage() override;

    void Create(HWND host) override;
    void Show(bool visible) override;
    void Save(IniDocument* target) override;
    void OnDestroy() override;
    LRESULT OnNotify(WPARAM wParam, LPARAM lParam) override;
    void Load(IniDocument* doc) override;
    void OnActivate() override;
    void OnDeactivate() override;
    void OnSize(const RECT& client) override;

    HWND List() const { return m_list; }
    HWND Mover() const { return m_mover; }
    const std::vector<OrderItem>& Items() const { return m_items; }
    const std::vector<int>& Order() const { return m_order; }

  private:
    // Moves the selected entry one place up (delta < 0) or down.
    void Move(int delta);

    const PluginRegistry& m_plugins;
    TopBarState& m_state;
    std::vector<OrderItem> m_items;
    std::vector<int> m_order; // item indices, at most kMaxOrderEntries
    HWND m_list = nullptr;
    HWND m_mover = nullptr;
};

} // namespace cv2
