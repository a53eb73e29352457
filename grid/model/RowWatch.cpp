// References to rows that hooks may delete.
#include "grid/model/RowWatch.h"

#include "grid/model/GridExtensions.h"
#include "grid/TGGrid.h"

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

} // namespace QuorUiCtr
