// Insertion, deletion and movement of rows.
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class GridRows : public testing::Test
{
protected:
    GridRows() { AddCols(grid, 2); }

    void SelectRows(std::initializer_list<long> indices)
    {
        for (const long i : indices)
            grid.SelectRow(i, true);
    }

    TGGridRow* MakeRow(const wchar_t* text)
    {
        auto* row = new TGGridRow(grid);
        (*row)[0].SetText(text);
        return row;
    }

    ModelGrid grid;
};

TEST_F(GridRows, AppendRowPutsTheRowBehindTheLastAndMakesItCurrent)
{
    AddRows(grid, "ab");
    TGGridRow* row = MakeRow(L"c");
    grid.AppendRow(row);
    EXPECT_EQ(Texts(grid), "a b c");
    EXPECT_EQ(&grid.GetRow(2), row);
    grid.AppendRow(nullptr);
    EXPECT_EQ(grid.GetCur(), 3);
}

TEST_F(GridRows, RowsThatTheGridMakesHaveOneEmptyCellPerColumn)
{
    grid.AppendRow(nullptr);
    EXPECT_EQ(Cells(grid, grid.GetRow(0)), "|");
    EXPECT_FALSE(grid.GetRow(0).IsTreeRow());
}

TEST_F(GridRows, ATreeGridMakesTreeRows)
{
    ModelGrid tree(true);
    tree.AppendRow(nullptr);
    tree.InsertRow(0, nullptr);
    tree.SetRowNum(3);
    for (long i = 0; i < 3; ++i)
        EXPECT_TRUE(tree.GetRow(i).IsTreeRow());
}

TEST_F(GridRows, InsertRowPutsTheRowBeforeTheIndex)
{
    AddRows(grid, "ad");
    grid.InsertRow(1, MakeRow(L"c"));
    EXPECT_EQ(Texts(grid), "a c d");
    grid.InsertRow(0, MakeRow(L"0"));
    EXPECT_EQ(Texts(grid), "0 a c d");
    grid.InsertRow(4, MakeRow(L"e"));
    EXPECT_EQ(Texts(grid), "0 a c d e");
}

TEST_F(GridRows, InsertRowShiftsSelectedRowsAtAndBelowIt)
{
    AddRows(grid, "abcdefg");
    SelectRows({2, 5});
    grid.InsertRow(2, nullptr);
    EXPECT_EQ(Selection(grid), "rows 3 6 | cur -1,-1");
    grid.InsertRow(4, nullptr);
    EXPECT_EQ(Selection(grid), "rows 3 7 | cur -1,-1");
}

TEST_F(GridRows, InsertingAndAppendingRowsModifyNothingAndReportNoCurrentRow)
{
    AddRows(grid, "ab");
    grid.SelectRow(1, true);
    grid.curChanges = 0;
    grid.InsertRow(0, nullptr);
    grid.AppendRow(nullptr);
    EXPECT_EQ(grid.curChanges, 0);
    EXPECT_EQ(Selection(grid), "rows 2 | cur 2,-1");
    EXPECT_FALSE(grid.IsModified());
}

TEST_F(GridRows, TheRowCursorIsOutAfterInsertingDeletingAndMoving)
{
    AddRows(grid, "abcd");
    grid.MoveTo(1);
    grid.InsertRow(1, nullptr);
    EXPECT_TRUE(grid.IsOut());
    grid.MoveTo(1);
    grid.DelRow(1);
    EXPECT_TRUE(grid.IsOut());
    grid.MoveTo(1);
    grid.MoveRow(0, 3);
    EXPECT_TRUE(grid.IsOut());
}

TEST_F(GridRows, DelRowDeletesRowCellsAndHostData)
{
    AddRows(grid, "abc");
    grid.GetRow(1).SetExtendData(new CountedData);
    grid.DelRow(1);
    EXPECT_EQ(Texts(grid), "a c");
    EXPECT_EQ(CountedData::alive, 0);
}

