// Identifiers of the program with one document at a time.
#define IDD_ABOUTBOX 100
#define IDR_MAINFRAME 128
#define ID_INDICATOR_LENGTH 130
#define ID_EDIT_UPPERCASE 32771
