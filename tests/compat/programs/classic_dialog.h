// Identifiers of the program with a dialog as its main window.
#define IDD_CONVERT 101
#define IDC_INPUT 1001
#define IDC_RESULT 1002
#define IDC_TO_FAHRENHEIT 1003
#define IDC_TO_CELSIUS 1004
#define IDC_CONVERT 1005
#define IDC_HISTORY 1006
#define IDC_KEEP 1007
#define IDC_DIGITS 1008
#define IDC_DIGITS_SPIN 1009
#define IDC_UNIT 1010
