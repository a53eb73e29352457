// Messages that programs send a watched tree itself, with and without effect.
#include "tests/grid/HeldKeys.h"
#include "tests/support/Input.h"
#include "tests/undo/WatchedTree.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class TreeMessages : public WatchedTreeTest
{
protected:
    static int CALLBACK Backwards(LPARAM first, LPARAM second, LPARAM)
    {
        return first < second ? 1 : first > second ? -1 : 0;
    }
};

TEST_F(TreeMessages, SortingByAFunction_IsAStep)
{
    Begin("a f[x y z] b");
    const std::string before = All();
    TVSORTCB sort = {At("f"), &TreeMessages::Backwards, 0};
    ASSERT_TRUE(tree->SortChildrenCB(&sort));
    EXPECT_EQ(Outline(), "a f[z y x] b");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    ExpectRoundTrip(before);
    // In the order that they have already it is none.
    sort.hParent = At("f");
    tree->SortChildrenCB(&sort);
    const long steps = stack.GetUndoNum();
    tree->SortChildrenCB(&sort);
    EXPECT_EQ(stack.GetUndoNum(), steps);
}

TEST_F(TreeMessages, SortingWithAllBelow_ComesBack)
{
    Begin("b f[y x[2 1]] a");
    const std::string before = All(Shown::LeftOut);
    tree->SendMessage(TVM_SORTCHILDREN, TRUE, 0);
    EXPECT_NE(All(Shown::LeftOut), before);
    while (stack.CanUndo())
        Undo();
    EXPECT_EQ(All(Shown::LeftOut), before);
}

TEST_F(TreeMessages, DeletingWhatThereIsNot_IsNoStep)
{
    Begin("a");
    tree->DeleteAllItems();
    EXPECT_EQ(stack.GetUndoNum(), 1);
    tree->DeleteAllItems();
    EXPECT_EQ(stack.GetUndoNum(), 1);
    Undo();
    EXPECT_EQ(Outline(), "a");
    tree->SendMessage(TVM_DELETEITEM, 0, 0);
    EXPECT_EQ(Outline(), "");
    Undo();
    EXPECT_EQ(Outline(), "a");
}

TEST_F(TreeMessages, ExpandingNothing_IsNoStep)
{
    Begin("f[x] a");
    tree->SendMessage(TVM_EXPAND, TVE_COLLAPSE | TVE_COLLAPSERESET, 0);
    tree->SendMessage(TVM_EXPAND, TVE_EXPAND, 0);
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(Outline(), "f[x] a");
}

TEST_F(TreeMessages, AnExpandedStateThatIsSet_ComesBackWithTheStepBefore)
{
    Begin("f[x] a");
    Rename("a", L"b");
    tree->SetItemState(At("f"), TVIS_EXPANDED, TVIS_EXPANDED);
    EXPECT_EQ(Outline(), "f+[x] b");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    Undo();
    EXPECT_EQ(Outline(), "f[x] a");
}

TEST_F(TreeMessages, InsertingInAPause_EndsTheHistoryThere)
{
    Begin("f[x] a");
    tree->InsertItem(L"y", 1, 1, At("f"));
    {
        const TGUndoPause pause(stack);
        tree->InsertItem(L"z", 1, 1, At("f"));
        tree->SortChildren(nullptr);
        tree->SetItemState(At("a"), TVIS_BOLD, TVIS_BOLD);
        tree->DeleteItem(At("z"));
    }
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(stack.ended, 1);
    EXPECT_EQ(stack.GetUndoNum(), 0);
}

TEST_F(TreeMessages, ChangesOfOneItem_OneAfterTheOther)
{
    Begin("a b");
    const std::string before = All();
    const HTREEITEM item = At("a");
    tree->SetItemImage(item, 2, 1);
    tree->SetItemImage(item, 2, 1);
    tree->SetItemData(item, 77);
    tree->SetItemState(item, TVIS_CUT, TVIS_CUT);
    tree->SetItemText(item, L"a");
    EXPECT_GE(stack.GetUndoNum(), 2);
    while (stack.CanUndo())
        Undo();
    EXPECT_EQ(All(), before);
}

TEST_F(TreeMessages, SpaceTicks_OtherKeysAndClicksBesideTheBoxDoNot)
{
    tree->ModifyStyle(0, TVS_CHECKBOXES);
    Begin("a b");
    tree->SetCheck(At("a"), FALSE);
    stack.Clear();
    Select("a");
    tree->SetFocus();
    const auto ticked = [this] { return tree->GetCheck(At("a")) != FALSE; };
    KeyPress(VK_F12);
    CRect label;
    tree->GetItemRect(At("a"), label, TRUE);
    Click(*tree, CPoint(label.right + 30, label.CenterPoint().y));
    EXPECT_FALSE(ticked());
    EXPECT_EQ(stack.GetUndoNum(), 0);
    KeyPress(VK_SPACE);
    PumpPending();
    EXPECT_TRUE(ticked());
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_EQ(UndoName(), L"Check box");
    Undo();
    EXPECT_FALSE(ticked());
    tree->GetImageList(TVSIL_STATE)->DeleteImageList();
}

TEST_F(TreeMessages, AHostThatHearsOfNothing_IsServedAsWell)
{
    Begin("a f[x y] b");
    TGTreeUndoHost silent;
    ASSERT_TRUE(stack.Unwatch(*tree));
    ASSERT_TRUE(stack.Watch(*tree, &silent));
    EXPECT_FALSE(stack.Watch(*tree, &silent));
    const std::string before = All();
    tree->SetItemState(At("a"), TVIS_CUT, TVIS_CUT | TVIS_BOLD);
    tree->DeleteItem(At("x"));
    tree->SortChildren(nullptr);
    tree->DeleteItem(At("b"));
    while (stack.CanUndo())
        Undo();
    EXPECT_EQ(All(), before);
    while (stack.CanRedo())
        Redo();
    EXPECT_EQ(Outline(), "a f[y]");
    stack.Clear();
    // Nor is one without a host.
    ASSERT_TRUE(stack.Unwatch(*tree));
    ASSERT_TRUE(stack.Watch(*tree));
    const std::string alone = All();
    tree->SetItemState(At("a"), TVIS_BOLD, TVIS_CUT | TVIS_BOLD);
    tree->DeleteItem(At("y"));
    tree->InsertItem(L"0", 1, 1, TVI_ROOT, TVI_LAST);
    tree->SortChildren(nullptr);
    while (stack.CanUndo())
        Undo();
    EXPECT_EQ(All(), alone);
    stack.Clear();
}

TEST_F(TreeMessages, AnOpenBranchThatIsChangedWhileItsChildrenAreAway)
{
    Begin("f+[x] a");
    const std::string before = All();
    tree->DeleteItem(At("x"));
    tree->SetItemState(At("f"), 0, TVIS_EXPANDED);
    while (stack.CanUndo())
        Undo();
    EXPECT_EQ(All(), before);
}

} // namespace
} // namespace quor::test
