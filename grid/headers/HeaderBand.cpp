// Places and boxes of the row and column header.
#include "grid/headers/HeaderBand.h"

#include "grid/headers/HeaderBox.h"

namespace QuorUiCtr
{

namespace
{

// Length in pixels of a header.
constexpr int HeaderExtent = 10000;

} // namespace

long HeaderBand::Thickness() const
{
    return IsAlongRows() ? grid.GetRowHeight() : grid.GetColHeaderHeight();
}

long HeaderBand::Offset() const
{
    if (IsAlongRows())
        return grid.IsColSel() ? grid.GetColHeaderHeight() : 0;
    return grid.IsRowSel() ? grid.GetRowHeight() : 0;
}

CRect HeaderBand::WindowRect() const
{
    return IsAlongRows() ? CRect(0, Offset(), Thickness(), HeaderExtent)
                         : CRect(Offset(), 0, HeaderExtent, Thickness());
}

long HeaderBand::LogicalPlace(CPoint point) const
{
    if (grid.GetDC() != nullptr)
    {
        (IsAlongRows() ? point.y : point.x) += Offset();
        point = grid.ClientToLogical(point);
    }
    return IsAlongRows() ? point.y : point.x;
}

HeaderPainter::HeaderPainter(CDC& headerContext, const HeaderBand& band)
    : context(headerContext),
      isAlongRows(band.IsAlongRows()),
      isFlat(band.grid.IsFlatButton()),
      thickness(band.Thickness())
{
    CPoint corner;
    band.grid.GetUpCorner(corner);
    context.SetViewportOrg(isAlongRows ? 0 : corner.x - band.Offset(),
                           isAlongRows ? corner.y - band.Offset() : 0);
}

CRect HeaderPainter::Box(long start, long end) const
{
    return isAlongRows ? CRect(0, start, thickness, end) : CRect(start, 0, end, thickness);
}

bool HeaderPainter::DrawFrame(const CRect& box) const
{
    if (!context.RectVisible(&box))
        return false;
    DrawHeaderBox(context, box, isFlat);
    return true;
}

} // namespace QuorUiCtr
