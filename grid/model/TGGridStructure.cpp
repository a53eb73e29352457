// TGGrid's rows and columns: insert, append, delete, move, and what tree rows need to come and go.
//
// Ending an edit and deselecting run hooks, which may change the structure or delete the object at hand:
// indices and pointers are looked up, or their watches asked, again afterwards.
#include "grid/model/GridStructure.h"

#include "grid/model/RowWatch.h"
#include "rules/SelectedIndices.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace QuorUiCtr
{

// ---- Rows -------------------------------------------------------------------------------------------------

TGGridRow* TGGrid::Structure::MakeRow()
{
    return grid.treeGrid ? new TGGridTreeRow(grid) : new TGGridRow(grid);
}

void TGGrid::InsertRow(long i, TGGridRow* row)
{
    EndEditCell();
    ASSERT(i >= 0 && i <= GetRowNum());
    if (row == nullptr)
        row = Structure(*this).MakeRow();
    Structure(*this).InsertRows(std::clamp(i, 0L, GetRowNum()), {&row, 1});
    RecalcLayout(1);
}

void TGGrid::AppendRow(TGGridRow* row)
{
    EndEditCell();
    if (row == nullptr)
        row = Structure(*this).MakeRow();
    row->SetIndex(rows.Append(row));
    RecalcLayout(1);
}

void TGGrid::DelRow(long i)
{
    EndEditCell();
    ASSERT(IsValidRow(i));
    if (!IsValidRow(i))
        return;
    TGGridRow* row = RowAt(i);
    const RowWatch watch(*this, row);
    SelectRow(i, false);
    // What a hook has opened may stand on the row.
    CancelEditCell();
    if (watch.IsAlive())
        i = row->GetIndex();
    if (!IsValidRow(i) || RowAt(i) != row)
        return;
    if (row != nullptr)
    {
        Structure(*this).DetachFromTree(*row);
        i = row->GetIndex();
    }
    Structure(*this).RemoveRows(i, 1);
    delete row;
    RecalcLayout(1);
}

void TGGrid::DelRowEx(long i)
{
    ASSERT(IsValidRow(i));
    TGGridRow* row = RowAt(i);
    const RowWatch watch(*this, row);
    const TGGridUpdate update(*this);
    if (row != nullptr && row->IsTreeRow())
    {
        TGGridTreeRow& treeRow = static_cast<TGGridTreeRow&>(*row);
        if (treeRow.IsChildRow())
        {
            treeRow.GetParent().DelChild(treeRow.GetParent().GetChildIndex(&treeRow));
            return;
        }
        treeRow.Fold();
        if (!watch.IsAlive())
            return;
        i = treeRow.GetIndex();
    }
    DelRow(i);
}

void TGGrid::MoveRow(long from, long to)
{
    if (to == from || to == from + 1)
        return;
    ASSERT(IsValidRow(from) && to >= 0 && to <= GetRowNum());
    if (!Structure(*this).PlaceMovingRow(from, to))
        return;
    Structure(*this).NumberRows(0);
    Invalidate(1);
}

void TGGrid::SetRowNum(long n)
{
    const TGGridUpdate update(*this);
    while (GetRowNum() > (std::max)(n, 0L))
        DelRow(GetRowNum() - 1);
    while (GetRowNum() < n)
        AppendRow(nullptr);
}

void TGGrid::Clear()
{
    const TGGridUpdate update(*this);
    EndEditCell();
    ClearSel();
    Structure(*this).ReleaseChildRows();
    rows.Clear();
    RecalcLayout(1);
}

void TGGrid::Structure::InsertRows(long at, std::span<TGGridRow* const> added)
{
    grid.rows.SpliceInsert(at, added);
    NumberRows(at);
    SelectedIndices::Shift(grid.rowSel, grid.rowSel, at, static_cast<long>(added.size()));
}

void TGGrid::Structure::RemoveRows(long at, long number)
{
    if (number <= 0)
        return;
    grid.rows.Release(at, number);
    NumberRows(at);
    // A hook may have selected one of the rows again.
    const long first = SelectedIndices::LowerBound(grid.rowSel, at);
    grid.rowSel.Release(first, SelectedIndices::LowerBound(grid.rowSel, at + number) - first);
    SelectedIndices::Shift(grid.rowSel, grid.rowSel, at + number, -number);
}

void TGGrid::Structure::NumberRows(long first)
{
    for (grid.rows.MoveTo(first); !grid.rows.IsOut(); grid.rows.MoveToNext())
        if (TGGridRow* row = grid.rows.Cur())
            row->SetIndex(grid.rows.GetCur());
}

// ---- Tree rows --------------------------------------------------------------------------------------------

// Leaves the cursor there, so that a walk over the rows takes one step for each.
bool TGGrid::Structure::IsOffspringAt(long i, const TGGridTreeRow& top)
{
    grid.rows.MoveTo(i);
    TGGridRow* row = grid.rows.IsOut() ? nullptr : grid.rows.Cur();
    return row != nullptr && row->IsTreeRow() && static_cast<TGGridTreeRow*>(row)->IsBelow(&top);
}

bool TGGrid::Structure::RemoveOffspring(TGGridTreeRow& top)
{
    TGGridTreeRow::IndexRange hidden;
    top.MarkHidden(hidden);
    if (hidden.number == 0)
        return false;
    RemoveHiddenRows(hidden);
    return true;
}

// Hidden rows stood in one run, unless the host has moved rows about: then they are taken out one by one,
// from the last, because taking out numbers the rows behind.
void TGGrid::Structure::RemoveHiddenRows(const TGGridTreeRow::IndexRange& hidden)
{
    if (hidden.IsRun())
    {
        RemoveRows(hidden.first, hidden.number);
        return;
    }
    for (long i = hidden.last; i >= hidden.first; --i)
        if (const TGGridRow* row = grid.RowAt(i); row != nullptr && row->GetIndex() == -1)
            RemoveRows(i, 1);
}

void TGGrid::Structure::HideTree(TGGridTreeRow& top)
{
    RemoveOffspring(top);
    if (grid.RowAt(top.GetIndex()) != &top)
        return;
    RemoveRows(top.GetIndex(), 1);
    top.SetIndex(-1);
}

void TGGrid::Structure::InsertOffspring(TGGridTreeRow& top)
{
    std::vector<TGGridRow*> selected;
    const bool partlyShown = top.HasShownOffspring();
    if (partlyShown)
    {
        for (const long i : grid.rowSel)
            selected.push_back(grid.RowAt(i));
        RemoveOffspring(top);
    }
    std::vector<TGGridRow*> shown;
    top.CollectOffspring(shown);
    InsertRows(top.GetIndex() + 1, shown);
    if (!partlyShown)
        return;
    grid.rowSel.Clear();
    for (const TGGridRow* row : selected)
        if (row != nullptr && row->GetIndex() != -1)
            SelectedIndices::Add(grid.rowSel, row->GetIndex());
}

void TGGrid::Structure::DetachFromTree(TGGridRow& row)
{
    if (!row.IsTreeRow())
        return;
    TGGridTreeRow& treeRow = static_cast<TGGridTreeRow&>(row);
    RemoveOffspring(treeRow);
    if (TGGridTreeRow* parent = treeRow.Parent())
        parent->children.Detach(parent->GetChildIndex(&treeRow));
}

void TGGrid::Structure::ReleaseChildRows()
{
    for (TGGridRow* row : grid.rows)
        if (row != nullptr && row->IsTreeRow() && !row->IsChildRow())
        {
            TGGridTreeRow::IndexRange hidden;
            static_cast<TGGridTreeRow*>(row)->MarkHidden(hidden);
        }
    for (TGGridRow*& row : grid.rows)
        if (row != nullptr && row->GetIndex() == -1)
            row = nullptr;
}

// ---- Columns ----------------------------------------------------------------------------------------------

// The paste buffer and the new row keep one cell per column like the rows of the grid.
template <class Change> void TGGrid::Structure::ChangeRows(Change change)
{
    for (TGGridRow* row : grid.rows)
        if (row != nullptr && !row->IsChildRow())
            change(*row);
    for (TGGridRow* row : grid.rowPaste)
        if (row != nullptr)
            change(*row);
    if (grid.newRow != nullptr)
        change(*grid.newRow);
}

void TGGrid::InsertCol(long i, TGGridCol* col, long width)
{
    EndEditCell();
    ASSERT(i >= 0 && i <= GetColNum());
    i = std::clamp(i, 0L, GetColNum());
    if (width == 0)
        width = defaultWidth;
    if (col == nullptr)
        col = new TGGridCol(nullptr, *this);
    const TGGridCol* follower = ColAtIndex(i);
    const long left = follower != nullptr ? follower->GetLeft() : GetRight();
    col->SetLeft(left);
    col->SetRight(left + width);
    col->SetIndex(i);
    cols.Insert(i, col);
    for (cols.MoveToNext(); !cols.IsOut(); cols.MoveToNext())
    {
        cols.Cur()->Move(width);
        cols.Cur()->SetIndex(cols.GetCur());
    }
    Structure(*this).ChangeRows([i, col](TGGridRow& row) { row.InsertCol(i, *col); });
    // Bounded by the columns' cursor, which the loop above has left past the end: unless a row moves it, the
    // selection keeps its numbers.
    SelectedIndices::Shift(colSel, cols, i, 1);
    RecalcLayout(1);
}

void TGGrid::InsertCol(long i, const wchar_t* name, long width)
{
    InsertCol(i, new TGGridCol(name, *this), width);
}

void TGGrid::AppendCol(TGGridCol* col, long width)
{
    EndEditCell();
    if (width == 0)
        width = defaultWidth;
    if (col == nullptr)
        col = new TGGridCol(nullptr, *this);
    const long left = GetRight();
    col->SetLeft(left);
    col->SetRight(left + width);
    col->SetIndex(cols.Append(col));
    Structure(*this).ChangeRows([col](TGGridRow& row) { row.AppendCol(*col); });
    RecalcLayout(1);
}

void TGGrid::AppendCol(const wchar_t* name, long width)
{
    AppendCol(new TGGridCol(name, *this), width);
}

void TGGrid::DelCol(long i)
{
    EndEditCell();
    ASSERT(IsValidCol(i));
    if (!IsValidCol(i))
        return;
    SelectCol(i, false);
    // What a hook has opened may stand in the column.
    CancelEditCell();
    if (!IsValidCol(i))
        return;
    const std::unique_ptr<TGGridCol> col(ColAtIndex(i));
    const long width = col->GetWidth();
    cols.MoveTo(i);
    cols.SetCur(nullptr);
    cols.Del();
    for (cols.MoveToNext(); !cols.IsOut(); cols.MoveToNext())
    {
        cols.Cur()->Move(-width);
        cols.Cur()->SetIndex(cols.GetCur());
    }
    Structure(*this).ChangeRows([i](TGGridRow& row) { row.DelCol(i); });
    RecalcLayout(1);
    // As in InsertCol.
    SelectedIndices::Shift(colSel, cols, i + 1, -1);
}

void TGGrid::MoveCol(long from, long to)
{
    if (to == from || to == from + 1)
        return;
    ASSERT(IsValidCol(from) && to >= 0 && to <= GetColNum());
    if (!IsValidCol(from) || to < 0 || to > GetColNum())
        return;
    Structure(*this).PlaceMovingCol(from, to);
    Structure(*this).ChangeRows([from, to](TGGridRow& row) { row.MoveCol(from, to); });
    cols.Move(from, to);
    for (cols.MoveToFirst(); !cols.IsOut(); cols.MoveToNext())
        cols.Cur()->SetIndex(cols.GetCur());
    Invalidate(1);
}

void TGGrid::MoveSelectedCols(long first, long last, long to)
{
    const TGGridUpdate update(*this);
    const bool right = to > last;
    if (right)
        for (long i = last; i >= first; --i)
            MoveCol(i, i + (to - last));
    else
        for (long i = first; i <= last; ++i)
            MoveCol(i, i + (to - first));
    const long distance = right ? to - last - 1 : to - first;
    for (long& selected : colSel)
        selected += distance;
}

void TGGrid::Structure::PlaceMovingCol(long from, long to)
{
    TGGridCol& moving = *grid.ColAtIndex(from);
    const long width = moving.GetWidth();
    if (from < to)
    {
        const long right = grid.ColAtIndex(to - 1)->GetRight();
        MoveColEdges(from + 1, to, -width);
        moving.Move(right - moving.GetRight());
    }
    else
    {
        const long left = grid.ColAtIndex(to)->GetLeft();
        MoveColEdges(to, from, width);
        moving.Move(left - moving.GetLeft());
    }
}

void TGGrid::Structure::MoveColEdges(long first, long last, long distance)
{
    auto col = grid.cols.IteratorAt(first);
    for (long i = first; i < last; ++i, ++col)
        (*col)->Move(distance);
}

void TGGrid::SetColNum(long n)
{
    const TGGridUpdate update(*this);
    while (GetColNum() > (std::max)(n, 0L))
        DelCol(GetColNum() - 1);
    while (GetColNum() < n)
        AppendCol(static_cast<TGGridCol*>(nullptr), 0);
}

} // namespace QuorUiCtr
