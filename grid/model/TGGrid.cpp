// TGGrid itself: construction and destruction, the writers of the style word that have an effect, access to
// rows, columns and cells, the row cursor and the sort keys.
#include "grid/model/GridExtensions.h"
#include "grid/model/GridStructure.h"
#include "grid/model/LateNumbers.h"
#include "grid/TGActiveQuad.h"
#include "grid/TGColSelector.h"
#include "grid/TGRowSelector.h"

#include <utility>

namespace QuorUiCtr
{

IMPLEMENT_DYNCREATE(TGGrid, CWnd)

TGGrid::TGGrid(bool tree, long columnWidth) : TGGridStyle(tree), defaultWidth(columnWidth)
{
    backBrush.CreateSolidBrush(RGB(255, 255, 255));
    gridPen.CreatePen(PS_SOLID, 1, RGB(168, 168, 168));
}

// The window goes while the rows and columns that its editors and handlers refer to are still there.
TGGrid::~TGGrid()
{
    GridExtensions::DetachAll(*this);
    BeginUpdate();
    CancelEditCell();
    Structure(*this).ReleaseChildRows();
    delete std::exchange(quad, nullptr);
    delete std::exchange(rowHeader, nullptr);
    delete std::exchange(colHeader, nullptr);
    ClearDC();
    if (GetSafeHwnd() != nullptr)
        DestroyWindow();
    delete std::exchange(newRow, nullptr);
    rows.Clear();
    LateNumbers::Settle(*this);
    rowPaste.Clear();
    cols.Clear();
}

// ---- Style word

void TGGrid::SetRowSel(bool on)
{
    SetFlag(RowSelOffFlag, !on);
    RecalcLayout(1);
}

void TGGrid::SetColSel(bool on)
{
    SetFlag(ColSelOffFlag, !on);
    RecalcLayout(1);
}

void TGGrid::SetTreeLine(bool on)
{
    SetFlag(TreeLineOffFlag, !on);
    Invalidate(1);
}

// ---- Access

TGGridRow& TGGrid::GetRow(long i)
{
    ASSERT(IsValidRow(i));
    if (TGGridRow* row = RowAtIndex(i))
    {
        rows.MoveTo(i);
        return *row;
    }
    if (FreshNewRow() == nullptr)
    {
        newRow = Structure(*this).MakeRow();
        newRow->SetIndex(GetRowNum());
    }
    return *newRow;
}

TGGridTreeRow& TGGrid::GetTreeRow(long i)
{
    return static_cast<TGGridTreeRow&>(GetRow(i));
}

TGGridCol& TGGrid::GetCol(long i)
{
    ASSERT(IsValidCol(i));
    cols.MoveTo(i);
    return *cols.Cur();
}

TGGridCell& TGGrid::GetCell(long row, long col)
{
    return GetRow(row)[col];
}

// The row or column in a slot, without moving the cursor; null outside and for an empty slot.
TGGridRow* TGGrid::RowAtIndex(long i)
{
    const auto slot = rows.IteratorAt(i);
    return slot == rows.end() ? nullptr : *slot;
}

TGGridCol* TGGrid::ColAtIndex(long i)
{
    const auto slot = cols.IteratorAt(i);
    return slot == cols.end() ? nullptr : *slot;
}

bool TGGrid::GetCurCell(long& row, long& col) const
{
    if (editCell == nullptr)
        return false;
    row = editCell->GetRowIndex();
    col = editCell->GetColIndex();
    return true;
}

void TGGrid::SetCurRowIndex(long i)
{
    curRowIndex = i;
    if (rowHeader != nullptr)
        rowHeader->OnCurRowChanged();
}

// ---- Row cursor

bool TGGrid::IsOut() const
{
    return rows.IsOut();
}

TGGridRow& TGGrid::CurRow()
{
    ASSERT(!IsOut());
    return *rows.Cur();
}

TGGridTreeRow& TGGrid::CurTreeRow()
{
    return static_cast<TGGridTreeRow&>(CurRow());
}

// ---- Sort keys

long TGGrid::GetMainKey()
{
    return keys.IsEmpty() ? -1 : *keys.begin();
}

} // namespace QuorUiCtr
