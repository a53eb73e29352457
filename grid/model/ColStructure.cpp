// TGGrid's columns: insert, append, delete, move, and the cells that follow them.
//
// Ending an edit runs hooks, which may change the structure: indices are looked up again afterwards.
#include "grid/model/GridStructure.h"

#include "grid/model/GridExtensions.h"
#include "grid/model/GridLimits.h"
#include "grid/TGUserAction.h"
#include "rules/GridGeometry.h"
#include "rules/SelectedIndices.h"

#include <algorithm>
#include <memory>

namespace QuorUiCtr
{

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
    if (extensions != nullptr && IsValidCol(i))
        extensions->Tell(GridExtensions::ColInserted, *ColAtIndex(i));
}

// The columns together stay below what coordinates can count.
long TGGrid::Structure::WidthOfNewCol(long width)
{
    ASSERT(width == WidthInRange(width));
    width = WidthInRange(width != 0 ? width : grid.defaultWidth);
    return (std::min)(width, MaxContentWidth - (std::min)(grid.GetRight(), MaxContentWidth));
}

void TGGrid::Structure::ResizeCol(TGGridCol& col, long width)
{
    const long i = col.GetIndex();
    const long oldWidth = col.GetWidth();
    col.SetRight(col.GetLeft() + width);
    for (TGGridCol* following : grid.cols)
        if (following->GetIndex() > i)
            following->Move(width - oldWidth);
    grid.RecalcLayout(1);
    if (grid.extensions != nullptr && grid.ColAtIndex(i) == &col)
        grid.extensions->Tell(GridExtensions::ColResized, col, oldWidth);
}

// As long as the lines of all captions are known.
void TGGrid::Structure::NoteCaption(const TGGridCol& col)
{
    if (grid.captionLines > 0)
        grid.captionLines =
            (std::max)(grid.captionLines, static_cast<long>(CaptionLineCount(col.GetName().GetString())));
}

void TGGrid::Structure::EnterCol(long i, TGGridCol& col)
{
    const long width = col.GetWidth();
    col.SetIndex(i);
    NoteCaption(col);
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
    grid.captionLines = 0;
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
    if (extensions != nullptr && !IsColEmpty())
        extensions->Tell(GridExtensions::ColInserted, *ColAtIndex(GetColNum() - 1));
}

void TGGrid::Structure::AddCol(TGGridCol& col)
{
    const long place = grid.cols.Append(&col);
    col.SetIndex(place);
    NoteCaption(col);
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
    Structure(*this).TakeCol(i);
}

void TGGrid::Structure::TakeCol(long i)
{
    if (grid.extensions != nullptr)
        grid.extensions->Tell(GridExtensions::ColRemoving, *grid.ColAtIndex(i));
    std::unique_ptr<TGGridCol> col(grid.ColAtIndex(i));
    RemoveCol(i);
    ChangeRows([i](TGGridRow& row) { row.DelCol(i); });
    grid.RecalcLayout(1);
    // As in InsertCol.
    SelectedIndices::Shift(grid.colSel, grid.cols, i + 1, -1);
    if (grid.extensions != nullptr)
        grid.extensions->Tell(GridExtensions::ColRemoved, i, col);
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
    if (extensions != nullptr)
        extensions->Tell(GridExtensions::ColMoved, from, to);
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
    const TGUserAction action(*this, n < GetColNum() ? TGActionKind::DeleteCols : TGActionKind::InsertCols);
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
        std::unique_ptr<TGGridCol> col(grid.ColAtIndex(last));
        if (grid.extensions != nullptr)
            grid.extensions->Tell(GridExtensions::ColRemoving, *col);
        RemoveCol(last);
        ChangeRows([last](TGGridRow& row) { row.DelCol(last); });
        if (grid.extensions != nullptr)
            grid.extensions->Tell(GridExtensions::ColRemoved, last, col);
    }
}

} // namespace QuorUiCtr
