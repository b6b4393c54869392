#include "pages/behaviour/plugins/plugins_page.h"

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "ids_behaviour.h"
#include "store/scale.h"
#include "ui/control_layout.h"
#include "ui/shared_fonts.h"

namespace cv2 {
namespace {

// The list fills the page, a little below its top.
constexpr ControlPlace kListPlace = FillingPlace(IDC_PLUGIN_LIST, 3);

} // namespace

PluginsPage::PluginsPage(const PluginRegistry& plugins)
    : SettingsPage(IDS_PLUGINS), m_plugins(plugins) {}

PluginsPage::~PluginsPage() {
    OnDestroy();
}

void PluginsPage::Create(HWND host) {
    INITCOMMONCONTROLSEX icc = {sizeof icc, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&icc);
    m_list = CreateWindowExW(0, WC_LISTVIEWW, L"",
                             WS_CHILD | WS_BORDER | LVS_REPORT | LVS_NOCOLUMNHEADER |
                                 LVS_SINGLESEL | LVS_NOLABELWRAP,
                             0, 0, 0, 0, host, reinterpret_cast<HMENU>(INT_PTR(IDC_PLUGIN_LIST)),
                             GetModuleHandleW(nullptr), nullptr);
    if (!m_list)
        return;
    SendMessageW(m_list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    SetControlFont(m_list, TextFont());
    LVCOLUMNW column = {};
    column.mask = LVCF_WIDTH;
    SendMessageW(m_list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    OnSize(Area());
}

void PluginsPage::Show(bool visible) {
    ShowWindows(&m_list, 1, visible);
}

void PluginsPage::OnSize(const RECT&) {
    if (!m_list)
        return;
    PlaceControls(GetParent(m_list), Area(), &kListPlace, 1);
    // One column, the list's width less a margin so no sideways scroll bar appears.
    RECT inside = {};
    GetClientRect(m_list, &inside);
    SendMessageW(m_list, LVM_SETCOLUMNWIDTH, 0,
                 MAKELPARAM(std::max(0L, inside.right - ScaleX(4)), 0));
}

void PluginsPage::Load(IniDocument* doc) {
    SettingsPage::Load(doc);
    if (!m_list)
        return;
    SendMessageW(m_list, LVM_DELETEALLITEMS, 0, 0);
    m_plugins.FillCheckList(m_list);
}

// Each row is written under the name the registry lists first for its library path, so two
// registrations of one library both write the first one's value.
void PluginsPage::Save(IniDocument*) {
    if (!m_list)
        return;
    std::vector<std::pair<std::wstring, std::wstring>> values;
    const int rows = static_cast<int>(SendMessageW(m_list, LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < rows; ++row) {
        LVITEMW item = {};
        item.mask = LVIF_PARAM;
        item.iItem = row;
        if (!SendMessageW(m_list, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) || !item.lParam)
            continue;
        const Plugin* plugin = reinterpret_cast<const Plugin*>(item.lParam);
        const wchar_t* name = m_plugins.RegistrationName(plugin->Path());
        if (!name)
            continue;
        const bool checked = ListView_GetCheckState(m_list, row) != 0;
        values.emplace_back(name, PluginValueText(plugin->Path(), checked));
    }
    // With no key there is nothing registered to write back.
    if (!values.empty())
        WriteUserStringsToExistingKey(kPluginsRegistryKey, values);
}

void PluginsPage::OnDestroy() {
    if (m_list && IsWindow(m_list))
        DestroyWindow(m_list);
    m_list = nullptr;
}

} // namespace cv2
