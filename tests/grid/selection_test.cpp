// The two selections of a grid without a window.
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class GridSelection : public testing::Test
{
protected:
    GridSelection()
    {
        AddCols(grid, 5);
        AddRows(grid, "abcdefgh");
    }

    void SelectRows(std::initializer_list<long> indices)
    {
        for (const long i : indices)
            grid.SelectRow(i, true);
    }

    ModelGrid grid;
};

TEST_F(GridSelection, SelectRowTwiceLeavesOneEntryAndReportsBothTimes)
{
    grid.SelectRow(3, true);
    grid.SelectRow(3, true);
    EXPECT_EQ(grid.GetRowSelNum(), 1);
    EXPECT_EQ(grid.curChanges, 2);
    EXPECT_EQ(Selection(grid), "rows 3 | cur 3,-1");
}

TEST_F(GridSelection, SelectedRowsAreKeptInAscendingOrder)
{
    SelectRows({5, 1, 3, 0, 7});
    EXPECT_EQ(Selection(grid), "rows 0 1 3 5 7 | cur -1,-1");
    EXPECT_EQ(&grid.GetSelRow(2), &grid.GetRow(3));
}

TEST_F(GridSelection, UnselectingARowReportsAlsoWhenItWasNotSelected)
{
    SelectRows({1, 2});
    grid.curChanges = 0;
    grid.SelectRow(1, false);
    EXPECT_EQ(Selection(grid), "rows 2 | cur 2,-1");
    grid.SelectRow(6, false);
    EXPECT_EQ(grid.curChanges, 2);
}

TEST_F(GridSelection, IndicesOutsideAreIgnoredSilently)
{
    for (const long i : {-1L, 8L, 100L})
    {
        grid.SelectRow(i, true);
        grid.SelectRow(i, false);
        grid.SelectCol(i, true);
        grid.SelectCol(i, false);
    }
    EXPECT_EQ(grid.curChanges, 0);
    EXPECT_EQ(Selection(grid), "none | cur -1,-1");
}

TEST_F(GridSelection, SelectingAColumnClearsTheRowsAndViceVersa)
{
    SelectRows({1, 2});
    grid.SelectCol(4, true);
    EXPECT_EQ(Selection(grid), "cols 4 | cur -1,4");
    grid.SelectCol(2, true);
    EXPECT_EQ(Selection(grid), "cols 2 4 | cur -1,-1");
    EXPECT_EQ(&grid.GetSelCol(1), &grid.GetCol(4));
    grid.SelectRow(0, true);
    EXPECT_EQ(Selection(grid), "rows 0 | cur 0,-1");
}

TEST_F(GridSelection, UnselectingAColumnReportsAlsoWhenItWasNotSelected)
{
    grid.SelectCol(1, true);
    grid.SelectCol(1, true);
    grid.SelectCol(1, false);
    grid.SelectCol(1, false);
    EXPECT_EQ(grid.curChanges, 4);
    EXPECT_EQ(Selection(grid), "none | cur -1,-1");
}

TEST_F(GridSelection, SelectAllSelectsEveryRowAndReportsOnce)
{
    grid.SelectCol(1, true);
    grid.curChanges = 0;
    grid.SelectAll();
    EXPECT_EQ(Selection(grid), "rows 0 1 2 3 4 5 6 7 | cur -1,-1");
    EXPECT_EQ(grid.curChanges, 1);
    grid.SelectAll();
    EXPECT_EQ(grid.GetRowSelNum(), 8);
}

TEST_F(GridSelection, SelectAllOfAnEmptyGridSelectsNothing)
{
    ModelGrid empty;
    empty.SelectAll();
    EXPECT_FALSE(empty.IsRowSelected());
    EXPECT_EQ(empty.curChanges, 1);
}

TEST_F(GridSelection, UnSelectClearsBothAndReportsOnce)
{
    SelectRows({1, 2});
    grid.curChanges = 0;
    grid.UnSelect();
    EXPECT_EQ(Selection(grid), "none | cur -1,-1");
    grid.UnSelect();
    EXPECT_EQ(grid.curChanges, 2);
}

TEST_F(GridSelection, ClearSelEmptiesTheTablesWithoutAReport)
{
    SelectRows({1});
    grid.curChanges = 0;
    grid.ClearSel();
    EXPECT_EQ(Selection(grid), "none | cur 1,-1");
    EXPECT_EQ(grid.curChanges, 0);
}

TEST_F(GridSelection, IsSelConnectIsTrueForOneRunOfRowsOrColumns)
{
    EXPECT_FALSE(grid.IsSelConnect());
    SelectRows({2, 4});
    EXPECT_FALSE(grid.IsSelConnect());
    SelectRows({3});
    EXPECT_TRUE(grid.IsSelConnect());
    grid.SelectCol(0, true);
    EXPECT_TRUE(grid.IsSelConnect());
    grid.SelectCol(2, true);
    EXPECT_FALSE(grid.IsSelConnect());
    grid.SelectCol(1, true);
    EXPECT_TRUE(grid.IsSelConnect());
}

