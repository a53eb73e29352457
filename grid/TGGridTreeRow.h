// TGGridTreeRow: a row with a parent and an ordered list of children.
#pragma once

#include "grid/TGGridRow.h"
#include "module/QuorExport.h"

#include <memory>
#include <span>
#include <vector>

namespace QuorUiCtr
{

// A row of a tree grid. A parent row shows a fold box (plus or minus) in the first column; while it is shown
// and unfolded, its children stand in the grid's row list right below it, each followed by its own shown
// descendants. Folded descendants live only in their parent's child list and have the index -1. A row owns
// its children; the grid's row list refers to the shown ones. The unfold flag is remembered while a row is
// hidden.
//
//     grid.AppendRow(new TGGridTreeRow(grid));            // a root row, the grid's from now on
//     TGGridTreeRow& root = grid.GetTreeRow(grid.GetRowNum() - 1);
//     root[0].SetText(L"Bearings");
//     TGGridTreeRow* child = new TGGridTreeRow(grid);
//     (*child)[0].SetText(L"6204");
//     root.AppendChild(child);                            // root's from now on
//     root.UnFold();                                      // shows it
//     for (root.MoveToFirst(); !root.IsOut(); root.MoveToNext())
//         Use(root.CurChild());
//
// Operations that change what is shown end an open edit of a cell, take rows that vanish out of the
// selection, with OnCurChanged() for each, and lay the grid out; between BeginUpdate and EndUpdate that
// layout comes once, at the end. They ask no confirmation and notify nobody. Hooks that run meanwhile may
// delete the row: the operation then stops there.
class QUOR_EXT_CLASS TGGridTreeRow : public TGGridRow
{
public:
    // A root row of `grid`, folded and not entered into it: for AppendRow, InsertRow, InsertChild or a hook.
    explicit TGGridTreeRow(TGGrid& grid);
    // A row of the parent's grid that refers to `parent` (not null); it is not entered into the parent's
    // child list.
    explicit TGGridTreeRow(TGGridTreeRow* parent);
    // A copy would own the children a second time; operator= copies them.
    TGGridTreeRow(const TGGridTreeRow&) = delete;

    // Row assignment, then a copy of every child of `source` is added behind this row's children,
    // recursively. The row stays where it stands; as `source` is folded or not, so is this row then.
    TGGridTreeRow& operator=(TGGridTreeRow& source);
    // Like operator=, but the host data moves from `source` and its offspring to this row and the copies: for
    // a source that is deleted afterwards.
    TGGridTreeRow& operator<<(TGGridTreeRow& source);

    // The parent, null for a root row. Two forms: the second is for rows known to be children.
    TGGridTreeRow* Parent() const { return parent; }
    // The parent of a child row, which the caller makes sure it is (asserted).
    TGGridTreeRow& GetParent() const;
    // Stores the pointer and does nothing else: neither list of children knows of it. For hosts that have
    // made a row for a place they know; InsertChild sets it anyway.
    void SetParent(TGGridTreeRow* newParent) { parent = newParent; }
    // The topmost row above this one, which is the row itself for a root row.
    TGGridTreeRow& RootRow();
    // Has no parent, whether it stands in the grid or not.
    bool IsRootRow() { return !IsChildRow(); }

    // Direct children, folded or not.
    long GetChildNum() const { return children.GetNum(); }
    // The child cursor: a position in the child list, which GetChild and the operations on children move.
    // From the last child it moves out, and from there to the first one again.
    void MoveToFirst() { children.MoveToFirst(); }
    void MoveToNext() { children.MoveToNext(); }
    void MoveToPre() { children.MoveToPre(); }
    // The cursor stands on no child.
    bool IsOut() const;
    // The child under the cursor; asserted that there is one.
    TGGridTreeRow& CurChild();
    // The child at the zero-based position `position`, which exists (asserted); moves the child cursor there.
    TGGridTreeRow& GetChild(long position);
    // The last child of a parent row; moves the child cursor there.
    TGGridTreeRow& GetLastChild();

    // The row is folded: its unfold flag is clear. True for a new row, also while it has no children.
    bool IsFold() const { return !HasFlag(UnfoldFlag); }
    // Sets or clears the unfold flag and shows or hides nothing: for rows that are not entered yet, so that
    // they come unfolded. On a shown parent row, view and flag differ until UnFold or Fold.
    void SetUnFoldFlag(bool on) { SetFlag(UnfoldFlag, on); }
    // The row stands in the grid's row list; it may still be scrolled out of the view.
    bool IsVisible() const { return GetIndex() != -1; }
    // The first child stands in the grid's row list; false without children.
    bool IsChildVisible() const;
    // The row is a child row and its parent has none behind it.
    bool IsLastChild() const;
    // Depth, the number of its ancestors: 0 for a root row.
    long GetParentNum();
    // Number of all descendants, folded or not.
    long GetOffspringNum();
    // Number of grid rows that this row takes up when it is shown: 1 when folded.
    long GetRowNum();

