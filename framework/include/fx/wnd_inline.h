// The members of CWnd about state, messages, position and painting that only pass a call on to Windows. A
// part of fx/wnd.h.
#pragma once

inline CWnd::operator HWND() const
{
    return GetSafeHwnd();
}
inline BOOL CWnd::operator==(const CWnd& wnd) const
{
    return wnd.GetSafeHwnd() == GetSafeHwnd();
}
inline BOOL CWnd::operator!=(const CWnd& wnd) const
{
    return wnd.GetSafeHwnd() != GetSafeHwnd();
}

inline DWORD CWnd::GetStyle() const
{
    return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE));
}
inline DWORD CWnd::GetExStyle() const
{
    return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE));
}
inline void CWnd::SetOwner(CWnd* pOwnerWnd)
{
    m_hWndOwner = pOwnerWnd->GetSafeHwnd();
}
inline BOOL CWnd::IsFrameWnd() const
{
    return FALSE;
}

inline LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}
inline BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}
inline BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
}
inline BOOL CWnd::IsDialogMessage(LPMSG lpMsg)
{
    return ::IsDialogMessage(m_hWnd, lpMsg);
}

inline void CWnd::SetWindowText(LPCTSTR lpszString)
{
    ::SetWindowText(m_hWnd, lpszString);
}
inline int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const
{
    return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
}
inline int CWnd::GetWindowTextLength() const
{
    return ::GetWindowTextLength(m_hWnd);
}
inline HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon)
{
    return reinterpret_cast<HICON>(
        SendMessage(WM_SETICON, static_cast<WPARAM>(bBigIcon), reinterpret_cast<LPARAM>(hIcon)));
}
inline HICON CWnd::GetIcon(BOOL bBigIcon) const
{
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, WM_GETICON, static_cast<WPARAM>(bBigIcon), 0));
}
inline void CWnd::DrawMenuBar()
{
    ::DrawMenuBar(m_hWnd);
}

inline BOOL CWnd::IsIconic() const
{
    return ::IsIconic(m_hWnd);
}
inline BOOL CWnd::IsZoomed() const
{
    return ::IsZoomed(m_hWnd);
}
inline void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint)
{
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}
inline void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint)
{
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               bRepaint);
}
inline BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    return ::SetWindowPos(m_hWnd, pWndInsertAfter->GetSafeHwnd(), x, y, cx, cy, nFlags);
}
inline void CWnd::BringWindowToTop()
{
    ::BringWindowToTop(m_hWnd);
}
inline void CWnd::GetWindowRect(LPRECT lpRect) const
{
    ::GetWindowRect(m_hWnd, lpRect);
}
inline void CWnd::GetClientRect(LPRECT lpRect) const
{
    ::GetClientRect(m_hWnd, lpRect);
}
inline BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl)
{
    return ::SetWindowPlacement(m_hWnd, lpwndpl);
}
inline int CWnd::SetWindowRgn(HRGN hRgn, BOOL bRedraw)
{
    return ::SetWindowRgn(m_hWnd, hRgn, bRedraw);
}
inline int CWnd::GetWindowRgn(HRGN hRgn) const
{
    return ::GetWindowRgn(m_hWnd, hRgn);
}
inline void CWnd::ClientToScreen(LPPOINT lpPoint) const
{
    ::ClientToScreen(m_hWnd, lpPoint);
}
inline void CWnd::ScreenToClient(LPPOINT lpPoint) const
{
    ::ScreenToClient(m_hWnd, lpPoint);
}
inline void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const
{
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), lpPoint, nCount);
}
inline void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), reinterpret_cast<LPPOINT>(lpRect), 2);
}

inline void CWnd::EndPaint(LPPAINTSTRUCT lpPaint)
{
    ::EndPaint(m_hWnd, lpPaint);
}
inline void CWnd::UpdateWindow()
{
    ::UpdateWindow(m_hWnd);
}
inline void CWnd::SetRedraw(BOOL bRedraw)
{
    SendMessage(WM_SETREDRAW, static_cast<WPARAM>(bRedraw));
}
inline BOOL CWnd::GetUpdateRect(LPRECT lpRect, BOOL bErase)
{
    return ::GetUpdateRect(m_hWnd, lpRect, bErase);
}
inline void CWnd::Invalidate(BOOL bErase)
{
    ::InvalidateRect(m_hWnd, NULL, bErase);
}
inline void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase)
{
    ::InvalidateRect(m_hWnd, lpRect, bErase);
}
inline void CWnd::ValidateRect(LPCRECT lpRect)
{
    ::ValidateRect(m_hWnd, lpRect);
}
inline BOOL CWnd::ShowWindow(int nCmdShow)
{
    return ::ShowWindow(m_hWnd, nCmdShow);
}
inline BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(m_hWnd);
}
inline void CWnd::ShowOwnedPopups(BOOL bShow)
{
    ::ShowOwnedPopups(m_hWnd, bShow);
}
inline BOOL CWnd::LockWindowUpdate()
{
    return ::LockWindowUpdate(m_hWnd);
}
inline void CWnd::UnlockWindowUpdate()
{
    ::LockWindowUpdate(NULL);
}

inline UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                               void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD))
{
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}
inline BOOL CWnd::KillTimer(UINT_PTR nIDEvent)
{
    return ::KillTimer(m_hWnd, nIDEvent);
}
