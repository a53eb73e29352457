// The identifier services of the tree grid: the walk over all leaves and the rule for new identifiers.
#include "grid/tree/TGTreeIdentifiers.h"

#include <algorithm>
#include <climits>

namespace QuorUiCtr
{

// ---- The walk

TGGridRow* TGTreeGrid::Leaves::Next()
{
    while (front < waiting.size())
    {
        TGGridRow* row = waiting[front++];
        if (!row->IsTreeRow() || !row->IsParentRow())
            return row;
        for (TGGridTreeRow* child : static_cast<TGGridTreeRow*>(row)->children)
            if (child != nullptr)
                waiting.push_back(child);
    }
    return nullptr;
}

void TGTreeGrid::AddAllLeaves(Leaves& leaves)
{
    for (MoveToFirst(); !IsOut(); MoveToNext())
        if (!CurRow().IsChildRow())
            leaves.Add(CurRow());
    for (TGGridRow* row : GetRowPaste())
        if (row != nullptr)
            leaves.Add(*row);
}

// ---- The rule

TGTreeGrid::Identifiers::Identifiers(Leaves& leaves)
{
    while (TGGridRow* leaf = leaves.Next())
        Count(Leaves::IdentifierOf(Leaves::IdentifierCell(*leaf)));
}

void TGTreeGrid::Identifiers::Count(int id)
{
    ++holders[id];
    if (id > maximum)
        maximum = id;
}

int TGTreeGrid::Identifiers::AutoId(int id) const
{
    const auto found = holders.find(id);
    if (id != 0 && (found == holders.end() || found->second < 2))
        return id;
    if (maximum < INT_MAX)
        return maximum + 1;
    int unused = 1;
    while (holders.contains(unused))
        ++unused;
    return unused;
}

void TGTreeGrid::Identifiers::Renumber(TGGridRow& leaf)
{
    TGGridCell* cell = Leaves::IdentifierCell(leaf);
    if (cell == nullptr)
        return;
    const int present = Leaves::IdentifierOf(cell);
    const int valid = AutoId(present);
    cell->GetText().Format(L"%d", valid);
    if (valid == present)
        return;
    if (--holders[present] == 0)
        holders.erase(present);
    Count(valid);
}

// ---- The services

// Counts what one answer needs; the table of all identifiers is for the rare case that they are exhausted.
int TGTreeGrid::GetAutoId(int id)
{
    Leaves leaves;
    AddAllLeaves(leaves);
    int maximum = 0;
    long holders = 0;
    while (TGGridRow* leaf = leaves.Next())
    {
        const int present = Leaves::IdentifierOf(Leaves::IdentifierCell(*leaf));
        maximum = (std::max)(maximum, present);
        holders += present == id ? 1 : 0;
    }
    if (id != 0 && holders < 2)
        return id;
    if (maximum < INT_MAX)
        return maximum + 1;
    Leaves again;
    AddAllLeaves(again);
    return Identifiers(again).AutoId(id);
}

bool TGTreeGrid::IsRightLabel(const wchar_t* label)
{
    const CString wanted(label);
    if (wanted.IsEmpty() || wanted == L"0")
        return false;
    Leaves leaves;
    AddAllLeaves(leaves);
    while (TGGridRow* leaf = leaves.Next())
        if (const TGGridCell* cell = Leaves::IdentifierCell(*leaf);
            cell != nullptr && cell->GetText() == wanted)
            return false;
    return true;
}

} // namespace QuorUiCtr
