// Ordered index lists.
#include "rules/SelectedIndices.h"

namespace QuorUiCtr::SelectedIndices
{

namespace
{

auto IsBelow(long index)
{
    return [index](long entry) { return entry < index; };
}

// Makes the first entry that is not below `index` current; tells whether that is `index` itself.
bool MoveTo(DualList<long>& entries, long index)
{
    entries.MoveToPartition(IsBelow(index));
    return !entries.IsOut() && entries.Cur() == index;
}

} // namespace

DualList<long>::Iterator FindNotBelow(DualList<long>& entries, long index)
{
    return entries.FindPartition(IsBelow(index));
}

long LowerBound(DualList<long>& entries, long index)
{
    MoveTo(entries, index);
    return entries.IsOut() ? entries.GetNum() : entries.GetCur();
}

bool Contains(DualList<long>& entries, long index)
{
    const auto entry = FindNotBelow(entries, index);
    return entry != entries.end() && *entry == index;
}

bool Add(DualList<long>& entries, long index)
{
    if (MoveTo(entries, index))
        return false;
    entries.Insert(index);
    return true;
}

bool Remove(DualList<long>& entries, long index)
{
    if (!MoveTo(entries, index))
        return false;
    entries.Del();
    return true;
}

} // namespace QuorUiCtr::SelectedIndices
