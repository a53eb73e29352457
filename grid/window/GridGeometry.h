// Pure rules of the grid's geometry: caption lines, scroll bars, scroll distances, rectangles. No windows.
#pragma once

#include <afxwin.h>

namespace QuorUiCtr
{

// Number of lines that the column header reserves for a caption. At most the first line break and every
// further one that lies far enough behind it count: a caption that begins with a break counts one line.
long CaptionLineCount(const CString& caption);

// Which scroll bars a content of the given size needs in an area, and what is left of the area beside them.
struct ScrollBarPlan
{
    bool horizontal;
    bool vertical;
    CSize area;
};

// `area` is the data area without bars; the bars are `barWidth` wide (vertical) and `barHeight` high
// (horizontal). All in pixels. A content exactly as large as the area needs no bar.
ScrollBarPlan PlanScrollBars(CSize content, CSize area, int barWidth, int barHeight);

// The part of `distance` that a bar at `position` can scroll within 0 to `maximum`.
long ClampScroll(long position, long distance, long maximum);

// The least distance that brings `first` to `last` into the view from `viewFirst` to `viewLast`: to its
// beginning when the range begins before the view or is larger than it, else to its end. `position` is the
// present scroll position. One axis, logical coordinates.
long LeastScroll(long first, long last, long viewFirst, long viewLast, long position);

// The distance that a scroll bar message asks for on one axis.
struct ScrollRequest
{
    long position;
    long minimum;
    long maximum;
    long line;
    long page;
    long track;
};

// The target position of a scroll code for the vertical bar, clamped to the range.
long VerticalScrollTarget(UINT code, const ScrollRequest& request);
// The same for the horizontal bar, whose SB_TOP is not clamped.
long HorizontalScrollTarget(UINT code, const ScrollRequest& request);

// The position that a turn of the mouse wheel by `delta` (120 per notch, positive away from the user) names.
long WheelPosition(long position, long rowHeight, int delta);

// The outline of a cell, which shares its border lines with its neighbours, the inside of it and the text
// rectangle (before tree indentation), from the cell's logical rectangle (left, top, right, bottom).
CRect CellOutlineRect(const CRect& cell);
CRect CellInsideRect(const CRect& cell);
CRect CellTextRect(const CRect& cell, long rowSpace);

// The plus or minus box of a parent row at `row` with `depth` ancestors.
CRect TreeQuadRect(long firstColumnLeft, long row, long depth, long rowHeight);

} // namespace QuorUiCtr
