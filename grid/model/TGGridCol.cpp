// A column's caption, colours and geometry.
#include "grid/TGGridCol.h"

#include "grid/model/GridLimits.h"
#include "grid/model/GridStructure.h"

namespace QuorUiCtr
{

TGGridCol::TGGridCol(const wchar_t* caption, TGGrid& owner)
    : name(caption), grid(&owner), serial(++owner.lastColSerial)
{
    brush.CreateSolidBrush(backColor);
}

TGGridCol::~TGGridCol() = default;

void TGGridCol::SetWidth(long pixels)
{
    ASSERT(pixels == WidthInRange(pixels));
    if (grid->ColAtIndex(index) == this)
        TGGrid::Structure(*grid).ResizeCol(*this, WidthInRange(pixels));
}

void TGGridCol::SetName(const wchar_t* newName)
{
    name = newName;
    grid->captionLines = 0;
    // The next change of the rows lays the header out as well.
    grid->repaintAwaited = false;
}

void TGGridCol::SetBackColor(unsigned long color)
{
    backColor = color;
    brush.DeleteObject();
    brush.CreateSolidBrush(backColor);
}

bool TGGridCol::IsReadOnly() const
{
    return HasFlag(ReadOnlyFlag) || grid->IsReadOnly();
}

void TGGridCol::Move(long distance)
{
    left += distance;
    right += distance;
}

long TGGridCol::GetBottom() const
{
    return grid->GetBottom();
}

void TGGridCol::GetRect(CRect& rect) const
{
    rect.SetRect(left, 0, right, GetBottom());
}

void TGGridCol::Select(bool)
{
    CRect band;
    GetRect(band);
    grid->InvertBand(band);
}

} // namespace QuorUiCtr
