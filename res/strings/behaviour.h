// Texts of the behaviour pages of the main window.
// Delays/Timers page
CV_STRING(IDS_DELAYS_PAGE, 211, L"Delays/Timers")
CV_STRING(IDS_STARTUP_DELAY, 212, L"Startup Delay:")
CV_STRING(IDS_SECONDS, 213, L"Seconds")
CV_STRING(IDS_PHONE_REFRESH, 214, L"Signal Strength Refresh Rate:")
CV_STRING(IDS_BOOT_DELAY, 215, L"Bootup Delay:")
CV_STRING(IDS_NOTIFY_REMINDER, 297, L"Notify Reminder:")

// Rule list pages (window rules, input panel rules, applications left unskinned).
CV_STRING(IDS_TASK_MANAGEMENT_TITLE, 203, L"Task Management")
CV_STRING(IDS_SIP_PANEL_TITLE, 166, L"SIP Panel")
CV_STRING(IDS_SKINNED_APPS_TITLE, 132, L"Skinned Applications")
CV_STRING(IDS_SKINNED_APPS_LABEL, 133, L"Ignore the applications listed below")
CV_STRING(IDS_IGNORE_ALL_APPS, 134, L"Ignore all applications")
CV_STRING(IDS_ADD, 115, L"Add")
CV_STRING(IDS_MODIFY, 135, L"Modify")
CV_STRING(IDS_DELETE, 116, L"Delete")
CV_STRING(IDS_ACTION_IGNORE, 204, L"Ignore")
CV_STRING(IDS_ACTION_MINIMIZE, 205, L"Minimize")
CV_STRING(IDS_ACTION_CLOSE, 206, L"Close")
CV_STRING(IDS_HIDE, 109, L"Hide")
CV_STRING(IDS_SHOW, 110, L"Show")

// Custom task dialog.
CV_STRING(IDS_WINDOW_TITLE_CAPTION, 243, L"Window Title:")
CV_STRING(IDS_PROCESS_NAME_CAPTION, 111, L"Process Name:")
CV_STRING(IDS_BROWSE, 244, L"Browse")
CV_STRING(IDS_TAKE_ACTION, 245, L"Take the following action:")
CV_STRING(IDS_HIDE_FROM_TASK_LIST, 246, L"Hide from the task list")
CV_STRING(IDS_MINIMIZE_WINDOW, 247, L"Minimize the window")
CV_STRING(IDS_CLOSE_WINDOW, 248, L"Close the window")
CV_STRING(IDS_OK, 232, L"OK")
CV_STRING(IDS_CANCEL, 231, L"Cancel")
