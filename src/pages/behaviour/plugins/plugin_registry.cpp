#include "pages/behaviour/plugins/plugin_registry.h"

#include <commctrl.h>

#include <new>

#include "pages/behaviour/button_order_values.h"
#include "store/config_sections.h"
#include "store/paths.h"

namespace cv2 {
namespace {

constexpr const wchar_t* kImagesSection = config::kButtonImages;

std::wstring ImageKey(const wchar_t* name, const wchar_t* which) {
    return std::wstring(name) + L" " + which;
}

// A name a plug-in left empty matches nothing, not even an empty text.
bool Matches(const wchar_t* name, const wchar_t* wanted) {
    return name[0] && wanted && EqualsNoCase(name, wanted);
}

void AddComboRow(HWND combo, const wchar_t* text) {
    SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
}

} // namespace

void PluginRegistry::LoadFromRegistry() {
    std::vector<UserValue> values;
    ReadUserValues(kPluginsRegistryKey, values);
    Load(values);
}

void PluginRegistry::Load(const std::vector<UserValue>& values) {
    Release();
    for (const UserValue& value : values) {
        if (!FitsPluginBuffers(value.name, value.dataBytes))
            break;
        const PluginRegistration registration =
            ParsePluginValue(value.name, value.isText, value.text);
        Record record;
        record.plugin.reset(new (std::nothrow) Plugin(registration.path.c_str()));
        if (!record.plugin)
            continue;
        record.enabled = !registration.disabled && record.plugin->Loaded();
        record.name = registration.name;
        m_buttonTotal += record.plugin->Buttons().size();
        m_records.push_back(std::move(record));
    }
}

void PluginRegistry::Release() {
    for (Record& record : m_records)
        record.plugin.reset();
    m_records.clear();
    m_buttonTotal = 0;
}

void PluginRegistry::AddButtonNames(HWND combo) const {
    for (const Record& record : m_records) {
        for (const PluginButton& button : record.plugin->Buttons())
            AddComboRow(combo, button.name);
    }
}

void PluginRegistry::AddActionNames(HWND combo) const {
    for (const Record& record : m_records) {
        for (const PluginAction& action : record.plugin->Actions()) {
            if (action.present)
                AddComboRow(combo, action.name);
        }
    }
}

const wchar_t* PluginRegistry::ActionValue(const wchar_t* displayName) const {
    for (const Record& record : m_records) {
        for (const PluginAction& action : record.plugin->Actions()) {
            if (action.present && Matches(action.name, displayName))
                return action.value;
        }
    }
    return nullptr;
}

const wchar_t* PluginRegistry::ActionName(const wchar_t* value) const {
    for (const Record& record : m_records) {
        for (const PluginAction& action : record.plugin->Actions()) {
            if (action.present && Matches(action.value, value))
                return action.name;
        }
    }
    return nullptr;
}

const PluginButton* PluginRegistry::ButtonAt(size_t k) const {
    for (const Record& record : m_records) {
        const std::vector<PluginButton>& buttons = record.plugin->Buttons();
        if (k < buttons.size())
            return buttons[k].present ? &buttons[k] : nullptr;
        k -= buttons.size();
    }
    return nullptr;
}

const wchar_t* PluginRegistry::ButtonKey(size_t k) const {
    const PluginButton* button = ButtonAt(k);
    return button ? button->key : nullptr;
}

void PluginRegistry::AppendOrderItems(std::vector<OrderItem>& items) const {
    int flag = 12;
    for (const Record& record : m_records) {
        // A button without both names can be neither listed nor stored in the order.
        for (const PluginButton& button : record.plugin->Buttons())
            items.push_back(OrderItem{button.name, button.key, flag++,
                                      button.present && button.name[0] && button.key[0]});
    }
}

bool PluginRegistry::HasButton(const wchar_t* name) const {
    for (const Record& record : m_records) {
        for (const PluginButton& button : record.plugin->Buttons()) {
            if (button.present && Matches(button.name, name))
                return true;
        }
    }
    return false;
}

bool PluginRegistry::ReadButtonImages(const IniDocument& theme, const wchar_t* name,
                                      std::wstring& normal, std::wstring& pressed) const {
    if (!name || !HasButton(name))
        return false;
    normal = theme.GetString(kImagesSection, ImageKey(name, L"Normal").c_str(), L"",
                             static_cast<int>(kMaxPath));
    pressed = theme.GetString(kImagesSection, ImageKey(name, L"Pressed").c_str(), L"",
                              static_cast<int>(kMaxPath));
    return true;
}

bool PluginRegistry::WriteButtonImages(IniDocument& theme, const wchar_t* name,
                                       const std::wstring& normal,
                                       const std::wstring& pressed) const {
    if (!name || !HasButton(name))
        return false;
    theme.SetString(kImagesSection, ImageKey(name, L"Normal").c_str(),
                    CutToBuffer(normal, kMaxPath).c_str());
    theme.SetString(kImagesSection, ImageKey(name, L"Pressed").c_str(),
                    CutToBuffer(pressed, kMaxPath).c_str());
    return true;
}

const wchar_t* PluginRegistry::RegistrationName(const wchar_t* path) const {
    for (const Record& record : m_records) {
        if (EqualsNoCase(record.plugin->Path(), path))
            return record.name.c_str();
    }
    return nullptr;
}

void PluginRegistry::FillCheckList(HWND list) const {
    for (size_t i = 0; i < m_records.size(); ++i) {
        LVITEMW item = {};
        item.mask = LVIF_TEXT | LVIF_PARAM;
        item.iItem = static_cast<int>(i);
        item.pszText = const_cast<wchar_t*>(m_records[i].name.c_str());
        item.lParam = reinterpret_cast<LPARAM>(m_records[i].plugin.get());
        const int row = static_cast<int>(
            SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
        if (row >= 0)
            ListView_SetCheckState(list, row, m_records[i].enabled ? TRUE : FALSE);
    }
}

PluginRegistry& SharedPlugins() {
    static PluginRegistry registry;
    return registry;
}

} // namespace cv2
