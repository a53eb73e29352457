// How a drag begins, is tracked and ends.
#include "tests/treedrag/DragTreeTest.h"

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

// How many calls of ShowCursor are ahead of those that hide it.
int CursorCount()
{
    ::ShowCursor(TRUE);
    return ::ShowCursor(FALSE);
}

class DragState : public DragTreeTest
{
protected:
    // What every end of a drag leaves.
    void ExpectNoDrag() const
    {
        EXPECT_FALSE(tree->IsDragging());
        EXPECT_EQ(tree->scrollTimerId, 0u);
        EXPECT_EQ(tree->hoverTimerId, 0u);
        EXPECT_EQ(tree->dragImage, nullptr);
        EXPECT_EQ(tree->GetDropHilightItem(), nullptr);
        EXPECT_NE(::GetCapture(), tree->m_hWnd);
        EXPECT_EQ(CursorCount(), cursorCount);
        // A timer that still runs can be stopped.
        EXPECT_FALSE(::KillTimer(*tree, 1));
        EXPECT_FALSE(::KillTimer(*tree, 2));
    }

    int cursorCount = CursorCount();
};

TEST_F(DragState, Begin_SelectsTheItemAndTakesTheMouse)
{
    Fill("a b c");
    BeginDrag("b");
    EXPECT_TRUE(tree->IsDragging());
    EXPECT_EQ(Selected(), "b");
    EXPECT_EQ(tree->dragItem, At("b"));
    EXPECT_EQ(tree->dropTarget, nullptr);
    EXPECT_EQ(::GetCapture(), tree->m_hWnd);
    EXPECT_EQ(CursorCount(), cursorCount - 1);
    EXPECT_EQ(tree->scrollTimerId, 1u);
    EXPECT_EQ(tree->hoverTimerId, 0u);
    POINT hotSpot = {-1, -1};
    EXPECT_NE(CImageList::GetDragImage(nullptr, &hotSpot), nullptr);
    EXPECT_EQ(hotSpot.x, 0);
    EXPECT_EQ(hotSpot.y, 0);
    tree->CompleteDrag(FALSE);
    ExpectNoDrag();
}

TEST_F(DragState, Begin_WithoutAnItem_DoesNothing)
{
    Fill("a");
    NMTREEVIEW begin = {};
    begin.hdr.hwndFrom = *tree;
    begin.hdr.code = TVN_BEGINDRAGW;
    owner.SendMessage(WM_NOTIFY, TreeId, reinterpret_cast<LPARAM>(&begin));
    EXPECT_EQ(tree->dragItem, nullptr);
    ExpectNoDrag();
}

TEST_F(DragState, Begin_DuringADrag_LeavesItAlone)
{
    Fill("a b c");
    BeginDrag("b");
    MoveTo("c", Half::Upper);
    BeginDrag("a");
    EXPECT_EQ(tree->dragItem, At("b"));
    EXPECT_EQ(tree->dropTarget, At("c"));
    EXPECT_EQ(Selected(), "b");
    tree->CompleteDrag(FALSE);
    ExpectNoDrag();
}

TEST_F(DragState, Begin_WithoutADragImage_DoesNotDrag)
{
    Fill("a b");
    tree->SetImageList(nullptr, TVSIL_NORMAL);
    BeginDrag("b");
    EXPECT_EQ(Selected(), "b");
    EXPECT_EQ(tree->dragItem, At("b"));
    ExpectNoDrag();
}

TEST_F(DragState, OwnNotifications_AreNotSeenByTheParent)
{
    Fill("a b");
    DragTo("a", "b", Half::Lower);
    tree->SetFocus();
    tree->EditLabel(At("a"));
    tree->SendMessage(TVM_ENDEDITLABELNOW, TRUE);
    EXPECT_EQ(owner.routedNotifications.count(TVN_BEGINDRAGW), 0u);
    EXPECT_EQ(owner.routedNotifications.count(TVN_BEGINLABELEDITW), 0u);
    EXPECT_EQ(owner.routedNotifications.count(TVN_ENDLABELEDITW), 0u);
    EXPECT_EQ(owner.routedNotifications.count(TVN_DELETEITEMW), 1u) << "the others are";
}

