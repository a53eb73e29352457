// CellWatch: a reference to a cell that becomes null when the cell is deleted.
#pragma once

#include "rules/ListedWatch.h"

namespace QuorUiCtr
{

class TGGrid;
class TGGridCell;

// Hooks may delete the cell that an operation is working on; the operation watches it and asks again after
// the hook. Must not outlive the grid.
class CellWatch : private ListedWatch<CellWatch>
{
public:
    // `watchedCell` may be null.
    CellWatch(TGGrid& grid, TGGridCell* watchedCell);

    // The cell, null once it was deleted.
    TGGridCell* Cell() const { return cell; }

private:
    friend class ListedWatch<CellWatch>;
    friend class TGGrid;

    TGGridCell* cell;
};

} // namespace QuorUiCtr
