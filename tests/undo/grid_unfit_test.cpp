// Steps of grids that do not fit any more, because of what a pause has left out or another extension has
// taken over: they change nothing, and the history ends there.
#include "grid/TGGridExtension.h"
#include "tests/undo/GridSteps.h"

#include <functional>
#include <memory>
#include <vector>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// Takes over the rows that leave the grid, as long as nobody else does.
class RowKeeper : public TGGridExtension
{
public:
    explicit RowKeeper(TGGrid& grid) { AttachTo(grid); }
    ~RowKeeper() override { Detach(); }
    std::vector<std::unique_ptr<TGGridRow>> kept;

protected:
    void OnRowsRemoved(TGRemovedRows& rows) override
    {
        for (std::size_t i = 0; i < rows.GetRows().size(); ++i)
            if (std::unique_ptr<TGGridRow> row = rows.Take(i))
                kept.push_back(std::move(row));
    }
};

class UnfitGridSteps : public GridSteps
{
protected:
    void InPause(const std::function<void()>& change)
    {
        const TGUndoPause pause(stack);
        change();
    }
    // The last step cannot be taken back.
    void ExpectTheEnd()
    {
        const std::string before = SnapshotOf(grid);
        const int ended = stack.ended;
        EXPECT_FALSE(stack.Undo());
        EXPECT_EQ(SnapshotOf(grid), before);
        EXPECT_EQ(stack.ended, ended + 1);
        EXPECT_EQ(stack.GetUndoNum(), 0);
    }
};

// ---- Columns

TEST_F(UnfitGridSteps, ADeletedColumn_OfAGridWithOtherRows)
{
    grid.DelCol(1);
    InPause([this] { grid.AppendRow(nullptr); });
    ExpectTheEnd();
}

TEST_F(UnfitGridSteps, ADeletedColumn_WithOtherColumnsBesideItsPlace)
{
    grid.DelCol(1);
    InPause([this] { grid.InsertCol(1, L"behind", 50); });
    ExpectTheEnd();
    grid.DelCol(1);
    InPause([this] { grid.DelCol(0); });
    ExpectTheEnd();
}

TEST_F(UnfitGridSteps, AWidth_OfAColumnThatIsGone)
{
    {
        const TGUserAction action(grid, TGActionKind::ResizeCols);
        grid.GetCol(2).SetWidth(33);
    }
    InPause([this] { grid.DelCol(2); });
    ExpectTheEnd();
}

// Each change fits by itself; the first of them does not any more when the second has been taken back.
TEST_F(UnfitGridSteps, WidthsOfOneStep_BetweenWhichThePauseHasChangedTheColumn)
{
    const std::vector<std::function<void()>> changes = {
        [this] { grid.GetCol(1).SetWidth(77); },
        [this] { grid.MoveCol(1, 0); },
    };
    for (const auto& change : changes)
    {
        TGGridCol& col = grid.GetCol(1);
        {
            const TGUserAction action(grid, TGActionKind::ResizeCols);
            col.SetWidth(80);
            InPause(change);
            col.SetWidth(90);
        }
        ExpectTheEnd();
        EXPECT_EQ(col.GetWidth(), 90);
    }
}

TEST_F(UnfitGridSteps, TextsOfOneStep_BetweenWhichThePauseHasMovedTheColumn)
{
    {
        const TGUndoTransaction step(stack, L"step");
        grid.GetCell(0, 1).SetText(L"1");
        InPause([this] { grid.MoveCol(1, 0); });
        grid.GetCell(0, 0).SetText(L"2");
    }
    ExpectTheEnd();
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"2");
}

// ---- Rows

TEST_F(UnfitGridSteps, AMovedRow_ThatIsInTheRowBuffer)
{
    grid.MoveRow(0, 3);
    InPause([this] {
        Select({2});
        grid.DoClip();
    });
    EXPECT_EQ(Texts(grid), "b c d");
    ExpectTheEnd();
}