TEST_F(DragState, Move_HighlightsTheTarget)
{
    Fill("a b+[x] c");
    BeginDrag("a");
    MoveTo("c", Half::Upper);
    EXPECT_EQ(tree->GetDropHilightItem(), At("c"));
    EXPECT_EQ(tree->dropTarget, At("c"));
    EXPECT_TRUE(tree->dropAbove);
    MoveTo("c", Half::Lower);
    EXPECT_EQ(tree->dropTarget, At("c"));
    EXPECT_FALSE(tree->dropAbove);
    MoveTo("b", Half::Lower);
    EXPECT_EQ(tree->GetDropHilightItem(), At("x"));
    EXPECT_TRUE(tree->dropAbove);
    tree->CompleteDrag(FALSE);
}

TEST_F(DragState, Move_WithoutADrag_ChangesNothing)
{
    Fill("a b");
    MoveTo("b", Half::Lower);
    EXPECT_EQ(tree->dropTarget, nullptr);
    ExpectNoDrag();
}

TEST_F(DragState, EveryMove_RestartsTheHoverTimer)
{
    Fill("a b");
    BeginDrag("a");
    MoveTo("b", Half::Lower);
    EXPECT_EQ(tree->hoverTimerId, 2u);
    tree->SendMessage(WM_TIMER, 2);
    EXPECT_EQ(tree->hoverTimerId, 0u);
    MoveTo("a", Half::Lower);
    EXPECT_EQ(tree->hoverTimerId, 2u);
    tree->CompleteDrag(FALSE);
    ExpectNoDrag();
}

TEST_F(DragState, HoverTimer_OpensAClosedFolderAndMovesTheTargetInside)
{
    Fill("a f[x] b");
    BeginDrag("a");
    MoveTo("f", Half::Lower);
    EXPECT_EQ(tree->dropTarget, At("f"));
    tree->SendMessage(WM_TIMER, 2);
    EXPECT_EQ(Outline(), "a f+[x] b");
    EXPECT_EQ(tree->dropTarget, At("x"));
    EXPECT_TRUE(tree->dropAbove);
    EXPECT_EQ(tree->GetDropHilightItem(), At("x"));
    Drop();
    EXPECT_EQ(Outline(), "f+[a x] b");
}

TEST_F(DragState, HoverTimer_ClosesAnOpenFolder)
{
    Fill("a f+[x] b");
    BeginDrag("a");
    MoveTo("f", Half::Lower);
    EXPECT_EQ(tree->dropTarget, At("x"));
    tree->SendMessage(WM_TIMER, 2);
    EXPECT_EQ(Outline(), "a f[x] b");
    EXPECT_EQ(tree->dropTarget, At("f"));
    EXPECT_FALSE(tree->dropAbove);
    Drop();
    EXPECT_EQ(Outline(), "f[x] a b");
}

// The platform's tree may use a timer of the same number to begin a label edit.
TEST_F(DragState, HoverTimer_DoesNotBeginALabelEdit)
{
    Fill("a b");
    tree->SetFocus();
    BeginDrag("a");
    MoveTo("b", Half::Lower);
    tree->SendMessage(WM_TIMER, 2);
    EXPECT_EQ(tree->GetEditControl(), nullptr);
    tree->CompleteDrag(FALSE);
}

TEST_F(DragState, HoverTimer_OverEmptySpace_ChangesNothing)
{
    Fill("a f[x]");
    BeginDrag("a");
    MoveTo("f", Half::Upper);
    SendMouse(*tree, WM_MOUSEMOVE, CPoint(20, 200), MK_LBUTTON);
    tree->SendMessage(WM_TIMER, 2);
    EXPECT_EQ(Outline(), "a f[x]");
    EXPECT_EQ(tree->dropTarget, At("f"));
    tree->CompleteDrag(FALSE);
}

