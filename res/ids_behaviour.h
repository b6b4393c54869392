// Resource ids of the behaviour area, at their documented numbers.
#pragma once

// Controls of the behaviour pages. All pages share one host window, so each page's ids start at
// ten times its title's string number to stay apart from the other pages.
#define IDC_CLOCK_STYLE 1020
#define IDC_CLOCK_TIME_LABEL 1021
#define IDC_CLOCK_TIME 1022
#define IDC_CLOCK_DATE_LABEL 1023
#define IDC_CLOCK_DATE 1024
#define IDC_CLOCK_SHOW_TIME 1025
#define IDC_CLOCK_SHOW_DATE 1026
#define IDC_CLOCK_NOTE 1027
#define IDC_GENERAL_LIST 1170
#define IDC_START_MENU_LIST 1810

// Program Directories.
#define IDC_PROGRAM_START_MENU_LABEL 1120
#define IDC_PROGRAM_START_MENU_PATH 1121
#define IDC_PROGRAM_START_MENU_BROWSE 1122
#define IDC_PROGRAM_THEMES_LABEL 1123
#define IDC_PROGRAM_THEMES_LIST 1124
#define IDC_PROGRAM_THEMES_ADD 1125
#define IDC_PROGRAM_THEMES_DELETE 1126

// Rule list pages: the controls are children of the host window, so each page tells its own
// apart by window handle; the button ids are those of their texts.
#define IDC_RULE_ADD 115
#define IDC_RULE_DELETE 116
#define IDC_RULE_CAPTION 133
#define IDC_RULE_OPTION 134
#define IDC_RULE_MODIFY 135
#define IDC_RULE_LIST 1320

// Custom task dialog: a window title or process name and what to do with it.
#define IDD_CUSTOM_TASK 118
#define IDC_TASK_TEXT_CAPTION 1301
#define IDC_TASK_TEXT 1302
#define IDC_TASK_BROWSE 1303
#define IDC_TASK_ACTION_CAPTION 1304
#define IDC_TASK_ACTION_1 1305
#define IDC_TASK_ACTION_2 1306
#define IDC_TASK_ACTION_3 1307

// List picker of the running applications: one template for portrait and square screens, one
// for landscape screens.
#define IDD_TASK_PICKER 119
#define IDD_TASK_PICKER_WIDE 131
#define IDC_TASK_PICKER_LABEL 1311
#define IDC_TASK_PICKER_LIST 1312

// Button Assignments, in creation order.
#define IDC_ASSIGN_BUTTON 640
#define IDC_ASSIGN_VISIBLE 641
#define IDC_ASSIGN_TAP_LABEL 642
#define IDC_ASSIGN_TAP 643
#define IDC_ASSIGN_TAP_BROWSE 644
#define IDC_ASSIGN_HOLD_LABEL 645
#define IDC_ASSIGN_HOLD 646
#define IDC_ASSIGN_HOLD_BROWSE 647

// Button Order.
#define IDC_ORDER_LIST 1490
#define IDC_ORDER_MOVE 1491

// Plugins.
#define IDC_PLUGIN_LIST 1650