TEST_F(GridSelection, IsSelFoldIsFalseForASelectedUnfoldedParentOnly)
{
    EXPECT_TRUE(grid.IsSelFold());
    ModelGrid tree(true);
    AddCols(tree, 1);
    TGGridTreeRow& parent = AddRoot(tree, L"p");
    AddChild(parent, L"c");
    TGGridTreeRow& leaf = AddRoot(tree, L"l");
    leaf.SetUnFoldFlag(true);
    tree.SelectRow(0, true);
    tree.SelectRow(1, true);
    EXPECT_TRUE(tree.IsSelFold());
    parent.UnFold();
    EXPECT_FALSE(tree.IsSelFold());
    tree.SelectRow(0, false);
    EXPECT_TRUE(tree.IsSelFold());
}

TEST_F(GridSelection, GetSelAppendsTheRowsInOrderAndLeavesTheCursorOnTheLast)
{
    SelectRows({6, 2, 4});
    List<TGGridRow*> selected;
    selected.Append(&grid.GetRow(0));
    grid.MoveToFirst();
    grid.GetSel(selected);
    ASSERT_EQ(selected.GetNum(), 4);
    EXPECT_EQ(selected[0], &grid.GetRow(0));
    EXPECT_EQ(selected[1], &grid.GetRow(2));
    EXPECT_EQ(selected[2], &grid.GetRow(4));
    EXPECT_EQ(selected[3], &grid.GetRow(6));
    grid.GetSel(selected);
    EXPECT_EQ(grid.GetCur(), 6);
}

TEST_F(GridSelection, GetSelOfNothingLeavesTheCursor)
{
    grid.MoveTo(3);
    List<TGGridRow*> selected;
    grid.GetSel(selected);
    EXPECT_TRUE(selected.IsEmpty());
    EXPECT_EQ(grid.GetCur(), 3);
}

TEST_F(GridSelection, GetSelAppendsTheSelectedColumns)
{
    grid.SelectCol(3, true);
    grid.SelectCol(1, true);
    List<TGGridCol*> selected;
    grid.GetSel(selected);
    ASSERT_EQ(selected.GetNum(), 2);
    EXPECT_EQ(selected[0], &grid.GetCol(1));
    EXPECT_EQ(selected[1], &grid.GetCol(3));
}

TEST_F(GridSelection, FindAndSelSelectsTheFirstExactMatchAlone)
{
    grid.GetCell(6, 1).SetText(L"x");
    grid.GetCell(4, 1).SetText(L"X");
    grid.GetCell(5, 1).SetText(L"x");
    SelectRows({0, 1});
    EXPECT_TRUE(grid.FindAndSel(L"x", 1));
    EXPECT_EQ(Selection(grid), "rows 5 | cur 5,-1");
}

TEST_F(GridSelection, FindAndSelWithoutAMatchLeavesTheSelection)
{
    SelectRows({0, 1});
    grid.curChanges = 0;
    EXPECT_FALSE(grid.FindAndSel(L"x", 1));
    EXPECT_FALSE(grid.FindAndSel(L"a", 9));
    EXPECT_EQ(Selection(grid), "rows 0 1 | cur -1,-1");
    EXPECT_EQ(grid.curChanges, 0);
}

TEST_F(GridSelection, AnEmptyOrNullTextFindsTheFirstEmptyCell)
{
    EXPECT_TRUE(grid.FindAndSel(L"", 1));
    EXPECT_EQ(Selection(grid), "rows 0 | cur 0,-1");
    EXPECT_TRUE(grid.FindAndSel(nullptr, 1));
}

TEST_F(GridSelection, ManyRowsSelectedInAnyOrderStayOrdered)
{
    const long count = 3000;
    grid.SetRowNum(count);
    std::vector<long> order(count);
    std::iota(order.begin(), order.end(), 0L);
    std::mt19937 random(7);
    std::shuffle(order.begin(), order.end(), random);
    for (const long i : order)
        if (i % 3 != 0)
            grid.SelectRow(i, true);
    ASSERT_EQ(grid.GetRowSelNum(), count - count / 3);
    for (long i = 0; i < count; ++i)
        ASSERT_EQ(grid.IsRowSelected(i), i % 3 != 0);
    List<TGGridRow*> selected;
    grid.GetSel(selected);
    long previous = -1;
    for (const TGGridRow* row : selected)
    {
        ASSERT_GT(row->GetIndex(), previous);
        previous = row->GetIndex();
    }
    for (const long i : order)
        grid.SelectRow(i, false);
    EXPECT_FALSE(grid.IsRowSelected());
}

} // namespace
} // namespace quor::test
