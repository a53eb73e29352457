// What the cell cursor shows: the frame of the current cell, the ranges, and that they are in view.
#include "grid/extras/TGCellCursor.h"

#include "grid/TGGrid.h"

#include <algorithm>

namespace QuorUiCtr
{

bool TGCellCursor::HasFocus() const
{
    const CWnd* const focus = CWnd::GetFocus();
    return focus != nullptr && GetGrid()->IsMyFocus(focus);
}

// The ranges are inverted together, so that cells of two ranges are inverted once, and without the current
// cell, whose frame stands on its lines.
void TGCellCursor::OnDrawOverlay(CDC& context, const CRect& area)
{
    if (!EnsureCell())
        return;
    const CRect current = GetCellRect(GetRow(), GetCol());
    const bool gridSelects = GetGrid()->IsRowSelected() || GetGrid()->IsColSelected();
    CRgn all;
    all.CreateRectRgn(0, 0, 0, 0);
    for (const Range& range : ranges)
    {
        const TGCellRange cells = RangeOf(range);
        CRect block;
        if (gridSelects ||
            !block.IntersectRect(GetBlockRect(cells.top, cells.left, cells.bottom, cells.right), area))
            continue;
        CRgn part;
        part.CreateRectRgnIndirect(&block);
        all.CombineRgn(&all, &part, RGN_OR);
    }
    CRgn own;
    own.CreateRectRgnIndirect(&current);
    all.CombineRgn(&all, &own, RGN_DIFF);
    context.InvertRgn(&all);

    CRect frame = current;
    frame.InflateRect(0, 0, 1, 1);
    CBrush brush(::GetSysColor(HasFocus() ? COLOR_HIGHLIGHT : COLOR_BTNSHADOW));
    context.FrameRect(&frame, &brush);
    frame.DeflateRect(1, 1);
    context.FrameRect(&frame, &brush);
}

void TGCellCursor::InvalidateRanges() const
{
    for (const Range& range : ranges)
    {
        const TGCellRange cells = RangeOf(range);
        InvalidateLogical(GetBlockRect(cells.top, cells.left, cells.bottom, cells.right));
    }
}

void TGCellCursor::ShowCursor()
{
    if (GetGrid()->GetSafeHwnd() != nullptr)
        ShowLogical(GetCellRect(GetRow(), GetCol()));
}

} // namespace QuorUiCtr