TEST_F(UnfitGridSteps, AMovedRow_WhoseFollowerIsInTheRowBuffer)
{
    grid.MoveRow(1, 0);
    EXPECT_EQ(Texts(grid), "b a c d");
    InPause([this] {
        Select({2});
        grid.DoClip();
    });
    ExpectTheEnd();
}

TEST_F(UnfitGridSteps, ADeletedRow_BesideWhichRowsHaveComeOrGone)
{
    RowKeeper keeper(grid);
    grid.DelRow(1);
    InPause([this] { grid.InsertRow(1, nullptr); });
    ExpectTheEnd();
    grid.DelRow(2);
    InPause([this] { grid.DelRow(2); });
    EXPECT_EQ(keeper.kept.size(), 1u) << "the stack keeps the others";
    ExpectTheEnd();
}

TEST_F(UnfitGridSteps, CutRows_OfWhichTheHostHasTakenOne)
{
    Select({0, 1});
    grid.DoClip();
    const std::unique_ptr<TGGridRow> taken(std::exchange(grid.GetRowPaste()[0], nullptr));
    ASSERT_EQ(Cells(grid, *taken), "a||");
    // A slot of the buffer without a row is no hindrance to others.
    const std::string before = SnapshotOf(grid);
    grid.DelCol(1);
    GoBackAndForth(before);
    ExpectTheEnd();
    EXPECT_EQ(Texts(grid), "c d");
    ASSERT_EQ(grid.GetRowPaste().GetNum(), 2);
    EXPECT_EQ(Cells(grid, *grid.GetRowPaste()[1]), "b||") << "the buffer keeps a copy";
}

// ---- Making a step again

TEST_F(UnfitGridSteps, AStepThatWasUndone_EndsTheOtherSide)
{
    Type(0, 0, L"1");
    Type(1, 0, L"2");
    stack.Undo();
    grid.GetCell(1, 0).GetText() = L"host";
    EXPECT_FALSE(stack.Redo());
    EXPECT_EQ(stack.ended, 1);
    EXPECT_EQ(stack.GetRedoNum(), 0);
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_EQ(Texts(grid), "1 host c d");
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), "a host c d");
}

// What drifted away has been taken back for it, and comes back; the steps behind it are lost with it.
TEST_F(UnfitGridSteps, AStepThatWasUndone_WithWhatHooksHaveChanged)
{
    Type(0, 0, L"1");
    Type(1, 0, L"2");
    grid.onDataChanged = [this] {
        grid.onDataChanged = nullptr;
        grid.GetCell(3, 0).SetText(L"hook");
    };
    stack.Undo();
    grid.GetCell(1, 0).GetText() = L"host";
    EXPECT_FALSE(stack.Redo());
    EXPECT_EQ(stack.ended, 1);
    EXPECT_EQ(Texts(grid), "1 host c hook");
    EXPECT_FALSE(stack.CanRedo());
    EXPECT_FALSE(stack.CanUndo());
}

// ---- Trees

class UnfitRowTrees : public UnfitGridSteps
{
protected:
    UnfitRowTrees() : tree(true)
    {
        AddCols(tree, 2);
        root = &AddRoot(tree, L"a");
        for (const wchar_t* text : {L"x", L"z", L"y"})
            AddChild(*root, text);
        other = &AddRoot(tree, L"b");
        AddChild(*other, L"w");
        root->UnFold();
        other->UnFold();
        treeStack.Watch(tree);
    }
    // The step is lost, and nothing has changed.
    void ExpectTheEndOf(const std::function<void()>& step, const std::function<void()>& leftOut)
    {
        treeStack.Clear();
        step();
        ASSERT_TRUE(treeStack.CanUndo());
        {
            const TGUndoPause pause(treeStack);
            leftOut();
        }
        const std::string before = SnapshotOf(tree);
        const int ended = treeStack.ended;
        EXPECT_FALSE(treeStack.Undo());
        EXPECT_EQ(SnapshotOf(tree), before);
        EXPECT_EQ(treeStack.ended, ended + 1);
    }
    // Children of `from` that the keeper has taken stand below `to` then.
    static void HandOver(RowKeeper& keeper, TGGridTreeRow& to)
    {
        ASSERT_EQ(keeper.kept.size(), 1u);
        to.InsertChild(0, static_cast<TGGridTreeRow*>(keeper.kept[0].release()));
        keeper.kept.clear();
    }

