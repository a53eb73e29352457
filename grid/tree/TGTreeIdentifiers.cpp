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

// Nearly all are a few digits, which need none of what reading numbers of any kind takes.
int TGTreeGrid::Leaves::IdentifierOf(const TGGridCell* cell)
{
    constexpr int SafeDigits = 9;
    if (cell == nullptr)
        return 0;
    const wchar_t* const text = cell->GetText();
    int number = 0;
    int digits = 0;
    for (; digits <= SafeDigits && text[digits] >= L'0' && text[digits] <= L'9'; ++digits)
        if (digits < SafeDigits)
            number = number * 10 + (text[digits] - L'0');
    return digits <= SafeDigits && text[digits] == L'\0' ? number : _wtoi(text);
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

TGTreeGrid::Identifiers::Identifiers(TGTreeGrid& countedGrid, const std::vector<int>& asked)
    : grid(countedGrid)
{
    for (const int id : asked)
        holders[id] = 0;
    CountLeaves();
}

void TGTreeGrid::Identifiers::CountLeaves()
{
    Leaves leaves;
    grid.AddAllLeaves(leaves);
    while (TGGridRow* leaf = leaves.Next())
    {
        const int id = Leaves::IdentifierOf(Leaves::IdentifierCell(*leaf));
        maximum = (std::max)(maximum, id);
        if (knowsAll)
            ++holders[id];
        else if (const auto asked = holders.find(id); asked != holders.end())
            ++asked->second;
    }
}

void TGTreeGrid::Identifiers::Enter(int id)
{
    ++holders[id];
    maximum = (std::max)(maximum, id);
}

int TGTreeGrid::Identifiers::AutoId(int id)
{
    if (id != 0 && holders[id] < 2)
        return id;
    return maximum < INT_MAX ? maximum + 1 : FirstUnused();
}

int TGTreeGrid::Identifiers::FirstUnused()
{
    if (!knowsAll)
    {
        knowsAll = true;
        holders.clear();
        CountLeaves();
    }
    int unused = 1;
    while (holders[unused] > 0)
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
    CString text;
    text.Format(L"%d", valid);
    cell->SetText(text);
    if (valid == present)
        return;
    --holders[present];
    Enter(valid);
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
    return Identifiers(*this, {id}).AutoId(id);
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
