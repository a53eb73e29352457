// TGGrid::Painting: the steps of drawing rows, selected bands and what is beside the cells.
#pragma once

#include "grid/TGGrid.h"

namespace QuorUiCtr
{

// Works on the grid's prepared drawing context, in logical coordinates. Drawing rows runs hooks; the other
// steps run none.
class TGGrid::Painting
{
public:
    explicit Painting(TGGrid& servedGrid) : grid(servedGrid) {}

    // What the drawing context shows of the logical space.
    CRect VisiblePart();
    // Draws the rows in the view and the new-row line.
    void DrawVisibleRows();
    void InvertSelectedCols();
    void InvertSelectedRows();
    // Inverts again what has been drawn over the selection outside Refresh().
    void InvertSelectionIn(const CRect& drawn);
    // Fills the part of `area` that is neither a cell nor a grid line.
    void ClearOutsideCells(const CRect& area);
    // Whether cells cover the whole data area, so that nothing need be erased.
    bool CoversArea();

private:
    struct RowRange
    {
        long first;
        long last; // inclusive, and maybe behind the last row
    };
    RowRange VisibleRows();
    void DrawRows(long first, long last);

    TGGrid& grid;
};

} // namespace QuorUiCtr
