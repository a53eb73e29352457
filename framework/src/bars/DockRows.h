// The arrangement of bars in the rows of a dock bar, as pure functions.
#pragma once

#include "afxwin.h"
#include <vector>

namespace quorfx
{

// A bar in a row. Along is the direction of the row, across the other one.
struct DockSlot
{
    CControlBar* bar = nullptr;
    int wanted = 0; // where the bar would like to begin
    CSize size;     // as it is now
    CRect place;    // where it is put
};

struct DockRow
{
    std::vector<DockSlot> slots;
};

// The place of a bar among the others.
struct DockPlace
{
    size_t row = 0;
    bool isAlone = true; // no other bar in its row
    int wanted = 0;
};

// Puts the bars of all rows one after the other, each where it wants to be if there is room, and the rows
// under (or, standing, beside) each other. Returns the size of the whole. No row ends behind length unless
// its bars need more.
CSize PlaceRows(std::vector<DockRow>& rows, bool horizontal, int length);

// The row of a position across, and whether the position is so near to an edge that a new row is meant: then
// the new row comes before the returned one.
struct RowHit
{
    size_t row;
    bool isNew;
};
RowHit HitRow(const std::vector<DockRow>& rows, bool horizontal, int across);

} // namespace quorfx
