// TGGrid's painting: the visible rows, the new-row line, the selection, and the colours of an open editor.
#include "grid/TGGrid.h"

#include "grid/TGCellCtrl.h"
#include "grid/TGColSelector.h"
#include "grid/TGRowSelector.h"
#include "grid/model/ScopedValue.h"
#include "rules/SelectedIndices.h"

#include <algorithm>

namespace QuorUiCtr
{

void TGGrid::OnPaint()
{
    if (IsUpdating())
    {
        const CPaintDC validated(this);
        redrawPending = true;
        return;
    }
    ClearDC();
    {
        CPaintDC paintContext(this);
        PrepareDC(&paintContext);
        Refresh();
        // A hook that asked for a layout has put a client context in the place of this one.
        ClearDC();
    }
    PrepareDC(nullptr);
}

void TGGrid::Refresh()
{
    if (GetSafeHwnd() == nullptr)
        return;
    if (IsUpdating())
    {
        redrawPending = true;
        return;
    }
    {
        const ScopedValue guard(refreshing, true);
        const RowRange visible = VisibleRows();
        DrawRows(visible.first, visible.last);
        if (GetRowNum() <= visible.last && IsAppendRowShown() && newRow != nullptr)
            newRow->Refresh();
    }
    if (IsColSelected())
        InvertSelectedCols();
    else
        InvertSelectedRows();
    // The marks of a running drag stand on what was just drawn.
    if (rowHeader != nullptr)
        rowHeader->RestoreDropMark();
    if (colHeader != nullptr)
        colHeader->RestoreMark();
}

// All rows without a drawing context.
TGGrid::RowRange TGGrid::VisibleRows()
{
    if (dc == nullptr)
        return {0, GetRowNum()};
    const CRect view = ViewRect();
    return {view.top / GetRowHeight(), view.bottom / GetRowHeight()};
}

// The cursor walks along, so that hooks may change the rows meanwhile, and is brought back for the host.
void TGGrid::DrawRows(long first, long last)
{
    const CursorGuard<TGGridRow*> cursor(rows);
    for (long i = (std::max)(first, 0L); i <= last && rows.MoveTo(i); ++i)
    {
        TGGridRow* row = rows.Cur();
        if (row != nullptr)
            row->Refresh();
    }
}

void TGGrid::InvertSelectedCols()
{
    for (const long index : colSel)
    {
        TGGridCol* col = IsValidCol(index) ? *cols.IteratorAt(index) : nullptr;
        if (col != nullptr)
            col->Select(true);
    }
}

// The bands outside the view need no inverting, so that this costs what is visible, not what is selected.
void TGGrid::InvertSelectedRows()
{
    if (!IsRowSelected() || GetSafeHwnd() == nullptr || dc == nullptr)
        return;
    const RowRange visible = VisibleRows();
    auto entry = SelectedIndices::FindNotBelow(rowSel, visible.first);
    for (; entry != rowSel.end() && *entry <= visible.last; ++entry)
    {
        TGGridRow* row = IsValidRow(*entry) ? *rows.IteratorAt(*entry) : nullptr;
        if (row != nullptr)
            row->Select(true);
    }
}

// A cell drawn by itself lies on the bands of its row, of the row below, whose top line it draws, and of the
// columns that its frame touches.
void TGGrid::InvertSelectionIn(const CRect& drawn)
{
    if (refreshing || dc == nullptr)
        return;
    CRect band;
    const auto invertPart = [&](auto& line) {
        line.GetRect(band);
        if (band.IntersectRect(&band, &drawn))
            InvertBand(band);
    };
    for (const long i : colSel)
        if (TGGridCol* col = ColAtIndex(i))
            invertPart(*col);
    auto entry = SelectedIndices::FindNotBelow(rowSel, drawn.top / GetRowHeight());
    for (; entry != rowSel.end() && *entry <= drawn.bottom / GetRowHeight(); ++entry)
        if (TGGridRow* row = RowAt(*entry))
            invertPart(*row);
    if (rowHeader != nullptr)
        rowHeader->RestoreDropMark(drawn);
    if (colHeader != nullptr)
        colHeader->RestoreMark(drawn);
}

// Painting without erasing leaves what stood right of the columns and below the rows.
void TGGrid::ClearOutsideCells(const CRect& area)
{
    const long right = GetRight() + 1;
    const long bottom = GetBottom() + 1;
    const CRect outside[] = {CRect(right, 0, area.right, area.bottom), CRect(0, bottom, right, area.bottom)};
    for (const CRect& side : outside)
        if (CRect part; dc != nullptr && part.IntersectRect(side, area))
            dc->FillRect(part, &backBrush);
}

// With both bars shown the cells cover the area, but not until a resize that takes a bar away has been laid
// out: what the bars covered comes into the client area before.
bool TGGrid::CoversArea()
{
    CRect area;
    GetClientRect(&area);
    return hScrollShown && vScrollShown && GetRight() >= area.Width() && GetBottom() >= area.Height();
}

BOOL TGGrid::OnEraseBkgnd(CDC* context)
{
    // Between BeginUpdate and EndUpdate the old picture stays.
    if (IsUpdating())
    {
        redrawPending = true;
        return TRUE;
    }
    return CoversArea() ? TRUE : CWnd::OnEraseBkgnd(context);
}

HBRUSH TGGrid::OnCtlColor(CDC* context, CWnd* wnd, UINT kind)
{
    const HBRUSH standard = CWnd::OnCtlColor(context, wnd, kind);
    if (!IsEditing() || cellCtrl == nullptr || wnd->GetSafeHwnd() == nullptr ||
        wnd->GetSafeHwnd() != cellCtrl->GetWnd()->GetSafeHwnd())
        return standard;
    TGGridCol& col = editCell->GetCol();
    context->SetTextColor(col.GetTextColor());
    context->SetBkColor(col.GetBackColor());
    context->SelectObject(&col.GetBrush());
    return col.GetBrush();
}

} // namespace QuorUiCtr
