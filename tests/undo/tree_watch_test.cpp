// Watches of a tree that begin or end amid what a user does, and amid what the stack asks the owner for.
#include "tests/grid/ModelGrid.h"
#include "tests/undo/WatchedTree.h"

#include "tests/support/MessageBoxProbe.h"

#include <functional>
#include <memory>

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

class TreeWatches : public WatchedTreeTest
{
protected:
    TreeWatches()
    {
        AddCols(grid, 1);
        AddRows(grid, "ab");
    }
    // On that message the owner does something, once.
    void Once(UINT message, const std::function<void()>& act)
    {
        owner.answers[message] = [this, message, act](const OwnerMessage&) {
            owner.answers.erase(message);
            act();
            return 0;
        };
    }
    void OnceNotified(UINT code, const std::function<void()>& act)
    {
        owner.onNotification[code] = [this, code, act] {
            // The action runs as a copy of its own.
            owner.onNotification.erase(code);
            act();
        };
    }
    // An item whose text the owner is asked for.
    HTREEITEM InsertAsking(HTREEITEM parent = TVI_ROOT)
    {
        TVINSERTSTRUCTW insertion = {};
        insertion.hParent = parent;
        insertion.hInsertAfter = TVI_LAST;
        insertion.itemex.mask = TVIF_TEXT;
        insertion.itemex.pszText = LPSTR_TEXTCALLBACKW;
        return reinterpret_cast<HTREEITEM>(
            ::SendMessageW(*tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion)));
    }
    void EndWatchWhenAsked()
    {
        OnceNotified(TVN_GETDISPINFOW, [this] { EXPECT_TRUE(stack.Unwatch(*tree)); });
    }
    void ExpectNoWatch()
    {
        EXPECT_FALSE(stack.IsWatching(*tree));
        EXPECT_EQ(stack.GetUndoNum() + stack.GetRedoNum(), 0);
    }
    // The other controls of the stack are served as before.
    void ExpectOthersServed()
    {
        if (!stack.IsWatching(grid))
            stack.Watch(grid);
        grid.GetCell(0, 0).SetText(L"1");
        EXPECT_TRUE(stack.CanUndo());
        EXPECT_TRUE(stack.Undo());
        EXPECT_EQ(Texts(grid), "a b");
        stack.Unwatch(grid);
    }

    ModelGrid grid;
    MessageBoxProbe boxes{IDYES};
};

// ---- Amid actions

TEST_F(TreeWatches, ThatEndAmidAnAction_LeaveNoStepOpen)
{
    const std::vector<std::pair<UINT, std::function<void()>>> actions = {
        {TDM_ITEM_RENAMED, [this] { Rename("a", L"c"); }},
        {TDM_DROP_QUERY, [this] { DragByMouse("a", "b", Half::Lower); }},
        {TDM_ITEM_INSERTED, [this] { DragByMouse("a", "b", Half::Lower); }},
        {TDM_ITEM_DELETED,
         [this] {
             Select("a");
             tree->DeleteSelected();
         }},
    };
    for (const auto& [message, act] : actions)
    {
        SCOPED_TRACE(message);
        tree->DeleteAllItems();
        Begin("a b");
        Once(message, [this] { EXPECT_TRUE(stack.Unwatch(*tree)); });
        act();
        ExpectNoWatch();
        ExpectOthersServed();
    }
}

TEST_F(TreeWatches, WhoseTreeGoesAmidAnAction_LeaveNoStepOpen)
{
    Begin("a b");
    stack.Watch(grid);
    Once(TDM_ITEM_RENAMED, [this] { tree->DestroyWindow(); });
    Rename("a", L"c");
    ExpectNoWatch();
    ExpectOthersServed();
}

// What others have changed within the action is a step of their own.
TEST_F(TreeWatches, ThatEndAmidAnAction_LeaveWhatOthersHaveChanged)
{
    Begin("a b");
    stack.Watch(grid);
    Once(TDM_ITEM_RENAMED, [this] {
        grid.GetCell(1, 0).SetText(L"2");
        stack.Unwatch(*tree);
    });
    Rename("a", L"c");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), "a b");
    EXPECT_EQ(Outline(), "c b");
    stack.Unwatch(grid);
}

TEST_F(TreeWatches, ThatBeginAmidAMove_SeeWhatFollows)
{
    Fill("a b c");
    Once(TDM_ITEM_INSERTED, [this] { EXPECT_TRUE(stack.Watch(*tree)); });
    DragByMouse("a", "c", Half::Lower);
    EXPECT_EQ(Outline(), "b c a");
    EXPECT_TRUE(stack.IsWatching(*tree));
    stack.Clear();
    Rename("b", L"d");
    DragByMouse("a", "c", Half::Upper);
    EXPECT_EQ(Outline(), "d a c");
    EXPECT_EQ(stack.GetUndoNum(), 2);
    Undo();
    Undo();
    EXPECT_EQ(Outline(), "b c a");
}

// ---- Amid questions

