// Texts of the application shell: title, confirmations, menu bar, About box.
CV_STRING(IDS_APP_TITLE, 1, L"Corvane 2 Settings")
CV_STRING(IDS_CANCEL_QUESTION, 2, L"Are you sure you want to exit without saving the changes?")
CV_STRING(IDS_CANCEL_CAPTION, 3, L"Cancel Confirmation")
