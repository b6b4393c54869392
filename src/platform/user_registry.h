// The few values the program keeps in the current user's registry, behind two small calls so the
// logic that uses them can be tested without a registry.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace cv2 {

// The bar's key under HKEY_CURRENT_USER.
constexpr wchar_t kBarRegistryKey[] = L"Software\\Thornlea\\Corvane 2";

// Reads a 4-byte value of `key` under HKEY_CURRENT_USER; false when the key or value is missing
// or is not 4 bytes long.
bool ReadUserDword(const wchar_t* key, const wchar_t* name, unsigned long& value);

// Writes a REG_DWORD value, creating the key when missing; false when the key cannot be opened
// or the value cannot be written.
bool WriteUserDword(const wchar_t* key, const wchar_t* name, unsigned long value);

// Reads a REG_SZ value of `key` under HKEY_CURRENT_USER into a buffer of `bufferBytes` bytes
// (terminator included); false when the key or value is missing, is no string, or does not fit.
bool ReadUserString(const wchar_t* key, const wchar_t* name, size_t bufferBytes,
                    std::wstring& value);

// Writes a REG_SZ value, creating the key when missing; false when that fails.
bool WriteUserString(const wchar_t* key, const wchar_t* name, const std::wstring& value);

// One value of a key as enumerated: its whole name and, for string types, its text up to the
// first terminator (stored text need not have one). Other types give no text.
struct UserValue {
    std::wstring name;
    bool isText = false;
    std::wstring text;
    size_t dataBytes = 0; // the stored data's size, whatever its type
};

// Every value of `key` under HKEY_CURRENT_USER in enumeration order, each read whole whatever
// its size; false when the key does not exist.
bool ReadUserValues(const wchar_t* key, std::vector<UserValue>& values);

// Writes REG_SZ values into `key` only when it exists (it is never created); false when the key
// is missing or a value could not be written.
bool WriteUserStringsToExistingKey(
    const wchar_t* key, const std::vector<std::pair<std::wstring, std::wstring>>& values);

} // namespace cv2
