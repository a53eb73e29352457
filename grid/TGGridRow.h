// TGGridRow: one row of the grid with its cells and its host data.
#pragma once

#include "grid/TGGridCell.h"
#include "grid/TGRowData.h"
#include "grid/collections/PDList.h"
#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

class CellBlock;
class TGGrid;
class TGGridCol;

// A row owns one cell per column of its grid, in column order, and at most one object of host data. The grid
// owns its rows; a host makes a row only to hand it to an inserting operation or out of an inserting hook.
//
//     TGGridRow* row = new TGGridRow(grid);
//     (*row)[0].SetText(L"6204");
//     row->SetExtendData(new Bearing(catalogue, L"6204"));    // the row's from now on
//     row->SetDelUnable(true);
//     grid.AppendRow(row);                                    // the grid's from now on
//     const Bearing* bearing = static_cast<Bearing*>(grid.GetRow(0).GetExtendData());
//
// A reference to a row is good until the row is removed; cutting and pasting in a tree copies rows. Setters
// change the row alone: nothing is repainted, and an open editor goes on.
class QUOR_EXT_CLASS TGGridRow
{
public:
    // Makes a row with one empty cell per column of `grid`; it is not entered into the grid.
    explicit TGGridRow(TGGrid& grid);
    // A second view of the same row, for looking only: it borrows the cells and the host data, which the
    // source goes on owning, and is to be gone before they are.
    TGGridRow(const TGGridRow& other) = default;

    // Takes over what the user sees of `other`, style word, texts and styles of the cells, column by column.
    // What makes a row this one stays: its place and its host data. Cells beyond the shorter row stay, too.
    TGGridRow& operator=(TGGridRow& other);

    // The cell at the zero-based column index `col`, which the caller keeps inside the grid's columns
    // (asserted).
    TGGridCell& operator[](long col);
    // Zero-based position in the grid; -1 while the row is not shown (a child of a folded row).
    long GetIndex() const;

    // The host data, owned by the row; null when there is none. The row never looks into it.
    TGRowData* GetExtendData() const { return extendData; }
    // Deletes the present host data and stores `data` (null allowed), which the row owns from now on. Passing
    // the pointer already held deletes it: pass a new object.
    void SetExtendData(TGRowData* data);

    // The style word, whose bits are those of Flag below; the flag of a tree row's unfolding is among them.
    int GetStyle() const { return style; }
    // The user can neither edit the row's cells nor delete the row; a read-only grid makes every row so. The
    // setter changes the row's own flag.
    bool IsReadOnly() const;
    void SetReadOnly(bool on) { SetFlag(ReadOnlyFlag, on); }
    // The row cannot be deleted by the user: its own flag, its read-only flag or the grid's.
    bool IsDelUnable() const;
    void SetDelUnable(bool on) { SetFlag(DelUnableFlag, on); }

    // Row order: the texts of the grid's key columns, or of its selected columns when it has no keys,
    // compared case-sensitively one after the other; false when all are equal or there is no such column.
    // Numbers are compared as texts, so 10 comes before 9.
    bool operator<(TGGridRow& other);
    bool operator>(TGGridRow& other);

protected:
    friend class TGGrid;
    friend class TGGridCell;
    friend class TGGridExtension;
    friend class TGGridTreeRow;
    friend class TGRowSelector;
    friend class TGTreeGrid;

    // The virtual operations keep this order, the destructor among them: compiled hosts derive from the class
    // and are called by place.

    // Called by the grid when its columns change, so that the row has a cell for each of them; positions have
    // the meaning of the grid's operations of the same name. At InsertCol and AppendCol the column is
    // in place already, at DelCol it is gone. A derived row that keeps something of its own for each column
    // follows here, and calls these.
    virtual void InsertCol(long position, TGGridCol& col);
    virtual void AppendCol(TGGridCol& col);
    virtual void DelCol(long position);
    virtual void MoveCol(long from, long to);

public:
    // Deletes the host data and the cells.
    virtual ~TGGridRow();
    // What a row is, without a cast; a TGGridRow is none of the three.
    // A tree row with at least one child.
    virtual bool IsParentRow();
    // A tree row that stands below a parent.
    virtual bool IsChildRow();
    // A TGGridTreeRow.
    virtual bool IsTreeRow();
    // Draws the row's cells on the grid's drawing context when the window exists and the grid's
    // OnRefresh(TGGridRow&) agrees; each cell asks OnRefresh(TGGridCell&) in turn.
    virtual void Refresh();

protected:
    // The grid that the row was made for, whether it stands in it or not.
    TGGrid& GetGrid() const { return *grid; }
    // The cell in a column, null where there is none; any index will do.
    TGGridCell* FindCell(long col);
    // The cell in column `col` exists and its text equals `text` exactly; null counts as empty.
    bool HasText(const wchar_t* text, long col);
    // Gives the host data away: the caller owns it, the row has none.
    TGRowData* ReleaseExtendData();

    // For the grid, which numbers its rows; nothing moves.
    void SetIndex(long newIndex);
    // The row's band in logical coordinates, in pixels; rows that are not shown lie above the first one.
    long GetLeft() const { return 0; }
    long GetTop() const;
    // As far as the cells reach; a grid without columns has bands without width.
    long GetRight() const;
    // The top of the next row.
    long GetBottom() const;
    // All four.
    void GetRect(CRect& rect) const;
    // Inverts the row's band on the grid's drawing context; the argument is ignored, two calls restore the
    // pixels. Does nothing without a window.
    void Select(bool selected);

    // The bits of the style word, whose values hosts were compiled with. Assignment copies all of them.
    enum Flag
    {
        ReadOnlyFlag = 0x01,
        DelUnableFlag = 0x02,
        UnfoldFlag = 0x10
    };
    // The row's own bit; nothing that it implies follows, nothing is repainted.
    bool HasFlag(Flag flag) const { return (style & flag) != 0; }
    void SetFlag(Flag flag, bool on) { style = on ? style | flag : style & ~flag; }

private:
    // Sign of the comparison of this row with `other` over the key or selected columns; 0 when equal.
    int CompareByKeys(TGGridRow& other);
    // Appends an empty cell; an empty slot for a null column.
    void AddCell(TGGridCol* col);
    // The same at a place of the row's block of cells.
    void AddCell(TGGridCol* col, CellBlock& block, unsigned place);
    bool FitsCols() const;
    // Gives the row one cell for each column of the grid, in their order: the cells that it has for them, and
    // empty ones. For a row that was made before the columns changed. Changes nothing when it throws.
    void FitToCols();

    // The fields down to `grid` keep this order: hosts that derive were compiled with it.
    // Owned, unless the row is a second view.
    TGRowData* extendData = nullptr;
    // As GetIndex() says.
    long index = -1;
    int style = 0;
    // Owned, unless the row is a second view; one for each column.
    PDList<TGGridCell> cells;
    // Never null.
    TGGrid* grid;
    // The serial number of the youngest column that there was when the cells were last in step.
    unsigned colsSeen;
    // An extension knows the row by its address.
    bool keptByAddress = false;
};

} // namespace QuorUiCtr
