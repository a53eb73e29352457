// Insertion, deletion and movement of columns.
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class GridCols : public testing::Test
{
protected:
    void Fill(std::initializer_list<const wchar_t*> names)
    {
        for (const wchar_t* name : names)
            grid.AppendCol(name, 10);
    }

    // One row whose cells carry the names of their columns.
    TGGridRow& LabelRow()
    {
        grid.AppendRow(nullptr);
        for (long i = 0; i < grid.GetColNum(); ++i)
            grid.GetCell(0, i).SetText(grid.GetCol(i).GetName());
        return grid.GetRow(0);
    }

    ModelGrid grid;
};

TEST_F(GridCols, AppendedColumnsTileFromZero)
{
    grid.AppendCol(L"a", 30);
    grid.AppendCol(L"b", 0);
    grid.AppendCol(new TGGridCol(L"c", grid), 50);
    grid.AppendCol(static_cast<TGGridCol*>(nullptr), 5);
    EXPECT_EQ(Columns(grid), "a 0-30 | b 30-130 | c 130-180 |  180-185");
}

TEST_F(GridCols, WidthZeroMeansThePresentDefaultWidth)
{
    grid.SetDefaultWidth(44);
    grid.AppendCol(L"a", 0);
    grid.InsertCol(0, L"b", 0);
    EXPECT_EQ(Columns(grid), "b 0-44 | a 44-88");
}

TEST_F(GridCols, InsertColShiftsTheColumnsBehind)
{
    grid.InsertCol(0, L"a", 10);
    grid.InsertCol(1, L"c", 20);
    grid.InsertCol(1, L"b", 30);
    EXPECT_EQ(Columns(grid), "a 0-10 | b 10-40 | c 40-60");
    grid.InsertCol(0, static_cast<TGGridCol*>(nullptr), 1);
    EXPECT_EQ(Columns(grid), " 0-1 | a 1-11 | b 11-41 | c 41-61");
}

TEST_F(GridCols, RowsFollowInsertedAppendedAndDeletedColumns)
{
    Fill({L"a", L"b"});
    TGGridRow& row = LabelRow();
    grid.InsertCol(1, L"x", 0);
    EXPECT_EQ(Cells(grid, row), "a||b");
    grid.AppendCol(L"y", 0);
    EXPECT_EQ(Cells(grid, row), "a||b|");
    grid.DelCol(0);
    EXPECT_EQ(Cells(grid, row), "|b|");
}

TEST_F(GridCols, RowsOfThePasteBufferFollowTheColumnsToo)
{
    Fill({L"a", L"b"});
    auto* pasted = new TGGridRow(grid);
    (*pasted)[1].SetText(L"b");
    grid.GetRowPaste().Append(pasted);
    grid.InsertCol(0, L"x", 0);
    grid.DelCol(1);
    EXPECT_EQ(Cells(grid, *pasted), "|b");
}

TEST_F(GridCols, DelColMovesTheColumnsBehindToTheLeft)
{
    grid.AppendCol(L"a", 10);
    grid.AppendCol(L"b", 20);
    grid.AppendCol(L"c", 30);
    grid.DelCol(1);
    EXPECT_EQ(Columns(grid), "a 0-10 | c 10-40");
    grid.DelCol(0);
    EXPECT_EQ(Columns(grid), "c 0-30");
    grid.DelCol(0);
    EXPECT_EQ(Columns(grid), "");
}

TEST_F(GridCols, MoveColToTheRightPlacesTheColumnBeforeTheTarget)
{
    grid.AppendCol(L"a", 10);
    grid.AppendCol(L"b", 20);
    grid.AppendCol(L"c", 30);
    grid.AppendCol(L"d", 40);
    TGGridRow& row = LabelRow();
    grid.MoveCol(0, 3);
    EXPECT_EQ(Columns(grid), "b 0-20 | c 20-50 | a 50-60 | d 60-100");
    EXPECT_EQ(Cells(grid, row), "b|c|a|d");
    grid.MoveCol(1, 4);
    EXPECT_EQ(Columns(grid), "b 0-20 | a 20-30 | d 30-70 | c 70-100");
    EXPECT_EQ(Cells(grid, row), "b|a|d|c");
}

TEST_F(GridCols, MoveColToTheLeftPlacesTheColumnBeforeTheTarget)
{
    grid.AppendCol(L"a", 10);
    grid.AppendCol(L"b", 20);
    grid.AppendCol(L"c", 30);
    grid.AppendCol(L"d", 40);
    TGGridRow& row = LabelRow();
    grid.MoveCol(3, 1);
    EXPECT_EQ(Columns(grid), "a 0-10 | d 10-50 | b 50-70 | c 70-100");
    EXPECT_EQ(Cells(grid, row), "a|d|b|c");
    grid.MoveCol(2, 0);
    EXPECT_EQ(Columns(grid), "b 0-20 | a 20-30 | d 30-70 | c 70-100");
}

TEST_F(GridCols, MoveColToItsOwnPlaceDoesNothing)
{
    Fill({L"a", L"b", L"c", L"d", L"e"});
    grid.MoveCol(3, 4);
    grid.MoveCol(3, 3);
    EXPECT_EQ(Columns(grid), "a 0-10 | b 10-20 | c 20-30 | d 30-40 | e 40-50");
}

