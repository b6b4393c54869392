// Texts shared by the dialogs of several appearance pages.
CV_STRING(IDS_LEFT_SHORT, 236, L"Left:")
CV_STRING(IDS_RIGHT_SHORT, 237, L"Right:")
