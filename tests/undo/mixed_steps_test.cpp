// Steps that change a tree and a grid, whose owner changes the grid while the tree is taken back.
#include "tests/grid/ModelGrid.h"
#include "tests/undo/WatchedTree.h"

#include <memory>

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

class MixedSteps : public WatchedTreeTest
{
protected:
    MixedSteps() : grid(std::make_unique<ModelGrid>())
    {
        AddCols(*grid, 2);
        AddRows(*grid, "abc");
    }
    void BeginBoth()
    {
        Begin("a b");
        stack.Watch(*grid);
    }
    // Changes the grid, then the tree: the tree is taken back first, and the owner is told of it.
    void ChangeBoth()
    {
        const TGUndoTransaction both(stack, L"both");
        grid->GetCell(2, 0).SetText(L"new");
        tree->InsertItem(L"new", 1, 1);
    }
    void WhenItemGoes(const std::function<void()>& act)
    {
        owner.answers[TDM_ITEM_DELETED] = [act](const OwnerMessage&) {
            act();
            return 0;
        };
    }
    // The step cannot be undone, and the tree keeps it.
    void ExpectTheEnd()
    {
        EXPECT_FALSE(stack.Undo());
        owner.answers.clear();
        EXPECT_EQ(stack.ended, 1);
        EXPECT_EQ(Texts(*grid), "a b");
        EXPECT_EQ(Outline(), "a b new");
    }

    std::unique_ptr<ModelGrid> grid;
};

TEST_F(MixedSteps, ARowThatGoesForGoodAmidTheStep_EndsTheHistory)
{
    BeginBoth();
    ChangeBoth();
    WhenItemGoes([this] {
        const TGUndoPause pause(stack);
        grid->DelRow(2);
    });
    ExpectTheEnd();
}

TEST_F(MixedSteps, ARowThatGoesAmidTheStep_AndIsKept_LeavesEverythingAsItWas)
{
    BeginBoth();
    ChangeBoth();
    WhenItemGoes([this] { grid->DelRow(2); });
    ExpectTheEnd();
}

TEST_F(MixedSteps, AGridThatIsDeletedAmidTheStep_TakesItsChangesAlong)
{
    BeginBoth();
    ChangeBoth();
    WhenItemGoes([this] { grid.reset(); });
    EXPECT_TRUE(stack.Undo());
    owner.answers.clear();
    EXPECT_EQ(Outline(), "a b");
    EXPECT_TRUE(stack.Redo());
    EXPECT_EQ(Outline(), "a b new");
}

// What has drifted away is taken back before the step, the tree's part first.
class MixedDrift : public MixedSteps
{
protected:
    void Drift()
    {
        BeginBoth();
        Rename("a", L"c");
        Rename("b", L"d");
        owner.answers[TDM_ITEM_RENAMED] = [this](const OwnerMessage&) {
            grid->GetCell(2, 0).SetText(L"drift");
            tree->InsertItem(L"drift", 1, 1);
            return 0;
        };
        Undo();
        owner.answers.clear();
        ASSERT_EQ(Outline(), "c b drift");
        ASSERT_EQ(Texts(*grid), "a b drift");
    }
};

TEST_F(MixedDrift, OfAGridThatIsDeletedMeanwhile_GoesAlong)
{
    Drift();
    WhenItemGoes([this] { grid.reset(); });
    EXPECT_TRUE(stack.Undo());
    owner.answers.clear();
    EXPECT_EQ(Outline(), "a b");
}

TEST_F(MixedDrift, OfARowThatGoesMeanwhile_EndsTheHistory)
{
    Drift();
    WhenItemGoes([this] {
        const TGUndoPause pause(stack);
        grid->DelRow(2);
    });
    EXPECT_FALSE(stack.Undo());
    owner.answers.clear();
    EXPECT_EQ(stack.ended, 1);
    EXPECT_EQ(Texts(*grid), "a b");
    EXPECT_EQ(Outline(), "c b drift");
}

} // namespace
