// CellWatch: a reference to a cell that becomes null when the cell is deleted.
#pragma once

namespace QuorUiCtr
{

class TGGrid;
class TGGridCell;

// Hooks may delete the cell that an operation is working on; the operation watches it and asks again after
// the hook. Lives on the stack, inside an operation of the grid.
class CellWatch
{
public:
    CellWatch(TGGrid& watchingGrid, TGGridCell* watchedCell);
    ~CellWatch();
    CellWatch(const CellWatch&) = delete;
    CellWatch& operator=(const CellWatch&) = delete;

    // The cell, null once it was deleted.
    TGGridCell* Cell() const { return cell; }

private:
    friend class TGGrid;

    TGGrid& grid;
    TGGridCell* cell;
    CellWatch* next;
};

} // namespace QuorUiCtr
