// CWnd: scroll bars and scrolling.
#include "afxwin.h"

namespace
{

// The control that stands for the window's bar, or NULL.
HWND BarControl(const CWnd* window, int bar)
{
    const CScrollBar* const control = window->GetScrollBarCtrl(bar);
    return control == nullptr ? nullptr : reinterpret_cast<const CWnd*>(control)->m_hWnd;
}

// Where a scroll function has to go: the control, or the window's own bar.
struct BarTarget
{
    BarTarget(const CWnd* window, int nBar)
    {
        const HWND control = BarControl(window, nBar);
        handle = control != nullptr ? control : window->m_hWnd;
        bar = control != nullptr ? SB_CTL : nBar;
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
    if (control != nullptr)
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
    const HWND control = nBar == SB_CTL ? nullptr : BarControl(this, static_cast<int>(nBar));
    if (control != nullptr)
        ::ShowWindow(control, bShow ? SW_SHOW : SW_HIDE);
    else
        ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect)
{
    if (IsWindowVisible() || lpRect != nullptr || lpClipRect != nullptr)
    {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
        return;
    }
    // Windows scrolls no children of a hidden window.
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CRect rect;
        ::GetWindowRect(child, &rect);
        ScreenToClient(&rect);
        ::SetWindowPos(child, nullptr, rect.left + xAmount, rect.top + yAmount, 0, 0,
                       SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags)
{
    const HRGN region = prgnUpdate != nullptr ? static_cast<HRGN>(prgnUpdate->GetSafeHandle()) : nullptr;
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, region, lpRectUpdate, flags);
}
