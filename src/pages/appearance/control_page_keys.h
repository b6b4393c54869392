// The sections of the theme editor's pages that have controls of their own, each described once:
// key names, types, defaults and the order they are written in, with the display names of the
// pages whose rows are listed (system colours, sound events) beside their keys.
#pragma once

#include <cstddef>

#include "pages/setting_table.h"
#include "store/strings.h"

namespace cv2 {

// Application Buttons: section "Buttons". The picture and margin keys are lower case, the
// colour keys capitalised; the button font follows the keys.
extern const SettingSection kAppButtonsSection;
enum AppButtonRow : size_t {
    kAppNormal,
    kAppPressed,
    kAppDisabled,
    kAppFocused,
    kAppLeft,
    kAppRight,
    kAppTop,
    kAppBottom,
    kAppPressedColor,
    kAppDisabledColor,
};
// The images dialog edits the four pictures and the four margins: rows kAppNormal to kAppBottom.
constexpr size_t kAppImageRows = 8;

// System Colors: section "Colors", nineteen colours in list order, and their display names.
constexpr size_t kSystemColorCount = 19;
extern const SettingSection kSystemColorsSection;
extern const StringId kSystemColorNames[kSystemColorCount];

// Taskbar Fonts: three sections that hold one font record each, in load and save order.
extern const SettingSection kTitleFontSection;
extern const SettingSection kClockFontSection;
extern const SettingSection kSmallClockFontSection;

// Sound Events: section "Sounds", thirteen paths in list order, and their display names.
constexpr size_t kSoundEventCount = 13;
extern const SettingSection kSoundsSection;
extern const StringId kSoundEventNames[kSoundEventCount];

// Notifications: the pictures of each custom notification, in a section of its own whose name
// is "Notify." followed by the notification's title; "*" stands for the title.
extern const SettingSection kNotifyImagesSection;
enum NotifyImageRow : size_t { kNotifyNormal, kNotifyPressed };

} // namespace cv2
