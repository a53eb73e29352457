// Control identifiers of the cell editors' windows. A host meets them when it looks for a child window of the
// grid, or in the WM_COMMAND of a part that has no handler of its own; its own children of a grid take
// others.
#pragma once

namespace QuorUiCtr
{

// The editor of whatever kind, a child of the grid. There is one at most; a hidden one is left from the last
// session. The header windows follow with 102 to 104.
constexpr unsigned int CellEditorId = 101;
// The button or the spin of an editor, a child of that editor.
constexpr unsigned int CellEditorPartId = 105;

} // namespace QuorUiCtr
