// Ordered index lists.
#include "grid/SelectedIndices.h"

namespace QuorUiCtr::SelectedIndices
{

// The ends are tried first: selections mostly grow upwards or downwards.
long LowerBound(DualList<long>& entries, long index)
{
    long first = 0;
    long last = entries.GetNum();
    if (last == 0 || entries[last - 1] < index)
        return last;
    if (entries[0] >= index)
        return 0;
    while (first < last)
    {
        const long middle = first + (last - first) / 2;
        if (entries[middle] < index)
            first = middle + 1;
        else
            last = middle;
    }
    return first;
}

bool Contains(DualList<long>& entries, long index)
{
    const long position = LowerBound(entries, index);
    return position < entries.GetNum() && entries[position] == index;
}

bool Add(DualList<long>& entries, long index)
{
    const long position = LowerBound(entries, index);
    if (position < entries.GetNum() && entries[position] == index)
        return false;
    entries.Insert(position, index);
    return true;
}

bool Remove(DualList<long>& entries, long index)
{
    if (!Contains(entries, index))
        return false;
    entries.Del();
    return true;
}

} // namespace QuorUiCtr::SelectedIndices
