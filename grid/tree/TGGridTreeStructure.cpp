// What changes a tree of rows: children come and go, fold and unfold, are copied and sorted.
//
// A step that runs hooks may delete the row itself: nothing of it is touched afterwards until its watch says
// that it still exists. The steps that move rows in and out of the grid's row list run no hooks.
#include "grid/TGGridTreeRow.h"

#include "grid/model/GridStructure.h"
#include "grid/model/RowWatch.h"

#include <algorithm>

namespace QuorUiCtr
{

// ---- OwnedRows
// ---------------------------------------------------------------------------------------------

TGGridTreeRow& TGGridTreeRow::operator=(TGGridTreeRow& source)
{
    OwnedRows copies = CopyChildren(source, false);
    const RowWatch self(GetGrid(), this);
    AssignRow(source);
    if (self.IsAlive())
        InsertChildren(GetChildNum(), copies);
    return *this;
}

TGGridTreeRow& TGGridTreeRow::operator<<(TGGridTreeRow& source)
{
    OwnedRows copies = CopyChildren(source, true);
    if (&source != this)
        SetExtendData(source.ReleaseExtendData());
    const RowWatch self(GetGrid(), this);
    AssignRow(source);
    if (self.IsAlive())
        InsertChildren(GetChildNum(), copies);
    return *this;
}

TGGridTreeRow::OwnedRows TGGridTreeRow::CopyChildren(const TGGridTreeRow& source, bool moveData)
{
    OwnedRows copies;
    for (TGGridTreeRow* original : source.children)
    {
        if (original == nullptr)
            continue;
        copies.push_back(std::make_unique<TGGridTreeRow>(GetGrid()));
        if (moveData)
            *copies.back() << *original;
        else
            *copies.back() = *original;
    }
    return copies;
}

// The style word carries the unfold flag, which must go on telling what the grid shows.
void TGGridTreeRow::AssignRow(TGGridTreeRow& source)
{
    const bool wasFold = IsFold();
    TGGridRow::operator=(source);
    if (IsFold() == wasFold || !IsVisible())
        return;
    if (IsFold())
        Fold();
    else
        UnFold();
}

// ---- Children ---------------------------------------------------------------------------------------------

void TGGridTreeRow::InsertChild(long position, TGGridTreeRow* child)
{
    OwnedRows added;
    added.emplace_back(child != nullptr ? child : new TGGridTreeRow(GetGrid()));
    InsertChildren(position, added);
}

void TGGridTreeRow::AppendChild(TGGridTreeRow* child)
{
    InsertChild(GetChildNum(), child);
}

void TGGridTreeRow::InsertChildren(long position, OwnedRows& added)
{
    TGGrid& owner = GetGrid();
    const RowWatch self(owner, this);
    if (IsVisible() && !IsFold())
        owner.EndEditCell();
    if (added.empty() || !self.IsAlive())
        return;

    ASSERT(position >= 0 && position <= GetChildNum());
    const bool wasParent = IsParentRow();
    const long first = std::clamp(position, 0L, GetChildNum());
    const long rowIndex = IsVisible() && !IsFold() ? PlaceBehind(first - 1) : -1;
    std::vector<TGGridRow*> shown;
    long next = first;
    for (std::unique_ptr<TGGridTreeRow>& row : added)
    {
        TGGridTreeRow* child = row.release();
        child->SetIndex(-1);
        child->parent = this;
        children.Insert(next++, child);
        child->CollectShown(shown);
    }
    if (!IsVisible())
        return;
    if (!IsFold())
    {
        TGGrid::Structure(owner).InsertRows(rowIndex, shown);
        owner.RecalcLayout(1);
    }
    else if (!wasParent)
    {
        Refresh();
    }
}

long TGGridTreeRow::PlaceBehind(long position)
{
    for (; position >= 0; --position)
    {
        TGGridTreeRow* child = *children.IteratorAt(position);
        if (child != nullptr && child->IsVisible())
            return child->IsChildVisible() ? child->PlaceBehind(child->GetChildNum() - 1)
                                           : child->GetIndex() + 1;
    }
    return GetIndex() + 1;
}

void TGGridTreeRow::DelChild(long position)
{
    ASSERT(position >= 0 && position < GetChildNum());
    const auto slot = children.IteratorAt(position);
    if (slot == children.end())
        return;
    TGGridTreeRow* child = *slot;
    TGGrid& owner = GetGrid();
    const RowWatch self(owner, this);
    const RowWatch doomed(owner, child);
    const TGGridUpdate update(owner);
    const bool shown = child != nullptr && child->IsVisible();
    if (shown && !child->PrepareToGo())
        return;
    if (!self.IsAlive() || doomed.IsAlive() != (child != nullptr))
        return;

    children.MoveTo(position);
    if (children.Cur() != child)
        children.MoveTo(children.Find(child));
    if (child != nullptr)
        TGGrid::Structure(owner).HideTree(*child);
    children.Del();
    if (shown)
        owner.RecalcLayout(1);
    else if (self.IsAlive() && IsVisible() && !IsParentRow())
        Refresh();
}

// Runs the hooks of hiding a shown row and its offspring; false when they have deleted the row.
bool TGGridTreeRow::PrepareToGo()
{
    TGGrid& owner = GetGrid();
    const RowWatch self(owner, this);
    owner.EndEditCell();
    if (self.IsAlive())
        Fold();
    if (self.IsAlive())
        owner.SelectRow(GetIndex(), false);
    return self.IsAlive();
}

void TGGridTreeRow::ClearChild()
{
    if (!IsParentRow())
        return;
    const RowWatch self(GetGrid(), this);
    Fold();
    if (!self.IsAlive())
        return;
    TGGrid::Structure(GetGrid()).RemoveOffspring(*this);
    children.Clear();
}

// ---- Folding ----------------------------------------------------------------------------------------------

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

// The flags are set first, so that the whole sub-tree is shown as one change.
void TGGridTreeRow::UnFoldAll()
{
    MarkAll(true);
    std::vector<TGGridRow*> all;
    CollectShown(all);
    if (IsVisible() && static_cast<long>(all.size()) - 1 != CountShownOffspring())
        ShowOffspring();
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
    for (long below = 1; self.IsAlive() && TGGrid::Structure(owner).IsOffspringAt(GetIndex() + below, *this);
         ++below)
        owner.SelectRow(GetIndex() + below, false);
    if (self.IsAlive() && TGGrid::Structure(owner).RemoveOffspring(*this))
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

// ---- Order ------------------------------------------------------------------------------------------------

void TGGridTreeRow::ArrangeChild(bool ascending)
{
    children.Sort(ascending);
    for (TGGridTreeRow* child : children)
        if (child != nullptr)
            child->ArrangeChild(ascending);
}

} // namespace QuorUiCtr
