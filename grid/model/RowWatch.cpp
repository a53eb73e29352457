// References to rows that hooks may delete.
#include "grid/model/RowWatch.h"

#include "grid/TGGrid.h"

namespace QuorUiCtr
{

RowWatch::RowWatch(TGGrid& watchingGrid, const TGGridRow* watchedRow)
    : grid(watchingGrid), row(watchedRow), next(watchingGrid.rowWatches)
{
    if (next != nullptr)
        next->previous = this;
    grid.rowWatches = this;
}

RowWatch::~RowWatch()
{
    (previous != nullptr ? previous->next : grid.rowWatches) = next;
    if (next != nullptr)
        next->previous = previous;
}

void TGGrid::ForgetRow(const TGGridRow* row)
{
    for (RowWatch* watch = rowWatches; watch != nullptr; watch = watch->next)
        if (watch->row == row)
            watch->row = nullptr;
}

} // namespace QuorUiCtr
