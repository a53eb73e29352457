// Trees that change amid a message, and what users do to a tree while a pause leaves it out.
#include "tests/undo/WatchedTree.h"

#include <string>
#include <utility>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class TreesAmid : public WatchedTreeTest
{
protected:
    // The next deletion has an item come in.
    void InsertInTheNextDeletion()
    {
        owner.onDeletedItem = [this] {
            owner.onDeletedItem = nullptr;
            tree->InsertItem(L"amid", 1, 1);
        };
    }
    struct SortingTree
    {
        TreesAmid* test;
        bool isDone;
    };
    static int CALLBACK InsertingOrder(LPARAM first, LPARAM second, LPARAM sorting)
    {
        auto& amid = *reinterpret_cast<SortingTree*>(sorting);
        if (!std::exchange(amid.isDone, true))
            amid.test->tree->InsertItem(L"amid", 1, 1, amid.test->At("g"));
        return first < second ? 1 : -1;
    }
};

TEST_F(TreesAmid, AnInsertionAmidASort_EndsTheHistory)
{
    Begin("f[x y] g[z]");
    Rename("z", L"w");
    SortingTree sorting = {this, false};
    TVSORTCB sort = {At("f"), &TreesAmid::InsertingOrder, reinterpret_cast<LPARAM>(&sorting)};
    tree->SortChildrenCB(&sort);
    EXPECT_EQ(Outline(), "f[y x] g+[w amid]");
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(stack.ended, 1);
}

TEST_F(TreesAmid, AnInsertionAmidTheDeletionOfAMove_EndsTheHistory)
{
    Begin("a b c");
    InsertInTheNextDeletion();
    DragByMouse("a", "c", Half::Lower);
    EXPECT_EQ(Outline().substr(0, 5), "b c a");
    EXPECT_NE(Outline().find("amid"), std::string::npos);
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(stack.ended, 1);
    // It goes on with what follows.
    Rename("b", L"d");
    Undo();
    EXPECT_NE(Outline().find("b c a"), std::string::npos);
}

TEST_F(TreesAmid, AnInsertionAmidAnUndo_EndsTheHistory)
{
    Begin("a b");
    Rename("b", L"c");
    tree->InsertItem(L"new", 1, 1);
    InsertInTheNextDeletion();
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(stack.ended, 1);
    EXPECT_FALSE(stack.CanUndo());
    EXPECT_NE(Outline().find("amid"), std::string::npos);
}

TEST_F(TreesAmid, AnInsertionAmidACollapseThatDeletes_EndsTheHistory)
{
    Begin("f+[x y] a");
    Rename("a", L"b");
    InsertInTheNextDeletion();
    tree->Expand(At("f"), TVE_COLLAPSE | TVE_COLLAPSERESET);
    EXPECT_EQ(Outline(), "f[] b amid");
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(stack.ended, 1);
}

TEST_F(TreesAmid, AWatchThatEndsAmidADeletion_LeavesTheTree)
{
    Begin("a b");
    Rename("b", L"c");
    owner.onDeletedItem = [this] {
        owner.onDeletedItem = nullptr;
        stack.Unwatch(*tree);
    };
    tree->DeleteItem(At("a"));
    EXPECT_FALSE(stack.IsWatching(*tree));
    EXPECT_FALSE(stack.CanUndo());
    EXPECT_EQ(Outline(), "c");
}

// ---- Pauses

TEST_F(TreesAmid, WhatUsersDoInAPause_IsNoStep)
{
    Begin("a f[x y] b");
    {
        const TGUndoPause pause(stack);
        DragByMouse("a", "b", Half::Lower);
        Rename("x", L"z");
        Select("y");
        tree->MoveItemUp();
        tree->DeleteItem(At("z"));
        tree->Expand(At("f"), TVE_EXPAND);
        TVSORTCB sort = {TVI_ROOT,
                         [](LPARAM first, LPARAM second, LPARAM) { return first < second ? 1 : -1; }, 0};
        tree->SortChildrenCB(&sort);
    }
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(stack.ended, 0);
    const std::string after = All();
    Rename("b", L"c");
    Undo();
    EXPECT_EQ(All(Shown::LeftOut).substr(0, 1), after.substr(0, 1));
    EXPECT_EQ(stack.ended, 0);
}

TEST_F(TreesAmid, AMoveInAPause_EndsTheHistoryOfBothPlaces)
{
    Begin("f[x y] g[z] a");
    tree->DeleteItem(At("x"));
    {
        const TGUndoPause pause(stack);
        Select("y");
        tree->Expand(At("f"), TVE_EXPAND);
        tree->Expand(At("g"), TVE_EXPAND);
        DragByMouse("y", "z", Half::Lower);
    }
    EXPECT_EQ(Outline(), "f[] g+[z y] a");
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(stack.ended, 1);
    EXPECT_EQ(Outline(), "f[] g+[z y] a");
}

TEST_F(TreesAmid, PlacesThatAreGone_EndTheHistory)
{
    Begin("f[x y] a b");
    tree->DeleteItem(At("y"));
    {
        const TGUndoPause pause(stack);
        tree->DeleteItem(At("x"));
    }
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(stack.ended, 1);
    tree->DeleteItem(At("b"));
    {
        const TGUndoPause pause(stack);
        tree->DeleteItem(At("a"));
    }
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(stack.ended, 2);
    EXPECT_EQ(Outline(), "f[]");
}

} // namespace
} // namespace quor::test
