// TGGridCol: one column of the grid: its caption, edges, colours and the rules for its cells.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;

// A column. The grid owns its columns and keeps their index and edges; a host makes a column only to hand it
// to TGGrid::InsertCol or AppendCol. Edges are logical x coordinates in pixels; colours are COLORREF values.
class QUOR_EXT_CLASS TGGridCol
{
public:
    // Makes a column for `grid` with the caption `name` (null counts as empty), white cells and black text.
    TGGridCol(const wchar_t* name, TGGrid& grid);
    virtual ~TGGridCol();
    TGGridCol(const TGGridCol&) = delete;
    TGGridCol& operator=(const TGGridCol&) = delete;

    // The caption. "\n" breaks it into lines; the header's height follows at the grid's next layout.
    const CString& GetName() const { return name; }
    void SetName(const wchar_t* newName);
    // Zero-based position among the grid's columns.
    long GetIndex() const { return index; }
    // Width in pixels.
    long GetWidth() const { return right - left; }

    COLORREF GetTextColor() const { return textColor; }
    // Stores the colour; nothing is repainted.
    void SetTextColor(unsigned long color) { textColor = color; }
    COLORREF GetBackColor() const { return backColor; }
    // Stores the colour and replaces the background brush; nothing is repainted.
    void SetBackColor(unsigned long color);

    // The whole style word.
    int GetStyle() const { return style; }
    // Adds the bits of `bits` to the style word; never clears one.
    void SetStyle(int bits) { style |= bits; }

    // Cells of the column cannot be edited; a read-only grid makes every column read-only.
    bool IsReadOnly() const;
    void SetReadOnly(bool on) { SetFlag(ReadOnlyFlag, on); }
    // Cells are edited in a combo box whose text can be typed.
    bool IsComboEdit() const { return HasFlag(ComboEditFlag); }
    void SetComboEdit(bool on) { SetFlag(ComboEditFlag, on); }
    // Cells are edited in a combo box whose text can only be chosen.
    bool IsComboSel() const { return HasFlag(ComboSelFlag); }
    void SetComboSel(bool on) { SetFlag(ComboSelFlag, on); }
    // Cells are edited in a field with a button at its right end.
    bool IsRightButton() const { return HasFlag(RightButtonFlag); }
    void SetRightButton(bool on) { SetFlag(RightButtonFlag, on); }
    // Cells are edited in a field with a spin control at its right end.
    bool IsRightSpin() const { return HasFlag(RightSpinFlag); }
    void SetRightSpin(bool on) { SetFlag(RightSpinFlag, on); }
    // Cell texts and the caption are centred.
    bool IsCenterAlign() const { return HasFlag(CenterAlignFlag); }
    void SetCenterAlign(bool on) { SetFlag(CenterAlignFlag, on); }

    // Columns are ordered by their index.
    bool operator<(const TGGridCol& other) const { return index < other.index; }
    bool operator>(const TGGridCol& other) const { return index > other.index; }

protected:
    friend class TGGrid;
    friend class TGGridRow;
    friend class TGGridTreeRow;
    friend class TGGridCell;
    friend class TGColSelector;

    void SetIndex(long newIndex) { index = newIndex; }
    void SetLeft(long x) { left = x; }
    void SetRight(long x) { right = x; }
    // Moves both edges by `distance` pixels.
    void Move(long distance);
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

    long index = 0;
    int style = 0;
    CString name;
    long left = 0;
    long right = 0;
    COLORREF backColor = RGB(255, 255, 255);
    COLORREF textColor = RGB(0, 0, 0);
    CBrush brush;
    TGGrid* grid;
};

} // namespace QuorUiCtr
