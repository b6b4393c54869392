// How a bar or a button area is filled behind its images: a scaled or tiled picture, a solid
// colour, a gradient or nothing, with the colours the mode needs; and the keys under which a page
// keeps its background in its section of a theme file.
#pragma once

#include <cstdint>
#include <string>

#include "store/ini_document.h"
#include "ui/pickers/color_value.h"

namespace cv2 {

// Fill modes, numbered as the background dialog lists them.
enum BackgroundMode : int32_t {
    kModeScaled = 0,
    kModeTiled = 1,
    kModeColor = 2,
    kModeGradient = 3,
    kModeNone = 4,
};
constexpr int kBackgroundModeCount = 5;

// The stored words, indexed by mode, ending with a null (the word list of a described key).
extern const wchar_t* const kBackgroundModeWords[kBackgroundModeCount + 1];

// The mode a stored word names, compared without regard to case; any other word (and no word)
// is a colour fill.
int32_t ModeFromWord(const wchar_t* word);
// The stored word of a mode; values outside the five are written as a colour fill.
const wchar_t* ModeWord(int32_t mode);

// The part of a background that the background dialog edits.
struct BackgroundFill {
    int32_t mode = kModeColor;
    ColorRef solidColor = 0;
    ColorRef leftColor = 0;  // left end of the gradient
    ColorRef rightColor = 0; // right end of the gradient
    // Nonzero: the gradient takes the device's Today theme colours instead of left and right.
    uint32_t useThemeColors = 1;
};

// A page's whole background: the picture for each screen shape and the fill behind it.
struct BackgroundRecord : BackgroundFill {
    std::wstring portraitImage;
    std::wstring landscapeImage;
};

// The colours a background takes when its section does not name them. They come from the device,
// which the caller asks: the active-caption colour and the Today theme's colours 0 and 1.
struct BackgroundDefaults {
    ColorRef solidColor;
    ColorRef leftColor;
    ColorRef rightColor;
};
// Theme colour 0 of a device that has none in its registry.
constexpr ColorRef kThemeColor0Fallback = 0x00E76D08;
// Defaults from the device's colours; a theme colour the device could not give (null) falls back:
// colour 0 to kThemeColor0Fallback, colour 1 to the active-caption colour.
BackgroundDefaults MakeBackgroundDefaults(ColorRef activeCaption, const ColorRef* themeColor0,
                                          const ColorRef* themeColor1);

// Longest image path a page keeps, with its terminating NUL.
constexpr int kBackgroundPathChars = 260;
// Longest mode word read.
constexpr int kModeWordChars = 256;

// Reads "Portrait", "Landscape", "Mode", "Solid Color", "Left Color", "Right Color" and
// "Use Theme Colors" of `section`; a missing key takes its default (images empty, mode a colour
// fill, the colours from `defaults`, theme colours on).
BackgroundRecord ReadBackground(const IniDocument& doc, const wchar_t* section,
                                const BackgroundDefaults& defaults);
// Writes the same seven keys in that order.
void WriteBackground(IniDocument& doc, const wchar_t* section, const BackgroundRecord& record);

} // namespace cv2
