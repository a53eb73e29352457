// Rows are moved, sorted and folded.
#include "undo/GridChange.h"

#include <algorithm>

namespace QuorUiCtr
{

// ---- Moved rows

// What stands now where the row has left follows it, unless that belongs to another level.
GridRowMove::GridRowMove(GridUndo& changedBy, long from, long to, long number)
    : GridChange(changedBy), row(changedBy.FindSibling(nullptr, to > from ? to - number : to))
{
    parent = GridUndo::ParentOf(*row);
    next = changedBy.FindSibling(nullptr, to > from ? from : from + number);
    if (next != nullptr && GridUndo::ParentOf(*next) != parent)
        next = nullptr;
    for (TGGridRow* known : {row, next, static_cast<TGGridRow*>(parent)})
        if (known != nullptr)
            GridUndo::Mark(*known);
}

bool GridRowMove::Fits() const
{
    return row->GetIndex() >= 0 && Undo().IsInGrid(*row) && GridUndo::ParentOf(*row) == parent &&
           (next == nullptr || (next->GetIndex() >= 0 && GridUndo::ParentOf(*next) == parent));
}

bool GridRowMove::Revert()
{
    const GridUndo::Reverting guard(Undo());
    Undo().GetGrid()->MoveRow(row->GetIndex(), next != nullptr ? next->GetIndex() : Undo().EndOf(parent));
    return guard.IsTold();
}

long GridRowMove::Count(TGActionKind kind) const
{
    return kind == TGActionKind::MoveRows ? 1 : 0;
}

void GridRowMove::Forget(const std::unordered_set<const TGGridRow*>& gone)
{
    if (gone.count(row) > 0 || gone.count(next) > 0 || gone.count(parent) > 0)
        Break();
}

// ---- Sorted rows

std::uint64_t GridOrder::NumberOf(std::span<TGGridRow* const> rows) const
{
    constexpr std::uint64_t Spread = 0x9E3779B97F4A7C15U;
    std::uint64_t number = rows.size();
    for (const TGGridRow* row : rows)
    {
        number = (number ^ reinterpret_cast<std::uintptr_t>(row)) * Spread;
        number ^= number >> 31;
    }
    return number;
}

bool GridOrder::Add(TGGridTreeRow* parent, std::span<const long> order)
{
    if (!parents.insert(parent).second)
        return false;
    if (parent != nullptr)
        GridUndo::Mark(*parent);
    levels.push_back(
        {parent, std::vector<long>(order.begin(), order.end()), NumberOf(Undo().GetSiblings(parent))});
    return true;
}

bool GridOrder::Fits() const
{
    return std::all_of(levels.begin(), levels.end(), [this](const Level& level) {
        return (level.parent == nullptr || Undo().IsInGrid(*level.parent)) &&
               NumberOf(Undo().GetSiblings(level.parent)) == level.expected;
    });
}

bool GridOrder::Revert()
{
    std::vector<TGRowOrder> wanted;
    for (const Level& level : levels)
    {
        const std::vector<TGGridRow*> present = Undo().GetSiblings(level.parent);
        std::vector<TGGridRow*> before(present.size());
        for (std::size_t i = 0; i < present.size(); ++i)
            before[static_cast<std::size_t>(level.order[i])] = present[i];
        wanted.push_back({level.parent, std::move(before)});
    }
    const GridUndo::Reverting guard(Undo());
    return Undo().OrderRows(wanted) && guard.IsTold();
}

std::size_t GridOrder::GetBytes() const
{
    std::size_t bytes = sizeof(*this);
    for (const Level& level : levels)
        bytes += 2 * sizeof(Level) + level.order.capacity() * sizeof(long);
    return bytes;
}

void GridOrder::Forget(const std::unordered_set<const TGGridRow*>& gone)
{
    if (std::any_of(levels.begin(), levels.end(),
                    [&](const Level& level) { return gone.count(level.parent) > 0; }))
        Break();
}

// ---- Folded rows

GridFold::GridFold(GridUndo& changedBy, std::span<TGGridTreeRow* const> changed) : GridChange(changedBy)
{
    for (TGGridTreeRow* row : changed)
    {
        GridUndo::Mark(*row);
        rows.push_back({row, row->IsFold()});
    }
}

bool GridFold::Revert()
{
    while (!rows.empty())
    {
        const GridUndo::Reverting guard(Undo());
        TGGridTreeRow* const row = rows.back().row;
        // Who was told of the one before may have made the grid leave.
        if (Undo().GetGrid() == nullptr || !Undo().IsInGrid(*row))
            return false;
        // Hooks, and programs in a pause, may have folded it already: the view is no reason to end the
        // history.
        if (row->IsFold() == rows.back().folded)
            Undo().FoldRow(*row, !rows.back().folded);
        rows.pop_back();
        // Of a row that has lost its children since nothing is told.
        if (!guard.IsTold())
            Undo().RecordBack(std::make_unique<GridFold>(Undo(), std::span<TGGridTreeRow* const>(&row, 1)));
    }
    return true;
}

// A row that is folded and unfolded again is as it was.
bool GridFold::Merge(UndoChange& next)
{
    auto* const follower = dynamic_cast<GridFold*>(&next);
    if (follower == nullptr)
        return false;
    if (follower->rows.size() == 1 && !rows.empty() && rows.back().row == follower->rows[0].row &&
        rows.back().folded != follower->rows[0].folded)
        rows.pop_back();
    else
        rows.insert(rows.end(), follower->rows.begin(), follower->rows.end());
    return true;
}

std::size_t GridFold::GetBytes() const
{
    return sizeof(*this) + rows.capacity() * sizeof(Row);
}

void GridFold::Forget(const std::unordered_set<const TGGridRow*>& gone)
{
    if (std::any_of(rows.begin(), rows.end(), [&](const Row& known) { return gone.count(known.row) > 0; }))
        Break();
}

} // namespace QuorUiCtr
