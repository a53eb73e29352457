// What users do to a drag tree, taken back and made again: one step each, with a name.
#include "tests/undo/WatchedTree.h"

#include "module/QuorTexts.h"
#include "tests/support/MessageBoxProbe.h"

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

class TreeSteps : public WatchedTreeTest
{
};

TEST_F(TreeSteps, ADropIsTakenBackAndMadeAgain)
{
    Begin("a b f+[x y] c");
    Select("b");
    const std::string before = All();
    DragByMouse("b", "y", Half::Upper);
    ASSERT_EQ(Outline(), "a f+[x b y] c");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_EQ(UndoName(), L"Move item");
    ExpectRoundTrip(before);
}

TEST_F(TreeSteps, AFolderThatMovesKeepsWhatIsBelowIt)
{
    Begin("a folder+[x g+[y] h[z]] b");
    Select("folder");
    const std::string before = All();
    DragByMouse("folder", "b", Half::Lower);
    ASSERT_EQ(Outline(), "a b folder+[x g+[y] h[z]]");
    ExpectRoundTrip(before);
}

// The copy that a move makes has no height, no picture for being open and no button of its own.
TEST_F(TreeSteps, WhatAMoveLosesComesBack)
{
    Begin("a b c");
    TVITEMEXW more = {};
    more.mask = TVIF_HANDLE | TVIF_EXPANDEDIMAGE | TVIF_INTEGRAL | TVIF_CHILDREN;
    more.hItem = At("b");
    more.iExpandedImage = 2;
    more.iIntegral = 2;
    more.cChildren = 1;
    ::SendMessageW(*tree, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&more));
    stack.Clear();
    Select("b");
    const std::string before = All();
    tree->MoveItemDown();
    ASSERT_EQ(Outline(), "a c b");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    ExpectRoundTrip(before);
}

TEST_F(TreeSteps, ACollapseThatDeletesIsTakenBack)
{
    Begin("a f+[x y] g[z]");
    const std::string before = All(Shown::LeftOut);
    for (const char* const folder : {"f", "g"})
    {
        tree->Expand(At(folder), TVE_COLLAPSE | TVE_COLLAPSERESET);
        ASSERT_EQ(tree->GetChildItem(At(folder)), nullptr);
        EXPECT_EQ(stack.GetUndoNum(), 1);
        Undo();
        EXPECT_EQ(All(Shown::LeftOut), before);
    }
}

TEST_F(TreeSteps, AnEmptyFolderThatTookTheItemIsEmptyAgain)
{
    Begin("a f[] b");
    Select("b");
    const std::string before = All();
    DragByMouse("b", "f", Half::Lower);
    ASSERT_EQ(Outline(), "a f+[b]");
    ExpectRoundTrip(before);
}

TEST_F(TreeSteps, AFolderThatLostItsLastItemIsOpenAgain)
{
    Begin("a f+[x] b");
    Select("x");
    const std::string before = All();
    DragByMouse("x", "b", Half::Lower);
    ASSERT_EQ(Outline(), "a f[] b x");
    ExpectRoundTrip(before);
    Undo();
    EXPECT_EQ(Outline(), "a f+[x] b");
}

TEST_F(TreeSteps, MovesUpAndDownAreStepsOfTheirOwn)
{
    Begin("a f+[x y] b");
    Select("b");
    const std::string first = All();
    tree->MoveItemUp();
    tree->MoveItemUp();
    tree->MoveItemUp();
    ASSERT_EQ(Outline(), "a f+[b x y]");
    tree->MoveItemDown();
    const std::string last = All();
    EXPECT_EQ(stack.GetUndoNum(), 4);
    while (stack.CanUndo())
        Undo();
    EXPECT_EQ(All(), first);
    while (stack.CanRedo())
        Redo();
    EXPECT_EQ(All(), last);
}

TEST_F(TreeSteps, AMoveThatIsRefusedIsNoStep)
{
    Begin("a b");
    Select("a");
    tree->MoveItemUp();
    EXPECT_EQ(stack.GetUndoNum(), 0);
    owner.answers[TDM_DROP_QUERY] = [](const OwnerMessage&) { return 1; };
    DragByMouse("a", "b", Half::Lower);
    EXPECT_EQ(stack.GetUndoNum(), 0);
}

TEST_F(TreeSteps, ANewFolderAndItsNameAreOneStep)
{
    Begin("a f[x] b");
    Select("f");
    const std::string before = All();
    tree->CreateNewFolder();
    EXPECT_EQ(UndoName(), L"New folder");
    EndLabel(L" mine ");
    ASSERT_EQ(Outline(), "a f+[mine[] x] b");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    ExpectRoundTrip(before);
}

