// What "Program Directories" keeps in config.ini: the folder the bar's cascading start menu shows
// and the further folders where themes are looked for.
#pragma once

#include <string>
#include <vector>

#include "store/config_sections.h"
#include "store/ini_document.h"

namespace cv2 {

constexpr const wchar_t* kStartMenuSection = config::kStartMenuSettings;
constexpr const wchar_t* kStartMenuPathKey = L"Start Menu Path";
constexpr const wchar_t* kThemeDirectoriesSection = config::kThemeDirectories;
// The start menu path is held in a buffer of this many characters.
constexpr size_t kStartMenuPathChars = 260;

// The default start menu path: the folder holding the Programs folder, with its trailing
// backslash (the Programs folder inside the start menu gives the start menu folder). Without a
// Programs folder (empty, or no backslash in it): "\Windows\Start Menu\".
std::wstring DefaultStartMenuPath(const std::wstring& programsFolder);

std::wstring LoadStartMenuPath(const IniDocument& doc, const std::wstring& defaultPath);
// Writes the text as it stands, cut to the path buffer.
void SaveStartMenuPath(IniDocument& doc, const std::wstring& path);

// The values of every entry of "Theme Directories", in file order; the keys are not looked at.
std::vector<std::wstring> LoadThemeDirectories(const IniDocument& doc);
// Empties the section (old keys do not survive) and writes the folders as "1", "2", ... in
// order, each without one trailing backslash.
void SaveThemeDirectories(IniDocument& doc, const std::vector<std::wstring>& folders);

} // namespace cv2
