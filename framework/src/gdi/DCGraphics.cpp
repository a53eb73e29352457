// CDC: hundredths of a millimetre, dragged outlines, and the start of a document.
#include "afxwin.h"

namespace
{

constexpr int HundredthsPerInch = 2540;

// The modes whose units have a size on paper.
bool IsMetricMode(int mapMode)
{
    return mapMode == MM_LOMETRIC || mapMode == MM_HIMETRIC || mapMode == MM_LOENGLISH ||
           mapMode == MM_HIENGLISH;
}

// Keeps the device context in hundredths of a millimetre until the end of the scope.
class HundredthsMode
{
public:
    explicit HundredthsMode(HDC dc) : m_dc(dc), m_before(::SetMapMode(dc, MM_HIMETRIC)) {}
    ~HundredthsMode() { ::SetMapMode(m_dc, m_before); }
    HundredthsMode(const HundredthsMode&) = delete;
    HundredthsMode& operator=(const HundredthsMode&) = delete;

private:
    HDC m_dc;
    int m_before;
};

CSize PixelsPerInch(HDC dc)
{
    return CSize(::GetDeviceCaps(dc, LOGPIXELSX), ::GetDeviceCaps(dc, LOGPIXELSY));
}

} // namespace

void CDC::DPtoHIMETRIC(LPSIZE lpSize) const
{
    if (IsMetricMode(GetMapMode()))
    {
        const HundredthsMode mode(m_hDC);
        DPtoLP(lpSize);
        return;
    }
    const CSize inch = PixelsPerInch(m_hDC);
    lpSize->cx = ::MulDiv(lpSize->cx, HundredthsPerInch, inch.cx);
    lpSize->cy = ::MulDiv(lpSize->cy, HundredthsPerInch, inch.cy);
}

void CDC::HIMETRICtoDP(LPSIZE lpSize) const
{
    if (IsMetricMode(GetMapMode()))
    {
        const HundredthsMode mode(m_hDC);
        LPtoDP(lpSize);
        return;
    }
    const CSize inch = PixelsPerInch(m_hDC);
    lpSize->cx = ::MulDiv(lpSize->cx, inch.cx, HundredthsPerInch);
    lpSize->cy = ::MulDiv(lpSize->cy, inch.cy, HundredthsPerInch);
}

void CDC::LPtoHIMETRIC(LPSIZE lpSize) const
{
    LPtoDP(lpSize);
    DPtoHIMETRIC(lpSize);
}

void CDC::HIMETRICtoLP(LPSIZE lpSize) const
{
    HIMETRICtoDP(lpSize);
    DPtoLP(lpSize);
}

int CDC::StartDoc(LPCTSTR lpszDocName)
{
    DOCINFO info = {};
    info.cbSize = sizeof info;
    info.lpszDocName = lpszDocName;
    return StartDoc(&info);
}

namespace
{

// The area between a rectangle and the same one made smaller by the size.
void MakeOutline(CRgn& region, LPCRECT rect, SIZE size)
{
    CRect inner(*rect);
    inner.DeflateRect(size.cx, size.cy);
    inner.IntersectRect(CRect(inner), CRect(*rect));
    region.CreateRectRgnIndirect(rect);
    CRgn hole;
    hole.CreateRectRgnIndirect(inner);
    region.CombineRgn(&region, &hole, RGN_XOR);
}

void InvertOutline(CDC& dc, CRgn& region, CBrush* brush)
{
    const int saved = dc.SaveDC();
    dc.SelectClipRgn(&region, RGN_AND);
    CRect box;
    dc.GetClipBox(&box);
    dc.SelectObject(brush);
    dc.PatBlt(box.left, box.top, box.Width(), box.Height(), PATINVERT);
    dc.RestoreDC(saved);
}

} // namespace

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush,
                       CBrush* pBrushLast)
{
    if (pBrush == nullptr)
        pBrush = GetHalftoneBrush();
    if (pBrushLast == nullptr)
        pBrushLast = pBrush;
    CRgn now;
    MakeOutline(now, lpRect, size);
    if (lpRectLast == nullptr)
    {
        InvertOutline(*this, now, pBrush);
        return;
    }
    CRgn before;
    MakeOutline(before, lpRectLast, sizeLast);
    // Only the difference is drawn where the brush is the same, so that nothing flickers.
    if (pBrush->m_hObject == pBrushLast->m_hObject)
    {
        now.CombineRgn(&now, &before, RGN_XOR);
    }
    else
    {
        InvertOutline(*this, before, pBrushLast);
    }
    InvertOutline(*this, now, pBrush);
}
