// The geometry of a property grid: rectangles and row numbers. Pixels, client coordinates.
#pragma once

#include "propertyrules/Box.h"

namespace quorfx
{

struct PropertyGridMetrics
{
    int rowHeight = 0;
    int headerHeight = 0;    // 0 without a header
    int descriptionRows = 0; // 0 without a description
    int scrollBarWidth = 0;
};

// The parts of the client area; parts that are not there are empty.
struct PropertyGridAreas
{
    Box header;
    Box list;
    Box scrollBar;
    Box description;
};

// The height of the bar above the description, by which it is dragged.
constexpr int DescriptionBarHeight = 4;

PropertyGridAreas ComputeAreas(int clientWidth, int clientHeight, const PropertyGridMetrics& metrics,
                               int rowCount);

// How many lines of text the description gets when its upper edge is dragged to `y`.
int DescriptionRowsAt(int y, int clientHeight, const PropertyGridMetrics& metrics);

// How many rows fit whole, at least 1.
int FullRows(const Box& list, int rowHeight);
// The row's rectangle, also for rows outside the list.
Box RowRectangle(const Box& list, int rowHeight, int firstRow, int row);
// The row at `y`, or -1.
int RowAtY(const Box& list, int rowHeight, int firstRow, int rowCount, int y);
// The nearest first row that leaves no room below the last one.
int ClampFirstRow(int firstRow, int rowCount, int fullRows);
// The first row after the least scroll that shows `row`.
int FirstRowShowing(int row, int firstRow, int fullRows);
// The keys that lead from row to row, numbered as the platform does (VK_PRIOR and its siblings).
enum class NavigationKey : unsigned
{
    PageUp = 0x21,
    PageDown = 0x22,
    End = 0x23,
    Home = 0x24,
    Up = 0x26,
    Down = 0x28
};
// The row that a navigation key leads to from `row` (-1 for none selected); -1 for other keys.
int RowAfterKey(NavigationKey key, int row, int rowCount, int fullRows);

// The width of the names, kept so that both columns can be grasped.
int ClampColumn(int width, int listWidth, int gutter);
// The width that keeps its share when the list's width changes.
int ScaleColumn(int width, int oldListWidth, int newListWidth);

// The parts of a row. `gutter` is the width of the column of fold boxes, `indent` how many such columns the
// row is moved to the right, `column` the width of the names.
Box NameRectangle(const Box& row, int gutter, int indent, int column);
Box ValueRectangle(const Box& row, int column);
Box FoldBoxRectangle(const Box& row, int gutter, int indent, int column);
// The button at the right end of a value.
Box ButtonRectangle(const Box& value);
// Where text stands in a cell.
Box TextRectangle(const Box& cell);
// Where an editor with text of that height stands, so that the text does not move when it opens.
Box EditorRectangle(const Box& value, int textHeight);

} // namespace quorfx
