// Rows and columns come and go for extensions that take changes back: as a block, and without hooks.
#include "grid/model/GridExtensions.h"
#include "grid/model/GridStructure.h"
#include "grid/model/RowPlaces.h"
#include "grid/model/RowWatch.h"
#include "rules/SelectedIndices.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace QuorUiCtr
{

// ---- Rows

bool TGGrid::Structure::PutRows(TGGridTreeRow* parent, long position, std::span<TGGridRow* const> added)
{
    for (TGGridRow* row : added)
        FitToCols(*row);
    if (parent != nullptr)
    {
        std::vector<TGGridTreeRow*> children;
        for (TGGridRow* row : added)
            children.push_back(static_cast<TGGridTreeRow*>(row));
        return parent->AddChildren(position, children);
    }
    std::vector<TGGridRow*> shown;
    for (TGGridRow* row : added)
        if (row->IsTreeRow())
            static_cast<TGGridTreeRow*>(row)->CollectShown(shown);
        else
            shown.push_back(row);
    InsertRows(position, shown);
    grid.RecalcLayout(1);
    return false;
}

// Offspring first, so that those that stand side by side stand in one run.
std::vector<TGGridRow*> TGGrid::Structure::TakeRows(TGGridTreeRow* parent, long position, long number)
{
    std::vector<TGGridRow*> taken;
    grid.NumberLateRows();
    for (long i = position; i < position + number; ++i)
    {
        TGGridRow* const row = parent != nullptr ? *parent->children.IteratorAt(i) : grid.RowAtIndex(i);
        taken.push_back(row);
        if (row->IsTreeRow())
            RemoveOffspring(static_cast<TGGridTreeRow&>(*row));
    }
    const long first = taken.empty() ? -1 : taken.front()->GetIndex();
    if (parent != nullptr)
        parent->children.Release(position, number);
    if (first >= 0)
        RemoveRows(first, number, -1);
    for (TGGridRow* row : taken)
    {
        row->SetIndex(-1);
        if (row->IsTreeRow())
            static_cast<TGGridTreeRow*>(row)->parent = nullptr;
    }
    grid.RecalcLayout(1);
    return taken;
}

bool TGGrid::Structure::HasRows(TGGridTreeRow* parent, std::span<TGGridRow* const> wanted)
{
    if (wanted.empty())
        return false;
    if (parent != nullptr)
    {
        const long position = parent->children.Find(static_cast<TGGridTreeRow*>(wanted.front()));
        const auto end = parent->children.end();
        auto slot = position >= 0 ? parent->children.IteratorAt(position) : end;
        return std::all_of(wanted.begin(), wanted.end(), [&](const TGGridRow* row) {
            const bool isHere = slot != end && *slot == row;
            if (slot != end)
                ++slot;
            return isHere;
        });
    }
    long i = wanted.front()->GetIndex();
    for (TGGridRow* row : wanted)
    {
        if (i < 0 || grid.RowAtIndex(i) != row || row->IsChildRow())
            return false;
        i = row->IsTreeRow() ? EndOfTree(i) : i + 1;
    }
    return true;
}

void TGGridExtension::PutRows(TGGridTreeRow* parent, long position,
                              std::vector<std::unique_ptr<TGGridRow>> rows) const
{
    ASSERT(extendedGrid != nullptr);
    TGGrid& grid = *extendedGrid;
    std::vector<TGGridRow*> added;
    added.reserve(rows.size());
    for (const auto& row : rows)
        added.push_back(row.get());
    const RowWatch watch(grid, parent);
    const bool hasNewBox = TGGrid::Structure(grid).PutRows(parent, position, added);
    for (auto& row : rows)
        static_cast<void>(row.release());
    grid.extensions->Tell(GridExtensions::RowsInserted, parent, position, std::span<TGGridRow* const>(added));
    if (hasNewBox && watch.IsAlive())
        parent->Refresh();
}

bool TGGridExtension::TakeRows(TGGridTreeRow* parent, std::span<TGGridRow* const> rows) const
{
    ASSERT(extendedGrid != nullptr);
    TGGrid& grid = *extendedGrid;
    if (!HasRows(parent, rows))
        return false;
    const long position = GetPosition(parent, *rows.front());
    const long number = static_cast<long>(rows.size());
    grid.extensions->TellRemoved(parent, position, TGGrid::Structure(grid).TakeRows(parent, position, number),
                                 false);
    return true;
}

bool TGGridExtension::HasRows(TGGridTreeRow* parent, std::span<TGGridRow* const> rows) const
{
    ASSERT(extendedGrid != nullptr);
    return TGGrid::Structure(*extendedGrid).HasRows(parent, rows);
}

long TGGridExtension::GetPosition(TGGridTreeRow* parent, TGGridRow& row) const
{
    return TGGrid::Structure(*extendedGrid).PositionOf(parent, row);
}

long TGGrid::Structure::PositionOf(TGGridTreeRow* parent, TGGridRow& row)
{
    return parent != nullptr ? parent->children.Find(static_cast<TGGridTreeRow*>(&row)) : row.GetIndex();
}

TGGridRow* TGGridExtension::FindSibling(TGGridTreeRow* parent, long position) const
{
    ASSERT(extendedGrid != nullptr);
    if (parent == nullptr)
        return extendedGrid->extensions->Meant(FindRow(position));
    return position >= 0 && position < parent->GetChildNum() ? TGGrid::Structure::ChildAt(*parent, position)
                                                             : nullptr;
}

TGGridRow* TGGrid::Structure::ChildAt(TGGridTreeRow& parent, long position)
{
    return *parent.children.IteratorAt(position);
}

bool TGGridExtension::IsInGrid(TGGridRow& row) const
{
    ASSERT(extendedGrid != nullptr);
    return extendedGrid->extensions->IsInGrid(row);
}

// ---- Order

std::vector<TGGridRow*> TGGrid::Structure::Level(TGGridTreeRow* parent)
{
    if (parent != nullptr)
        return std::vector<TGGridRow*>(parent->children.begin(), parent->children.end());
    std::vector<TGGridRow*> roots;
    for (TGGridRow* row : grid.rows)
        if (row == nullptr || !row->IsChildRow())
            roots.push_back(row);
    return roots;
}

std::vector<TGGridRow*> TGGrid::Structure::ShownOf(std::span<TGGridRow* const> roots)
{
    std::vector<TGGridRow*> shown;
    for (TGGridRow* row : roots)
        if (row != nullptr && row->IsTreeRow())
            static_cast<TGGridTreeRow*>(row)->CollectShown(shown);
        else
            shown.push_back(row);
    return shown;
}

bool TGGrid::Structure::OrderLevels(std::span<const TGRowOrder> levels)
{
    std::vector<TGGridRow*> roots = Level(nullptr);
    const std::vector<TGGridRow*> before = ShownOf(roots);
    if (!std::equal(before.begin(), before.end(), grid.rows.begin(), grid.rows.end()))
        return false;
    std::vector<SortNotice> notices;
    for (const TGRowOrder& level : levels)
    {
        const std::vector<TGGridRow*> present = Level(level.parent);
        std::optional<std::vector<long>> order = RowPlaces(present).OrderOf(level.rows);
        if (!order)
            return false;
        notices.push_back({level.parent, std::move(*order)});
    }
    for (const TGRowOrder& level : levels)
        if (level.parent == nullptr)
            roots.assign(level.rows.begin(), level.rows.end());
        else
        {
            auto next = level.rows.begin();
            for (TGGridTreeRow*& slot : level.parent->children)
                slot = static_cast<TGGridTreeRow*>(*next++);
        }
    const std::vector<TGGridRow*> shown = ShownOf(roots);
    auto next = shown.begin();
    for (TGGridRow*& slot : grid.rows)
        slot = *next++;
    NumberRows(0);
    grid.RecalcLayout(1);
    sorted = std::move(notices);
    return true;
}

void TGGrid::Structure::TellSorted()
{
    for (const SortNotice& notice : sorted)
        if (grid.extensions != nullptr)
            grid.extensions->Tell(GridExtensions::RowsSorted, notice.parent,
                                  std::span<const long>(notice.order));
}

std::vector<TGGridRow*> TGGridExtension::GetSiblings(TGGridTreeRow* parent) const
{
    ASSERT(extendedGrid != nullptr);
    std::vector<TGGridRow*> rows = TGGrid::Structure(*extendedGrid).Level(parent);
    for (TGGridRow*& row : rows)
        row = extendedGrid->extensions->Meant(row);
    return rows;
}

bool TGGridExtension::OrderRows(std::span<const TGRowOrder> levels) const
{
    ASSERT(extendedGrid != nullptr);
    TGGrid::Structure structure(*extendedGrid);
    if (!structure.OrderLevels(levels))
        return false;
    structure.TellSorted();
    return true;
}

// ---- Folding

void TGGrid::Structure::FoldRow(TGGridTreeRow& row, bool folded)
{
    if (folded)
        RemoveOffspring(row);
    else if (row.IsVisible() && row.IsParentRow() && !row.IsChildVisible())
        InsertOffspring(row);
    row.MarkFolded(folded);
    grid.RecalcLayout(1);
}

void TGGridExtension::FoldRow(TGGridTreeRow& row, bool folded) const
{
    ASSERT(extendedGrid != nullptr);
    TGGrid::Structure(*extendedGrid).FoldRow(row, folded);
}

// ---- Columns

void TGGridExtension::TakeCol(long position) const
{
    ASSERT(extendedGrid != nullptr && extendedGrid->IsValidCol(position));
    TGGrid::Structure(*extendedGrid).TakeCol(position);
}

// ---- Selection

void TGGridExtension::DropSelection() const
{
    ASSERT(extendedGrid != nullptr);
    extendedGrid->ClearSel();
}

void TGGridExtension::SelectExactly(const std::vector<long>& rows, const std::vector<long>& cols) const
{
    ASSERT(extendedGrid != nullptr);
    TGGrid& grid = *extendedGrid;
    SelectedIndices::Assign(grid.rowSel, rows);
    SelectedIndices::Assign(grid.colSel, cols);
    grid.OnCurChanged();
    grid.Invalidate(1);
    grid.TellSelected();
}

// ---- Marks and styles

void TGGridExtension::Mark(TGGridRow& row)
{
    row.keptByAddress = true;
}

bool TGGridExtension::IsMarked(const TGGridRow& row)
{
    return row.keptByAddress;
}

int TGGridExtension::GetStyle(const TGGridCell& cell)
{
    return cell.style;
}

void TGGridExtension::SetStyle(TGGridCell& cell, int style)
{
    cell.style = style;
}

void TGGridExtension::StoreText(TGGridCell& cell, CString text)
{
    cell.StoreText(std::move(text));
}

void TGGridExtension::MoveHostData(TGGridRow& from, TGGridRow& to)
{
    to.SetExtendData(from.ReleaseExtendData());
}

void TGGridExtension::FitToCols(TGGridRow& row)
{
    TGGrid::Structure(row.GetGrid()).FitToCols(row);
}

} // namespace QuorUiCtr
