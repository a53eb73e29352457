// The identifiers of the dialog in CursorDialog.rc.
#pragma once

#define IDD_CURSOR_DIALOG 2001
#define IDC_CURSOR_GRID 2002
#define IDC_CURSOR_EDIT 2003
