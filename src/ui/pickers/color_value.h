// Colour values in settings files: the decimal text of the whole COLORREF (store/color_ref.h).
#pragma once

#include "store/color_ref.h"
#include "store/ini_document.h"

namespace cv2 {

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
