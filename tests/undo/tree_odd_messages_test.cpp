// Messages and insertions of a watched tree that fail, come amid others, or pass the stack by, and items
// whose looks the owner is asked for.
#include "tests/support/Input.h"
#include "tests/undo/WatchedTree.h"

#include <functional>
#include <memory>
#include <optional>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class OddTreeMessages : public WatchedTreeTest
{
protected:
    ~OddTreeMessages() override { stack.Clear(); }

    HTREEITEM Insert(UINT mask, const std::function<void(TVITEMEXW&)>& fill, HTREEITEM after = TVI_LAST)
    {
        TVINSERTSTRUCTW insertion = {};
        insertion.hParent = TVI_ROOT;
        insertion.hInsertAfter = after;
        insertion.itemex.mask = mask;
        fill(insertion.itemex);
        return reinterpret_cast<HTREEITEM>(
            ::SendMessageW(*tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion)));
    }
    HTREEITEM InsertAsking(HTREEITEM after = TVI_LAST)
    {
        return Insert(
            TVIF_TEXT, [](TVITEMEXW& item) { item.pszText = LPSTR_TEXTCALLBACKW; }, after);
    }
    int SelectedImageOf(HTREEITEM item) const
    {
        int image = -1;
        int selectedImage = -1;
        tree->GetItemImage(item, image, selectedImage);
        return selectedImage;
    }
};

// ---- What fails

TEST_F(OddTreeMessages, AnInsertionThatFails_IsNoStep)
{
    Begin("a");
    tree->FailInsertionsAfter(0);
    EXPECT_EQ(tree->InsertItem(L"new", 1, 1), nullptr);
    tree->FailInsertionsAfter(-1);
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(Outline(), "a");
}

TEST_F(OddTreeMessages, AMoveWhoseCopyFails_IsNoStep)
{
    for (const int insertions : {0, 1})
    {
        Begin("f+[x y] b");
        Select("f");
        tree->FailInsertionsAfter(insertions);
        tree->MoveItemDown();
        tree->FailInsertionsAfter(-1);
        EXPECT_EQ(Outline(), "f+[x y] b");
        EXPECT_EQ(stack.GetUndoNum(), 0);
        EXPECT_EQ(stack.ended, 0);
        // The next one is recorded.
        tree->MoveItemDown();
        EXPECT_EQ(Outline(), "b f+[x y]");
        EXPECT_EQ(stack.GetUndoNum(), 1);
        Undo();
        EXPECT_EQ(Outline(), "f+[x y] b");
        stack.Unwatch(*tree);
        tree->DeleteAllItems();
    }
}

TEST_F(OddTreeMessages, AMoveThatCannotBeTakenBack_LeavesTheTree)
{
    Begin("a b c");
    Select("a");
    tree->MoveItemDown();
    ASSERT_EQ(Outline(), "b a c");
    tree->FailInsertionsAfter(0);
    EXPECT_FALSE(stack.Undo());
    tree->FailInsertionsAfter(-1);
    EXPECT_EQ(Outline(), "b a c");
    EXPECT_EQ(stack.ended, 1);
    EXPECT_FALSE(stack.CanUndo());
}

TEST_F(OddTreeMessages, ABranchOfWhichOnlyPartsCameBack_GoesAgain)
{
    Begin("a f[x y] b");
    tree->DeleteItem(At("f"));
    tree->FailInsertionsAfter(2);
    EXPECT_FALSE(stack.Undo());
    tree->FailInsertionsAfter(-1);
    EXPECT_EQ(Outline(), "a b");
    EXPECT_EQ(stack.ended, 1);
}

