// Rows leave the grid: the hooks that tell of it, the slots, and what refers to rows by their index.
#include "grid/model/GridStructure.h"
#include "grid/model/LateNumbers.h"
#include "grid/model/RowWatch.h"
#include "rules/SelectedIndices.h"

#include <algorithm>
#include <climits>

namespace QuorUiCtr
{

bool TGGrid::Structure::PrepareToGo(TGGridRow& row)
{
    const RowWatch watch(grid, &row);
    grid.EndEditCell();
    if (watch.IsAlive())
        grid.SelectRow(row.GetIndex(), false);
    // What the hook has opened may stand on the row.
    grid.CancelEditCell();
    return watch.IsAlive() && grid.RowAtIndex(row.GetIndex()) == &row;
}

void TGGrid::Structure::HideRow(long i)
{
    TGGridRow* row = grid.RowAtIndex(i);
    if (row == nullptr || !PrepareToGo(*row))
        return;
    RemoveRow(row->GetIndex());
    row->SetIndex(-1);
}

std::vector<const TGGridRow*> TGGrid::Structure::RowsAtIndices(std::span<const long> indices)
{
    std::vector<const TGGridRow*> found;
    found.reserve(indices.size());
    for (const long i : indices)
        found.push_back(grid.RowAtIndex(i));
    return found;
}

void TGGrid::Structure::RemoveRow(long at)
{
    const TGGridRow* row = grid.RowAtIndex(at);
    RemoveRows(at, 1, row != nullptr ? row->index : -1);
}

void TGGrid::Structure::RemoveRows(long at, long number, long stored)
{
    const long before = grid.GetRowNum();
    grid.rows.Release(at, number);
    if (grid.numberedRows == LONG_MAX && LateNumbers::Note(grid, stored, number))
        grid.rows.MoveTo(-1);
    else
        NumberRows(at);
    // A hook may have selected one of the rows again.
    const long first = SelectedIndices::LowerBound(grid.rowSel, at);
    grid.rowSel.Release(first, SelectedIndices::LowerBound(grid.rowSel, at + number) - first);
    SelectedIndices::CloseGap(grid.rowSel, at, number);
    if (grid.curRowIndex >= at && grid.curRowIndex < before)
        grid.SetCurRowIndex(grid.curRowIndex < at + number ? -1 : grid.curRowIndex - number);
}

} // namespace QuorUiCtr
