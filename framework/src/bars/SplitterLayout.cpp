// CSplitterWnd: places of panes, bars and scroll bars, and their painting.
#include "bars/BarAccess.h"
#include "bars/SplitterGeometry.h"

using namespace quorfx;

CRect CSplitterWnd::PaneArea() const
{
    CRect area;
    GetClientRect(&area);
    if (m_dwScrollStyle & WS_VSCROLL)
        area.right -= ::GetSystemMetrics(SM_CXVSCROLL);
    if (m_dwScrollStyle & WS_HSCROLL)
        area.bottom -= ::GetSystemMetrics(SM_CYHSCROLL);
    return area;
}

int CSplitterWnd::RowTop(int row) const
{
    return LineBegin(m_rows, row);
}

int CSplitterWnd::ColumnLeft(int col) const
{
    return LineBegin(m_columns, col);
}

CRect CSplitterWnd::PaneRect(int row, int col) const
{
    return CRect(CPoint(ColumnLeft(col), RowTop(row)), CSize(m_columns[static_cast<size_t>(col)].current,
                                                             m_rows[static_cast<size_t>(row)].current));
}

// The bar behind a row, without the borders of the panes.
CRect CSplitterWnd::RowBarRect(int row) const
{
    const int top = RowTop(row + 1) - splitBorderWidth - splitBarWidth;
    return CRect(0, top, PaneArea().right, top + splitBarWidth);
}

CRect CSplitterWnd::ColumnBarRect(int col) const
{
    const int left = ColumnLeft(col + 1) - splitBorderWidth - splitBarWidth;
    return CRect(left, 0, left + splitBarWidth, PaneArea().bottom);
}

// The boxes at the ends of the scroll bars from which rows and columns are split off; empty when there are as
// many as there may be.
CRect CSplitterWnd::RowBox() const
{
    if (!IsDynamic() || !(m_dwScrollStyle & WS_VSCROLL) || m_nRows >= m_nMaxRows)
        return CRect(0, 0, 0, 0);
    CRect client;
    GetClientRect(&client);
    return CRect(PaneArea().right, 0, client.right, splitBoxWidth);
}

CRect CSplitterWnd::ColumnBox() const
{
    if (!IsDynamic() || !(m_dwScrollStyle & WS_HSCROLL) || m_nCols >= m_nMaxCols)
        return CRect(0, 0, 0, 0);
    CRect client;
    GetClientRect(&client);
    return CRect(0, PaneArea().bottom, splitBoxWidth, client.bottom);
}

void CSplitterWnd::RecalcLayout()
{
    const CRect area = PaneArea();
    FitLines(m_columns, m_nCols, area.Width());
    FitLines(m_rows, m_nRows, area.Height());
    PlaceScrollBars();
    PlacePanes();
    Invalidate(FALSE);
}

void CSplitterWnd::PlacePanes()
{
    for (int row = 0; row < m_nRows; ++row)
    {
        for (int col = 0; col < m_nCols; ++col)
        {
            CWnd* const pane = GetPane(row, col);
            if (pane == nullptr)
                continue;
            const CRect rect = PaneRect(row, col);
            pane->SetWindowPos(nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                               SWP_NOZORDER | SWP_NOACTIVATE);
        }
    }
}

void CSplitterWnd::PlaceScrollBars()
{
    CRect client;
    GetClientRect(&client);
    const CRect area = PaneArea();
    for (int col = 0; col < m_nCols; ++col)
    {
        CWnd* const bar = ScrollBarOf(AFX_IDW_HSCROLL_FIRST + col);
        if (bar == nullptr)
            continue;
        const CRect pane = PaneRect(0, col);
        CRect rect(pane.left - splitBorderWidth, area.bottom, pane.right + splitBorderWidth, client.bottom);
        if (col == 0)
            rect.left += ColumnBox().Width();
        bar->MoveWindow(&rect);
        bar->ShowWindow(m_dwScrollStyle & WS_HSCROLL ? SW_SHOWNA : SW_HIDE);
    }
    for (int row = 0; row < m_nRows; ++row)
    {
        CWnd* const bar = ScrollBarOf(AFX_IDW_VSCROLL_FIRST + row);
        if (bar == nullptr)
            continue;
        const CRect pane = PaneRect(row, 0);
        CRect rect(area.right, pane.top - splitBorderWidth, client.right, pane.bottom + splitBorderWidth);
        if (row == 0)
            rect.top += RowBox().Height();
        bar->MoveWindow(&rect);
        bar->ShowWindow(m_dwScrollStyle & WS_VSCROLL ? SW_SHOWNA : SW_HIDE);
    }
}

void CSplitterWnd::OnPaint()
{
    CPaintDC dc(this);
    OnDraw(&dc);
}

BOOL CSplitterWnd::OnEraseBkgnd(CDC*)
{
    // OnDraw paints everything that panes and scroll bars leave free.
    return TRUE;
}

void CSplitterWnd::OnDraw(CDC* pDC)
{
    CRect client;
    GetClientRect(&client);
    const CRect area = PaneArea();
    // Beside the scroll bars: the corner, and between those of rows and columns.
    CBrush* const face = CBrush::FromHandle(::GetSysColorBrush(COLOR_BTNFACE));
    pDC->FillRect(CRect(area.right, 0, client.right, client.bottom), face);
    pDC->FillRect(CRect(0, area.bottom, client.right, client.bottom), face);
    for (int row = 0; row < m_nRows - 1; ++row)
        OnDrawSplitter(pDC, splitBar, RowBarRect(row));
    for (int col = 0; col < m_nCols - 1; ++col)
        OnDrawSplitter(pDC, splitBar, ColumnBarRect(col));
    for (int row = 0; row < m_nRows - 1; ++row)
    {
        for (int col = 0; col < m_nCols - 1; ++col)
        {
            CRect crossing;
            crossing.IntersectRect(RowBarRect(row), ColumnBarRect(col));
            OnDrawSplitter(pDC, splitIntersection, crossing);
        }
    }
    for (int row = 0; row < m_nRows; ++row)
    {
        for (int col = 0; col < m_nCols; ++col)
        {
            CRect border = PaneRect(row, col);
            border.InflateRect(splitBorderWidth, splitBorderWidth);
            OnDrawSplitter(pDC, splitBorder, border);
        }
    }
    if (!RowBox().IsRectEmpty())
        OnDrawSplitter(pDC, splitBox, RowBox());
    if (!ColumnBox().IsRectEmpty())
        OnDrawSplitter(pDC, splitBox, ColumnBox());
}

void CSplitterWnd::OnDrawSplitter(CDC* pDC, ESplitType nType, const CRect& rect)
{
    if (pDC == nullptr)
    {
        RedrawWindow(&rect, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
        return;
    }
    CRect part(rect);
    switch (nType)
    {
    case splitBorder:
        pDC->DrawEdge(&part, EDGE_SUNKEN, BF_RECT);
        break;
    case splitBox:
        pDC->DrawEdge(&part, EDGE_RAISED, BF_RECT | BF_MIDDLE);
        break;
    default:
        pDC->FillRect(&part, CBrush::FromHandle(::GetSysColorBrush(COLOR_BTNFACE)));
        break;
    }
}
