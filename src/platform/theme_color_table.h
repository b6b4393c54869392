// The device's theme colours (the Today theme): eight colours the device keeps in its registry
// under HKEY_LOCAL_MACHINE\Software\Microsoft\Color, each as a four-byte value named by a
// number. Backgrounds take their default gradient from colours 0 and 1. Every colour has a
// fall-back for a device that does not have it: a fixed colour or one of the system colours.
#pragma once

#include <cstdint>
#include <functional>

#include "store/color_ref.h"

namespace cv2 {

constexpr int kThemeColorCount = 8;
// The registry key, below HKEY_LOCAL_MACHINE.
constexpr wchar_t kThemeColorKey[] = L"Software\\Microsoft\\Color";
// System colour indices the fall-backs name (active caption; menu text).
constexpr int kSysActiveCaption = 2;
constexpr int kSysMenuText = 7;

struct ThemeColorRow {
    const wchar_t* valueName;
    bool fallbackIsSystem; // true: `fallback` is a system colour index; false: a colour
    uint32_t fallback;
};

// The row of a theme colour; null for an index outside 0 to 7.
const ThemeColorRow* ThemeColorRowAt(int index);

// Reads a four-byte registry value by name; false when the key or value cannot be read.
using ReadColorValue = std::function<bool(const wchar_t* valueName, uint32_t& value)>;
// The system colour of an index.
using SystemColor = std::function<ColorRef(int index)>;

// Theme colour `index` from the device, or its fall-back; 0 for an index outside 0 to 7.
ColorRef ResolveThemeColor(int index, const ReadColorValue& read, const SystemColor& system);

} // namespace cv2