TEST_F(TreeSteps, ANewFolderThatKeepsItsNameIsOneStep)
{
    Begin("a");
    Select("a");
    const std::string before = All();
    tree->CreateNewFolder();
    tree->EndEditLabelNow(TRUE);
    ASSERT_EQ(Outline(), "a New Folder[]");
    ExpectRoundTrip(before);
    Rename("New Folder", L"other");
    EXPECT_EQ(stack.GetUndoNum(), 2);
}

TEST_F(TreeSteps, ANameThatWasRefusedFirstBelongsToTheNewFolder)
{
    MessageBoxProbe boxes(IDOK);
    Begin("a b");
    tree->SetNoDuplicates(TRUE);
    Select("a");
    const std::string before = All();
    tree->CreateNewFolder();
    EndLabel(L"b");
    ASSERT_EQ(boxes.Shown().size(), 1u);
    PumpUntil([&] { return tree->GetEditControl() != nullptr; });
    EndLabel(L"c");
    ASSERT_EQ(Outline(), "a c[] b");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    ExpectRoundTrip(before);
}

TEST_F(TreeSteps, AChangeBetweenAFolderAndItsNameParts)
{
    Begin("a b");
    Select("a");
    tree->CreateNewFolder();
    tree->SetItemText(At("b"), L"changed");
    EndLabel(L"mine");
    EXPECT_EQ(stack.GetUndoNum(), 3);
    Undo();
    EXPECT_EQ(Outline(), "a New Folder[] changed");
    Undo();
    Undo();
    EXPECT_EQ(Outline(), "a b");
}

TEST_F(TreeSteps, ARenamedItemHasItsOldTextAgain)
{
    Begin("a b");
    Select("b");
    const std::string before = All();
    Rename("b", L"new");
    EXPECT_EQ(UndoName(), L"Rename item");
    ExpectRoundTrip(before);
    Rename("new", L"new");
    EXPECT_EQ(stack.GetUndoNum(), 1);
}

TEST_F(TreeSteps, DeletedItemsComeBackWithEverything)
{
    MessageBoxProbe boxes(IDYES);
    Begin("a f+[x g+[y z] h[w]] b");
    TVITEMEXW more = {};
    more.mask = TVIF_HANDLE | TVIF_EXPANDEDIMAGE | TVIF_INTEGRAL;
    more.hItem = At("g");
    more.iExpandedImage = 2;
    more.iIntegral = 2;
    ::SendMessageW(*tree, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&more));
    tree->SetItemState(At("y"), INDEXTOOVERLAYMASK(2), TVIS_OVERLAYMASK);
    stack.Clear();
    Select("f");
    const std::string before = All();
    tree->DeleteSelected();
    ASSERT_EQ(Outline(), "a b");
    EXPECT_EQ(UndoName(), L"Delete 7 items");
    ExpectRoundTrip(before);
}

TEST_F(TreeSteps, AllAttributesOfLongTextsComeBack)
{
    Begin("a b");
    const CString text(L'w', 1000);
    tree->SetItemText(At("a"), text);
    tree->SelectItem(tree->GetRootItem());
    tree->DeleteSelected();
    EXPECT_EQ(UndoName(), L"Delete item");
    Undo();
    EXPECT_EQ(tree->GetItemText(tree->GetRootItem()), text);
}

TEST_F(TreeSteps, AQuestionAnsweredWithNoIsNoStep)
{
    MessageBoxProbe boxes(IDNO);
    Begin("f[x]");
    Select("f");
    tree->DeleteSelected();
    EXPECT_EQ(stack.GetUndoNum(), 0);
}

TEST_F(TreeSteps, SelectionAndScrollPositionComeBack)
{
    std::string items;
    for (int i = 0; i < 60; ++i)
        items += " i" + std::to_string(i);
    Begin(items);
    tree->SelectSetFirstVisible(At("i20"));
    Select("i22");
    ASSERT_EQ(NameOf(tree->GetFirstVisibleItem()), "i20");
    const std::string before = All();
    tree->DeleteSelected();
    tree->SelectSetFirstVisible(At("i40"));
    Select("i41");
    Undo();
    EXPECT_EQ(All(), before);
    tree->SelectSetFirstVisible(At("i0"));
    Redo();
    EXPECT_EQ(NameOf(tree->GetFirstVisibleItem()), "i20");
    EXPECT_EQ(Selected(), "i23");
}

