// Steps of tree grids.
#include "tests/undo/GridSteps.h"

#include "grid/TGTreeGrid.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

TEST(TreeGridSteps, IdentifiersAreTheSameAgain)
{
    TGTreeGrid grid(true);
    AddCols(grid, 2);
    AddRows(grid, "ab");
    grid.GetCell(0, 1).SetText(L"1");
    grid.GetCell(1, 1).SetText(L"2");
    grid.SetModified(false);
    TGUndoStack stack;
    stack.Watch(grid);
    const std::string before = SnapshotOf(grid);
    grid.SelectRow(0, true);
    grid.DoCopy();
    grid.UnSelect();
    grid.DoPaste();
    EXPECT_EQ(grid.GetCell(2, 1).GetText(), L"3");
    const std::string after = SnapshotOf(grid);
    stack.Undo();
    EXPECT_EQ(SnapshotOf(grid), before);
    EXPECT_FALSE(grid.IsModified());
    stack.Redo();
    EXPECT_EQ(SnapshotOf(grid), after);
    EXPECT_TRUE(grid.IsModified());
}

TEST(TreeGridSteps, ACutTree_ComesBackAsTheSameRows_WithItsData)
{
    ModelGrid grid(true);
    AddCols(grid, 1);
    AddRows(grid, "ab");
    AddChild(grid.GetTreeRow(0), L"x").SetExtendData(new NumberedData);
    grid.GetRow(0).SetExtendData(new NumberedData);
    grid.GetTreeRow(0).UnFold();
    TGUndoStack stack;
    stack.Watch(grid);
    const std::string before = SnapshotOf(grid);
    grid.SelectRow(0, true);
    grid.DoClip();
    grid.UnSelect();
    grid.DoPaste();
    const std::string after = SnapshotOf(grid);
    stack.Undo();
    stack.Undo();
    EXPECT_EQ(SnapshotOf(grid), before);
    stack.Redo();
    stack.Redo();
    EXPECT_EQ(SnapshotOf(grid), after);
}

// The stack keeps the parent, and its child is no business of the call that a hook has interrupted.
TEST(TreeGridSteps, AChildThatIsBeingDeleted_GoesWithAParentThatAHookDeletes)
{
    ModelGrid grid(true);
    AddCols(grid, 1);
    AddRows(grid, "ab");
    AddChild(grid.GetTreeRow(0), L"x").SetExtendData(new NumberedData);
    grid.GetTreeRow(0).UnFold();
    TGUndoStack stack;
    stack.Watch(grid);
    const std::string before = SnapshotOf(grid);
    grid.SelectRow(1, true);
    grid.onCurChanged = [&] {
        grid.onCurChanged = nullptr;
        grid.DelRowEx(0);
    };
    {
        const TGUserAction action(grid, TGActionKind::DeleteRows);
        grid.DelRowEx(1);
    }
    EXPECT_EQ(grid.GetRowNum(), 1);
    while (stack.CanUndo())
        EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(SnapshotOf(grid), before);
}

} // namespace
} // namespace quor::test
