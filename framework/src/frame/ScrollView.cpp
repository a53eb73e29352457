// CScrollView: bars, positions and scrolling.
#include "afxext.h"
#include "bars/FrameMessages.h"

IMPLEMENT_DYNAMIC(CScrollView, CView)

BEGIN_MESSAGE_MAP(CScrollView, CView)
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

const SIZE CScrollView::sizeDefault = {0, 0};

namespace
{

// A device context of the screen in a mapping mode, for conversions.
class MappingDC : public CDC
{
public:
    explicit MappingDC(int mapMode)
    {
        CreateCompatibleDC(nullptr);
        SetMapMode(mapMode);
    }
};

SIZE OrFraction(SIZE size, SIZE whole, int parts)
{
    if (size.cx == 0)
        size.cx = whole.cx / parts;
    if (size.cy == 0)
        size.cy = whole.cy / parts;
    return size;
}

// Which bars a window needs: a bar takes away from the other direction's room.
void FindNeededBars(CSize whole, CSize room, CSize barSize, bool& horizontal, bool& vertical)
{
    horizontal = whole.cx > room.cx;
    vertical = whole.cy > room.cy - (horizontal ? barSize.cy : 0);
    horizontal = whole.cx > room.cx - (vertical ? barSize.cx : 0);
}

// The new position of one direction for a scroll command; the bar's own position if the command moves
// nothing.
int PositionAfter(CWnd* window, int bar, BYTE code, int page, int line)
{
    SCROLLINFO info = {};
    window->GetScrollInfo(bar, &info, SIF_ALL);
    switch (code)
    {
    case SB_TOP:
        return 0;
    case SB_BOTTOM:
        return info.nMax;
    case SB_LINEUP:
        return info.nPos - line;
    case SB_LINEDOWN:
        return info.nPos + line;
    case SB_PAGEUP:
        return info.nPos - page;
    case SB_PAGEDOWN:
        return info.nPos + page;
    case SB_THUMBTRACK:
        return info.nTrackPos;
    default:
        return info.nPos;
    }
}

constexpr BYTE noScroll = 0xff;

} // namespace

CScrollView::CScrollView() : m_nMapMode(MM_TEXT), m_bInsideUpdate(FALSE) {}

CScrollView::~CScrollView() {}

CSize CScrollView::DeviceSize(SIZE logicalSize) const
{
    if (m_nMapMode == MM_TEXT)
        return logicalSize;
    MappingDC dc(m_nMapMode);
    POINT corner = {logicalSize.cx, logicalSize.cy};
    ::LPtoDP(dc.m_hDC, &corner, 1);
    return CSize(std::abs(corner.x), std::abs(corner.y));
}

void CScrollView::SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE& sizePage, const SIZE& sizeLine)
{
    m_nMapMode = nMapMode;
    m_totalLog = sizeTotal;
    m_totalDev = DeviceSize(sizeTotal);
    m_pageDev = OrFraction(DeviceSize(sizePage), m_totalDev, 10);
    m_lineDev = OrFraction(DeviceSize(sizeLine), m_pageDev, 10);
    if (m_hWnd != nullptr)
    {
        UpdateBars();
        Invalidate(TRUE);
    }
}

void CScrollView::GetDeviceScrollSizes(int& nMapMode, SIZE& sizeTotal, SIZE& sizePage, SIZE& sizeLine) const
{
    nMapMode = m_nMapMode;
    sizeTotal = m_totalDev;
    sizePage = m_pageDev;
    sizeLine = m_lineDev;
}

void CScrollView::CheckScrollBars(BOOL& bHasHorzBar, BOOL& bHasVertBar) const
{
    const DWORD style = GetStyle();
    bHasHorzBar = (style & WS_HSCROLL) != 0;
    bHasVertBar = (style & WS_VSCROLL) != 0;
}

