// TGGrid's rows: insert, append, delete, move, and what tree rows need to come and go.
//
// Ending an edit and deselecting run hooks, which may change the structure or delete the object at hand:
// indices and pointers are looked up, or their watches asked, again afterwards.
#include "grid/model/GridStructure.h"

#include "grid/model/GridExtensions.h"
#include "grid/model/LateNumbers.h"
#include "grid/model/MakeOrNull.h"
#include "grid/model/RowWatch.h"
#include "grid/TGUserAction.h"
#include "rules/SelectedIndices.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <utility>
#include <vector>

namespace QuorUiCtr
{

// ---- Rows

TGGridRow* TGGrid::Structure::MakeRow()
{
    return grid.treeGrid ? new TGGridTreeRow(grid) : new TGGridRow(grid);
}

void TGGrid::Structure::FitToCols(TGGridRow& row)
{
    row.FitToCols();
    if (!row.IsTreeRow())
        return;
    for (TGGridTreeRow* child : static_cast<TGGridTreeRow&>(row).children)
        if (child != nullptr)
            FitToCols(*child);
}

void TGGrid::InsertRow(long i, TGGridRow* row)
{
    std::unique_ptr<TGGridRow> inserted(row);
    EndEditCell();
    ASSERT(i >= 0 && i <= GetRowNum());
    if (inserted == nullptr)
        inserted.reset(Structure(*this).MakeRow());
    else
        Structure(*this).FitToCols(*inserted);
    TGGridRow* const entered = inserted.get();
    i = std::clamp(i, 0L, GetRowNum());
    Structure(*this).InsertRows(i, {&entered, 1});
    inserted.release();
    RecalcRows();
    Structure(*this).TellInserted(i, {&entered, 1});
}

void TGGrid::AppendRow(TGGridRow* row)
{
    std::unique_ptr<TGGridRow> appended(row);
    EndEditCell();
    if (appended == nullptr)
        appended.reset(Structure(*this).MakeRow());
    else
        Structure(*this).FitToCols(*appended);
    const long place = rows.Append(appended.get());
    appended->SetIndex(place);
    TGGridRow* const entered = appended.release();
    RecalcRows();
    Structure(*this).TellInserted(place, {&entered, 1});
}

void TGGrid::DelRow(long i)
{
    EndEditCell();
    ASSERT(IsValidRow(i));
    if (!IsValidRow(i))
        return;
    TGGridRow* row = RowAtIndex(i);
    Structure::TreePlace place;
    if (row == nullptr)
    {
        SelectRow(i, false);
        if (!IsValidRow(i) || RowAtIndex(i) != nullptr)
            return;
    }
    else
    {
        if (!Structure(*this).PrepareToGo(*row))
            return;
        place = Structure(*this).DetachFromTree(*row);
        i = row->GetIndex();
    }
    Structure(*this).RemoveRow(i);
    Structure(*this).DropRow(place.parent, place.parent != nullptr ? place.position : i, row);
    RecalcRows();
}

void TGGrid::DelRowEx(long i)
{
    ASSERT(IsValidRow(i));
    TGGridRow* row = RowAtIndex(i);
    const RowWatch watch(*this, row);
    const TGGridUpdate update(*this);
    if (row != nullptr && row->IsTreeRow())
    {
        TGGridTreeRow& treeRow = static_cast<TGGridTreeRow&>(*row);
        if (treeRow.IsChildRow())
        {
            treeRow.GetParent().DelChild(treeRow.GetParent().GetChildIndex(&treeRow));
            return;
        }
        treeRow.Fold();
        if (!watch.IsAlive())
            return;
        i = treeRow.GetIndex();
    }
    DelRow(i);
}

void TGGrid::MoveRow(long from, long to)
{
    ASSERT(IsValidRow(from) && to >= 0 && to <= GetRowNum());
    if (!IsValidRow(from) || to < 0 || to > GetRowNum() || to == from || to == from + 1)
        return;
    const long number = extensions != nullptr ? Structure(*this).EndOfTree(from) - from : 1;
    if (!Structure(*this).PlaceMovingRow(from, to))
        return;
    Structure(*this).NumberRows((std::min)(from, to));
    Invalidate(1);
    if (extensions != nullptr)
        extensions->Tell(GridExtensions::RowMoved, from, to, number);
}

void TGGrid::SetRowNum(long n)
{
    const TGUserAction action(*this, n < GetRowNum() ? TGActionKind::DeleteRows : TGActionKind::InsertRows);
    const TGGridUpdate update(*this);
    while (GetRowNum() > (std::max)(n, 0L))
        DelRow(GetRowNum() - 1);
    if (GetRowNum() < n)
        EndEditCell();
    Structure(*this).AppendRows(n - GetRowNum());
}

void TGGrid::Structure::AppendRows(long number)
{
    if (number <= 0)
        return;
    std::vector<std::unique_ptr<TGGridRow>> made;
    std::vector<TGGridRow*> added;
    for (long i = 0; i < number; ++i)
    {
        std::unique_ptr<TGGridRow> row(MakeRow());
        added.push_back(row.get());
        made.push_back(std::move(row));
    }
    const long place = grid.GetRowNum();
    InsertRows(place, added);
    for (std::unique_ptr<TGGridRow>& row : made)
        static_cast<void>(row.release());
    grid.RecalcLayout(1);
    TellInserted(place, added);
}

void TGGrid::Clear()
{
    const TGGridUpdate update(*this);
    EndEditCell();
    ClearSel();
    Structure(*this).ReleaseChildRows();
    Structure(*this).DropAllRows();
    RecalcLayout(1);
}

void TGGrid::Structure::InsertRows(long at, std::span<TGGridRow* const> added)
{
    const long before = grid.GetRowNum();
    grid.rows.SpliceInsert(at, added);
    const long number = static_cast<long>(added.size());
    if (number == 1 && added[0] != nullptr && !grid.treeGrid)
        NumberInsertedRow(at, *added[0]);
    else
        NumberRows(at);
    SelectedIndices::Shift(grid.rowSel, grid.rowSel, at, number);
    if (number > 0 && grid.curRowIndex >= at && grid.curRowIndex < before)
        grid.SetCurRowIndex(grid.curRowIndex + number);
}

// Many rows inserted one by one would have the rows behind numbered as many times. Not in a tree, whose
// operations look at the indices that are stored.
void TGGrid::Structure::NumberInsertedRow(long at, TGGridRow& row)
{
    row.SetIndex(at);
    grid.numberedRows = (std::min)(grid.numberedRows, at);
    grid.rows.MoveTo(-1);
}

// A row that has no index in spite of its slot is just coming or going, and is numbered by who does that. The
// row cursor is in use.
void TGGrid::NumberLateRows()
{
    if (numberedRows == LONG_MAX)
        return;
    long i = std::exchange(numberedRows, LONG_MAX);
    for (auto slot = rows.IteratorAt(i); slot != rows.end(); ++slot, ++i)
        if (TGGridRow* row = *slot; row != nullptr && row->index != -1)
            row->index = i;
}

void TGGrid::Structure::NumberRows(long first)
{
    LateNumbers::Settle(grid);
    first = (std::min)(first, std::exchange(grid.numberedRows, LONG_MAX));
    for (auto slot = grid.rows.IteratorAt(first); slot != grid.rows.end(); ++slot, ++first)
        if (TGGridRow* row = *slot)
            row->index = first;
    grid.rows.MoveTo(-1);
}

// ---- Tree rows

// Leaves the cursor there, so that a walk over the rows takes one step for each.
bool TGGrid::Structure::IsOffspringAt(long i, const TGGridTreeRow& top)
{
    grid.rows.MoveTo(i);
    TGGridRow* row = grid.rows.IsOut() ? nullptr : grid.rows.Cur();
    return row != nullptr && row->IsTreeRow() && static_cast<TGGridTreeRow*>(row)->IsBelow(&top);
}

bool TGGrid::Structure::RemoveOffspring(TGGridTreeRow& top)
{
    grid.NumberLateRows();
    TGGridTreeRow::IndexRange hidden;
    top.MarkHidden(hidden);
    if (hidden.number == 0)
        return false;
    RemoveHiddenRows(hidden);
    return true;
}

// Hidden rows stood in one run, unless the host has moved rows about: then they are taken out one by one,
// from the last, because taking out numbers the rows behind.
void TGGrid::Structure::RemoveHiddenRows(const TGGridTreeRow::IndexRange& stored)
{
    const long first = LateNumbers::TrueIndex(grid, stored.first);
    const long last = LateNumbers::TrueIndex(grid, stored.last);
    if (last - first + 1 == stored.number)
    {
        RemoveRows(first, stored.number, stored.IsRun() ? stored.first : -1);
        return;
    }
    for (long i = last; i >= first; --i)
        if (const TGGridRow* row = grid.RowAtIndex(i); row != nullptr && row->GetIndex() == -1)
            RemoveRow(i);
}

void TGGrid::Structure::HideTree(TGGridTreeRow& top)
{
    RemoveOffspring(top);
    if (grid.RowAtIndex(top.GetIndex()) != &top)
        return;
    RemoveRow(top.GetIndex());
    top.SetIndex(-1);
}

void TGGrid::Structure::InsertOffspring(TGGridTreeRow& top)
{
    std::vector<TGGridRow*> selected;
    std::vector<TGGridRow*> shown;
    shown.reserve(static_cast<std::size_t>(top.GetChildNum()));
    top.CollectOffspring(shown);
    const bool partlyShown = top.HasShownOffspring();
    const TGGridRow* const current = grid.RowAtIndex(grid.curRowIndex);
    if (partlyShown)
    {
        for (const long i : grid.rowSel)
            selected.push_back(grid.RowAtIndex(i));
        grid.rows.Reserve(grid.GetRowNum() + static_cast<long>(shown.size()));
        RemoveOffspring(top);
    }
    InsertRows(top.GetIndex() + 1, shown);
    if (!partlyShown)
        return;
    if (current != nullptr)
        grid.SetCurRowIndex(current->GetIndex());
    // The rows stand already: without memory for it the selection is lost.
    grid.rowSel.Clear();
    MakeOrNull([&] {
        for (const TGGridRow* row : selected)
            if (row != nullptr && row->GetIndex() != -1)
                SelectedIndices::Add(grid.rowSel, row->GetIndex());
        return static_cast<void*>(nullptr);
    });
}

TGGrid::Structure::TreePlace TGGrid::Structure::DetachFromTree(TGGridRow& row)
{
    if (!row.IsTreeRow())
        return {};
    TGGridTreeRow& treeRow = static_cast<TGGridTreeRow&>(row);
    RemoveOffspring(treeRow);
    TGGridTreeRow* const parent = treeRow.Parent();
    if (parent == nullptr)
        return {};
    const long position = parent->GetChildIndex(&treeRow);
    parent->children.Detach(position);
    return {parent, position};
}

// ---- What extensions are told

// A row may name a parent below which it does not stand yet. Who walks over children has the cursor on this
// one, who adds them has made the last one.
bool TGGrid::Structure::StandsBelow(TGGridTreeRow& child, TGGridTreeRow& parent)
{
    PDList<TGGridTreeRow>& children = parent.children;
    if (children.IsEmpty())
        return false;
    return (!children.IsOut() && children.Cur() == &child) || child.IsLastChild() ||
           children.Find(&child) >= 0;
}

bool TGGrid::Structure::StandsInGrid(TGGridRow& row) const
{
    TGGridRow* top = &row;
    while (top->GetIndex() < 0 && top->IsTreeRow())
    {
        auto* const child = static_cast<TGGridTreeRow*>(top);
        TGGridTreeRow* const parent = child->Parent();
        if (parent == nullptr || !StandsBelow(*child, *parent))
            return false;
        top = parent;
    }
    return top->GetIndex() >= 0 && top != grid.newRow;
}

void TGGrid::Structure::TellInserted(long place, std::span<TGGridRow* const> added)
{
    if (grid.extensions != nullptr)
        grid.extensions->Tell(GridExtensions::RowsInserted, nullptr, place, added);
}

void TGGrid::Structure::TellChildren(TGGridTreeRow& parent, long position,
                                     std::span<TGGridTreeRow* const> added)
{
    if (grid.extensions == nullptr || added.empty() || !grid.extensions->IsInGrid(parent))
        return;
    const std::vector<TGGridRow*> children(added.begin(), added.end());
    grid.extensions->Tell(GridExtensions::RowsInserted, &parent, position,
                          std::span<TGGridRow* const>(children));
}

void TGGrid::Structure::TellFolded(std::span<TGGridTreeRow* const> changed)
{
    if (grid.extensions == nullptr || grid.extensions->IsUntold(changed))
        return;
    std::vector<TGGridTreeRow*> parents;
    for (TGGridTreeRow* row : changed)
        if (row->IsParentRow() && grid.extensions->IsInGrid(*row))
            parents.push_back(row);
    if (!parents.empty())
        grid.extensions->Tell(GridExtensions::RowsFolded, std::span<TGGridTreeRow* const>(parents));
}

void TGGrid::Structure::DropRow(TGGridTreeRow* parent, long position, TGGridRow* row)
{
    if (row == nullptr)
        return;
    if (grid.extensions == nullptr)
    {
        delete row;
        return;
    }
    row->SetIndex(-1);
    if (row->IsTreeRow())
        static_cast<TGGridTreeRow*>(row)->parent = nullptr;
    grid.extensions->TellRemoved(parent, position, {row}, false);
}

void TGGrid::Structure::DropChildren(TGGridTreeRow& parent)
{
    if (grid.extensions == nullptr || !grid.extensions->IsInGrid(parent))
    {
        parent.children.Clear();
        return;
    }
    std::vector<TGGridRow*> dropped;
    for (TGGridTreeRow* child : parent.children)
        if (child != nullptr)
        {
            child->parent = nullptr;
            dropped.push_back(child);
        }
    parent.children.Release(0, parent.GetChildNum());
    grid.extensions->TellRemoved(&parent, 0, std::move(dropped), false);
}

void TGGrid::Structure::DropAllRows()
{
    if (grid.extensions == nullptr)
    {
        grid.rows.Clear();
        return;
    }
    std::vector<TGGridRow*> dropped(grid.rows.begin(), grid.rows.end());
    std::erase(dropped, nullptr);
    grid.rows.Release(0, grid.GetRowNum());
    for (TGGridRow* row : dropped)
        row->SetIndex(-1);
    if (!dropped.empty())
        grid.extensions->TellRemoved(nullptr, 0, std::move(dropped), false);
}

void TGGrid::Structure::ReleaseChildRows()
{
    for (TGGridRow* row : grid.rows)
        if (row != nullptr && row->IsTreeRow() && !row->IsChildRow())
        {
            TGGridTreeRow::IndexRange hidden;
            static_cast<TGGridTreeRow*>(row)->MarkHidden(hidden);
        }
    for (TGGridRow*& row : grid.rows)
        if (row != nullptr && row->GetIndex() == -1)
            row = nullptr;
}

} // namespace QuorUiCtr
