// A font as settings data: face, point size, style flags and colours, and the five keys under
// which a page stores one font in its section.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "store/ini_document.h"
#include "ui/pickers/color_value.h"

namespace cv2 {

enum FontStyle : uint32_t {
    kFontBold = 1,
    kFontItalic = 2,
    kFontUnderline = 4,
    kFontStrikeout = 8,
    kFontShadow = 16,
    kFontGlow = 32,
};

struct StyleWord {
    uint32_t flag;
    const wchar_t* word;
};
// The style words in the order they are written.
extern const StyleWord kStyleWords[6];

// Flags of the known words of `text` (split at commas and spaces, any case); others are ignored.
uint32_t StyleFromWords(const wchar_t* text);
// The words of the set flags joined with "," in the fixed order; "" for none.
std::wstring StyleToWords(uint32_t style);

// Point sizes offered by the font picker, in the order shown.
extern const int kFontSizes[13];

// Longest face a font can carry (the platform's face buffer holds 32 characters with the NUL).
constexpr size_t kFaceChars = 31;
// Longest face read from a settings file or from the picker's face box.
constexpr int kFaceReadChars = 50;
// Longest style value read from a settings file.
constexpr int kStyleReadChars = 256;

// The values of one font as they are stored in a section.
struct FontKeys {
    std::wstring face;
    int size = 0;
    ColorRef color = 0;
    ColorRef shadowColor = 0;
    uint32_t style = 0;
};

// Reads "Name", "Size", "Color", "Shadow" and "style" of `section`, each missing key taking its
// default (`defStyle` is a style value in words).
FontKeys ReadFontKeys(const IniDocument& doc, const wchar_t* section, const wchar_t* defFace,
                      int defSize, ColorRef defColor, ColorRef defShadow, const wchar_t* defStyle);
// Writes "Name", "Size", "Color", "Shadow" and "Style", in that order.
void WriteFontKeys(IniDocument& doc, const wchar_t* section, const FontKeys& keys);

} // namespace cv2
