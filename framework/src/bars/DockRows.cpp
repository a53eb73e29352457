// The arrangement of bars in the rows of a dock bar.
#include "bars/DockRows.h"

namespace quorfx
{

namespace
{

int Along(CSize size, bool horizontal)
{
    return horizontal ? size.cx : size.cy;
}

int Across(CSize size, bool horizontal)
{
    return horizontal ? size.cy : size.cx;
}

CRect Rect(int along, int across, CSize size, bool horizontal)
{
    return CRect(horizontal ? CPoint(along, across) : CPoint(across, along), size);
}

// The length that the bars from one slot on need.
int LengthFrom(const DockRow& row, size_t first, bool horizontal)
{
    int length = 0;
    for (size_t index = first; index < row.slots.size(); ++index)
        length += Along(row.slots[index].size, horizontal);
    return length;
}

} // namespace

CSize PlaceRows(std::vector<DockRow>& rows, bool horizontal, int length)
{
    int across = 0;
    int longest = 0;
    for (DockRow& row : rows)
    {
        int along = 0;
        int thickness = 0;
        for (size_t index = 0; index < row.slots.size(); ++index)
        {
            DockSlot& slot = row.slots[index];
            // The bars behind must fit in as well.
            const int latest = length - LengthFrom(row, index, horizontal);
            along = (std::max)(along, (std::min)(slot.wanted, latest));
            slot.place = Rect(along, across, slot.size, horizontal);
            along += Along(slot.size, horizontal);
            thickness = (std::max)(thickness, Across(slot.size, horizontal));
        }
        longest = (std::max)(longest, along);
        across += thickness;
    }
    return horizontal ? CSize(longest, across) : CSize(across, longest);
}

RowHit HitRow(const std::vector<DockRow>& rows, bool horizontal, int across)
{
    for (size_t index = 0; index < rows.size(); ++index)
    {
        int begin = INT_MAX;
        int end = INT_MIN;
        for (const DockSlot& slot : rows[index].slots)
        {
            const CRect& place = slot.place;
            begin = (std::min)(begin, static_cast<int>(horizontal ? place.top : place.left));
            end = (std::max)(end, static_cast<int>(horizontal ? place.bottom : place.right));
        }
        if (across < begin)
            return {index, true};
        if (across < end)
            return {index, false};
    }
    return {rows.size(), true};
}

} // namespace quorfx