void CScrollView::UpdateBars()
{
    // Showing or hiding a bar changes the size of the client area, which leads back here.
    if (m_bInsideUpdate)
        return;
    m_bInsideUpdate = TRUE;
    // Scroll bars that are windows of their own take no room of the view's.
    const bool sharesHorizontal = GetScrollBarCtrl(SB_HORZ) != nullptr;
    const bool sharesVertical = GetScrollBarCtrl(SB_VERT) != nullptr;
    const CSize barSize(sharesVertical ? 0 : ::GetSystemMetrics(SM_CXVSCROLL),
                        sharesHorizontal ? 0 : ::GetSystemMetrics(SM_CYHSCROLL));
    BOOL hasHorizontal, hasVertical;
    CheckScrollBars(hasHorizontal, hasVertical);
    CRect client;
    GetClientRect(&client);
    CSize room = client.Size();
    room.cx += hasVertical ? barSize.cx : 0;
    room.cy += hasHorizontal ? barSize.cy : 0;
    bool horizontal, vertical;
    FindNeededBars(m_totalDev, room, barSize, horizontal, vertical);
    room.cx -= vertical ? barSize.cx : 0;
    room.cy -= horizontal ? barSize.cy : 0;

    CPoint position = GetDeviceScrollPosition();
    SCROLLINFO info = {};
    info.fMask = SIF_RANGE | SIF_PAGE | (sharesHorizontal ? SIF_DISABLENOSCROLL : 0);
    info.nMax = horizontal ? m_totalDev.cx - 1 : 0;
    info.nPage = horizontal ? static_cast<UINT>(room.cx) : 0;
    SetScrollInfo(SB_HORZ, &info);
    info.fMask = SIF_RANGE | SIF_PAGE | (sharesVertical ? SIF_DISABLENOSCROLL : 0);
    info.nMax = vertical ? m_totalDev.cy - 1 : 0;
    info.nPage = vertical ? static_cast<UINT>(room.cy) : 0;
    SetScrollInfo(SB_VERT, &info);
    // The bars clamp their positions by themselves; the contents follow.
    const CPoint clamped = GetDeviceScrollPosition();
    if (clamped.x != position.x || clamped.y != position.y)
        ScrollWindow(position.x - clamped.x, position.y - clamped.y);
    m_bInsideUpdate = FALSE;
}

CPoint CScrollView::GetDeviceScrollPosition() const
{
    return CPoint(GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT));
}

CPoint CScrollView::GetScrollPosition() const
{
    CPoint position = GetDeviceScrollPosition();
    if (m_nMapMode != MM_TEXT)
    {
        MappingDC dc(m_nMapMode);
        ::DPtoLP(dc.m_hDC, &position, 1);
    }
    return position;
}

void CScrollView::ScrollToPosition(POINT pt)
{
    const CSize device = DeviceSize(CSize(pt.x, pt.y));
    ScrollToDevicePosition(CPoint(device.cx, device.cy));
}

BOOL CScrollView::ScrollToDevicePosition(CPoint devicePoint)
{
    const CPoint before = GetDeviceScrollPosition();
    const CPoint after((std::max)(0L, std::min<LONG>(devicePoint.x, GetScrollLimit(SB_HORZ))),
                       (std::max)(0L, std::min<LONG>(devicePoint.y, GetScrollLimit(SB_VERT))));
    if (after.x == before.x && after.y == before.y)
        return FALSE;
    if (after.x != before.x)
        SetScrollPos(SB_HORZ, after.x);
    if (after.y != before.y)
        SetScrollPos(SB_VERT, after.y);
    ScrollWindow(before.x - after.x, before.y - after.y);
    return TRUE;
}

void CScrollView::FillOutsideRect(CDC* pDC, CBrush* pBrush)
{
    CRect client;
    GetClientRect(&client);
    const int state = pDC->SaveDC();
    pDC->SetMapMode(MM_TEXT);
    pDC->SetViewportOrg(0, 0);
    pDC->SetWindowOrg(0, 0);
    CRect right(m_totalDev.cx, 0, client.right, client.bottom);
    if (right.left < right.right)
        pDC->FillRect(&right, pBrush);
    CRect bottom(0, m_totalDev.cy, (std::min)(client.right, m_totalDev.cx), client.bottom);
    if (bottom.top < bottom.bottom)
        pDC->FillRect(&bottom, pBrush);
    pDC->RestoreDC(state);
}

