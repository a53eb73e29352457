// TGGrid's rows and columns: insert, append, delete, move, and what tree rows need to come and go.
//
// Ending an edit and deselecting run hooks, which may change the structure or delete the object at hand:
// indices and pointers are looked up, or their watches asked, again afterwards.
#include "grid/model/GridStructure.h"

#include "grid/model/GridLimits.h"
#include "grid/model/MakeOrNull.h"
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

void TGGrid::Structure::FitToCols(TGGridRow& row)
{
    row.FitToCols();
    if (!row.IsTreeRow())
        return;
    for (TGGridTreeRow* child : static_cast<TGGridTreeRow&>(row).children)
        if (child != nullptr)
            FitToCols(*child);
}

void TGGrid::InsertRow(long i, TGGridRow* row)
{
    std::unique_ptr<TGGridRow> inserted(row);
    EndEditCell();
    ASSERT(i >= 0 && i <= GetRowNum());
    if (inserted == nullptr)
        inserted.reset(Structure(*this).MakeRow());
    Structure(*this).FitToCols(*inserted);
    TGGridRow* const entered = inserted.get();
    Structure(*this).InsertRows(std::clamp(i, 0L, GetRowNum()), {&entered, 1});
    inserted.release();
    RecalcLayout(1);
}

void TGGrid::AppendRow(TGGridRow* row)
{
    std::unique_ptr<TGGridRow> appended(row);
    EndEditCell();
    if (appended == nullptr)
        appended.reset(Structure(*this).MakeRow());
    Structure(*this).FitToCols(*appended);
    appended->SetIndex(rows.Append(appended.get()));
    appended.release();
    RecalcLayout(1);
}

