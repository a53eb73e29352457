// The children of a row come and go, and are sorted.
//
// A step that runs hooks may delete the row itself: nothing of it is touched afterwards until its watch says
// that it still exists. The steps that move rows in and out of the grid's row list run no hooks.
#include "grid/TGGridTreeRow.h"

#include "grid/model/GridExtensions.h"
#include "grid/model/GridStructure.h"
#include "grid/model/RowWatch.h"

#include <algorithm>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace QuorUiCtr
{

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
    position = std::clamp(position, 0L, GetChildNum());
    const bool hasNewBox = AddChildren(position, rows);
    for (std::unique_ptr<TGGridTreeRow>& row : added)
        static_cast<void>(row.release());
    TGGrid::Structure(owner).TellChildren(*this, position, rows);
    if (hasNewBox && self.IsAlive())
        Refresh();
}

bool TGGridTreeRow::AddChildren(long position, std::span<TGGridTreeRow* const> added)
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
    return !shows && IsVisible() && !wasParent;
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

    // The hooks may have given it another place, and another parent.
    if (position >= GetChildNum() || *children.IteratorAt(position) != child)
        position = children.Find(child);
    if (position < 0)
        return;
    children.MoveTo(position);
    if (child != nullptr)
        TGGrid::Structure(owner).HideTree(*child);
    if (owner.extensions != nullptr && child != nullptr && owner.extensions->IsInGrid(*this))
    {
        const long place = children.GetCur();
        TGGrid::Structure(owner).DropRow(this, place, children.Detach(place));
    }
    else
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
    // What the hook has opened may stand on the row.
    owner.CancelEditCell();
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
    TGGrid::Structure(GetGrid()).DropChildren(*this);
}

void TGGridTreeRow::ArrangeChild(bool ascending)
{
    TGGrid::Structure(GetGrid()).SortList(children, ascending);
    for (TGGridTreeRow* child : children)
        if (child != nullptr)
            child->ArrangeChild(ascending);
}

} // namespace QuorUiCtr
