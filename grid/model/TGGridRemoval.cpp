// Taking many rows out of the grid as one change.
#include "grid/model/GridStructure.h"
#include "rules/SelectedIndices.h"

#include <algorithm>
#include <unordered_set>

namespace QuorUiCtr
{
namespace
{

struct Run
{
    long first;
    long number;
};

bool IsHidden(const TGGridRow* row)
{
    return row != nullptr && row->GetIndex() == -1;
}

} // namespace

std::vector<TGGridRow*> TGGrid::Structure::AnnounceRemoval(std::span<const long> indices, long tellings)
{
    std::vector<TGGridRow*> leaving;
    for (const long i : indices)
        leaving.push_back(grid.RowAt(i));
    grid.EndEditCell();
    for (long i = 0; i < tellings; ++i)
        grid.OnCurChanged();
    // What a hook has opened may stand on one of the rows.
    grid.CancelEditCell();
    // A hook may have moved or deleted rows: what a pointer refers to is known by its place only.
    std::vector<TGGridRow*> present;
    for (std::size_t i = 0; i < indices.size(); ++i)
        if (leaving[i] != nullptr && grid.RowAt(indices[i]) == leaving[i])
            present.push_back(leaving[i]);
    return present;
}

void TGGrid::Structure::TakeOut(std::span<TGGridRow* const> taken)
{
    if (taken.empty())
        return;
    long lowest = grid.GetRowNum();
    for (const TGGridRow* row : taken)
        lowest = (std::min)(lowest, row->GetIndex());
    DetachFromParents(taken);
    TGGridTreeRow::IndexRange hidden;
    for (TGGridRow* row : taken)
    {
        row->SetIndex(-1);
        if (row->IsTreeRow())
            static_cast<TGGridTreeRow*>(row)->MarkHidden(hidden);
    }
    CloseGaps(lowest);
}

// Each child list is walked once, whatever the number of rows that leave it.
void TGGrid::Structure::DetachFromParents(std::span<TGGridRow* const> taken)
{
    std::unordered_set<const TGGridRow*> leaving;
    std::unordered_set<TGGridTreeRow*> parents;
    for (TGGridRow* row : taken)
        if (row->IsChildRow())
        {
            leaving.insert(row);
            parents.insert(static_cast<TGGridTreeRow*>(row)->Parent());
        }
    for (TGGridTreeRow* parent : parents)
    {
        std::vector<long> positions;
        long position = 0;
        for (const TGGridTreeRow* child : parent->children)
        {
            if (leaving.count(child) != 0)
                positions.push_back(position);
            ++position;
        }
        for (auto last = positions.rbegin(); last != positions.rend(); ++last)
            parent->children.Detach(*last);
    }
}

// The runs of hidden rows are taken out from the last to the first, which leaves the others where they are.
void TGGrid::Structure::CloseGaps(long first)
{
    // A hook may have selected rows again.
    std::vector<const TGGridRow*> selected;
    for (const long i : grid.rowSel)
        selected.push_back(grid.RowAt(i));
    std::vector<Run> runs;
    auto slot = grid.rows.IteratorAt(first);
    for (long i = first; slot != grid.rows.end(); ++i, ++slot)
    {
        if (!IsHidden(*slot))
            continue;
        if (!runs.empty() && runs.back().first + runs.back().number == i)
            ++runs.back().number;
        else
            runs.push_back({i, 1});
    }
    for (auto run = runs.rbegin(); run != runs.rend(); ++run)
        grid.rows.Release(run->first, run->number);
    NumberRows(first);
    grid.rowSel.Clear();
    for (const TGGridRow* row : selected)
        if (row != nullptr && row->GetIndex() != -1)
            SelectedIndices::Add(grid.rowSel, row->GetIndex());
}

} // namespace QuorUiCtr
