// Texts of the theme editor, its image panel, the theme information dialog and the Import
// Theme page.
CV_STRING(IDS_IMPORT_THEME, 136, L"Import Theme")
CV_STRING(IDS_EXPORT_THEME, 137, L"Export Theme")
CV_STRING(IDS_SKIN_FILTER, 138, L"Skin Files|*.skin|All Files|*.*")
CV_STRING(IDS_THEME_NAME, 249, L"Theme Name:")
CV_STRING(IDS_THEME_AUTHOR, 250, L"Author:")
CV_STRING(IDS_THEME_EMAIL, 251, L"E-Mail Address:")
CV_STRING(IDS_THEME_PATH, 252, L"File Path:")
CV_STRING(IDS_THEME_HIRES, 253, L"This theme is hi-res")
CV_STRING(IDS_PANEL_SETTINGS, 275, L"Settings")
CV_STRING(IDS_PANEL_CUSTOM_COLORS, 276, L"Use Custom Colors")
CV_STRING(IDS_THEME_INFO_TITLE, 1250, L"Theme Information")
// Export: copying the theme's pictures and sounds into its folder.
CV_STRING(IDS_EXPORT_COPY_FILES, 1251, L"Copy pictures and sounds into the theme's folder")
CV_STRING(IDS_EXPORT_COPY_FAILED, 1252, L"These files could not be copied into %s:\r\n")
// Export as one theme package instead of a folder.
CV_STRING(IDS_EXPORT_PACKAGE, 1260, L"Save as a package (.zip)")
CV_STRING(IDS_EXPORT_PACKAGE_FAILED, 1261, L"The package could not be written:\r\n%s")
