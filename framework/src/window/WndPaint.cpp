// CWnd: device contexts, update regions, fonts and menus of a window.
#include "afxwin.h"

namespace
{

HRGN RegionHandle(const CRgn* region)
{
    return region == nullptr ? nullptr : static_cast<HRGN>(region->GetSafeHandle());
}

} // namespace

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint)
{
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}

CDC* CWnd::GetDC()
{
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC()
{
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags)
{
    return CDC::FromHandle(::GetDCEx(m_hWnd, RegionHandle(prgnClip), flags));
}

int CWnd::ReleaseDC(CDC* pDC)
{
    return ::ReleaseDC(m_hWnd, pDC->GetSafeHdc());
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const
{
    ::SendMessage(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()),
                  static_cast<LPARAM>(dwFlags));
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const
{
    ::SendMessage(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()),
                  static_cast<LPARAM>(dwFlags));
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase)
{
    return ::GetUpdateRgn(m_hWnd, RegionHandle(pRgn), bErase);
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase)
{
    ::InvalidateRgn(m_hWnd, RegionHandle(pRgn), bErase);
}

void CWnd::ValidateRgn(CRgn* pRgn)
{
    ::ValidateRgn(m_hWnd, RegionHandle(pRgn));
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags)
{
    return ::RedrawWindow(m_hWnd, lpRectUpdate, RegionHandle(prgnUpdate), flags);
}

void CWnd::CreateCaret(CBitmap* pBitmap)
{
    ::CreateCaret(m_hWnd, pBitmap == nullptr ? nullptr : static_cast<HBITMAP>(pBitmap->GetSafeHandle()), 0,
                  0);
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    const HGDIOBJ font = pFont == nullptr ? nullptr : pFont->GetSafeHandle();
    ::SendMessage(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(font), bRedraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0)));
}

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu)
{
    return ::SetMenu(m_hWnd, pMenu->GetSafeHmenu());
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const
{
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

void CWnd::GetWindowText(CString& rString) const
{
    const int length = ::GetWindowTextLength(m_hWnd);
    ::GetWindowText(m_hWnd, rString.GetBuffer(length), length + 1);
    rString.ReleaseBuffer();
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType)
{
    return ::MessageBox(m_hWnd, lpszText, lpszCaption != nullptr ? lpszCaption : AfxGetAppName(), nType);
}

void CWnd::DragAcceptFiles(BOOL bAccept)
{
    ModifyStyleEx(bAccept ? 0 : WS_EX_ACCEPTFILES, bAccept ? WS_EX_ACCEPTFILES : 0);
}

BOOL PASCAL CWnd::GrayCtlColor(HDC hDC, HWND, UINT nCtlColor, HBRUSH hbrGray, COLORREF clrText)
{
    const bool isGray = nCtlColor == CTLCOLOR_MSGBOX || nCtlColor == CTLCOLOR_BTN ||
                        nCtlColor == CTLCOLOR_DLG || nCtlColor == CTLCOLOR_STATIC;
    if (hDC == nullptr || !isGray)
        return FALSE;
    LOGBRUSH brush = {};
    ::GetObject(hbrGray, sizeof(brush), &brush);
    ::SetBkColor(hDC, brush.lbColor);
    ::SetTextColor(hDC, clrText == static_cast<COLORREF>(-1) ? ::GetSysColor(COLOR_WINDOWTEXT) : clrText);
    return TRUE;
}
