// LateNumbers: rows taken out one by one, without numbering the rows behind each time.
#pragma once

#include "grid/TGGrid.h"

#include <vector>

namespace QuorUiCtr
{

// Hooks run between the rows that leave, and see the indices of that moment; to store them anew in all rows
// behind each row that goes would take quadratic time. Between BeginUpdate and EndUpdate the rows behind one
// that is taken out therefore keep the index that is stored in them, and TGGridRow::GetIndex subtracts the
// rows that have gone from before it. The first row that gets an index of its own, or the last EndUpdate, has
// the true indices stored. The row list is out of date in nothing.
//
// The grid has such an object as long as stored indices are not true.
class TGGrid::LateNumbers
{
public:
    // The rows with the `number` stored indices from `stored` on have been taken out. False when the rows
    // behind must be numbered now.
    static bool Note(TGGrid& grid, long stored, long number) noexcept;
    // Stores the true indices.
    static void Settle(TGGrid& grid);
    static long TrueIndex(const TGGrid& grid, long stored)
    {
        return grid.lateNumbers == nullptr ? stored : stored - grid.lateNumbers->CountGoneBelow(stored);
    }

private:
    // Stored indices from `first` to before `end`; `before` is the number of those in the runs in front of
    // this one in its list.
    struct Run
    {
        long first;
        long end;
        long before;

        long Total() const { return before + end - first; }
    };
    using Runs = std::vector<Run>;

    bool Add(long stored, long number) noexcept;
    static void Append(Runs& runs, long stored, long number);
    static long Total(const Runs& runs) { return runs.empty() ? 0 : runs.back().Total(); }
    long LowestGone() const;
    long CountGoneBelow(long stored) const;

    // Of rows that have gone, in ascending and in descending order: rows leave from the first to the last or
    // the other way round.
    Runs rising;
    Runs falling;
};

} // namespace QuorUiCtr
