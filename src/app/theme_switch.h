// The silent theme switch: "--theme=<path>" on the command line stores a new theme file in
// config.ini and tells the running bar to reload, with no window at all.
#pragma once

#include <string>

namespace cv2 {

// True when the command line asks for the theme switch ("--theme=" anywhere in it).
bool IsThemeSwitch(const std::wstring& commandLine);

// The theme file the switch names: the executable's folder followed by the command line from
// its ninth character on. The value is always taken from there, wherever "--theme=" stands,
// so "-x --theme=a.skin" names "me=a.skin". Cut to a 260-character path buffer.
std::wstring ThemeSwitchPath(const std::wstring& exeFolder, const std::wstring& commandLine);

// Performs the switch: if the named theme file exists, sets "Settings"/"Theme File" in the
// folder's config.ini (a missing file counts as empty), writes it back and calls `notifyBar`.
// Returns true when config.ini was written.
bool RunThemeSwitch(const std::wstring& exeFolder, const std::wstring& commandLine,
                    void (*notifyBar)());

} // namespace cv2
