// The user's row and column commands: insert, append, delete.
#include "grid/model/GridStructure.h"
#include "grid/model/RowWatch.h"
#include "grid/model/ScopedValue.h"
#include "grid/TGGridExtension.h"
#include "grid/TGUserAction.h"
#include "rules/SelectedIndices.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace QuorUiCtr
{

namespace
{

enum class CommandPlace
{
    Before,
    After
};

// Runs a hook that may put an object in the place of the prepared one, which is deleted when the hook throws.
template <class Object, class Hook> bool AskHook(Object*& object, Hook hook)
{
    const Object* const prepared = object;
    try
    {
        return hook();
    }
    catch (...)
    {
        if (object != prepared)
            delete object;
        throw;
    }
}

} // namespace

// The steps that the commands share.
class TGGrid::Commands
{
public:
    explicit Commands(TGGrid& servedGrid) : grid(servedGrid) {}

    bool InsertColAtSelection(CommandPlace place);
    bool AskForCol(long position, TGGridCol*& col);
    bool ReportInsertedCol(long position);
    std::unique_ptr<TGGridTreeRow> MakeTree();
    bool InsertRowAtSelection(CommandPlace place, bool asTree);
    bool InsertRootRow(long selected, CommandPlace place, bool asTree);
    bool InsertSibling(long selected, CommandPlace place, bool asTree);
    void FoldRowAtIndex(long i);
    bool AskForRow(long position, bool asTree, TGGridRow*& row);
    bool AskForChild(TGGridTreeRow& parent, long position, bool asTree, TGGridTreeRow*& child);
    bool ReportInsertedRow(long position);
    // Tells OnInsertRow alone; false when the row has gone.
    bool TellInserted(TGGridRow* row, const RowWatch& watch);
    bool DeleteSelectedRows();
    void DeleteRows(const std::vector<long>& indices);
    bool DeleteSelectedCols();

private:
    TGGrid& grid;
};

// ---- Columns

bool TGGrid::DoInsertCol()
{
    return Commands(*this).InsertColAtSelection(CommandPlace::Before);
}

bool TGGrid::DoInsertColAfter()
{
    return Commands(*this).InsertColAtSelection(CommandPlace::After);
}

bool TGGrid::Commands::InsertColAtSelection(CommandPlace place)
{
    const TGUserAction action(grid, TGActionKind::InsertCols);
    if (grid.IsColFixLength() || grid.GetColSelNum() != 1)
        return false;
    const long selected = grid.colSel[0];
    const long position = place == CommandPlace::Before ? selected : selected + 1;
    TGGridCol* col = nullptr;
    if (!AskForCol(position, col))
        return false;
    grid.InsertCol(position, col, 0);
    grid.SelectCol(place == CommandPlace::Before ? selected + 1 : selected, false);
    grid.SelectCol(position, true);
    return ReportInsertedCol(position);
}

bool TGGrid::DoAppendCol()
{
    const TGUserAction action(*this, TGActionKind::InsertCols);
    if (IsColFixLength())
        return false;
    TGGridCol* col = nullptr;
    if (!Commands(*this).AskForCol(GetColNum(), col))
        return false;
    UnSelect();
    AppendCol(col, 0);
    const long appended = GetColNum() - 1;
    SelectCol(appended, true);
    return Commands(*this).ReportInsertedCol(appended);
}

// Asks OnBeforeInsertCol; a column that the hook supplies is the grid's from then on. A hook may have removed
// columns meanwhile; a position that no longer exists refuses like a veto.
bool TGGrid::Commands::AskForCol(long position, TGGridCol*& col)
{
    const bool agreed = AskHook(col, [&] { return grid.OnBeforeInsertCol(position, col); });
    if (agreed && position <= grid.GetColNum())
        return true;
    delete col;
    return false;
}

bool TGGrid::Commands::ReportInsertedCol(long position)
{
    if (grid.IsValidCol(position))
        grid.OnInsertCol(grid.GetCol(position));
    grid.OnDataChanged();
    return true;
}

// ---- Rows

bool TGGrid::DoInsertRow()
{
    return Commands(*this).InsertRowAtSelection(CommandPlace::Before, false);
}

bool TGGrid::DoInsertRowAfter()
{
    return Commands(*this).InsertRowAtSelection(CommandPlace::After, false);
}

bool TGGrid::DoInsertTree()
{
    return IsTreeGrid() && Commands(*this).InsertRowAtSelection(CommandPlace::Before, true);
}

bool TGGrid::DoInsertTreeAfter()
{
    return IsTreeGrid() && Commands(*this).InsertRowAtSelection(CommandPlace::After, true);
}

// A row with one empty child, which the tree commands hand to the hooks.
std::unique_ptr<TGGridTreeRow> TGGrid::Commands::MakeTree()
{
    auto tree = std::make_unique<TGGridTreeRow>(grid);
    tree->InsertChild(tree->GetChildNum(), nullptr);
    return tree;
}

bool TGGrid::Commands::InsertRowAtSelection(CommandPlace place, bool asTree)
{
    const TGUserAction action(grid, TGActionKind::InsertRows);
    if (grid.IsRowFixLength() || grid.GetRowSelNum() != 1)
        return false;
    const long selected = grid.rowSel[0];
    const bool inserted = grid.IsTreeGrid() && grid.GetRow(selected).IsChildRow()
                              ? InsertSibling(selected, place, asTree)
                              : InsertRootRow(selected, place, asTree);
    if (!inserted)
        return false;
    const long position = place == CommandPlace::Before ? selected : selected + 1;
    grid.SelectRow(place == CommandPlace::Before ? selected + 1 : selected, false);
    grid.SelectRow(position, true);
    return ReportInsertedRow(position);
}

bool TGGrid::Commands::InsertRootRow(long selected, CommandPlace place, bool asTree)
{
    const long position = place == CommandPlace::Before ? selected : selected + 1;
    TGGridRow* row = nullptr;
    if (!AskForRow(position, asTree, row))
        return false;
    if (place == CommandPlace::After)
        FoldRowAtIndex(selected);
    grid.InsertRow((std::min)(position, grid.GetRowNum()), row);
    return true;
}

bool TGGrid::Commands::InsertSibling(long selected, CommandPlace place, bool asTree)
{
    TGGridTreeRow* sibling = &grid.GetTreeRow(selected);
    TGGridTreeRow* parent = sibling->Parent();
    const long rank = parent->GetChildIndex(sibling);
    const long position = place == CommandPlace::Before ? rank : rank + 1;
    TGGridTreeRow* child = nullptr;
    if (!AskForChild(*parent, position, asTree, child))
        return false;
    // The hook may have removed the row or its parent.
    if (!grid.IsValidRow(selected) || grid.rows[selected] != sibling || sibling->Parent() != parent ||
        position > parent->GetChildNum())
    {
        delete child;
        return false;
    }
    const RowWatch watch(grid, parent);
    if (place == CommandPlace::After)
        FoldRowAtIndex(selected);
    if (!watch.IsAlive())
    {
        delete child;
        return false;
    }
    parent->InsertChild((std::min)(position, parent->GetChildNum()), child);
    return true;
}

void TGGrid::Commands::FoldRowAtIndex(long i)
{
    if (grid.IsTreeGrid() && grid.GetRow(i).IsTreeRow())
        grid.GetTreeRow(i).Fold();
}

// Asks OnBeforeInsertRow, handing it a prepared tree when `asTree` is set. The grid owns the prepared tree,
// also when the hook replaces it, and what the hook supplies, also when it refuses then.
bool TGGrid::Commands::AskForRow(long position, bool asTree, TGGridRow*& row)
{
    std::unique_ptr<TGGridTreeRow> prepared = asTree ? MakeTree() : nullptr;
    row = prepared.get();
    const bool agreed = AskHook(row, [&] { return grid.OnBeforeInsertRow(position, row); });
    if (row == prepared.get())
        prepared.release();
    if (agreed && position <= grid.GetRowNum())
        return true;
    delete row;
    return false;
}

bool TGGrid::Commands::AskForChild(TGGridTreeRow& parent, long position, bool asTree, TGGridTreeRow*& child)
{
    std::unique_ptr<TGGridTreeRow> prepared = asTree ? MakeTree() : nullptr;
    child = prepared.get();
    const bool agreed = AskHook(child, [&] { return grid.OnBeforeInsertChild(parent, position, child); });
    if (child == prepared.get())
        prepared.release();
    if (agreed)
        return true;
    delete child;
    return false;
}

bool TGGrid::Commands::ReportInsertedRow(long position)
{
    if (grid.IsValidRow(position))
        grid.OnInsertRow(grid.GetRow(position));
    grid.OnDataChanged();
    return true;
}

bool TGGrid::DoAppendRow(bool select)
{
    const TGUserAction action(*this, TGActionKind::InsertRows);
    if (IsRowFixLength())
        return false;
    TGGridRow* row = nullptr;
    if (!Commands(*this).AskForRow(GetRowNum(), false, row))
        return false;
    UnSelect();
    AppendRow(row);
    const long appended = GetRowNum() - 1;
    if (select)
        SelectRow(appended, true);
    else if (!IsNoAppendButton())
        ShowAppendRow();
    return Commands(*this).ReportInsertedRow(appended);
}

bool TGGrid::DoAppendTree()
{
    const TGUserAction action(*this, TGActionKind::InsertRows);
    TGGridRow* row = nullptr;
    if (!IsTreeGrid() || IsRowFixLength() || !Commands(*this).AskForRow(GetRowNum(), true, row))
        return false;
    AppendRow(row);
    return Commands(*this).ReportInsertedRow(GetRowNum() - 1);
}

bool TGGrid::DoAppendChild()
{
    const TGUserAction action(*this, TGActionKind::InsertRows);
    if (!IsTreeGrid() || IsRowFixLength() || GetRowSelNum() != 1 || !GetSelRow(0).IsTreeRow())
        return false;
    const long selected = rowSel[0];
    TGGridTreeRow* parent = &GetTreeRow(selected);
    TGGridTreeRow* child = nullptr;
    if (!Commands(*this).AskForChild(*parent, parent->GetChildNum(), false, child))
        return false;
    if (!IsValidRow(selected) || rows[selected] != parent)
    {
        delete child;
        return false;
    }
    const RowWatch alive(*this, parent);
    parent->InsertChild(parent->GetChildNum(), child);
    TGGridTreeRow* appended = alive.IsAlive() && parent->IsParentRow() ? &parent->GetLastChild() : nullptr;
    const RowWatch watch(*this, appended);
    if (watch.IsAlive())
        SelectRow(appended->GetIndex(), true);
    if (watch.IsAlive())
        OnInsertRow(*appended);
    OnDataChanged();
    return true;
}

// ---- Extensions that insert as a user does

std::unique_ptr<TGGridRow> TGGridExtension::AskForRow(long position) const
{
    ASSERT(extendedGrid != nullptr);
    TGGrid& grid = *extendedGrid;
    if (grid.IsRowFixLength() || position < 0)
        return nullptr;
    TGGridRow* row = nullptr;
    const bool agreed = AskHook(row, [&] { return grid.OnBeforeInsertRow(position, row); });
    std::unique_ptr<TGGridRow> supplied(row);
    if (!agreed)
        return nullptr;
    if (supplied == nullptr)
        supplied.reset(TGGrid::Structure(grid).MakeRow());
    return supplied;
}

// The rows that hooks have made may not fit the columns any more.
void TGGridExtension::InsertRows(long position, std::vector<std::unique_ptr<TGGridRow>> rows) const
{
    ASSERT(extendedGrid != nullptr);
    TGGrid& grid = *extendedGrid;
    grid.EndEditCell();
    position = std::clamp(position, 0L, grid.GetRowNum());
    std::vector<TGGridRow*> entered;
    entered.reserve(rows.size());
    for (const std::unique_ptr<TGGridRow>& row : rows)
    {
        TGGrid::Structure(grid).FitToCols(*row);
        entered.push_back(row.get());
    }
    TGGrid::Structure(grid).InsertRows(position, entered);
    for (std::unique_ptr<TGGridRow>& row : rows)
        static_cast<void>(row.release());
    grid.RecalcRows();
    TGGrid::Structure(grid).TellInserted(position, entered);
}

void TGGridExtension::TellInserted(TGGridRow& row) const
{
    ASSERT(extendedGrid != nullptr);
    TGGrid::Commands(*extendedGrid).TellInserted(&row, RowWatch(*extendedGrid, &row));
}

// The row is held by a watch from before it comes in, because the end of an edit and the hooks may delete it.
TGGridRow* TGGridExtension::InsertRowAsUser(long position) const
{
    TGGrid& grid = *extendedGrid;
    std::unique_ptr<TGGridRow> made = AskForRow(position);
    if (made == nullptr)
        return nullptr;
    TGGridRow* const row = made.get();
    const RowWatch watch(grid, row);
    grid.InsertRow((std::min)(position, grid.GetRowNum()), made.release());
    return TGGrid::Commands(grid).TellInserted(row, watch) ? row : nullptr;
}

TGGridTreeRow* TGGridExtension::InsertChildAsUser(TGGridTreeRow& parent, long position) const
{
    ASSERT(extendedGrid != nullptr);
    TGGrid& grid = *extendedGrid;
    const RowWatch parentWatch(grid, &parent);
    TGGridTreeRow* child = nullptr;
    if (grid.IsRowFixLength() || !TGGrid::Commands(grid).AskForChild(parent, position, false, child))
        return nullptr;
    if (child == nullptr && parentWatch.IsAlive())
        child = new TGGridTreeRow(grid);
    grid.EndEditCell();
    if (!parentWatch.IsAlive())
    {
        delete child;
        return nullptr;
    }
    const RowWatch watch(grid, child);
    parent.InsertChild(std::clamp(position, 0L, parent.GetChildNum()), child);
    return TGGrid::Commands(grid).TellInserted(child, watch) ? child : nullptr;
}

bool TGGrid::Commands::TellInserted(TGGridRow* row, const RowWatch& watch)
{
    if (!watch.IsAlive())
        return false;
    const ScopedValue guard(grid.tellsChangesLater, true);
    grid.OnInsertRow(*row);
    return watch.IsAlive();
}

// ---- Deletion

bool TGGrid::DoDelete()
{
    if (IsRowSelected() && !IsRowFixLength())
        return Commands(*this).DeleteSelectedRows();
    return IsColSelected() && !IsColFixLength() && Commands(*this).DeleteSelectedCols();
}

bool TGGrid::Commands::DeleteSelectedRows()
{
    const TGUserAction action(grid, TGActionKind::DeleteRows);
    grid.FilterDelUnable();
    if (!grid.OnBeforeDeleteRow())
        return false;
    DeleteRows(std::vector<long>(grid.rowSel.begin(), grid.rowSel.end()));
    grid.OnEndDeleteRow();
    grid.OnDataChanged();
    return true;
}

// From the last to the first, each parent with its offspring. What hooks have put elsewhere stays.
void TGGrid::Commands::DeleteRows(const std::vector<long>& indices)
{
    const TGGridUpdate update(grid);
    const std::vector<const TGGridRow*> doomed = Structure(grid).RowsAtIndices(indices);
    grid.ClearSel();
    for (std::size_t k = indices.size(); k-- > 0;)
        if (doomed[k] != nullptr && grid.RowAtIndex(indices[k]) == doomed[k])
            grid.DelRowEx(indices[k]);
}

bool TGGrid::Commands::DeleteSelectedCols()
{
    const TGUserAction action(grid, TGActionKind::DeleteCols);
    if (!grid.OnBeforeDeleteCol())
        return false;
    const std::vector<long> doomed(grid.colSel.begin(), grid.colSel.end());
    grid.ClearSel();
    {
        TGGridUpdate update(grid);
        for (auto i = doomed.rbegin(); i != doomed.rend(); ++i)
            if (grid.IsValidCol(*i))
                grid.DelCol(*i);
    }
    grid.OnEndDeleteCol();
    grid.OnDataChanged();
    return true;
}

void TGGrid::FilterDelUnable()
{
    std::vector<long> kept;
    for (long i : rowSel)
        if (!GetRow(i).IsDelUnable())
            kept.push_back(i);
    SelectedIndices::Assign(rowSel, kept);
    Invalidate(TRUE);
    TellSelected();
}

bool TGGrid::IsSelDelUnable()
{
    for (long i : rowSel)
        if (GetRow(i).IsDelUnable())
            return true;
    return false;
}

} // namespace QuorUiCtr
