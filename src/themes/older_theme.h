// Themes of the first format: flat files with every key before any section header (so they sit
// in the section with the empty name) and no "Skin Info". They are never used as they stand;
// applying or importing one translates its settings into the current appearance sections of the
// target document, which then holds them as the custom theme.
#pragma once

#include <cstddef>
#include <string>

#include "store/ini_document.h"
#include "ui/pickers/color_value.h"

namespace cv2 {

// The appearance sections a theme replaces, in the order they are deleted. A conversion deletes
// the first kConvertedSectionCount of them; an import of a current theme deletes all.
constexpr size_t kAppearanceSectionCount = 14;
constexpr size_t kConvertedSectionCount = 13;
extern const wchar_t* const kAppearanceSections[kAppearanceSectionCount];

// The device colours a conversion falls back to when the old theme does not name its background
// colours. The caller asks the device; the conversion itself never does.
struct OlderThemeColors {
    ColorRef themeColor0;   // device theme colour 0: left end of a gradient
    ColorRef themeColor1;   // device theme colour 1: right end of a gradient
    ColorRef activeCaption; // system colour of active captions: a solid fill
};

// A font of the first format: "name, size, RRGGBB, bold, italic, shadow".
struct OlderFont {
    std::wstring name;
    long size = 0;
    ColorRef color = 0;
    bool bold = false;
    bool italic = false;
    bool shadow = false;
};
// Longest font text read, with its terminator.
constexpr int kOlderFontChars = 256;
OlderFont ParseOlderFont(const std::wstring& text);
// "bold", "italic", "shadow" of the flags that are on, in that order, joined by ",".
std::wstring OlderFontStyle(const OlderFont& font);

// Translates `source` (an old theme, loaded from its file so that relative image names can be
// found beside it) into `target`, replacing the target's appearance sections.
void ConvertOlderTheme(const IniDocument& source, IniDocument& target,
                       const OlderThemeColors& colors);

} // namespace cv2
