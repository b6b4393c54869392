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

// The sections a theme owns: a theme file holds them, and the theme editor's pages write them into
// config.ini as the custom theme.
constexpr wchar_t kSkinInfo[] = L"Skin Info";
constexpr wchar_t kButtonImages[] = L"Button Images";
constexpr wchar_t kTopbar[] = L"Topbar";
constexpr wchar_t kTodayMenubar[] = L"Today Menubar";
constexpr wchar_t kMenubar[] = L"Menubar";
constexpr wchar_t kSoftKey[] = L"SoftKey";
constexpr wchar_t kVolumeBubble[] = L"Volume Bubble";
constexpr wchar_t kStartMenuSkin[] = L"Start Menu Skin";
constexpr wchar_t kClockFont[] = L"Clock Font";
constexpr wchar_t kTitleFont[] = L"Title Font";
constexpr wchar_t kSmallClockFont[] = L"Small Clock Font";
constexpr wchar_t kButtons[] = L"Buttons";
constexpr wchar_t kSounds[] = L"Sounds";
constexpr wchar_t kColors[] = L"Colors";
constexpr wchar_t kTaskPanel[] = L"Task Panel";
// The list of custom notifications, and the start of the name of each one's section.
constexpr wchar_t kCustomNotifications[] = L"Custom Notifications";
constexpr wchar_t kNotifyPrefix[] = L"Notify.";
// Every section named by kNotifyPrefix and a title, as tables of path keys write it.
constexpr wchar_t kNotifySections[] = L"Notify.*";

} // namespace config
} // namespace cv2