// A step of two changes, of which the later one is taken back, and can be neither gone on with nor made
// again.
TEST_F(OddTreeMessages, AStepThatCanBeNeitherTakenBackNorMadeAgain_EndsEverything)
{
    Begin("a b");
    Rename("a", L"c");
    Rename("b", L"d");
    {
        const TGUndoTransaction step(stack, L"step");
        tree->SetItemText(At("c"), L"e");
        tree->InsertItem(L"new", 1, 1);
    }
    Rename("d", L"g");
    Undo();
    ASSERT_EQ(stack.GetRedoNum(), 1);
    {
        const TGUndoPause pause(stack);
        tree->SetItemText(At("e"), L"touched");
    }
    tree->FailInsertionsAfter(0);
    EXPECT_FALSE(stack.Undo());
    tree->FailInsertionsAfter(-1);
    EXPECT_EQ(Outline(), "touched d");
    EXPECT_EQ(stack.GetUndoNum() + stack.GetRedoNum(), 0);
    EXPECT_FALSE(stack.IsSaved());
    EXPECT_GE(stack.ended, 1);
    Rename("d", L"on");
    Undo();
    EXPECT_EQ(Outline(), "touched d");
}

// ---- What comes amid others

TEST_F(OddTreeMessages, AnInsertionAmidASortedOne_EndsTheHistory)
{
    Begin("a");
    Rename("a", L"b");
    owner.asked = L"m";
    InsertAsking();
    owner.onNotification[TVN_GETDISPINFOW] = [this] {
        owner.onNotification.clear();
        tree->InsertItem(L"amid", 1, 1);
    };
    tree->InsertItem(L"z", 1, 1, TVI_ROOT, TVI_SORT);
    EXPECT_EQ(tree->GetCount(), 4u);
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(stack.ended, 1);
}

TEST_F(OddTreeMessages, ACopyThatIsMadeAmidADeletion_EndsTheHistory)
{
    Begin("a b c");
    Rename("c", L"d");
    owner.onDeletedItem = [this] {
        owner.onDeletedItem = nullptr;
        tree->dragItem = At("a");
        tree->dropTarget = At("a");
        tree->dropAbove = TRUE;
        EXPECT_NE(tree->InsertItemAndSubtree(nullptr), nullptr);
        tree->dragItem = tree->dropTarget = nullptr;
    };
    tree->DeleteItem(At("b"));
    EXPECT_EQ(Outline(), "a a d");
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(stack.ended, 1);
    // It goes on with what follows.
    Rename("d", L"e");
    Undo();
    EXPECT_EQ(Outline(), "a a d");
}

TEST_F(OddTreeMessages, AMoveAmidADeletion_EndsTheHistory)
{
    Begin("a b c");
    Rename("c", L"d");
    Select("a");
    owner.onDeletedItem = [this] {
        owner.onDeletedItem = nullptr;
        tree->MoveItemDown();
    };
    tree->DeleteItem(At("d"));
    EXPECT_EQ(Outline(), "b a");
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(stack.ended, 1);
    tree->MoveItemUp();
    EXPECT_EQ(Outline(), "a b");
    Undo();
    EXPECT_EQ(Outline(), "b a");
}

TEST_F(OddTreeMessages, ChangesAmidADeletionOfTheOwner_WhileAStepIsTakenBack_EndTheHistory)
{
    Begin("a b");
    Rename("b", L"c");
    tree->InsertItem(L"new", 1, 1);
    owner.answers[TDM_ITEM_DELETED] = [this](const OwnerMessage&) {
        owner.answers.clear();
        owner.onDeletedItem = [this] {
            owner.onDeletedItem = nullptr;
            tree->InsertItem(L"amid", 1, 1);
        };
        tree->DeleteItem(At("a"));
        return 0;
    };
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(Outline(), "c new amid");
    EXPECT_EQ(stack.ended, 1);
    EXPECT_FALSE(stack.CanUndo());
}

TEST_F(OddTreeMessages, AnItemThatTheOwnerDeletesItselfWhenItIsToGo_EndsTheHistory)
{
    Begin("a");
    tree->InsertItem(L"new", 1, 1);
    owner.answers[TDM_ITEM_DELETED] = [this](const OwnerMessage& message) {
        owner.answers.clear();
        tree->DeleteItem(message.item);
        return 0;
    };
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(Outline(), "a");
    EXPECT_EQ(stack.ended, 1);
}

