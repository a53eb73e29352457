// Moving the selected item one place up or down.
#include "tests/treedrag/DragTreeTest.h"

#include "tests/support/MessageBoxProbe.h"

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

class CommandMove : public DragTreeTest
{
protected:
    void Up(const std::string& name)
    {
        tree->SelectItem(At(name));
        tree->MoveItemUp();
    }
    void Down(const std::string& name)
    {
        tree->SelectItem(At(name));
        tree->MoveItemDown();
    }
};

TEST_F(CommandMove, Up_SwapsWithThePreviousSibling)
{
    Fill("a b c");
    Up("c");
    EXPECT_EQ(Outline(), "a c b");
    EXPECT_EQ(Selected(), "c");
    EXPECT_EQ(owner.TakeMessages(), "inserted c at a");
    Up("c");
    EXPECT_EQ(Outline(), "c a b");
    EXPECT_EQ(owner.TakeMessages(), "inserted c at root");
}

TEST_F(CommandMove, Up_OfTheFirstRootItem_DoesNothing)
{
    Fill("a b");
    const HTREEITEM first = At("a");
    Up("a");
    EXPECT_EQ(Outline(), "a b");
    EXPECT_EQ(At("a"), first);
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(CommandMove, Up_BelowAnOpenFolder_GoesToItsEnd)
{
    Fill("f+[x y] a");
    Up("a");
    EXPECT_EQ(Outline(), "f+[x y a]");
    EXPECT_EQ(owner.TakeMessages(), "inserted a at y");
}

TEST_F(CommandMove, Up_BelowAnEmptyFolder_GoesIntoIt)
{
    Fill("f[] a");
    Up("a");
    EXPECT_EQ(Outline(), "f+[a]");
    EXPECT_EQ(owner.TakeMessages(), "inserted a at f");
}

TEST_F(CommandMove, Up_BelowAClosedFolder_GoesBeforeIt)
{
    Fill("f[x] a");
    Up("a");
    EXPECT_EQ(Outline(), "a f[x]");
}

// The last child of the open folder may be an empty folder: the item goes after it, not into it.
TEST_F(CommandMove, Up_BelowAnOpenFolderThatEndsWithAnEmptyOne_GoesAfterThat)
{
    Fill("f+[x g[]] a");
    Up("a");
    EXPECT_EQ(Outline(), "f+[x g[] a]");
    EXPECT_EQ(owner.TakeMessages(), "inserted a at g");
}

TEST_F(CommandMove, Up_OfTheFirstChild_GoesJustBeforeTheFolder)
{
    Fill("a f+[x y] b");
    Up("x");
    EXPECT_EQ(Outline(), "a x f+[y] b");
    EXPECT_EQ(owner.TakeMessages(), "inserted x at a");
}

TEST_F(CommandMove, Up_OfTheFirstChildOfTheFirstFolder_NamesTheRoot)
{
    Fill("f+[x y]");
    Up("x");
    EXPECT_EQ(Outline(), "x f+[y]");
    EXPECT_EQ(owner.TakeMessages(), "inserted x at root");
}

TEST_F(CommandMove, Down_SwapsWithTheNextSibling)
{
    Fill("a b c");
    Down("a");
    EXPECT_EQ(Outline(), "b a c");
    EXPECT_EQ(Selected(), "a");
    EXPECT_EQ(owner.TakeMessages(), "inserted a at b, inserted gone at a");
}

TEST_F(CommandMove, Down_TellsASecondTimeWithTheOldHandleAndTheCopy)
{
    Fill("a b");
    const HTREEITEM old = At("a");
    Down("a");
    ASSERT_EQ(owner.Received().size(), 2u);
    EXPECT_EQ(owner.Received()[0].message, TDM_ITEM_INSERTED);
    EXPECT_EQ(owner.Received()[0].item, At("a"));
    EXPECT_EQ(owner.Received()[0].place, At("b"));
    EXPECT_EQ(owner.Received()[1].message, TDM_ITEM_INSERTED);
    EXPECT_EQ(owner.Received()[1].item, old);
    EXPECT_EQ(owner.Received()[1].place, At("a"));
}

TEST_F(CommandMove, Down_OfTheLastRootItem_DoesNothing)
{
    Fill("a b");
    const HTREEITEM last = At("b");
    Down("b");
    EXPECT_EQ(Outline(), "a b");
    EXPECT_EQ(At("b"), last);
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(CommandMove, Down_AboveAnOpenFolder_GoesFirstIntoIt)
{
    Fill("a f+[x y]");
    Down("a");
    EXPECT_EQ(Outline(), "f+[a x y]");
    EXPECT_EQ(owner.TakeMessages(), "inserted a at f, inserted gone at a");
}

TEST_F(CommandMove, Down_AboveAnEmptyFolder_GoesIntoIt)
{
    Fill("a f[]");
    Down("a");
    EXPECT_EQ(Outline(), "f+[a]");
    EXPECT_EQ(owner.TakeMessages(), "inserted a at f, inserted gone at a");
}

TEST_F(CommandMove, Down_AboveAClosedFolder_GoesAfterIt)
{
    Fill("a f[x]");
    Down("a");
    EXPECT_EQ(Outline(), "f[x] a");
}

TEST_F(CommandMove, Down_OfTheLastChild_GoesJustAfterTheFolder)
{
    Fill("f+[x y] b");
    Down("y");
    EXPECT_EQ(Outline(), "f+[x] y b");
    EXPECT_EQ(owner.TakeMessages(), "inserted y at f, inserted gone at y");
}

TEST_F(CommandMove, Down_OfTheOnlyChild_LeavesAnEmptyFolder)
{
    Fill("f+[x]");
    Down("x");
    EXPECT_EQ(Outline(), "f[] x");
}

TEST_F(CommandMove, WalkingDownAndUp_PassesThroughEveryFolder)
{
    Fill("a f+[x] g[] h[y] b");
    std::vector<std::string> down;
    for (std::string before; before != Outline();)
    {
        before = Outline();
        Down("a");
        if (before != Outline())
            down.push_back(Outline());
    }
    const std::vector<std::string> expected = {
        "f+[a x] g[] h[y] b", "f+[x a] g[] h[y] b", "f+[x] a g[] h[y] b", "f+[x] g+[a] h[y] b",
        "f+[x] g[] a h[y] b", "f+[x] g[] h[y] a b", "f+[x] g[] h[y] b a"};
    EXPECT_EQ(down, expected);
    while (At("a") != tree->GetRootItem())
        Up("a");
    EXPECT_EQ(Outline(), "a f+[x] g[] h[y] b");
}

TEST_F(CommandMove, NothingSelected_ChangesNothing)
{
    Fill("a b");
    tree->SelectItem(nullptr);
    tree->MoveItemUp();
    tree->MoveItemDown();
    EXPECT_EQ(Outline(), "a b");
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(CommandMove, UniqueNames_RefuseAMoveBesideTheSameName)
{
    Fill("f+[x] X b");
    tree->SetNoDuplicates(TRUE);
    MessageBoxProbe boxes;
    tree->SelectItem(At("X"));
    const HTREEITEM moved = At("X");
    tree->MoveItemUp();
    EXPECT_EQ(Outline(), "f+[x] X b");
    EXPECT_EQ(At("X"), moved);
    ASSERT_EQ(boxes.Shown().size(), 1u);
    EXPECT_EQ(boxes.Shown()[0].text,
              L"Invalid move - an item with the same name has been found in the destination location.");
    EXPECT_EQ(boxes.Shown()[0].buttons, std::vector<int>{IDOK});
    EXPECT_EQ(owner.TakeMessages(), "");
    Down("x");
    EXPECT_EQ(Outline(), "f+[x] X b");
    EXPECT_EQ(boxes.Shown().size(), 2u);
}

TEST_F(CommandMove, UniqueNames_AllowMovesAmongSiblings)
{
    Fill("a A f+[x X]");
    tree->SetNoDuplicates(TRUE);
    MessageBoxProbe boxes;
    Up("A");
    Down("x");
    EXPECT_EQ(Outline(), "A a f+[X x]");
    EXPECT_TRUE(boxes.Shown().empty());
}

TEST_F(CommandMove, WithoutUniqueNames_NothingIsChecked)
{
    Fill("f+[x] X");
    MessageBoxProbe boxes;
    Up("X");
    EXPECT_EQ(Outline(), "f+[x X]");
    EXPECT_TRUE(boxes.Shown().empty());
}

TEST_F(CommandMove, FailedInsertion_LeavesTheItemWhereItWas)
{
    Fill("a b");
    const HTREEITEM moved = At("a");
    tree->FailInsertionsAfter(0);
    Down("a");
    Up("b");
    EXPECT_EQ(Outline(), "a b");
    EXPECT_EQ(At("a"), moved);
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(CommandMove, DuringADrag_CancelsIt)
{
    Fill("a b c");
    BeginDrag("b");
    MoveTo("c", Half::Lower);
    tree->MoveItemUp();
    EXPECT_FALSE(tree->IsDragging());
    EXPECT_EQ(Outline(), "b a c");
    Drop();
    EXPECT_EQ(Outline(), "b a c");
}

TEST_F(CommandMove, KeepsTheScrollPosition)
{
    std::string items;
    for (int i = 0; i < 60; ++i)
        items += " i" + std::to_string(i);
    Fill(items);
    tree->SelectItem(At("i20"));
    tree->SelectSetFirstVisible(At("i15"));
    const int position = tree->GetScrollPos(SB_VERT);
    tree->MoveItemDown();
    EXPECT_EQ(tree->GetScrollPos(SB_VERT), position);
    tree->MoveItemUp();
    EXPECT_EQ(tree->GetScrollPos(SB_VERT), position);
    EXPECT_EQ(NameOf(tree->GetFirstVisibleItem()), "i15");
}

TEST_F(CommandMove, ShowsTheMovedItemAndTheOneBeforeIt)
{
    std::string items;
    for (int i = 0; i < 60; ++i)
        items += " i" + std::to_string(i);
    Fill(items);
    tree->SelectItem(At("i20"));
    tree->SelectSetFirstVisible(At("i20"));
    tree->MoveItemUp();
    tree->MoveItemUp();
    CRect moved;
    CRect before;
    ASSERT_TRUE(tree->GetItemRect(At("i20"), moved, FALSE));
    ASSERT_TRUE(tree->GetItemRect(At("i17"), before, FALSE));
    EXPECT_GE(moved.top, 0);
    EXPECT_GE(before.top, 0);
}

TEST_F(CommandMove, RedrawsAfterwards)
{
    Fill("a b");
    tree->UpdateWindow();
    Up("b");
    EXPECT_TRUE(tree->GetUpdateRect(nullptr));
    tree->UpdateWindow();
    Up("b");
    EXPECT_TRUE(tree->GetUpdateRect(nullptr)) << "also when nothing moved";
}

} // namespace
