// What one registry value of the plug-in list says, and what is written back for it. Portable:
// the registry itself is reached through platform/user_registry.h.
#pragma once

#include <cstddef>
#include <string>

namespace cv2 {

// Under HKEY_CURRENT_USER: one value per plug-in, named by the plug-in's registration name.
constexpr wchar_t kPluginsRegistryKey[] = L"Software\\Thornlea\\Corvane 2\\Plugins";

// Buffer sizes in characters, terminator included; texts are cut to fit them.
constexpr size_t kPluginPathChars = 260;
constexpr size_t kPluginDataBytes = 524; // the value's data buffer, in bytes
constexpr size_t kPluginDataChars = kPluginDataBytes / sizeof(char16_t);
constexpr size_t kPluginRegistrationChars = 50; // the value's name buffer
constexpr size_t kPluginNameChars = 50;  // button display names and third names, action names
constexpr size_t kPluginKeyChars = 25;   // button key names
constexpr size_t kPluginValueChars = 25; // action stored values

// Marks a disabled plug-in at the end of its library path.
constexpr wchar_t kDisabledSuffix[] = L",0";

struct PluginRegistration {
    std::wstring name; // registration name, kept whole
    std::wstring path; // library path, cut to its buffer
    bool disabled = false;
};

// True when a value fits the buffers the plug-in list is read with (a name of at most 49
// characters, data of at most 524 bytes). The list ends at the first value that does not, as an
// enumeration with those buffers fails there.
bool FitsPluginBuffers(const std::wstring& name, size_t dataBytes);

// A value of any type is a plug-in; one that holds no text has an empty path (its library then
// fails to load and the plug-in is listed unchecked).
PluginRegistration ParsePluginValue(const std::wstring& name, bool isText,
                                    const std::wstring& text);

// The data written back for a plug-in: its path, with ",0" when it is not enabled.
std::wstring PluginValueText(const std::wstring& path, bool enabled);

// Copies `text` into a fixed buffer of `chars` characters, cut and terminated.
void CopyToBuffer(wchar_t* buffer, size_t chars, const wchar_t* text);

} // namespace cv2
