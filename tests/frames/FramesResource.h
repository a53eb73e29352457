// Identifiers of the resources in Frames.rc.
#define IDR_FRAMES 22001
#define IDR_DAMAGED 22002
#define IDD_BAR 22003
#define IDR_SCRIPTED 22004

#define IDC_BAR_EDIT 22010
#define IDC_BAR_BUTTON 22011

#define ID_RED 0x8201
#define ID_GREEN 0x8202
#define ID_BLUE 0x8203
#define ID_YELLOW 0x8204
#define ID_NOBODY 0x8205
#define ID_INDICATOR_PLACE 0x8206
