// Checks rows against columns, tree against rows, selection against both, edit against windows.
#include "tests/fuzz/GridInvariants.h"
#include "tests/fuzz/Step.h"

#include "grid/TGGridTreeRow.h"

namespace quor::fuzz
{

using namespace QuorUiCtr;

namespace
{

constexpr int CellEditor = 101;

void CheckCols(TGGrid& grid)
{
    long right = 0;
    for (long i = 0; i < grid.GetColNum(); ++i)
    {
        const TGGridCol& col = grid.GetCol(i);
        if (col.GetIndex() != i)
            Fail("column %ld has the index %ld", i, col.GetIndex());
        if (col.GetWidth() < 0)
            Fail("column %ld has the width %ld", i, col.GetWidth());
        right += col.GetWidth();
    }
    if (right != grid.GetRight())
        Fail("the columns end at %ld, not at %ld", grid.GetRight(), right);
}

void CheckCells(TGGrid& grid, TGGridRow& row)
{
    for (long i = 0; i < grid.GetColNum(); ++i)
    {
        const TGGridCell& cell = row[i];
        if (&cell.GetRow() != &row || &cell.GetCol() != &grid.GetCol(i) || &cell.GetGrid() != &grid)
            Fail("the cell %ld of row %ld stands elsewhere", i, row.GetIndex());
    }
}

// Goes through a row and what is below it; `next` is the index that the next shown row must have.
void CheckTree(TGGrid& grid, TGGridTreeRow& row, bool shown, long& next)
{
    if (row.GetIndex() != (shown ? next : -1))
        Fail("a row has the index %ld, not %ld", row.GetIndex(), shown ? next : -1);
    if (shown && &grid.GetRow(next) != &row)
        Fail("another row stands at %ld", next);
    next += shown ? 1 : 0;
    CheckCells(grid, row);
    const bool showsChildren = shown && !row.IsFold();
    for (long i = 0; i < row.GetChildNum(); ++i)
    {
        TGGridTreeRow& child = row.GetChild(i);
        if (child.Parent() != &row)
            Fail("the child %ld of a row has another parent", i);
        CheckTree(grid, child, showsChildren, next);
    }
}

void CheckRows(TGGrid& grid)
{
    for (long i = 0; i < grid.GetRowNum();)
    {
        TGGridRow& row = grid.GetRow(i);
        if (row.IsTreeRow())
        {
            if (row.IsChildRow())
                Fail("the child row %ld does not follow its parent", i);
            CheckTree(grid, static_cast<TGGridTreeRow&>(row), true, i);
            continue;
        }
        if (row.GetIndex() != i)
            Fail("row %ld has the index %ld", i, row.GetIndex());
        CheckCells(grid, row);
        ++i;
    }
}

void CheckSelection(TGGrid& grid)
{
    long selectedRows = 0;
    for (long i = 0; i < grid.GetRowNum(); ++i)
        selectedRows += grid.IsRowSelected(i) ? 1 : 0;
    long selectedCols = 0;
    for (long i = 0; i < grid.GetColNum(); ++i)
        selectedCols += grid.IsColSelected(i) ? 1 : 0;
    if (selectedRows != grid.GetRowSelNum())
        Fail("%ld rows of %ld are selected, and %ld entries are there", selectedRows, grid.GetRowNum(),
             grid.GetRowSelNum());
    // Deleting and inserting columns leaves the entries as they are, so that some may lie behind the last
    // column.
    if (selectedCols > grid.GetColSelNum())
        Fail("%ld columns of %ld are selected, and only %ld entries are there", selectedCols,
             grid.GetColNum(), grid.GetColSelNum());
    if (selectedRows > 0 && selectedCols > 0)
        Fail("both rows and columns are selected");
    for (long k = 1; k < selectedRows; ++k)
        if (grid.GetSelRow(k - 1).GetIndex() >= grid.GetSelRow(k).GetIndex())
            Fail("the selection is not sorted");
}

void CheckEdit(TGGrid& grid)
{
    const HWND editor = ::GetDlgItem(grid, CellEditor);
    const bool shown = editor != nullptr && (GetWindowLongPtrW(editor, GWL_STYLE) & WS_VISIBLE) != 0;
    if (grid.IsEditing() && editor == nullptr)
        Fail("a cell is edited without an editor");
    if (!grid.IsEditing() && shown)
        Fail("an editor is shown and no cell edited");
    long row = 0;
    long col = 0;
    if (!grid.GetCurCell(row, col))
        return;
    if (row < 0 || row > grid.GetRowNum() || col < 0 || col >= grid.GetColNum())
        Fail("the cell %ld,%ld is edited", row, col);
}

} // namespace

void CheckGrid(TGGrid& grid)
{
    CheckCols(grid);
    CheckRows(grid);
    CheckSelection(grid);
    CheckEdit(grid);
    if (grid.IsUpdating())
        Fail("an update has not ended");
}

unsigned long DigestOfGrid(TGGrid& grid)
{
    unsigned long digest = static_cast<unsigned long>(grid.GetRowNum() * 64 + grid.GetColNum());
    for (const long number : {grid.GetRowSelNum(), grid.GetColSelNum(), grid.GetRight(), grid.GetBottom(),
                              grid.IsEditing() ? 1L : 0L, grid.GetCurRowIndex()})
        digest = digest * 31u + static_cast<unsigned long>(number);
    return digest;
}

} // namespace quor::fuzz
