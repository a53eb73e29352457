// TGGridCol: one column of the grid: its caption, edges, colours and the rules for its cells.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;

// A column: caption, place, colours, and how its cells are edited. The grid owns its columns and keeps their
// index and edges; a host makes a column only to hand it to TGGrid::InsertCol or AppendCol, or derives from
// it to hang data of its own on it. Edges are logical x coordinates in pixels; colours are COLORREF values.
//
//     grid.AppendCol(L"Unit", 60);
//     grid.GetCol(2).SetComboSel(true);                   // filled by the grid's OnCellComboString
//     grid.GetCol(2).SetBackColor(RGB(240, 240, 240));
//     grid.Invalidate(1);
//
// The style word says which editor the grid's default OnGetCellEdit makes. Of several kinds switched on the
// first counts, in this order: typed combo, chosen combo, button, spin; without any it is a plain edit.
// Setters change the word alone: what is on the screen, an open editor included, follows when it is painted
// or opened anew.
class QUOR_EXT_CLASS TGGridCol
{
public:
    // Makes a column for `grid` with the caption `name` (null counts as empty), white cells and black text.
    TGGridCol(const wchar_t* name, TGGrid& grid);
    // The cells of the column are the rows', who remove them first.
    virtual ~TGGridCol();
    TGGridCol(const TGGridCol&) = delete;
    TGGridCol& operator=(const TGGridCol&) = delete;

    // The caption. "\n" breaks it into lines; the header's height follows at the grid's next layout.
    const CString& GetName() const { return name; }
    // Null counts as empty. Nothing is laid out or repainted.
    void SetName(const wchar_t* newName);
    // Zero-based position among the grid's columns; 0 before the column is entered.
    long GetIndex() const { return index; }
    // Width in pixels. It is given to TGGrid::InsertCol and changed by the user, by FitLastCol and here.
    long GetWidth() const { return right - left; }
    // 0 to 65535 (asserted; others are brought into the range). The columns behind follow; lays out anew,
    // which ends an open edit. Nothing for a column that is not entered yet.
    void SetWidth(long pixels);

    // The colour of the cells' texts, which OnBeforeRefresh may replace cell by cell.
    COLORREF GetTextColor() const { return textColor; }
    // Stores the colour; nothing is repainted.
    void SetTextColor(unsigned long color) { textColor = color; }
    // The colour of the cells behind their texts.
    COLORREF GetBackColor() const { return backColor; }
    // Stores the colour and replaces the background brush; nothing is repainted.
    void SetBackColor(unsigned long color);

    // The whole style word, whose bits are those of Flag below.
    int GetStyle() const { return style; }
    // Adds the bits of `bits` to the style word, for hosts that have kept a word; never clears one.
    void SetStyle(int bits) { style |= bits; }

    // The user cannot edit the cells of the column; a read-only grid makes every column read-only, whatever
    // its own flag, which the setter changes.
    bool IsReadOnly() const;
    void SetReadOnly(bool on) { SetFlag(ReadOnlyFlag, on); }
    // Cells are edited in a combo box whose text can be typed: TGCellCombo.
    bool IsComboEdit() const { return HasFlag(ComboEditFlag); }
    void SetComboEdit(bool on) { SetFlag(ComboEditFlag, on); }
    // Cells are edited in a combo box whose text can only be chosen. A text that its list lacks is replaced
    // only when the user chooses.
    bool IsComboSel() const { return HasFlag(ComboSelFlag); }
    void SetComboSel(bool on) { SetFlag(ComboSelFlag, on); }
    // Cells are edited in a field with a button at its right end: TGCellButtonEdit.
    bool IsRightButton() const { return HasFlag(RightButtonFlag); }
    void SetRightButton(bool on) { SetFlag(RightButtonFlag, on); }
    // Cells are edited in a field with a spin control at its right end: TGCellSpinEdit.
    bool IsRightSpin() const { return HasFlag(RightSpinFlag); }
    void SetRightSpin(bool on) { SetFlag(RightSpinFlag, on); }
    // Cell texts, their editor's text and the caption are centred; else they begin at the left.
    bool IsCenterAlign() const { return HasFlag(CenterAlignFlag); }
    void SetCenterAlign(bool on) { SetFlag(CenterAlignFlag, on); }

    // Columns are ordered by their index; columns of different grids must not be compared.
    bool operator<(const TGGridCol& other) const { return index < other.index; }
    bool operator>(const TGGridCol& other) const { return index > other.index; }

protected:
    friend class TGGrid;
    friend class TGGridRow;
    friend class TGGridTreeRow;
    friend class TGGridCell;
    friend class TGGridExtension;
    friend class TGColSelector;

    // For the grid, which numbers its columns and lays them side by side; a derived column reads.
    void SetIndex(long newIndex) { index = newIndex; }
    void SetLeft(long x) { left = x; }
    void SetRight(long x) { right = x; }
    // Moves both edges by `distance` pixels.
    void Move(long distance);
    // The first pixel of the column, which is the right edge of the column before, and the first beyond it.
    long GetLeft() const { return left; }
    long GetRight() const { return right; }
    // The brush of the background colour; owned by the column and replaced by SetBackColor.
    CBrush& GetBrush() { return brush; }
    // Logical y below the last row, the new-row line included when it is shown.
    long GetBottom() const;
    // The column's band over all rows, in logical coordinates.
    void GetRect(CRect& rect) const;
    // Inverts the column's band on the grid's drawing context. The argument is ignored: two calls restore the
    // pixels, so callers pair them.
    void Select(bool selected);

private:
    // The bits of the style word. Hosts that were compiled or that keep style words use these values.
    enum Flag
    {
        ReadOnlyFlag = 0x01,
        ComboEditFlag = 0x02,
        ComboSelFlag = 0x04,
        RightButtonFlag = 0x08,
        RightSpinFlag = 0x10,
        CenterAlignFlag = 0x20
    };
    bool HasFlag(Flag flag) const { return (style & flag) != 0; }
    void SetFlag(Flag flag, bool on) { style = on ? style | flag : style & ~flag; }

    // The fields keep this order: compiled hosts that derive were built with it.
    long index = 0;
    int style = 0;
    // The caption, with its line breaks.
    CString name;
    // Logical x, in pixels.
    long left = 0;
    long right = 0;
    COLORREF backColor = RGB(255, 255, 255);
    COLORREF textColor = RGB(0, 0, 0);
    // Always of the colour backColor.
    CBrush brush;
    // The grid that owns the column; never null.
    TGGrid* grid;
    // Counts up from column to column of the grid: tells a column from a deleted one at the same address.
    unsigned serial;
};

} // namespace QuorUiCtr
