// Identifiers of the resources in Controls.rc.
#define IDD_WITH_FONT 21001
#define IDD_FORM 21002
#define IDR_FRAME 21003
#define IDB_NUMBERED 21004

#define IDC_FORM_EDIT 21010
#define IDC_FORM_BUTTON 21011
#define IDC_FORM_EDIT2 21012

#define ID_TEST_VIEW 0x8101
#define ID_TEST_FRAME 0x8102
#define ID_TEST_NOBODY 0x8103
#define ID_TEST_UPDATED 0x8104
