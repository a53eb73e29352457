// CellBlocks: which cells are copied of several ranges, and which are written by what is pasted.
#pragma once

#include <utility>
#include <vector>

namespace QuorUiCtr
{

// Cells from one corner to the other, both included; without any when it ends before it begins.
struct CellArea
{
    long top = 0;
    long left = 0;
    long bottom = -1;
    long right = -1;

    long Height() const { return bottom - top + 1; }
    long Width() const { return right - left + 1; }
    bool IsEmpty() const { return Height() <= 0 || Width() <= 0; }
    bool operator==(const CellArea&) const = default;
};

// A number of indices in ascending order, as runs from the first to the last.
using IndexRuns = std::vector<std::pair<long, long>>;

// The cells in all of these rows and columns.
struct CellPart
{
    IndexRuns rows;
    IndexRuns cols;
    bool operator==(const CellPart&) const = default;
};

// The parts, all of the same width, that stand below each other in a copy of the ranges: those of the same
// columns are joined by their rows, those of the same rows by their columns, and others stay as they are when
// they are of the same size and no two of them overlap. Empty for ranges that do not go together, and when
// none has cells.
std::vector<CellPart> JoinRanges(std::vector<CellArea> ranges);

// The number of indices in runs, which may be those of more cells than there is memory for.
long long CountOf(const IndexRuns& runs);

// The blocks that a table of the given size, at least one by one, is written to: in each direction in which
// the one range is a multiple of the table it is filled, else the table comes once, from the corner on.
// Several ranges must be multiples in both directions. Empty when they are not.
std::vector<CellArea> PasteBlocks(long height, long width, const std::vector<CellArea>& ranges);

} // namespace QuorUiCtr
