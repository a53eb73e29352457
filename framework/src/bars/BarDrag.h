// BarDrag: a bar that is dragged to another edge of its frame, or out of it.
#pragma once

#include "bars/BarAccess.h"

namespace quorfx
{

class DockBar;

// Lives in the FrameBars of the bar's frame from the press of the button to its release.
class BarDrag
{
public:
    // Begins a drag at a client point of the bar. FALSE if the bar cannot be docked.
    static bool Begin(CControlBar& bar, CPoint clientPoint);
    // Floats a docked bar, and docks a floating one where it was before.
    static bool Toggle(CControlBar& bar);
    // The drag of that bar; NULL for none.
    static BarDrag* Of(const CControlBar& bar);
    // Ends the drag of the frame without effect; whether there was one.
    static bool Cancel(CFrameWnd& frame);

    ~BarDrag();

    // Takes the mouse messages of the bar; whether the message was one of the drag's.
    bool HandleMessage(UINT message);

private:
    BarDrag(CControlBar& bar, FrameBars& bars, CPoint screenPoint);

    void Follow();
    void Finish();
    void FindTarget(CPoint cursor);
    bool IsOver(DockBar& dock, CPoint cursor) const;
    CRect RectFor(CSize size, CPoint cursor) const;
    void InvertFrame();

    CControlBar& m_bar;
    FrameBars& m_bars;
    CPoint m_begin;
    CSize m_grip; // from the corner of the bar to the place it is held at
    CSize m_size; // of the bar at the beginning
    bool m_moves = false;
    DockBar* m_dock = nullptr; // where it would go; NULL: it would float
    DWORD m_align = CBRS_ALIGN_TOP;
    CRect m_rect;
};

} // namespace quorfx
