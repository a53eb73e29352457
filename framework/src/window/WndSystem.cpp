// CWnd: calls that take objects of other classes and that few programs need.
#include "afxwin.h"

BOOL CWnd::HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite)
{
    return ::HiliteMenuItem(m_hWnd, pMenu->GetSafeHmenu(), nIDHiliteItem, nHilite);
}

BOOL CWnd::DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags)
{
    return ::DrawCaption(m_hWnd, pDC->GetSafeHdc(), lprc, uFlags);
}

BOOL CWnd::PrintWindow(CDC* pDC, UINT nFlags) const
{
    return ::PrintWindow(m_hWnd, pDC->GetSafeHdc(), nFlags);
}

BOOL CWnd::UpdateLayeredWindow(CDC* pDCDst, POINT* pptDst, SIZE* psize, CDC* pDCSrc, POINT* pptSrc,
                               COLORREF crKey, BLENDFUNCTION* pblend, DWORD dwFlags)
{
    return ::UpdateLayeredWindow(m_hWnd, pDCDst->GetSafeHdc(), pptDst, psize, pDCSrc->GetSafeHdc(), pptSrc,
                                 crKey, pblend, dwFlags);
}
