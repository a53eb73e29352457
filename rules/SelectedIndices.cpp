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

void Assign(DualList<long>& entries, const std::vector<long>& indices)
{
    const long number = static_cast<long>(indices.size());
    entries.Grow(number);
    entries.Release(number, entries.GetNum() - number);
    auto next = indices.begin();
    for (long& entry : entries)
        entry = *next++;
}

// One run of indices, as after selecting all, moves as a whole: what leaves it at the end comes in at the
// front. Rows can go without memory: no entry is made.
void CloseGap(DualList<long>& entries, long first, long number)
{
    entries.MoveToLast();
    if (entries.IsOut() || entries.Cur() < first + number)
        return;
    const long last = entries.Cur();
    const long position = LowerBound(entries, first + number);
    const long moving = entries.GetNum() - position;
    const bool isRun = last - entries.Cur() + 1 == moving;
    if (isRun && number == 1)
    {
        const long front = entries.Cur() - 1;
        entries.Move(entries.GetNum() - 1, position);
        entries.MoveTo(position);
        entries.SetCur(front);
        return;
    }
    Shift(entries, entries, first + number, -number);
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
