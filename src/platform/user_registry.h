// The few values the program keeps in the current user's registry, behind two small calls so the
// logic that uses them can be tested without a registry.
#pragma once

#include <cstddef>
#include <string>

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

} // namespace cv2
