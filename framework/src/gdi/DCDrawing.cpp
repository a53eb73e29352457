// CDC: lines, rectangles, bits and text that are more than one GDI call.

#include "afxwin.h"

CPoint CDC::GetCurrentPosition() const
{
    CPoint position;
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y)
{
    CPoint previous;
    if (m_hDC != m_hAttribDC && m_hDC != nullptr)
        ::MoveToEx(m_hDC, x, y, &previous);
    if (m_hAttribDC != nullptr)
        ::MoveToEx(m_hAttribDC, x, y, &previous);
    return previous;
}

BOOL CDC::LineTo(int x, int y)
{
    // The query context keeps the same position.
    if (m_hAttribDC != nullptr && m_hDC != m_hAttribDC)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FillRect(m_hDC, lpRect, static_cast<HBRUSH>(pBrush->GetSafeHandle()));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FrameRect(m_hDC, lpRect, static_cast<HBRUSH>(pBrush->GetSafeHandle()));
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    FillSolidRect(CRect(x, y, x + cx, y + cy), clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx, y, -1, cy, clrBottomRight);
    FillSolidRect(x, y + cy, cx, -1, clrBottomRight);
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd)
{
    return ::ExcludeUpdateRgn(m_hDC, pWnd->GetSafeHwnd());
}

BOOL CDC::TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                         int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent)
{
    return ::GdiTransparentBlt(m_hDC, xDest, yDest, nDestWidth, nDestHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc,
                               nSrcWidth, nSrcHeight, clrTransparent);
}

BOOL CDC::AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend)
{
    return ::GdiAlphaBlend(m_hDC, xDest, yDest, nDestWidth, nDestHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc,
                           nSrcWidth, nSrcHeight, blend);
}

BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode)
{
    return ::GdiGradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}

BOOL CDC::ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                   LPRECT lpRectUpdate)
{
    return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, static_cast<HRGN>(pRgnUpdate->GetSafeHandle()),
                      lpRectUpdate);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
{
    if ((nFormat & DT_MODIFYSTRING) == 0)
        return DrawText(static_cast<LPCTSTR>(str), str.GetLength(), lpRect, nFormat);
    // The function may write up to four characters more than the text has.
    CString copy(str);
    const int height =
        DrawText(static_cast<LPCTSTR>(copy.GetBuffer(str.GetLength() + 4)), str.GetLength(), lpRect, nFormat);
    copy.ReleaseBuffer(str.GetLength());
    return height;
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin)
{
    const DWORD extent = static_cast<DWORD>(
        ::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin));
    return CSize(extent);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const
{
    CSize extent;
    ::GetTextExtentPoint32(m_hAttribDC, lpszString, nCount, &extent);
    return extent;
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const
{
    CSize extent;
    ::GetTextExtentPoint32(m_hDC, lpszString, nCount, &extent);
    return extent;
}

int CDC::GetTextFace(CString& rString) const
{
    const int bufferLength = ::GetTextFace(m_hAttribDC, 0, nullptr);
    const int length = ::GetTextFace(m_hAttribDC, bufferLength, rString.GetBuffer(bufferLength));
    rString.ReleaseBuffer();
    return length;
}
