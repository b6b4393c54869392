// Resource ids of the theme editor, its shared image panel, the theme information dialog and
// the Import Theme page.
#pragma once

// Theme editor dialog and the image panel it lends to its pages (ids from ten times the
// "Settings" text's number).
#define IDD_THEME_EDITOR 121
#define IDC_PANEL_FIRST_LABEL 2750
#define IDC_PANEL_FIRST_PATH 2751
#define IDC_PANEL_FIRST_BROWSE 2752
#define IDC_PANEL_FIRST_PREVIEW 2753
#define IDC_PANEL_SECOND_LABEL 2754
#define IDC_PANEL_SECOND_PATH 2755
#define IDC_PANEL_SECOND_BROWSE 2756
#define IDC_PANEL_SECOND_PREVIEW 2757
#define IDC_PANEL_LIST 2758
#define IDC_PANEL_SETTINGS 2759
#define IDC_PANEL_CUSTOM_COLORS 2760

// Theme information dialog, also the export dialog (ids from ten times "Theme Name:").
#define IDD_THEME_INFO 128
#define IDC_INFO_NAME_LABEL 2490
#define IDC_INFO_NAME 2491
#define IDC_INFO_AUTHOR_LABEL 2492
#define IDC_INFO_AUTHOR 2493
#define IDC_INFO_EMAIL_LABEL 2494
#define IDC_INFO_EMAIL 2495
#define IDC_INFO_PATH_LABEL 2496
#define IDC_INFO_PATH 2497
#define IDC_INFO_BROWSE 2498
#define IDC_INFO_HIRES 2499
// Export only: copy the theme's files into its folder (ten times its text's number).
#define IDC_INFO_COPY_FILES 12510
// Export only: write the theme as one package (ten times its text's number).
#define IDC_INFO_PACKAGE 12600

// Import Theme page (ten times its title's and its second button's numbers).
#define IDC_IMPORT_THEME 1360
#define IDC_EXPORT_THEME 1370
