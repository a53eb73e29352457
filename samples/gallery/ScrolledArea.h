// ScrolledArea: the scroll bars of a window that may be smaller than what it shows.
#pragma once

#include <afxwin.h>

// Keeps the bars of a window with WS_HSCROLL and WS_VSCROLL, and says where its contents are.
class ScrolledArea
{
public:
    // `smallestContents` is the size in pixels below which they are scrolled rather than made smaller.
    explicit ScrolledArea(CSize smallestContents) : smallest(smallestContents) {}

    // Brings the bars up to date with the window's size. Returns where the contents are, in client
    // coordinates. The window gets WM_SIZE while a bar comes or goes.
    CRect Place(CWnd& window);
    // Handles WM_HSCROLL and WM_VSCROLL of the window's own bars; returns true when the contents moved.
    bool Scroll(CWnd& window, int bar, UINT code);
    // Scrolls so far that the rectangle in client coordinates is in the view; returns true when the contents
    // moved.
    bool Show(CWnd& window, const CRect& part);

private:
    bool MoveTo(CWnd& window, int bar, int position);

    CSize smallest;
};
