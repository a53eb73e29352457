// TGGridStyle: the style word of a grid.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

// What the user may do in a grid and what it shows: a base of TGGrid, so that a host writes
// grid.SetRowFixLength(true). The word restrains the user, that is the commands, the keys, the mouse and the
// menus; the operations of TGGrid that programs call work in any grid.
//
// Readers follow what a flag implies: a read-only grid has fixed lengths and positions, too. Every writer
// changes its own flag only, so that a grid which stops being read-only is what it was before; nothing is
// laid out or repainted. TGGrid has the writers that have an effect besides: SetRowSel, SetColSel and
// SetTreeLine. Flags are best set before the window is created.
//
// A new grid has no flag set: everything is allowed and shown.
class QUOR_EXT_CLASS TGGridStyle
{
public:
    // The whole word, as a host may keep it; its bits are those of Flag below, without what they imply.
    int GetStyle() const { return style; }
    // Adds the bits of `bits`; never clears one. No effect besides, also for the flags that have one.
    void SetStyle(int bits) { style |= bits; }

    // Rows that the grid creates itself are tree rows. Chosen at construction and no part of the word; rows
    // that a host supplies are what it makes them.
    bool IsTreeGrid() const { return treeGrid; }
    // No edits, no structure commands; implies the fixed lengths and positions and hides the new-row line.
    // Selecting and copying stay possible.
    bool IsReadOnly() const { return HasFlag(ReadOnlyFlag); }
    void SetReadOnly(bool on) { SetFlag(ReadOnlyFlag, on); }
    // The user cannot insert, append, delete, cut or paste rows; implies that the new-row line is hidden.
    // Rows can still be copied, moved and sorted.
    bool IsRowFixLength() const { return HasFlag(RowFixLengthFlag | ReadOnlyFlag); }
    void SetRowFixLength(bool on) { SetFlag(RowFixLengthFlag, on); }
    // The user cannot insert, append or delete columns; they can still be moved and resized.
    bool IsColFixLength() const { return HasFlag(ColFixLengthFlag | ReadOnlyFlag); }
    void SetColFixLength(bool on) { SetFlag(ColFixLengthFlag, on); }
    // The row header is enabled; the column header is. The corner exists only with both.
    bool IsRowSel() const { return !HasFlag(RowSelOffFlag); }
    bool IsColSel() const { return !HasFlag(ColSelOffFlag); }
    // The user may sort rows with the keys R and U: not switched off, not fixed in position, not read-only.
    // TGGrid::Arrange sorts in any case.
    bool IsSortEnable() const { return !HasFlag(SortOffFlag | RowPosFixFlag | ReadOnlyFlag); }
    void SetSortEnable(bool on) { SetFlag(SortOffFlag, !on); }
    // The user cannot resize columns by dragging the edges in the column header. Not implied by read-only: a
    // reader may want to see more of a text.
    bool IsColFixWidth() const { return HasFlag(ColFixWidthFlag); }
    void SetColFixWidth(bool on) { SetFlag(ColFixWidthFlag, on); }
    // The user cannot move columns by dragging their headers.
    bool IsColPosFix() const { return HasFlag(ColPosFixFlag | ReadOnlyFlag); }
    void SetColPosFix(bool on) { SetFlag(ColPosFixFlag, on); }
    // The user cannot move rows by dragging their headers, nor sort them.
    bool IsRowPosFix() const { return HasFlag(RowPosFixFlag | ReadOnlyFlag); }
    void SetRowPosFix(bool on) { SetFlag(RowPosFixFlag, on); }
    // Tree rows are joined by lines; switched off, only the fold boxes show the tree.
    bool IsNeedTreeLine() const { return !HasFlag(TreeLineOffFlag); }
    // At most one row is selected by the user at a time: Ctrl and Shift count for nothing in the row header,
    // and the key A selects nothing in a grid of more rows than one. The corner and programs still select
    // all.
    bool IsSingleSelRow() const { return HasFlag(SingleSelRowFlag); }
    void SetSingleSelRow(bool on) { SetFlag(SingleSelRowFlag, on); }
    // The user cannot paste rows. The menu of a row then offers neither copying nor cutting, whose keys still
    // work, as the menu of the corner does.
    bool IsNoPaste() const { return HasFlag(NoPasteFlag); }
    void SetNoPaste(bool on) { SetFlag(NoPasteFlag, on); }
    // A mark for hosts that sort by labels, which they read back themselves; the row order does not depend on
    // it.
    bool IsLabelSort() const { return HasFlag(LabelSortFlag); }
    void SetLabelSort(bool on) { SetFlag(LabelSortFlag, on); }
    // Header boxes are drawn flat instead of raised.
    bool IsFlatButton() const { return HasFlag(FlatButtonFlag); }
    void SetFlatButton(bool on) { SetFlag(FlatButtonFlag, on); }
    // The new-row line is hidden, the line below the last row in which the user begins a row by typing.
    bool IsNoAppendButton() const { return HasFlag(NoAppendButtonFlag | RowFixLengthFlag | ReadOnlyFlag); }
    void SetNoAppendButton(bool on) { SetFlag(NoAppendButtonFlag, on); }
    // The grid shows no context menus of its own; the right-click hooks are called as ever.
    bool IsNoDefaultMenu() const { return HasFlag(NoDefaultMenuFlag); }
    void SetNoDefaultMenu(bool on) { SetFlag(NoDefaultMenuFlag, on); }

protected:
    // Only as a base of a grid.
    explicit TGGridStyle(bool tree) : treeGrid(tree) {}
    ~TGGridStyle() = default;

    // The bits of the word, whose values are fixed: hosts keep style words and hand them to SetStyle. A bit
    // named ...Off switches off what is on in a new grid.
    enum Flag
    {
        ReadOnlyFlag = 0x0001,
        RowFixLengthFlag = 0x0002,
        ColFixLengthFlag = 0x0004,
        RowSelOffFlag = 0x0008,
        ColSelOffFlag = 0x0010,
        SortOffFlag = 0x0020,
        ColFixWidthFlag = 0x0040,
        ColPosFixFlag = 0x0080,
        RowPosFixFlag = 0x0100,
        TreeLineOffFlag = 0x0200,
        SingleSelRowFlag = 0x0400,
        NoPasteFlag = 0x0800,
        LabelSortFlag = 0x1000,
        FlatButtonFlag = 0x2000,
        NoAppendButtonFlag = 0x4000,
        NoDefaultMenuFlag = 0x8000
    };
    // True when any bit of `flags` is set, which is how one flag implies another.
    bool HasFlag(int flags) const { return (style & flags) != 0; }
    void SetFlag(Flag flag, bool on) { style = on ? style | flag : style & ~flag; }

    // In this order, for compiled hosts that derive from the grid.
    bool treeGrid;
    int style = 0;
};

} // namespace QuorUiCtr
