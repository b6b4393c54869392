// Resource ids of the appearance pages with controls of their own: dialog templates from 150 to
// 159, control ids ten times their label's string number.
#pragma once

// Application Buttons page (its four buttons).
#define IDC_APP_IMAGES 110
#define IDC_APP_FONT 120
#define IDC_APP_PRESSED_COLOR 130
#define IDC_APP_DISABLED_COLOR 140

// System Colors page: the selected colour's name, the list, "Change".
#define IDC_COLORS_NAME 90
#define IDC_COLORS_LIST 91
#define IDC_COLORS_CHANGE 100

// Taskbar Fonts page.
#define IDC_FONTS_TITLE 2000
#define IDC_FONTS_CLOCK 2010
#define IDC_FONTS_SMALL_CLOCK 2020

// Sound Events page.
#define IDC_SOUNDS_NAME 1670
#define IDC_SOUNDS_LIST 1671
#define IDC_SOUNDS_PATH 1680
#define IDC_SOUNDS_BROWSE 1681
#define IDC_SOUNDS_PLAY 1682

// Notifications page.
#define IDC_NOTIFY_LIST 3050
#define IDC_NOTIFY_ADD 1150
#define IDC_NOTIFY_MODIFY 1350
#define IDC_NOTIFY_DELETE 1160

// Picture rows shared by the two dialogs below: label, path box, "..." button.
#define IDC_ROW_NORMAL_LABEL 620
#define IDC_ROW_NORMAL 621
#define IDC_ROW_NORMAL_BROWSE 622
#define IDC_ROW_PRESSED_LABEL 630
#define IDC_ROW_PRESSED 631
#define IDC_ROW_PRESSED_BROWSE 632

// Application buttons' images dialog: four pictures and four margins.
#define IDD_APP_BUTTON_IMAGES 150
#define IDC_ROW_DISABLED_LABEL 2220
#define IDC_ROW_DISABLED 2221
#define IDC_ROW_DISABLED_BROWSE 2222
#define IDC_ROW_FOCUSED_LABEL 2340
#define IDC_ROW_FOCUSED 2341
#define IDC_ROW_FOCUSED_BROWSE 2342
#define IDC_MARGINS_HEADING 2350
#define IDC_MARGIN_LEFT_LABEL 2360
#define IDC_MARGIN_LEFT 2361
#define IDC_MARGIN_RIGHT_LABEL 2370
#define IDC_MARGIN_RIGHT 2371
#define IDC_MARGIN_TOP_LABEL 2380
#define IDC_MARGIN_TOP 2381
#define IDC_MARGIN_BOTTOM_LABEL 2390
#define IDC_MARGIN_BOTTOM 2391

// Notification dialog: the dialog title it recognises and its two pictures.
#define IDD_NOTIFICATION 151
#define IDC_NOTIFY_TITLE_LABEL 3060
#define IDC_NOTIFY_TITLE 3061
