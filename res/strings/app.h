// Texts of the application shell: title, confirmations, menu bar, About box.
CV_STRING(IDS_APP_TITLE, 1, L"Corvane 2 Settings")
CV_STRING(IDS_CANCEL_QUESTION, 2, L"Are you sure you want to exit without saving the changes?")
CV_STRING(IDS_CANCEL_CAPTION, 3, L"Cancel Confirmation")
CV_STRING(IDS_ABOUT_CREDITS, 4, L"Written by the CV2Settings developers. Thanks to everyone who made themes and sent in reports.")
CV_STRING(IDS_ABOUT_HOME_PAGE, 218, L"Home Page:")
CV_STRING(IDS_ABOUT_SUPPORT, 219, L"Support:")
// When Apply cannot write config.ini.
CV_STRING(IDS_SAVE_FAILED_CAPTION, 1090, L"Settings Not Saved")
CV_STRING(IDS_SAVE_FAILED, 1091, L"The settings could not be written to %s.\r\n\r\n%s\r\n\r\nYour changes are kept: press Apply again once the file can be written.")
CV_STRING(IDS_SAVE_FAILED_UNKNOWN, 1092, L"Error %s.")
// The "Screen" submenu of the main window's menu on a desktop: the device screens it can show.
CV_STRING(IDS_SCREEN_MENU, 1093, L"Screen")
CV_STRING(IDS_SCREEN_QVGA_PORTRAIT, 1094, L"QVGA Portrait (240x320)")
CV_STRING(IDS_SCREEN_QVGA_LANDSCAPE, 1095, L"QVGA Landscape (320x240)")
CV_STRING(IDS_SCREEN_QVGA_SQUARE, 1096, L"QVGA Square (240x240)")
CV_STRING(IDS_SCREEN_VGA_PORTRAIT, 1097, L"VGA Portrait (480x640)")
CV_STRING(IDS_SCREEN_VGA_LANDSCAPE, 1098, L"VGA Landscape (640x480)")
CV_STRING(IDS_SCREEN_VGA_SQUARE, 1099, L"VGA Square (480x480)")
// The desktop's stand-in for the device's "ok" button in the title bar of a full-screen dialog.
CV_STRING(IDS_DONE_BUTTON, 1200, L"ok")