    // Inserts `child` (null makes an empty one) before the child at `position`, GetChildNum() for behind the
    // last (asserted; others are brought into the range); this row owns it from now on, and deletes it when
    // there is no memory to take it in. It is shown at once, with its unfolded offspring, when this row is
    // shown and unfolded. This row and those above it are refused (asserted).
    void InsertChild(long position, TGGridTreeRow* child);
    // InsertChild behind the last child.
    void AppendChild(TGGridTreeRow* child);
    // Removes the child at `position` (asserted; ignored when there is none) from the grid and deletes it
    // with its offspring. Without its last child the row is no parent any more and loses its box.
    void DelChild(long position);
    // Folds the row and deletes all children with their offspring.
    void ClearChild();

    // Hides the offspring and clears the unfold flag; descendants keep their own flags, so that unfolding
    // brings back the same picture.
    void Fold();
    // Shows the children and, below each unfolded one, its offspring, when this row is shown; sets the flag
    // in any case.
    void UnFold();
    // Folds or unfolds this row and all descendants.
    void FoldAll();
    void UnFoldAll();
    // Sorts the children of this row and of every descendant by the row order, see TGGridRow::operator<; the
    // grid's rows stay where they are until the tree is shown again. TGGrid::Arrange does both.
    void ArrangeChild(bool ascending);

    // Depth-first search of the descendants for the first whose cell in column `col` equals `text` exactly.
    // Shows it, unfolding its ancestors, makes it the only selected row and returns true; returns false and
    // changes nothing otherwise. A null `text` finds an empty cell.
    bool FindAndSel(const wchar_t* text, long col);

    // Whether a point in logical coordinates lies in the fold box; false without children. The point
    // is not changed.
    bool IsPtInTreeQuad(CPoint& point);

    // Has children, folded or not.
    bool IsParentRow() override;
    // Has a parent.
    bool IsChildRow() override;
    // Always: tells hosts that hold a TGGridRow that the cast to this class is right.
    bool IsTreeRow() override;

    // Deletes the children, then what TGGridRow deletes.
    ~TGGridTreeRow() override;

protected:
    friend class TGGrid;
    friend class TGGridCell;
    friend class TGTreeGrid;

    // The cells of this row and of all its offspring follow the columns; the grid calls its root rows only.
    void InsertCol(long position, TGGridCol& col) override;
    void AppendCol(TGGridCol& col) override;
    void DelCol(long position) override;
    void MoveCol(long from, long to) override;

    // Position of `child` in the child list, -1 when it is not there.
    long GetChildIndex(TGGridTreeRow* child);
    // The grid row index at which the child at `position` is or would be shown, counted by the unfold flags.
    long GetGlobalChildIndex(long position);
    // The fold box (the quad of a tree row) in logical coordinates: a square three pixels smaller than the
    // row is high, one step further right for each ancestor. Leaves `rect` untouched without children.
    void GetTreeQuad(CRect& rect);

private:
    using OwnedRows = std::vector<std::unique_ptr<TGGridTreeRow>>;

    // The indices of a number of shown rows, as they are stored.
    struct IndexRange
    {
        long number = 0;
        long first = 0;
        long last = -1;

        void Add(long index);
        // There is none between them that is not one of them.
        bool IsRun() const { return last - first + 1 == number; }
    };

    template <class Add> void AddToChildren(Add add, long position);
    bool IsBelow(const TGGridTreeRow* ancestor) const;
    TGGridTreeRow* FindOffspring(const wchar_t* text, long col);

    OwnedRows CopyChildren(const TGGridTreeRow& source);
    // Moves the host data of the children of `source` and of their offspring to their copies, or back.
    static void MoveData(const TGGridTreeRow& source, const OwnedRows& copies, bool back);
    static void MoveData(TGGridTreeRow& from, TGGridTreeRow& to);
    void AssignRow(TGGridTreeRow& source);
    // Ends an edit where rows get shown, and takes the rows over, unless that has deleted this row.
    void InsertChildren(long position, OwnedRows& added);
    // Runs no hooks. The rows are this row's from then on; nothing has changed when it throws. True when this
    // row is shown and has a fold box from now on: it is to be drawn anew.
    bool AddChildren(long position, std::span<TGGridTreeRow* const> added);
    // The grid row index behind the last shown row among the children up to `position` and their offspring.
    long PlaceBehind(long position);

    bool PrepareToGo();
    void HideOffspring();
    void ShowOffspring();
    bool HasShownOffspring() const;
    // Takes the shown offspring out of the rows one by one, each with its hooks.
    void HideOneByOne();
    void CollectVisible(std::vector<const TGGridRow*>& visible) const;
    // Sets the index of all offspring to -1 and adds the indices that they had to `hidden`.
    void MarkHidden(IndexRange& hidden);
    // Sets or clears the unfold flag and tells extensions of the change.
    void MarkFolded(bool folded);
    // This row and its offspring, as far as their unfold flag is set or clear.
    void CollectMarked(bool unfolded, std::vector<TGGridTreeRow*>& marked);
    // Sets or clears the unfold flag of this row and all offspring.
    void MarkAll(bool unfolded);
    // The rows below this one that the unfold flags show, in grid order; the second form begins with the row.
    void CollectOffspring(std::vector<TGGridRow*>& shown);
    void CollectShown(std::vector<TGGridRow*>& shown);

    // Owned, in their order. The two fields keep this order, for hosts that were compiled with it.
    PDList<TGGridTreeRow> children;
    // Not owned; null for a root row.
    TGGridTreeRow* parent = nullptr;
};

} // namespace QuorUiCtr
