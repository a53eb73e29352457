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
#define IDS_UNDO_ENTRY 1140
#define IDS_REDO_ENTRY 1141
#define IDS_UNDO_NOTHING 1142
#define IDS_REDO_NOTHING 1143
#define IDS_UNDO_CHANGE 1144
#define IDS_UNDO_TYPING 1145
#define IDS_UNDO_INSERT_ROW 1146
#define IDS_UNDO_INSERT_ROWS 1147
#define IDS_UNDO_DELETE_ROW 1148
#define IDS_UNDO_DELETE_ROWS 1149
#define IDS_UNDO_CUT_ROW 1150
#define IDS_UNDO_CUT_ROWS 1151
#define IDS_UNDO_PASTE_ROW 1152
#define IDS_UNDO_PASTE_ROWS 1153
#define IDS_UNDO_MOVE_ROW 1154
#define IDS_UNDO_MOVE_ROWS 1155
#define IDS_UNDO_INSERT_COL 1156
#define IDS_UNDO_INSERT_COLS 1157
#define IDS_UNDO_DELETE_COL 1158
#define IDS_UNDO_DELETE_COLS 1159
#define IDS_UNDO_MOVE_COL 1160
#define IDS_UNDO_MOVE_COLS 1161
#define IDS_UNDO_RESIZE_COLS 1162
#define IDS_UNDO_SORT 1163
#define IDS_UNDO_FOLD 1164
#define IDS_UNDO_EMPTY_CELL 1165
#define IDS_UNDO_EMPTY_CELLS 1166
#define IDS_UNDO_CUT 1167
#define IDS_UNDO_PASTE 1168
#define IDS_UNDO_FILL 1169
#define IDS_UNDO_TREE_MOVE 1170
#define IDS_UNDO_TREE_NEW_FOLDER 1171
#define IDS_UNDO_TREE_RENAME 1172
#define IDS_UNDO_TREE_DELETE 1173
#define IDS_UNDO_TREE_DELETE_MANY 1174
#define IDS_UNDO_TREE_CHECK 1175
#define IDS_CLIPBOARD_COPIED 1200
#define IDS_CLIPBOARD_CUT 1201
#define IDS_CLIPBOARD_PASTED 1202
#define IDS_CLIPBOARD_FILLED 1203
#define IDS_CLIPBOARD_EMPTIED 1204
#define IDS_CLIPBOARD_ROWS_INSERTED 1205
#define IDS_CLIPBOARD_ROWS_REMOVED 1206
#define IDS_CLIPBOARD_NOTHING_SELECTED 1207
#define IDS_CLIPBOARD_DIFFERENT_SHAPES 1208
#define IDS_CLIPBOARD_BUSY 1209
#define IDS_CLIPBOARD_NOTHING_TO_PASTE 1210
#define IDS_CLIPBOARD_TOO_LARGE 1211
#define IDS_CLIPBOARD_NO_MEMORY 1212
#define IDS_CLIPBOARD_NOT_ALLOWED 1213
#define IDS_CLIPBOARD_NO_NUMBERS 1214
#define IDS_CLIPBOARD_RUNNING 1215
#define IDS_CLIPBOARD_LEFT_READ_ONLY 1216
#define IDS_CLIPBOARD_LEFT_NOT_EDITABLE 1217
#define IDS_CLIPBOARD_LEFT_REJECTED 1218
#define IDS_CLIPBOARD_LEFT_BEYOND_COL 1219
#define IDS_CLIPBOARD_LEFT_BEYOND_ROW 1220
#define IDS_CLIPBOARD_LEFT_ROW_REFUSED 1221
#define IDS_CLIPBOARD_LEFT_GONE 1222
