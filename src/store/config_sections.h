// The sections of config.ini, each named once; the keys of each stand in the tables of the page
// or module that owns them.
#pragma once

namespace cv2 {
namespace config {

constexpr wchar_t kSettings[] = L"Settings";
constexpr wchar_t kThemeFile[] = L"Theme File"; // in kSettings: the current theme
constexpr wchar_t kThemeOnCard[] = L"Theme On Card";
constexpr wchar_t kGeneralSettings[] = L"General Settings";
// The top bar's section has two spellings: the button pages write "Topbar Settings" and General
// Settings writes "TopBar Settings". Look-ups ignore case, so both reach the same section; each
// page keeps its own spelling for when it creates the section.
constexpr wchar_t kTopbarSettings[] = L"Topbar Settings";
constexpr wchar_t kTopBarSettings[] = L"TopBar Settings";
constexpr wchar_t kStartMenuSettings[] = L"Start Menu Settings";
constexpr wchar_t kThemeDirectories[] = L"Theme Directories";
constexpr wchar_t kActions[] = L"Actions";
constexpr wchar_t kOverrides[] = L"Overrides";
constexpr wchar_t kCustomTasks[] = L"Custom Tasks";
constexpr wchar_t kCustomSip[] = L"Custom SIP";
constexpr wchar_t kDontSkin[] = L"Dont Skin";

} // namespace config
} // namespace cv2
