// CScrollBar: a scroll bar that is a window of its own.
#pragma once

#include "fx/wnd.h"

// Wraps a SCROLLBAR window. The object has no state of its own: a pointer to any CWnd of one may be cast to
// it.
class QFX_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)

public:
    CScrollBar() {}
    virtual ~CScrollBar();

    // Creates the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    // Returns the position before.
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const
    {
        ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
    }
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    void ShowScrollBar(BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); }
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH)
    {
        return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
    }

    // Both fill in cbSize; GetScrollInfo also the mask.
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    // Where the parts of the bar are, on the screen. Fills in cbSize.
    BOOL GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const;
    // The highest position the bar can reach: the end of the range less what the page covers.
    int GetScrollLimit();
};
