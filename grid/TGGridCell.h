// TGGridCell: one cell of the grid: its text, its read-only rule, its rectangles and its drawing.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

#include <cstdlib>

namespace QuorUiCtr
{

class TGGrid;
class TGGridCol;
class TGGridRow;

// A cell holds a text and refers to the grid, the row and the column it stands in; the row owns it.
// All cell data is text; numbers are read from it on demand.
class QUOR_EXT_CLASS TGGridCell
{
public:
    // Makes an empty cell of `row` in `col`.
    TGGridCell(TGGrid& grid, TGGridRow& row, TGGridCol& col);
    // Copies text, style and the three references.
    TGGridCell(const TGGridCell& other) = default;
    virtual ~TGGridCell();

    // Copies text and style; the cell stays where it stands.
    TGGridCell& operator=(const TGGridCell& other);

    CString& GetText() { return text; }
    const CString& GetText() const { return text; }
    // Stores the text (null counts as empty); nothing is repainted and no hook is called.
    void SetText(const wchar_t* newText) { text = newText; }
    operator const wchar_t*() const { return text; }
    // The leading decimal number of the text, 0 when there is none.
    operator int() const { return _wtoi(text); }
    operator double() const { return _wtof(text); }

    TGGridRow& GetRow() const { return *row; }
    TGGridCol& GetCol() const { return *col; }
    TGGrid& GetGrid() const { return *grid; }
    // Zero-based index of the row; -1 while the row is not shown.
    long GetRowIndex() const;
    // Zero-based index of the column.
    long GetColIndex() const;

    // True when the cell, its column, its row or the grid is read-only.
    bool IsReadOnly() const;
    // Sets or clears the cell's own flag.
    void SetReadOnly(bool on) { style = on ? style | ReadOnlyFlag : style & ~ReadOnlyFlag; }

    // The cell in logical coordinates: (column left, row top, column right, row bottom).
    void GetRect(CRect& rect) const;
    // The same with left and top moved in by one pixel.
    void GetTextRect(CRect& rect) const;

    // Case-sensitive comparison of the texts.
    bool operator<(const TGGridCell& other) const { return text.Compare(other.text) < 0; }
    bool operator>(const TGGridCell& other) const { return text.Compare(other.text) > 0; }

    // Inverts the cell on the grid's drawing context; the argument is ignored, two calls restore the pixels.
    // Does nothing without a window.
    void Select(bool selected);
    // Draws the cell on the grid's drawing context: asks OnRefresh, lets OnBeforeRefresh set the colours,
    // then draws frame, background, tree decoration (first column) and text. Does nothing without a window or
    // without a drawing context.
    void Refresh();

private:
    friend class TGGridRow;
    enum
    {
        ReadOnlyFlag = 0x01
    };

    // Draws the cell in the colours of the context, unless it lies outside what is being painted.
    void Draw(CDC& context) const;
    void DrawCellText(CDC& context, CRect textRect) const;
    // Draw the fold box and the lines of a tree row; the first returns the x from which its text starts.
    long DrawTreeDecoration(CDC& context, const CRect& cell) const;
    void DrawChildLines(CDC& context, const CRect& cell, const CRect& parentBox) const;

    CString text;
    int style = 0;
    TGGridRow* row;
    TGGridCol* col;
    TGGrid* grid;
};

} // namespace QuorUiCtr
