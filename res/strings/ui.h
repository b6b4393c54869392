// Texts of shared editors: pickers, grid, file browser, background dialogs.
// Colour picker and font picker.
CV_STRING(IDS_COLOR_RED, 240, L"Red:")
CV_STRING(IDS_COLOR_GREEN, 241, L"Green:")
CV_STRING(IDS_COLOR_BLUE, 242, L"Blue:")
CV_STRING(IDS_FONT_NAME, 254, L"Font Name:")
CV_STRING(IDS_FONT_SIZE, 255, L"Font Size:")
CV_STRING(IDS_FONT_COLOR, 256, L"Color")
CV_STRING(IDS_FONT_SHADOW_COLOR, 257, L"Shadow Color")
CV_STRING(IDS_FONT_STYLE, 258, L"Font Style:")
CV_STRING(IDS_FONT_BOLD, 259, L"Bold")
CV_STRING(IDS_FONT_ITALIC, 260, L"Italic")
CV_STRING(IDS_FONT_UNDERLINE, 261, L"Underline")
CV_STRING(IDS_FONT_STRIKEOUT, 262, L"Strikeout")
CV_STRING(IDS_FONT_SHADOW, 263, L"Shadow")
CV_STRING(IDS_FONT_GLOW, 264, L"Glow")
CV_STRING(IDS_COLOR_PICKER_TITLE, 1000, L"Choose Color")
CV_STRING(IDS_FONT_PICKER_TITLE, 1001, L"Choose Font")
// File browser.
CV_STRING(IDS_GRAPHICS_FILTER, 8, L"Graphics Files|*.jpg;*.png;*.gif;*.bmp|All Files|*.*")
CV_STRING(IDS_ALL_FILES_FILTER, 42, L"All Files|*.*")
CV_STRING(IDS_MY_DEVICE, 44, L"My Device")
// Drawn in a thumbnail cell while the grid's parent prepares the item.
CV_STRING(IDS_GRID_LOADING, 1002, L"Loading...")
// Titles of the file browser, picking a file or a folder.
CV_STRING(IDS_BROWSE_FILE_TITLE, 1040, L"Open")
CV_STRING(IDS_BROWSE_FOLDER_TITLE, 1041, L"Choose Folder")
