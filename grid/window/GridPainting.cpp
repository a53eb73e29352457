// TGGrid's painting: the visible rows, the new-row line, the selection, and the colours of an open editor.
#include "grid/window/GridPainting.h"

#include "grid/model/GridExtensions.h"
#include "grid/TGCellCtrl.h"
#include "grid/window/GridLayout.h"
#include "grid/TGColSelector.h"
#include "grid/TGRowSelector.h"
#include "grid/model/ScopedValue.h"
#include "rules/SelectedIndices.h"

#include <algorithm>
#include <utility>

namespace QuorUiCtr
{

void TGGrid::OnPaint()
{
    repaintAwaited = false;
    if (IsUpdating())
    {
        const CPaintDC validated(this);
        redrawPending = true;
        return;
    }
    if (std::exchange(barStale, false))
        Layout(*this).RepaintBar(SB_VERT);
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
        const ScopedValue part(visiblePart, Painting(*this).VisiblePart());
        Painting(*this).DrawVisibleRows();
    }
    if (IsColSelected())
        Painting(*this).InvertSelectedCols();
    else
        Painting(*this).InvertSelectedRows();
    if (extensions != nullptr && dc != nullptr)
    {
        CRect drawn;
        dc->GetClipBox(&drawn);
        extensions->DrawOverlay(drawn);
    }
    // The marks of a running drag stand on what was just drawn.
    if (rowHeader != nullptr)
        rowHeader->RestoreDropMark();
    if (colHeader != nullptr)
        colHeader->RestoreMark();
}

void TGGrid::Painting::DrawVisibleRows()
{
    const RowRange visible = VisibleRows();
    DrawRows(visible.first, visible.last);
    if (grid.GetRowNum() > visible.last || !grid.IsAppendRowShown())
        return;
    if (TGGridRow* newRow = grid.FreshNewRow())
        newRow->Refresh();
}

CRect TGGrid::Painting::VisiblePart()
{
    CRect part = Everywhere;
    if (grid.dc != nullptr)
        grid.dc->GetClipBox(&part);
    return part;
}

// All rows without a drawing context.
TGGrid::Painting::RowRange TGGrid::Painting::VisibleRows()
{
    if (grid.dc == nullptr)
        return {0, grid.GetRowNum()};
    const CRect view = Layout(grid).ViewRect();
    return {view.top / grid.GetRowHeight(), view.bottom / grid.GetRowHeight()};
}

// The cursor walks along, so that hooks may change the rows meanwhile, and is brought back for the host.
void TGGrid::Painting::DrawRows(long first, long last)
{
    PDList<TGGridRow>& rows = grid.rows;
    const CursorGuard<TGGridRow*> cursor(rows);
    for (long i = (std::max)(first, 0L); i <= last && rows.MoveTo(i); ++i)
    {
        TGGridRow* row = rows.Cur();
        if (row != nullptr)
            row->Refresh();
    }
}

void TGGrid::Painting::InvertSelectedCols()
{
    for (const long index : grid.colSel)
        if (TGGridCol* col = grid.ColAtIndex(index))
            col->Select(true);
}

// The bands outside the view need no inverting, so that this costs what is visible, not what is selected.
void TGGrid::Painting::InvertSelectedRows()
{
    if (!grid.IsRowSelected() || grid.GetSafeHwnd() == nullptr || grid.dc == nullptr)
        return;
    const RowRange visible = VisibleRows();
    auto entry = SelectedIndices::FindNotBelow(grid.rowSel, visible.first);
    for (; entry != grid.rowSel.end() && *entry <= visible.last; ++entry)
        if (TGGridRow* row = grid.RowAtIndex(*entry))
            row->Select(true);
}

// A cell drawn by itself lies on the bands of its row, of the row below, whose top line it draws, and of the
// columns that its frame touches.
void TGGrid::Painting::InvertSelectionIn(const CRect& drawn)
{
    if (grid.refreshing || grid.dc == nullptr)
        return;
    CRect band;
    const auto invertPart = [&](auto& line) {
        line.GetRect(band);
        if (band.IntersectRect(&band, &drawn))
            grid.InvertBand(band);
    };
    for (const long i : grid.colSel)
        if (TGGridCol* col = grid.ColAtIndex(i))
            invertPart(*col);
    auto entry = SelectedIndices::FindNotBelow(grid.rowSel, drawn.top / grid.GetRowHeight());
    for (; entry != grid.rowSel.end() && *entry <= drawn.bottom / grid.GetRowHeight(); ++entry)
        if (TGGridRow* row = grid.RowAtIndex(*entry))
            invertPart(*row);
    if (grid.extensions != nullptr)
        grid.extensions->DrawOverlay(drawn);
    if (grid.rowHeader != nullptr)
        grid.rowHeader->RestoreDropMark(drawn);
    if (grid.colHeader != nullptr)
        grid.colHeader->RestoreMark(drawn);
}

// Painting without erasing leaves what stood right of the columns and below the rows.
void TGGrid::Painting::ClearOutsideCells(const CRect& area)
{
    const long right = grid.GetRight() + 1;
    const long bottom = grid.GetBottom() + 1;
    const CRect outside[] = {CRect(right, 0, area.right, area.bottom), CRect(0, bottom, right, area.bottom)};
    for (const CRect& side : outside)
        if (CRect part; grid.dc != nullptr && part.IntersectRect(side, area))
            grid.dc->FillRect(part, &grid.backBrush);
}

// With both bars shown the cells cover the area, but not until a resize that takes a bar away has been laid
// out: what the bars covered comes into the client area before.
bool TGGrid::Painting::CoversArea()
{
    CRect area;
    grid.GetClientRect(&area);
    return grid.hScrollShown && grid.vScrollShown && grid.GetRight() >= area.Width() &&
           grid.GetBottom() >= area.Height();
}

BOOL TGGrid::OnEraseBkgnd(CDC* context)
{
    // Between BeginUpdate and EndUpdate the old picture stays.
    if (IsUpdating())
    {
        redrawPending = true;
        return TRUE;
    }
    return Painting(*this).CoversArea() ? TRUE : CWnd::OnEraseBkgnd(context);
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