void TGGrid::DelRow(long i)
{
    EndEditCell();
    ASSERT(IsValidRow(i));
    if (!IsValidRow(i))
        return;
    TGGridRow* row = RowAt(i);
    if (row == nullptr)
    {
        SelectRow(i, false);
        if (!IsValidRow(i) || RowAt(i) != nullptr)
            return;
    }
    else
    {
        if (!Structure(*this).PrepareToGo(*row))
            return;
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
    ASSERT(IsValidRow(from) && to >= 0 && to <= GetRowNum());
    if (!IsValidRow(from) || to < 0 || to > GetRowNum() || to == from || to == from + 1 ||
        !Structure(*this).PlaceMovingRow(from, to))
        return;
    Structure(*this).NumberRows(0);
    Invalidate(1);
}

void TGGrid::SetRowNum(long n)
{
    const TGGridUpdate update(*this);
    while (GetRowNum() > (std::max)(n, 0L))
        DelRow(GetRowNum() - 1);
    if (GetRowNum() < n)
        EndEditCell();
    Structure(*this).AppendRows(n - GetRowNum());
}

void TGGrid::Structure::AppendRows(long number)
{
    if (number <= 0)
        return;
    std::vector<std::unique_ptr<TGGridRow>> made;
    std::vector<TGGridRow*> added;
    for (long i = 0; i < number; ++i)
    {
        std::unique_ptr<TGGridRow> row(MakeRow());
        added.push_back(row.get());
        made.push_back(std::move(row));
    }
    InsertRows(grid.GetRowNum(), added);
    for (std::unique_ptr<TGGridRow>& row : made)
        static_cast<void>(row.release());
    grid.RecalcLayout(1);
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
    const long before = grid.GetRowNum();
    grid.rows.SpliceInsert(at, added);
    NumberRows(at);
    const long number = static_cast<long>(added.size());
    SelectedIndices::Shift(grid.rowSel, grid.rowSel, at, number);
    if (number > 0 && grid.curRowIndex >= at && grid.curRowIndex < before)
        grid.SetCurRowIndex(grid.curRowIndex + number);
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
    std::vector<TGGridRow*> shown;
    top.CollectOffspring(shown);
    const bool partlyShown = top.HasShownOffspring();
    const TGGridRow* const current = grid.RowAt(grid.curRowIndex);
    if (partlyShown)
    {
        for (const long i : grid.rowSel)
            selected.push_back(grid.RowAt(i));
        grid.rows.Reserve(grid.GetRowNum() + static_cast<long>(shown.size()));
        RemoveOffspring(top);
    }
    InsertRows(top.GetIndex() + 1, shown);
    if (!partlyShown)
        return;
    if (current != nullptr)
        grid.SetCurRowIndex(current->GetIndex());
    // The rows stand already: without memory for it the selection is lost.
    grid.rowSel.Clear();
    MakeOrNull([&] {
        for (const TGGridRow* row : selected)
            if (row != nullptr && row->GetIndex() != -1)
                SelectedIndices::Add(grid.rowSel, row->GetIndex());
        return static_cast<void*>(nullptr);
    });
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

template <class Change, class Undo> void TGGrid::Structure::ChangeAllRowsOrNone(Change change, Undo undo)
{
    long done = 0;
    try
    {
        ChangeRows([&](TGGridRow& row) {
            change(row);
            ++done;
        });
    }
    catch (...)
    {
        ChangeRows([&](TGGridRow& row) {
            if (done-- > 0)
                undo(row);
        });
        throw;
    }
}

void TGGrid::SetDefaultWidth(long pixels)
{
    ASSERT(pixels == WidthInRange(pixels));
    defaultWidth = WidthInRange(pixels);
}

void TGGrid::InsertCol(long i, TGGridCol* col, long width)
{
    std::unique_ptr<TGGridCol> inserted(col);
    EndEditCell();
    ASSERT(i >= 0 && i <= GetColNum());
    i = std::clamp(i, 0L, GetColNum());
    if (inserted == nullptr)
        inserted = std::make_unique<TGGridCol>(nullptr, *this);
    const TGGridCol* follower = ColAtIndex(i);
    const long left = follower != nullptr ? follower->GetLeft() : GetRight();
    inserted->SetLeft(left);
    inserted->SetRight(left + Structure(*this).WidthOfNewCol(width));
    Structure(*this).EnterCol(i, *inserted);
    inserted.release();
    // Bounded by the columns' cursor, which is past the end here: the selection keeps its numbers.
    SelectedIndices::Shift(colSel, cols, i, 1);
    RecalcLayout(1);
}

// The columns together stay below what coordinates can count.
long TGGrid::Structure::WidthOfNewCol(long width)
{
    ASSERT(width == WidthInRange(width));
    width = WidthInRange(width != 0 ? width : grid.defaultWidth);
    return (std::min)(width, MaxContentWidth - (std::min)(grid.GetRight(), MaxContentWidth));
}

void TGGrid::Structure::EnterCol(long i, TGGridCol& col)
{
    const long width = col.GetWidth();
    col.SetIndex(i);
    grid.cols.Insert(i, &col);
    for (grid.cols.MoveToNext(); !grid.cols.IsOut(); grid.cols.MoveToNext())
    {
        grid.cols.Cur()->Move(width);
        grid.cols.Cur()->SetIndex(grid.cols.GetCur());
    }
    try
    {
        ChangeAllRowsOrNone([i, &col](TGGridRow& row) { row.InsertCol(i, col); },
                            [i](TGGridRow& row) { row.DelCol(i); });
    }
    catch (...)
    {
        RemoveCol(i);
        throw;
    }
}

void TGGrid::Structure::RemoveCol(long i)
{
    const long width = grid.ColAtIndex(i)->GetWidth();
    grid.cols.MoveTo(i);
    grid.cols.SetCur(nullptr);
    grid.cols.Del();
    for (grid.cols.MoveToNext(); !grid.cols.IsOut(); grid.cols.MoveToNext())
    {
        grid.cols.Cur()->Move(-width);
        grid.cols.Cur()->SetIndex(grid.cols.GetCur());
    }
}

void TGGrid::InsertCol(long i, const wchar_t* name, long width)
{
    InsertCol(i, new TGGridCol(name, *this), width);
}

void TGGrid::AppendCol(TGGridCol* col, long width)
{
    std::unique_ptr<TGGridCol> appended(col);
    EndEditCell();
    if (appended == nullptr)
        appended = std::make_unique<TGGridCol>(nullptr, *this);
    const long left = GetRight();
    appended->SetLeft(left);
    appended->SetRight(left + Structure(*this).WidthOfNewCol(width));
    Structure(*this).AddCol(*appended);
    appended.release();
    RecalcLayout(1);
}

void TGGrid::Structure::AddCol(TGGridCol& col)
{
    const long place = grid.cols.Append(&col);
    col.SetIndex(place);
    try
    {
        ChangeAllRowsOrNone([&col](TGGridRow& row) { row.AppendCol(col); },
                            [place](TGGridRow& row) { row.DelCol(place); });
    }
    catch (...)
    {
        RemoveCol(place);
        throw;
    }
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
    Structure(*this).RemoveCol(i);
    Structure(*this).ChangeRows([i](TGGridRow& row) { row.DelCol(i); });
    RecalcLayout(1);
    // As in InsertCol.
    SelectedIndices::Shift(colSel, cols, i + 1, -1);
}

void TGGrid::MoveCol(long from, long to)
{
    ASSERT(IsValidCol(from) && to >= 0 && to <= GetColNum());
    if (!IsValidCol(from) || to < 0 || to > GetColNum() || to == from || to == from + 1)
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
    const long before = GetColNum();
    try
    {
        while (GetColNum() < n)
            AppendCol(static_cast<TGGridCol*>(nullptr), 0);
    }
    catch (...)
    {
        Structure(*this).DropCols(before);
        throw;
    }
}

void TGGrid::Structure::DropCols(long first)
{
    while (grid.GetColNum() > first)
    {
        const long last = grid.GetColNum() - 1;
        const std::unique_ptr<TGGridCol> col(grid.ColAtIndex(last));
        RemoveCol(last);
        ChangeRows([last](TGGridRow& row) { row.DelCol(last); });
    }
}

} // namespace QuorUiCtr
