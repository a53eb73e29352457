// HeaderBand and HeaderPainter: where a header stands and how its boxes are drawn, for rows and columns
// alike.
#pragma once

#include "grid/TGGrid.h"

namespace QuorUiCtr
{

// What the boxes of a header stand for, and so in which direction they follow each other.
enum class HeaderAxis
{
    Rows,
    Cols
};

// The band at an edge of the grid in which a header shows one box per row or column. Made for a question.
class HeaderBand
{
public:
    HeaderBand(TGGrid& servedGrid, HeaderAxis bandAxis) : grid(servedGrid), axis(bandAxis) {}

    // The place of the header's window in the grid's: behind the other header, longer than any grid, which
    // clips it.
    CRect WindowRect() const;
    // The logical coordinate along the axis of a point in the header's client coordinates; as it is while the
    // grid has no drawing context.
    long LogicalPlace(CPoint point) const;

private:
    friend class HeaderPainter;

    bool IsAlongRows() const { return axis == HeaderAxis::Rows; }
    long Thickness() const;
    // How far the other header moves this one along the axis.
    long Offset() const;

    TGGrid& grid;
    HeaderAxis axis;
};

// Draws boxes of a header on a context of its window. Made for the length of a paint.
class HeaderPainter
{
public:
    // Moves the origin of the context to the grid's scroll position along the axis.
    HeaderPainter(CDC& headerContext, const HeaderBand& band);

    CDC& Context() const { return context; }
    // The box that reaches from `start` to `end` (logical coordinates) along the axis.
    CRect Box(long start, long end) const;
    // Draws the frame of a box; false when nothing of the box is to be drawn.
    bool DrawFrame(const CRect& box) const;

private:
    CDC& context;
    const bool isAlongRows;
    const bool isFlat;
    const long thickness;
};

} // namespace QuorUiCtr
