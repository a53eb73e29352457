// Indices, widths and distances outside of what the operations allow. The checked build asserts them; what
// the plain one makes of them is looked at here.
#include "rules/GridGeometry.h"
#include "tests/grid/ModelGrid.h"
#include "tests/grid/WindowGrid.h"

#include <gtest/gtest.h>

#include <climits>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class Ranges : public testing::Test
{
protected:
    Ranges()
    {
        AddCols(grid, 2);
        AddRows(grid, "abc");
    }

    ModelGrid grid{true};
};

#ifndef _DEBUG
TEST_F(Ranges, MovingFromOrToNowhereDoesNothing)
{
    for (const long nowhere : {-1L, 4L, LONG_MAX, LONG_MIN})
    {
        grid.MoveRow(nowhere, 0);
        grid.MoveRow(0, nowhere);
        grid.MoveCol(nowhere, 0);
        grid.MoveCol(0, nowhere);
    }
    grid.MoveRow(LONG_MAX, LONG_MIN);
    grid.MoveCol(LONG_MAX, LONG_MIN);
    EXPECT_EQ(Texts(grid), "a b c");
    EXPECT_EQ(Columns(grid), " 0-100 |  100-200");
}

TEST_F(Ranges, ARowBeyondTheEndIsTheOneOfTheNewRowLineAndAddsNone)
{
    TGGridRow& row = grid.GetRow(7);
    row[1].SetText(L"x");
    EXPECT_EQ(grid.GetRowNum(), 3);
    EXPECT_EQ(row.GetIndex(), 3);
    EXPECT_EQ(&grid.GetRow(-1), &row);
    grid.AppendCol(L"", 0);
    row[2].SetText(L"y");
    grid.SelectAll();
    grid.DoDelete();
    EXPECT_TRUE(grid.IsEmpty());
}

TEST_F(Ranges, ARowIsNotInsertedBelowItself)
{
    TGGridTreeRow& top = grid.GetTreeRow(0);
    TGGridTreeRow& child = AddChild(top, L"x");
    top.AppendChild(&top);
    child.AppendChild(&top);
    child.InsertChild(0, &child);
    EXPECT_EQ(top.GetChildNum(), 1);
    EXPECT_EQ(child.GetChildNum(), 0);
    EXPECT_EQ(top.GetOffspringNum(), 1);
    EXPECT_FALSE(top.IsChildRow());
}

TEST_F(Ranges, WidthsAreBroughtIntoTheirRange)
{
    grid.SetDefaultWidth(-5);
    EXPECT_EQ(grid.GetDefaultWidth(), 0);
    grid.SetDefaultWidth(LONG_MAX);
    EXPECT_EQ(grid.GetDefaultWidth(), 65535);
    grid.AppendCol(L"", LONG_MAX);
    grid.InsertCol(0, L"", -7);
    EXPECT_EQ(grid.GetCol(3).GetWidth(), 65535);
    EXPECT_EQ(grid.GetCol(0).GetWidth(), 0);
}

TEST_F(Ranges, TheRowSpaceIsBroughtIntoItsRange)
{
    grid.SetRowSpace(INT_MAX);
    EXPECT_EQ(grid.GetRowSpace(), 16384);
    EXPECT_GT(grid.GetRowHeight(), 16384);
}

TEST_F(Ranges, RowsTogetherStayWithinWhatCanBeCounted)
{
    const long textHeight = grid.GetRowHeight() - grid.GetRowSpace();
    grid.SetRowSpace(16384);
    EXPECT_EQ(grid.GetRowSpace(), 16384);
    // The new-row line is one more.
    EXPECT_EQ(grid.GetBottom(), 4 * (textHeight + 16384));
    grid.SetRowNum(300000);
    EXPECT_EQ(grid.GetBottom(), MaxContentHeight);
}
#endif

TEST_F(Ranges, ColumnsTogetherStayWithinWhatCanBeCounted)
{
    auto* wide = new OpenCol(L"", grid);
    grid.AppendCol(wide, 1);
    wide->SetRight(LONG_MAX / 2 - 10);
    grid.AppendCol(L"", 65535);
    grid.AppendCol(L"", 65535);
    EXPECT_EQ(grid.GetRight(), LONG_MAX / 2);
    EXPECT_EQ(grid.GetCol(3).GetWidth(), 10);
    EXPECT_EQ(grid.GetCol(4).GetWidth(), 0);
}

class ScrollRange : public GridWindowTest
{
};

TEST_F(ScrollRange, AnyDistanceScrollsToTheEndAndBack)
{
    WindowGrid grid;
    AddCols(grid, 20);
    grid.SetRowNum(50);
    Create(grid);
    for (const int distance : {INT_MAX, INT_MIN, INT_MAX})
    {
        grid.MoveView(distance, distance);
        EXPECT_EQ(grid.VScroll() == 0, distance < 0);
        EXPECT_EQ(grid.HScroll() == 0, distance < 0);
    }
}

} // namespace
} // namespace quor::test
