// Texts of the behaviour pages of the main window.
// Delays/Timers page
CV_STRING(IDS_DELAYS_PAGE, 211, L"Delays/Timers")
CV_STRING(IDS_STARTUP_DELAY, 212, L"Startup Delay:")
CV_STRING(IDS_SECONDS, 213, L"Seconds")
CV_STRING(IDS_PHONE_REFRESH, 214, L"Signal Strength Refresh Rate:")
CV_STRING(IDS_BOOT_DELAY, 215, L"Bootup Delay:")
CV_STRING(IDS_NOTIFY_REMINDER, 297, L"Notify Reminder:")
