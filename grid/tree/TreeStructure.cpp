// What changes a tree of rows: children come and go, fold and unfold, are copied and sorted.
//
// A step that runs hooks may delete the row itself: nothing of it is touched afterwards until its watch says
// that it still exists. The steps that move rows in and out of the grid's row list run no hooks.
#include "grid/TGGridTreeRow.h"

#include "grid/model/GridStructure.h"
#include "grid/model/LateNumbers.h"
#include "grid/model/RowWatch.h"

#include <algorithm>
#include <utility>

namespace QuorUiCtr
{

// ---- OwnedRows
// ---------------------------------------------------------------------------------------------

TGGridTreeRow& TGGridTreeRow::operator=(TGGridTreeRow& source)
{
    OwnedRows copies = CopyChildren(source);
    const RowWatch self(GetGrid(), this);
    AssignRow(source);
    if (self.IsAlive())
        InsertChildren(GetChildNum(), copies);
    return *this;
}

// The hooks may delete either row; the host data is in safety meanwhile, and goes back when memory is short.
TGGridTreeRow& TGGridTreeRow::operator<<(TGGridTreeRow& source)
{
    OwnedRows copies = CopyChildren(source);
    std::unique_ptr<TGRowData> data(&source != this ? source.ReleaseExtendData() : nullptr);
    MoveData(source, copies, false);
    const RowWatch self(GetGrid(), this);
    const RowWatch origin(GetGrid(), &source);
    try
    {
        AssignRow(source);
        if (self.IsAlive())
            InsertChildren(GetChildNum(), copies);
    }
    catch (...)
    {
        if (origin.IsAlive())
        {
            MoveData(source, copies, true);
            if (&source != this)
                source.extendData = data.release();
        }
        throw;
    }
    if (self.IsAlive() && &source != this)
        SetExtendData(data.release());
    return *this;
}

TGGridTreeRow::OwnedRows TGGridTreeRow::CopyChildren(const TGGridTreeRow& source)
{
    OwnedRows copies;
    for (TGGridTreeRow* original : source.children)
    {
        if (original == nullptr)
            continue;
        copies.push_back(std::make_unique<TGGridTreeRow>(GetGrid()));
        *copies.back() = *original;
    }
    return copies;
}

void TGGridTreeRow::MoveData(const TGGridTreeRow& source, const OwnedRows& copies, bool back)
{
    auto copy = copies.begin();
    for (TGGridTreeRow* original : source.children)
    {
        if (original == nullptr)
            continue;
        // Copies that have been taken over already are not here any more.
        if (copy == copies.end() || *copy == nullptr)
            return;
        back ? MoveData(**copy, *original) : MoveData(*original, **copy);
        ++copy;
    }
}

// Of two rows with the same offspring.
void TGGridTreeRow::MoveData(TGGridTreeRow& from, TGGridTreeRow& to)
{
    to.SetExtendData(from.ReleaseExtendData());
    auto child = to.children.begin();
    for (TGGridTreeRow* original : from.children)
    {
        while (child != to.children.end() && *child == nullptr)
            ++child;
        if (original == nullptr || child == to.children.end())
            continue;
        MoveData(*original, **child);
        ++child;
    }
}

// The style word carries the unfold flag, which must go on telling what the grid shows.
void TGGridTreeRow::AssignRow(TGGridTreeRow& source)
{
    const bool wasFold = IsFold();
    TGGridRow::operator=(source);
    if (IsFold() == wasFold || !IsVisible())
        return;
    if (IsFold())
    {
        Fold();
        return;
    }
    // Set when the children are shown, which there may be no memory for.
    SetUnFoldFlag(false);
    UnFold();
}

// ---- Children ---------------------------------------------------------------------------------------------

void TGGridTreeRow::InsertChild(long position, TGGridTreeRow* child)
{
    ASSERT(child == nullptr || (child != this && !IsBelow(child)));
    // A tree that contains itself has no end, and would be deleted by itself.
    if (child != nullptr && (child == this || IsBelow(child)))
        return;
    OwnedRows added;
    std::unique_ptr<TGGridTreeRow> owned(child != nullptr ? child : new TGGridTreeRow(GetGrid()));
    added.push_back(std::move(owned));
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
    std::vector<TGGridTreeRow*> rows;
    for (const std::unique_ptr<TGGridTreeRow>& row : added)
        rows.push_back(row.get());
    AddChildren(position, rows);
    for (std::unique_ptr<TGGridTreeRow>& row : added)
        static_cast<void>(row.release());
}

void TGGridTreeRow::AddChildren(long position, std::span<TGGridTreeRow* const> added)
{
    TGGrid& owner = GetGrid();
    ASSERT(position >= 0 && position <= GetChildNum());
    const bool wasParent = IsParentRow();
    const bool shows = IsVisible() && !IsFold();
    const long first = std::clamp(position, 0L, GetChildNum());
    const long rowIndex = shows ? PlaceBehind(first - 1) : -1;
    std::vector<TGGridRow*> shown;
    for (TGGridTreeRow* child : added)
    {
        TGGrid::Structure(owner).FitToCols(*child);
        child->SetIndex(-1);
        if (shows)
            child->CollectShown(shown);
    }
    children.SpliceInsert(first, added);
    try
    {
        TGGrid::Structure(owner).InsertRows(rowIndex, shown);
    }
    catch (...)
    {
        children.Release(first, static_cast<long>(added.size()));
        throw;
    }
    children.MoveTo(first + static_cast<long>(added.size()) - 1);
    for (TGGridTreeRow* child : added)
        child->parent = this;
    if (shows)
        owner.RecalcLayout(1);
    else if (IsVisible() && !wasParent)
        Refresh();
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
    const TGGrid::LateNumbers late(owner);
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

// ---- Order ------------------------------------------------------------------------------------------------

void TGGridTreeRow::ArrangeChild(bool ascending)
{
    children.Sort(ascending);
    for (TGGridTreeRow* child : children)
        if (child != nullptr)
            child->ArrangeChild(ascending);
}

} // namespace QuorUiCtr
