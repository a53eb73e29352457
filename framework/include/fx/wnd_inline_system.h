// The members of CWnd that few programs need and that only pass a call on to Windows.
#pragma once

inline DWORD CWnd::GetWindowContextHelpId() const
{
    return ::GetWindowContextHelpId(m_hWnd);
}
inline BOOL CWnd::SetWindowContextHelpId(DWORD dwContextHelpId)
{
    return ::SetWindowContextHelpId(m_hWnd, dwContextHelpId);
}
inline int CWnd::DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType)
{
    return ::DlgDirList(m_hWnd, lpPathSpec, nIDListBox, nIDStaticPath, nFileType);
}
inline int CWnd::DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType)
{
    return ::DlgDirListComboBox(m_hWnd, lpPathSpec, nIDComboBox, nIDStaticPath, nFileType);
}
inline BOOL CWnd::DlgDirSelect(LPTSTR lpString, int nIDListBox)
{
    return ::DlgDirSelectEx(m_hWnd, lpString, MAX_PATH, nIDListBox);
}
inline BOOL CWnd::DlgDirSelectComboBox(LPTSTR lpString, int nIDComboBox)
{
    return ::DlgDirSelectComboBoxEx(m_hWnd, lpString, MAX_PATH, nIDComboBox);
}
inline UINT CWnd::ArrangeIconicWindows()
{
    return ::ArrangeIconicWindows(m_hWnd);
}
inline void CWnd::CloseWindow()
{
    ::CloseWindow(m_hWnd);
}
inline BOOL CWnd::AnimateWindow(DWORD dwTime, DWORD dwFlags)
{
    return ::AnimateWindow(m_hWnd, dwTime, dwFlags);
}
inline BOOL CWnd::DrawAnimatedRects(int idAni, CONST RECT* lprcFrom, CONST RECT* lprcTo)
{
    return ::DrawAnimatedRects(m_hWnd, idAni, lprcFrom, lprcTo);
}
inline BOOL CWnd::FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout)
{
    FLASHWINFO info = {sizeof(FLASHWINFO), m_hWnd, dwFlags, uCount, dwTimeout};
    return ::FlashWindowEx(&info);
}
inline BOOL CWnd::DragDetect(POINT pt) const
{
    return ::DragDetect(m_hWnd, pt);
}
inline BOOL CWnd::GetMenuBarInfo(LONG idObject, LONG idItem, PMENUBARINFO pmbi) const
{
    pmbi->cbSize = sizeof *pmbi;
    return ::GetMenuBarInfo(m_hWnd, idObject, idItem, pmbi);
}
inline BOOL CWnd::GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const
{
    psbi->cbSize = sizeof *psbi;
    return ::GetScrollBarInfo(m_hWnd, idObject, psbi);
}
inline BOOL CWnd::GetTitleBarInfo(PTITLEBARINFO pti) const
{
    pti->cbSize = sizeof *pti;
    return ::GetTitleBarInfo(m_hWnd, pti);
}
inline BOOL CWnd::GetWindowInfo(PWINDOWINFO pwi) const
{
    pwi->cbSize = sizeof *pwi;
    return ::GetWindowInfo(m_hWnd, pwi);
}
inline BOOL CWnd::GetLayeredWindowAttributes(COLORREF* pcrKey, BYTE* pbAlpha, DWORD* pdwFlags) const
{
    return ::GetLayeredWindowAttributes(m_hWnd, pcrKey, pbAlpha, pdwFlags);
}
inline BOOL CWnd::SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags)
{
    return ::SetLayeredWindowAttributes(m_hWnd, crKey, bAlpha, dwFlags);
}
inline void CWnd::NotifyWinEvent(DWORD event, LONG idObjectType, LONG idObject)
{
    ::NotifyWinEvent(event, m_hWnd, idObjectType, idObject);
}
inline CWnd* PASCAL CWnd::GetClipboardOwner()
{
    return FromHandle(::GetClipboardOwner());
}
inline CWnd* PASCAL CWnd::GetClipboardViewer()
{
    return FromHandle(::GetClipboardViewer());
}
inline CWnd* PASCAL CWnd::GetOpenClipboardWindow()
{
    return FromHandle(::GetOpenClipboardWindow());
}
inline HWND CWnd::SetClipboardViewer()
{
    return ::SetClipboardViewer(m_hWnd);
}
inline BOOL CWnd::ChangeClipboardChain(HWND hWndNext)
{
    return ::ChangeClipboardChain(m_hWnd, hWndNext);
}
