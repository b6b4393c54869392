#include "platform/theme_color_table.h"

namespace cv2 {
namespace {

// By theme colour index.
const ThemeColorRow kRows[kThemeColorCount] = {
    {L"5", false, 0x00E76D08},        // 0
    {L"8", true, kSysActiveCaption},  // 1
    {L"9", false, 0x00FFFFFF},        // 2
    {L"13", false, 0x00E76D08},       // 3
    {L"14", true, kSysActiveCaption}, // 4
    {L"39", true, kSysMenuText},      // 5
    {L"7", false, 0x00C6CFDE},        // 6
    {L"4", false, 0},                 // 7
};

} // namespace

const ThemeColorRow* ThemeColorRowAt(int index) {
    return index >= 0 && index < kThemeColorCount ? &kRows[index] : nullptr;
}

ColorRef ResolveThemeColor(int index, const ReadColorValue& read, const SystemColor& system) {
    const ThemeColorRow* row = ThemeColorRowAt(index);
    if (!row)
        return 0;
    uint32_t value = 0;
    if (read && read(row->valueName, value))
        return value;
    if (!row->fallbackIsSystem)
        return row->fallback;
    return system ? system(static_cast<int>(row->fallback)) : 0;
}

} // namespace cv2
