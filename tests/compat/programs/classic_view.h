// Identifiers of the program with a document and a view.
#define IDR_MAINFRAME 128
#define IDS_DISCARD 201
#define ID_COLOR_FIRST 32780
#define ID_COLOR_RED 32780
#define ID_COLOR_GREEN 32781
#define ID_COLOR_BLUE 32782
#define ID_COLOR_LAST 32782
