// TGGrid's scrolling: moving the view, bringing rectangles into view, scroll bar and wheel messages.
#include "grid/window/GridLayout.h"
#include "grid/model/GridExtensions.h"
#include "grid/model/GridLimits.h"
#include "grid/TGCellCtrl.h"
#include "grid/TGColSelector.h"
#include "grid/TGRowSelector.h"
#include "rules/GridGeometry.h"

#include <algorithm>

namespace QuorUiCtr
{

namespace
{

constexpr bool IsNumbered(ScrollCode code, int number)
{
    return static_cast<int>(code) == number;
}

static_assert(IsNumbered(ScrollCode::LineBack, SB_LINEUP) &&
              IsNumbered(ScrollCode::LineForward, SB_LINEDOWN));
static_assert(IsNumbered(ScrollCode::PageBack, SB_PAGEUP) &&
              IsNumbered(ScrollCode::PageForward, SB_PAGEDOWN));
static_assert(IsNumbered(ScrollCode::First, SB_TOP) && IsNumbered(ScrollCode::Last, SB_BOTTOM));
static_assert(IsNumbered(ScrollCode::Track, SB_THUMBTRACK));

} // namespace

void TGGrid::MoveView(int dx, int dy)
{
    if (GetSafeHwnd() == nullptr)
        return;
    FlushLayout();
    Layout(*this).ScrollView(dx, dy);
}

void TGGrid::Layout::ScrollView(int dx, int dy, OpenEditor outcome)
{
    const int hPosition = BarPosition(SB_HORZ);
    const int vPosition = BarPosition(SB_VERT);
    CRect area;
    grid.GetClientRect(&area);
    dx = std::clamp(dx, -MaxScrollDistance, MaxScrollDistance);
    dy = std::clamp(dy, -MaxScrollDistance, MaxScrollDistance);
    if (grid.hScrollShown)
        dx = ClampScroll(hPosition, dx, grid.GetRight() - area.Width());
    if (grid.vScrollShown)
        dy = ClampScroll(vPosition, dy, grid.GetBottom() - area.Height());
    if (dx == 0 && dy == 0)
        return;
    const bool keepsEditor = outcome == OpenEditor::Keep && grid.IsEditing();
    if (keepsEditor)
        NoteEditorPlace();
    if (SetBarPosition(SB_HORZ, hPosition + dx))
        RepaintBarSoon(SB_HORZ);
    if (SetBarPosition(SB_VERT, vPosition + dy))
        RepaintBarSoon(SB_VERT);
    grid.ClearDC();
    grid.PrepareDC(nullptr);
    // What the end of an edit draws stands where it is to be after the scrolling already.
    const bool drawn = grid.IsEditing();
    if (drawn && !keepsEditor)
        grid.EndEditCell();
    ScrollContents(dx, dy);
    if (keepsEditor)
        MoveEditor();
    if (drawn)
        grid.Invalidate(0);
    if (grid.extensions != nullptr)
        grid.extensions->Tell(GridExtensions::Scrolled);
}

// In client coordinates.
CPoint TGGrid::Layout::EditedCellOrigin() const
{
    CRect cell;
    grid.editCell->GetRect(cell);
    grid.dc->LPtoDP(&cell);
    return cell.TopLeft();
}

// Where the editor has put itself. Once it has been moved it need not stand where it should: places of
// windows have 16 bits.
void TGGrid::Layout::NoteEditorPlace()
{
    CWnd* const editor = grid.cellCtrl != nullptr ? grid.cellCtrl->GetWnd() : nullptr;
    if (grid.editorMoved || editor->GetSafeHwnd() == nullptr || grid.dc == nullptr)
        return;
    CRect place;
    editor->GetWindowRect(&place);
    grid.ScreenToClient(&place);
    grid.editorInset = place.TopLeft() - EditedCellOrigin();
    grid.editorMoved = true;
}

// Brings the editor over its cell, and cuts off what lies beside the data area.
void TGGrid::Layout::MoveEditor()
{
    CWnd* const editor = grid.cellCtrl != nullptr ? grid.cellCtrl->GetWnd() : nullptr;
    if (!grid.editorMoved || editor->GetSafeHwnd() == nullptr || grid.dc == nullptr)
        return;
    CRect place;
    editor->GetWindowRect(&place);
    place.OffsetRect(EditedCellOrigin() + grid.editorInset - place.TopLeft());
    CRect area;
    grid.GetClientRect(&area);
    CRect seen;
    seen.IntersectRect(&place, &area);
    HRGN shape = nullptr;
    if (!::EqualRect(&seen, &place))
        shape = ::CreateRectRgn(seen.left - place.left, seen.top - place.top, seen.right - place.left,
                                seen.bottom - place.top);
    // The window owns its shape from now on.
    editor->SetWindowRgn(shape, FALSE);
    editor->SetWindowPos(nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    editor->Invalidate(TRUE);
}

// The data area scrolls by itself, so that the header windows and an editor stay where they are.
void TGGrid::Layout::ScrollContents(int dx, int dy)
{
    if (grid.GetSafeHwnd() == nullptr)
        return;
    CRect area;
    grid.GetClientRect(&area);
    grid.ScrollWindow(-dx, -dy, &area, &area);
    if (dx != 0 && grid.IsColSel() && grid.colHeader->GetSafeHwnd() != nullptr)
        grid.colHeader->ScrollWindow(-dx, 0);
    if (dy != 0 && grid.IsRowSel() && grid.rowHeader->GetSafeHwnd() != nullptr)
        grid.rowHeader->ScrollWindow(0, -dy);
}

void TGGrid::ShowRect(CRect rect)
{
    if (GetSafeHwnd() == nullptr)
        return;
    if (layoutPending)
    {
        pendingShowRect = rect;
        showPending = true;
        return;
    }
    Layout layout(*this);
    const CRect view = layout.ViewRect();
    const int dx = LeastScroll(rect.left, rect.right, view.left, view.right, layout.BarPosition(SB_HORZ));
    const int dy = LeastScroll(rect.top, rect.bottom, view.top, view.bottom, layout.BarPosition(SB_VERT));
    if (dx != 0 || dy != 0)
        layout.ScrollView(dx, dy);
}

void TGGrid::ShowAppendRow()
{
    if (GetSafeHwnd() == nullptr)
        return;
    const CRect view = Layout(*this).ViewRect();
    const long centre = (view.left + view.right) / 2;
    ShowRect(CRect(centre, RowEdge(GetRowNum(), GetRowHeight()), centre,
                   RowEdge(GetRowNum() + 1, GetRowHeight())));
}

CRect TGGrid::Layout::ViewRect()
{
    CRect area;
    grid.GetClientRect(&area);
    return CRect(grid.ClientToLogical(area.TopLeft()), grid.ClientToLogical(area.BottomRight()));
}

void TGGrid::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    ScrollRequest request = Layout(*this).ReadScrollRequest(SB_VERT, SIF_TRACKPOS);
    CRect area;
    GetClientRect(&area);
    request.line = GetRowHeight();
    request.page = area.Height();
    MoveView(0, VerticalScrollTarget(static_cast<ScrollCode>(code), request) - request.position);
    if (code == SB_THUMBPOSITION || code == SB_ENDSCROLL)
        Layout(*this).FinishBars();
    CWnd::OnVScroll(code, position, bar);
    SetFocus();
}

void TGGrid::OnHScroll(UINT code, UINT position, CScrollBar* bar)
{
    ScrollRequest request = Layout(*this).ReadScrollRequest(SB_HORZ, SIF_ALL);
    CRect area;
    GetClientRect(&area);
    request.line = GetDefaultWidth();
    request.page = area.Width();
    MoveView(HorizontalScrollTarget(static_cast<ScrollCode>(code), request) - request.position, 0);
    if (code == SB_THUMBPOSITION || code == SB_ENDSCROLL)
        Layout(*this).FinishBars();
    CWnd::OnHScroll(code, position, bar);
    SetFocus();
}

// The position that a message carries has 16 bits only, hence the tracking position is always read from the
// bar.
ScrollRequest TGGrid::Layout::ReadScrollRequest(int bar, UINT trackMask)
{
    ScrollRequest request = {};
    int minimum = 0;
    int maximum = 0;
    grid.GetScrollRange(bar, &minimum, &maximum);
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    grid.GetScrollInfo(bar, &info, trackMask);
    request.position = grid.GetScrollPos(bar);
    request.minimum = minimum;
    request.maximum = maximum;
    request.track = info.nTrackPos;
    return request;
}

BOOL TGGrid::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    // Tracking takes the bar's own tracking position, so that the position given here only travels with the
    // default handling.
    if (vScrollShown)
    {
        const long position = WheelPosition(GetScrollPos(SB_VERT), GetRowHeight(), delta);
        OnVScroll(SB_THUMBTRACK, static_cast<UINT>(position), nullptr);
    }
    return CWnd::OnMouseWheel(flags, delta, point);
}

} // namespace QuorUiCtr
