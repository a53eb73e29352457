// Control identifiers of the cell editors' windows.
#pragma once

namespace QuorUiCtr
{

// The editor, a child of the grid; the button or the spin, a child of the editor.
constexpr unsigned int CellEditorId = 101;
constexpr unsigned int CellEditorPartId = 105;

} // namespace QuorUiCtr
