// TGGrid::Structure: the steps of the structure operations that the tree rows share.
#pragma once

#include "grid/TGGrid.h"

#include <span>
#include <vector>

namespace QuorUiCtr
{

// Keeps rows, their indices and the selection in step. Lays out nothing and, but for AnnounceRemoval, runs no
// hooks.
class TGGrid::Structure
{
public:
    explicit Structure(TGGrid& servedGrid) : grid(servedGrid) {}

    TGGridRow* MakeRow();
    // Enters rows before the row at `at`, or takes rows out without deleting them; numbers the rows behind
    // and shifts the selection.
    void InsertRows(long at, std::span<TGGridRow* const> added);
    void RemoveRows(long at, long number);
    // Gives the rows from `first` on their indices; the row cursor ends past the last row.
    void NumberRows(long first);
    bool IsOffspringAt(long i, const TGGridTreeRow& top);
    // Takes the shown offspring of a row out of the rows; false when there was none.
    bool RemoveOffspring(TGGridTreeRow& top);
    // Takes a row and its shown offspring out of the rows.
    void HideTree(TGGridTreeRow& top);
    // Puts the offspring that the unfold flags ask for below a shown row.
    void InsertOffspring(TGGridTreeRow& top);
    // Takes rows out of the grid and of their parents' children, their shown offspring with them, as one
    // change. Deletes none; their indices become -1.
    void TakeOut(std::span<TGGridRow* const> taken);
    // Runs the hooks of taking the rows at `indices` out one by one: ends an edit and tells `tellings` times
    // that the selection changed. Returns the rows that still stand where they stood before, in the order of
    // `indices`.
    std::vector<TGGridRow*> AnnounceRemoval(std::span<const long> indices, long tellings);
    // Takes a row out of its parent's children and its shown offspring out of the rows.
    void DetachFromTree(TGGridRow& row);
    // Leaves the child rows to their parents: empties their slots.
    void ReleaseChildRows();
    // Calls `change` for every row whose cells follow the columns, but for child rows, which their parents
    // tell.
    template <class Change> void ChangeRows(Change change);
    // Moves a row to before the row at `to`: a plain row by itself, a tree row among its siblings with its
    // shown offspring. Numbers nothing. False when the row stands there already or may not go there.
    bool PlaceMovingRow(long from, long to);
    // Gives a column that is about to move and the columns that it passes their edges.
    void PlaceMovingCol(long from, long to);

private:
    // The index behind the last shown row of the offspring of the row at `i`, which is shown.
    long EndOfTree(long i);
    // The parent of a tree row; null for a root row, a plain row and no row.
    static TGGridTreeRow* ParentOf(TGGridRow* row);
    void DetachFromParents(std::span<TGGridRow* const> taken);
    // Takes the slots of hidden rows out of the rows from `first` on and numbers the rows.
    void CloseGaps(long first);
    void RemoveHiddenRows(const TGGridTreeRow::IndexRange& hidden);
    // Moves the columns from `first` to before `last` by `distance` pixels.
    void MoveColEdges(long first, long last, long distance);

    TGGrid& grid;
};

} // namespace QuorUiCtr
