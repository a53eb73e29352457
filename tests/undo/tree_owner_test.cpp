// What the owner of a watched tree is told, and what it may do when it is told.
#include "tests/undo/WatchedTree.h"

#include "tests/support/MessageBoxProbe.h"

#include <algorithm>

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

class TreeOwners : public WatchedTreeTest
{
protected:
    void DeleteItem(const std::string& name)
    {
        Select(name);
        tree->DeleteSelected();
    }

    MessageBoxProbe boxes{IDYES};
};

// ---- Messages

TEST_F(TreeOwners, AreToldOfNothingElseWhileUsersActThanWithoutAStack)
{
    const auto act = [this] {
        std::string all;
        const auto note = [&] { all += owner.TakeMessages() + "; "; };
        DragByMouse("b", "a", Half::Upper);
        note();
        Select("b");
        tree->MoveItemDown();
        note();
        tree->MoveItemUp();
        note();
        tree->CreateNewFolder();
        EndLabel(L"mine");
        note();
        Rename("a", L"c");
        note();
        DeleteItem("f");
        note();
        return all;
    };
    Fill("a f+[x y] b");
    const std::string without = act();
    tree->DeleteAllItems();
    Begin("a f+[x y] b");
    EXPECT_EQ(act(), without);
    EXPECT_EQ(stack.GetUndoNum(), 6);
}

TEST_F(TreeOwners, HearOfARenamedItem)
{
    Begin("a b");
    Rename("a", L"c");
    owner.TakeMessages();
    Undo();
    EXPECT_EQ(owner.TakeMessages(), "renamed a");
    Redo();
    EXPECT_EQ(owner.TakeMessages(), "renamed c");
}

TEST_F(TreeOwners, HearOfEveryItemThatComesBackAndGoes)
{
    Begin("a f+[x g[y]] b");
    DeleteItem("f");
    EXPECT_EQ(owner.TakeMessages(), "deleted x, deleted y, deleted g, deleted f");
    Undo();
    EXPECT_EQ(owner.TakeMessages(), "inserted f at a, inserted x at f, inserted g at x, inserted y at g");
    Redo();
    EXPECT_EQ(owner.TakeMessages(), "deleted x, deleted y, deleted g, deleted f");
}

TEST_F(TreeOwners, HearOfAMoveOnceAndAreNotAskedAgain)
{
    Begin("a f+[x] b");
    DragByMouse("a", "b", Half::Lower);
    EXPECT_EQ(owner.TakeMessages(), "asked a at b, inserted a at b");
    Undo();
    EXPECT_EQ(owner.TakeMessages(), "inserted a at root");
    Redo();
    EXPECT_EQ(owner.TakeMessages(), "inserted a at b");
    tree->MoveItemUp();
    owner.TakeMessages();
    Undo();
    EXPECT_EQ(owner.TakeMessages(), "inserted a at b");
}

TEST_F(TreeOwners, LearnTheNewHandleOfEveryItem)
{
    Begin("a folder+[x g[y]] b");
    std::map<HTREEITEM, std::string> names;
    for (HTREEITEM item = tree->GetRootItem(); item != nullptr; item = tree->GetNextItem(item))
        names[item] = NameOf(item);
    const auto follow = [&] {
        const std::map<HTREEITEM, std::string> old = names;
        for (const auto& [before, now] : host.remade)
            names[now] = old.at(before);
        host.remade.clear();
        for (HTREEITEM item = tree->GetRootItem(); item != nullptr; item = tree->GetNextItem(item))
            ASSERT_EQ(names[item], NameOf(item));
    };
    DeleteItem("folder");
    Undo();
    EXPECT_EQ(host.remade.size(), 4u);
    follow();
    stack.Clear();
    DragByMouse("folder", "b", Half::Lower);
    // The owner follows this one by the message of the tree.
    names.clear();
    for (HTREEITEM item = tree->GetRootItem(); item != nullptr; item = tree->GetNextItem(item))
        names[item] = NameOf(item);
    Undo();
    EXPECT_EQ(host.remade.size(), 4u);
    follow();
    Redo();
    follow();
}

TEST_F(TreeOwners, HearOfLooksAndOrder)
{
    Begin("c a b");
    tree->SetItemImage(At("a"), 2, 2);
    tree->SortChildren(TVI_ROOT);
    ASSERT_EQ(Outline(), "a b c");
    Undo();
    EXPECT_EQ(Outline(), "c a b");
    ASSERT_EQ(host.sorted.size(), 1u);
    EXPECT_EQ(host.sorted[0], TVI_ROOT);
    Undo();
    ASSERT_EQ(host.changed.size(), 1u);
    EXPECT_EQ(host.changed[0], At("a"));
    EXPECT_EQ(owner.TakeMessages(), "");
}

// ---- Item data

