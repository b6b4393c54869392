// Resource ids of the themes area, at their documented numbers.
#pragma once

// Controls of the Theme Overrides page (ten times its title's string number and up).
#define IDC_OVERRIDE_SOUNDS 1610
#define IDC_OVERRIDE_COLORS 1611
#define IDC_OVERRIDE_FONTS 1612
#define IDC_OVERRIDE_FONT_LIST 1613

// Controls of the My Theme page (ten times its title's string number and up).
#define IDC_THEMES_LIST 2070
#define IDC_THEMES_CUSTOMIZE 2071
#define IDC_THEMES_DELETE 2072
#define IDC_THEMES_DETAILS 2073
#define IDC_THEMES_DETAILS_BUTTON 2074
#define IDC_THEMES_INSTALL 2078
