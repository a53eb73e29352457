// The cell cursor's cells and ranges: where they stand, and what becomes of them when the grid changes.
#include "grid/extras/TGCellCursor.h"

#include "grid/TGGrid.h"

#include <algorithm>

namespace QuorUiCtr
{

TGCellCursor::TGCellCursor() = default;

TGCellCursor::TGCellCursor(TGGrid& newGrid)
{
    AttachTo(newGrid);
}

TGCellCursor::~TGCellCursor()
{
    Detach();
}

void TGCellCursor::OnMoved() {}

void TGCellCursor::OnAttach()
{
    ranges.clear();
    EnsureCell();
    GetGrid()->Invalidate(0);
}

void TGCellCursor::OnDetach(TGGrid& oldGrid)
{
    ranges.clear();
    dragging = false;
    if (oldGrid.m_hWnd != nullptr)
        ::KillTimer(oldGrid.m_hWnd, DragTimer());
    oldGrid.Invalidate(0);
}

// ---- Corners

TGCellCursor::Corner TGCellCursor::CornerAt(long row, long col) const
{
    TGGrid& grid = *GetGrid();
    return {FindRow(row), grid.IsValidCol(col) ? &grid.GetCol(col) : nullptr, row, col};
}

long TGCellCursor::RowOf(const Corner& corner) const
{
    const long index = corner.row != nullptr ? corner.row->GetIndex() : -1;
    return index >= 0 ? index : corner.lastRow;
}

long TGCellCursor::ColOf(const Corner& corner) const
{
    return corner.col != nullptr ? corner.col->GetIndex() : corner.lastCol;
}

TGCellRange TGCellCursor::RangeOf(const Range& range) const
{
    const long row = RowOf(range.anchor);
    const long col = ColOf(range.anchor);
    const long otherRow = RowOf(range.cursor);
    const long otherCol = ColOf(range.cursor);
    return {(std::min)(row, otherRow), (std::min)(col, otherCol), (std::max)(row, otherRow),
            (std::max)(col, otherCol)};
}

template <class Change> void TGCellCursor::ForCorners(Change change)
{
    for (Range& range : ranges)
    {
        change(range.anchor);
        change(range.cursor);
    }
}

long TGCellCursor::LastRow(bool withNewRow) const
{
    return GetGrid()->GetRowNum() - (withNewRow && HasNewRowLine() ? 0 : 1);
}

long TGCellCursor::LastCol() const
{
    return GetGrid()->GetColNum() - 1;
}

// A row that was folded away leaves its place to the ancestor that is shown. One that is being cut has no
// index any more: the notice of its removal follows.
void TGCellCursor::Settle(Corner& corner) const
{
    TGGridRow* row = corner.row;
    while (row != nullptr && row->GetIndex() < 0 && row->IsChildRow())
        row = &static_cast<TGGridTreeRow*>(row)->GetParent();
    if (row != nullptr && row->GetIndex() < 0)
        return;
    const long wanted = row != nullptr ? row->GetIndex() : corner.lastRow;
    corner = CornerAt(std::clamp(wanted, 0L, (std::max)(LastRow(true), 0L)),
                      std::clamp(ColOf(corner), 0L, (std::max)(LastCol(), 0L)));
}

void TGCellCursor::SettleAll()
{
    if (LastRow(true) < 0 || LastCol() < 0)
        ranges.clear();
    ForCorners([this](Corner& corner) { Settle(corner); });
}

// Whether there is a current cell; a grid that got its first cells has it there.
bool TGCellCursor::EnsureCell()
{
    SettleAll();
    if (ranges.empty() && LastRow(true) >= 0 && LastCol() >= 0)
        ranges.push_back({CornerAt(0, 0), CornerAt(0, 0)});
    return !ranges.empty();
}

// ---- The current cell and the ranges

long TGCellCursor::GetRow() const
{
    return ranges.empty() ? -1 : RowOf(ranges.back().cursor);
}

long TGCellCursor::GetCol() const
{
    return ranges.empty() ? -1 : ColOf(ranges.back().cursor);
}

bool TGCellCursor::MoveTo(long row, long col, bool extend)
{
    if (GetGrid() == nullptr || row < 0 || row > LastRow(true) || !GetGrid()->IsValidCol(col) ||
        !EnsureCell())
        return false;
    InvalidateRanges();
    if (!extend)
        ranges.erase(ranges.begin(), ranges.end() - 1);
    ranges.back().cursor = CornerAt(row, col);
    if (!extend)
        ranges.back().anchor = ranges.back().cursor;
    Moved();
    return true;
}

void TGCellCursor::AddRange(const TGCellRange& range)
{
    const auto inside = [](long index, long last) { return std::clamp(index, 0L, (std::max)(last, 0L)); };
    ranges.push_back({CornerAt(inside(range.top, LastRow(true)), inside(range.left, LastCol())),
                      CornerAt(inside(range.bottom, LastRow(true)), inside(range.right, LastCol()))});
}

bool TGCellCursor::SelectRange(const TGCellRange& range, bool add)
{
    if (GetGrid() == nullptr || !EnsureCell())
        return false;
    InvalidateRanges();
    if (!add)
        ranges.clear();
    AddRange(range);
    Moved();
    return true;
}

bool TGCellCursor::SelectAllCells()
{
    if (GetGrid() == nullptr || GetGrid()->IsEmpty() || !EnsureCell())
        return false;
    InvalidateRanges();
    const Range all = {CornerAt(LastRow(false), LastCol()), CornerAt(0, 0)};
    ranges.assign(1, all);
    Moved();
    return true;
}

std::vector<TGCellRange> TGCellCursor::GetRanges() const
{
    if (GetGrid() == nullptr)
        return {};
    std::vector<TGCellRange> found = GetSelectedBands();
    if (found.empty())
        OnSelectedCells(found);
    return found;
}

bool TGCellCursor::OnSelectedCells(std::vector<TGCellRange>& found) const
{
    for (const Range& range : ranges)
        found.push_back(RangeOf(range));
    return !ranges.empty();
}

// The current cell is the first one, so that it stays in view.
bool TGCellCursor::OnSelectCells(const TGCellRange& range)
{
    return SelectRange({range.bottom, range.right, range.top, range.left});
}

bool TGCellCursor::OnRestoreCells(std::span<const TGCellRange> restored, long row, long col)
{
    if (restored.empty() || !EnsureCell())
        return false;
    InvalidateRanges();
    ranges.clear();
    for (const TGCellRange& range : restored.first(restored.size() - 1))
        AddRange(range);
    const TGCellRange& last = restored.back();
    AddRange({row == last.top ? last.bottom : last.top, col == last.left ? last.right : last.left, row, col});
    Moved();
    return true;
}

bool TGCellCursor::IsInRanges(long row, long col) const
{
    if (GetGrid() == nullptr)
        return false;
    if (GetGrid()->IsRowSelected())
        return GetGrid()->IsRowSelected(row);
    if (GetGrid()->IsColSelected())
        return GetGrid()->IsColSelected(col);
    return std::any_of(ranges.begin(), ranges.end(),
                       [&](const Range& range) { return RangeOf(range).Contains(row, col); });
}

// ---- Changes of the grid

// A corner without a row stood on the new-row line, which has moved down; but an edit there has become the
// row.
void TGCellCursor::OnRowsInserted(TGGridTreeRow* parent, long position, std::span<TGGridRow* const>)
{
    ForCorners([&](Corner& corner) {
        const bool edited = GetGrid()->IsEditing() && parent == nullptr && corner.lastRow == position;
        if (corner.row == nullptr && !edited)
            corner.lastRow = GetGrid()->GetRowNum();
    });
    EnsureCell();
}

void TGCellCursor::OnRowsRemoved(TGRemovedRows& removed)
{
    ForCorners([&](Corner& corner) {
        TGGridRow* top = corner.row;
        while (top != nullptr && top->IsChildRow())
            top = &static_cast<TGGridTreeRow*>(top)->GetParent();
        const auto& rows = removed.GetRows();
        // What stands in for a row that is being cut goes as well.
        const bool leaves =
            std::find(rows.begin(), rows.end(), top) != rows.end() || (top != nullptr && top->GetIndex() < 0);
        if (leaves && top != nullptr)
            corner.row = nullptr;
        else if (corner.row == nullptr)
            corner.lastRow = GetGrid()->GetRowNum();
    });
    SettleAll();
}

void TGCellCursor::OnRowMoved(long, long, long)
{
    SettleAll();
}

// The rows of a range have gone different ways.
void TGCellCursor::OnRowsSorted(TGGridTreeRow*, std::span<const long>)
{
    if (ranges.empty())
        return;
    const Corner cursor = ranges.back().cursor;
    ranges.assign(1, {cursor, cursor});
    SettleAll();
}

void TGCellCursor::OnRowsFolded(std::span<TGGridTreeRow* const>)
{
    ForCorners([this](Corner& corner) {
        if (corner.row == nullptr)
            corner.lastRow = GetGrid()->GetRowNum();
    });
    SettleAll();
}

void TGCellCursor::OnColInserted(TGGridCol&)
{
    EnsureCell();
}

void TGCellCursor::OnColRemoved(long, std::unique_ptr<TGGridCol>& col)
{
    ForCorners([&](Corner& corner) {
        if (corner.col == col.get())
            corner.col = nullptr;
    });
    SettleAll();
}

void TGCellCursor::OnColMoved(long, long)
{
    SettleAll();
}

// The user has chosen rows or columns in a header: the current cell goes there.
void TGCellCursor::OnSelected()
{
    if (selecting || !EnsureCell())
        return;
    TGGrid& grid = *GetGrid();
    if (grid.GetRowSelNum() == 1)
        ranges.assign(1, {CornerAt(grid.GetSelRow(0).GetIndex(), GetCol()),
                          CornerAt(grid.GetSelRow(0).GetIndex(), GetCol())});
    else if (grid.GetColSelNum() == 1)
        ranges.assign(1, {CornerAt(GetRow(), grid.GetSelCol(0).GetIndex()),
                          CornerAt(GetRow(), grid.GetSelCol(0).GetIndex())});
    else
        return;
    grid.Invalidate(0);
    OnMoved();
}

// Where the new-row line was, there may be a row that this object was not told of yet: it is when the notice
// comes that a corner follows the line down.
void TGCellCursor::OnLaidOut()
{
    if (LastRow(true) < 0 || LastCol() < 0)
        ranges.clear();
    ForCorners([this](Corner& corner) {
        if (corner.row != nullptr || FindRow(corner.lastRow) == nullptr)
            Settle(corner);
    });
}

bool TGCellCursor::OnCurrentCell(long& row, long& col) const
{
    row = GetRow();
    col = GetCol();
    return row >= 0;
}

void TGCellCursor::Moved()
{
    TGGrid& grid = *GetGrid();
    const Watch watch(*this);
    if (grid.IsRowSelected() || grid.IsColSelected())
    {
        const OwnSelecting own(*this);
        grid.UnSelect();
    }
    if (!watch.IsAttached())
        return;
    grid.SetCurRowIndex(grid.IsValidRow(GetRow()) ? GetRow() : -1);
    if (!watch.IsAttached())
        return;
    InvalidateRanges();
    ShowCursor();
    if (watch.IsAttached())
        OnMoved();
}

// ---- Hooks

bool TGCellCursor::Watch::HasWindow() const
{
    return IsAttached() && cursor.GetGrid()->GetSafeHwnd() != nullptr;
}

TGCellCursor::OwnSelecting::OwnSelecting(TGCellCursor& selectingCursor)
    : cursor(selectingCursor), watch(selectingCursor), before(std::exchange(selectingCursor.selecting, true))
{
}

TGCellCursor::OwnSelecting::~OwnSelecting()
{
    if (!watch.IsDeleted())
        cursor.selecting = before;
}

} // namespace QuorUiCtr
