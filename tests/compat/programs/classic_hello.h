// Identifiers of the program with a frame window.
#define IDR_MAINFRAME 128
#define IDD_ABOUT 100
#define IDS_ABOUT 200
#define IDC_ABOUT_TEXT 1000
#define ID_VIEW_LOUD 32771
