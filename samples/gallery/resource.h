// Identifiers of the gallery's dialogs and controls.
#pragma once

#define IDD_MAIN 100
#define IDD_GRID_PAGE 101
#define IDD_TREE_ROWS_PAGE 102
#define IDR_MAIN_MENU 120

#define IDC_PAGES 1000
#define IDC_PAGE_AREA 1001
#define IDC_LOG 1002
#define IDC_LOG_CAPTION 1003
#define IDC_GRID 1010
#define IDC_BANNER 1011
#define IDC_FLAT_HEADERS 1012
#define IDC_FIT_LAST 1013
#define IDC_FOLD_ALL 1014
#define IDC_UNFOLD_ALL 1015
#define IDC_TREE_LINES 1016

#define ID_FILE_OPEN_TABLE 40001
#define ID_FILE_QUIT 40002
#define ID_VIEW_CLEAR_LOG 40003
#define ID_HELP_ABOUT_GALLERY 40004
