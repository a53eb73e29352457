// TGGrid::Structure: the steps of the structure operations that the tree rows share.
#pragma once

#include "grid/TGGrid.h"
#include "grid/TGGridExtension.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace QuorUiCtr
{

// Keeps rows, their indices, the current row and the selection in step. Lays out nothing and, but for
// PrepareToGo and HideRow, runs no hooks.
class TGGrid::Structure
{
public:
    explicit Structure(TGGrid& servedGrid) : grid(servedGrid) {}

    TGGridRow* MakeRow();
    // Fits the cells of a row and of all below it to the columns, which hooks may have changed since the row
    // was made. Before every insertion of a row that the caller has not made himself a moment ago.
    void FitToCols(TGGridRow& row);
    // Makes rows at the end, all or none.
    void AppendRows(long number);
    // Enters rows before the row at `at`, or takes rows out without deleting them; numbers the rows behind
    // and shifts the selection. `stored` is what stood in the first row that goes, where the others followed
    // it, else -1.
    void InsertRows(long at, std::span<TGGridRow* const> added);
    void RemoveRow(long at);
    void RemoveRows(long at, long number, long stored);
    // Gives a row that has come in at `at` its index, and those behind theirs when somebody asks; the row
    // cursor ends past the last row.
    void NumberInsertedRow(long at, TGGridRow& row);
    // Gives the rows from `first` on their indices; the row cursor ends past the last row.
    void NumberRows(long first);
    bool IsOffspringAt(long i, const TGGridTreeRow& top);
    // Takes the shown offspring of a row out of the rows; false when there was none.
    bool RemoveOffspring(TGGridTreeRow& top);
    // Takes a row and its shown offspring out of the rows.
    void HideTree(TGGridTreeRow& top);
    // Puts the offspring that the unfold flags ask for below a shown row.
    void InsertOffspring(TGGridTreeRow& top);
    // Runs the hooks of a row's going: ends an edit and deselects the row. Returns whether the row stands in
    // the grid still, which may be at another index.
    bool PrepareToGo(TGGridRow& row);
    // Runs these hooks for the row at `i` and takes it out, unless they did; its index becomes -1.
    void HideRow(long i);
    // The rows at `indices`, to be compared with what stands there after hooks and for nothing else.
    std::vector<const TGGridRow*> RowsAtIndices(std::span<const long> indices);
    // Where a child stood among the children of a parent; null for rows of the first level.
    struct TreePlace
    {
        TGGridTreeRow* parent = nullptr;
        long position = -1;
    };
    // Takes a row out of its parent's children and its shown offspring out of the rows.
    TreePlace DetachFromTree(TGGridRow& row);
    // Delete what has left the grid already, unless an extension takes it over; the last one takes all rows
    // out before.
    void DropRow(TGGridTreeRow* parent, long position, TGGridRow* row);
    void DropChildren(TGGridTreeRow& parent);
    void DropAllRows();
    // Put rows with their offspring, fitted to the columns, into a level, and take `number` out of it, see
    // TGGridExtension; tell nobody. Put rows: true as from TGGridTreeRow::AddChildren.
    bool PutRows(TGGridTreeRow* parent, long position, std::span<TGGridRow* const> added);
    std::vector<TGGridRow*> TakeRows(TGGridTreeRow* parent, long position, long number);
    // Folds or unfolds a row without hooks.
    void FoldRow(TGGridTreeRow& row, bool folded);
    // The rows stand side by side in a level, in this order.
    bool HasRows(TGGridTreeRow* parent, std::span<TGGridRow* const> wanted);
    static long PositionOf(TGGridTreeRow* parent, TGGridRow& row);
    static TGGridRow* ChildAt(TGGridTreeRow& parent, long position);
    // The rows of a level: those of the first level (null) or the children of a row.
    std::vector<TGGridRow*> Level(TGGridTreeRow* parent);
    // Gives levels another order; tells nobody. False, changing nothing, when they have other rows.
    bool OrderLevels(std::span<const TGRowOrder> levels);
    // Tells extensions of the levels that were sorted or ordered.
    void TellSorted();
    // Whether a row stands in the grid, shown or below a folded one.
    bool StandsInGrid(TGGridRow& row) const;
    // Tell extensions of rows that have come in at the first level, and as children.
    void TellInserted(long place, std::span<TGGridRow* const> added);
    void TellChildren(TGGridTreeRow& parent, long position, std::span<TGGridTreeRow* const> added);
    // Tell them of rows whose unfold flags have changed; parents in the grid count.
    void TellFolded(std::span<TGGridTreeRow* const> changed);
    // The index behind the last shown row of the offspring of the row at `i`, which is shown.
    long EndOfTree(long i);
    // Leaves the child rows to their parents: empties their slots.
    void ReleaseChildRows();
    // Calls `change` for every row whose cells follow the columns, but for child rows, which their parents
    // tell.
    template <class Change> void ChangeRows(Change change);
    // Moves a row to before the row at `to`: a plain row by itself, a tree row among its siblings with its
    // shown offspring. Numbers nothing. False when the row stands there already or may not go there.
    bool PlaceMovingRow(long from, long to);
    // The same for a change that may lack memory: it is undone then, and the exception goes on.
    template <class Change, class Undo> void ChangeAllRowsOrNone(Change change, Undo undo);
    // Enters a column at `i`, with a cell in each row; leaves the columns' cursor past the end. Nothing has
    // changed when it throws.
    void EnterCol(long i, TGGridCol& col);
    // A column has come in: keeps the number of caption lines right.
    void NoteCaption(const TGGridCol& col);
    // Enters it at the end; likewise.
    void AddCol(TGGridCol& col);
    // Deletes the columns from `first` on; runs no hooks.
    void DropCols(long first);
    // The width that a column gets when `width` is asked for.
    long WidthOfNewCol(long width);
    // Gives a column another width, moves those behind, lays out and tells extensions. The layout may run
    // the hooks of an edit that ends.
    void ResizeCol(TGGridCol& col, long width);
    // Takes a column out with its cells, for extensions or to be deleted; runs no hooks.
    void TakeCol(long i);
    // Takes the slot of a column out and closes the gap.
    void RemoveCol(long i);
    // Gives a column that is about to move and the columns that it passes their edges.
    void PlaceMovingCol(long from, long to);
    // Sorts rows by the row order, as their list's own sort does. The list's cursor stays on its row. False
    // when the rows have stood in this order.
    template <class Row> bool SortList(PDList<Row>& list, bool ascending)
    {
        std::vector<TGGridRow*> order;
        order.reserve(static_cast<std::size_t>(list.GetNum()));
        for (Row* row : list)
            order.push_back(row);
        const Order found = SortByKeys(order, ascending);
        if (found == Order::Unknown)
            list.Sort(ascending);
        if (found != Order::Changed)
            return found == Order::Unknown;
        const TGGridRow* const current = list.IsOut() ? nullptr : list.Cur();
        auto next = order.begin();
        for (Row*& slot : list)
            slot = static_cast<Row*>(*next++);
        if (current != nullptr)
            list.MoveTo(static_cast<long>(std::find(order.begin(), order.end(), current) - order.begin()));
        return true;
    }
    // Sorts the rows and all children; tree rows fold meanwhile, which runs hooks.
    void SortRows(bool ascending);

    // The parent of a tree row; null for a root row, a plain row and no row.
    static TGGridTreeRow* ParentOf(TGGridRow* row);

private:
    // Sort one level of rows, in the order that an extension wants if one does, and note the new order.
    struct SortNotice
    {
        TGGridTreeRow* parent;
        std::vector<long> order;
    };
    template <class Row> void SortLevel(PDList<Row>& level, TGGridTreeRow* parent, bool ascending);
    void SortBelow(TGGridTreeRow& row, bool ascending);
    void SortExtended(bool ascending);
    static std::vector<TGGridRow*> ShownOf(std::span<TGGridRow* const> roots);
    // Folds a row, or unfolds it, of which extensions are not told.
    static void FoldUntold(TGGrid& grid, TGGridTreeRow& row, bool folded);
    static bool StandsBelow(TGGridTreeRow& child, TGGridTreeRow& parent);
    // The columns to sort by.
    const List<long>& SortKeys() const;
    // What sorting has found.
    enum class Order
    {
        Kept,
        Changed,
        Unknown // a row has no cell in the column of the main key; nothing has been done
    };
    // Sorts rows, those that are null to the end.
    Order SortByKeys(std::vector<TGGridRow*>& order, bool ascending);
    void RemoveHiddenRows(const TGGridTreeRow::IndexRange& stored);
    // Moves the columns from `first` to before `last` by `distance` pixels.
    void MoveColEdges(long first, long last, long distance);

    TGGrid& grid;
    std::vector<SortNotice> sorted;
};

} // namespace QuorUiCtr
