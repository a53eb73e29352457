// CSplitterWnd: rows and columns that come and go, and the scroll bars that panes share.
#include "bars/BarAccess.h"
#include "bars/SplitterGeometry.h"

using namespace quorfx;

BOOL CSplitterWnd::SplitRow(int cyBefore)
{
    if (m_nRows >= m_nMaxRows || !IsDynamic())
        return FALSE;
    SplitLine& above = m_rows[static_cast<size_t>(m_nRows - 1)];
    SplitLine& below = m_rows[static_cast<size_t>(m_nRows)];
    const int ideal = cyBefore - RowTop(m_nRows - 1) - splitGap / 2;
    if (ideal < above.least || above.current - ideal - splitGap < below.least)
        return FALSE;
    above.ideal = ideal;
    below.ideal = above.current - ideal - splitGap;
    ++m_nRows;
    if (!AddPanes(m_nRows - 1, -1))
    {
        --m_nRows;
        return FALSE;
    }
    RecalcLayout();
    return TRUE;
}

BOOL CSplitterWnd::SplitColumn(int cxBefore)
{
    if (m_nCols >= m_nMaxCols || !IsDynamic())
        return FALSE;
    SplitLine& left = m_columns[static_cast<size_t>(m_nCols - 1)];
    SplitLine& right = m_columns[static_cast<size_t>(m_nCols)];
    const int ideal = cxBefore - ColumnLeft(m_nCols - 1) - splitGap / 2;
    if (ideal < left.least || left.current - ideal - splitGap < right.least)
        return FALSE;
    left.ideal = ideal;
    right.ideal = left.current - ideal - splitGap;
    ++m_nCols;
    if (!AddPanes(-1, m_nCols - 1))
    {
        --m_nCols;
        return FALSE;
    }
    RecalcLayout();
    return TRUE;
}

// Creates the scroll bar and the views of a new row, or of a new column; -1 stands for the other one.
BOOL CSplitterWnd::AddPanes(int row, int col)
{
    MakeScrollBars();
    const int count = row >= 0 ? m_nCols : m_nRows;
    for (int index = 0; index < count; ++index)
    {
        const int paneRow = row >= 0 ? row : index;
        const int paneColumn = row >= 0 ? index : col;
        const CSize size(m_columns[static_cast<size_t>(paneColumn)].ideal,
                         m_rows[static_cast<size_t>(paneRow)].ideal);
        if (CreateView(paneRow, paneColumn, m_pDynamicViewClass, size, nullptr))
            continue;
        for (int made = 0; made < index; ++made)
            DeleteView(row >= 0 ? row : made, row >= 0 ? made : col);
        DeleteScrollBar(row >= 0 ? AFX_IDW_VSCROLL_FIRST + row : AFX_IDW_HSCROLL_FIRST + col);
        return FALSE;
    }
    return TRUE;
}

void CSplitterWnd::DeleteView(int row, int col)
{
    CWnd* const pane = GetPane(row, col);
    if (pane == nullptr)
        return;
    // The active view's end must not leave the frame without one.
    if (GetActivePane() == pane)
        ActivateNext(FALSE);
    pane->DestroyWindow();
}

// Makes a pane active that is not in the row (or the column; -1 for none) that is about to go.
void CSplitterWnd::ActivateOutside(int row, int col)
{
    int activeRow = 0, activeColumn = 0;
    if (GetActivePane(&activeRow, &activeColumn) == nullptr)
        return;
    if (activeRow == row)
        SetActivePane((activeRow + 1) % m_nRows, activeColumn);
    else if (activeColumn == col)
        SetActivePane(activeRow, (activeColumn + 1) % m_nCols);
}

void CSplitterWnd::DeleteScrollBar(int id)
{
    if (CWnd* const bar = ScrollBarOf(id))
        bar->DestroyWindow();
}

void CSplitterWnd::RenumberPane(int fromId, int toId)
{
    if (CWnd* const window = GetDlgItem(fromId))
        window->SetDlgCtrlID(toId);
}

