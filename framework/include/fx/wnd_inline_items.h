// The members of CWnd about input, dialog items and other windows that only pass a call on to Windows.
#pragma once

inline BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(m_hWnd);
}
inline BOOL CWnd::EnableWindow(BOOL bEnable)
{
    return ::EnableWindow(m_hWnd, bEnable);
}
inline CWnd* PASCAL CWnd::GetActiveWindow()
{
    return FromHandle(::GetActiveWindow());
}
inline CWnd* CWnd::SetActiveWindow()
{
    return FromHandle(::SetActiveWindow(m_hWnd));
}
inline CWnd* PASCAL CWnd::GetForegroundWindow()
{
    return FromHandle(::GetForegroundWindow());
}
inline BOOL CWnd::SetForegroundWindow()
{
    return ::SetForegroundWindow(m_hWnd);
}
inline CWnd* PASCAL CWnd::GetCapture()
{
    return FromHandle(::GetCapture());
}
inline CWnd* CWnd::SetCapture()
{
    return FromHandle(::SetCapture(m_hWnd));
}
inline CWnd* PASCAL CWnd::GetFocus()
{
    return FromHandle(::GetFocus());
}
inline CWnd* CWnd::SetFocus()
{
    return FromHandle(::SetFocus(m_hWnd));
}
inline CWnd* PASCAL CWnd::GetDesktopWindow()
{
    return FromHandle(::GetDesktopWindow());
}
inline BOOL CWnd::FlashWindow(BOOL bInvert)
{
    return ::FlashWindow(m_hWnd, bInvert);
}
inline BOOL CWnd::OpenClipboard()
{
    return ::OpenClipboard(m_hWnd);
}
inline void CWnd::CreateSolidCaret(int nWidth, int nHeight)
{
    ::CreateCaret(m_hWnd, NULL, nWidth, nHeight);
}
inline void CWnd::CreateGrayCaret(int nWidth, int nHeight)
{
    ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(static_cast<UINT_PTR>(1)), nWidth, nHeight);
}
inline CPoint PASCAL CWnd::GetCaretPos()
{
    POINT point = {0, 0};
    ::GetCaretPos(&point);
    return CPoint(point);
}
inline void PASCAL CWnd::SetCaretPos(POINT point)
{
    ::SetCaretPos(point.x, point.y);
}
inline void CWnd::HideCaret()
{
    ::HideCaret(m_hWnd);
}
inline void CWnd::ShowCaret()
{
    ::ShowCaret(m_hWnd);
}

inline CWnd* CWnd::GetDlgItem(int nID) const
{
    return FromHandle(::GetDlgItem(m_hWnd, nID));
}
inline void CWnd::GetDlgItem(int nID, HWND* phWnd) const
{
    *phWnd = ::GetDlgItem(m_hWnd, nID);
}
inline int CWnd::GetDlgCtrlID() const
{
    return ::GetDlgCtrlID(m_hWnd);
}
inline int CWnd::SetDlgCtrlID(int nID)
{
    return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID));
}
inline void CWnd::CheckDlgButton(int nIDButton, UINT nCheck)
{
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}
inline void CWnd::CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton)
{
    ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
}
inline UINT CWnd::IsDlgButtonChecked(int nIDButton) const
{
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}
inline UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const
{
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}
inline void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned)
{
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}
inline int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const
{
    return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
}
inline void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString)
{
    ::SetDlgItemText(m_hWnd, nID, lpszString);
}
inline LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
}
inline CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}
inline CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}

inline CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return NULL;
}
inline BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}

inline CWnd* CWnd::GetParent() const
{
    return FromHandle(::GetParent(m_hWnd));
}
inline CWnd* CWnd::SetParent(CWnd* pWndNewParent)
{
    return FromHandle(::SetParent(m_hWnd, pWndNewParent->GetSafeHwnd()));
}
inline CWnd* CWnd::GetAncestor(UINT gaFlags) const
{
    return FromHandle(::GetAncestor(m_hWnd, gaFlags));
}
inline CWnd* CWnd::GetWindow(UINT nCmd) const
{
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}
inline CWnd* CWnd::GetNextWindow(UINT nFlag) const
{
    return FromHandle(::GetWindow(m_hWnd, nFlag));
}
inline CWnd* CWnd::GetTopWindow() const
{
    return FromHandle(::GetTopWindow(m_hWnd));
}
inline CWnd* CWnd::GetLastActivePopup() const
{
    return FromHandle(::GetLastActivePopup(m_hWnd));
}
inline BOOL CWnd::IsChild(const CWnd* pWnd) const
{
    return ::IsChild(m_hWnd, pWnd->GetSafeHwnd());
}
inline CWnd* CWnd::ChildWindowFromPoint(POINT point) const
{
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}
inline CWnd* CWnd::ChildWindowFromPoint(POINT point, UINT nFlags) const
{
    return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}
inline CWnd* PASCAL CWnd::WindowFromPoint(POINT point)
{
    return FromHandle(::WindowFromPoint(point));
}
inline CWnd* PASCAL CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName)
{
    return FromHandle(::FindWindow(lpszClassName, lpszWindowName));
}
inline CWnd* PASCAL CWnd::FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass,
                                       LPCTSTR lpszWindow)
{
    return FromHandle(::FindWindowEx(hwndParent, hwndChildAfter, lpszClass, lpszWindow));
}
