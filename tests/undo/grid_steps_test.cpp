// Steps of grids: what they hold.
#include "grid/extras/TGHeaderSort.h"
#include "tests/undo/GridSteps.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

TEST_F(GridSteps, ATextComesBack)
{
    const std::string before = SnapshotOf(grid);
    Type(1, 2, L"x");
    EXPECT_EQ(stack.GetUndoName(), L"Typing");
    GoBackAndForth(before);
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_FALSE(stack.CanUndo());
    EXPECT_FALSE(stack.Undo());
}

TEST_F(GridSteps, TheSameTextAgain_IsNoStep)
{
    Type(1, 0, L"b");
    EXPECT_EQ(stack.GetUndoNum(), 0);
}

TEST_F(GridSteps, DeletedRows_AreTheSameObjects)
{
    const std::string before = SnapshotOf(grid);
    Select({1, 3});
    grid.DoDelete();
    EXPECT_EQ(stack.GetUndoName(), L"Delete 2 rows");
    QuorTexts::SetLanguage(QuorLanguage::Chinese);
    EXPECT_EQ(stack.GetUndoName(), L"删除 2 行");
    GoBackAndForth(before);
}

TEST_F(GridSteps, InsertedRowsGo)
{
    const std::string before = SnapshotOf(grid);
    Select({2});
    grid.DoInsertRow();
    EXPECT_EQ(stack.GetUndoName(), L"Insert row");
    GoBackAndForth(before);
}

TEST_F(GridSteps, AllRowsOfAClearedGridComeBack)
{
    const std::string before = SnapshotOf(grid);
    grid.Clear();
    EXPECT_EQ(stack.GetUndoName(), L"Change");
    GoBackAndForth(before);
}

TEST_F(GridSteps, CutRows_ComeBackFromTheBuffer_AndCanBePastedStill)
{
    const std::string before = SnapshotOf(grid);
    Select({1, 2});
    grid.DoClip();
    EXPECT_EQ(stack.GetUndoName(), L"Cut 2 rows");
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(SnapshotOf(grid), before);
    grid.UnSelect();
    grid.DoPaste();
    EXPECT_EQ(grid.GetRowNum(), 6);
}

TEST_F(GridSteps, CutAndPastedRows_ComeBack_WhateverTheBufferHoldsSince)
{
    const std::string before = SnapshotOf(grid);
    Select({0});
    grid.DoClip();
    Select({2});
    grid.DoPaste();
    EXPECT_EQ(Texts(grid), "b c a d");
    Select({0});
    grid.DoCopy();
    GoBackAndForth(before, 2);
}

TEST_F(GridSteps, ADroppedRedo_LeavesARowToTheCutThatNeedsIt)
{
    const std::string before = SnapshotOf(grid);
    Select({0});
    grid.DoClip();
    grid.UnSelect();
    grid.DoPaste();
    stack.Undo();
    Type(0, 0, L"x");
    stack.Undo();
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(SnapshotOf(grid), before);
    EXPECT_EQ(stack.ended, 0);
}

TEST_F(GridSteps, MovedAndSortedRowsGoBack)
{
    std::string before = SnapshotOf(grid);
    {
        const TGUserAction action(grid, TGActionKind::MoveRows);
        grid.MoveRow(0, 3);
    }
    EXPECT_EQ(stack.GetUndoName(), L"Move row");
    GoBackAndForth(before);
    grid.AppendKey(0);
    grid.Arrange(false);
    EXPECT_EQ(Texts(grid), "d c b a");
    EXPECT_EQ(stack.GetUndoName(), L"Sort");
    GoBackAndForth(before);
    TGHeaderSort sorting(grid);
    sorting.Sort({{0, false}});
    EXPECT_EQ(Texts(grid), "d c b a");
    GoBackAndForth(before);
}

TEST_F(GridSteps, ColumnsComeBackWithTextsAndReadOnlyCells)
{
    grid.GetCell(2, 1).SetText(L"text");
    grid.GetCell(3, 1).SetReadOnly(true);
    stack.Clear();
    std::string before = SnapshotOf(grid);
    grid.SelectCol(1, true);
    grid.DoDelete();
    EXPECT_EQ(stack.GetUndoName(), L"Delete column");
    GoBackAndForth(before);
    EXPECT_TRUE(grid.GetCell(3, 1).IsReadOnly());
    grid.UnSelect();
    grid.DoAppendCol();
    EXPECT_EQ(stack.GetUndoName(), L"Insert column");
    GoBackAndForth(before);
    {
        const TGUserAction action(grid, TGActionKind::MoveCols);
        grid.MoveCol(2, 0);
    }
    GoBackAndForth(before);
    {
        const TGUserAction action(grid, TGActionKind::ResizeCols);
        grid.GetCol(1).SetWidth(33);
    }
    EXPECT_EQ(stack.GetUndoName(), L"Column width");
    GoBackAndForth(before);
}

TEST_F(GridSteps, ACutRow_KeepsTheTextOfAColumnThatGoesAndComesBack)
{
    grid.GetCell(0, 1).SetText(L"kept");
    stack.Clear();
    const std::string before = SnapshotOf(grid);
    Select({0});
    grid.DoClip();
    grid.SelectCol(1, true);
    grid.DoDelete();
    Select({0});
    grid.DoCopy();
    GoBackAndForth(before, 2);
}

// ---- Grouping

} // namespace
} // namespace quor::test