TEST_F(TreeOwners, LearnWhenDataAreGoneBecauseStepsAreDropped)
{
    Begin("a b c");
    stack.SetLimits(1, 0);
    DeleteItem("a");
    EXPECT_TRUE(host.gone.empty());
    DeleteItem("b");
    EXPECT_EQ(host.gone, std::vector<DWORD_PTR>{1});
    Undo();
    stack.Clear();
    EXPECT_EQ(host.gone, std::vector<DWORD_PTR>{1});
}

TEST_F(TreeOwners, LearnWhenDataOfUndoneItemsAreGone)
{
    Begin("a");
    tree->SetItemData(tree->InsertItem(L"b"), 77);
    Undo();
    Undo();
    EXPECT_EQ(Outline(), "a");
    EXPECT_TRUE(host.gone.empty());
    Redo();
    Redo();
    EXPECT_EQ(tree->GetItemData(At("b")), 77u);
    Undo();
    Rename("a", L"c");
    EXPECT_TRUE(host.gone.empty());
    Undo();
    Undo();
    Rename("a", L"d");
    EXPECT_TRUE(host.gone.empty()) << "data 0 are nobody's";
}

TEST_F(TreeOwners, LearnWhenDataAreGoneWithTheWatch)
{
    Begin("f[x y] a");
    DeleteItem("f");
    stack.Unwatch(*tree);
    EXPECT_EQ(host.gone, (std::vector<DWORD_PTR>{1, 2, 3}));
}

TEST_F(TreeOwners, LearnWhenDataAreGoneWithTheWindow)
{
    Begin("f[x y] a");
    DeleteItem("f");
    tree->DestroyWindow();
    EXPECT_EQ(host.gone, (std::vector<DWORD_PTR>{1, 2, 3}));
    EXPECT_FALSE(stack.IsWatching(*tree));
    EXPECT_FALSE(stack.Undo());
}

TEST_F(TreeOwners, MovesKeepDataAlive)
{
    Begin("folder[x y] a");
    DragByMouse("folder", "a", Half::Lower);
    Undo();
    Redo();
    Undo();
    stack.Clear();
    EXPECT_TRUE(host.gone.empty());
}

TEST_F(TreeOwners, DataOfACopyThatTheOwnerChangedStayAlive)
{
    Begin("a b c");
    const std::string before = All(Shown::LeftOut);
    owner.answers[TDM_ITEM_INSERTED] = [this](const OwnerMessage& message) {
        tree->SetItemText(message.item, L"moved");
        return 0;
    };
    DragByMouse("a", "c", Half::Lower);
    owner.answers.clear();
    ASSERT_EQ(Outline(), "b c moved");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    Undo();
    EXPECT_EQ(All(Shown::LeftOut), before);
    Redo();
    EXPECT_EQ(Outline(), "b c moved");
    stack.Clear();
    EXPECT_TRUE(host.gone.empty());
}

// ---- What owners do

TEST_F(TreeOwners, MayRefuseAStep)
{
    Begin("a b");
    Rename("a", L"c");
    stack.refuses = true;
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(Outline(), "c b");
    stack.refuses = false;
    Undo();
    EXPECT_EQ(Outline(), "a b");
    EXPECT_EQ(stack.done, std::vector<std::wstring>{L"undone Rename item"});
}

TEST_F(TreeOwners, CannotUndoWithinAStep)
{
    Begin("a b c");
    Rename("a", L"d");
    int refused = 0;
    for (const UINT message : {TDM_DROP_QUERY, TDM_ITEM_INSERTED, TDM_ITEM_DELETED, TDM_ITEM_RENAMED})
        owner.answers[message] = [&](const OwnerMessage&) {
            refused += stack.Undo() || stack.Redo() || stack.CanUndo() ? 0 : 1;
            return 0;
        };
    DragByMouse("b", "c", Half::Lower);
    EXPECT_EQ(refused, 2);
    DeleteItem("b");
    EXPECT_EQ(refused, 3);
    while (stack.CanUndo())
        Undo();
    EXPECT_EQ(Outline(), "a b c");
    EXPECT_EQ(refused, 6);
}

TEST_F(TreeOwners, ChangeTheTreeInMessagesWithinTheStep)
{
    Begin("a f[x y] b c g[z]");
    owner.answers[TDM_DROP_QUERY] = [this](const OwnerMessage&) {
        tree->DeleteItem(At("x"));
        return 0;
    };
    owner.answers[TDM_ITEM_INSERTED] = [this](const OwnerMessage& message) {
        if (NameOf(message.item) != "b")
            return 0;
        tree->SetItemText(At("a"), L"aa");
        tree->InsertItem(L"new", 1, 1, At("f"));
        tree->SelectItem(At("z"));
        tree->MoveItemUp();
        return 0;
    };
    Select("b");
    const std::string before = All();
    DragByMouse("b", "c", Half::Lower);
    owner.answers.clear();
    EXPECT_EQ(Outline(), "aa f[y new] c b z g[]");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    ExpectRoundTrip(before);
}

