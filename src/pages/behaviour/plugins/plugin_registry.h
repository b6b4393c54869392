// The application's one list of registered plug-ins, filled from the user's registry before any
// page exists and released at exit. Pages reach plug-in buttons and actions only through the
// services here, which all skip slots a plug-in left absent.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "pages/behaviour/plugins/plugin.h"
#include "platform/user_registry.h"
#include "store/ini_document.h"

namespace cv2 {

struct OrderItem;

class PluginRegistry {
  public:
    struct Record {
        std::unique_ptr<Plugin> plugin;
        bool enabled = false; // registered without ",0" and its library loaded
        std::wstring name;    // registration name
    };

    PluginRegistry() = default;
    ~PluginRegistry() { Release(); }
    PluginRegistry(const PluginRegistry&) = delete;
    PluginRegistry& operator=(const PluginRegistry&) = delete;

    // Loads every plug-in the registry lists, in enumeration order; none when the key is missing.
    void LoadFromRegistry();
    // Loads one plug-in per value, in order, after releasing any loaded before.
    void Load(const std::vector<UserValue>& values);
    // Destroys every plug-in (each library told and released), then the records.
    void Release();

    size_t Count() const { return m_records.size(); }
    const Record& At(size_t i) const { return m_records[i]; }

    // Appends a row per button slot (an absent one as an empty row, so that row k stays plug-in
    // button k), plug-ins in registry order.
    void AddButtonNames(HWND combo) const;
    // Appends the display name of every present action, in the same order.
    void AddActionNames(HWND combo) const;
    // The stored value of the first action of that display name (any case); null if none.
    const wchar_t* ActionValue(const wchar_t* displayName) const;
    // The display name of the first action of that stored value (any case); null if none.
    const wchar_t* ActionName(const wchar_t* value) const;

    // Button slots over all plug-ins.
    size_t ButtonTotal() const { return m_buttonTotal; }
    // Slot k counted across all plug-ins; null past the end or when the slot is absent.
    const PluginButton* ButtonAt(size_t k) const;
    // Its key name; null when absent.
    const wchar_t* ButtonKey(size_t k) const;
    // Appends one Button Order item per button slot, visibility flag 12 + k.
    void AppendOrderItems(std::vector<OrderItem>& items) const;

    // The images of a plug-in button in a theme file, by display name (any case); false (and
    // nothing read or written) when no present plug-in button has that name.
    bool ReadButtonImages(const IniDocument& theme, const wchar_t* name, std::wstring& normal,
                          std::wstring& pressed) const;
    bool WriteButtonImages(IniDocument& theme, const wchar_t* name, const std::wstring& normal,
                           const std::wstring& pressed) const;

    // The registration name of the first plug-in whose library path is `path` (any case); null
    // if none.
    const wchar_t* RegistrationName(const wchar_t* path) const;
    // One row per plug-in: its registration name, the plug-in as row data, checked when enabled.
    void FillCheckList(HWND list) const;

  private:
    bool HasButton(const wchar_t* name) const;

    std::vector<Record> m_records;
    size_t m_buttonTotal = 0;
};

// The application's registry.
PluginRegistry& SharedPlugins();

} // namespace cv2
