// Rows come in, leave and hand their host data over.
#include "undo/GridChange.h"

#include <algorithm>
#include <iterator>

namespace QuorUiCtr
{

// ---- Rows have come in

GridRowsIn::GridRowsIn(GridUndo& changedBy, TGGridTreeRow* parentRow, long first,
                       std::span<TGGridRow* const> added)
    : GridChange(changedBy), parent(parentRow), position(first), rows(added.begin(), added.end())
{
    for (TGGridRow* row : rows)
        GridUndo::Mark(*row);
    if (parent != nullptr)
        GridUndo::Mark(*parent);
}

bool GridRowsIn::Fits() const
{
    return (parent == nullptr || Undo().IsInGrid(*parent)) && Undo().HasRows(parent, rows);
}

bool GridRowsIn::Revert()
{
    const GridUndo::Reverting guard(Undo());
    return Undo().TakeRows(parent, rows) && guard.IsTold();
}

std::size_t GridRowsIn::GetBytes() const
{
    return sizeof(*this) + rows.capacity() * sizeof(void*);
}

bool GridRowsIn::Merge(UndoChange& next)
{
    auto* const follower = dynamic_cast<GridRowsIn*>(&next);
    if (follower == nullptr || follower->parent != parent ||
        Undo().FindBefore(parent, follower->position) != rows.back())
        return false;
    rows.insert(rows.end(), follower->rows.begin(), follower->rows.end());
    return true;
}

long GridRowsIn::Count(TGActionKind kind) const
{
    const bool counts =
        kind == TGActionKind::InsertRows || kind == TGActionKind::PasteRows || kind == TGActionKind::MoveRows;
    return counts ? static_cast<long>(rows.size()) : 0;
}

void GridRowsIn::Forget(const std::unordered_set<const TGGridRow*>& gone)
{
    if (gone.count(parent) > 0 ||
        std::any_of(rows.begin(), rows.end(), [&](const TGGridRow* row) { return gone.count(row) > 0; }))
        Break();
}

// ---- Rows have left

GridRowsOut::GridRowsOut(GridUndo& changedBy, TGGridTreeRow* parentRow, long first)
    : GridChange(changedBy), parent(parentRow), position(first)
{
    if (parent == nullptr)
        return;
    GridUndo::Mark(*parent);
    parentFolded = parent->IsFold();
}

GridRowsOut::~GridRowsOut()
{
    for (TGGridRow* row : rows)
        if (notOwned.empty() || notOwned.count(row) == 0)
            Undo().GiveUp(std::unique_ptr<TGGridRow>(row));
}

void GridRowsOut::Add(TGGridRow& row, bool owned)
{
    rows.push_back(&row);
    GridUndo::Mark(row);
    if (!owned)
        notOwned.insert(&row);
}

void GridRowsOut::NoteNeighbours()
{
    before = Undo().FindBefore(parent, position);
    behind = Undo().FindSibling(parent, position);
    for (TGGridRow* row : {before, behind})
        if (row != nullptr)
            GridUndo::Mark(*row);
}

void GridRowsOut::TakeAll(TGRemovedRows& removed)
{
    const auto take = [&](std::size_t i) {
        TGGridRow* const row = removed.GetRows()[i];
        Add(*row, removed.Take(i).release() != nullptr);
    };
    const std::size_t number = removed.GetRows().size();
    if (order == Order::Backward)
        for (std::size_t i = number; i-- > 0;)
            take(i);
    else
        for (std::size_t i = 0; i < number; ++i)
            take(i);
    NoteNeighbours();
}

bool GridRowsOut::Add(TGRemovedRows& removed)
{
    if (!rows.empty())
    {
        const bool isBefore =
            removed.GetRows().back() == before && Undo().FindSibling(parent, removed.GetPosition()) == behind;
        if (removed.GetParent() != parent || (!isBefore && removed.GetRows().front() != behind))
            return false;
        const Order next = isBefore ? Order::Backward : Order::Forward;
        if (order == Order::Unknown && rows.size() > 1 && isBefore)
            std::reverse(rows.begin(), rows.end());
        else if (order != Order::Unknown && order != next)
            return false;
        order = next;
    }
    position = removed.GetPosition();
    TakeAll(removed);
    return true;
}

// Row indices are those of the moment, in which rows may have been half folded away.
long GridRowsOut::Place() const
{
    if (parent != nullptr)
        return position;
    return behind != nullptr ? behind->GetIndex() : Undo().GetGrid()->GetRowNum();
}

bool GridRowsOut::Fits() const
{
    return (parent == nullptr || Undo().IsInGrid(*parent)) && Place() >= 0 &&
           Undo().FindBefore(parent, Place()) == before && Undo().FindSibling(parent, Place()) == behind;
}

// Rows that are missing are with others; without one of them the change stays as it is.
bool GridRowsOut::Revert()
{
    GridUndo& undo = Undo();
    GridUndo::LentRows fetched;
    if (!notOwned.empty())
    {
        std::unordered_set<const TGGridRow*> wanted = notOwned;
        undo.Fetch(wanted, fetched);
        if (!wanted.empty())
        {
            for (auto& known : fetched)
                Keep(known.second);
            return false;
        }
    }
    std::vector<std::unique_ptr<TGGridRow>> back;
    back.reserve(rows.size());
    for (TGGridRow* row : rows)
        if (const auto found = fetched.find(row); found != fetched.end())
            back.push_back(std::move(found->second));
        else
            back.emplace_back(row);
    rows.clear();
    if (order == Order::Backward)
        std::reverse(back.begin(), back.end());
    const GridUndo::Reverting guard(undo);
    if (parent != nullptr && parent->IsFold() != parentFolded && !parent->IsParentRow())
        undo.FoldRow(*parent, parentFolded);
    undo.PutRows(parent, Place(), std::move(back));
    return guard.IsTold();
}

// The rows' texts are theirs.
std::size_t GridRowsOut::GetBytes() const
{
    const TGGrid* const grid = Undo().GetGrid();
    const std::size_t cells = grid != nullptr ? static_cast<std::size_t>(grid->GetColNum()) : 0;
    const std::size_t kept = rows.size() - notOwned.size();
    return sizeof(*this) + rows.capacity() * sizeof(void*) +
           kept * (sizeof(TGGridTreeRow) + cells * sizeof(TGGridCell));
}

long GridRowsOut::Count(TGActionKind kind) const
{
    const bool counts = kind == TGActionKind::DeleteRows || kind == TGActionKind::CutRows;
    return counts ? static_cast<long>(rows.size()) : 0;
}

// Rows of its own are not gone.
void GridRowsOut::Forget(const std::unordered_set<const TGGridRow*>& gone)
{
    const auto isGone = [&](const TGGridRow* row) { return gone.count(row) > 0; };
    if (isGone(parent) || isGone(before) || isGone(behind) ||
        std::any_of(notOwned.begin(), notOwned.end(), isGone))
        Break();
}

void GridRowsOut::Lend(std::unordered_set<const TGGridRow*>& wanted, GridUndo::LentRows& found)
{
    for (TGGridRow* row : rows)
        if (!wanted.empty() && notOwned.count(row) == 0 && wanted.erase(row) > 0)
        {
            notOwned.insert(row);
            found[row].reset(row);
        }
}

bool GridRowsOut::Keep(std::unique_ptr<TGGridRow>& row)
{
    if (notOwned.erase(row.get()) == 0)
        return false;
    static_cast<void>(row.release());
    return true;
}

// ---- Host data

GridDataMove::GridDataMove(GridUndo& changedBy, TGGridRow& movedFrom, TGGridRow& movedTo)
    : GridChange(changedBy), from(&movedFrom), to(&movedTo)
{
    GridUndo::Mark(*from);
    GridUndo::Mark(*to);
}

// The two have the same offspring, but for empty slots.
bool GridDataMove::Revert()
{
    std::vector<std::pair<TGGridRow*, TGGridRow*>> pairs = {{to, from}};
    while (!pairs.empty())
    {
        const auto [source, target] = pairs.back();
        pairs.pop_back();
        GridUndo::MoveHostData(*source, *target);
        if (!source->IsParentRow() || !target->IsParentRow())
            continue;
        std::vector<TGGridRow*> sources = Undo().GetSiblings(static_cast<TGGridTreeRow*>(source));
        std::vector<TGGridRow*> targets = Undo().GetSiblings(static_cast<TGGridTreeRow*>(target));
        std::erase(sources, nullptr);
        std::erase(targets, nullptr);
        for (std::size_t i = 0; i < (std::min)(sources.size(), targets.size()); ++i)
            pairs.emplace_back(sources[i], targets[i]);
    }
    auto back = std::make_unique<GridDataMove>(Undo(), *to, *from);
    back->kept = std::move(kept);
    Undo().RecordBack(std::move(back));
    return true;
}

GridDataMove::~GridDataMove()
{
    for (std::unique_ptr<TGGridRow>& row : kept)
        Undo().GiveUp(std::move(row));
}

void GridDataMove::Forget(const std::unordered_set<const TGGridRow*>& gone)
{
    if (gone.count(from) > 0 || gone.count(to) > 0)
        Break();
}

void GridDataMove::Lend(std::unordered_set<const TGGridRow*>& wanted, GridUndo::LentRows& found)
{
    for (std::unique_ptr<TGGridRow>& row : kept)
        if (wanted.erase(row.get()) > 0)
            found[row.get()] = std::move(row);
    std::erase(kept, nullptr);
}

bool GridDataMove::Keep(std::unique_ptr<TGGridRow>& row)
{
    if (row.get() != from && row.get() != to)
        return false;
    kept.push_back(std::move(row));
    return true;
}

} // namespace QuorUiCtr
