// TGGrid's layout: measures, scroll bars, header placement, the new-row line, the prepared drawing context
// and the bracket that makes many changes as one.
#include "grid/window/GridLayout.h"
#include "grid/headers/HeaderBand.h"
#include "grid/model/GridExtensions.h"
#include "grid/model/GridStructure.h"
#include "grid/model/LateNumbers.h"
#include "grid/model/GridLimits.h"
#include "grid/model/MakeOrNull.h"
#include "grid/TGActiveQuad.h"
#include "grid/TGColSelector.h"
#include "grid/TGRowSelector.h"
#include "grid/model/ScopedValue.h"
#include "rules/GridGeometry.h"

#include <algorithm>

namespace QuorUiCtr
{

namespace
{

// Set while any grid of the process is laid out: showing a scroll bar sends WM_SIZE, which asks for a layout.
bool layingOut = false;

void PlaceChild(CWnd* child, const CRect& place)
{
    if (child->GetSafeHwnd() != nullptr)
        child->SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                            SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

void InvalidateChild(CWnd* child)
{
    if (child->GetSafeHwnd() != nullptr)
        child->Invalidate(TRUE);
}

} // namespace

// ---- Measures

long TGGrid::GetBottom()
{
    const long lines = GetRowNum() + (IsAppendRowShown() ? 1 : 0);
    return RowEdge(lines, GetRowHeight());
}

long TGGrid::GetRight()
{
    return IsColEmpty() ? 0 : ColAtIndex(GetColNum() - 1)->GetRight();
}

long TGGrid::GetColHeaderHeight()
{
    if (captionLines == 0)
    {
        captionLines = 1;
        for (const TGGridCol* col : cols)
            captionLines =
                (std::max)(captionLines, static_cast<long>(CaptionLineCount(col->GetName().GetString())));
    }
    return GetRowHeight() * captionLines;
}

void TGGrid::GetClientRect(RECT* rect)
{
    CWnd::GetClientRect(rect);
    if (IsRowSel())
        rect->left += GetRowHeight();
    if (IsColSel())
        rect->top += GetColHeaderHeight();
}

void TGGrid::GetUpCorner(CPoint& corner)
{
    CRect area;
    GetClientRect(&area);
    corner =
        CPoint(area.left - Layout(*this).BarPosition(SB_HORZ), area.top - Layout(*this).BarPosition(SB_VERT));
}

void TGGrid::SetRowSpace(int pixels)
{
    ASSERT(pixels <= MaxRowSpace);
    if (pixels < 1 - textHeight)
        return;
    rowSpace = (std::min)(pixels, MaxRowSpace);
    RecalcLayout(1);
}

bool TGGrid::FitLastCol()
{
    if (GetSafeHwnd() == nullptr || IsColEmpty())
        return false;
    FlushLayout();
    CRect area;
    GetClientRect(&area);
    TGGridCol& last = *ColAtIndex(GetColNum() - 1);
    const long difference = area.Width() - GetRight();
    if (difference == 0 || difference < GetRowHeight() - last.GetWidth())
        return false;
    const long oldWidth = last.GetWidth();
    last.SetRight(last.GetRight() + difference);
    RecalcLayout(1);
    if (extensions != nullptr && !IsColEmpty())
        extensions->Tell(GridExtensions::ColResized, *ColAtIndex(GetColNum() - 1), oldWidth);
    return true;
}

// ---- Layout

void TGGrid::RecalcLayout(int redraw)
{
    if (layingOut || GetSafeHwnd() == nullptr)
        return;
    if (IsUpdating())
    {
        layoutPending = true;
        redrawPending = redrawPending || redraw != 0;
        return;
    }
    Layout(*this).PerformLayout(redraw);
    if (extensions != nullptr)
        extensions->Tell(GridExtensions::LaidOut);
}

// A window that is out of sight has nothing to repaint; once it is seen, all of it has. But with its redraw
// off it stays as it is.
void TGGrid::Layout::AwaitRepaint()
{
    grid.repaintAwaited = (grid.CWnd::GetStyle() & WS_VISIBLE) != 0;
    grid.awaitedInSight = grid.repaintAwaited && grid.IsWindowVisible() != FALSE;
}

// As long as all is to be repainted, bars come or go with a layout only, and so does what the end of the rows
// does to the position.
bool TGGrid::Layout::FollowRows()
{
    if (layingOut || grid.IsEditing() || (!grid.awaitedInSight && grid.IsWindowVisible()))
        return false;
    const long hidden = grid.GetBottom() - grid.viewHeight;
    if ((hidden > 0) != grid.vScrollShown || IsNewRowInUse())
        return false;
    if (grid.vScrollShown && hidden != grid.scrollHeight)
    {
        if (hidden < grid.scrollHeight && BarPosition(SB_VERT) > hidden)
            return false;
        grid.SetScrollRange(SB_VERT, 0, static_cast<int>(hidden), FALSE);
        grid.scrollHeight = hidden;
        grid.barStale = true;
    }
    RenewNewRow();
    return true;
}

void TGGrid::RecalcRows()
{
    if (!repaintAwaited || IsUpdating() || !Layout(*this).FollowRows())
        RecalcLayout(1);
}

void TGGrid::Layout::PerformLayout(int redraw)
{
    const ScopedValue guard(layingOut, true);
    grid.layoutPending = false;
    grid.repaintAwaited = false;
    if (grid.IsEditing())
        grid.EndEditCell();
    // The hooks of the edit may have closed the window.
    if (grid.GetSafeHwnd() == nullptr)
        return;
    PlaceHeaders();
    LayOutScrollBars();
    grid.ClearDC();
    grid.PrepareDC(nullptr);
    RenewNewRow();
    if (redraw == 0)
        return;
    grid.Invalidate(1);
    AwaitRepaint();
}

void TGGrid::Layout::LayOutScrollBars()
{
    const int barWidth = ::GetSystemMetrics(SM_CXVSCROLL);
    const int barHeight = ::GetSystemMetrics(SM_CYHSCROLL);
    CRect area;
    grid.GetClientRect(&area);
    // A host may have created the window with bars: what the window shows counts, not what was laid out last.
    if (IsBarShown(SB_VERT))
        area.right += barWidth;
    if (IsBarShown(SB_HORZ))
        area.bottom += barHeight;
    const CSize content(grid.GetRight(), grid.GetBottom());
    const ScrollBarPlan plan = PlanScrollBars(content, area.Size(), barWidth, barHeight);
    const int hPosition = BarPosition(SB_HORZ);
    const int vPosition = BarPosition(SB_VERT);
    LayOutBar(SB_HORZ, plan.horizontal, hPosition, content.cx - plan.area.width);
    LayOutBar(SB_VERT, plan.vertical, vPosition, content.cy - plan.area.height);
    grid.hScrollShown = plan.horizontal;
    grid.vScrollShown = plan.vertical;
    grid.viewHeight = plan.area.height;
    grid.scrollHeight = content.cy - plan.area.height;
}

// Drawing a scroll bar costs more than the rest of a layout together: its values are set without, a bar that
// is shown draws them, and that of one that was shown before is left to the next paint.
void TGGrid::Layout::LayOutBar(int bar, bool needed, int position, int maximum)
{
    const bool wasShown = IsBarShown(bar);
    if (needed && SetBarValues(bar, (std::min)(position, maximum), maximum) && wasShown)
        RepaintBar(bar);
    if (needed != IsBarShown(bar))
        grid.ShowScrollBar(static_cast<UINT>(bar), needed);
}

bool TGGrid::Layout::SetBarValues(int bar, int position, int maximum)
{
    int oldMinimum = 0;
    int oldMaximum = 0;
    grid.GetScrollRange(bar, &oldMinimum, &oldMaximum);
    if (oldMinimum == 0 && oldMaximum == maximum)
        return SetBarPosition(bar, position);
    SCROLLINFO values = {};
    values.cbSize = sizeof(values);
    values.fMask = SIF_RANGE | SIF_POS;
    values.nMax = maximum;
    values.nPos = position;
    grid.SetScrollInfo(bar, &values, FALSE);
    return true;
}

bool TGGrid::Layout::IsBarShown(int bar) const
{
    return (grid.CWnd::GetStyle() & (bar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL)) != 0;
}

int TGGrid::Layout::BarPosition(int bar) const
{
    return IsBarShown(bar) ? grid.GetScrollPos(bar) : 0;
}

bool TGGrid::Layout::SetBarPosition(int bar, int position)
{
    if (grid.GetScrollPos(bar) == position)
        return false;
    grid.SetScrollPos(bar, position, FALSE);
    return true;
}

// The header windows follow the row height and the header height, which change with the font, the row space
// and the captions.
void TGGrid::Layout::PlaceHeaders()
{
    const CSize measure(grid.GetRowHeight(), grid.GetColHeaderHeight());
    // Not operator==, which is ambiguous between two CSize with some compilers.
    if (measure.cx == grid.headerMeasure.cx && measure.cy == grid.headerMeasure.cy)
        return;
    grid.headerMeasure = measure;
    PlaceChild(grid.quad, CRect(0, 0, measure.cx, measure.cy));
    PlaceChild(grid.colHeader, HeaderBand(grid, HeaderAxis::Cols).WindowRect());
    PlaceChild(grid.rowHeader, HeaderBand(grid, HeaderAxis::Rows).WindowRect());
}

// Whether a cell is one of the new row, of which there must be one.
bool TGGrid::Layout::IsOfNewRow(const TGGridCell* cell) const
{
    return cell != nullptr && &cell->GetRow() == grid.newRow;
}

// While an edit of the new row is being committed, its cells are in use; one may be about to be edited.
bool TGGrid::Layout::IsNewRowInUse() const
{
    return grid.newRow != nullptr && (IsOfNewRow(grid.editCell) || IsOfNewRow(grid.cellLock));
}

// A row that nobody uses is made anew only when somebody is going to: most layouts are followed by others
// before that. The columns' cursor goes where the making of a row leaves it.
void TGGrid::Layout::RenewNewRow()
{
    if (grid.newRow != nullptr && !IsNewRowInUse())
    {
        grid.newRow->SetIndex(grid.GetRowNum());
        grid.newRowStale = true;
        grid.cols.MoveTo(-1);
        return;
    }
    if (grid.newRow != nullptr && IsOfNewRow(grid.editCell))
    {
        grid.newRow->SetIndex(grid.GetRowNum());
        return;
    }
    MakeNewRow();
}

void TGGrid::Layout::MakeNewRow()
{
    const bool locked = grid.newRow != nullptr && IsOfNewRow(grid.cellLock);
    const long lockedCol = locked ? grid.cellLock->GetColIndex() : -1;
    grid.newRowStale = false;
    // Without memory for a fresh row the old one stays, or none.
    TGGridRow* fresh = MakeOrNull([this] { return Structure(grid).MakeRow(); });
    if (fresh != nullptr)
    {
        delete grid.newRow;
        grid.newRow = fresh;
    }
    if (grid.newRow == nullptr)
    {
        grid.cellLock = locked ? nullptr : grid.cellLock;
        return;
    }
    grid.newRow->SetIndex(grid.GetRowNum());
    if (locked)
        grid.cellLock = grid.IsValidCol(lockedCol) ? &(*grid.newRow)[lockedCol] : nullptr;
}

// A layout in OnBeforeEdit leaves the row stale on which an editor is opened next: it stays until that edit
// ends.
TGGridRow* TGGrid::FreshNewRow()
{
    Layout layout(*this);
    if (newRow != nullptr && newRowStale && !layout.IsOfNewRow(editCell))
    {
        const CursorGuard cursor(cols);
        layout.MakeNewRow();
    }
    return newRow;
}

void TGGrid::Invalidate(int erase)
{
    if (GetSafeHwnd() == nullptr)
        return;
    if (IsUpdating())
    {
        redrawPending = true;
        return;
    }
    if (erase != 0)
    {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        return;
    }
    CWnd::Invalidate(FALSE);
    InvalidateChild(quad);
    InvalidateChild(colHeader);
    InvalidateChild(rowHeader);
}

// ---- Many changes as one

void TGGrid::BeginUpdate()
{
    ++updateDepth;
}

void TGGrid::EndUpdate()
{
    if (updateDepth == 0 || --updateDepth > 0)
        return;
    LateNumbers::Settle(*this);
    const bool layout = layoutPending;
    const bool redraw = redrawPending;
    const bool show = showPending;
    layoutPending = false;
    redrawPending = false;
    showPending = false;
    if (layout)
        RecalcLayout(redraw ? 1 : 0);
    else if (redraw)
        Invalidate(1);
    if (show)
        ShowRect(pendingShowRect);
}

void TGGrid::FlushLayout()
{
    if (layoutPending && !layingOut && GetSafeHwnd() != nullptr)
    {
        Layout(*this).PerformLayout(0);
        if (extensions != nullptr)
            extensions->Tell(GridExtensions::LaidOut);
    }
}

// ---- Drawing context

void TGGrid::PrepareDC(CDC* context)
{
    if (context != nullptr)
    {
        ClearDC();
        dc = context;
    }
    else if (dc == nullptr)
    {
        if (GetSafeHwnd() == nullptr)
            return;
        dc = MakeOrNull([this] { return new CClientDC(this); });
        if (dc == nullptr)
            return;
        ownsDC = true;
    }
    visiblePart = Everywhere;
    dc->SetROP2(R2_COPYPEN);
    // By their handles: nobody needs objects for what they replace, and a layout must not lack memory for
    // them.
    ::SelectObject(dc->GetSafeHdc(), font.GetSafeHandle());
    ::SelectObject(dc->GetSafeHdc(), gridPen.GetSafeHandle());
    Layout(*this).MapDC();
}

// The logical origin lies one pixel outside the data area, so that the first grid lines are hidden. Nothing
// is drawn over the header windows, whether or not the host made the window with WS_CLIPCHILDREN.
void TGGrid::Layout::MapDC()
{
    CRect area;
    grid.GetClientRect(&area);
    CPoint corner;
    grid.GetUpCorner(corner);
    grid.dc->SetViewportOrg(0, 0);
    grid.dc->SelectClipRgn(nullptr);
    grid.dc->IntersectClipRect(&area);
    grid.dc->SetViewportOrg(corner.x - 1, corner.y - 1);
}

void TGGrid::ClearDC()
{
    if (ownsDC)
        delete dc;
    ownsDC = false;
    dc = nullptr;
}

} // namespace QuorUiCtr
