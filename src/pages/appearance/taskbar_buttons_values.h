// Section "Button Images": a normal and a pressed picture for each of the bar's seventeen
// built-in buttons, under "<stem> Normal" and "<stem> Pressed", then the two "Custom" flags.
// Buttons that plug-ins add come after the built-in rows and are stored by the plug-in list.
#pragma once

#include <cstddef>

#include "pages/setting_table.h"
#include "store/strings.h"

namespace cv2 {

struct TaskbarButtonRow {
    StringId name;       // shown in the panel's list
    const wchar_t* stem; // of the two keys; several differ from the shown name
};
constexpr size_t kBuiltInButtonCount = 17;
extern const TaskbarButtonRow kTaskbarButtonRows[kBuiltInButtonCount];

// The section's keys, made once from the rows: each row's normal and pressed picture, then the
// flags "Battery/Memory Custom" and "Signal Strength Custom".
const SettingSection& ButtonImagesSection();

// The key rows of list row `row` (a built-in row).
constexpr size_t NormalKeyRow(size_t row) {
    return row * 2;
}
constexpr size_t PressedKeyRow(size_t row) {
    return row * 2 + 1;
}
constexpr size_t kBatteryCustomRow = kBuiltInButtonCount * 2;
constexpr size_t kSignalCustomRow = kBatteryCustomRow + 1;

// The flag that list row `row` shows in the "Use Custom Colors" box: battery and memory
// (row 7) have their own, signal strength and phone connected (rows 14 and 15) share one; other
// rows have none (the key row count is returned).
size_t CustomFlagRow(int row);

} // namespace cv2
