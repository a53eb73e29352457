// Control identifiers of the windows of a grid. A host meets them when it looks for a child window of the
// grid, or in the WM_COMMAND of a part of an editor that has no handler of its own; its own children of a
// grid take others.
#pragma once

namespace QuorUiCtr
{

// The editor of whatever kind, a child of the grid. There is one at most; a hidden one is left from the last
// session.
constexpr unsigned int CellEditorId = 101;
// The header windows, children of the grid: the corner, the column header and the row header.
constexpr unsigned int QuadId = 102;
constexpr unsigned int ColHeaderId = 103;
constexpr unsigned int RowHeaderId = 104;
// The button or the spin of an editor, a child of that editor.
constexpr unsigned int CellEditorPartId = 105;

} // namespace QuorUiCtr
