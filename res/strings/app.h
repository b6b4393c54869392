// Texts of the application shell: title, confirmations, menu bar, About box.
CV_STRING(IDS_APP_TITLE, 1, L"Corvane 2 Settings")
CV_STRING(IDS_CANCEL_QUESTION, 2, L"Are you sure you want to exit without saving the changes?")
CV_STRING(IDS_CANCEL_CAPTION, 3, L"Cancel Confirmation")
CV_STRING(IDS_ABOUT_CREDITS, 4, L"Written by the CV2Settings developers. Thanks to everyone who made themes and sent in reports.")
CV_STRING(IDS_ABOUT_HOME_PAGE, 218, L"Home Page:")
CV_STRING(IDS_ABOUT_SUPPORT, 219, L"Support:")
