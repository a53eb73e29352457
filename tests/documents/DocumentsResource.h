// Identifiers of the resources that the tests of documents and MDI frames load.
#define IDR_MDI 100
#define IDR_LETTER 101
#define IDR_NOTE 102
#define IDR_QUIET 103
#define ID_LETTER_STAMP 40001
#define ID_NOTE_PIN 40002
#define ID_FRAME_SIGN 40003
