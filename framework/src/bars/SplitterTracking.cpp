// CSplitterWnd: dragging of bars and boxes, with the mouse and with the keyboard.
#include "bars/BarAccess.h"
#include "bars/SplitterGeometry.h"

using namespace quorfx;

CSplitterWnd::Hit CSplitterWnd::HitTest(CPoint point) const
{
    Hit hit;
    hit.isRowBox = RowBox().PtInRect(point) != FALSE;
    hit.isColumnBox = ColumnBox().PtInRect(point) != FALSE;
    CRect client;
    GetClientRect(&client);
    if (hit.isRowBox || hit.isColumnBox || !client.PtInRect(point))
        return hit;
    hit.rowBar = GapAt(m_rows, m_nRows, point.y);
    hit.columnBar = GapAt(m_columns, m_nCols, point.x);
    return hit;
}

BOOL CSplitterWnd::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
{
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    const Hit hit = nHitTest == HTCLIENT && pWnd == this ? HitTest(point) : Hit();
    if (!hit.IsAnything())
        return CWnd::OnSetCursor(pWnd, nHitTest, message);
    const bool both = hit.MovesRows() && hit.MovesColumns();
    ::SetCursor(::LoadCursor(nullptr, both ? IDC_SIZEALL : hit.MovesRows() ? IDC_SIZENS : IDC_SIZEWE));
    return TRUE;
}

void CSplitterWnd::OnLButtonDown(UINT, CPoint point)
{
    const Hit hit = HitTest(point);
    if (!m_bTracking && hit.IsAnything())
        StartTracking(hit, point);
}

void CSplitterWnd::StartTracking(const Hit& hit, CPoint point)
{
    m_trackHit = hit;
    CPoint middle(point);
    if (hit.rowBar >= 0)
        middle.y = RowBarRect(hit.rowBar).CenterPoint().y;
    if (hit.columnBar >= 0)
        middle.x = ColumnBarRect(hit.columnBar).CenterPoint().x;
    m_trackOffset = middle - point;
    m_trackPoint = InTrackArea(middle);
    // Keys come here, and the tracker is drawn over the panes.
    m_hWndFocusBefore = ::SetFocus(m_hWnd);
    ModifyStyle(WS_CLIPCHILDREN, 0);
    SetCapture();
    m_bTracking = TRUE;
    InvertTrackers();
}

CPoint CSplitterWnd::InTrackArea(CPoint point) const
{
    const CRect area = PaneArea();
    point.x = (std::max)(area.left, (std::min)(area.right, point.x));
    point.y = (std::max)(area.top, (std::min)(area.bottom, point.y));
    return point;
}

void CSplitterWnd::InvertTrackers()
{
    const CRect area = PaneArea();
    if (m_trackHit.MovesRows())
        OnInvertTracker(
            CRect(CPoint(0, m_trackPoint.y - splitBarWidth / 2), CSize(area.Width(), splitBarWidth)));
    if (m_trackHit.MovesColumns())
        OnInvertTracker(
            CRect(CPoint(m_trackPoint.x - splitBarWidth / 2, 0), CSize(splitBarWidth, area.Height())));
}

void CSplitterWnd::OnInvertTracker(const CRect& rect)
{
    CClientDC dc(this);
    CBrush* const before = dc.SelectObject(CDC::GetHalftoneBrush());
    dc.PatBlt(rect.left, rect.top, rect.Width(), rect.Height(), PATINVERT);
    dc.SelectObject(before);
}

void CSplitterWnd::OnMouseMove(UINT, CPoint point)
{
    if (m_bTracking)
        Track(point + m_trackOffset);
}

void CSplitterWnd::Track(CPoint point)
{
    const CPoint moved = InTrackArea(point);
    if (moved.x == m_trackPoint.x && moved.y == m_trackPoint.y)
        return;
    InvertTrackers();
    m_trackPoint = moved;
    InvertTrackers();
}

void CSplitterWnd::OnLButtonUp(UINT, CPoint)
{
    StopTracking(TRUE);
}

void CSplitterWnd::OnCancelMode()
{
    StopTracking(FALSE);
    CWnd::OnCancelMode();
}

