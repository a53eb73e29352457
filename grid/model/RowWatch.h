// RowWatch: a reference to a row that becomes null when the row is deleted.
#pragma once

#include "rules/ListedWatch.h"

namespace QuorUiCtr
{

class TGGrid;
class TGGridRow;

// Hooks may delete the row that an operation is working on; the operation watches it and asks again after the
// hook. Must not outlive the grid.
class RowWatch : private ListedWatch<RowWatch>
{
public:
    // `watchedRow` may be null.
    RowWatch(TGGrid& grid, const TGGridRow* watchedRow);

    // The row was given and still exists.
    bool IsAlive() const { return row != nullptr; }

private:
    friend class ListedWatch<RowWatch>;
    friend class TGGrid;

    const TGGridRow* row;
};

} // namespace QuorUiCtr
