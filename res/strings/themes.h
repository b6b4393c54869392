// Texts of theme catalogue, theme editor, import and export, overrides.
// Theme Overrides
CV_STRING(IDS_THEME_OVERRIDES, 161, L"Theme Overrides")
CV_STRING(IDS_OVERRIDE_SOUNDS, 162, L"Use the sounds provided by the theme")
CV_STRING(IDS_OVERRIDE_COLORS, 163, L"Apply the theme's colors")
CV_STRING(IDS_OVERRIDE_FONTS, 164, L"Replace the theme's fonts with")