void CSplitterWnd::StopTracking(BOOL bAccept)
{
    if (!m_bTracking)
        return;
    InvertTrackers();
    m_bTracking = FALSE;
    ::ReleaseCapture();
    ModifyStyle(0, WS_CLIPCHILDREN);
    // The view that was active gets the focus back before it may go.
    if (::IsWindow(m_hWndFocusBefore))
        ::SetFocus(m_hWndFocusBefore);
    if (!bAccept)
        return;
    const Hit hit = m_trackHit;
    const CPoint point = m_trackPoint;
    if (hit.isRowBox)
        SplitRow(point.y);
    else if (hit.rowBar >= 0)
        MoveRowBar(hit.rowBar, point.y);
    if (hit.isColumnBox)
        SplitColumn(point.x);
    else if (hit.columnBar >= 0)
        MoveColumnBar(hit.columnBar, point.x);
    RecalcLayout();
}

namespace
{

// The sizes that two neighbouring lines get when the bar between them goes to a place inside the first one's
// and the second one's room.
struct Shares
{
    int before;
    int behind;
};

Shares ShareRoom(const SplitLine& before, const SplitLine& behind, int begin, int place)
{
    const int room = before.current + behind.current;
    const int wanted = place - begin - splitGap / 2;
    const int first = (std::max)(0, (std::min)(wanted, room));
    return {first, room - first};
}

} // namespace

void CSplitterWnd::MoveRowBar(int row, int y)
{
    SplitLine& before = m_rows[static_cast<size_t>(row)];
    SplitLine& behind = m_rows[static_cast<size_t>(row) + 1];
    const Shares shares = ShareRoom(before, behind, RowTop(row), y);
    before.ideal = shares.before;
    behind.ideal = shares.behind;
    // What gets too small goes.
    if (IsDynamic() && shares.before < before.least)
        DeleteRow(row);
    else if (IsDynamic() && shares.behind < behind.least)
        DeleteRow(row + 1);
}

void CSplitterWnd::MoveColumnBar(int col, int x)
{
    SplitLine& before = m_columns[static_cast<size_t>(col)];
    SplitLine& behind = m_columns[static_cast<size_t>(col) + 1];
    const Shares shares = ShareRoom(before, behind, ColumnLeft(col), x);
    before.ideal = shares.before;
    behind.ideal = shares.behind;
    if (IsDynamic() && shares.before < before.least)
        DeleteColumn(col);
    else if (IsDynamic() && shares.behind < behind.least)
        DeleteColumn(col + 1);
}

// Splits in the middle, or joins what the bar divides. A bar of a static splitter stays.
void CSplitterWnd::OnLButtonDblClk(UINT, CPoint point)
{
    StopTracking(FALSE);
    const Hit hit = HitTest(point);
    const CRect area = PaneArea();
    if (!IsDynamic())
        return;
    if (hit.isRowBox)
        SplitRow(area.Height() / 2);
    else if (hit.isColumnBox)
        SplitColumn(area.Width() / 2);
    if (hit.rowBar >= 0)
        DeleteRow(hit.rowBar + 1);
    if (hit.columnBar >= 0)
        DeleteColumn(hit.columnBar + 1);
}

BOOL CSplitterWnd::DoKeyboardSplit()
{
    const CRect area = PaneArea();
    Hit hit;
    CPoint point = area.CenterPoint();
    if (m_nRows > 1)
        hit.rowBar = 0;
    else
        hit.isRowBox = !RowBox().IsRectEmpty();
    if (m_nCols > 1)
        hit.columnBar = 0;
    else
        hit.isColumnBox = !ColumnBox().IsRectEmpty();
    if (!hit.IsAnything())
        return FALSE;
    if (hit.rowBar >= 0)
        point.y = RowBarRect(0).CenterPoint().y;
    if (hit.columnBar >= 0)
        point.x = ColumnBarRect(0).CenterPoint().x;
    StartTracking(hit, point);
    ClientToScreen(&point);
    ::SetCursorPos(point.x, point.y);
    return TRUE;
}

void CSplitterWnd::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!m_bTracking)
    {
        CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
        return;
    }
    // The control key makes small steps.
    const int step = ::GetKeyState(VK_CONTROL) < 0 ? 1 : 16;
    CPoint point(m_trackPoint);
    switch (nChar)
    {
    case VK_RETURN:
        StopTracking(TRUE);
        return;
    case VK_ESCAPE:
        StopTracking(FALSE);
        return;
    case VK_LEFT:
        point.x -= step;
        break;
    case VK_RIGHT:
        point.x += step;
        break;
    case VK_UP:
        point.y -= step;
        break;
    case VK_DOWN:
        point.y += step;
        break;
    default:
        return;
    }
    Track(point);
}
