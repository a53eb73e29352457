// SortColumn: what the cells of one column come down to when rows are sorted.
#pragma once

#include "grid/extras/TGHeaderSort.h"

#include <memory>
#include <span>
#include <vector>

namespace QuorUiCtr
{

// Read once from the cells, so that comparisons have little to do. Cells are named by their number.
class SortColumn
{
public:
    virtual ~SortColumn() = default;
    SortColumn(const SortColumn&) = delete;
    SortColumn& operator=(const SortColumn&) = delete;

    // Null cells count as empty. With a function it compares, whatever `by` says.
    static std::unique_ptr<SortColumn> Make(TGSortBy by, const TGHeaderSort::Comparison& compare,
                                            std::span<TGGridCell* const> cells);

    // Cells that stand behind the others in both directions.
    virtual bool IsLast(std::size_t) const { return false; }
    virtual int Compare(std::size_t first, std::size_t second) const = 0;
    // What is compared, when that is numbers; those that stand last are not numbers. Else empty.
    virtual std::span<const double> Numbers() const { return {}; }

protected:
    SortColumn() = default;
};

// A column with its direction.
struct SortStep
{
    std::unique_ptr<SortColumn> column;
    bool ascending = true;
};

// The stable order of `number` rows by columns, the main key first: which row comes first, which second.
std::vector<std::size_t> SortedOrder(std::span<const SortStep> steps, std::size_t number);

} // namespace QuorUiCtr
