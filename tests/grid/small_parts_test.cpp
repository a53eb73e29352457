// Small parts of the interface that nothing else of the grid calls: comparisons, copies and empty hooks.
#include "tests/grid/CommandGrid.h"
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

TEST(SmallParts, CellsCompareByTextAndColumnsByPlace)
{
    CommandGrid grid;
    grid.SetColNum(2);
    grid.AddRows("ab");
    TGGridCell& a = grid.GetCell(0, 0);
    TGGridCell& b = grid.GetCell(1, 0);
    EXPECT_TRUE(a < b);
    EXPECT_FALSE(b < a);
    EXPECT_TRUE(b > a);
    EXPECT_FALSE(a > a);
    EXPECT_TRUE(grid.GetCol(0) < grid.GetCol(1));
    EXPECT_FALSE(grid.GetCol(1) < grid.GetCol(1));
    EXPECT_TRUE(grid.GetCol(1) > grid.GetCol(0));
    EXPECT_FALSE(grid.GetCol(0) > grid.GetCol(1));
}

// The command fails with what the hook threw, and what the hook supplied is deleted.
TEST(SmallParts, RowOfAHookThatThrows_IsNotInserted)
{
    class ThrowingGrid : public CommandGrid
    {
    protected:
        bool OnBeforeInsertRow(long, TGGridRow*& row) override
        {
            row = new TGGridRow(*this);
            throw std::runtime_error("no");
        }
    } grid;
    grid.SetColNum(1);
    EXPECT_THROW(grid.DoAppendRow(false), std::runtime_error);
    EXPECT_EQ(grid.GetRowNum(), 0);
}

// The hook removes the row beside which the new one was to stand.
TEST(SmallParts, SiblingThatAHookRemoves_GetsNoNeighbour)
{
    class RemovingGrid : public CommandGrid
    {
    public:
        RemovingGrid() : CommandGrid(true) {}

    protected:
        bool OnBeforeInsertChild(TGGridTreeRow&, long, TGGridTreeRow*&) override
        {
            DelRow(2);
            return true;
        }
    } grid;
    grid.SetColNum(1);
    grid.AddRows("ab");
    TGGridTreeRow& parent = grid.GetTreeRow(1);
    grid.AddChild(parent, 'c');
    parent.UnFold();
    grid.SelectRows({2});
    EXPECT_FALSE(grid.DoInsertRow());
    EXPECT_EQ(parent.GetChildNum(), 0);
}

TEST(SmallParts, CellsCompareByTheirTexts_ColumnsByTheirPlaces)
{
    CommandGrid grid;
    AddCols(grid, 2);
    grid.AddRows("ab");
    TGGridCell& first = grid.GetCell(0, 0);
    TGGridCell& second = grid.GetCell(1, 0);
    EXPECT_TRUE(first < second);
    EXPECT_FALSE(first > second);
    EXPECT_TRUE(second > first);
    second.SetText(L"a");
    EXPECT_FALSE(first < second || first > second);
    const TGGridCol& left = grid.GetCol(0);
    const TGGridCol& right = grid.GetCol(1);
    EXPECT_TRUE(left < right);
    EXPECT_TRUE(right > left);
    EXPECT_FALSE(left > right);
}

} // namespace
} // namespace quor::test
