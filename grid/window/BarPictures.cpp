// When the scroll bars are drawn: while a view scrolls, at most once a frame.
#include "grid/window/GridLayout.h"

namespace QuorUiCtr
{
namespace
{

// The length of a frame in milliseconds. Drawing a bar costs more than all else in a step of scrolling, and
// what a screen does not show in between nobody misses.
constexpr UINT FrameTime = 16;

} // namespace

// At once when the last picture is older than a frame. Else by the timer, or by a later step if none of its
// messages gets through; the timer has a procedure of its own because hosts number theirs as they like.
void TGGrid::Layout::RepaintBarSoon(int bar)
{
    BarPicture& picture = grid.barPictures[bar];
    if (::GetTickCount() - picture.drawn >= FrameTime)
    {
        RepaintBar(bar);
        return;
    }
    if (!picture.waits)
        picture.waits = ::SetTimer(grid.m_hWnd, FrameTimer(), FrameTime, &Layout::OnFrame) != 0;
    if (!picture.waits)
        RepaintBar(bar);
}

void TGGrid::Layout::FinishBars()
{
    for (const int bar : {SB_HORZ, SB_VERT})
        if (grid.barPictures[bar].waits)
            RepaintBar(bar);
}

void CALLBACK TGGrid::Layout::OnFrame(HWND window, UINT, UINT_PTR timer, DWORD)
{
    ::KillTimer(window, timer);
    if (TGGrid* grid = DYNAMIC_DOWNCAST(TGGrid, CWnd::FromHandlePermanent(window)))
        Layout(*grid).FinishBars();
}

UINT_PTR TGGrid::Layout::FrameTimer() const
{
    return reinterpret_cast<UINT_PTR>(&grid.barPictures);
}

void TGGrid::Layout::RepaintBar(int bar)
{
    grid.barPictures[bar] = {::GetTickCount(), false};
    CRect place;
    grid.CWnd::GetClientRect(&place);
    if (bar == SB_VERT)
        place = CRect(place.right, place.top, place.right + ::GetSystemMetrics(SM_CXVSCROLL), place.bottom);
    else
        place = CRect(place.left, place.bottom, place.right, place.bottom + ::GetSystemMetrics(SM_CYHSCROLL));
    grid.RedrawWindow(&place, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_NOCHILDREN);
}

} // namespace QuorUiCtr
