// A row shows its children and hides them: folding, and what of a tree is shown.
//
// A step that runs hooks may delete the row itself: nothing of it is touched afterwards until its watch says
// that it still exists.
#include "grid/TGGridTreeRow.h"

#include "grid/model/GridStructure.h"
#include "grid/model/RowWatch.h"

#include <algorithm>
#include <vector>

namespace QuorUiCtr
{

void TGGridTreeRow::Fold()
{
    const RowWatch self(GetGrid(), this);
    if (HasShownOffspring())
        HideOffspring();
    if (self.IsAlive())
        SetUnFoldFlag(false);
}

void TGGridTreeRow::UnFold()
{
    const RowWatch self(GetGrid(), this);
    if (IsVisible() && IsParentRow() && !IsChildVisible())
        ShowOffspring();
    if (self.IsAlive())
        SetUnFoldFlag(true);
}

void TGGridTreeRow::FoldAll()
{
    const RowWatch self(GetGrid(), this);
    Fold();
    if (self.IsAlive())
        MarkAll(false);
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
    CollectFolded(folded);
    MarkAll(true);
    try
    {
        std::vector<TGGridRow*> all;
        CollectShown(all);
        if (IsVisible() && static_cast<long>(all.size()) - 1 != CountShownOffspring())
            ShowOffspring();
    }
    catch (...)
    {
        for (TGGridTreeRow* row : folded)
            row->SetUnFoldFlag(false);
        throw;
    }
}

void TGGridTreeRow::CollectFolded(std::vector<TGGridTreeRow*>& folded)
{
    if (IsFold())
        folded.push_back(this);
    for (TGGridTreeRow* child : children)
        if (child != nullptr)
            child->CollectFolded(folded);
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
    TGGrid::Structure structure(owner);
    owner.EndEditCell();
    // As many as there are at first: hooks may show others.
    long shown = self.IsAlive() ? CountShownOffspring() : 0;
    for (; shown > 0 && self.IsAlive() && structure.IsOffspringAt(GetIndex() + 1, *this); --shown)
        structure.HideRow(GetIndex() + 1);
    if (!self.IsAlive())
        return;
    structure.RemoveOffspring(*this);
    owner.RecalcLayout(1);
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

bool TGGridTreeRow::HasShownOffspring() const
{
    for (const TGGridTreeRow* child : children)
        if (child != nullptr && child->IsVisible())
            return true;
    return false;
}

long TGGridTreeRow::CountShownOffspring() const
{
    long number = 0;
    for (const TGGridTreeRow* child : children)
        if (child != nullptr)
            number += (child->IsVisible() ? 1 : 0) + child->CountShownOffspring();
    return number;
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
        if (child->IsVisible())
            hidden.Add(child->GetIndex());
        child->SetIndex(-1);
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
