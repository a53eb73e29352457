// CDC: the attributes and the coordinate mapping, kept the same in the output and the query context.

#include "fx/dc.h"

namespace
{

// Applies a change to both contexts of a CDC and returns what the query context answers, as the setters
// document. A context that is missing is left out.
template <typename TResult, typename TChange> TResult OnBoth(const CDC& dc, TResult result, TChange change)
{
    if (dc.m_hDC != dc.m_hAttribDC && dc.m_hDC != nullptr)
        result = change(dc.m_hDC);
    if (dc.m_hAttribDC != nullptr)
        result = change(dc.m_hAttribDC);
    return result;
}

} // namespace

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return OnBoth(*this, COLORREF(CLR_INVALID), [=](HDC dc) { return ::SetBkColor(dc, crColor); });
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return OnBoth(*this, COLORREF(CLR_INVALID), [=](HDC dc) { return ::SetTextColor(dc, crColor); });
}

int CDC::SetBkMode(int nBkMode)
{
    return OnBoth(*this, 0, [=](HDC dc) { return ::SetBkMode(dc, nBkMode); });
}

int CDC::SetPolyFillMode(int nPolyFillMode)
{
    return OnBoth(*this, 0, [=](HDC dc) { return ::SetPolyFillMode(dc, nPolyFillMode); });
}

int CDC::SetROP2(int nDrawMode)
{
    return OnBoth(*this, 0, [=](HDC dc) { return ::SetROP2(dc, nDrawMode); });
}

int CDC::SetStretchBltMode(int nStretchMode)
{
    return OnBoth(*this, 0, [=](HDC dc) { return ::SetStretchBltMode(dc, nStretchMode); });
}

UINT CDC::SetTextAlign(UINT nFlags)
{
    return OnBoth(*this, UINT(GDI_ERROR), [=](HDC dc) { return ::SetTextAlign(dc, nFlags); });
}

int CDC::SetTextCharacterExtra(int nCharExtra)
{
    return OnBoth(*this, 0, [=](HDC dc) { return ::SetTextCharacterExtra(dc, nCharExtra); });
}

int CDC::SetMapMode(int nMapMode)
{
    return OnBoth(*this, 0, [=](HDC dc) { return ::SetMapMode(dc, nMapMode); });
}

CPoint CDC::GetBrushOrg() const
{
    CPoint origin;
    ::GetBrushOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    CPoint previous;
    ::SetBrushOrgEx(m_hDC, x, y, &previous);
    return previous;
}

CPoint CDC::GetViewportOrg() const
{
    CPoint origin;
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    CPoint previous;
    OnBoth(*this, FALSE, [&](HDC dc) { return ::SetViewportOrgEx(dc, x, y, &previous); });
    return previous;
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight)
{
    CPoint previous;
    OnBoth(*this, FALSE, [&](HDC dc) { return ::OffsetViewportOrgEx(dc, nWidth, nHeight, &previous); });
    return previous;
}

CSize CDC::GetViewportExt() const
{
    CSize extent;
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    CSize previous;
    OnBoth(*this, FALSE, [&](HDC dc) { return ::SetViewportExtEx(dc, cx, cy, &previous); });
    return previous;
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom)
{
    CSize previous;
    OnBoth(*this, FALSE,
           [&](HDC dc) { return ::ScaleViewportExtEx(dc, xNum, xDenom, yNum, yDenom, &previous); });
    return previous;
}

CPoint CDC::GetWindowOrg() const
{
    CPoint origin;
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint previous;
    OnBoth(*this, FALSE, [&](HDC dc) { return ::SetWindowOrgEx(dc, x, y, &previous); });
    return previous;
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight)
{
    CPoint previous;
    OnBoth(*this, FALSE, [&](HDC dc) { return ::OffsetWindowOrgEx(dc, nWidth, nHeight, &previous); });
    return previous;
}

CSize CDC::GetWindowExt() const
{
    CSize extent;
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    CSize previous;
    OnBoth(*this, FALSE, [&](HDC dc) { return ::SetWindowExtEx(dc, cx, cy, &previous); });
    return previous;
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom)
{
    CSize previous;
    OnBoth(*this, FALSE,
           [&](HDC dc) { return ::ScaleWindowExtEx(dc, xNum, xDenom, yNum, yDenom, &previous); });
    return previous;
}

// A size has no origin, so only the scale counts; the sign of a mapping that runs upwards is dropped.
void CDC::DPtoLP(LPSIZE lpSize) const
{
    POINT corners[] = {{0, 0}, {lpSize->cx, lpSize->cy}};
    DPtoLP(corners, 2);
    lpSize->cx = std::abs(corners[1].x - corners[0].x);
    lpSize->cy = std::abs(corners[1].y - corners[0].y);
}

void CDC::LPtoDP(LPSIZE lpSize) const
{
    POINT corners[] = {{0, 0}, {lpSize->cx, lpSize->cy}};
    LPtoDP(corners, 2);
    lpSize->cx = std::abs(corners[1].x - corners[0].x);
    lpSize->cy = std::abs(corners[1].y - corners[0].y);
}

int CDC::SelectClipRgn(CRgn* pRgn)
{
    const HRGN region = static_cast<HRGN>(pRgn->GetSafeHandle());
    return OnBoth(*this, ERROR, [=](HDC dc) { return ::SelectClipRgn(dc, region); });
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode)
{
    const HRGN region = static_cast<HRGN>(pRgn->GetSafeHandle());
    return OnBoth(*this, ERROR, [=](HDC dc) { return ::ExtSelectClipRgn(dc, region, nMode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return OnBoth(*this, ERROR, [=](HDC dc) { return ::ExcludeClipRect(dc, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return OnBoth(*this, ERROR, [=](HDC dc) { return ::IntersectClipRect(dc, x1, y1, x2, y2); });
}

int CDC::OffsetClipRgn(int x, int y)
{
    return OnBoth(*this, ERROR, [=](HDC dc) { return ::OffsetClipRgn(dc, x, y); });
}
