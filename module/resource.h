// Identifiers of the resources in QuorUiCtrl.dll; hosts load them through AfxFindResourceHandle, which looks
// through the DLLs that are loaded. A host's own resource of the same type and number comes first: giving an
// icon 1000 replaces the marker. The numbers stay as they are for hosts that do.
#pragma once

// Markers of the row header, drawn as high as a row: the current row, and the line behind the last row where
// a new one is begun.
#define IDI_CURRENT_ROW 1000
#define IDI_NEW_ROW 1001

// Carried for hosts, which may show them over headers that select: an arrow into a row, and one down into a
// column.
#define IDC_ROW_ARROW 1002
#define IDC_COLUMN_ARROW 1003

// The texts of QuorTexts, in Chinese and English. They are read from this DLL alone: hosts replace them with
// QuorTexts::Replace.
#define IDS_MENU_INSERT_ROW 1104
#define IDS_MENU_DELETE_ROW 1105
#define IDS_MENU_DELETE 1106
#define IDS_MENU_APPEND_ROW 1107
#define IDS_MENU_SELECT_ALL 1108
#define IDS_MENU_COPY 1109
#define IDS_MENU_CUT 1110
#define IDS_MENU_PASTE 1111
#define IDS_MENU_INSERT_COL 1112
#define IDS_MENU_DELETE_COL 1113
#define IDS_MENU_APPEND_COL 1114
#define IDS_TREE_NEW_FOLDER 1115
#define IDS_TREE_DELETE_QUESTION 1116
#define IDS_TREE_INVALID_MOVE 1117
#define IDS_TREE_INVALID_NAME 1118
#define IDS_BUSY_CANCEL 1119
