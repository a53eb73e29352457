// CWnd: scroll bars and scrolling.
#include "afxwin.h"

namespace
{

// The control that stands for the window's bar, or NULL.
HWND BarControl(const CWnd* window, int bar)
{
    const CScrollBar* const control = window->GetScrollBarCtrl(bar);
    return control == NULL ? NULL : reinterpret_cast<const CWnd*>(control)->m_hWnd;
}

// Where a scroll function has to go: the control, or the window's own bar.
struct BarTarget
{
    BarTarget(const CWnd* window, int nBar)
    {
        const HWND control = BarControl(window, nBar);
        handle = control != NULL ? control : window->m_hWnd;
        bar = control != NULL ? SB_CTL : nBar;
    }
    HWND handle;
    int bar;
};

} // namespace

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable)
{
    if (nBar == SB_BOTH)
    {
        EnableScrollBarCtrl(SB_HORZ, bEnable);
        EnableScrollBarCtrl(SB_VERT, bEnable);
        return;
    }
    const HWND control = BarControl(this, nBar);
    if (control != NULL)
        ::EnableWindow(control, bEnable);
}

int CWnd::GetScrollPos(int nBar) const
{
    const BarTarget target(this, nBar);
    return ::GetScrollPos(target.handle, target.bar);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw)
{
    const BarTarget target(this, nBar);
    return ::SetScrollPos(target.handle, target.bar, nPos, bRedraw);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const
{
    const BarTarget target(this, nBar);
    ::GetScrollRange(target.handle, target.bar, lpMinPos, lpMaxPos);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw)
{
    const BarTarget target(this, nBar);
    ::SetScrollRange(target.handle, target.bar, nMinPos, nMaxPos, bRedraw);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    const BarTarget target(this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    ::SetScrollInfo(target.handle, target.bar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    const BarTarget target(this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(target.handle, target.bar, lpScrollInfo);
}

int CWnd::GetScrollLimit(int nBar)
{
    int lowest = 0;
    int highest = 0;
    GetScrollRange(nBar, &lowest, &highest);
    SCROLLINFO info = {};
    if (GetScrollInfo(nBar, &info, SIF_PAGE) && info.nPage > 1)
        highest -= static_cast<int>(info.nPage) - 1;
    return highest;
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow)
{
    if (nBar == SB_BOTH)
    {
        ShowScrollBar(SB_HORZ, bShow);
        ShowScrollBar(SB_VERT, bShow);
        return;
    }
    const HWND control = nBar == SB_CTL ? NULL : BarControl(this, static_cast<int>(nBar));
    if (control != NULL)
        ::ShowWindow(control, bShow ? SW_SHOW : SW_HIDE);
    else
        ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect)
{
    if (IsWindowVisible() || lpRect != NULL || lpClipRect != NULL)
    {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
        return;
    }
    // Windows scrolls no children of a hidden window.
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != NULL; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CRect rect;
        ::GetWindowRect(child, &rect);
        ScreenToClient(&rect);
        ::SetWindowPos(child, NULL, rect.left + xAmount, rect.top + yAmount, 0, 0,
                       SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags)
{
    const HRGN region = prgnUpdate != NULL ? static_cast<HRGN>(prgnUpdate->GetSafeHandle()) : NULL;
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, region, lpRectUpdate, flags);
}
