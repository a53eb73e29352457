// The geometry of a property grid.
#include "propertyrules/PropertyGridGeometry.h"

#include <algorithm>

namespace quorfx
{
namespace
{

constexpr int TextMargin = 4;
constexpr int DescriptionMargin = 4;
constexpr int SmallestBox = 9;

int FrameOfDescription()
{
    return DescriptionBarHeight + 2 * DescriptionMargin;
}

// The description gives way: the header and one row stay visible.
int DescriptionHeight(int clientHeight, const PropertyGridMetrics& metrics)
{
    if (metrics.descriptionRows <= 0)
        return 0;
    const int wanted = metrics.descriptionRows * metrics.rowHeight + FrameOfDescription();
    return std::clamp(clientHeight - metrics.headerHeight - metrics.rowHeight, 0, wanted);
}

} // namespace

PropertyGridAreas ComputeAreas(int clientWidth, int clientHeight, const PropertyGridMetrics& metrics,
                               int rowCount)
{
    PropertyGridAreas areas;
    const int headerBottom = (std::min)(metrics.headerHeight, clientHeight);
    const int listBottom = (std::max)(headerBottom, clientHeight - DescriptionHeight(clientHeight, metrics));
    const bool scrolls = static_cast<long long>(rowCount) * metrics.rowHeight > listBottom - headerBottom;
    const int listRight = (std::max)(0, clientWidth - (scrolls ? metrics.scrollBarWidth : 0));
    areas.header = {0, 0, clientWidth, headerBottom};
    areas.list = {0, headerBottom, listRight, listBottom};
    if (scrolls)
        areas.scrollBar = {listRight, headerBottom, clientWidth, listBottom};
    areas.description = {0, listBottom, clientWidth, clientHeight};
    return areas;
}

int DescriptionRowsAt(int y, int clientHeight, const PropertyGridMetrics& metrics)
{
    if (metrics.rowHeight <= 0)
        return 1;
    const int most =
        (clientHeight - metrics.headerHeight - metrics.rowHeight - FrameOfDescription()) / metrics.rowHeight;
    const int wanted = (clientHeight - y - FrameOfDescription() + metrics.rowHeight / 2) / metrics.rowHeight;
    return std::clamp(wanted, 1, (std::max)(1, most));
}

int FullRows(const Box& list, int rowHeight)
{
    return rowHeight <= 0 ? 1 : (std::max)(1, list.Height() / rowHeight);
}

Box RowRectangle(const Box& list, int rowHeight, int firstRow, int row)
{
    const int top = list.top + (row - firstRow) * rowHeight;
    return Box(list.left, top, list.right, top + rowHeight);
}

int RowAtY(const Box& list, int rowHeight, int firstRow, int rowCount, int y)
{
    if (rowHeight <= 0 || y < list.top || y >= list.bottom)
        return -1;
    const int row = firstRow + (y - list.top) / rowHeight;
    return row < rowCount ? row : -1;
}

int ClampFirstRow(int firstRow, int rowCount, int fullRows)
{
    return std::clamp(firstRow, 0, (std::max)(0, rowCount - fullRows));
}

int FirstRowShowing(int row, int firstRow, int fullRows)
{
    if (row < firstRow)
        return row;
    return (std::max)(firstRow, row - fullRows + 1);
}

int RowAfterKey(NavigationKey key, int row, int rowCount, int fullRows)
{
    int wanted = 0;
    switch (key)
    {
    case NavigationKey::Up:
        wanted = row - 1;
        break;
    case NavigationKey::Down:
        wanted = row + 1;
        break;
    case NavigationKey::PageUp:
        wanted = row - fullRows;
        break;
    case NavigationKey::PageDown:
        wanted = row + fullRows;
        break;
    case NavigationKey::Home:
        break;
    case NavigationKey::End:
        wanted = rowCount - 1;
        break;
    default:
        return -1;
    }
    return rowCount <= 0 ? -1 : std::clamp(wanted, 0, rowCount - 1);
}

int ClampColumn(int width, int listWidth, int gutter)
{
    const int least = (std::min)(2 * gutter, listWidth / 2);
    return std::clamp(width, least, (std::max)(least, listWidth - 2 * gutter));
}

int ScaleColumn(int width, int oldListWidth, int newListWidth)
{
    if (oldListWidth <= 0)
        return newListWidth / 2;
    const long long product = static_cast<long long>(width) * newListWidth;
    const int half = product < 0 ? -oldListWidth / 2 : oldListWidth / 2;
    return static_cast<int>((product + half) / oldListWidth);
}

Box NameRectangle(const Box& row, int gutter, int indent, int column)
{
    const int right = row.left + column;
    const int left = (std::min)(row.left + gutter * (indent + 1), right);
    return Box(left, row.top, right, row.bottom - 1);
}

Box ValueRectangle(const Box& row, int column)
{
    const int left = (std::min)(row.left + column + 1, row.right);
    return Box(left, row.top, row.right, row.bottom - 1);
}

Box FoldBoxRectangle(const Box& row, int gutter, int indent, int column)
{
    const Box name = NameRectangle(row, gutter, indent, column);
    // Odd, so that the plus sign has a middle.
    const int side = (std::max)(SmallestBox, gutter / 2) | 1;
    const int left = name.left - gutter + (gutter - side) / 2;
    const int top = row.top + (row.Height() - 1 - side) / 2;
    return Box(left, top, left + side, top + side);
}

Box ButtonRectangle(const Box& value)
{
    Box button = value;
    button.left = (std::max)(value.left, value.right - value.Height());
    return button;
}

Box TextRectangle(const Box& cell)
{
    Box text = cell;
    text.left = (std::min)(cell.left + TextMargin, cell.right);
    return text;
}

Box EditorRectangle(const Box& value, int textHeight)
{
    Box editor = TextRectangle(value);
    editor.top += (std::max)(0, (value.Height() - textHeight) / 2);
    return editor;
}

} // namespace quorfx
