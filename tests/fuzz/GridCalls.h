// Public operations of grids, and what hosts do to them.
#pragma once

#include "grid/TGGrid.h"

namespace quor::fuzz
{

// Calls an operation with arguments that it allows.
void CallGrid(QuorUiCtr::TGGrid& grid);
// One of the operations on tree rows; nothing in a grid without them.
void CallTreeRows(QuorUiCtr::TGGrid& grid);

// Columns and rows of a new grid.
void FillGrid(QuorUiCtr::TGGrid& grid, bool everyEditor);
// Makes a column one of those with another editor.
void ChooseEditor(QuorUiCtr::TGGridCol& col);

// A row index or column index that exists; -1 when there is none.
long AnyRow(QuorUiCtr::TGGrid& grid);
long AnyCol(QuorUiCtr::TGGrid& grid);

// An object of host data or rows that the host makes.
QuorUiCtr::TGGridRow* MakeRow(QuorUiCtr::TGGrid& grid);

// What hooks do. The window may be gone afterwards.
void DoMischief(QuorUiCtr::TGGrid& grid);

} // namespace quor::fuzz
