// Resource ids of the application shell, at their documented numbers.
#pragma once

#define IDM_MAIN_MENUBAR 111     // menu of the main window's menu bar
#define IDB_MENUBAR_SMALL 105    // Apply and Cancel images, 16 pixels (96 dpi)
#define IDB_MENUBAR_LARGE 112    // Apply and Cancel images, 32 pixels (192 dpi)

#define IDC_APPLY 40001
#define IDC_CANCEL_EDITS 40002
#define IDC_ABOUT 40016
// The "Screen" submenu on a desktop: one command per device screen, in the screens' order.
#define IDC_SCREEN_FIRST 40100
#define IDC_SCREEN_LAST 40105

// About box: templates and controls.
#define IDD_ABOUT_PORTRAIT 114
#define IDD_ABOUT_LANDSCAPE 132
#define IDC_ABOUT_LOGO 1001
#define IDC_ABOUT_TITLE 1002
#define IDC_ABOUT_VERSION 1003
#define IDC_ABOUT_VERSION2 1004
#define IDC_ABOUT_LEGAL 1005
#define IDC_ABOUT_HOME_LABEL 1006
#define IDC_ABOUT_HOME 1007
#define IDC_ABOUT_SUPPORT_LABEL 1008
#define IDC_ABOUT_SUPPORT 1009
#define IDC_ABOUT_CREDITS 1010
