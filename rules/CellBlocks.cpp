// How ranges of cells go together, and what a table is pasted to.
#include "rules/CellBlocks.h"

#include <algorithm>
#include <cstddef>

namespace QuorUiCtr
{
namespace
{

// Joins runs that overlap or touch.
IndexRuns Merged(IndexRuns runs)
{
    std::sort(runs.begin(), runs.end());
    IndexRuns merged;
    for (const auto& run : runs)
        if (merged.empty() || run.first > merged.back().second + 1)
            merged.push_back(run);
        else
            merged.back().second = (std::max)(merged.back().second, run.second);
    return merged;
}

bool Overlap(const CellArea& one, const CellArea& other)
{
    return one.top <= other.bottom && other.top <= one.bottom && one.left <= other.right &&
           other.left <= one.right;
}

// The blocks are in the order of their tops.
bool AnyOverlap(const std::vector<CellArea>& blocks)
{
    for (auto block = blocks.begin(); block != blocks.end(); ++block)
        for (auto next = block + 1; next != blocks.end() && next->top <= block->bottom; ++next)
            if (Overlap(*block, *next))
                return true;
    return false;
}

bool IsMultiple(long whole, long part)
{
    return whole >= part && whole % part == 0;
}

} // namespace

std::vector<CellPart> JoinRanges(std::vector<CellArea> ranges)
{
    std::erase_if(ranges, [](const CellArea& range) { return range.IsEmpty(); });
    if (ranges.empty())
        return {};
    std::sort(ranges.begin(), ranges.end(), [](const CellArea& one, const CellArea& other) {
        return std::pair(one.top, one.left) < std::pair(other.top, other.left);
    });
    const auto allAlike = [&](auto alike) {
        return std::all_of(ranges.begin(), ranges.end(),
                           [&](const CellArea& range) { return alike(range, ranges.front()); });
    };
    IndexRuns rows;
    IndexRuns cols;
    for (const CellArea& range : ranges)
    {
        rows.emplace_back(range.top, range.bottom);
        cols.emplace_back(range.left, range.right);
    }
    const bool sameCols = allAlike([](const CellArea& one, const CellArea& other) {
        return one.left == other.left && one.right == other.right;
    });
    const bool sameRows = allAlike([](const CellArea& one, const CellArea& other) {
        return one.top == other.top && one.bottom == other.bottom;
    });
    if (sameCols || sameRows)
        return {{Merged(rows), Merged(cols)}};
    const bool sameSize = allAlike([](const CellArea& one, const CellArea& other) {
        return one.Height() == other.Height() && one.Width() == other.Width();
    });
    if (!sameSize || AnyOverlap(ranges))
        return {};
    std::vector<CellPart> parts;
    for (std::size_t i = 0; i < ranges.size(); ++i)
        parts.push_back({{rows[i]}, {cols[i]}});
    return parts;
}

long long CountOf(const IndexRuns& runs)
{
    long long count = 0;
    for (const auto& [first, last] : runs)
        count += static_cast<long long>(last) - first + 1;
    return count;
}

std::vector<CellArea> PasteBlocks(long height, long width, const std::vector<CellArea>& ranges)
{
    std::vector<CellArea> blocks;
    for (const CellArea& range : ranges)
    {
        const bool fillsRows = IsMultiple(range.Height(), height);
        const bool fillsCols = IsMultiple(range.Width(), width);
        if (ranges.size() > 1 && (!fillsRows || !fillsCols))
            return {};
        blocks.push_back({range.top, range.left, fillsRows ? range.bottom : range.top + height - 1,
                          fillsCols ? range.right : range.left + width - 1});
    }
    return blocks;
}

} // namespace QuorUiCtr
