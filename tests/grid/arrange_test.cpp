// What sorting does to the current row.
#include "grid/TGRowSelector.h"
#include "tests/grid/ModelGrid.h"
#include "tests/grid/WindowGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

TEST(Arrange, CurrentRow_GoesWithItsRow)
{
    ModelGrid grid;
    AddCols(grid, 1);
    AddRows(grid, "cabd");
    grid.AppendKey(0);
    grid.SetCurRowIndex(0);
    grid.Arrange(true);
    EXPECT_EQ("a b c d", Texts(grid));
    EXPECT_EQ(2, grid.GetCurRowIndex());
    grid.Arrange(false);
    EXPECT_EQ("d c b a", Texts(grid));
    EXPECT_EQ(1, grid.GetCurRowIndex());
}

TEST(Arrange, WithoutACurrentRow_ThereIsNoneAfterwards)
{
    ModelGrid grid;
    AddCols(grid, 1);
    AddRows(grid, "cab");
    grid.AppendKey(0);
    grid.Arrange(true);
    EXPECT_EQ(-1, grid.GetCurRowIndex());
}

TEST(Arrange, SelectedCurrentRow_StaysBoth)
{
    ModelGrid grid;
    AddCols(grid, 1);
    AddRows(grid, "cab");
    grid.AppendKey(0);
    grid.SelectRow(0, true);
    grid.Arrange(true);
    EXPECT_EQ("rows 2 | cur 2,-1", Selection(grid));
}

TEST(Arrange, CurrentChildRow_GoesWithItsRowThroughFoldingAndUnfolding)
{
    ModelGrid grid(true);
    AddCols(grid, 1);
    TGGridTreeRow& b = AddRoot(grid, L"b");
    AddChild(b, L"z");
    AddChild(b, L"y");
    AddRoot(grid, L"a");
    b.UnFold();
    ASSERT_EQ("b z y a", Texts(grid));
    grid.AppendKey(0);
    grid.SelectRow(1, true);
    grid.Arrange(true);
    EXPECT_EQ("a b y z", Texts(grid));
    EXPECT_EQ(3, grid.GetCurRowIndex());
}

TEST(Arrange, CurrentRowThatAHookDeletes_LeavesNone)
{
    ModelGrid grid(true);
    AddCols(grid, 1);
    TGGridTreeRow& b = AddRoot(grid, L"b");
    AddChild(b, L"z");
    AddRoot(grid, L"a");
    b.UnFold();
    grid.AppendKey(0);
    grid.SelectRow(1, true);
    grid.SetCurRowIndex(2);
    grid.onCurChanged = [&] {
        grid.onCurChanged = nullptr;
        grid.DelRow(grid.GetRowNum() - 1);
        grid.SetCurRowIndex(2);
    };
    grid.Arrange(true);
    EXPECT_EQ("b z", Texts(grid));
    EXPECT_EQ(-1, grid.GetCurRowIndex());
}

class ArrangeWindow : public GridWindowTest
{
};

TEST_F(ArrangeWindow, Marker_StandsBesideTheRowThatWasEdited)
{
    WindowGrid grid;
    grid.SetFlatButton(true);
    grid.SetNoAppendButton(true);
    Create(grid);
    AddCols(grid, 1);
    AddRows(grid, "cab");
    grid.AppendKey(0);
    grid.BeginEditCell(0, 0);
    grid.Arrange(true);
    PumpPending();
    const Snapshot picture(grid);
    std::string marked;
    for (int row = 0; row < 3; ++row)
        marked += picture.IsUniform(CRect(1, 21 + row * 20, 19, 39 + row * 20)) ? '-' : '*';
    EXPECT_EQ("--*", marked);
}

} // namespace
} // namespace quor::test