TEST_F(GridCols, MoveColLeavesTheSelectionItsNumbers)
{
    Fill({L"a", L"b", L"c"});
    grid.SelectCol(0, true);
    grid.MoveCol(0, 3);
    EXPECT_EQ(Selection(grid), "cols 0 | cur -1,0");
}

TEST_F(GridCols, SetColNumOnAnEmptyGridMakesUnnamedColumnsOfTheDefaultWidth)
{
    grid.SetColNum(3);
    EXPECT_EQ(Columns(grid), " 0-100 |  100-200 |  200-300");
}

TEST_F(GridCols, SetColNumDeletesFromTheEnd)
{
    Fill({L"a", L"b", L"c"});
    TGGridRow& row = LabelRow();
    grid.SetColNum(1);
    EXPECT_EQ(Columns(grid), "a 0-10");
    EXPECT_EQ(Cells(grid, row), "a");
    grid.SetColNum(-4);
    EXPECT_TRUE(grid.IsColEmpty());
}

// The walk over the column selection ends where the columns' cursor is out, and the loop over the columns
// behind the inserted one leaves that cursor past the end.
TEST_F(GridCols, InsertColLeavesTheColumnSelectionItsNumbers)
{
    Fill({L"a", L"b", L"c", L"d"});
    grid.SelectCol(1, true);
    grid.SelectCol(3, true);
    grid.InsertCol(1, L"x", 0);
    EXPECT_EQ(Selection(grid), "cols 1 3 | cur -1,-1");
}

TEST_F(GridCols, DelColDeselectsTheColumnAndLeavesTheOthersTheirNumbers)
{
    Fill({L"a", L"b", L"c", L"d", L"e"});
    grid.SelectCol(1, true);
    grid.SelectCol(2, true);
    grid.SelectCol(3, true);
    grid.DelCol(1);
    EXPECT_EQ(Selection(grid), "cols 2 3 | cur -1,-1");
    grid.DelCol(0);
    EXPECT_EQ(Selection(grid), "cols 2 | cur -1,-1");
    EXPECT_EQ(grid.GetColSelNum(), 2);
}

// The numbers that are left may name columns that are gone.
TEST_F(GridCols, ColumnsThatAreSelectedButGoneAreSkipped)
{
    Fill({L"a", L"b", L"c"});
    grid.SelectCol(1, true);
    grid.SelectCol(2, true);
    grid.DelCol(0);
    EXPECT_EQ(grid.GetColSelNum(), 2);
    List<TGGridCol*> selected;
    grid.GetSel(selected);
    EXPECT_EQ(selected.GetNum(), 1);
    AddRows(grid, "ba");
    EXPECT_FALSE(grid.GetRow(0) < grid.GetRow(1));
    grid.UnSelect();
    EXPECT_EQ(Selection(grid), "none | cur -1,-1");
    EXPECT_EQ(grid.GetColNum(), 2);
}

// A row of the host's that looks at a column while the columns change brings their cursor back inside: then
// the last entry alone is changed, once for every step of that cursor back to the first column.
class LookingRow : public TGGridRow
{
public:
    LookingRow(TGGrid& owner, long lookedAt) : TGGridRow(owner), grid(owner), col(lookedAt) {}

protected:
    void InsertCol(long position, TGGridCol& inserted) override
    {
        TGGridRow::InsertCol(position, inserted);
        grid.GetCol(col);
    }
    void DelCol(long position) override
    {
        TGGridRow::DelCol(position);
        grid.GetCol(col);
    }

private:
    TGGrid& grid;
    long col;
};

TEST_F(GridCols, AColumnsCursorBroughtBackByARowAdjustsTheLastSelectedColumnOnDeletion)
{
    Fill({L"a", L"b", L"c", L"d", L"e", L"f"});
    grid.AppendRow(new LookingRow(grid, 1));
    grid.SelectCol(2, true);
    grid.SelectCol(5, true);
    grid.DelCol(0);
    // Columns 1 and 0: two steps.
    EXPECT_EQ(Selection(grid), "cols 2 3 | cur -1,-1");
}

TEST_F(GridCols, TheAdjustmentOnDeletionStopsAtTheDeletedColumn)
{
    Fill({L"a", L"b", L"c", L"d", L"e", L"f"});
    grid.AppendRow(new LookingRow(grid, 4));
    grid.SelectCol(3, true);
    grid.DelCol(1);
    EXPECT_EQ(Selection(grid), "cols 1 | cur -1,3");
}

TEST_F(GridCols, AColumnsCursorBroughtBackByARowAdjustsTheLastSelectedColumnOnInsertion)
{
    Fill({L"a", L"b", L"c", L"d", L"e", L"f"});
    grid.AppendRow(new LookingRow(grid, 0));
    grid.SelectCol(1, true);
    grid.SelectCol(3, true);
    grid.InsertCol(1, L"x", 0);
    EXPECT_EQ(Selection(grid), "cols 1 4 | cur -1,-1");
}

} // namespace
} // namespace quor::test
