// The rules of the grid's geometry.
#include "rules/GridGeometry.h"

#include <algorithm>
#include <cstddef>

namespace QuorUiCtr
{

namespace
{

// A notch of the mouse wheel.
constexpr int WheelNotch = 120;

// A minimum above the maximum counts.
int Clamp(long long value, int minimum, int maximum)
{
    return static_cast<int>(
        (std::max)(static_cast<long long>(minimum), (std::min)(value, static_cast<long long>(maximum))));
}

// The unclamped target of the codes that both bars treat alike.
long long PlainScrollTarget(ScrollCode code, const ScrollRequest& request)
{
    const long long position = request.position;
    switch (code)
    {
    case ScrollCode::LineBack:
        return position - request.line;
    case ScrollCode::LineForward:
        return position + request.line;
    case ScrollCode::PageBack:
        return position - request.page;
    case ScrollCode::PageForward:
        return position + request.page;
    case ScrollCode::Track:
        return request.track;
    case ScrollCode::First:
        return request.minimum;
    case ScrollCode::Last:
        return request.maximum;
    default:
        return position;
    }
}

} // namespace

int CaptionLineCount(std::wstring_view caption)
{
    int lines = 1;
    std::size_t at = caption.find(L'\n');
    while (at != std::wstring_view::npos && at != 0 && at < caption.length())
    {
        ++lines;
        ++at;
        // The index counts from the beginning of the caption but is applied to the remainder: a further break
        // must lie that far into the remainder to be counted.
        at = caption.substr(at).find(L'\n', at);
    }
    return lines;
}

ScrollBarPlan PlanScrollBars(Extent content, Extent area, int barWidth, int barHeight)
{
    ScrollBarPlan plan{content.width > area.width, content.height > area.height, area};
    if (plan.vertical)
    {
        plan.area.width -= barWidth;
        plan.horizontal = plan.horizontal || content.width > plan.area.width;
        if (plan.horizontal)
            plan.area.height -= barHeight;
    }
    else if (plan.horizontal)
    {
        plan.area.height -= barHeight;
        plan.vertical = content.height > plan.area.height;
        if (plan.vertical)
            plan.area.width -= barWidth;
    }
    return plan;
}

int ClampScroll(int position, int distance, int maximum)
{
    const long long target = static_cast<long long>(position) + distance;
    if (target < 0)
        return -position;
    return target > maximum ? maximum - position : distance;
}

int LeastScroll(int first, int last, int viewFirst, int viewLast, int position)
{
    const bool larger = static_cast<long long>(last) - first > static_cast<long long>(viewLast) - viewFirst;
    if (first < viewFirst || larger)
        return first - position;
    if (last > viewLast || first > viewLast)
        return last - viewLast + 1;
    return 0;
}

int VerticalScrollTarget(ScrollCode code, const ScrollRequest& request)
{
    return Clamp(PlainScrollTarget(code, request), request.minimum, request.maximum);
}

int HorizontalScrollTarget(ScrollCode code, const ScrollRequest& request)
{
    if (code == ScrollCode::First)
        return (std::min)(request.minimum, request.maximum);
    return Clamp(PlainScrollTarget(code, request), request.minimum, request.maximum);
}

int WheelPosition(int position, int rowHeight, int delta)
{
    return position - rowHeight * delta / WheelNotch;
}

Box CellOutlineRect(const Box& cell)
{
    return Box(cell.left, cell.top, cell.right + 1, cell.bottom + 1);
}

Box CellInsideRect(const Box& cell)
{
    return Box(cell.left + 1, cell.top + 1, cell.right, cell.bottom);
}

Box CellTextRect(const Box& cell, int rowSpace)
{
    const Box inside = CellInsideRect(cell);
    return Box(inside.left + 2, inside.top + rowSpace, inside.right, inside.bottom);
}

int RowEdge(int row, int rowHeight)
{
    const long long edge = static_cast<long long>(row) * rowHeight;
    return static_cast<int>((std::min)(edge, static_cast<long long>(MaxContentHeight)));
}

Box FoldBoxRect(int firstColumnLeft, int row, int depth, int rowHeight)
{
    const int size = rowHeight - 3;
    const int left = firstColumnLeft + 2 + depth * size;
    return Box(left, RowEdge(row, rowHeight) + 2, left + size, RowEdge(row + 1, rowHeight) - 1);
}

} // namespace QuorUiCtr
