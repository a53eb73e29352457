// TGGridStyle: the style word of a grid.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

// What the user may do in a grid and what it shows. Readers follow what a flag implies: a read-only grid has
// fixed lengths and positions, too. Every writer changes its own flag only; TGGrid has the writers that have
// an effect besides.
class QUOR_EXT_CLASS TGGridStyle
{
public:
    int GetStyle() const { return style; }
    // Adds the bits of `bits`; never clears one.
    void SetStyle(int bits) { style |= bits; }

    // Rows that the grid creates itself are tree rows.
    bool IsTreeGrid() const { return treeGrid; }
    // No edits, no structure commands; implies the fixed lengths and positions and hides the new-row line.
    bool IsReadOnly() const { return HasFlag(ReadOnlyFlag); }
    void SetReadOnly(bool on) { SetFlag(ReadOnlyFlag, on); }
    // The user cannot insert, append, delete or cut rows.
    bool IsRowFixLength() const { return HasFlag(RowFixLengthFlag | ReadOnlyFlag); }
    void SetRowFixLength(bool on) { SetFlag(RowFixLengthFlag, on); }
    // The user cannot insert, append or delete columns.
    bool IsColFixLength() const { return HasFlag(ColFixLengthFlag | ReadOnlyFlag); }
    void SetColFixLength(bool on) { SetFlag(ColFixLengthFlag, on); }
    // The row header is enabled; the column header is.
    bool IsRowSel() const { return !HasFlag(RowSelOffFlag); }
    bool IsColSel() const { return !HasFlag(ColSelOffFlag); }
    // Rows may be sorted: not switched off, not fixed in position, not read-only.
    bool IsSortEnable() const { return !HasFlag(SortOffFlag | RowPosFixFlag | ReadOnlyFlag); }
    void SetSortEnable(bool on) { SetFlag(SortOffFlag, !on); }
    // The user cannot resize columns.
    bool IsColFixWidth() const { return HasFlag(ColFixWidthFlag); }
    void SetColFixWidth(bool on) { SetFlag(ColFixWidthFlag, on); }
    // The user cannot move columns.
    bool IsColPosFix() const { return HasFlag(ColPosFixFlag | ReadOnlyFlag); }
    void SetColPosFix(bool on) { SetFlag(ColPosFixFlag, on); }
    // The user cannot move rows.
    bool IsRowPosFix() const { return HasFlag(RowPosFixFlag | ReadOnlyFlag); }
    void SetRowPosFix(bool on) { SetFlag(RowPosFixFlag, on); }
    // Tree rows are joined by lines.
    bool IsNeedTreeLine() const { return !HasFlag(TreeLineOffFlag); }
    // At most one row is selected by the user at a time.
    bool IsSingleSelRow() const { return HasFlag(SingleSelRowFlag); }
    void SetSingleSelRow(bool on) { SetFlag(SingleSelRowFlag, on); }
    // The user cannot paste rows.
    bool IsNoPaste() const { return HasFlag(NoPasteFlag); }
    void SetNoPaste(bool on) { SetFlag(NoPasteFlag, on); }
    // A mark for hosts that sort by labels; the row order does not depend on it.
    bool IsLabelSort() const { return HasFlag(LabelSortFlag); }
    void SetLabelSort(bool on) { SetFlag(LabelSortFlag, on); }
    // Header boxes are drawn flat.
    bool IsFlatButton() const { return HasFlag(FlatButtonFlag); }
    void SetFlatButton(bool on) { SetFlag(FlatButtonFlag, on); }
    // The new-row line is hidden.
    bool IsNoAppendButton() const { return HasFlag(NoAppendButtonFlag | RowFixLengthFlag | ReadOnlyFlag); }
    void SetNoAppendButton(bool on) { SetFlag(NoAppendButtonFlag, on); }
    // The grid shows no context menus of its own.
    bool IsNoDefaultMenu() const { return HasFlag(NoDefaultMenuFlag); }
    void SetNoDefaultMenu(bool on) { SetFlag(NoDefaultMenuFlag, on); }

protected:
    explicit TGGridStyle(bool tree) : treeGrid(tree) {}
    ~TGGridStyle() = default;

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
    bool HasFlag(int flags) const { return (style & flags) != 0; }
    void SetFlag(Flag flag, bool on) { style = on ? style | flag : style & ~flag; }

    bool treeGrid;
    int style = 0;
};

} // namespace QuorUiCtr
