// Test support for plug-ins: the sample plug-in and its variants as the build made them, copied
// into a test's own folder (so each test has its own call log), and the user's plug-in list in
// the registry, emptied for a test and put back afterwards.
#pragma once

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/user_registry.h"
#include "temp_folder.h"

namespace cv2test {

// The built library of that file name ("SamplePlugin.dll", "Plugin32.dll", ...).
std::wstring BuiltPlugin(const wchar_t* file);
// Copies a built library into `dir`; returns the copy's path.
std::wstring CopyPlugin(const TempFolder& dir, const wchar_t* file);
// The calls the copy at `path` logged, one per line.
std::vector<std::string> PluginCalls(const std::wstring& path);

// A registry value as the registry would list it.
cv2::UserValue TextValue(const std::wstring& name, const std::wstring& data);

// The user's plug-in list, removed for the test and restored with its values when it ends.
class PluginsKeyScope {
  public:
    PluginsKeyScope();
    ~PluginsKeyScope();
    PluginsKeyScope(const PluginsKeyScope&) = delete;
    PluginsKeyScope& operator=(const PluginsKeyScope&) = delete;

    // Creates the key when missing and writes a REG_SZ value.
    void Set(const std::wstring& name, const std::wstring& data) const;
    // Writes a value of another type.
    void SetDword(const std::wstring& name, DWORD value) const;
    // The key's values now; empty when the key is missing.
    std::vector<cv2::UserValue> Values() const;
    bool KeyExists() const;
    void RemoveKey() const;

  private:
    bool m_had = false;
    std::vector<std::pair<std::wstring, std::wstring>> m_saved;
};

// The phone's state key of the local machine, set or removed for the test and put back after.
class PhoneScope {
  public:
    explicit PhoneScope(bool hasPhone);
    ~PhoneScope();
    PhoneScope(const PhoneScope&) = delete;
    PhoneScope& operator=(const PhoneScope&) = delete;

  private:
    bool m_had;
};

// Sets the phone's state key on or off.
void SetPhoneKey(bool present);

} // namespace cv2test