TEST_F(DragState, RightButton_CancelsAndSelectsTheClickedItem)
{
    Fill("a b c");
    BeginDrag("a");
    MoveTo("c", Half::Lower);
    PostMessageW(*tree, WM_RBUTTONUP, 0, 0);
    SendMouse(*tree, WM_RBUTTONDOWN, PointIn(At("b"), Half::Upper), MK_RBUTTON | MK_LBUTTON);
    ExpectNoDrag();
    EXPECT_EQ(Selected(), "b");
    Drop();
    EXPECT_EQ(Outline(), "a b c");
    EXPECT_EQ(owner.TakeMessages(), "");
}

TEST_F(DragState, RightButton_WithoutADrag_SelectsTheClickedItem)
{
    Fill("a b c");
    tree->SelectItem(At("a"));
    PostMessageW(*tree, WM_RBUTTONUP, 0, 0);
    SendMouse(*tree, WM_RBUTTONDOWN, PointIn(At("c"), Half::Lower), MK_RBUTTON);
    EXPECT_EQ(Selected(), "c");
}

TEST_F(DragState, RightButton_OnEmptySpace_ClearsTheSelection)
{
    Fill("a b c");
    // A tree without a selection selects its first item when it gets the focus.
    tree->SetFocus();
    tree->SelectItem(At("a"));
    PostMessageW(*tree, WM_RBUTTONUP, 0, 0);
    SendMouse(*tree, WM_RBUTTONDOWN, CPoint(20, 250), MK_RBUTTON);
    EXPECT_EQ(Selected(), "none");
}

TEST_F(DragState, LossOfTheCapture_Cancels)
{
    Fill("a b c");
    BeginDrag("a");
    MoveTo("c", Half::Lower);
    owner.SetCapture();
    ExpectNoDrag();
    EXPECT_EQ(::GetCapture(), owner.m_hWnd) << "the capture of the other window is left alone";
    ::ReleaseCapture();
    Drop();
    EXPECT_EQ(Outline(), "a b c");
}

TEST_F(DragState, CaptureThatTheTreeTakesAgain_DoesNotCancel)
{
    Fill("a b");
    BeginDrag("a");
    tree->SendMessage(WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(tree->m_hWnd));
    EXPECT_TRUE(tree->IsDragging());
    tree->CompleteDrag(FALSE);
    ExpectNoDrag();
}

TEST_F(DragState, CancelMode_Cancels)
{
    Fill("a b c");
    BeginDrag("a");
    MoveTo("c", Half::Lower);
    tree->SendMessage(WM_CANCELMODE);
    ExpectNoDrag();
    EXPECT_EQ(Outline(), "a b c");
}

TEST_F(DragState, CompleteDrag_WithSuccess_CarriesTheDropOut)
{
    Fill("a b c");
    BeginDrag("a");
    MoveTo("c", Half::Lower);
    tree->CompleteDrag(TRUE);
    ExpectNoDrag();
    EXPECT_EQ(Outline(), "b c a");
}

TEST_F(DragState, CompleteDrag_WithSuccessButNoTarget_ChangesNothing)
{
    Fill("a b c");
    BeginDrag("a");
    tree->CompleteDrag(TRUE);
    ExpectNoDrag();
    EXPECT_EQ(Outline(), "a b c");
}

TEST_F(DragState, CompleteDrag_WithoutSuccess_ShowsTheItemAgain)
{
    std::string items = "f+[a]";
    for (int i = 0; i < 60; ++i)
        items += " i" + std::to_string(i);
    Fill(items);
    BeginDrag("a");
    tree->EnsureVisible(At("i59"));
    tree->CompleteDrag(FALSE);
    ExpectNoDrag();
    EXPECT_LE(tree->GetScrollPos(SB_VERT), 1);
    EXPECT_TRUE(tree->GetUpdateRect(nullptr));
}

