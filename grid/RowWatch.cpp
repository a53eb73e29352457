// References to rows that hooks may delete.
#include "grid/RowWatch.h"

#include "grid/TGGrid.h"

namespace QuorUiCtr
{

RowWatch::RowWatch(TGGrid& watchingGrid, const TGGridRow* watchedRow)
    : grid(watchingGrid), row(watchedRow), outer(watchingGrid.rowWatches)
{
    grid.rowWatches = this;
}

RowWatch::~RowWatch()
{
    grid.rowWatches = outer;
}

void TGGrid::ForgetRow(const TGGridRow* row)
{
    for (RowWatch* watch = rowWatches; watch != nullptr; watch = watch->outer)
        if (watch->row == row)
            watch->row = nullptr;
}

} // namespace QuorUiCtr
