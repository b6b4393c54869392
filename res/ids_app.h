// Resource ids of the application shell, at their documented numbers.
#pragma once

#define IDM_MAIN_MENUBAR 111     // menu of the main window's menu bar
#define IDB_MENUBAR_SMALL 105    // Apply and Cancel images, 16 pixels (96 dpi)
#define IDB_MENUBAR_LARGE 112    // Apply and Cancel images, 32 pixels (192 dpi)

#define IDC_APPLY 40001
#define IDC_CANCEL_EDITS 40002
#define IDC_ABOUT 40016