TEST_F(OddTreeMessages, AnItemBetweenTheCopyAndItsOriginalThatIsLeftOut)
{
    Begin("z a b");
    Select("b");
    owner.answers[TDM_ITEM_INSERTED] = [this](const OwnerMessage&) {
        owner.answers.clear();
        const TGUndoPause pause(stack);
        tree->DeleteItem(At("a"));
        return 0;
    };
    tree->MoveItemUp();
    EXPECT_EQ(Outline(), "z b");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    Undo();
    EXPECT_EQ(Outline(), "z b");
    Redo();
    EXPECT_EQ(Outline(), "z b");
    EXPECT_EQ(stack.ended, 0);
}

TEST_F(OddTreeMessages, APauseThatEndsAmidAMove_LeavesItsDeletion)
{
    Begin("a b c");
    auto pause = std::make_unique<TGUndoPause>(stack);
    owner.answers[TDM_ITEM_INSERTED] = [&](const OwnerMessage&) {
        owner.answers.clear();
        pause.reset();
        return 0;
    };
    Select("a");
    tree->MoveItemDown();
    EXPECT_EQ(Outline(), "b a c");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    Undo();
    EXPECT_EQ(Outline(), "a b a c") << "the copy was left out";
}

// ---- What passes the stack by

TEST_F(OddTreeMessages, AnItemThatGoesWithoutAMessage_EndsTheHistory)
{
    Begin("a b");
    Rename("a", L"c");
    tree->DeletePastTheMessages(At("b"));
    EXPECT_EQ(Outline(), "c");
    EXPECT_EQ(stack.ended, 1);
    EXPECT_FALSE(stack.CanUndo());
    Rename("c", L"d");
    Undo();
    EXPECT_EQ(Outline(), "c");
}

// ---- Copies that a derived class makes

TEST_F(OddTreeMessages, ACopyWithoutAMove_IsAStep)
{
    Begin("a f[x y] b");
    const std::string before = All(Shown::LeftOut);
    tree->dragItem = At("f");
    tree->dropTarget = At("b");
    tree->dropAbove = FALSE;
    ASSERT_NE(tree->InsertItemAndSubtree(nullptr), nullptr);
    tree->dragItem = tree->dropTarget = nullptr;
    EXPECT_EQ(Outline(), "a f[x y] b f[x y]");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    Undo();
    EXPECT_EQ(All(Shown::LeftOut), before);
    Redo();
    EXPECT_EQ(Outline(), "a f[x y] b f[x y]");
    Undo();
    stack.Clear();
    EXPECT_TRUE(host.gone.empty()) << "the data are those of the original";
}

TEST_F(OddTreeMessages, ACopyWithinAMove_ComesAndGoesWithIt)
{
    Begin("a b c");
    Select("a");
    const std::string before = All();
    owner.answers[TDM_ITEM_INSERTED] = [this](const OwnerMessage& message) {
        owner.answers.clear();
        const HTREEITEM dragged = tree->dragItem;
        const HTREEITEM target = tree->dropTarget;
        tree->dragItem = At("b");
        tree->dropTarget = message.item;
        tree->dropAbove = FALSE;
        EXPECT_NE(tree->InsertItemAndSubtree(TVI_ROOT), nullptr);
        tree->dragItem = dragged;
        tree->dropTarget = target;
        return 0;
    };
    tree->MoveItemDown();
    EXPECT_EQ(tree->GetCount(), 4u);
    EXPECT_EQ(stack.GetUndoNum(), 1);
    ExpectRoundTrip(before);
}

// ---- Items

TEST_F(OddTreeMessages, AnItemUnderNoParent_IsARootItem)
{
    Begin("a");
    tree->InsertItem(L"b", 1, 1, nullptr);
    EXPECT_EQ(Outline(), "a b");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    Undo();
    EXPECT_EQ(Outline(), "a");
    Redo();
    EXPECT_EQ(Outline(), "a b");
}

