// References to cells that hooks may delete.
#include "grid/edit/CellWatch.h"

#include "grid/TGGrid.h"

namespace QuorUiCtr
{

CellWatch::CellWatch(TGGrid& watchingGrid, TGGridCell* watchedCell)
    : grid(watchingGrid), cell(watchedCell), next(watchingGrid.cellWatches)
{
    grid.cellWatches = this;
}

CellWatch::~CellWatch()
{
    grid.cellWatches = next;
}

void TGGrid::ForgetCell(const TGGridCell* cell)
{
    if (editCell == cell)
        editCell = nullptr;
    if (cellLock == cell)
        cellLock = nullptr;
    for (CellWatch* watch = cellWatches; watch; watch = watch->next)
        if (watch->cell == cell)
            watch->cell = nullptr;
}

} // namespace QuorUiCtr
