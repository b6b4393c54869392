// Section "Overrides" of config.ini: which parts of the current theme the bar leaves out, and the
// one font that replaces the theme's fonts. Kept in config.ini so the choice holds for every
// theme.
#pragma once

#include <string>

#include "store/ini_document.h"

namespace cv2 {

// Face names are held in buffers of this many characters (49 and the terminator).
constexpr int kFaceNameChars = 50;

struct OverrideValues {
    bool useSounds = true;
    bool useColors = true;
    bool customFont = false;
    std::wstring fontName = L"Tahoma";
};

OverrideValues ReadOverrideValues(const IniDocument& doc);
// Writes the four keys in the page's fixed order; the font name is cut to 49 characters.
void WriteOverrideValues(IniDocument& doc, const OverrideValues& values);

// Vertical-writing families ("@" names) are not offered as the replacement font.
bool IsOfferedFontFamily(const wchar_t* family);

} // namespace cv2
