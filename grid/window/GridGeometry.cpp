// The rules of the grid's geometry as pure functions of plain values.
#include "grid/window/GridGeometry.h"

#include <algorithm>

namespace QuorUiCtr
{

namespace
{

long Clamp(long long value, long minimum, long maximum)
{
    return static_cast<long>(std::max<long long>(minimum, std::min<long long>(value, maximum)));
}

// The unclamped target of the codes that both bars treat alike.
long long PlainScrollTarget(UINT code, const ScrollRequest& request)
{
    const long long position = request.position;
    switch (code)
    {
    case SB_LINEUP:
        return position - request.line;
    case SB_LINEDOWN:
        return position + request.line;
    case SB_PAGEUP:
        return position - request.page;
    case SB_PAGEDOWN:
        return position + request.page;
    case SB_THUMBTRACK:
        return request.track;
    case SB_TOP:
        return request.minimum;
    case SB_BOTTOM:
        return request.maximum;
    default:
        return position;
    }
}

} // namespace

long CaptionLineCount(const CString& caption)
{
    const int length = caption.GetLength();
    long lines = 1;
    int position = caption.Find(L'\n');
    while (position > 0 && position < length)
    {
        ++lines;
        ++position;
        // The index counts from the beginning of the caption but is applied to the remainder: a further break
        // must lie that far into the remainder to be counted.
        const CString remainder = caption.Mid(position);
        position = position < remainder.GetLength() ? remainder.Find(L'\n', position) : -1;
    }
    return lines;
}

ScrollBarPlan PlanScrollBars(CSize content, CSize area, int barWidth, int barHeight)
{
    ScrollBarPlan plan{content.cx > area.cx, content.cy > area.cy, area};
    if (plan.vertical)
    {
        plan.area.cx -= barWidth;
        plan.horizontal = plan.horizontal || content.cx > plan.area.cx;
        if (plan.horizontal)
            plan.area.cy -= barHeight;
    }
    else if (plan.horizontal)
    {
        plan.area.cy -= barHeight;
        plan.vertical = content.cy > plan.area.cy;
        if (plan.vertical)
            plan.area.cx -= barWidth;
    }
    return plan;
}

long ClampScroll(long position, long distance, long maximum)
{
    const long long target = static_cast<long long>(position) + distance;
    if (target < 0)
        return -position;
    return target > maximum ? maximum - position : distance;
}

long LeastScroll(long first, long last, long viewFirst, long viewLast, long position)
{
    const bool larger = static_cast<long long>(last) - first > static_cast<long long>(viewLast) - viewFirst;
    if (first < viewFirst || larger)
        return first - position;
    if (last > viewLast || first > viewLast)
        return last - viewLast + 1;
    return 0;
}

long VerticalScrollTarget(UINT code, const ScrollRequest& request)
{
    return Clamp(PlainScrollTarget(code, request), request.minimum, request.maximum);
}

long HorizontalScrollTarget(UINT code, const ScrollRequest& request)
{
    if (code == SB_TOP)
        return (std::min)(request.minimum, request.maximum);
    return Clamp(PlainScrollTarget(code, request), request.minimum, request.maximum);
}

long WheelPosition(long position, long rowHeight, int delta)
{
    return position - rowHeight * delta / WHEEL_DELTA;
}

CRect CellOutlineRect(const CRect& cell)
{
    return CRect(cell.left, cell.top, cell.right + 1, cell.bottom + 1);
}

CRect CellInsideRect(const CRect& cell)
{
    return CRect(cell.left + 1, cell.top + 1, cell.right, cell.bottom);
}

CRect CellTextRect(const CRect& cell, long rowSpace)
{
    const CRect inside = CellInsideRect(cell);
    return CRect(inside.left + 2, inside.top + rowSpace, inside.right, inside.bottom);
}

CRect TreeQuadRect(long firstColumnLeft, long row, long depth, long rowHeight)
{
    const long size = rowHeight - 3;
    const long left = firstColumnLeft + 2 + depth * size;
    return CRect(left, row * rowHeight + 2, left + size, (row + 1) * rowHeight - 1);
}

} // namespace QuorUiCtr