TEST_F(TreeOwners, MayDeleteTheCopyOrTheOriginal)
{
    Begin("a b c");
    Select("a");
    const std::string before = All();
    owner.answers[TDM_ITEM_INSERTED] = [this](const OwnerMessage& message) {
        tree->DeleteItem(message.item);
        return 0;
    };
    DragByMouse("a", "c", Half::Lower);
    ASSERT_EQ(Outline(), "a b c");
    owner.answers[TDM_ITEM_INSERTED] = [this](const OwnerMessage&) {
        tree->DeleteItem(tree->GetRootItem());
        return 0;
    };
    DragByMouse("a", "c", Half::Lower);
    ASSERT_EQ(Outline(), "b c a");
    owner.answers.clear();
    while (stack.CanUndo())
        Undo();
    EXPECT_EQ(All(), before);
    stack.Clear();
    EXPECT_TRUE(host.gone.empty());
}

TEST_F(TreeOwners, MayMoveItemsThemselvesAndRefuseTheDrop)
{
    Begin("a b c");
    Select("a");
    const std::string before = All();
    owner.answers[TDM_DROP_QUERY] = [this](const OwnerMessage&) {
        tree->InsertItem(L"own", 1, 1, TVI_ROOT, TVI_FIRST);
        tree->DeleteItem(At("b"));
        return 1;
    };
    DragByMouse("a", "c", Half::Lower);
    ASSERT_EQ(Outline(), "own a c");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    ExpectRoundTrip(before);
}

TEST_F(TreeOwners, ReactionsToUndoDriftAndAreTakenBackFirst)
{
    Begin("a b c");
    Rename("b", L"d");
    Rename("a", L"e");
    owner.answers[TDM_ITEM_RENAMED] = [this](const OwnerMessage& message) {
        tree->SetItemText(message.item, L"again");
        tree->DeleteItem(At("c"));
        return 0;
    };
    Undo();
    owner.answers.clear();
    ASSERT_EQ(Outline(), "again d");
    Undo();
    EXPECT_EQ(Outline(), "a b c");
    EXPECT_EQ(stack.ended, 0);
}

TEST_F(TreeOwners, MayDestroyTheTreeInEveryMessageOfUndo)
{
    for (const UINT message : {TDM_ITEM_DELETED, TDM_ITEM_INSERTED, TDM_ITEM_RENAMED})
    {
        Begin("a f[x] b");
        if (message == TDM_ITEM_RENAMED)
            Rename("a", L"c");
        else if (message == TDM_ITEM_INSERTED)
            DeleteItem("f");
        else
            tree->InsertItem(L"new");
        owner.answers[message] = [this](const OwnerMessage&) {
            tree->DestroyWindow();
            return 0;
        };
        stack.Undo();
        EXPECT_EQ(tree->GetSafeHwnd(), nullptr) << message;
        EXPECT_FALSE(stack.IsWatching(*tree));
        EXPECT_EQ(stack.GetUndoNum() + stack.GetRedoNum(), 0);
        owner.answers.clear();
        tree->Create(UsualStyle, CRect(20, 20, 280, 320), &owner, TreeId);
    }
}

TEST_F(TreeOwners, MayEndTheWatchInEveryMessage)
{
    for (const UINT message : {TDM_ITEM_DELETED, TDM_ITEM_INSERTED, TDM_ITEM_RENAMED, TDM_DROP_QUERY})
    {
        for (const bool undoes : {false, true})
        {
            tree->DeleteAllItems();
            Begin("a f[x] b");
            const auto endWatch = [this](const OwnerMessage&) {
                stack.Unwatch(*tree);
                return 0;
            };
            if (!undoes)
                owner.answers[message] = endWatch;
            DragByMouse("a", "b", Half::Lower);
            Rename("f", L"g");
            DeleteItem("x");
            owner.answers.clear();
            if (undoes)
            {
                owner.answers[message] = endWatch;
                while (stack.Undo())
                    ;
                owner.answers.clear();
                stack.Unwatch(*tree);
            }
            EXPECT_FALSE(stack.IsWatching(*tree));
            EXPECT_EQ(stack.GetUndoNum() + stack.GetRedoNum(), 0);
        }
    }
}

TEST_F(TreeOwners, StayWithATreeAfterTheStack)
{
    Fill("a b");
    {
        TGUndoStack shortLived;
        ASSERT_TRUE(shortLived.Watch(*tree));
        EXPECT_FALSE(stack.Watch(*tree)) << "a tree has one stack";
        Rename("a", L"c");
    }
    ASSERT_TRUE(stack.Watch(*tree));
    Rename("c", L"d");
    Undo();
    EXPECT_EQ(Outline(), "c b");
}

} // namespace
