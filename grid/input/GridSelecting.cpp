// TGGrid's two selections and the search that selects.
//
// Selected bands are shown by inverting them: each change of a selection inverts its band once, and painting
// inverts what is selected after drawing, so the screen and the index lists always agree. While painting is
// postponed or under way a change repaints instead, because nobody knows then which bands are drawn already.
// Hooks run last in every step, or are followed by a fresh look at what they may have changed.
#include "grid/input/GridSelecting.h"

#include "grid/model/GridExtensions.h"
#include "grid/model/RowWatch.h"
#include "grid/window/GridPainting.h"
#include "rules/GridGeometry.h"
#include "rules/SelectedIndices.h"

namespace QuorUiCtr
{

// ---- Selecting

void TGGrid::SelectRow(long row, bool select)
{
    if (!IsValidRow(row))
        return;
    if (select)
    {
        EndEditCell();
        if (!IsValidRow(row))
            return;
    }
    // Before the columns are unselected: there may be no memory for the entry.
    const bool changes = select ? SelectedIndices::Add(rowSel, row) : SelectedIndices::Remove(rowSel, row);
    if (select)
        Selecting(*this).UnselectCols();
    if (changes)
    {
        Selecting(*this).ChangeRowBand(row, select);
        if (select)
            Selecting(*this).ShowRowBand(row);
    }
    OnCurChanged();
    TellSelected();
}

void TGGrid::SelectCol(long col, bool select)
{
    if (!IsValidCol(col))
        return;
    if (select)
    {
        EndEditCell();
        if (!IsValidCol(col))
            return;
    }
    const bool changes = select ? SelectedIndices::Add(colSel, col) : SelectedIndices::Remove(colSel, col);
    if (select)
        Selecting(*this).UnselectRows();
    if (changes)
    {
        TGGridCol* changed = ColAtIndex(col);
        Selecting(*this).ChangeColBand(*changed, select);
        if (select)
            Selecting(*this).ShowColBand(*changed);
    }
    OnCurChanged();
    TellSelected();
}

void TGGrid::SelectAll()
{
    EndEditCell();
    rowSel.Grow(GetRowNum());
    colSel.Clear();
    long row = 0;
    for (long& entry : rowSel)
        entry = row++;
    OnCurChanged();
    Invalidate(1);
    TellSelected();
}

void TGGrid::UnSelect()
{
    Selecting(*this).UnselectCols();
    Selecting(*this).UnselectRows();
    OnCurChanged();
    TellSelected();
}

void TGGrid::ClearSel()
{
    rowSel.Clear();
    colSel.Clear();
    TellSelected();
}

void TGGrid::TellSelected()
{
    if (extensions != nullptr && !extensions->HoldsSelection())
        extensions->Tell(GridExtensions::Selected);
}

void TGGrid::SelectOnly(TGGridRow& row)
{
    const RowWatch watch(*this, &row);
    UnSelect();
    if (watch.IsAlive())
        SelectRow(row.GetIndex(), true);
}

void TGGrid::InvertBand(const CRect& band)
{
    if (IsUpdating())
        redrawPending = true;
    else if (GetSafeHwnd() != nullptr && dc != nullptr)
        dc->InvertRect(band);
}

// ---- Bands

// Entries may name columns that are gone: deleting columns does not renumber them.
void TGGrid::Selecting::UnselectCols()
{
    for (const long i : grid.colSel)
        if (TGGridCol* col = grid.ColAtIndex(i))
            ChangeColBand(*col, false);
    grid.colSel.Clear();
}

void TGGrid::Selecting::UnselectRows()
{
    if (CanInvertNow())
        Painting(grid).InvertSelectedRows();
    else if (grid.IsRowSelected())
        grid.Invalidate(0);
    grid.rowSel.Clear();
}

// What extensions have drawn over the cells must not be inverted with them.
bool TGGrid::Selecting::CanInvertNow() const
{
    return !grid.IsUpdating() && !grid.refreshing && grid.extensions == nullptr;
}

// Looks for the row only when it is needed: among many rows that costs more than the rest.
void TGGrid::Selecting::ChangeRowBand(long row, bool select)
{
    if (!CanInvertNow())
        grid.Invalidate(0);
    else if (TGGridRow* changed = grid.GetSafeHwnd() != nullptr ? grid.RowAtIndex(row) : nullptr)
        changed->Select(select);
}

void TGGrid::Selecting::ChangeColBand(TGGridCol& col, bool select)
{
    if (CanInvertNow())
        col.Select(select);
    else
        grid.Invalidate(0);
}

// The other direction stays where it is: the rectangle has no extent at the centre of the view.
void TGGrid::Selecting::ShowRowBand(long row)
{
    if (grid.GetSafeHwnd() == nullptr)
        return;
    CRect area;
    grid.GetClientRect(&area);
    const long x = grid.ClientToLogical(area.CenterPoint()).x;
    ShowBand(CRect(x, RowEdge(row, grid.GetRowHeight()), x, RowEdge(row + 1, grid.GetRowHeight())));
}

void TGGrid::Selecting::ShowColBand(const TGGridCol& col)
{
    if (grid.GetSafeHwnd() == nullptr)
        return;
    CRect area;
    grid.GetClientRect(&area);
    const long y = grid.ClientToLogical(area.CenterPoint()).y;
    ShowBand(CRect(col.GetLeft(), y, col.GetRight(), y));
}

void TGGrid::Selecting::ShowBand(const CRect& band)
{
    if (!grid.IsUpdating())
    {
        grid.ShowRect(band);
        return;
    }
    grid.pendingShowRect = band;
    grid.showPending = true;
}

// ---- Queries

bool TGGrid::IsRowSelected(long i)
{
    return SelectedIndices::Contains(rowSel, i);
}

bool TGGrid::IsColSelected(long i)
{
    return SelectedIndices::Contains(colSel, i);
}

TGGridRow& TGGrid::GetSelRow(long k)
{
    ASSERT(k >= 0 && k < GetRowSelNum());
    return GetRow(rowSel[k]);
}

TGGridCol& TGGrid::GetSelCol(long k)
{
    ASSERT(k >= 0 && k < GetColSelNum());
    return GetCol(colSel[k]);
}

void TGGrid::GetSel(Table<TGGridRow*>& out)
{
    for (const long i : rowSel)
        if (rows.MoveTo(i) && rows.Cur() != nullptr)
            out.Append(rows.Cur());
}

void TGGrid::GetSel(Table<TGGridCol*>& out)
{
    for (const long i : colSel)
        if (TGGridCol* col = ColAtIndex(i))
            out.Append(col);
}

bool TGGrid::IsSelConnect()
{
    DualList<long>& selected = IsColSelected() ? colSel : rowSel;
    const long number = selected.GetNum();
    return number > 0 && selected[number - 1] - selected[0] + 1 == number;
}

bool TGGrid::IsSelFold()
{
    if (!treeGrid)
        return true;
    for (const long i : rowSel)
    {
        TGGridRow* row = RowAtIndex(i);
        if (row != nullptr && row->IsParentRow() && row->HasFlag(TGGridRow::UnfoldFlag))
            return false;
    }
    return true;
}

// ---- Search

bool TGGrid::FindAndSel(const wchar_t* text, long col)
{
    for (TGGridRow* row : rows)
    {
        if (row == nullptr || (treeGrid && row->IsChildRow()))
            continue;
        if (row->HasText(text, col))
        {
            SelectOnly(*row);
            return true;
        }
        if (treeGrid && row->IsTreeRow() && static_cast<TGGridTreeRow*>(row)->FindAndSel(text, col))
            return true;
    }
    return false;
}

} // namespace QuorUiCtr