TEST_F(TreeSteps, WhatIsScrolledSidewaysComesBack)
{
    Begin("a b c");
    tree->SetItemText(At("b"), CString(L'w', 120));
    Select("a");
    for (int i = 0; i < 10; ++i)
        tree->SendMessage(WM_HSCROLL, SB_LINERIGHT);
    const int left = tree->GetScrollPos(SB_HORZ);
    ASSERT_GT(left, 0);
    tree->DeleteItem(At("c"));
    for (int i = 0; i < 10; ++i)
        tree->SendMessage(WM_HSCROLL, SB_LINELEFT);
    ASSERT_EQ(tree->GetScrollPos(SB_HORZ), 0);
    Undo();
    EXPECT_EQ(tree->GetScrollPos(SB_HORZ), left);
    for (int i = 0; i < 3; ++i)
        tree->SendMessage(WM_HSCROLL, SB_LINELEFT);
    Redo();
    EXPECT_EQ(tree->GetScrollPos(SB_HORZ), left);
}

TEST_F(TreeSteps, WhatIsFoldedComesBackWithTheStepBefore)
{
    Begin("f[x] g+[y]");
    Rename("g", L"h");
    Select("f");
    KeyPress(VK_RIGHT);
    tree->Expand(At("h"), TVE_COLLAPSE);
    ASSERT_EQ(Outline(), "f+[x] h[y]");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    Undo();
    EXPECT_EQ(Outline(), "f[x] g+[y]");
}

TEST_F(TreeSteps, ATickIsAStep)
{
    tree->ModifyStyle(0, TVS_CHECKBOXES);
    Begin("a b");
    tree->SetCheck(At("a"), FALSE);
    stack.Clear();
    CRect label;
    tree->GetItemRect(At("a"), label, TRUE);
    UINT flags = 0;
    CPoint point(label.left, label.CenterPoint().y);
    while (point.x > 0 && (flags & TVHT_ONITEMSTATEICON) == 0)
    {
        --point.x;
        tree->HitTest(point, &flags);
    }
    ASSERT_NE(flags & TVHT_ONITEMSTATEICON, 0u);
    const std::string before = All(Shown::LeftOut);
    Click(*tree, point);
    ASSERT_TRUE(tree->GetCheck(At("a")));
    EXPECT_EQ(UndoName(), L"Check box");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    Undo();
    EXPECT_EQ(All(Shown::LeftOut), before);
    Redo();
    EXPECT_TRUE(tree->GetCheck(At("a")));
    tree->GetImageList(TVSIL_STATE)->DeleteImageList();
}

TEST_F(TreeSteps, KeysUndoAndServeAnOpenLabelFirst)
{
    Begin("a b");
    Rename("a", L"one");
    Select("b");
    tree->RenameSelected();
    ASSERT_NE(tree->GetEditControl(), nullptr);
    TypeText(L"xyz");
    KeyPress('Z', Modifiers::Control);
    ASSERT_NE(tree->GetEditControl(), nullptr);
    CString text;
    tree->GetEditControl()->GetWindowText(text);
    EXPECT_NE(text, L"xyz");
    EXPECT_EQ(Outline(), "one b");
    KeyPress(VK_ESCAPE);
    tree->SetFocus();
    KeyPress('Z', Modifiers::Control);
    EXPECT_EQ(Outline(), "a b");
    KeyPress('Y', Modifiers::Control);
    EXPECT_EQ(Outline(), "one b");
}

TEST_F(TreeSteps, AnOpenLabelIsCommittedByUndo)
{
    Begin("a b");
    Rename("a", L"one");
    Select("b");
    tree->RenameSelected();
    tree->GetEditControl()->SetWindowText(L"two");
    Undo();
    EXPECT_EQ(tree->GetEditControl(), nullptr);
    EXPECT_EQ(Outline(), "one b");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    Redo();
    EXPECT_EQ(Outline(), "one two");
}

TEST_F(TreeSteps, ADragIsCancelledByUndo)
{
    Begin("a b c");
    Rename("a", L"one");
    StartDrag("c");
    MoveOver("b", Half::Upper);
    Undo();
    EXPECT_FALSE(tree->IsDragging());
    EXPECT_EQ(Outline(), "a b c");
    Release();
    EXPECT_EQ(Outline(), "a b c");
}

TEST_F(TreeSteps, NamesAreInTheLanguageThatIsChosen)
{
    Begin("a b");
    Rename("a", L"one");
    QuorTexts::SetLanguage(QuorLanguage::Chinese);
    const std::wstring chinese = UndoName();
    QuorTexts::SetLanguage(QuorLanguage::English);
    const std::wstring english = UndoName();
    QuorTexts::SetLanguage(QuorLanguage::Default);
    EXPECT_EQ(chinese, L"\u91cd\u547d\u540d\u9879\u76ee");
    EXPECT_EQ(english, L"Rename item");
}

} // namespace
