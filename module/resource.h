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
