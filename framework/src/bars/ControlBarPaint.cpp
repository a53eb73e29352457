// CControlBar: borders and gripper.
#include "bars/BarAccess.h"

namespace
{

// A border line, light on dark, and the strip of a gripper.
constexpr int borderWidth = 2;
constexpr int gripperWidth = 9;

} // namespace

BOOL CControlBar::HasGripper() const
{
    return (m_dwBarStyle & (CBRS_GRIPPER | CBRS_FLOATING)) == CBRS_GRIPPER;
}

void CControlBar::CalcInsideRect(CRect& rect, BOOL bHorz) const
{
    rect.left += m_dwBarStyle & CBRS_BORDER_LEFT ? borderWidth : 0;
    rect.top += m_dwBarStyle & CBRS_BORDER_TOP ? borderWidth : 0;
    rect.right -= m_dwBarStyle & CBRS_BORDER_RIGHT ? borderWidth : 0;
    rect.bottom -= m_dwBarStyle & CBRS_BORDER_BOTTOM ? borderWidth : 0;
    // The borders are those of a lying bar: they turn with it.
    const CRect& border = m_rectBorders;
    if (bHorz)
        rect.DeflateRect(border.left, border.top, border.right, border.bottom);
    else
        rect.DeflateRect(border.top, border.left, border.bottom, border.right);
    if (HasGripper() && bHorz)
        rect.left += gripperWidth;
    else if (HasGripper())
        rect.top += gripperWidth;
}

CSize CControlBar::AroundItems(CSize size, BOOL bStretch, BOOL bHorz) const
{
    CRect inside(0, 0, 0, 0);
    CalcInsideRect(inside, bHorz);
    size.cx -= inside.Width();
    size.cy -= inside.Height();
    if (bStretch && bHorz)
        size.cx = 32767;
    else if (bStretch)
        size.cy = 32767;
    return size;
}

void CControlBar::OnPaint()
{
    CPaintDC dc(this);
    if (IsVisible())
        DoPaint(&dc);
}

void CControlBar::DoPaint(CDC* pDC)
{
    CRect rect;
    GetWindowRect(&rect);
    rect.OffsetRect(-rect.left, -rect.top);
    DrawBorders(pDC, rect);
    DrawGripper(pDC, rect);
}

void CControlBar::DrawBorders(CDC* pDC, CRect& rect)
{
    UINT edges = 0;
    edges |= m_dwBarStyle & CBRS_BORDER_LEFT ? BF_LEFT : 0;
    edges |= m_dwBarStyle & CBRS_BORDER_TOP ? BF_TOP : 0;
    edges |= m_dwBarStyle & CBRS_BORDER_RIGHT ? BF_RIGHT : 0;
    edges |= m_dwBarStyle & CBRS_BORDER_BOTTOM ? BF_BOTTOM : 0;
    if (edges != 0)
        pDC->DrawEdge(&rect, EDGE_ETCHED, edges | BF_ADJUST);
}

void CControlBar::DrawGripper(CDC* pDC, const CRect& rect)
{
    if (!HasGripper())
        return;
    CRect grip(rect);
    grip.DeflateRect(3, 3);
    if (IsHorizontal())
        grip.right = grip.left + 3;
    else
        grip.bottom = grip.top + 3;
    pDC->Draw3dRect(grip, ::GetSysColor(COLOR_BTNHIGHLIGHT), ::GetSysColor(COLOR_BTNSHADOW));
}

void CControlBar::InsetClient(NCCALCSIZE_PARAMS* lpncsp) const
{
    CRect rect(lpncsp->rgrc[0]);
    CalcInsideRect(rect, IsHorizontal());
    rect.right = (std::max)(rect.left, rect.right);
    rect.bottom = (std::max)(rect.top, rect.bottom);
    lpncsp->rgrc[0] = rect;
}

void CControlBar::PaintOutsideClient()
{
    CWindowDC dc(this);
    CRect client, window;
    GetClientRect(&client);
    ClientToScreen(&client);
    GetWindowRect(&window);
    client.OffsetRect(-window.left, -window.top);
    window.OffsetRect(-window.left, -window.top);
    dc.ExcludeClipRect(&client);
    dc.FillRect(&window, CBrush::FromHandle(::GetSysColorBrush(COLOR_BTNFACE)));
    DoPaint(&dc);
}
