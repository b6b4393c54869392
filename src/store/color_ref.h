// Colour values as the bar stores them: a COLORREF (red in the low byte, then green, then blue,
// top byte 0).
#pragma once

#include <cstdint>

namespace cv2 {

using ColorRef = uint32_t;

constexpr ColorRef MakeColor(int red, int green, int blue) {
    return static_cast<ColorRef>(red & 0xFF) | static_cast<ColorRef>(green & 0xFF) << 8 |
           static_cast<ColorRef>(blue & 0xFF) << 16;
}
constexpr int RedOf(ColorRef c) {
    return static_cast<int>(c & 0xFF);
}
constexpr int GreenOf(ColorRef c) {
    return static_cast<int>((c >> 8) & 0xFF);
}
constexpr int BlueOf(ColorRef c) {
    return static_cast<int>((c >> 16) & 0xFF);
}

} // namespace cv2
