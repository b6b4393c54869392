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
