// The bars of one frame, and what its message line shows.
#pragma once

#include "bars/BarAccess.h"

namespace quorfx
{

// Belongs to a frame and ends with it. Knows the bars that were created in the frame, docked or floating.
class FrameBars
{
public:
    explicit FrameBars(CFrameWnd& frame) : m_frame(frame) {}
    ~FrameBars();
    FrameBars(const FrameBars&) = delete;
    FrameBars& operator=(const FrameBars&) = delete;

    void Add(CControlBar* bar);
    void Remove(CControlBar* bar);
    const std::vector<CControlBar*>& Bars() const { return m_bars; }
    CControlBar* Find(UINT id) const;

    // The identifier of the text that the message line shows last.
    UINT shownMessage = 0;

private:
    CFrameWnd& m_frame;
    std::vector<CControlBar*> m_bars;
};

} // namespace quorfx
