// The geometry of a property grid.
#include "propertygrid/PropertyGridGeometry.h"

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

PropertyGridAreas ComputeAreas(CSize client, const PropertyGridMetrics& metrics, int rowCount)
{
    PropertyGridAreas areas;
    const int headerBottom = std::min<int>(metrics.headerHeight, client.cy);
    const int listBottom = std::max<int>(headerBottom, client.cy - DescriptionHeight(client.cy, metrics));
    const bool scrolls = rowCount * metrics.rowHeight > listBottom - headerBottom;
    const int listRight = std::max<int>(0, client.cx - (scrolls ? metrics.scrollBarWidth : 0));
    areas.header.SetRect(0, 0, client.cx, headerBottom);
    areas.list.SetRect(0, headerBottom, listRight, listBottom);
    if (scrolls)
        areas.scrollBar.SetRect(listRight, headerBottom, client.cx, listBottom);
    areas.description.SetRect(0, listBottom, client.cx, client.cy);
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

int FullRows(const CRect& list, int rowHeight)
{
    return rowHeight <= 0 ? 1 : (std::max)(1, list.Height() / rowHeight);
}

CRect RowRectangle(const CRect& list, int rowHeight, int firstRow, int row)
{
    const int top = list.top + (row - firstRow) * rowHeight;
    return CRect(list.left, top, list.right, top + rowHeight);
}

int RowAt(const CRect& list, int rowHeight, int firstRow, int rowCount, int y)
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

int RowAfterKey(UINT key, int row, int rowCount, int fullRows)
{
    int wanted = 0;
    switch (key)
    {
    case VK_UP:
        wanted = row - 1;
        break;
    case VK_DOWN:
        wanted = row + 1;
        break;
    case VK_PRIOR:
        wanted = row - fullRows;
        break;
    case VK_NEXT:
        wanted = row + fullRows;
        break;
    case VK_HOME:
        break;
    case VK_END:
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
    return oldListWidth <= 0 ? newListWidth / 2 : ::MulDiv(width, newListWidth, oldListWidth);
}

CRect NameRectangle(const CRect& row, int gutter, int indent, int column)
{
    const int right = row.left + column;
    const int left = (std::min)(static_cast<int>(row.left) + gutter * (indent + 1), right);
    return CRect(left, row.top, right, row.bottom - 1);
}

CRect ValueRectangle(const CRect& row, int column)
{
    const int left = std::min<int>(row.left + column + 1, row.right);
    return CRect(left, row.top, row.right, row.bottom - 1);
}

CRect FoldBoxRectangle(const CRect& row, int gutter, int indent, int column)
{
    const CRect name = NameRectangle(row, gutter, indent, column);
    // Odd, so that the plus sign has a middle.
    const int side = (std::max)(SmallestBox, gutter / 2) | 1;
    const int left = name.left - gutter + (gutter - side) / 2;
    const int top = row.top + (row.Height() - 1 - side) / 2;
    return CRect(left, top, left + side, top + side);
}

CRect ButtonRectangle(const CRect& value)
{
    CRect button = value;
    button.left = std::max<int>(value.left, value.right - value.Height());
    return button;
}

CRect TextRectangle(const CRect& cell)
{
    CRect text = cell;
    text.left = std::min<int>(cell.left + TextMargin, cell.right);
    return text;
}

CRect EditorRectangle(const CRect& value, int textHeight)
{
    CRect editor = TextRectangle(value);
    editor.top += (std::max)(0, (value.Height() - textHeight) / 2);
    return editor;
}

} // namespace quorfx
