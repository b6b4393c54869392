#include "store/scale.h"

#include <cstdint>

namespace cv2 {

int g_dpiX = 0;
int g_dpiY = 0;

int ScaleBy(int v, int dpi) {
    // Wraps like the device's 32-bit int arithmetic instead of overflowing.
    uint32_t product = static_cast<uint32_t>(v) * static_cast<uint32_t>(dpi) + 48u;
    return static_cast<int32_t>(product) / 96;
}

int Scale(int v) { return ScaleBy(v, g_dpiY); }

int ScaleX(int v) { return ScaleBy(v, g_dpiX); }

bool IsPortraitWidth(int width) { return width % 240 == 0; }

DialogLayout ChooseLayout(int width, int height, bool hasSquareTemplate) {
    if (hasSquareTemplate && width == height)
        return DialogLayout::Square;
    return IsPortraitWidth(width) ? DialogLayout::Portrait : DialogLayout::Landscape;
}

} // namespace cv2