void CScrollView::ResizeParentToFit(BOOL bShrinkOnly)
{
    CFrameWnd* frame = GetParentFrame();
    if (frame == nullptr)
        return;
    CRect client, window;
    GetClientRect(&client);
    frame->GetWindowRect(&window);
    BOOL hasHorizontal, hasVertical;
    CheckScrollBars(hasHorizontal, hasVertical);
    CSize room = client.Size();
    room.cx += hasVertical ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    room.cy += hasHorizontal ? ::GetSystemMetrics(SM_CYHSCROLL) : 0;
    CSize growth = m_totalDev - room;
    if (bShrinkOnly)
    {
        growth.cx = (std::min)(0L, growth.cx);
        growth.cy = (std::min)(0L, growth.cy);
    }
    frame->SetWindowPos(nullptr, 0, 0, window.Width() + growth.cx, window.Height() + growth.cy,
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CScrollView::OnPrepareDC(CDC* pDC, CPrintInfo*)
{
    const CPoint position = GetDeviceScrollPosition();
    pDC->SetMapMode(m_nMapMode);
    pDC->SetViewportOrg(-position.x, -position.y);
}

BOOL CScrollView::OnScroll(UINT nScrollCode, UINT, BOOL bDoScroll)
{
    const CPoint before = GetDeviceScrollPosition();
    const CPoint after(PositionAfter(this, SB_HORZ, LOBYTE(nScrollCode), m_pageDev.cx, m_lineDev.cx),
                       PositionAfter(this, SB_VERT, HIBYTE(nScrollCode), m_pageDev.cy, m_lineDev.cy));
    return OnScrollBy(after - before, bDoScroll);
}

BOOL CScrollView::OnScrollBy(CSize sizeScroll, BOOL bDoScroll)
{
    const CPoint before = GetDeviceScrollPosition();
    if (bDoScroll)
        return ScrollToDevicePosition(before + sizeScroll);
    const CPoint after = before + sizeScroll;
    return (sizeScroll.cx < 0 && before.x > 0) || (sizeScroll.cy < 0 && before.y > 0) ||
           (sizeScroll.cx > 0 && after.x > 0 && before.x < GetScrollLimit(SB_HORZ)) ||
           (sizeScroll.cy > 0 && after.y > 0 && before.y < GetScrollLimit(SB_VERT));
}

void CScrollView::OnSize(UINT nType, int cx, int cy)
{
    CView::OnSize(nType, cx, cy);
    UpdateBars();
}

void CScrollView::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (pScrollBar != nullptr && pScrollBar->SendChildNotifyLastMsg())
        return;
    // Controls inside the view may have scroll bars, too.
    if (pScrollBar == GetScrollBarCtrl(SB_HORZ))
        OnScroll(MAKEWORD(nSBCode, noScroll), nPos);
}

void CScrollView::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (pScrollBar != nullptr && pScrollBar->SendChildNotifyLastMsg())
        return;
    if (pScrollBar == GetScrollBarCtrl(SB_VERT))
        OnScroll(MAKEWORD(noScroll, nSBCode), nPos);
}

BOOL CScrollView::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt)
{
    if (nFlags & (MK_SHIFT | MK_CONTROL))
        return CView::OnMouseWheel(nFlags, zDelta, pt);
    UINT lines = 3;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int step = lines == WHEEL_PAGESCROLL ? m_pageDev.cy : static_cast<int>(lines) * m_lineDev.cy;
    const CSize distance(0, -zDelta * step / WHEEL_DELTA);
    CSplitterWnd* const splitter = DYNAMIC_DOWNCAST(CSplitterWnd, GetParent());
    return splitter != nullptr ? splitter->DoScrollBy(this, distance) : OnScrollBy(distance);
}
