// HeaderDrag: the mark that a drag in a header shows across the cells, and how it scrolls the grid.
#pragma once

#include "grid/headers/HeaderBand.h"

namespace QuorUiCtr
{

// Whether the key is down, as of the message that is being handled.
inline bool IsKeyHeld(int key)
{
    return (::GetKeyState(key) & 0x8000) != 0;
}

// Rows and columns are dragged alike, along one axis each. Made for a step of a drag, over the place of the
// mark that the header window keeps.
class HeaderDrag
{
public:
    // `markPlace` is the logical coordinate of the mark along the axis, -1 while none is shown; the mark is
    // `thickness` pixels thick.
    HeaderDrag(TGGrid& draggedGrid, HeaderAxis dragAxis, long& markPlace, long thickness)
        : grid(draggedGrid), axis(dragAxis), place(markPlace), markThickness(thickness)
    {
    }

    // The arrow with two heads along the axis as cursor, until the mouse is moved again.
    void ShowCursor() const;
    // Moves the mark, -1 takes it off the screen.
    void MoveMark(long to);
    // Shows the mark again after the grid has drawn its cells, or what stands in `drawn` (logical
    // coordinates).
    void RestoreMark();
    void RestoreMark(const CRect& drawn);
    // Scrolls when `point` of the header is at an edge of the data area, at the lower end already when it is
    // at most `margin` pixels inside; returns whether it is.
    bool ScrollAtEdge(CWnd& header, CPoint point, long margin);

private:
    CRect MarkRect() const;
    void InvertMark();
    bool IsAlongRows() const { return axis == HeaderAxis::Rows; }

    TGGrid& grid;
    HeaderAxis axis;
    long& place;
    long markThickness;
};

} // namespace QuorUiCtr
