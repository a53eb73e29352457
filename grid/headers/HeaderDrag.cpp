// The mark of a drag in a header, and scrolling while dragging.
#include "grid/headers/HeaderDrag.h"

#include "grid/window/GridPainting.h"

namespace QuorUiCtr
{
namespace
{

// The mark reaches across the cells; the grid clips it.
constexpr long MarkLength = 10000;
// How far the view moves in pixels at each step of a drag beyond its edge.
constexpr int ScrollStepLength = 5;

} // namespace

// Empty when no mark is shown.
CRect HeaderDrag::MarkRect() const
{
    if (place == -1)
        return CRect();
    return IsAlongRows() ? CRect(0, place, MarkLength, place + markThickness)
                         : CRect(place, 0, place + markThickness, MarkLength);
}

void HeaderDrag::ShowCursor() const
{
    ::SetCursor(::LoadCursor(nullptr, IsAlongRows() ? IDC_SIZENS : IDC_SIZEWE));
}

void HeaderDrag::MoveMark(long to)
{
    if (to == place)
        return;
    InvertMark();
    place = to;
    InvertMark();
}

void HeaderDrag::InvertMark()
{
    RestoreMark(MarkRect());
}

void HeaderDrag::RestoreMark()
{
    TGGrid::Painting(grid).ClearOutsideCells(MarkRect());
    InvertMark();
}

void HeaderDrag::RestoreMark(const CRect& drawn)
{
    CRect part;
    CDC* context = grid.GetDC();
    if (part.IntersectRect(MarkRect(), drawn) && context != nullptr)
        context->InvertRect(part);
}

bool HeaderDrag::ScrollAtEdge(CWnd& header, CPoint point, long margin)
{
    if (!(IsAlongRows() ? grid.vScrollShown : grid.hScrollShown))
        return false;
    CRect area;
    grid.GetClientRect(area);
    grid.MapWindowPoints(&header, area);
    const long at = IsAlongRows() ? point.y : point.x;
    const long low = (IsAlongRows() ? area.top : area.left) + margin;
    const long high = IsAlongRows() ? area.bottom : area.right;
    if (at < high && at > low)
        return false;
    const int step = at >= high ? ScrollStepLength : -ScrollStepLength;
    grid.MoveView(IsAlongRows() ? 0 : step, IsAlongRows() ? step : 0);
    grid.UpdateWindow();
    return true;
}

} // namespace QuorUiCtr
