// The keys of the list, what they repaint, and the records of the edits that they ask for.
#include "tests/controls/OwnedList.h"
#include "tests/support/Input.h"

#include <tuple>

using namespace quor::test;

namespace
{

class ListKeys : public ListTest
{
};

TEST_F(ListKeys, LeftAndRight_MoveTheCurrentColumnAndStopAtBothEnds)
{
    MakeColumns(3);
    MakeRows(2);
    SetCurrent(1, -1);
    std::string seen;
    for (int step = 0; step < 4; ++step)
    {
        Key(VK_RIGHT);
        seen += Current() + " ";
    }
    EXPECT_EQ(seen, "1,0 1,1 1,2 1,2 ");
    seen.clear();
    for (int step = 0; step < 4; ++step)
    {
        Key(VK_LEFT);
        seen += Current() + " ";
    }
    EXPECT_EQ(seen, "1,1 1,0 1,-1 1,-1 ");
}

TEST_F(ListKeys, LeftAndRight_AreConsumed)
{
    MakeColumns(9);
    MakeRows(2);
    SetCurrent(0, 0);
    const auto isConsumed = [this](WPARAM key) {
        MSG message = {list.m_hWnd, WM_KEYDOWN, key, 0, 0, {}};
        return list.PreTranslateMessage(&message) != FALSE;
    };
    EXPECT_TRUE(isConsumed(VK_LEFT));
    EXPECT_TRUE(isConsumed(VK_LEFT)) << "clamped";
    EXPECT_TRUE(isConsumed(VK_RIGHT));
    list.curColumn = 8;
    EXPECT_TRUE(isConsumed(VK_RIGHT)) << "clamped";
    MSG other = {list.m_hWnd, WM_KEYDOWN, VK_DOWN, 0, 0, {}};
    EXPECT_FALSE(list.PreTranslateMessage(&other));
}

TEST_F(ListKeys, Right_BeyondTheLastColumn_GoesBackToIt)
{
    MakeColumns(3);
    MakeRows(2);
    SetCurrent(0, 7);
    Key(VK_RIGHT);
    EXPECT_EQ(Current(), "0,2");
}

TEST_F(ListKeys, ClampedKey_NeitherScrollsNorRepaints)
{
    MakeColumns(9);
    MakeRows(2);
    for (const auto& [key, column, scrolled] :
         {std::tuple<WORD, int, int>{VK_RIGHT, 8, 0}, {VK_LEFT, -1, 400}})
    {
        SetCurrent(0, column);
        list.Scroll(CSize(scrolled + list.Cell(0, 0).left, 0));
        list.UpdateWindow();
        list.TakePaintedRows();
        Key(key);
        list.UpdateWindow();
        EXPECT_EQ(list.Cell(0, 0).left, -scrolled);
        EXPECT_EQ(list.TakePaintedRows(), std::vector<int>{});
    }
}

TEST_F(ListKeys, Right_ShowsTheColumn)
{
    MakeColumns(9);
    list.Order({0, 1, 8, 2, 3, 4, 5, 6, 7});
    MakeRows(2);
    SetCurrent(0, 2);
    Key(VK_RIGHT);
    EXPECT_EQ(list.Cell(0, 2).left, 0) << "the column at position 3 has the index 2";
}

TEST_F(ListKeys, KeysOfAnotherWindow_LeaveTheColumn)
{
    MakeColumns(3);
    MakeRows(2);
    SetCurrent(0, 1);
    owner.SetFocus();
    MSG message = {list.m_hWnd, WM_KEYDOWN, VK_RIGHT, 0, 0, {}};
    EXPECT_FALSE(list.PreTranslateMessage(&message));
    EXPECT_EQ(list.curColumn, 1);
}

TEST_F(ListKeys, EmptyList_KeepsItsColumnsInBounds)
{
    list.SetFocus();
    Key(VK_RIGHT);
    EXPECT_EQ(list.curColumn, -1) << "no columns";
    Key(VK_F2);
    MakeColumns(2);
    Key(VK_RIGHT);
    Key(VK_RIGHT);
    Key(VK_RIGHT);
    EXPECT_EQ(list.curColumn, 1);
    Key(VK_F2);
    EXPECT_EQ(owner.TakeEdits(), Lines{});
}

TEST_F(ListKeys, F2_AsksForTheColumnThatIsShownAtTheCurrentPosition)
{
    MakeColumns(3);
    list.Order({2, 0, 1});
    MakeRows(4);
    SetCurrent(2, 0);
    owner.createsEditors = false;
    Key(VK_F2);
    EXPECT_EQ(owner.TakeEdits(), Lines{"begin 2,2 [r2c2]"});
    EXPECT_EQ(owner.lastRecord.hdr.hwndFrom, list.m_hWnd);
    EXPECT_EQ(owner.lastRecord.hdr.idFrom, ListOwner::ListId);
    EXPECT_EQ(owner.lastRecord.item.mask, static_cast<UINT>(LVIF_TEXT));
    EXPECT_EQ(owner.lastWParam, ListOwner::ListId);
}

TEST_F(ListKeys, F2_NeedsACurrentColumnAndAFocusedRow)
{
    MakeColumns(3);
    MakeRows(2);
    SetCurrent(0, -1);
    Key(VK_F2);
    list.curColumn = 1;
    list.SetItemState(0, 0, LVIS_FOCUSED);
    Key(VK_F2);
    EXPECT_EQ(owner.TakeEdits(), Lines{});
}

TEST_F(ListKeys, F2_IsPassedOn)
{
    MakeColumns(3);
    MakeRows(2);
    SetCurrent(0, 1);
    owner.createsEditors = false;
    MSG message = {list.m_hWnd, WM_KEYDOWN, VK_F2, 0, 0, {}};
    EXPECT_FALSE(list.PreTranslateMessage(&message));
    EXPECT_EQ(owner.TakeEdits(), Lines{"begin 0,1 [r0c1]"});
}

TEST_F(ListKeys, LongText_IsReportedWhole)
{
    MakeColumns(1);
    MakeRows(1);
    const CString text(L'x', 1000);
    list.SetItemText(0, 0, text);
    SetCurrent(0, 0);
    owner.createsEditors = false;
    Key(VK_F2);
    EXPECT_EQ(owner.lastRecord.item.cchTextMax, 1000);
}

TEST_F(ListKeys, MovingTheColumnOfAHugeList_RepaintsOneRow)
{
    MakeColumns(3);
    list.SetRedraw(FALSE);
    for (int row = 0; row < 20'000; ++row)
        list.InsertItem(row, L"row");
    list.SetRedraw(TRUE);
    list.EnsureVisible(10'000, FALSE);
    SetCurrent(10'000, 0);
    list.UpdateWindow();
    PumpPending();
    list.TakePaintedRows();
    Key(VK_RIGHT);
    list.UpdateWindow();
    EXPECT_EQ(list.TakePaintedRows(), std::vector<int>{10'000});
    Key(VK_LEFT);
    list.UpdateWindow();
    EXPECT_EQ(list.TakePaintedRows(), std::vector<int>{10'000});
}

} // namespace
