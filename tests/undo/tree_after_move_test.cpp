// Items that were moved and are deleted later: the move is over by then, and they are like any others.
#include "tests/undo/WatchedTree.h"

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

using AfterMoves = WatchedTreeTest;

TEST_F(AfterMoves, DeletedItems_GiveTheirDataBack)
{
    Begin("folder[x y] a b");
    DragByMouse("folder", "b", Half::Lower);
    ASSERT_EQ(Outline(), "a b folder[x y]");
    tree->DeleteItem(At("folder"));
    EXPECT_TRUE(host.gone.empty());
    stack.Clear();
    EXPECT_EQ(host.gone, (std::vector<DWORD_PTR>{1, 2, 3}));
}

TEST_F(AfterMoves, ItemsMovedByCommand_GiveTheirDataBack)
{
    Begin("a b");
    Select("a");
    tree->MoveItemDown();
    ASSERT_EQ(Outline(), "b a");
    tree->DeleteItem(At("a"));
    stack.Clear();
    EXPECT_EQ(host.gone, std::vector<DWORD_PTR>{1});
}

TEST_F(AfterMoves, ItemsOfAMoveInsideOfAMove_GiveTheirDataBack)
{
    Begin("a b c d");
    owner.answers[TDM_ITEM_INSERTED] = [this](const OwnerMessage& message) {
        if (NameOf(message.item) != "a")
            return 0;
        Select("d");
        tree->MoveItemUp();
        return 0;
    };
    DragByMouse("a", "b", Half::Lower);
    owner.answers.clear();
    ASSERT_EQ(At("d"), tree->GetNextSiblingItem(At("a")));
    stack.Clear();
    tree->DeleteItem(At("a"));
    tree->DeleteItem(At("d"));
    EXPECT_TRUE(host.gone.empty());
    stack.Clear();
    EXPECT_EQ(host.gone, (std::vector<DWORD_PTR>{1, 4}));
}

TEST_F(AfterMoves, ACopyThatTheOwnerDeletes_LeavesTheItemsDataToTheItem)
{
    Begin("a b c");
    owner.answers[TDM_ITEM_INSERTED] = [this](const OwnerMessage& message) {
        tree->DeleteItem(message.item);
        return 0;
    };
    DragByMouse("a", "c", Half::Lower);
    owner.answers.clear();
    ASSERT_EQ(Outline(), "a b c");
    stack.Clear();
    EXPECT_TRUE(host.gone.empty());
    tree->DeleteItem(At("a"));
    stack.Clear();
    EXPECT_EQ(host.gone, std::vector<DWORD_PTR>{1});
}

} // namespace
