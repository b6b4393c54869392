// Resource ids of the behaviour area, at their documented numbers.
#pragma once

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
