// What a program does to a watched tree itself, also past the stack.
#include "tests/undo/WatchedTree.h"

#include "tests/guard/Guard.h"

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

class TreePrograms : public WatchedTreeTest
{
};

TEST_F(TreePrograms, CallsOfTheProgramAreSteps)
{
    Begin("a f[x] b");
    const std::string first = All();
    tree->InsertItem(L"new", At("f"));
    tree->SetItemText(At("b"), L"changed");
    tree->SetItemState(At("changed"), TVIS_BOLD | INDEXTOSTATEIMAGEMASK(1), TVIS_BOLD | TVIS_STATEIMAGEMASK);
    tree->DeleteItem(At("a"));
    tree->SortChildren(At("f"));
    tree->DeleteAllItems();
    EXPECT_EQ(stack.GetUndoNum(), 6);
    EXPECT_EQ(UndoName(), L"Change");
    while (stack.CanUndo())
        Undo();
    EXPECT_EQ(All(), first);
    while (stack.CanRedo())
        Redo();
    EXPECT_EQ(Outline(), "");
}

TEST_F(TreePrograms, ATransactionIsOneStep)
{
    Begin("a f[x] b");
    const std::string before = All();
    {
        const TGUndoTransaction step(stack, L"Import");
        const HTREEITEM folder = tree->InsertItem(L"g", 0, 0);
        tree->SetItemData(folder, 5);
        tree->InsertItem(L"y", 1, 1, folder);
        tree->Expand(folder, TVE_EXPAND);
        tree->DeleteItem(At("a"));
    }
    EXPECT_EQ(UndoName(), L"Import");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    ExpectRoundTrip(before);
}

TEST_F(TreePrograms, CallsLeftOutEndTheHistoryWhereTheyTouch)
{
    Begin("a f[x] b");
    Rename("b", L"c");
    Rename("x", L"y");
    {
        const TGUndoPause pause(stack);
        tree->SetItemText(At("c"), L"touched");
    }
    Undo();
    EXPECT_EQ(Outline(), "a f+[x] touched");
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(Outline(), "a f+[x] touched");
    EXPECT_EQ(stack.ended, 1);
    EXPECT_EQ(stack.GetUndoNum(), 0);
    Redo();
    EXPECT_EQ(Outline(), "a f+[y] touched");
}

TEST_F(TreePrograms, CallsLeftOutElsewhereDoNoHarm)
{
    Begin("a f[x] g[y] b");
    Rename("b", L"c");
    Select("a");
    tree->DeleteSelected();
    {
        const TGUndoPause pause(stack);
        tree->InsertItem(L"late", 1, 1, At("g"));
        tree->DeleteItem(At("x"));
        tree->SetItemText(At("f"), L"h");
        tree->SortChildren(At("g"));
    }
    Undo();
    Undo();
    EXPECT_EQ(Outline(), "a h[] g[late y] b");
    EXPECT_EQ(stack.ended, 0);
    EXPECT_TRUE(host.gone.empty());
}

TEST_F(TreePrograms, ItemsLeftOutEndTheHistoryOfTheirPlace)
{
    Begin("a b c");
    DragByMouse("a", "c", Half::Lower);
    {
        const TGUndoPause pause(stack);
        tree->InsertItem(L"late", 1, 1, TVI_ROOT, TVI_FIRST);
    }
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(Outline(), "late b c a");
    EXPECT_EQ(stack.ended, 1);
}

TEST_F(TreePrograms, ADeletionLeftOutEndsTheHistoryOfItsItems)
{
    Begin("a f[x] c");
    Rename("x", L"y");
    Rename("a", L"b");
    {
        const TGUndoPause pause(stack);
        tree->DeleteItem(At("f"));
    }
    Undo();
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(Outline(), "a c");
}

TEST_F(TreePrograms, ChangesAmidADeletionEndTheHistory)
{
    Begin("a f[x y] b");
    Rename("a", L"c");
    owner.onDeletedItem = [this] {
        owner.onDeletedItem = nullptr;
        tree->InsertItem(L"amid", 1, 1);
    };
    tree->DeleteItem(At("b"));
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(stack.ended, 1);
    EXPECT_EQ(Outline(), "c f[x y] amid");
    Rename("amid", L"d");
    Undo();
    EXPECT_EQ(Outline(), "c f[x y] amid");
}

// The checked variant counts the blocks of memory that there are.
TEST_F(TreePrograms, ItemsThatAreGoneWithTheirStepsLeaveNothing)
{
    Begin("a b");
    stack.SetLimits(4, 0);
    const auto live = [this](int items) {
        for (int i = 0; i < items; ++i)
        {
            const HTREEITEM item = tree->InsertItem(L"new", 1, 1);
            tree->SetItemText(item, L"named");
            {
                const TGUndoPause pause(stack);
                tree->SetItemState(item, TVIS_BOLD, TVIS_BOLD);
            }
            tree->DeleteItem(item);
        }
        owner.TakeLog();
        return static_cast<long>(QuorGuardLiveBlocks());
    };
    const long before = live(50);
    EXPECT_LE(live(200), before + 20);
}

TEST_F(TreePrograms, AnUndoThatFailsLeavesTheTreeAsItIs)
{
    Begin("a f[x y] b");
    tree->DeleteItem(At("f"));
    const std::string after = All();
    tree->FailInsertionsAfter(1);
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(All(), after);
    tree->FailInsertionsAfter(-1);
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(stack.ended, 1);
}

TEST_F(TreePrograms, ItemsThatAskForTheirTextAskAgain)
{
    Begin("a b");
    TVINSERTSTRUCTW insertion = {};
    insertion.hParent = TVI_ROOT;
    insertion.hInsertAfter = TVI_LAST;
    insertion.itemex.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_PARAM;
    insertion.itemex.pszText = LPSTR_TEXTCALLBACKW;
    insertion.itemex.iImage = I_IMAGECALLBACK;
    insertion.itemex.lParam = 9;
    owner.asked = L"first";
    const HTREEITEM item = reinterpret_cast<HTREEITEM>(
        ::SendMessageW(*tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion)));
    ASSERT_EQ(Outline(), "a b first");
    tree->SetItemText(item, L"fixed");
    Undo();
    owner.asked = L"second";
    EXPECT_EQ(Outline(), "a b second");
    tree->DeleteItem(At("second"));
    Undo();
    owner.asked = L"third";
    EXPECT_EQ(Outline(), "a b third");
}

} // namespace
