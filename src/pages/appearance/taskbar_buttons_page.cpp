#include "pages/appearance/taskbar_buttons_page.h"

#include "pages/appearance/taskbar_buttons_values.h"
#include "pages/behaviour/plugins/plugin_registry.h"

namespace cv2 {
namespace {

// The only page that shows the drop-down list; "Use Custom Colors" shows for some rows only.
constexpr PanelView kView = {IDS_NORMAL_IMAGE, IDS_PRESSED_IMAGE, kPanelRows | kPanelList,
                             kPanelSettings | kPanelCustomColors};

const std::wstring kNoPath;

} // namespace

TaskbarButtonsPage::TaskbarButtonsPage()
    : PanelPage({IDS_TASKBAR_BUTTONS, nullptr}, ButtonImagesSection(), kView, {0, 1}) {}

void TaskbarButtonsPage::Create(HWND host) {
    PanelPage::Create(host);
    std::vector<std::wstring> names;
    for (const TaskbarButtonRow& row : kTaskbarButtonRows)
        names.push_back(Localized(row.name));
    // Every plug-in button slot is a row, an absent one with no name, so that rows after the
    // built-in ones stay in the plug-in list's order.
    const PluginRegistry& plugins = SharedPlugins();
    m_plugins.assign(plugins.ButtonTotal(), PluginRow());
    for (size_t k = 0; k < m_plugins.size(); ++k) {
        if (const PluginButton* button = plugins.ButtonAt(k))
            m_plugins[k].name = button->name;
        names.push_back(m_plugins[k].name);
    }
    if (ImagePanel* panel = Panel())
        panel->SetListItems(names, 0);
    m_selected = 0;
}

void TaskbarButtonsPage::Show(bool visible) {
    PanelPage::Show(visible);
    if (visible)
        ShowCustomColors();
}

void TaskbarButtonsPage::Load(IniDocument* doc) {
    // The plug-in rows first: the base puts the current row's paths into the panel.
    for (PluginRow& row : m_plugins) {
        row.paths[0].clear();
        row.paths[1].clear();
        if (doc)
            SharedPlugins().ReadButtonImages(*doc, row.name.c_str(), row.paths[0], row.paths[1]);
    }
    PanelPage::Load(doc);
}

bool TaskbarButtonsPage::OnCommand(WPARAM wParam, LPARAM) {
    ImagePanel* panel = Panel();
    if (!IsActive() || !panel)
        return false;
    if (panel->IsListChange(wParam)) {
        OnDeactivate();
        const int row = panel->ListSelection();
        if (row >= 0)
            m_selected = row;
        OnActivate();
        ShowCustomColors();
        return true;
    }
    if (panel->IsCustomColorsClick(wParam)) {
        const size_t flag = CustomFlagRow(m_selected);
        if (flag < m_values.Section().count)
            m_values.SetBool(flag, panel->CustomColors());
        return true;
    }
    return false;
}

// Battery and memory, signal strength and phone connected can be drawn in the user's own
// colours; the box shows their flag and hides for every other row.
void TaskbarButtonsPage::ShowCustomColors() {
    ImagePanel* panel = Panel();
    if (!panel)
        return;
    const size_t flag = CustomFlagRow(m_selected);
    const bool has = flag < m_values.Section().count;
    if (has)
        panel->SetCustomColors(m_values.Bool(flag));
    panel->ShowParts(kPanelCustomColors, has);
}

const std::wstring& TaskbarButtonsPage::PluginPath(size_t pluginRow, int state) const {
    return pluginRow < m_plugins.size() ? m_plugins[pluginRow].paths[state & 1] : kNoPath;
}

std::wstring TaskbarButtonsPage::RowPath(int row) const {
    const size_t selected = static_cast<size_t>(m_selected);
    if (selected < kBuiltInButtonCount)
        return m_values.Text(row == 0 ? NormalKeyRow(selected) : PressedKeyRow(selected));
    return PluginPath(selected - kBuiltInButtonCount, row);
}

void TaskbarButtonsPage::SetRowPath(int row, const std::wstring& path) {
    const size_t selected = static_cast<size_t>(m_selected);
    if (selected < kBuiltInButtonCount) {
        m_values.SetText(row == 0 ? NormalKeyRow(selected) : PressedKeyRow(selected), path);
        return;
    }
    const size_t plugin = selected - kBuiltInButtonCount;
    if (plugin < m_plugins.size())
        m_plugins[plugin].paths[row & 1] = path;
}

void TaskbarButtonsPage::Write(IniDocument& doc) const {
    m_values.Save(doc);
    for (const PluginRow& row : m_plugins)
        SharedPlugins().WriteButtonImages(doc, row.name.c_str(), row.paths[0], row.paths[1]);
}

} // namespace cv2
