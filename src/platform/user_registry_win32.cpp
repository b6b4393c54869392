#include "platform/user_registry.h"

#include <windows.h>

#include <algorithm>
#include <cstring>
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

namespace cv2 {
namespace {

// The text of string data of `bytes` bytes, ending at the first terminator or at the end of the
// data, whichever comes first (an odd last byte is dropped).
std::wstring TextOfData(const std::vector<BYTE>& data, DWORD bytes) {
    const size_t chars = bytes / sizeof(wchar_t);
    std::wstring text(chars, L'\0');
    if (chars)
        memcpy(&text[0], data.data(), chars * sizeof(wchar_t));
    const size_t end = text.find(L'\0');
    if (end != std::wstring::npos)
        text.resize(end);
    return text;
}

// Reads value `index`; the buffers grow until the value fits, so no name or text is ever cut
// here. False when there is no such value.
bool EnumValue(HKEY hkey, DWORD index, UserValue& value) {
    std::vector<wchar_t> name(256);
    std::vector<BYTE> data(1024);
    for (;;) {
        DWORD nameChars = static_cast<DWORD>(name.size());
        DWORD bytes = static_cast<DWORD>(data.size());
        DWORD type = 0;
        const LONG rc = RegEnumValueW(hkey, index, name.data(), &nameChars, nullptr, &type,
                                      data.data(), &bytes);
        if (rc == ERROR_MORE_DATA) {
            // Registry value names are at most 16,383 characters.
            if (name.size() < 16384)
                name.resize(16384);
            data.resize(std::max<size_t>(data.size() * 2, bytes + sizeof(wchar_t)));
            if (data.size() > (64u << 20))
                return false;
            continue;
        }
        if (rc != ERROR_SUCCESS)
            return false;
        value.name.assign(name.data(), std::min<size_t>(nameChars, name.size()));
        value.dataBytes = bytes;
        value.isText = type == REG_SZ || type == REG_EXPAND_SZ;
        value.text =
            value.isText ? TextOfData(data, std::min<DWORD>(bytes, data.size())) : std::wstring();
        return true;
    }
}

} // namespace

bool ReadUserValues(const wchar_t* key, std::vector<UserValue>& values) {
    values.clear();
    HKEY hkey = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, key, 0, KEY_QUERY_VALUE, &hkey) != ERROR_SUCCESS)
        return false;
    UserValue value;
    for (DWORD index = 0; EnumValue(hkey, index, value); ++index)
        values.push_back(value);
    RegCloseKey(hkey);
    return true;
}

bool WriteUserStringsToExistingKey(
    const wchar_t* key, const std::vector<std::pair<std::wstring, std::wstring>>& values) {
    HKEY hkey = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, key, 0, KEY_SET_VALUE, &hkey) != ERROR_SUCCESS)
        return false;
    bool ok = true;
    for (const auto& value : values) {
        const DWORD bytes = static_cast<DWORD>((value.second.size() + 1) * sizeof(wchar_t));
        ok = RegSetValueExW(hkey, value.first.c_str(), 0, REG_SZ,
                            reinterpret_cast<const BYTE*>(value.second.c_str()),
                            bytes) == ERROR_SUCCESS &&
             ok;
    }
    RegCloseKey(hkey);
    return ok;
}

} // namespace cv2
