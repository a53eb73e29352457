// The index lists behind the row and column selections: ascending, without duplicates.
#pragma once

#include "grid/collections/DualList.h"

#include <vector>

namespace QuorUiCtr::SelectedIndices
{

// The first entry that is not below `index`; the end when all are.
DualList<long>::Iterator FindNotBelow(DualList<long>& entries, long index);
// Its position, which becomes current; the number of entries when all are.
long LowerBound(DualList<long>& entries, long index);
bool Contains(DualList<long>& entries, long index);
// False when the index is there already.
bool Add(DualList<long>& entries, long index);
// False when the index is not there.
bool Remove(DualList<long>& entries, long index);

// Makes the entries these, which ascend. Nothing has changed when it throws.
void Assign(DualList<long>& entries, const std::vector<long>& indices);

// Takes `number` from the entries from `first` + `number` on; there are none between the two.
void CloseGap(DualList<long>& entries, long first, long number);

// Adds `step` to the entries from the last one back to the first one that is below `first`. The walk ends
// when the cursor of `bound`, which goes back with it, is out; entries are reached through their own cursor,
// so another list than `entries` as the bound changes the last entry again and again.
template <class Bound> void Shift(DualList<long>& entries, Bound& bound, long first, long step)
{
    entries.MoveToLast();
    for (; !bound.IsOut() && !entries.IsOut() && entries.Cur() >= first; bound.MoveToPre())
        entries.SetCur(entries.Cur() + step);
}

} // namespace QuorUiCtr::SelectedIndices
