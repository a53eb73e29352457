// The scroll bars of the gallery's window.
#include "ScrolledArea.h"

#include <algorithm>

namespace
{

constexpr int LineInPixels = 24;

SCROLLINFO ReadBar(CWnd& window, int bar)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    ::GetScrollInfo(window.m_hWnd, bar, &info);
    return info;
}

// A page of the size of the contents makes the bar vanish.
void SetBar(CWnd& window, int bar, int contents, int view)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = contents - 1;
    info.nPage = static_cast<UINT>(view);
    ::SetScrollInfo(window.m_hWnd, bar, &info, TRUE);
}

// How far the view has to move so that `first` to `last` are in 0 to `view`.
int Distance(int first, int last, int view)
{
    if (first < 0 || last - first > view)
        return first;
    return (std::max)(0, last - view);
}

} // namespace

CRect ScrolledArea::Place(CWnd& window)
{
    CRect client;
    // Each bar takes room from the other; the second look sees what the first one changed.
    for (int look = 0; look < 2; ++look)
    {
        window.GetClientRect(client);
        SetBar(window, SB_HORZ, (std::max<int>)(smallest.cx, client.Width()), client.Width());
        window.GetClientRect(client);
        SetBar(window, SB_VERT, (std::max<int>)(smallest.cy, client.Height()), client.Height());
    }
    const CPoint corner(-ReadBar(window, SB_HORZ).nPos, -ReadBar(window, SB_VERT).nPos);
    return CRect(corner, CSize((std::max<int>)(smallest.cx, client.Width()),
                               (std::max<int>)(smallest.cy, client.Height())));
}

bool ScrolledArea::MoveTo(CWnd& window, int bar, int position)
{
    SCROLLINFO info = ReadBar(window, bar);
    const int before = info.nPos;
    info.fMask = SIF_POS;
    info.nPos = position;
    return ::SetScrollInfo(window.m_hWnd, bar, &info, TRUE) != before;
}

bool ScrolledArea::Scroll(CWnd& window, int bar, UINT code)
{
    const SCROLLINFO info = ReadBar(window, bar);
    const int page = static_cast<int>(info.nPage);
    switch (code)
    {
    case SB_LINEUP:
        return MoveTo(window, bar, info.nPos - LineInPixels);
    case SB_LINEDOWN:
        return MoveTo(window, bar, info.nPos + LineInPixels);
    case SB_PAGEUP:
        return MoveTo(window, bar, info.nPos - page);
    case SB_PAGEDOWN:
        return MoveTo(window, bar, info.nPos + page);
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return MoveTo(window, bar, info.nTrackPos);
    case SB_TOP:
        return MoveTo(window, bar, info.nMin);
    case SB_BOTTOM:
        return MoveTo(window, bar, info.nMax);
    default:
        return false;
    }
}

bool ScrolledArea::Show(CWnd& window, const CRect& part)
{
    CRect client;
    window.GetClientRect(client);
    const int across = Distance(part.left, part.right, client.Width());
    const int down = Distance(part.top, part.bottom, client.Height());
    const bool movedAcross = across != 0 && MoveTo(window, SB_HORZ, ReadBar(window, SB_HORZ).nPos + across);
    const bool movedDown = down != 0 && MoveTo(window, SB_VERT, ReadBar(window, SB_VERT).nPos + down);
    return movedAcross || movedDown;
}
