// RowWatch: a reference to a row that becomes null when the row is deleted.
#pragma once

namespace QuorUiCtr
{

class TGGrid;
class TGGridRow;

// Hooks may delete the row that an operation is working on; the operation watches it and asks again after the
// hook. Must not outlive the grid.
class RowWatch
{
public:
    // `row` may be null.
    RowWatch(TGGrid& grid, const TGGridRow* row);
    ~RowWatch();
    RowWatch(const RowWatch&) = delete;
    RowWatch& operator=(const RowWatch&) = delete;

    // The row was given and still exists.
    bool IsAlive() const { return row != nullptr; }

private:
    friend class TGGrid;

    TGGrid& grid;
    const TGGridRow* row;
    RowWatch* previous = nullptr;
    RowWatch* next;
};

} // namespace QuorUiCtr
