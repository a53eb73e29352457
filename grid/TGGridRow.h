// TGGridRow: one row of the grid with its cells and its host data.
#pragma once

#include "grid/TGGridCell.h"
#include "grid/TGRowData.h"
#include "grid/collections/PDList.h"
#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class TGGrid;
class TGGridCol;

// A row owns one cell per column of its grid, in column order, and at most one object of host data. The grid
// owns its rows; a host makes a row only to hand it to an inserting operation or out of an inserting hook.
class QUOR_EXT_CLASS TGGridRow
{
public:
    // Makes a row with one empty cell per column of `grid`; it is not entered into the grid.
    explicit TGGridRow(TGGrid& grid);
    // Memberwise: the copy shows the same cells and host data, which the source goes on owning; it must not
    // be used longer than they exist.
    TGGridRow(const TGGridRow& other) = default;

    // Copies the style word and, for every column of the grid, the cell's style and text; neither the index
    // nor the host data.
    TGGridRow& operator=(TGGridRow& other);

    // The cell at the zero-based column index `col`, which the caller keeps inside the grid's columns.
    TGGridCell& operator[](long col);
    // Zero-based position in the grid; -1 while the row is not shown (a child of a folded row).
    long GetIndex() const { return index; }

    // The host data, owned by the row; null when there is none.
    TGRowData* GetExtendData() const { return extendData; }
    // Deletes the present host data and stores `data` (null allowed), which the row owns from now on. Passing
    // the pointer already held deletes it: pass a new object.
    void SetExtendData(TGRowData* data);

    int GetStyle() const { return style; }
    // The row's cells cannot be edited and the row cannot be deleted; a read-only grid makes every row so.
    bool IsReadOnly() const;
    void SetReadOnly(bool on) { SetFlag(ReadOnlyFlag, on); }
    // The row cannot be deleted by the user: its own flag, its read-only flag or the grid's.
    bool IsDelUnable() const;
    void SetDelUnable(bool on) { SetFlag(DelUnableFlag, on); }

    // Row order: the texts of the grid's key columns, or of its selected columns when it has no keys,
    // compared case-sensitively one after the other; false when all are equal or there is no such column.
    bool operator<(TGGridRow& other);
    bool operator>(TGGridRow& other);

protected:
    friend class TGGrid;
    friend class TGGridCell;
    friend class TGGridTreeRow;
    friend class TGRowSelector;
    friend class TGTreeGrid;

    // The virtual operations keep this order. The first four are called by the grid when its columns change;
    // positions have the meaning of the grid's operations of the same name.
    virtual void InsertCol(long position, TGGridCol& col);
    virtual void AppendCol(TGGridCol& col);
    virtual void DelCol(long position);
    virtual void MoveCol(long from, long to);

public:
    // Deletes the host data and the cells.
    virtual ~TGGridRow();
    // A tree row with at least one child.
    virtual bool IsParentRow();
    // A tree row that stands below a parent.
    virtual bool IsChildRow();
    // A TGGridTreeRow.
    virtual bool IsTreeRow();
    // Draws the row's cells on the grid's drawing context when the window exists and the grid's
    // OnRefresh(TGGridRow&) agrees.
    virtual void Refresh();

protected:
    TGGrid& GetGrid() const { return *grid; }
    // The cell in a column, null where there is none.
    TGGridCell* FindCell(long col);
    // The cell in column `col` exists and its text equals `text` exactly.
    bool HasText(const wchar_t* text, long col);
    // Gives the host data away.
    TGRowData* ReleaseExtendData();

    void SetIndex(long newIndex) { index = newIndex; }
    // Logical coordinates, in pixels.
    long GetLeft() const { return 0; }
    long GetTop() const;
    // Right edge of the last column, 0 when there are no columns.
    long GetRight() const;
    long GetBottom() const;
    void GetRect(CRect& rect) const;
    // Inverts the row's band on the grid's drawing context; the argument is ignored, two calls restore the
    // pixels. Does nothing without a window.
    void Select(bool selected);

    enum Flag
    {
        ReadOnlyFlag = 0x01,
        DelUnableFlag = 0x02,
        UnfoldFlag = 0x10
    };
    bool HasFlag(Flag flag) const { return (style & flag) != 0; }
    void SetFlag(Flag flag, bool on) { style = on ? style | flag : style & ~flag; }

private:
    // Sign of the comparison of this row with `other` over the key or selected columns; 0 when equal.
    int CompareByKeys(TGGridRow& other);
    void AddCell(TGGridCol* col);

    TGRowData* extendData = nullptr;
    long index = -1;
    int style = 0;
    PDList<TGGridCell> cells;
    TGGrid* grid;
};

} // namespace QuorUiCtr
