// CWnd: rectangles, centring, and the layout of bars around the pane of a frame.
#include "afxpriv.h"

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const
{
    lpwndpl->length = sizeof(*lpwndpl);
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    const DWORD exStyle =
        nAdjustType == adjustBorder ? GetExStyle() & ~static_cast<DWORD>(WS_EX_CLIENTEDGE) : GetExStyle();
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, exStyle);
}

namespace
{

CRect WorkAreaOf(HWND window)
{
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info);
    return CRect(info.rcWork);
}

// Moves the rectangle inside the limits; where it is too large the left and top edges win.
void MoveInside(CRect& rect, const CRect& limits)
{
    if (rect.right > limits.right)
        rect.OffsetRect(limits.right - rect.right, 0);
    if (rect.left < limits.left)
        rect.OffsetRect(limits.left - rect.left, 0);
    if (rect.bottom > limits.bottom)
        rect.OffsetRect(0, limits.bottom - rect.bottom);
    if (rect.top < limits.top)
        rect.OffsetRect(0, limits.top - rect.top);
}

// The window to centre a popup over, or NULL for the screen.
HWND CentreOwner(HWND window, HWND alternate)
{
    const HWND owner = alternate != nullptr ? alternate : ::GetWindow(window, GW_OWNER);
    const bool usable = owner != nullptr && ::IsWindowVisible(owner) && !::IsIconic(owner);
    return usable ? owner : nullptr;
}

CRect CentreArea(HWND window, HWND alternate, CRect& limits)
{
    CRect area;
    if (::GetWindowLong(window, GWL_STYLE) & WS_CHILD)
    {
        const HWND parent = ::GetParent(window);
        ::GetClientRect(parent, &limits);
        area = limits;
        if (alternate != nullptr)
        {
            ::GetClientRect(alternate, &area);
            ::MapWindowPoints(alternate, parent, reinterpret_cast<LPPOINT>(static_cast<LPRECT>(area)), 2);
        }
        return area;
    }
    const HWND owner = CentreOwner(window, alternate);
    limits = WorkAreaOf(owner != nullptr ? owner : window);
    area = limits;
    if (owner != nullptr)
        ::GetWindowRect(owner, &area);
    return area;
}

} // namespace

void CWnd::CenterWindow(CWnd* pAlternateOwner)
{
    CRect limits;
    const CRect area = CentreArea(m_hWnd, pAlternateOwner->GetSafeHwnd(), limits);
    CRect rect;
    GetWindowRect(&rect);
    const CSize size = rect.Size();
    CRect centred(CPoint((area.left + area.right - size.cx) / 2, (area.top + area.bottom - size.cy) / 2),
                  size);
    if (!(GetStyle() & WS_CHILD))
        MoveInside(centred, limits);
    ::SetWindowPos(m_hWnd, nullptr, centred.left, centred.top, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

namespace
{

// Lets every bar take its strip of layout.rect; returns the window that is to get the rest.
HWND PlaceBars(HWND parent, UINT firstId, UINT lastId, UINT leftOverId, AFX_SIZEPARENTPARAMS& layout)
{
    HWND leftOver = nullptr;
    for (HWND child = ::GetTopWindow(parent); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        const UINT id = LOWORD(::GetDlgCtrlID(child));
        if (id == leftOverId)
            leftOver = child;
        else if (id >= firstId && id <= lastId && CWnd::FromHandlePermanent(child) != nullptr)
            ::SendMessage(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
    }
    return leftOver;
}

} // namespace

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag, LPRECT lpRectParam,
                          LPCRECT lpRectClient, BOOL bStretch)
{
    AFX_SIZEPARENTPARAMS layout = {};
    layout.bStretch = bStretch;
    if (lpRectClient != nullptr)
        layout.rect = *lpRectClient;
    else
        GetClientRect(&layout.rect);
    const bool query = nFlag == reposQuery;
    layout.hDWP = query ? nullptr : ::BeginDeferWindowPos(8);
    const HWND leftOver = PlaceBars(m_hWnd, nIDFirst, nIDLast, nIDLeftOver, layout);
    if (query)
    {
        *lpRectParam = layout.rect;
        return;
    }
    if (layout.hDWP != nullptr)
        ::EndDeferWindowPos(layout.hDWP);
    if (leftOver == nullptr)
        return;
    CRect rest(layout.rect);
    if (nFlag == reposExtra && lpRectParam != nullptr)
    {
        rest.DeflateRect(lpRectParam->left, lpRectParam->top, lpRectParam->right, lpRectParam->bottom);
    }
    if (CWnd* const pane = FromHandlePermanent(leftOver))
        pane->CalcWindowRect(&rest);
    ::SetWindowPos(leftOver, nullptr, rest.left, rest.top, rest.Width(), rest.Height(),
                   SWP_NOACTIVATE | SWP_NOZORDER);
}