TEST_F(GridRows, DelRowDeselectsTheRowAndShiftsTheRowsSelectedBelow)
{
    AddRows(grid, "abcdefg");
    SelectRows({1, 3, 5});
    grid.DelRow(3);
    EXPECT_EQ(Selection(grid), "rows 1 4 | cur -1,-1");
    grid.DelRow(2);
    EXPECT_EQ(Selection(grid), "rows 1 3 | cur -1,-1");
    grid.DelRow(4);
    EXPECT_EQ(Selection(grid), "rows 1 3 | cur -1,-1");
}

// The hook runs once, when the row is deselected, before the entries below move up; the current row follows.
TEST_F(GridRows, DelRowReportsTheCurrentRowBeforeTheRowsBelowMoveUp)
{
    AddRows(grid, "abcd");
    grid.SelectRow(3, true);
    grid.curChanges = 0;
    grid.DelRow(0);
    EXPECT_EQ(grid.curChanges, 1);
    EXPECT_EQ(Selection(grid), "rows 2 | cur 2,-1");
}

TEST_F(GridRows, MoveRowPlacesTheRowBeforeTheOneAtTheTarget)
{
    AddRows(grid, "012345");
    grid.MoveRow(3, 5);
    EXPECT_EQ(Texts(grid), "0 1 2 4 3 5");
    grid.MoveRow(0, 6);
    EXPECT_EQ(Texts(grid), "1 2 4 3 5 0");
    grid.MoveRow(5, 0);
    EXPECT_EQ(Texts(grid), "0 1 2 4 3 5");
}

TEST_F(GridRows, MoveRowToItsOwnPlaceDoesNothing)
{
    AddRows(grid, "012345");
    grid.MoveTo(2);
    grid.MoveRow(3, 4);
    grid.MoveRow(3, 3);
    EXPECT_EQ(grid.GetCur(), 2);
    EXPECT_EQ(Texts(grid), "0 1 2 3 4 5");
}

TEST_F(GridRows, MoveRowLeavesTheSelectionItsNumbers)
{
    AddRows(grid, "012345");
    SelectRows({0, 3});
    grid.curChanges = 0;
    grid.MoveRow(0, 5);
    EXPECT_EQ(Selection(grid), "rows 0 3 | cur -1,-1");
    EXPECT_EQ(grid.curChanges, 0);
}

TEST_F(GridRows, SetRowNumDeletesFromTheEndOrAppends)
{
    AddRows(grid, "abc");
    grid.SetRowNum(2);
    EXPECT_EQ(Texts(grid), "a b");
    grid.SetRowNum(4);
    EXPECT_EQ(Texts(grid), "a b  ");
    grid.SetRowNum(0);
    EXPECT_TRUE(grid.IsEmpty());
    grid.SetRowNum(-1);
    EXPECT_TRUE(grid.IsEmpty());
}

TEST_F(GridRows, SetRowNumDeselectsTheRowsItDeletes)
{
    AddRows(grid, "abcd");
    SelectRows({1, 2, 3});
    grid.curChanges = 0;
    grid.SetRowNum(2);
    EXPECT_EQ(Selection(grid), "rows 1 | cur 1,-1");
    EXPECT_EQ(grid.curChanges, 2);
}

TEST_F(GridRows, ClearDeletesTheRowsAndEmptiesTheSelectionAndKeepsTheRest)
{
    AddRows(grid, "abc");
    grid.AppendKey(1);
    grid.GetRowPaste().Append(new TGGridRow(grid));
    grid.SelectRow(1, true);
    grid.SetModify(true);
    grid.curChanges = 0;
    grid.Clear();
    EXPECT_TRUE(grid.IsEmpty());
    EXPECT_EQ(Selection(grid), "none | cur 1,-1");
    EXPECT_EQ(grid.curChanges, 0);
    EXPECT_EQ(grid.GetColNum(), 2);
    EXPECT_EQ(grid.GetMainKey(), 1);
    EXPECT_EQ(grid.GetRowPaste().GetNum(), 1);
    EXPECT_TRUE(grid.IsModified());
}

TEST_F(GridRows, DelRowExOfAPlainRowDeletesIt)
{
    AddRows(grid, "abc");
    grid.DelRowEx(1);
    EXPECT_EQ(Texts(grid), "a c");
}

} // namespace
} // namespace quor::test
