// A row's cells, host data, read-only rules, order and geometry.
#include "grid/TGGridRow.h"

#include "grid/model/RowWatch.h"
#include "grid/TGGrid.h"

#include <utility>

namespace QuorUiCtr
{

// Walks the columns with their cursor, which ends past the last one as after every walk over all columns.
TGGridRow::TGGridRow(TGGrid& owner) : grid(&owner)
{
    PDList<TGGridCol>& cols = owner.cols;
    cells.Reserve(cols.GetNum());
    for (cols.MoveToFirst(); !cols.IsOut(); cols.MoveToNext())
        AddCell(cols.Cur());
}

TGGridRow::~TGGridRow()
{
    grid->ForgetRow(this);
    if (cells.IsOwning())
        delete ReleaseExtendData();
}

TGGridRow& TGGridRow::operator=(TGGridRow& other)
{
    style = other.style;
    auto source = other.cells.begin();
    for (TGGridCell* cell : cells)
    {
        if (source == other.cells.end())
            break;
        if (cell != nullptr && *source != nullptr)
            *cell = **source;
        ++source;
    }
    return *this;
}

TGGridCell& TGGridRow::operator[](long col)
{
    ASSERT(col >= 0 && col < cells.GetNum());
    return *cells[col];
}

TGGridCell* TGGridRow::FindCell(long col)
{
    return col >= 0 && col < cells.GetNum() ? cells[col] : nullptr;
}

bool TGGridRow::HasText(const wchar_t* text, long col)
{
    const TGGridCell* cell = FindCell(col);
    return cell != nullptr && cell->GetText().Compare(text != nullptr ? text : L"") == 0;
}

void TGGridRow::SetExtendData(TGRowData* data)
{
    if (cells.IsOwning())
        delete extendData;
    extendData = data;
}

TGRowData* TGGridRow::ReleaseExtendData()
{
    return std::exchange(extendData, nullptr);
}

bool TGGridRow::IsReadOnly() const
{
    return HasFlag(ReadOnlyFlag) || grid->IsReadOnly();
}

bool TGGridRow::IsDelUnable() const
{
    return HasFlag(DelUnableFlag) || IsReadOnly();
}

// The grid's label-sort flag makes no difference: texts are compared as they are in both cases.
int TGGridRow::CompareByKeys(TGGridRow& other)
{
    const List<long>& selected = grid->colSel;
    for (const long col : grid->keys.IsEmpty() ? selected : grid->keys)
    {
        const TGGridCell* ownCell = FindCell(col);
        const TGGridCell* otherCell = other.FindCell(col);
        if (ownCell == nullptr || otherCell == nullptr)
            continue;
        if (const int difference = ownCell->GetText().Compare(otherCell->GetText()))
            return difference;
    }
    return 0;
}

bool TGGridRow::operator<(TGGridRow& other)
{
    return CompareByKeys(other) < 0;
}

bool TGGridRow::operator>(TGGridRow& other)
{
    return CompareByKeys(other) > 0;
}

void TGGridRow::AddCell(TGGridCol* col)
{
    cells.Append(col != nullptr ? new TGGridCell(*grid, *this, *col) : nullptr);
}

void TGGridRow::InsertCol(long position, TGGridCol& col)
{
    cells.Insert(position, new TGGridCell(*grid, *this, col));
}

void TGGridRow::AppendCol(TGGridCol& col)
{
    AddCell(&col);
}

void TGGridRow::DelCol(long position)
{
    cells.MoveTo(position);
    cells.Del();
}

void TGGridRow::MoveCol(long from, long to)
{
    cells.Move(from, to);
}

bool TGGridRow::IsParentRow()
{
    return false;
}

bool TGGridRow::IsChildRow()
{
    return false;
}

bool TGGridRow::IsTreeRow()
{
    return false;
}

// The hooks of a cell may delete the row or change its cells.
void TGGridRow::Refresh()
{
    if (grid->GetSafeHwnd() == nullptr)
        return;
    const RowWatch self(*grid, this);
    if (!grid->OnRefresh(*this))
        return;
    for (long col = 0; self.IsAlive() && col < cells.GetNum(); ++col)
        if (TGGridCell* cell = cells[col])
            cell->Refresh();
}

long TGGridRow::GetTop() const
{
    return index * grid->GetRowHeight();
}

long TGGridRow::GetBottom() const
{
    return (index + 1) * grid->GetRowHeight();
}

long TGGridRow::GetRight() const
{
    return grid->GetRight();
}

void TGGridRow::GetRect(CRect& rect) const
{
    rect.SetRect(GetLeft(), GetTop(), GetRight(), GetBottom());
}

void TGGridRow::Select(bool)
{
    CRect band;
    GetRect(band);
    grid->InvertBand(band);
}

} // namespace QuorUiCtr