void CSplitterWnd::DeleteRow(int rowDelete)
{
    ASSERT(IsDynamic() && m_nRows > 1);
    ActivateOutside(rowDelete, -1);
    for (int col = 0; col < m_nCols; ++col)
    {
        DeleteView(rowDelete, col);
        for (int row = rowDelete + 1; row < m_nRows; ++row)
            RenumberPane(IdFromRowCol(row, col), IdFromRowCol(row - 1, col));
    }
    DeleteScrollBar(AFX_IDW_VSCROLL_FIRST + rowDelete);
    for (int row = rowDelete + 1; row < m_nRows; ++row)
        RenumberPane(AFX_IDW_VSCROLL_FIRST + row, AFX_IDW_VSCROLL_FIRST + row - 1);
    --m_nRows;
    RecalcLayout();
}

void CSplitterWnd::DeleteColumn(int colDelete)
{
    ASSERT(IsDynamic() && m_nCols > 1);
    ActivateOutside(-1, colDelete);
    for (int row = 0; row < m_nRows; ++row)
    {
        DeleteView(row, colDelete);
        for (int col = colDelete + 1; col < m_nCols; ++col)
            RenumberPane(IdFromRowCol(row, col), IdFromRowCol(row, col - 1));
    }
    DeleteScrollBar(AFX_IDW_HSCROLL_FIRST + colDelete);
    for (int col = colDelete + 1; col < m_nCols; ++col)
        RenumberPane(AFX_IDW_HSCROLL_FIRST + col, AFX_IDW_HSCROLL_FIRST + col - 1);
    --m_nCols;
    RecalcLayout();
}

DWORD CSplitterWnd::GetScrollStyle() const
{
    return m_dwScrollStyle;
}

void CSplitterWnd::SetScrollStyle(DWORD dwStyle)
{
    m_dwScrollStyle = dwStyle & (WS_HSCROLL | WS_VSCROLL);
    MakeScrollBars();
}

// The scroll bars of the rows and columns there are; those of a direction without bars are hidden by the
// layout.
void CSplitterWnd::MakeScrollBars()
{
    for (int col = 0; (m_dwScrollStyle & WS_HSCROLL) && col < m_nCols; ++col)
        if (ScrollBarOf(AFX_IDW_HSCROLL_FIRST + col) == nullptr)
            CreateScrollBarCtrl(SBS_HORZ, static_cast<UINT>(AFX_IDW_HSCROLL_FIRST + col));
    for (int row = 0; (m_dwScrollStyle & WS_VSCROLL) && row < m_nRows; ++row)
        if (ScrollBarOf(AFX_IDW_VSCROLL_FIRST + row) == nullptr)
            CreateScrollBarCtrl(SBS_VERT, static_cast<UINT>(AFX_IDW_VSCROLL_FIRST + row));
}

BOOL CSplitterWnd::CreateScrollBarCtrl(DWORD dwStyle, UINT nID)
{
    return ::CreateWindow(_T("SCROLLBAR"), nullptr, dwStyle | WS_VISIBLE | WS_CHILD, 0, 0, 1, 1, m_hWnd,
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), AfxGetInstanceHandle(),
                          nullptr) != nullptr;
}

// Sends a scroll message to all panes that share the bar. Each one starts from the position before.
void CSplitterWnd::ScrollSharing(UINT message, int bar, int count, UINT nSBCode, UINT nPos,
                                 CScrollBar* pScrollBar)
{
    const bool horizontal = message == WM_HSCROLL;
    const int before = pScrollBar->GetScrollPos();
    for (int index = 0; index < count; ++index)
    {
        CWnd* const pane = horizontal ? GetPane(index, bar) : GetPane(bar, index);
        if (index > 0)
            pScrollBar->SetScrollPos(before, FALSE);
        pane->SendMessage(message, MAKEWPARAM(nSBCode, nPos), reinterpret_cast<LPARAM>(pScrollBar->m_hWnd));
    }
}

void CSplitterWnd::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    const int bar = pScrollBar != nullptr ? pScrollBar->GetDlgCtrlID() - AFX_IDW_HSCROLL_FIRST : -1;
    if (bar >= 0 && bar < m_nCols)
        ScrollSharing(WM_HSCROLL, bar, m_nRows, nSBCode, nPos, pScrollBar);
}

void CSplitterWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    const int bar = pScrollBar != nullptr ? pScrollBar->GetDlgCtrlID() - AFX_IDW_VSCROLL_FIRST : -1;
    if (bar >= 0 && bar < m_nRows)
        ScrollSharing(WM_VSCROLL, bar, m_nCols, nSBCode, nPos, pScrollBar);
}

namespace
{

// What is put back before another pane scrolls: the position of a bar that it shares.
class SharedPosition
{
public:
    explicit SharedPosition(CScrollBar* bar)
        : m_bar(bar), m_position(bar != nullptr ? bar->GetScrollPos() : 0)
    {
    }
    bool IsShared() const { return m_bar != nullptr; }
    void Restore() const { m_bar->SetScrollPos(m_position, FALSE); }

private:
    CScrollBar* m_bar;
    int m_position;
};

} // namespace

BOOL CSplitterWnd::DoScrollBy(CView* pViewFrom, CSize sizeScroll, BOOL bDoScroll)
{
    int row = 0, col = 0;
    CScrollView* const view = DYNAMIC_DOWNCAST(CScrollView, pViewFrom);
    if (view == nullptr || !IsChildPane(view, &row, &col))
        return FALSE;
    const SharedPosition horizontal(view->GetScrollBarCtrl(SB_HORZ));
    const SharedPosition vertical(view->GetScrollBarCtrl(SB_VERT));
    BOOL scrolled = view->OnScrollBy(sizeScroll, bDoScroll);
    for (int index = 0; vertical.IsShared() && index < m_nCols; ++index)
    {
        CScrollView* const other = DYNAMIC_DOWNCAST(CScrollView, GetPane(row, index));
        if (other == nullptr || other == view)
            continue;
        if (bDoScroll)
            vertical.Restore();
        scrolled |= other->OnScrollBy(CSize(0, sizeScroll.cy), bDoScroll);
    }
    for (int index = 0; horizontal.IsShared() && index < m_nRows; ++index)
    {
        CScrollView* const other = DYNAMIC_DOWNCAST(CScrollView, GetPane(index, col));
        if (other == nullptr || other == view)
            continue;
        if (bDoScroll)
            horizontal.Restore();
        scrolled |= other->OnScrollBy(CSize(sizeScroll.cx, 0), bDoScroll);
    }
    return scrolled;
}

BOOL CSplitterWnd::DoScroll(CView* pViewFrom, UINT nScrollCode, BOOL bDoScroll)
{
    int row = 0, col = 0;
    CScrollView* const view = DYNAMIC_DOWNCAST(CScrollView, pViewFrom);
    if (view == nullptr || !IsChildPane(view, &row, &col))
        return FALSE;
    // The same code in the other direction would scroll panes that share only one bar.
    const UINT onlyHorizontal = MAKEWORD(LOBYTE(nScrollCode), 0xff);
    const UINT onlyVertical = MAKEWORD(0xff, HIBYTE(nScrollCode));
    const SharedPosition horizontal(view->GetScrollBarCtrl(SB_HORZ));
    const SharedPosition vertical(view->GetScrollBarCtrl(SB_VERT));
    BOOL scrolled = view->OnScroll(nScrollCode, 0, bDoScroll);
    for (int index = 0; vertical.IsShared() && index < m_nCols; ++index)
    {
        CScrollView* const other = DYNAMIC_DOWNCAST(CScrollView, GetPane(row, index));
        if (other == nullptr || other == view)
            continue;
        if (bDoScroll)
            vertical.Restore();
        scrolled |= other->OnScroll(onlyVertical, 0, bDoScroll);
    }
    for (int index = 0; horizontal.IsShared() && index < m_nRows; ++index)
    {
        CScrollView* const other = DYNAMIC_DOWNCAST(CScrollView, GetPane(index, col));
        if (other == nullptr || other == view)
            continue;
        if (bDoScroll)
            horizontal.Restore();
        scrolled |= other->OnScroll(onlyHorizontal, 0, bDoScroll);
    }
    return scrolled;
}
