// Colour values as the bar stores them: a COLORREF (red in the low byte, then green, then blue,
// top byte 0), written into settings files as the decimal text of the whole value.
#pragma once

#include <cstdint>

#include "store/ini_document.h"

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

// The colour of `key`, read as a leading decimal number; `def` when the key is missing.
ColorRef ReadColor(const IniDocument& doc, const wchar_t* section, const wchar_t* key,
                   ColorRef def);
// Writes the colour as a signed 32-bit decimal, so that any value reads back unchanged.
void WriteColor(IniDocument& doc, const wchar_t* section, const wchar_t* key, ColorRef color);

// A colour channel as typed into a number box: only the first four characters count, read as a
// decimal number (letters give 0). Not clamped: the slider does that.
constexpr int kChannelTextChars = 4;
int ChannelFromText(const wchar_t* text);

// The colour picker's preview swatch in client pixels. Its left and right edges follow the
// vertical density and its top and bottom the horizontal one; both are equal on every screen the
// bar runs on.
struct PreviewBox {
    int left, top, right, bottom;
};
PreviewBox ColorPreviewBox(int dpiX, int dpiY);

} // namespace cv2