TEST_F(OddTreeMessages, TextAndLooksThatAreSetAtOnce_AreOneChange)
{
    Begin("a b");
    const std::string before = All();
    TVITEMW item = {};
    item.mask = TVIF_HANDLE | TVIF_TEXT | TVIF_IMAGE | TVIF_STATE;
    item.hItem = At("a");
    wchar_t text[] = L"set";
    item.pszText = text;
    item.iImage = 2;
    item.state = TVIS_CUT;
    item.stateMask = TVIS_CUT | TVIS_BOLD;
    ::SendMessageW(*tree, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(stack.GetUndoNum(), 1);
    ExpectRoundTrip(before);
    // What changes either ends the history.
    {
        const TGUndoPause pause(stack);
        tree->SetItemState(At("set"), 0, TVIS_CUT);
    }
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(stack.ended, 1);
}

TEST_F(OddTreeMessages, TextsOfOneItemInOneStep_ComeBackFromTheLastToTheFirst)
{
    Begin("a b");
    const std::string before = All();
    {
        const TGUndoTransaction step(stack, L"step");
        for (const wchar_t* text : {L"1", L"2", L"3"})
            tree->SetItemText(tree->GetRootItem(), text);
        tree->SetItemImage(tree->GetRootItem(), 2, 2);
        tree->SetItemText(tree->GetRootItem(), L"4");
    }
    ASSERT_EQ(Outline(), "4 b");
    ExpectRoundTrip(before);
}

TEST_F(OddTreeMessages, LooksThatTheOwnerIsAskedFor_AreAskedForAgain)
{
    Begin("a");
    owner.askedSelectedImage = 2;
    owner.askedButton = 1;
    Insert(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN, [](TVITEMEXW& item) {
        static wchar_t text[] = L"b";
        item.pszText = text;
        item.iImage = I_IMAGECALLBACK;
        item.iSelectedImage = I_IMAGECALLBACK;
        item.cChildren = I_CHILDRENCALLBACK;
    });
    ASSERT_EQ(SelectedImageOf(At("b")), 2);
    tree->DeleteItem(At("b"));
    Undo();
    EXPECT_EQ(SelectedImageOf(At("b")), 2);
    EXPECT_TRUE(tree->ItemHasChildren(At("b")));
    owner.askedSelectedImage = 0;
    owner.askedButton = 0;
    EXPECT_EQ(SelectedImageOf(At("b")), 0);
    EXPECT_FALSE(tree->ItemHasChildren(At("b")));
}

TEST_F(OddTreeMessages, TickedItems_AreTickedWhenTheyComeBack)
{
    tree->ModifyStyle(0, TVS_CHECKBOXES);
    Begin("a f[x y] b");
    for (const char* const name : {"f", "y"})
        tree->SetCheck(At(name), TRUE);
    for (const char* const name : {"a", "x", "b"})
        tree->SetCheck(At(name), FALSE);
    stack.Clear();
    const std::string before = All(Shown::LeftOut);
    tree->DeleteItem(At("f"));
    Undo();
    EXPECT_EQ(All(Shown::LeftOut), before);
    EXPECT_TRUE(tree->GetCheck(At("f")));
    EXPECT_TRUE(tree->GetCheck(At("y")));
    EXPECT_FALSE(tree->GetCheck(At("x")));
    tree->GetImageList(TVSIL_STATE)->DeleteImageList();
}

TEST_F(OddTreeMessages, AButtonThatTheLastChildTookAlong_ComesBack)
{
    Begin("f[] a");
    SetButton(At("f"), 1);
    stack.Clear();
    const std::string before = All(Shown::LeftOut);
    ASSERT_TRUE(tree->ItemHasChildren(At("f")));
    tree->InsertItem(L"x", 1, 1, At("f"));
    Undo();
    EXPECT_EQ(All(Shown::LeftOut), before);
    EXPECT_TRUE(tree->ItemHasChildren(At("f"))) << "there may be children still";
}

TEST_F(OddTreeMessages, AFoldedBranchThatIsGoneSince_IsNoHindrance)
{
    Begin("f[x] a");
    Rename("a", L"b");
    tree->Expand(At("f"), TVE_EXPAND);
    {
        const TGUndoPause pause(stack);
        tree->DeleteItem(At("f"));
    }
    Undo();
    EXPECT_EQ(Outline(), "a");
    EXPECT_EQ(stack.ended, 0);
}

} // namespace
} // namespace quor::test
