// The grid's geometry: caption lines, scroll bars, scroll distances, rectangles. In pixels.
#pragma once

#include "rules/Shapes.h"

#include <string_view>

namespace QuorUiCtr
{

// The height that a grid's contents can have: as far as drawing contexts count. Rows beyond have no extent,
// and the last one before may have less than the others: they exist, but cannot be scrolled to, seen or hit.
constexpr int MaxContentHeight = 1 << 27;
// Up to here every context is exact to the pixel. Emulations of the platform that compute origins with single
// precision round them to 2 pixels up to twice this height, to 8 up to MaxContentHeight.
constexpr int ExactContentHeight = 1 << 24;

// The y at which row `row` begins, in rows of one height that stand side by side from 0 on.
int RowEdge(int row, int rowHeight);

// Number of lines that the column header reserves for a caption. At most the first line break and every
// further one that lies far enough behind it count: a caption that begins with a break counts one line.
int CaptionLineCount(std::wstring_view caption);

// Which scroll bars a content of the given size needs in an area, and what is left of the area beside them.
struct ScrollBarPlan
{
    bool horizontal;
    bool vertical;
    Extent area;
};

// `area` is the data area without bars; the bars are `barWidth` wide (vertical) and `barHeight` high
// (horizontal). All in pixels. A content exactly as large as the area needs no bar.
ScrollBarPlan PlanScrollBars(Extent content, Extent area, int barWidth, int barHeight);

// The part of `distance` that a bar at `position` can scroll within 0 to `maximum`.
int ClampScroll(int position, int distance, int maximum);

// The least distance that brings `first` to `last` into the view from `viewFirst` to `viewLast`: to its
// beginning when the range begins before the view or is larger than it, else to its end. `position` is the
// present scroll position. One axis, logical coordinates.
int LeastScroll(int first, int last, int viewFirst, int viewLast, int position);

// What a scroll bar message asks for, numbered as the platform does (SB_LINEUP and its siblings). Other
// numbers ask for nothing.
enum class ScrollCode : unsigned
{
    LineBack = 0,
    LineForward = 1,
    PageBack = 2,
    PageForward = 3,
    Track = 5,
    First = 6,
    Last = 7
};

// The distance that a scroll bar message asks for on one axis.
struct ScrollRequest
{
    int position;
    int minimum;
    int maximum;
    int line;
    int page;
    int track;
};

// The target position of a scroll code for the vertical bar, clamped to the range.
int VerticalScrollTarget(ScrollCode code, const ScrollRequest& request);
// The same for the horizontal bar, whose First is not clamped.
int HorizontalScrollTarget(ScrollCode code, const ScrollRequest& request);

// The position that a turn of the mouse wheel by `delta` (120 per notch, positive away from the user) names.
int WheelPosition(int position, int rowHeight, int delta);

// The outline of a cell, which shares its border lines with its neighbours, the inside of it and the text
// rectangle (before tree indentation), from the cell's logical rectangle (left, top, right, bottom).
Box CellOutlineRect(const Box& cell);
Box CellInsideRect(const Box& cell);
Box CellTextRect(const Box& cell, int rowSpace);

// The fold box of a parent row, its plus or minus, at `row` with `depth` ancestors.
Box FoldBoxRect(int firstColumnLeft, int row, int depth, int rowHeight);

} // namespace QuorUiCtr
