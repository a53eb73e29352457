// A row shows its children and hides them: folding, and what of a tree is shown.
//
// A step that runs hooks may delete the row itself: nothing of it is touched afterwards until its watch says
// that it still exists.
#include "grid/TGGridTreeRow.h"

#include "grid/model/GridExtensions.h"
#include "grid/model/GridStructure.h"
#include "grid/model/RowWatch.h"
#include "grid/TGTreeGrid.h"

#include <algorithm>
#include <typeinfo>
#include <vector>

namespace QuorUiCtr
{
namespace
{

// Grids of the library's own classes have no hook that sees rows go one after the other.
bool HidesUnseen(TGGrid& grid)
{
    const std::type_info& kind = typeid(grid);
    return !grid.IsEditing() && (kind == typeid(TGGrid) || kind == typeid(TGTreeGrid));
}

} // namespace

void TGGridTreeRow::Fold()
{
    const RowWatch self(GetGrid(), this);
    if (HasShownOffspring())
        HideOffspring();
    if (self.IsAlive())
        MarkFolded(true);
}

void TGGridTreeRow::UnFold()
{
    const RowWatch self(GetGrid(), this);
    if (IsVisible() && IsParentRow() && !IsChildVisible())
        ShowOffspring();
    if (self.IsAlive())
        MarkFolded(false);
}

// Extensions are told of rows that have children.
void TGGridTreeRow::MarkFolded(bool folded)
{
    const bool changes = IsFold() != folded;
    SetUnFoldFlag(!folded);
    TGGridTreeRow* const self = this;
    if (changes)
        TGGrid::Structure(GetGrid()).TellFolded({&self, 1});
}

void TGGridTreeRow::FoldAll()
{
    const RowWatch self(GetGrid(), this);
    Fold();
    if (!self.IsAlive())
        return;
    std::vector<TGGridTreeRow*> unfolded;
    if (GetGrid().extensions != nullptr)
        CollectMarked(true, unfolded);
    MarkAll(false);
    TGGrid::Structure(GetGrid()).TellFolded(unfolded);
}

// The flags are set first, so that the whole sub-tree is shown as one change; and back without memory for it.
void TGGridTreeRow::UnFoldAll()
{
    const RowWatch self(GetGrid(), this);
    if (IsVisible())
        GetGrid().EndEditCell();
    if (!self.IsAlive())
        return;
    std::vector<TGGridTreeRow*> folded;
    CollectMarked(false, folded);
    MarkAll(true);
    try
    {
        std::vector<TGGridRow*> all;
        std::vector<const TGGridRow*> visible;
        CollectOffspring(all);
        CollectVisible(visible);
        if (IsVisible() && all.size() != visible.size())
            ShowOffspring();
    }
    catch (...)
    {
        for (TGGridTreeRow* row : folded)
            row->SetUnFoldFlag(false);
        throw;
    }
    TGGrid::Structure(GetGrid()).TellFolded(folded);
}

void TGGridTreeRow::CollectMarked(bool unfolded, std::vector<TGGridTreeRow*>& marked)
{
    if (IsFold() != unfolded)
        marked.push_back(this);
    for (TGGridTreeRow* child : children)
        if (child != nullptr)
            child->CollectMarked(unfolded, marked);
}

void TGGridTreeRow::MarkAll(bool unfolded)
{
    SetUnFoldFlag(unfolded);
    for (TGGridTreeRow* child : children)
        if (child != nullptr)
            child->MarkAll(unfolded);
}

void TGGridTreeRow::HideOffspring()
{
    TGGrid& owner = GetGrid();
    const RowWatch self(owner, this);
    const TGGridUpdate update(owner);
    const CursorGuard cursor(owner.rows);
    owner.EndEditCell();
    const bool unseen = HidesUnseen(owner);
    if (self.IsAlive() && !unseen)
        HideOneByOne();
    if (!self.IsAlive())
        return;
    const bool hidden = TGGrid::Structure(owner).RemoveOffspring(*this);
    if (hidden && unseen)
    {
        owner.OnCurChanged();
        owner.TellSelected();
    }
    owner.RecalcLayout(1);
}

// Knows the rows in advance and looks only at those that hooks have put in their place. As many as there are
// at first: hooks may show others.
void TGGridTreeRow::HideOneByOne()
{
    TGGrid& owner = GetGrid();
    TGGrid::Structure structure(owner);
    const RowWatch self(owner, this);
    std::vector<const TGGridRow*> expected;
    CollectVisible(expected);
    for (const TGGridRow* next : expected)
    {
        const long place = GetIndex() + 1;
        if (owner.RowAtIndex(place) != next && !structure.IsOffspringAt(place, *this))
            return;
        structure.HideRow(place);
        if (!self.IsAlive())
            return;
    }
}

void TGGridTreeRow::ShowOffspring()
{
    TGGrid& owner = GetGrid();
    const RowWatch self(owner, this);
    const TGGridUpdate update(owner);
    const CursorGuard cursor(owner.rows);
    owner.EndEditCell();
    if (!self.IsAlive() || !IsVisible())
        return;
    TGGrid::Structure(owner).InsertOffspring(*this);
    owner.RecalcLayout(1);
}

// While a fold hides rows one by one, a hook finds rows that are shown below one that is hidden already.
bool TGGridTreeRow::HasShownOffspring() const
{
    return std::any_of(children.begin(), children.end(), [](const TGGridTreeRow* child) {
        return child != nullptr && (child->index != -1 || child->HasShownOffspring());
    });
}

void TGGridTreeRow::CollectVisible(std::vector<const TGGridRow*>& visible) const
{
    for (const TGGridTreeRow* child : children)
    {
        if (child == nullptr)
            continue;
        if (child->index != -1)
            visible.push_back(child);
        child->CollectVisible(visible);
    }
}

void TGGridTreeRow::IndexRange::Add(long index)
{
    first = number == 0 ? index : (std::min)(first, index);
    last = (std::max)(last, index);
    ++number;
}

void TGGridTreeRow::MarkHidden(IndexRange& hidden)
{
    for (TGGridTreeRow* child : children)
    {
        if (child == nullptr)
            continue;
        if (child->index != -1)
            hidden.Add(child->index);
        child->index = -1;
        child->MarkHidden(hidden);
    }
}

void TGGridTreeRow::CollectShown(std::vector<TGGridRow*>& shown)
{
    shown.push_back(this);
    if (!IsFold())
        CollectOffspring(shown);
}

void TGGridTreeRow::CollectOffspring(std::vector<TGGridRow*>& shown)
{
    for (TGGridTreeRow* child : children)
        if (child != nullptr)
            child->CollectShown(shown);
}

} // namespace QuorUiCtr
