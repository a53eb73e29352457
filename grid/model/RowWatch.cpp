// References to rows that hooks may delete.
#include "grid/model/RowWatch.h"

#include "grid/edit/CellWatch.h"
#include "grid/model/GridExtensions.h"
#include "grid/model/GridStructure.h"

#include <algorithm>

namespace QuorUiCtr
{

RowWatch::RowWatch(TGGrid& grid, const TGGridRow* watchedRow) : ListedWatch(grid.rowWatches), row(watchedRow)
{
}

void TGGrid::ForgetRow(const TGGridRow* row)
{
    RowWatch::TellAll(rowWatches, [row](RowWatch& watch) {
        if (watch.row == row)
            watch.row = nullptr;
    });
    if (extensions != nullptr)
        extensions->Tell(GridExtensions::RowDeleted, row);
}

// Without this, code that a hook has interrupted would go on with rows that stand in no grid any more.
void TGGrid::ForgetTaken(std::span<TGGridRow* const> taken)
{
    const auto isTaken = [taken](const TGGridRow* row) {
        while (row != nullptr && std::find(taken.begin(), taken.end(), row) == taken.end())
            row = Structure::ParentOf(const_cast<TGGridRow*>(row));
        return row != nullptr;
    };
    RowWatch::TellAll(rowWatches, [&](RowWatch& watch) {
        if (isTaken(watch.row))
            watch.row = nullptr;
    });
    CellWatch::TellAll(cellWatches, [&](CellWatch& watch) {
        if (watch.cell != nullptr && isTaken(&watch.cell->GetRow()))
            watch.cell = nullptr;
    });
}

} // namespace QuorUiCtr
