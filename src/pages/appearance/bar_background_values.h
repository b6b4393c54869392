// The four bar sections (Taskbar Background, Today Menubar, Application Menubar, SoftKeys): each
// starts with the same seven background keys and adds its own after them. The tables here are
// the only description of their keys, defaults and order.
#pragma once

#include <cstddef>

#include "pages/setting_table.h"
#include "ui/backgrounds/background_record.h"

namespace cv2 {

// Rows of the background keys every bar section starts with.
enum BackgroundRow : size_t {
    kRowPortrait,
    kRowLandscape,
    kRowMode,
    kRowSolidColor,
    kRowLeftColor,
    kRowRightColor,
    kRowThemeColors,
    kBackgroundRowCount,
};

extern const SettingSection kTopbarSection;
extern const SettingSection kTodayMenubarSection;
extern const SettingSection kMenubarSection;
extern const SettingSection kSoftKeySection;

// Rows after the background: Today Menubar.
constexpr size_t kRowDisplayNewText = kBackgroundRowCount;
// Application Menubar.
constexpr size_t kRowPressedColor = kBackgroundRowCount;
constexpr size_t kRowNormalImage = kBackgroundRowCount + 1; // then pressed, disabled
constexpr size_t kRowLeftMargin = kBackgroundRowCount + 4;
constexpr size_t kRowRightMargin = kBackgroundRowCount + 5;
// SoftKeys: left button, right button, left pressed, right pressed, left disabled, right
// disabled.
constexpr size_t kRowFirstSoftKey = kBackgroundRowCount;
constexpr size_t kSoftKeyImageCount = 6;
// The soft-key image row of a key (0 left, 1 right) in a state (0 normal, 1 pressed,
// 2 disabled).
constexpr size_t SoftKeyRow(int key, int state) {
    return kRowFirstSoftKey + static_cast<size_t>(state) * 2 + static_cast<size_t>(key & 1);
}

// The fill that the background dialog edits, from a bar section's values (the mode word read
// as its number).
BackgroundFill FillOf(const SettingValues& values);
// Stores a fill back; the mode is kept as its word.
void SetFill(SettingValues& values, const BackgroundFill& fill);

} // namespace cv2