    ToldGrid tree;
    CountingStack treeStack;
    TGGridTreeRow* root = nullptr;
    TGGridTreeRow* other = nullptr;
};

TEST_F(UnfitRowTrees, AMovedChild_BelowAFoldedRow)
{
    ExpectTheEndOf([this] { tree.MoveRow(1, 3); }, [this] { root->Fold(); });
}

TEST_F(UnfitRowTrees, AMovedChild_ThatStandsElsewhere_OrItsFollower)
{
    RowKeeper keeper(tree);
    ExpectTheEndOf([this] { tree.MoveRow(1, 3); },
                   [&] {
                       root->DelChild(1);
                       HandOver(keeper, *other);
                   });
    EXPECT_EQ(Texts(tree), "a z y b x w");
    ExpectTheEndOf([this] { tree.MoveRow(4, 6); },
                   [&] {
                       other->DelChild(0);
                       HandOver(keeper, *root);
                   });
}

TEST_F(UnfitRowTrees, AMovedChild_WhoseFollowerStandsElsewhere)
{
    RowKeeper keeper(tree);
    // Behind x stood z.
    ExpectTheEndOf([this] { tree.MoveRow(1, 4); },
                   [&] {
                       root->DelChild(0);
                       HandOver(keeper, *other);
                   });
    EXPECT_EQ(Texts(tree), "a y x b z w");
}

TEST_F(UnfitRowTrees, ChildrenOfARowThatIsKeptElsewhere)
{
    const std::vector<std::function<void()>> steps = {
        [this] { AddChild(*root, L"new"); },
        [this] { root->DelChild(0); },
        [this] { tree.MoveRow(1, 3); },
        [this] {
            tree.AppendKey(0);
            tree.Arrange(true);
            tree.ClearKey();
        },
        [this] { (*root)[1].SetText(L"typed"); },
        [this] {
            other->GetChild(0)[1].SetText(L"typed");
            root->Fold();
        },
    };
    for (std::size_t i = 0; i < steps.size(); ++i)
    {
        SCOPED_TRACE(std::to_string(i) + " of " + Texts(tree));
        RowKeeper keeper(tree);
        ExpectTheEndOf(steps[i], [this] { tree.DelRowEx(root->GetIndex()); });
        ASSERT_EQ(keeper.kept.size(), 1u);
        // It comes back for the next one.
        const TGUndoPause pause(treeStack);
        tree.InsertRow(0, keeper.kept[0].release());
        root->UnFold();
    }
}

TEST_F(UnfitRowTrees, AMovedChild_WhoseParentGoesForGood_WhileAnotherStepKeepsTheChild)
{
    tree.MoveRow(1, 4);
    ASSERT_EQ(Texts(tree), "a z y x b w");
    root->DelChild(2);
    {
        const TGUndoPause pause(treeStack);
        tree.DelRowEx(0);
    }
    EXPECT_FALSE(treeStack.CanUndo());
    EXPECT_FALSE(treeStack.Undo());
    EXPECT_EQ(Texts(tree), "b w");
}

TEST_F(UnfitRowTrees, ACutTree_WhoseDataAreGoneWithTheBuffer)
{
    tree.SelectRow(0, true);
    tree.DoClip();
    ASSERT_TRUE(treeStack.CanUndo());
    tree.GetRowPaste().Clear();
    EXPECT_FALSE(treeStack.CanUndo());
    EXPECT_FALSE(treeStack.Undo());
    EXPECT_EQ(Texts(tree), "b w");
}

} // namespace
} // namespace quor::test