TEST_F(DragState, CompleteDrag_WithoutADrag_LeavesTheCursorShown)
{
    Fill("a b");
    tree->CompleteDrag(FALSE);
    tree->CompleteDrag(TRUE);
    ExpectNoDrag();
    EXPECT_EQ(Outline(), "a b");
}

TEST_F(DragState, DragItemData_IsTheItemsUntilItIsDeleted)
{
    Fill("a b c");
    EXPECT_EQ(tree->GetDragItemData(), 0u);
    tree->SetItemData(At("b"), 0x123456789abcULL);
    BeginDrag("b");
    EXPECT_EQ(tree->GetDragItemData(), 0x123456789abcULL);
    tree->CompleteDrag(FALSE);
    EXPECT_EQ(tree->GetDragItemData(), 0x123456789abcULL);
    tree->DeleteItem(At("b"));
    EXPECT_EQ(tree->GetDragItemData(), 0u);
}

TEST_F(DragState, NewDrag_ForgetsTheOldTarget)
{
    Fill("a b c");
    BeginDrag("a");
    MoveTo("c", Half::Lower);
    tree->CompleteDrag(FALSE);
    EXPECT_EQ(tree->dropTarget, At("c")) << "kept after the end";
    BeginDrag("b");
    EXPECT_EQ(tree->dropTarget, nullptr);
    Drop();
    EXPECT_EQ(Outline(), "a b c");
}

TEST_F(DragState, DestroyedWhileDragging_GivesEverythingBack)
{
    Fill("a b");
    BeginDrag("a");
    MoveTo("b", Half::Lower);
    tree->DestroyWindow();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(CursorCount(), cursorCount);
    EXPECT_FALSE(tree->IsDragging());
}

TEST_F(DragState, DeletedWhileDragging_GivesEverythingBack)
{
    Fill("a b");
    BeginDrag("a");
    MoveTo("b", Half::Lower);
    tree.reset();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(CursorCount(), cursorCount);
}

TEST_F(DragState, WheelDuringADrag_ScrollsAndKeepsDragging)
{
    std::string items;
    for (int i = 0; i < 60; ++i)
        items += " i" + std::to_string(i);
    Fill(items);
    BeginDrag("i1");
    MoveTo("i3", Half::Upper);
    tree->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    EXPECT_GT(tree->GetScrollPos(SB_VERT), 0);
    EXPECT_TRUE(tree->IsDragging());
    tree->CompleteDrag(FALSE);
    const int position = tree->GetScrollPos(SB_VERT);
    tree->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    EXPECT_GT(tree->GetScrollPos(SB_VERT), position) << "it scrolls without a drag, too";
}

// The item that was the last one when the drag began is gone by then: nothing is restored.
TEST_F(DragState, MoveOfTheLastItem_LeavesTheViewWhereItIs)
{
    std::string items;
    for (int i = 0; i < 60; ++i)
        items += " i" + std::to_string(i);
    Fill(items);
    tree->SelectSetFirstVisible(At("i30"));
    tree->SaveFirstAndLastVisibleItems();
    ASSERT_EQ(NameOf(tree->firstVisibleItem), "i30");
    const HTREEITEM last = tree->lastVisibleItem;
    tree->SelectSetFirstVisible(At("i10"));
    tree->ResetVisibleItems(At("i12"), last, nullptr);
    EXPECT_EQ(NameOf(tree->GetFirstVisibleItem()), "i10");
    tree->ResetVisibleItems(At("i12"), tree->firstVisibleItem, nullptr);
    EXPECT_EQ(NameOf(tree->GetFirstVisibleItem()), "i10");
    tree->ResetVisibleItems(At("i35"), At("i12"), nullptr);
    EXPECT_EQ(NameOf(tree->GetFirstVisibleItem()), "i30");
}

} // namespace
