// TGGrid's layout: measures, scroll bars, header placement, the new-row line, the prepared drawing context
// and the bracket that makes many changes as one.
#include "grid/TGGrid.h"

#include "grid/GridGeometry.h"
#include "grid/HeaderBox.h"
#include "grid/TGActiveQuad.h"
#include "grid/TGColSelector.h"
#include "grid/TGRowSelector.h"

#include <algorithm>

namespace QuorUiCtr
{

namespace
{

// Set while any grid of the process is laid out: showing a scroll bar sends WM_SIZE, which asks for a layout.
bool layingOut = false;

class LayoutGuard
{
public:
    LayoutGuard() { layingOut = true; }
    ~LayoutGuard() { layingOut = false; }
    LayoutGuard(const LayoutGuard&) = delete;
    LayoutGuard& operator=(const LayoutGuard&) = delete;
};

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

// ---- Measures ---------------------------------------------------------------------------------------------

long TGGrid::GetBottom()
{
    const long lines = GetRowNum() + (IsAppendRowShown() ? 1 : 0);
    return GetRowHeight() * lines;
}

long TGGrid::GetRight()
{
    return IsColEmpty() ? 0 : LastCol().GetRight();
}

TGGridCol& TGGrid::LastCol()
{
    return **cols.IteratorAt(GetColNum() - 1);
}

long TGGrid::GetColHeaderHeight()
{
    long lines = 1;
    for (const TGGridCol* col : cols)
        lines = std::max(lines, CaptionLineCount(col->GetName()));
    return GetRowHeight() * lines;
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
    corner = CPoint(area.left - BarPosition(SB_HORZ), area.top - BarPosition(SB_VERT));
}

void TGGrid::SetRowSpace(int pixels)
{
    rowSpace = pixels;
    RecalcLayout(1);
}

bool TGGrid::FitLastCol()
{
    if (GetSafeHwnd() == nullptr || IsColEmpty())
        return false;
    FlushLayout();
    CRect area;
    GetClientRect(&area);
    TGGridCol& last = LastCol();
    const long difference = area.Width() - GetRight();
    if (difference == 0 || difference < GetRowHeight() - last.GetWidth())
        return false;
    last.SetRight(last.GetRight() + difference);
    RecalcLayout(1);
    return true;
}

// ---- Layout -----------------------------------------------------------------------------------------------

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
    PerformLayout(redraw);
}

void TGGrid::PerformLayout(int redraw)
{
    const LayoutGuard guard;
    layoutPending = false;
    EndEditCell();
    // The hooks of the edit may have closed the window.
    if (GetSafeHwnd() == nullptr)
        return;
    PlaceHeaders();
    LayOutScrollBars();
    ClearDC();
    PrepareDC(nullptr);
    RenewNewRow();
    if (redraw != 0)
        Invalidate(1);
}

void TGGrid::LayOutScrollBars()
{
    const int barWidth = ::GetSystemMetrics(SM_CXVSCROLL);
    const int barHeight = ::GetSystemMetrics(SM_CYHSCROLL);
    CRect area;
    GetClientRect(&area);
    // A host may have created the window with bars: what the window shows counts, not what was laid out last.
    if (IsBarShown(SB_VERT))
        area.right += barWidth;
    if (IsBarShown(SB_HORZ))
        area.bottom += barHeight;
    const CSize content(GetRight(), GetBottom());
    const ScrollBarPlan plan = PlanScrollBars(content, area.Size(), barWidth, barHeight);
    const int hPosition = BarPosition(SB_HORZ);
    const int vPosition = BarPosition(SB_VERT);
    LayOutBar(SB_HORZ, plan.horizontal, hPosition, content.cx - plan.area.cx);
    LayOutBar(SB_VERT, plan.vertical, vPosition, content.cy - plan.area.cy);
    hScrollShown = plan.horizontal;
    vScrollShown = plan.vertical;
}

// Drawing a scroll bar costs more than the rest of a layout together, so that its values are set without and
// its picture is left to the next paint.
void TGGrid::LayOutBar(int bar, bool needed, int position, int maximum)
{
    if (needed != IsBarShown(bar))
        ShowScrollBar(static_cast<UINT>(bar), needed);
    if (!needed)
        return;
    int oldMinimum = 0;
    int oldMaximum = 0;
    GetScrollRange(bar, &oldMinimum, &oldMaximum);
    if (oldMinimum != 0 || oldMaximum != maximum)
    {
        SetScrollRange(bar, 0, maximum, FALSE);
        RepaintBar(bar);
    }
    SetBarPosition(bar, std::min(position, maximum));
}

bool TGGrid::IsBarShown(int bar) const
{
    return (CWnd::GetStyle() & (bar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL)) != 0;
}

int TGGrid::BarPosition(int bar) const
{
    return (bar == SB_HORZ ? hScrollShown : vScrollShown) ? GetScrollPos(bar) : 0;
}

void TGGrid::SetBarPosition(int bar, int position)
{
    if (GetScrollPos(bar) == position)
        return;
    SetScrollPos(bar, position, FALSE);
    RepaintBar(bar);
}

void TGGrid::RepaintBar(int bar)
{
    CRect place;
    CWnd::GetClientRect(&place);
    if (bar == SB_VERT)
        place = CRect(place.right, place.top, place.right + ::GetSystemMetrics(SM_CXVSCROLL), place.bottom);
    else
        place = CRect(place.left, place.bottom, place.right, place.bottom + ::GetSystemMetrics(SM_CYHSCROLL));
    RedrawWindow(&place, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_NOCHILDREN);
}

// The header windows follow the row height and the header height, which change with the font, the row space
// and the captions.
void TGGrid::PlaceHeaders()
{
    const CSize measure(GetRowHeight(), GetColHeaderHeight());
    if (measure == headerMeasure)
        return;
    headerMeasure = measure;
    const long left = IsRowSel() ? measure.cx : 0;
    const long top = IsColSel() ? measure.cy : 0;
    PlaceChild(quad, CRect(0, 0, measure.cx, measure.cy));
    PlaceChild(colHeader, CRect(left, 0, headerExtent, measure.cy));
    PlaceChild(rowHeader, CRect(0, top, measure.cx, headerExtent));
}

void TGGrid::RenewNewRow()
{
    // While an edit of the new row is being committed, its cells are in use.
    if (newRow != nullptr && editCell != nullptr && &editCell->GetRow() == newRow)
    {
        newRow->SetIndex(GetRowNum());
        return;
    }
    const bool locked = newRow != nullptr && cellLock != nullptr && &cellLock->GetRow() == newRow;
    const long lockedCol = locked ? cellLock->GetColIndex() : -1;
    delete newRow;
    newRow = nullptr;
    newRow = treeGrid ? new TGGridTreeRow(*this) : new TGGridRow(*this);
    newRow->SetIndex(GetRowNum());
    if (locked)
        cellLock = IsValidCol(lockedCol) ? &(*newRow)[lockedCol] : nullptr;
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

// ---- Many changes as one ----------------------------------------------------------------------------------

void TGGrid::BeginUpdate()
{
    ++updateDepth;
}

void TGGrid::EndUpdate()
{
    if (updateDepth == 0 || --updateDepth > 0)
        return;
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
        PerformLayout(0);
}

// ---- Drawing context --------------------------------------------------------------------------------------

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
        dc = new CClientDC(this);
        ownsDC = true;
    }
    dc->SetROP2(R2_COPYPEN);
    dc->SelectObject(&font);
    dc->SelectObject(&gridPen);
    MapDC();
}

// The logical origin lies one pixel outside the data area, so that the first grid lines are hidden. Nothing
// is drawn over the header windows, whether or not the host made the window with WS_CLIPCHILDREN.
void TGGrid::MapDC()
{
    CRect area;
    GetClientRect(&area);
    CPoint corner;
    GetUpCorner(corner);
    dc->SetViewportOrg(0, 0);
    dc->SelectClipRgn(nullptr);
    dc->IntersectClipRect(&area);
    dc->SetViewportOrg(corner.x - 1, corner.y - 1);
}

void TGGrid::ClearDC()
{
    if (ownsDC)
        delete dc;
    ownsDC = false;
    dc = nullptr;
}

} // namespace QuorUiCtr
