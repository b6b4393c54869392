// The theme a preview shows, read from a file: a current-format theme as it stands, a theme of
// the first format converted in memory (its file is never changed), and config.ini itself as the
// custom theme.
#pragma once

#include <string>

#include "store/ini_document.h"
#include "themes/older_theme.h"

namespace cv2 {

struct PreviewTheme {
    IniDocument doc;     // the appearance sections
    std::wstring folder; // where picture names that are not absolute paths are looked for
};

// A theme file without "Skin Info" is of the first format, as My Theme lists it.
bool IsFirstFormatTheme(const IniDocument& file);

// The document the preview reads for a theme file already loaded: itself, or its conversion.
// A file named config.ini is the custom theme and is taken as it stands.
PreviewTheme PreviewThemeOf(const IniDocument& file, const OlderThemeColors& colors);

// Loads the theme file at `path`; false (and `theme` untouched) when it cannot be read.
bool LoadPreviewTheme(const std::wstring& path, const OlderThemeColors& colors,
                      PreviewTheme& theme);

} // namespace cv2