TEST_F(TreeWatches, ThatEndWhenTheOwnerIsAskedForATextThatIsDeleted)
{
    Begin("a");
    owner.asked = L"first";
    InsertAsking();
    owner.asked = L"second";
    InsertAsking();
    EndWatchWhenAsked();
    tree->DeleteAllItems();
    ExpectNoWatch();
    EXPECT_EQ(Outline(), "");
    ExpectOthersServed();
}

TEST_F(TreeWatches, ThatEndWhenTheOwnerIsAskedForALongText)
{
    for (const bool isBelow : {false, true})
    {
        tree->DeleteAllItems();
        Begin("a f[]");
        owner.asked = std::wstring(700, L'x');
        InsertAsking(isBelow ? At("f") : TVI_ROOT);
        EndWatchWhenAsked();
        tree->DeleteItem(isBelow ? At("f") : tree->GetNextSiblingItem(At("f")));
        ExpectNoWatch();
        EXPECT_EQ(Outline(), isBelow ? "a" : "a f[]");
        ExpectOthersServed();
    }
}

TEST_F(TreeWatches, ThatEndWhenTheOwnerIsAskedAmidAnUndo_KeepTheTree)
{
    owner.asked = std::wstring(700, L'x');
    const std::vector<std::function<void()>> steps = {
        // Undone, the item goes; is moved; has its own text again.
        [this] { InsertAsking(); },
        [this] {
            InsertAsking();
            tree->SelectItem(tree->GetNextSiblingItem(At("b")));
            tree->MoveItemUp();
        },
        [this] { tree->SetItemText(At("b"), LPSTR_TEXTCALLBACKW); },
    };
    for (std::size_t i = 0; i < steps.size(); ++i)
    {
        SCOPED_TRACE(i);
        tree->DeleteAllItems();
        Begin("a b");
        steps[i]();
        const UINT items = tree->GetCount();
        EndWatchWhenAsked();
        EXPECT_FALSE(stack.Undo());
        ExpectNoWatch();
        EXPECT_EQ(tree->GetCount(), items);
        EXPECT_EQ(NameOf(tree->GetRootItem()), "a");
        ExpectOthersServed();
    }
}

TEST_F(TreeWatches, ThatEndWhenTheOwnerIsAskedForATextThatIsChanged)
{
    Begin("a");
    owner.asked = L"asked";
    const HTREEITEM item = InsertAsking();
    EndWatchWhenAsked();
    tree->SetItemText(item, L"mine");
    ExpectNoWatch();
    EXPECT_EQ(Outline(), "a mine[]");
    ExpectOthersServed();
}

// ---- Amid notifications

TEST_F(TreeWatches, ThatEndAmidAMoveThatIsUndone_LeaveTheItemWhereItWas)
{
    Begin("f+[x] g+[y]");
    DragByMouse("x", "y", Half::Lower);
    ASSERT_EQ(Outline(), "f[] g+[y x]");
    owner.onDeletedItem = [this] {
        owner.onDeletedItem = nullptr;
        stack.Unwatch(*tree);
    };
    EXPECT_FALSE(stack.Undo());
    ExpectNoWatch();
    EXPECT_EQ(tree->GetCount(), 4u);
    EXPECT_NE(tree->GetChildItem(At("f")), nullptr);
    ExpectOthersServed();
}

TEST_F(TreeWatches, ThatEndAsTheSelectionComesBack)
{
    Begin("a b c");
    Select("a");
    tree->DeleteItem(At("c"));
    Select("b");
    OnceNotified(TVN_SELCHANGEDW, [this] { stack.Unwatch(*tree); });
    stack.Undo();
    ExpectNoWatch();
    EXPECT_EQ(Outline(), "a b c");
    EXPECT_EQ(Selected(), "a");
    ExpectOthersServed();
}

TEST_F(TreeWatches, ThatEndAsABranchIsShown)
{
    Begin("f[x] a");
    Rename("a", L"b");
    OnceNotified(TVN_SELCHANGEDW, [this] { stack.Unwatch(*tree); });
    Select("x");
    ExpectNoWatch();
    EXPECT_EQ(Outline(), "f+[x] b");
    ExpectOthersServed();
}

TEST_F(TreeWatches, ThatEndAsItemsAreToldToGo)
{
    Begin("a");
    {
        const TGUndoTransaction step(stack, L"both");
        tree->InsertItem(L"y", 1, 1, tree->InsertItem(L"x", 0, 0));
    }
    Once(TDM_ITEM_DELETED, [this] { stack.Unwatch(*tree); });
    EXPECT_FALSE(stack.Undo());
    ExpectNoWatch();
    EXPECT_EQ(Outline(), "a x[y]");
}

TEST_F(TreeWatches, ThatEndAmidASortedInsertion)
{
    Begin("a");
    owner.asked = L"m";
    InsertAsking();
    EndWatchWhenAsked();
    tree->InsertItem(L"z", 1, 1, TVI_ROOT, TVI_SORT);
    ExpectNoWatch();
    EXPECT_EQ(tree->GetCount(), 3u);
    ExpectOthersServed();
}

} // namespace
