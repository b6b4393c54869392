// Where General Settings keeps its two switches outside config.ini: the start-up shortcut that
// starts the bar after a soft reset, and the sound-hook value in the user's registry.
#pragma once

#include <string>

namespace cv2 {

// The registry value of the "Disable the extended sound hook" switch (under kBarRegistryKey).
constexpr wchar_t kSoundHookValue[] = L"H5555";

// The shortcut's file in the Startup folder; empty when the folder is unknown.
std::wstring StartupShortcutPath(const std::wstring& startupFolder);

// What the shortcut starts: the bar's executable beside this program, quoted, with "/boot".
// `settingsFolder` is this program's folder with its trailing backslash.
std::wstring StartupShortcutTarget(const std::wstring& settingsFolder);

} // namespace cv2
