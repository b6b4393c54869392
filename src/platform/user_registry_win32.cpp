#include "platform/user_registry.h"

#include <windows.h>

#include <vector>

namespace cv2 {

bool ReadUserDword(const wchar_t* key, const wchar_t* name, unsigned long& value) {
    HKEY hkey = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, key, 0, KEY_QUERY_VALUE, &hkey) != ERROR_SUCCESS)
        return false;
    DWORD data = 0;
    DWORD size = sizeof data;
    DWORD type = 0;
    const LONG rc =
        RegQueryValueExW(hkey, name, nullptr, &type, reinterpret_cast<BYTE*>(&data), &size);
    RegCloseKey(hkey);
    if (rc != ERROR_SUCCESS || size != sizeof data)
        return false;
    value = data;
    return true;
}

bool WriteUserDword(const wchar_t* key, const wchar_t* name, unsigned long value) {
    HKEY hkey = nullptr;
    DWORD disposition = 0;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, key, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &hkey,
                        &disposition) != ERROR_SUCCESS)
        return false;
    const DWORD data = static_cast<DWORD>(value);
    const LONG rc =
        RegSetValueExW(hkey, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&data), sizeof data);
    RegCloseKey(hkey);
    return rc == ERROR_SUCCESS;
}

bool ReadUserString(const wchar_t* key, const wchar_t* name, size_t bufferBytes,
                    std::wstring& value) {
    HKEY hkey = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, key, 0, KEY_QUERY_VALUE, &hkey) != ERROR_SUCCESS)
        return false;
    std::vector<wchar_t> buffer(bufferBytes / sizeof(wchar_t) + 1, L'\0');
    DWORD size = static_cast<DWORD>(bufferBytes);
    DWORD type = 0;
    const LONG rc =
        RegQueryValueExW(hkey, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()), &size);
    RegCloseKey(hkey);
    if (rc != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ))
        return false;
    // The stored text need not end in a terminator; the spare character holds one.
    buffer[size / sizeof(wchar_t)] = L'\0';
    value = buffer.data();
    return true;
}

bool WriteUserString(const wchar_t* key, const wchar_t* name, const std::wstring& value) {
    HKEY hkey = nullptr;
    DWORD disposition = 0;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, key, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &hkey,
                        &disposition) != ERROR_SUCCESS)
        return false;
    const DWORD bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    const LONG rc =
        RegSetValueExW(hkey, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), bytes);
    RegCloseKey(hkey);
    return rc == ERROR_SUCCESS;
}

} // namespace cv2
