// The theme catalogue: every theme file found on the device, read far enough to list it and show
// its details. A theme is one "*.skin" file in its own folder, below the program's "Themes\"
// folder or below one of the folders listed in "Theme Directories" of config.ini.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/ini_document.h"

namespace cv2 {

// Sizes of the entry's texts, with their terminators: longer texts are cut to fit.
constexpr int kThemeAuthorChars = 50;
constexpr int kThemeEmailChars = 100;
constexpr int kThemeNameChars = 100;
constexpr int kThemeNotesChars = 260;

struct ThemeEntry {
    std::wstring path; // the ".skin" file
    std::wstring author;
    std::wstring authorEmail;
    std::wstring name;
    std::wstring notes;
    bool hiRes = false;
    // False for a theme of the first format (no "Skin Info"), also for a file that cannot be
    // read; such themes show no details and are converted when used.
    bool isCurrentFormat = false;
};

// The list's entry for the theme kept in config.ini itself; never translated.
constexpr wchar_t kCustomThemeText[] = L"Custom Theme";

// Reads the "Skin Info" of one theme file; the rest of the file is not parsed.
ThemeEntry ReadThemeEntry(const std::wstring& skinPath);

// Every "*.skin" file directly inside `folder`, in the order the file system gives them.
void ScanThemeFolder(const std::wstring& folder, std::vector<ThemeEntry>& found);

// The folders whose sub-folders hold the device's themes: exeFolder + "Themes\", then each
// folder listed in "Theme Directories" of `config`, in the listed order (the keys do not matter).
// The themes listed change with these folders only (or with the files in them).
std::vector<std::wstring> ThemeFolders(const std::wstring& exeFolder, const IniDocument& config);

// Every theme in the sub-folders of `folders`, in their order. The sub-folders are shared out
// among a few threads: most of a folder's time is spent waiting on the file system, and those
// waits overlap. The entries come out in the same order as from one thread.
std::vector<ThemeEntry> ScanThemes(const std::vector<std::wstring>& folders);
// Every theme of the device: ScanThemes of its ThemeFolders.
std::vector<ThemeEntry> ScanThemes(const std::wstring& exeFolder, const IniDocument& config);

// The file name of `path` without its folder and without its extension.
std::wstring FileTitle(const std::wstring& path);

// The text the list shows: the theme's name, or its file title when the name is empty; a theme
// of the first format shows `olderPrefix` and its file title.
std::wstring ThemeDisplayText(const ThemeEntry& entry, const std::wstring& olderPrefix);

// Author, e-mail, the high-resolution flag and, when there are any, the notes, one per line.
std::wstring ThemeDetailsText(const ThemeEntry& entry);

// The theme the program uses when config.ini names none.
std::wstring DefaultThemeFile(const std::wstring& exeFolder);

// The top folder of the theme's path: its folder, cut after the first component
// ("\Storage Card\Themes\A\a.skin" gives "\Storage Card"). A storage card is mounted there.
std::wstring CardFolder(const std::wstring& themePath);

// Whether the attributes of a card folder mark a mounted storage card (the temporary bit). A
// failed query answers all ones, which carries that bit as well: a theme whose top folder cannot
// be asked about counts as being on a card, as the bar itself has it.
bool IsCardAttributes(uint32_t attributes);

// "Theme On Card" for a theme file: the attributes of its CardFolder, asked of the file system.
bool ThemeOnCard(const std::wstring& themePath);

} // namespace cv2
