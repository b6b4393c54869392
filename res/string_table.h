// The program's visible texts: symbolic name, string number and English default.
// The localisation module "language.dll" replaces a text by holding the same number.
// Included with CV_STRING defined; no include guard on purpose.
CV_STRING(IDS_APP_TITLE, 1, L"Corvane 2 Settings")
CV_STRING(IDS_CANCEL_QUESTION, 2, L"Are you sure you want to exit without saving the changes?")
CV_STRING(IDS_CANCEL_CAPTION, 3, L"Cancel Confirmation")
