// References to cells that hooks may delete.
#include "grid/edit/CellWatch.h"

#include "grid/TGGrid.h"

namespace QuorUiCtr
{

CellWatch::CellWatch(TGGrid& grid, TGGridCell* watchedCell) : ListedWatch(grid.cellWatches), cell(watchedCell)
{
}

void TGGrid::ForgetCell(const TGGridCell* cell)
{
    if (editCell == cell)
        editCell = nullptr;
    if (cellLock == cell)
        cellLock = nullptr;
    CellWatch::TellAll(cellWatches, [cell](CellWatch& watch) {
        if (watch.cell == cell)
            watch.cell = nullptr;
    });
}

} // namespace QuorUiCtr
