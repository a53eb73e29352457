// TGTreeGrid: the grid for a tree of groups and items with unique numeric identifiers.
#pragma once

#include "grid/TGGrid.h"
#include "module/QuorExport.h"

#include <memory>
#include <vector>

namespace QuorUiCtr
{

class RowWatch;

// A grid whose parent rows are groups, which show only their label in column 0, and whose leaf rows are
// items. The cell of an item in column 1 holds its identifier: a decimal number, unique among all leaves of
// the grid and of the row buffer; a text that is no number counts as 0. After a cut, a delete or a move of
// rows, a group that has lost its last child becomes an item with a valid identifier; pasted items whose
// identifier is in use get new ones.
//
// Changes set a flag of the tree grid's own and send the parent window nothing: a host asks IsModified() when
// it closes a file, or overrides OnDataChanged(). It builds the tree with the operations of TGGrid and
// TGGridTreeRow, which touch no identifier; identifiers are looked after in what the user does.
//
//     TGTreeGrid grid(true);
//     grid.Create(parent, IDC_TREE, WS_CHILD | WS_VISIBLE);
//     grid.AppendCol(L"Label", 150);
//     grid.AppendCol(L"Id", 60);                          // column 1: the identifiers
//     grid.SetModified(false);                            // after filling it
class QUOR_EXT_CLASS TGTreeGrid : public TGGrid
{
    DECLARE_DYNAMIC(TGTreeGrid)

public:
    // With `tree` set, rows that the grid creates itself are tree rows; the rows that its hooks supply are in
    // any case. New columns are 100 pixels wide by default. Creates no window.
    explicit TGTreeGrid(bool tree);
    ~TGTreeGrid() override;

    // ---- Identifiers
    // Both walk all leaves once and leave the row cursor past the last row.

    // The identifier for a leaf that now has `id`: `id` itself when at most one leaf has it, one greater than
    // the largest in use when several have it or `id` is 0. Should there be no greater number, the smallest
    // positive one that no leaf has.
    int GetAutoId(int id);
    // `label` may become the identifier text of a new leaf: it is neither empty nor "0" and no leaf has it.
    // A null label counts as empty.
    bool IsRightLabel(const wchar_t* label);

    // ---- State

    // The tree grid's own flag, which OnDataChanged() sets and only the host clears. There are two flags:
    // these two functions hide TGGrid::IsModified() and stand beside TGGrid::SetModify(), and none of them is
    // virtual, so code that holds the grid as a TGGrid& reads the other one, which a tree grid never sets.
    bool IsModified() const { return treeModified; }
    void SetModified(bool on) { treeModified = on; }
    // The selected row when exactly one row is selected, else null. The form of TGGrid that counts the
    // selected rows stays in reach.
    TGGridRow* GetSelRow();
    using TGGrid::GetSelRow;

protected:
    // 1 runs DoInsertRowAfter(), 2 DoDelete(), 3 DoAppendRow(true), 4 SelectAll(); other numbers do nothing.
    // For hosts with menus of their own; the grid's context menus do not come here.
    void OnMenuCommand(UINT id);

    // ---- The grid's hooks

    // Accepts every text.
    bool OnModified(TGGridCell& cell, CString& text) override;
    // Sets the tree grid's flag and notifies nobody.
    void OnDataChanged() override;
    // Draws a group itself, without the texts right of its label, and returns false for it.
    bool OnRefresh(TGGridRow& row) override;
    using TGGrid::OnRefresh;
    // With one row selected and no row supplied, supply a tree row; beside an item it is a copy of that item,
    // identifier included.
    bool OnBeforeInsertRow(long position, TGGridRow*& row) override;
    bool OnBeforeInsertChild(TGGridTreeRow& parent, long position, TGGridTreeRow*& child) override;
    // Does nothing: the command that inserts reports the change.
    void OnInsertRow(TGGridRow& row) override;
    // Note the parents that may lose their last child; they veto nothing.
    bool OnBeforeDeleteRow() override;
    bool OnBeforeClip() override;
    // Vetoes where OnMovingRow does, else notes the parents.
    bool OnMoveRow(long position) override;
    // Give the noted parents that have become items a valid identifier.
    void OnEndDeleteRow() override;
    void OnEndClip() override;
    void OnEndMoveRow() override;
    // Gives the pasted items whose identifier is in use a new one.
    void OnEndPaste() override;

    // ---- Hooks of the tree grid, behind those of the grid
    // In this order: compiled hosts call them by their place behind the last hook of TGGrid.

public:
    // A rule that hosts may call from their OnBeforeEdit(TGGridCell&, bool&), which does not call it itself:
    // of a group only the label may be edited.
    virtual bool OnBeforeEdit(TGGridCell& cell);
    using TGGrid::OnBeforeEdit;
    // For hosts that keep the tree in files, so that their frame can drive any of their tree grids; they do
    // nothing here and nothing here calls them.
    virtual void New(const wchar_t* name);
    virtual void Open(const wchar_t* name);
    virtual void OnSave();
    virtual void OnReload();

protected:
    DECLARE_MESSAGE_MAP()

private:
    // All leaves, and the identifiers in use (TGTreeIdentifiers.cpp).
    class Leaves;
    class Identifiers;

    // The rows of the grid and those of the row buffer.
    void AddAllLeaves(Leaves& leaves);
    // The selected row when it is the only one selected and an item, else null.
    TGGridTreeRow* SelectedItem();
    void NoteParents();
    void RepairParents();
    // Gives each of these leaves, in this order, the identifier that GetAutoId would.
    void RenumberItems(const std::vector<TGGridRow*>& items);

    // The parents that a running cut, delete or move may leave without children; not owned. An entry whose
    // watch has seen the row die counts as null.
    List<TGGridRow*> touchedParents;
    // As IsModified() says.
    bool treeModified = false;
    // One for each of touchedParents, in the same order.
    std::vector<std::unique_ptr<RowWatch>> parentWatches;
};

} // namespace QuorUiCtr
