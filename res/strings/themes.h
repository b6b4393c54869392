// Texts of theme catalogue, theme editor, import and export, overrides.
// Theme Overrides
CV_STRING(IDS_THEME_OVERRIDES, 161, L"Theme Overrides")
CV_STRING(IDS_OVERRIDE_SOUNDS, 162, L"Use the sounds provided by the theme")
CV_STRING(IDS_OVERRIDE_COLORS, 163, L"Apply the theme's colors")
CV_STRING(IDS_OVERRIDE_FONTS, 164, L"Replace the theme's fonts with")
// My Theme (the theme catalogue)
CV_STRING(IDS_MY_THEME, 207, L"My Theme")
CV_STRING(IDS_OLDER_THEME_PREFIX, 208, L"[1.x Theme] ")
CV_STRING(IDS_DELETE_THEME_QUESTION, 209, L"Are you sure you want to delete the selected theme?")
CV_STRING(IDS_CONFIRM_DELETE, 210, L"Confirm Delete")
CV_STRING(IDS_CUSTOMIZE, 274, L"Customize")
// The catalogue's own title for its "Details" button and box: number 297 is the Delays page's
// "Notify Reminder:" in every language module.
CV_STRING(IDS_THEME_DETAILS, 1070, L"Details")
// Ends the details of a theme whose pictures or sounds are missing; the missing paths follow.
CV_STRING(IDS_MISSING_FILES, 1071, L"\r\nMissing files: %s\r\n")
