// Owners that change the tree while they handle one of its messages.
#include "tests/treedrag/DragTreeTest.h"

#include "tests/support/MessageBoxProbe.h"

#include <functional>
#include <utility>

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

class OwnerActs : public DragTreeTest
{
protected:
    OwnerActs()
    {
        Activate(owner);
        tree->SetFocus();
    }

    // Answers 0 to the message, once, after the action.
    void On(UINT message, std::function<void(const OwnerMessage&)> action)
    {
        owner.answers[message] = [this, message, action](const OwnerMessage& received) -> LRESULT {
            // The action may outlive its entry.
            const auto once = action;
            owner.answers.erase(message);
            once(received);
            return 0;
        };
    }
    void Select(const std::string& name) { tree->SelectItem(At(name)); }
    void DestroyTree()
    {
        owner.tree = nullptr;
        tree->DestroyWindow();
    }
    void DeleteTree()
    {
        owner.tree = nullptr;
        tree.reset();
    }
};

TEST_F(OwnerActs, DragItemDeletedInTheQuery_NothingMoves)
{
    Fill("a b c");
    On(TDM_DROP_QUERY, [this](const OwnerMessage& message) { tree->DeleteItem(message.item); });
    DragTo("a", "c", Half::Lower);
    EXPECT_EQ(Outline(), "b c");
    EXPECT_EQ(tree->GetDragItemData(), 0u);
}

TEST_F(OwnerActs, TargetDeletedInTheQuery_NothingMoves)
{
    Fill("a f+[x] b");
    On(TDM_DROP_QUERY, [this](const OwnerMessage&) { tree->DeleteItem(At("f")); });
    DragTo("a", "x", Half::Lower);
    EXPECT_EQ(Outline(), "a b");
}

TEST_F(OwnerActs, EverythingDeletedInTheQuery_NothingMoves)
{
    Fill("a f+[x] b");
    On(TDM_DROP_QUERY, [this](const OwnerMessage&) { tree->DeleteAllItems(); });
    DragTo("a", "x", Half::Lower);
    EXPECT_EQ(Outline(), "");
}

TEST_F(OwnerActs, SiblingDeletedInTheQuery_TheMoveGoesOn)
{
    Fill("a b c d");
    On(TDM_DROP_QUERY, [this](const OwnerMessage&) { tree->DeleteItem(At("b")); });
    DragTo("a", "c", Half::Upper);
    EXPECT_EQ(Outline(), "a c d");
    EXPECT_EQ(Selected(), "a");
}

TEST_F(OwnerActs, OtherMoveInTheQuery_ReplacesThisOne)
{
    Fill("a b c d");
    On(TDM_DROP_QUERY, [this](const OwnerMessage&) {
        Select("d");
        tree->MoveItemUp();
    });
    DragTo("a", "c", Half::Lower);
    EXPECT_EQ(Outline(), "a b d c");
}

TEST_F(OwnerActs, TreeDestroyedInTheQuery)
{
    Fill("a b c");
    On(TDM_DROP_QUERY, [this](const OwnerMessage&) { DestroyTree(); });
    DragTo("a", "c", Half::Lower);
    EXPECT_EQ(tree->GetSafeHwnd(), nullptr);
}

