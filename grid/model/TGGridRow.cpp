// A row's cells, host data, read-only rules, order and geometry.
#include "grid/TGGridRow.h"

#include "grid/model/CellBlock.h"
#include "grid/model/LateNumbers.h"
#include "grid/model/RowWatch.h"
#include "grid/TGGrid.h"
#include "rules/GridGeometry.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace QuorUiCtr
{

// Walks the columns with their cursor, which ends past the last one as after every walk over all columns.
TGGridRow::TGGridRow(TGGrid& owner) : grid(&owner), colsSeen(owner.lastColSerial)
{
    PDList<TGGridCol>& cols = owner.cols;
    cells.Reserve(cols.GetNum());
    CellBlock* const block = CellBlock::IsUsed && !cols.IsEmpty()
                                 ? CellBlock::Make(static_cast<unsigned>(cols.GetNum()))
                                 : nullptr;
    unsigned place = 0;
    for (cols.MoveToFirst(); !cols.IsOut(); cols.MoveToNext())
    {
        if (block == nullptr)
            AddCell(cols.Cur());
        else
            AddCell(cols.Cur(), *block, ++place);
    }
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

long TGGridRow::GetIndex() const
{
    if (index >= grid->numberedRows)
        grid->NumberLateRows();
    return index < 0 ? index : TGGrid::LateNumbers::TrueIndex(*grid, index);
}

void TGGridRow::SetIndex(long newIndex)
{
    if (newIndex >= 0 && grid->lateNumbers != nullptr)
        TGGrid::LateNumbers::Settle(*grid);
    index = newIndex;
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
    auto cell = col != nullptr ? std::make_unique<TGGridCell>(*grid, *this, *col) : nullptr;
    cells.Append(cell.get());
    cell.release();
}

// There is memory for the slot.
void TGGridRow::AddCell(TGGridCol* col, CellBlock& block, unsigned place)
{
    TGGridCell* cell = nullptr;
    if (col != nullptr)
    {
        cell = ::new (block.MemoryAt(place)) TGGridCell(*grid, *this, *col);
        cell->place = place;
    }
    else
        block.GiveBack();
    cells.Append(cell);
}

bool TGGridRow::FitsCols() const
{
    if (cells.GetNum() != grid->cols.GetNum())
        return false;
    auto cell = cells.begin();
    for (const TGGridCol* col : std::as_const(grid->cols))
        if (const TGGridCell* own = *cell++; own == nullptr || own->col != col || col->serial > colsSeen)
            return false;
    return true;
}

// The column of a cell may be deleted: it is compared and nothing else.
void TGGridRow::FitToCols()
{
    if (FitsCols())
        return;
    std::vector<std::unique_ptr<TGGridCell>> added;
    std::vector<TGGridCell*> fitting;
    for (TGGridCol* col : grid->cols)
    {
        const auto own = std::find_if(cells.begin(), cells.end(), [this, col](const TGGridCell* cell) {
            return cell != nullptr && cell->col == col && col->serial <= colsSeen;
        });
        if (own == cells.end())
            added.push_back(std::make_unique<TGGridCell>(*grid, *this, *col));
        fitting.push_back(own != cells.end() ? *own : added.back().get());
    }
    const long before = cells.GetNum();
    cells.SpliceInsert(before, fitting);
    for (std::unique_ptr<TGGridCell>& cell : added)
        cell.release();
    for (TGGridCell*& cell : cells)
        if (std::find(fitting.begin(), fitting.end(), cell) != fitting.end())
            cell = nullptr;
    cells.RemoveRange(0, before);
    auto next = fitting.begin();
    for (TGGridCell*& cell : cells)
        cell = *next++;
    colsSeen = grid->lastColSerial;
}

void TGGridRow::InsertCol(long position, TGGridCol& col)
{
    auto cell = std::make_unique<TGGridCell>(*grid, *this, col);
    cells.Insert(position, cell.get());
    cell.release();
    colsSeen = (std::max)(colsSeen, col.serial);
}

void TGGridRow::AppendCol(TGGridCol& col)
{
    AddCell(&col);
    colsSeen = (std::max)(colsSeen, col.serial);
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
    return RowEdge(GetIndex(), grid->GetRowHeight());
}

long TGGridRow::GetBottom() const
{
    return RowEdge(GetIndex() + 1, grid->GetRowHeight());
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
