#include "plugin_test_support.h"

#include "pages/behaviour/plugins/plugin_values.h"
#include "platform/device_phone.h"
#include "platform/file_access.h"

namespace cv2test {

std::wstring BuiltPlugin(const wchar_t* file) {
    // The build's folder as this machine names it; Wine shows it as drive Z:.
    std::string dir = CV2_PLUGIN_DIR;
    std::wstring path = L"Z:";
    for (char c : dir)
        path += c == '/' ? L'\\' : static_cast<wchar_t>(static_cast<unsigned char>(c));
    return path + L"\\" + file;
}

std::wstring CopyPlugin(const TempFolder& dir, const wchar_t* file) {
    const std::wstring copy = dir.File(file);
    CopyFileW(BuiltPlugin(file).c_str(), copy.c_str(), FALSE);
    return copy;
}

std::vector<std::string> PluginCalls(const std::wstring& path) {
    cv2::Bytes bytes;
    cv2::ReadWholeFile(path + L".log", bytes);
    std::vector<std::string> lines;
    std::string line;
    for (unsigned char c : bytes) {
        if (c == '\n') {
            lines.push_back(line);
            line.clear();
        } else if (c != '\r') {
            line += static_cast<char>(c);
        }
    }
    return lines;
}

cv2::UserValue TextValue(const std::wstring& name, const std::wstring& data) {
    cv2::UserValue value;
    value.name = name;
    value.isText = true;
    value.text = data;
    return value;
}

PluginsKeyScope::PluginsKeyScope() {
    std::vector<cv2::UserValue> values;
    m_had = cv2::ReadUserValues(cv2::kPluginsRegistryKey, values);
    for (const cv2::UserValue& v : values) {
        if (v.isText)
            m_saved.emplace_back(v.name, v.text);
    }
    RemoveKey();
}

PluginsKeyScope::~PluginsKeyScope() {
    RemoveKey();
    if (!m_had)
        return;
    HKEY key = nullptr;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, cv2::kPluginsRegistryKey, 0, nullptr, 0, KEY_WRITE,
                        nullptr, &key, nullptr) == ERROR_SUCCESS)
        RegCloseKey(key);
    for (const auto& v : m_saved)
        Set(v.first, v.second);
}

void PluginsKeyScope::Set(const std::wstring& name, const std::wstring& data) const {
    cv2::WriteUserString(cv2::kPluginsRegistryKey, name.c_str(), data);
}

void PluginsKeyScope::SetDword(const std::wstring& name, DWORD value) const {
    cv2::WriteUserDword(cv2::kPluginsRegistryKey, name.c_str(), value);
}

std::vector<cv2::UserValue> PluginsKeyScope::Values() const {
    std::vector<cv2::UserValue> values;
    cv2::ReadUserValues(cv2::kPluginsRegistryKey, values);
    return values;
}

bool PluginsKeyScope::KeyExists() const {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, cv2::kPluginsRegistryKey, 0, KEY_READ, &key) !=
        ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

void PluginsKeyScope::RemoveKey() const {
    RegDeleteKeyW(HKEY_CURRENT_USER, cv2::kPluginsRegistryKey);
}

void SetPhoneKey(bool present) {
    if (present) {
        HKEY key = nullptr;
        if (RegCreateKeyExW(HKEY_LOCAL_MACHINE, cv2::kPhoneStateKey, 0, nullptr, 0, KEY_WRITE,
                            nullptr, &key, nullptr) == ERROR_SUCCESS)
            RegCloseKey(key);
    } else {
        RegDeleteKeyW(HKEY_LOCAL_MACHINE, cv2::kPhoneStateKey);
    }
}

PhoneScope::PhoneScope(bool hasPhone) : m_had(cv2::DeviceHasPhone()) {
    SetPhoneKey(hasPhone);
}

PhoneScope::~PhoneScope() {
    SetPhoneKey(m_had);
}

} // namespace cv2test