TEST_F(OwnerActs, DragItemDeletedDuringTheDrag_NothingMoves)
{
    Fill("a b c");
    BeginDrag("a");
    MoveTo("c", Half::Lower);
    tree->DeleteItem(At("a"));
    Drop();
    EXPECT_EQ(Outline(), "b c");
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(OwnerActs, TargetDeletedDuringTheDrag_NothingMoves)
{
    Fill("a b f+[c]");
    BeginDrag("a");
    MoveTo("c", Half::Lower);
    tree->DeleteItem(At("f"));
    Drop();
    EXPECT_EQ(Outline(), "a b");
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(OwnerActs, DragItemDeletedDuringTheDrag_CanBeCancelled)
{
    Fill("a b c");
    BeginDrag("a");
    tree->DeleteItem(At("a"));
    tree->CompleteDrag(FALSE);
    EXPECT_EQ(Outline(), "b c");
}

// The copy is refused: the item stays where it was.
TEST_F(OwnerActs, CopyDeletedWhenInserted_KeepsTheOriginal)
{
    Fill("a f[x] c");
    On(TDM_ITEM_INSERTED, [this](const OwnerMessage& message) { tree->DeleteItem(message.item); });
    DragTo("f", "c", Half::Lower);
    EXPECT_EQ(Outline(), "a f[x] c");
    On(TDM_ITEM_INSERTED, [this](const OwnerMessage& message) { tree->DeleteItem(message.item); });
    Select("c");
    tree->MoveItemUp();
    EXPECT_EQ(Outline(), "a f[x] c");
    On(TDM_ITEM_INSERTED, [this](const OwnerMessage& message) { tree->DeleteItem(message.item); });
    Select("a");
    tree->MoveItemDown();
    EXPECT_EQ(Outline(), "a f[x] c");
}

TEST_F(OwnerActs, OriginalDeletedWhenInserted_KeepsTheCopy)
{
    Fill("a b c");
    const HTREEITEM original = At("a");
    On(TDM_ITEM_INSERTED, [this, original](const OwnerMessage&) { tree->DeleteItem(original); });
    DragTo("a", "c", Half::Lower);
    EXPECT_EQ(Outline(), "b c a");
    EXPECT_EQ(Selected(), "a");
}

TEST_F(OwnerActs, EverythingDeletedWhenInserted)
{
    for (int command = 0; command < 3; ++command)
    {
        Fill("a b c");
        On(TDM_ITEM_INSERTED, [this](const OwnerMessage&) { tree->DeleteAllItems(); });
        Select("b");
        if (command == 0)
            DragTo("a", "c", Half::Lower);
        if (command == 1)
            tree->MoveItemUp();
        if (command == 2)
            tree->MoveItemDown();
        EXPECT_EQ(Outline(), "");
    }
}

TEST_F(OwnerActs, OtherMoveWhenInserted_BothAreCarriedOut)
{
    Fill("a b c d");
    On(TDM_ITEM_INSERTED, [this](const OwnerMessage&) {
        Select("d");
        tree->MoveItemUp();
    });
    Select("a");
    tree->MoveItemDown();
    EXPECT_EQ(tree->GetCount(), 4u);
    EXPECT_EQ(Outline(), "b a d c");
}

// While copy and original are both there, the outer move goes on alone: the inner one would have left both of
// them, or deleted what it put into the original.
TEST_F(OwnerActs, MoveOfWhatIsBeingMoved_IsRefused)
{
    const auto moveWithin = [this](const char* outline, const char* moved, void (DragTree::*outer)(),
                                   std::function<void(const OwnerMessage&)> inner) {
        tree->DeleteAllItems();
        Fill(outline);
        On(TDM_ITEM_INSERTED, std::move(inner));
        Select(moved);
        (tree.get()->*outer)();
        return Outline();
    };
    const auto moveDown = [this](const char* name) {
        return [this, name](const OwnerMessage&) {
            Select(name);
            tree->MoveItemDown();
        };
    };
    const auto original = [this](const OwnerMessage&) { tree->MoveItemDown(); };
    const auto copy = [this](const OwnerMessage& message) {
        tree->SelectItem(message.item);
        tree->MoveItemDown();
    };
    const auto aroundTheOriginal = [this](const OwnerMessage&) {
        Select("f");
        tree->MoveItemUp();
    };
    EXPECT_EQ(moveWithin("a b c", "a", &DragTree::MoveItemDown, original), "b a c");
    EXPECT_EQ(moveWithin("a b c", "a", &DragTree::MoveItemDown, copy), "b a c");
    EXPECT_EQ(moveWithin("f+[p] b", "f", &DragTree::MoveItemDown, moveDown("p")), "b f+[p]");
    EXPECT_EQ(moveWithin("x f+[a] b", "x", &DragTree::MoveItemDown, moveDown("f")), "f+[x a] b");
    EXPECT_EQ(moveWithin("g f+[x y]", "x", &DragTree::MoveItemUp, aroundTheOriginal), "g x f+[y]");
    EXPECT_EQ(moveWithin("x f+[p] b", "f", &DragTree::MoveItemDown, moveDown("x")), "x b f+[p]");
}

TEST_F(OwnerActs, DropOfWhatIsBeingMoved_IsRefused)
{
    Fill("a b c");
    On(TDM_ITEM_INSERTED, [this](const OwnerMessage&) { DragTo("a", "b", Half::Lower); });
    DragTo("a", "c", Half::Lower);
    EXPECT_EQ(Outline(), "b c a");
}

// Once the owner has deleted one of the two, the other is an item like any other.
TEST_F(OwnerActs, OriginalDeletedAndCopyMovedWhenInserted_LeavesOneItem)
{
    Fill("a b c d");
    const HTREEITEM original = At("a");
    On(TDM_ITEM_INSERTED, [this, original](const OwnerMessage& message) {
        tree->DeleteItem(original);
        tree->SelectItem(message.item);
        tree->MoveItemDown();
    });
    Select("a");
    tree->MoveItemDown();
    EXPECT_EQ(Outline(), "b c a d");
}

TEST_F(OwnerActs, TreeDestroyedWhenInserted)
{
    Fill("a b c");
    On(TDM_ITEM_INSERTED, [this](const OwnerMessage&) { DestroyTree(); });
    DragTo("a", "c", Half::Lower);
    EXPECT_EQ(tree->GetSafeHwnd(), nullptr);
}

TEST_F(OwnerActs, TreeObjectDeletedWhenInserted)
{
    Fill("a b c");
    Select("b");
    On(TDM_ITEM_INSERTED, [this](const OwnerMessage&) { DeleteTree(); });
    tree->MoveItemUp();
    EXPECT_EQ(tree, nullptr);
}

TEST_F(OwnerActs, TreeDestroyedAtTheSecondMessageOfMoveDown)
{
    Fill("a b c");
    Select("a");
    On(TDM_ITEM_INSERTED,
       [this](const OwnerMessage&) { On(TDM_ITEM_INSERTED, [this](const OwnerMessage&) { DeleteTree(); }); });
    tree->MoveItemDown();
    EXPECT_EQ(tree, nullptr);
}

TEST_F(OwnerActs, DeletedItem_DeletedByTheOwnerFirst)
{
    Fill("f+[x g+[y] z] b");
    Select("f");
    MessageBoxProbe boxes(IDYES);
    On(TDM_ITEM_DELETED, [this](const OwnerMessage& message) {
        EXPECT_EQ(NameOf(message.item), "x");
        tree->DeleteItem(At("g"));
    });
    tree->DeleteSelected();
    EXPECT_EQ(owner.TakeMessages(), "deleted x, deleted z, deleted f");
    EXPECT_EQ(Outline(), "b");
}

TEST_F(OwnerActs, SelectedItemDeletedWhileItsDeletionIsReported)
{
    Fill("f+[x] b");
    Select("f");
    MessageBoxProbe boxes(IDYES);
    On(TDM_ITEM_DELETED, [this](const OwnerMessage&) { tree->DeleteItem(At("f")); });
    tree->DeleteSelected();
    EXPECT_EQ(owner.TakeMessages(), "deleted x");
    EXPECT_EQ(Outline(), "b");
}

TEST_F(OwnerActs, TreeDeletedWhileADeletionIsReported)
{
    Fill("f+[x] b");
    Select("f");
    MessageBoxProbe boxes(IDYES);
    On(TDM_ITEM_DELETED, [this](const OwnerMessage&) { DeleteTree(); });
    tree->DeleteSelected();
    EXPECT_EQ(tree, nullptr);
}

TEST_F(OwnerActs, ItemDeletedWhenItsEditBegins_IsNotEdited)
{
    Fill("a b");
    Select("a");
    On(TDM_BEGIN_LABEL_EDIT, [this](const OwnerMessage&) { tree->DeleteItem(At("a")); });
    tree->RenameSelected();
    EXPECT_EQ(tree->GetEditControl(), nullptr);
    EXPECT_EQ(Outline(), "b");
}

TEST_F(OwnerActs, NewFolderDeletedWhenItsEditBegins_IsNotReturned)
{
    Fill("a");
    On(TDM_BEGIN_LABEL_EDIT, [this](const OwnerMessage&) { tree->DeleteItem(At("New Folder")); });
    EXPECT_EQ(tree->CreateNewFolder(), nullptr);
    EXPECT_EQ(Outline(), "a");
}

TEST_F(OwnerActs, ItemDeletedWhenRenamed)
{
    Fill("a b");
    Select("a");
    tree->RenameSelected();
    tree->GetEditControl()->SetWindowText(L"c");
    On(TDM_ITEM_RENAMED, [this](const OwnerMessage& message) { tree->DeleteItem(message.item); });
    tree->SendMessage(TVM_ENDEDITLABELNOW, FALSE);
    EXPECT_EQ(Outline(), "b");
    EXPECT_EQ(tree->GetEditControl(), nullptr);
}

TEST_F(OwnerActs, RenamedItemDeletedBeforeAMove_MovesTheNewSelection)
{
    Fill("a b c");
    Select("c");
    tree->RenameSelected();
    tree->GetEditControl()->SetWindowText(L"d");
    On(TDM_ITEM_RENAMED, [this](const OwnerMessage& message) { tree->DeleteItem(message.item); });
    tree->MoveItemUp();
    EXPECT_EQ(Outline(), "b a");
}

TEST_F(OwnerActs, RefusedItemDeletedBeforeItIsEditedAgain)
{
    Fill("a b");
    tree->SetNoDuplicates(TRUE);
    Select("a");
    tree->RenameSelected();
    tree->GetEditControl()->SetWindowText(L"b");
    MessageBoxProbe boxes;
    tree->SendMessage(TVM_ENDEDITLABELNOW, FALSE);
    tree->DeleteItem(At("a"));
    PumpPending();
    EXPECT_EQ(tree->GetEditControl(), nullptr);
    EXPECT_EQ(Outline(), "b");
}

TEST_F(OwnerActs, TreeDestroyedWhileTheQuestionIsShown)
{
    Fill("f+[x] b");
    Select("f");
    owner.tree = nullptr;
    // Waits in the queue until the loop of the box runs, before the answer.
    ::PostMessageW(*tree, WM_CLOSE, 0, 0);
    MessageBoxProbe boxes(IDYES);
    tree->DeleteSelected();
    EXPECT_EQ(tree->GetSafeHwnd(), nullptr);
}

} // namespace
