// TGCellRange: a rectangle of cells.
#pragma once

namespace QuorUiCtr
{

// Cells from one corner to the other, both included. A row index that equals the row count names the new-row
// line.
struct TGCellRange
{
    // Zero-based index of the first row; -1: no cells.
    long top = -1;
    // Zero-based index of the first column.
    long left = -1;
    // Zero-based index of the last row, which belongs to the range.
    long bottom = -1;
    // Zero-based index of the last column, which belongs to the range.
    long right = -1;

    // Whether the cell lies in the range; any indices will do.
    bool Contains(long row, long col) const
    {
        return row >= top && row <= bottom && col >= left && col <= right;
    }
};

} // namespace QuorUiCtr
