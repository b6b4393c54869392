// "Button Assignments": for each top-bar button, what a tap and a hold do (a built-in action, a
// plug-in's action or a program) and whether the button is shown. Plug-in buttons can only be
// shown or hidden here; their actions belong to their plug-ins.
#pragma once

#include <string>
#include <vector>

#include "pages/behaviour/button_assignments_values.h"
#include "pages/behaviour/plugins/plugin_registry.h"
#include "pages/behaviour/top_bar_state.h"
#include "ui/settings_page.h"

namespace cv2 {

class ButtonAssignmentsPage : public SettingsPage {
  public:
    explicit ButtonAssignmentsPage(const PluginRegistry& plugins = SharedPlugins(),
                                   TopBarState& state = SharedTopBar());
    ~ButtonAssignmentsPage() override;

    void Create(HWND host) override;
    void Show(bool visible) override;
    void Save(IniDocument* target) override;
    void OnDestroy() override;
    bool OnCommand(WPARAM wParam, LPARAM lParam) override;
    void Load(IniDocument* doc) override;
    void OnDeactivate() override;
    void OnSize(const RECT& client) override;

    enum Control {
        Selector,
        Visible,
        TapLabel,
        Tap,
        TapBrowse,
        HoldLabel,
        Hold,
        HoldBrowse,
        Count
    };
    HWND Window(Control c) const { return m_controls[c]; }
    // The tap and hold values kept for the twelve built-in buttons.
    const ButtonAssignments& Values() const { return m_values; }

  private:
    void FillCombos();
    // Takes the current button's edits into the kept values and the visibility flags.
    void CommitCurrent();
    std::wstring StoredValueOfCombo(HWND combo) const;
    void ShowStored(HWND combo, const std::wstring& stored);
    void SelectButton(int row);
    void Browse(HWND combo);

    const PluginRegistry& m_plugins;
    TopBarState& m_state;
    ButtonAssignments m_values;
    int m_current = -1;
    HWND m_host = nullptr;
    HWND m_controls[Count] = {};
};

} // namespace cv2
