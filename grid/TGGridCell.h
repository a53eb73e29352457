// TGGridCell: one cell of the grid: its text, its read-only rule, its rectangles and its drawing.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

#include <cstdlib>
#include <new>

namespace QuorUiCtr
{

class TGGrid;
class TGGridCol;
class TGGridRow;

// A cell holds a text and refers to the grid, the row and the column it stands in; the row owns it and has
// one for every column. All cell data is text; numbers are read from it on demand, so a grid can be filled,
// edited, sorted and copied without knowing what its texts mean.
//
//     grid.GetCell(row, col).SetText(L"12.5 kg");
//     const double weight = grid.GetCell(row, col);       // 12.5
//     grid.GetCell(row, col).SetReadOnly(true);
//     grid.GetCell(row, col).Refresh();                   // shows it at once; or Invalidate() the grid
//
// Cells come and go with rows and columns: a reference is good until the row or the column is removed.
class QUOR_EXT_CLASS TGGridCell
{
public:
    // Makes an empty cell of `row` in `col`.
    TGGridCell(TGGrid& grid, TGGridRow& row, TGGridCol& col);
    // Copies text, style and the three references. The copy is no cell of the row, which goes on owning the
    // original; it must be gone before grid, row and column are.
    TGGridCell(const TGGridCell& other);
    // The grid forgets the cell, also when it is under edit.
    virtual ~TGGridCell();

    // Deletes a cell, also one that shares its memory with the other cells of its row.
    static void operator delete(TGGridCell* cell, std::destroying_delete_t)
    {
        const unsigned place = cell->place;
        cell->~TGGridCell();
        if (place == 0)
            ::operator delete(cell);
        else
            GiveBack(cell, place);
    }

    // Copies text and style; the cell stays where it stands and is not repainted.
    TGGridCell& operator=(const TGGridCell& other);

    // The text itself, also for writing in place; what is drawn follows at the next painting.
    CString& GetText() { return text; }
    const CString& GetText() const { return text; }
    // Stores the text (null counts as empty); nothing is repainted and no hook is called. An open editor over
    // the cell goes on with its own text.
    // Extensions are told.
    void SetText(const wchar_t* newText);
    // Valid until the text is changed.
    operator const wchar_t*() const { return text; }
    // The leading decimal number of the text, 0 when there is none; what follows it is ignored.
    operator int() const { return _wtoi(text); }
    operator double() const { return _wtof(text); }

    // Where the cell stands. None of the three changes in its life.
    TGGridRow& GetRow() const { return *row; }
    TGGridCol& GetCol() const { return *col; }
    TGGrid& GetGrid() const { return *grid; }
    // Zero-based index of the row; -1 while the row is not shown. On the new-row line it is the number of
    // rows.
    long GetRowIndex() const;
    // Zero-based index of the column.
    long GetColIndex() const;

    // True when the cell, its column, its row or the grid is read-only: the user cannot edit it. Programs
    // can.
    bool IsReadOnly() const;
    // Sets or clears the cell's own flag, which cannot make a cell of a read-only row, column or grid
    // editable. Copied with the style. An editor that is open stays open.
    void SetReadOnly(bool on) { style = on ? style | ReadOnlyFlag : style & ~ReadOnlyFlag; }

    // The cell in logical coordinates: (column left, row top, column right, row bottom). Right and bottom are
    // the first pixels beyond it, as in any CRect: there run the grid lines that the next cells begin with.
    void GetRect(CRect& rect) const;
    // The same with left and top moved in by one pixel: inside the grid lines. The painted text begins lower,
    // by the row space, and in a tree's first column further right.
    void GetTextRect(CRect& rect) const;

    // Case-sensitive comparison of the texts by character codes, on which the order of rows is built.
    bool operator<(const TGGridCell& other) const { return text.Compare(other.text) < 0; }
    bool operator>(const TGGridCell& other) const { return text.Compare(other.text) > 0; }

    // Inverts the cell on the grid's drawing context; the argument is ignored, two calls restore the pixels.
    // Does nothing without a window.
    void Select(bool selected);
    // Draws the cell on the grid's drawing context: asks OnRefresh, lets OnBeforeRefresh set the colours,
    // then draws frame, background, tree decoration (first column) and text, and inverts what is selected.
    // Does nothing without a window or without a drawing context; between BeginUpdate and EndUpdate the whole
    // grid is repainted at the end instead.
    void Refresh();

private:
    friend class TGGridExtension;
    friend class TGGridRow;
    // The bits of the style word, of which the row copies all.
    enum
    {
        ReadOnlyFlag = 0x01
    };

    // SetText() with a text that may be shared.
    void StoreText(CString newText);
    // Draws frame, background and tree decoration in the colours of the context, and returns the place of the
    // text.
    CRect DrawBox(CDC& context, const CRect& cell) const;
    // Whether any of the rectangle is being painted.
    bool IsPainted(CDC& context, const CRect& outline) const;
    // Draws box and text as extensions want them.
    void DrawExtended(CDC& context);
    // How CDC::DrawText draws the text, and where, in logical coordinates.
    UINT TextFormat() const;
    CRect TextPlace() const;
    // Draws the text as one line, at the top of the rectangle and in the column's alignment.
    void DrawCellText(CDC& context, CRect textRect) const;
    // Draw the fold box and the lines of a tree row; the first returns the x from which its text starts.
    long DrawTreeDecoration(CDC& context, const CRect& cell) const;
    void DrawChildLines(CDC& context, const CRect& cell, const CRect& parentBox) const;

    // Gives back the memory of a cell that stood at `place` of its row's block.
    static void GiveBack(void* memory, unsigned place);

    // The fields keep this order: compiled hosts that derive were built with it.
    CString text;
    int style = 0;
    // Where in its row's block of cells the cell stands, counted from 1; 0 when it has memory of its own.
    unsigned place = 0;
    // Never null and never owned.
    TGGridRow* row;
    TGGridCol* col;
    TGGrid* grid;
};

} // namespace QuorUiCtr
