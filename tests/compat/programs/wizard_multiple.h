// Identifiers of the program with many documents.
#define IDD_ABOUTBOX 100
#define IDR_MAINFRAME 128
#define IDR_PointsTYPE 129
#define ID_INDICATOR_POINTS 130
#define ID_POINTS_MIRROR 32771
