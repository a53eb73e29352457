// Sorting by columns: the keys, the order that they give, and the one before.
#include "grid/extras/TGHeaderSort.h"

#include "grid/extras/HeaderSortOrder.h"
#include "grid/TGGrid.h"

#include <algorithm>
#include <utility>

namespace QuorUiCtr
{

TGHeaderSort::TGHeaderSort() = default;

TGHeaderSort::TGHeaderSort(TGGrid& newGrid)
{
    AttachTo(newGrid);
}

TGHeaderSort::~TGHeaderSort()
{
    Detach();
}

bool TGHeaderSort::OnBeforeSort(const std::vector<TGSortKey>&)
{
    return true;
}

void TGHeaderSort::OnSortChanged() {}

void TGHeaderSort::OnDetach(TGGrid& oldGrid)
{
    keys.clear();
    levels.clear();
    rules.clear();
    pressed = nullptr;
    if (oldGrid.GetSafeHwnd() != nullptr)
        oldGrid.Invalidate(0);
}

// ---- Options

void TGHeaderSort::SetComparison(long col, TGSortBy by)
{
    if (GetGrid() == nullptr || !GetGrid()->IsValidCol(col))
        return;
    ColRule& rule = rules[&GetGrid()->GetCol(col)];
    rule.by = by;
    rule.compare = nullptr;
}

void TGHeaderSort::SetComparison(long col, Comparison compare)
{
    SetComparison(col, TGSortBy::Ordinal);
    if (GetGrid() != nullptr && GetGrid()->IsValidCol(col))
        rules[&GetGrid()->GetCol(col)].compare = std::move(compare);
}

void TGHeaderSort::SetSortable(long col, bool on)
{
    if (GetGrid() != nullptr && GetGrid()->IsValidCol(col))
        rules[&GetGrid()->GetCol(col)].isSortable = on;
}

bool TGHeaderSort::IsSortable(long col) const
{
    if (GetGrid() == nullptr || !GetGrid()->IsValidCol(col))
        return false;
    const auto rule = rules.find(&GetGrid()->GetCol(col));
    return rule == rules.end() || rule->second.isSortable;
}

// ---- Sorting

std::vector<TGSortKey> TGHeaderSort::GetKeys() const
{
    std::vector<TGSortKey> found;
    found.reserve(keys.size());
    for (const Key& key : keys)
        found.push_back({key.col->GetIndex(), key.ascending});
    return found;
}

bool TGHeaderSort::Sort(const std::vector<TGSortKey>& wanted)
{
    if (GetGrid() == nullptr || arranging)
        return false;
    for (auto key = wanted.begin(); key != wanted.end(); ++key)
        if (!GetGrid()->IsValidCol(key->col) ||
            std::any_of(wanted.begin(), key, [key](const TGSortKey& other) { return other.col == key->col; }))
            return false;
    std::vector<Key> found;
    found.reserve(wanted.size());
    for (const TGSortKey& key : wanted)
        found.push_back({&GetGrid()->GetCol(key.col), key.ascending});

    // Hooks may delete this object, or change the columns.
    const std::weak_ptr<int> alive = life;
    if (!OnBeforeSort(wanted) || alive.expired() || GetGrid() == nullptr)
        return false;
    for (std::size_t i = 0; i < wanted.size(); ++i)
        if (!GetGrid()->IsValidCol(wanted[i].col) || &GetGrid()->GetCol(wanted[i].col) != found[i].col)
            return false;

    keys = std::move(found);
    arranging = true;
    try
    {
        GetGrid()->Arrange(true);
    }
    catch (...)
    {
        if (!alive.expired())
        {
            arranging = false;
            ForgetOrder();
        }
        throw;
    }
    if (alive.expired())
        return true;
    arranging = false;
    if (keys.empty())
        levels.clear();
    InvalidateHeader();
    OnSortChanged();
    return true;
}

// A function of the host may delete this object: nothing of it is touched after the comparing.
bool TGHeaderSort::OnSort(TGGridTreeRow* parent, std::span<TGGridRow*> rows, bool)
{
    if (!arranging)
        return false;
    const auto nulls =
        std::stable_partition(rows.begin(), rows.end(), [](const TGGridRow* row) { return row != nullptr; });
    const std::span<TGGridRow*> sorted(rows.begin(), nulls);
    const auto [entry, isNew] = levels.try_emplace(parent);
    Level& level = entry->second;
    if (isNew)
        level.rows.assign(sorted.begin(), sorted.end());
    else
        Follow(level, sorted);
    if (keys.empty())
        std::copy(level.rows.begin(), level.rows.end(), sorted.begin());
    else
        SortRows(keys, sorted);
    return true;
}

void TGHeaderSort::SortRows(const std::vector<Key>& sortKeys, std::span<TGGridRow*> rows) const
{
    std::vector<SortStep> steps;
    std::vector<TGGridCell*> cells(rows.size());
    for (const Key& key : sortKeys)
    {
        const long col = key.col->GetIndex();
        std::transform(rows.begin(), rows.end(), cells.begin(),
                       [col](TGGridRow* row) { return CellOf(*row, col); });
        const auto rule = rules.find(key.col);
        const bool hasRule = rule != rules.end();
        steps.push_back({SortColumn::Make(hasRule ? rule->second.by : TGSortBy::Ordinal,
                                          hasRule ? rule->second.compare : nullptr, cells),
                         key.ascending});
    }
    const std::vector<TGGridRow*> before(rows.begin(), rows.end());
    const std::vector<std::size_t> order = SortedOrder(steps, rows.size());
    std::transform(order.begin(), order.end(), rows.begin(), [&before](std::size_t i) { return before[i]; });
}

// ---- The original order

// Brings the order up to date with the rows that there are, which come in the order of the screen.
void TGHeaderSort::Follow(Level& level, std::span<TGGridRow* const> rows)
{
    if (!std::exchange(level.changed, false) && level.gone.empty() && level.rows.size() == rows.size())
        return;
    std::erase_if(level.rows, [&level](const TGGridRow* row) { return level.gone.contains(row); });
    level.gone.clear();
    const std::unordered_set<const TGGridRow*> known(level.rows.begin(), level.rows.end());
    // Newcomers wait for the row that they stand in front of; those in front of none come last.
    std::map<const TGGridRow*, std::vector<TGGridRow*>> newcomers;
    std::vector<TGGridRow*> waiting;
    std::unordered_set<const TGGridRow*> present;
    for (TGGridRow* row : rows)
        if (!known.contains(row))
            waiting.push_back(row);
        else
        {
            present.insert(row);
            if (!waiting.empty())
                newcomers.emplace(row, std::exchange(waiting, {}));
        }
    std::vector<TGGridRow*> followed;
    followed.reserve(rows.size());
    for (TGGridRow* row : level.rows)
    {
        if (!present.contains(row))
            continue;
        if (const auto before = newcomers.find(row); before != newcomers.end())
            followed.insert(followed.end(), before->second.begin(), before->second.end());
        followed.push_back(row);
    }
    followed.insert(followed.end(), waiting.begin(), waiting.end());
    level.rows = std::move(followed);
}

void TGHeaderSort::ForgetOrder()
{
    if (!keys.empty())
        InvalidateHeader();
    keys.clear();
    levels.clear();
}

// A row of this address that comes in later is another one.
void TGHeaderSort::NoteGone(TGGridTreeRow* parent, const TGGridRow* row)
{
    if (const auto level = levels.find(parent); level != levels.end())
        level->second.gone.insert(row);
}

// Forgets the orders of the children of a row and of those below it.
void TGHeaderSort::ForgetLevels(TGGridRow& row)
{
    if (!row.IsParentRow())
        return;
    std::erase_if(levels, [&row](const auto& level) {
        const TGGridTreeRow* above = level.first;
        while (above != nullptr && above != &row)
            above = above->Parent();
        return above != nullptr;
    });
}

// ---- Changes of the grid

void TGHeaderSort::OnRowsInserted(TGGridTreeRow* parent, long, std::span<TGGridRow* const>)
{
    if (const auto level = levels.find(parent); level != levels.end())
        level->second.changed = true;
}

void TGHeaderSort::OnRowsRemoved(TGRemovedRows& removed)
{
    if (levels.empty())
        return;
    for (TGGridRow* row : removed.GetRows())
        if (row != nullptr)
        {
            NoteGone(removed.GetParent(), row);
            ForgetLevels(*row);
        }
}

void TGHeaderSort::OnRowMoved(long from, long to, long number)
{
    TGGridRow* const row = FindRow(to > from ? to - number : to);
    if (row != nullptr)
        NoteGone(row->IsChildRow() ? static_cast<TGGridTreeRow*>(row)->Parent() : nullptr, row);
}

void TGHeaderSort::OnRowsSorted(TGGridTreeRow*, std::span<const long>)
{
    if (!arranging)
        ForgetOrder();
}

// What was sorted by this column alone is not sorted any more.
void TGHeaderSort::OnColRemoving(TGGridCol& col)
{
    rules.erase(&col);
    if (pressed == &col)
        pressed = nullptr;
    if (std::erase_if(keys, [&col](const Key& key) { return key.col == &col; }) == 0)
        return;
    if (keys.empty())
        levels.clear();
    InvalidateHeader();
}

} // namespace QuorUiCtr
