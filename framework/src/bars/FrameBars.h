// The bars of one frame: the register, docking and floating.
#pragma once

#include "bars/DockRows.h"
#include "bars/BarAccess.h"
#include <map>
#include <memory>

namespace quorfx
{

class BarDrag;
class DockBar;
class FloatFrame;

// Where a bar was before it was docked elsewhere or floated; a double click takes it back there.
struct BarMemory
{
    UINT dock = 0; // 0: never docked
    DockPlace place;
    bool hasFloated = false;
    CPoint floatPoint;
};

// Belongs to a frame and ends with it. Knows the bars that were created in the frame, docked or floating.
class FrameBars
{
public:
    explicit FrameBars(CFrameWnd& frame);
    ~FrameBars();
    FrameBars(const FrameBars&) = delete;
    FrameBars& operator=(const FrameBars&) = delete;

    void Add(CControlBar* bar);
    void Remove(CControlBar* bar);
    const std::vector<CControlBar*>& Bars() const { return m_bars; }
    CControlBar* Find(UINT id) const;

    // Makes dock bars for the edges that the style names.
    void EnableDocking(DWORD style);
    // The dock bar of that id or edge; NULL without one.
    DockBar* Dock(UINT id) const;
    DockBar* DockAt(DWORD align) const;
    bool CanDock() const { return !m_docks.empty(); }
    const std::vector<std::unique_ptr<DockBar>>& Docks() const { return m_docks; }
    void DockBarAt(CControlBar* bar, DockBar* dock, LPCRECT screenRect);
    // Where the bar was docked last.
    void DockAgain(CControlBar* bar);
    void FloatBar(CControlBar* bar, CPoint screenPoint, DWORD align);
    // The floating frame of a bar; NULL for a bar that does not float.
    FloatFrame* FloatOf(const CControlBar* bar) const;
    void ForgetFloat(FloatFrame* frame);
    // Takes bars out of docks and floating frames until they are put elsewhere.
    void TakeOut(CControlBar* bar);
    void CloseEmptyFloats();
    const BarMemory& Memory(const CControlBar* bar) { return m_memory[bar]; }

    void LayOutFloats();
    void UpdateFloats(WPARAM disableWithoutHandler);
    // Floating frames look active together with their owner.
    void ShowFloatsActive(bool active);

    // The identifier of the text that the message line shows last, and whether it ever got one.
    UINT shownMessage = 0;
    bool hasMessage = false;
    // The drag that is going on.
    std::unique_ptr<BarDrag> drag;

private:
    void Remember(const CControlBar* bar);

    CFrameWnd& m_frame;
    std::vector<CControlBar*> m_bars;
    std::vector<std::unique_ptr<DockBar>> m_docks;
    std::vector<FloatFrame*> m_floats;
    std::map<const CControlBar*, BarMemory> m_memory;
};

} // namespace quorfx
