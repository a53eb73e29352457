// The list and its editor with the real mouse and keyboard.
#include "tests/controls/OwnedList.h"
#include "tests/support/Input.h"

using namespace quor::test;

namespace
{

// Gives all rows a blank icon for its life.
class RowImages
{
public:
    explicit RowImages(TestList& owningList) : list(owningList)
    {
        images.Create(16, 16, ILC_COLOR24, 1, 1);
        CClientDC screen(nullptr);
        CBitmap image;
        image.CreateCompatibleBitmap(&screen, 16, 16);
        images.Add(&image, static_cast<CBitmap*>(nullptr));
        list.ModifyStyle(0, LVS_SHAREIMAGELISTS);
        list.SetImageList(&images, LVSIL_SMALL);
    }
    ~RowImages() { list.SetImageList(nullptr, LVSIL_SMALL); }
    RowImages(const RowImages&) = delete;
    RowImages& operator=(const RowImages&) = delete;

private:
    TestList& list;
    CImageList images;
};

class ListInput : public ListTest
{
protected:
    ListInput()
    {
        MakeColumns(8);
        MakeRows(40);
        EXPECT_TRUE(Activate(owner));
    }

    void ClickCell(int row, int column) { Click(list, list.Middle(row, column)); }

    // Two clicks, apart enough not to be a double click.
    void ClickTwice(CPoint point)
    {
        Click(list, point);
        Click(list, point + CPoint(6, 0));
    }

    // Presses the arrow at the end of a scroll bar. Both inputs wait in the queue when the bar begins its own
    // loop.
    void PressArrow(LONG bar)
    {
        SCROLLBARINFO info = {};
        info.cbSize = sizeof info;
        ASSERT_TRUE(::GetScrollBarInfo(list, bar, &info));
        const int inset = ::GetSystemMetrics(SM_CXVSCROLL) / 2;
        CPoint arrow(info.rcScrollBar.right - inset, info.rcScrollBar.bottom - inset);
        list.ScreenToClient(&arrow);
        MoveMouse(list, arrow);
        INPUT inputs[2] = {};
        inputs[0].type = inputs[1].type = INPUT_MOUSE;
        inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
        inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
        ::SendInput(2, inputs, sizeof(INPUT));
    }
};

TEST_F(ListInput, FirstClick_SelectsOnly)
{
    ClickCell(2, 1);
    EXPECT_EQ(Current(), "2,1");
    EXPECT_TRUE(list.GetItemState(2, LVIS_SELECTED));
    EXPECT_EQ(owner.TakeEdits(), Lines{});
}

TEST_F(ListInput, SecondClickOnTheCell_BeginsTheEdit)
{
    ClickTwice(list.Middle(2, 1));
    EXPECT_EQ(owner.TakeEdits(), Lines{"begin 2,1 [r2c1]"});
    ASSERT_TRUE(owner.IsEditing());
    EXPECT_EQ(::GetFocus(), owner.editor->m_hWnd);
}

TEST_F(ListInput, ClickOnAnotherColumnOfTheRow_MovesTheColumn)
{
    ClickCell(2, 1);
    ClickCell(2, 2);
    EXPECT_EQ(Current(), "2,2");
    EXPECT_EQ(owner.TakeEdits(), Lines{});
}

TEST_F(ListInput, ClickOnTheSameColumnOfAnotherRow_SelectsOnly)
{
    ClickCell(2, 1);
    ClickCell(3, 1);
    EXPECT_EQ(Current(), "3,1");
    EXPECT_EQ(owner.TakeEdits(), Lines{});
}

TEST_F(ListInput, ClickOnALabel_BeginsTheEdit)
{
    CRect label;
    list.GetItemRect(1, label, LVIR_LABEL);
    ClickTwice(CPoint(label.left + 6, label.CenterPoint().y));
    EXPECT_EQ(owner.TakeEdits(), Lines{"begin 1,0 [r1c0]"});
}

TEST_F(ListInput, ClickJustBehindTheText_BeginsTheEditUpToFivePixels)
{
    CRect label;
    list.GetItemRect(1, label, LVIR_LABEL);
    const CPoint end(label.left + list.GetStringWidth(list.GetItemText(1, 0)), label.CenterPoint().y);
    Click(list, end + CPoint(12, 0));
    Click(list, end + CPoint(6, 0));
    EXPECT_EQ(owner.TakeEdits(), Lines{});
    // Between two clicks that would be a double click.
    Click(list, end + CPoint(12, 0));
    Click(list, end + CPoint(5, 0));
    EXPECT_EQ(owner.TakeEdits(), Lines{"begin 1,0 [r1c0]"});
}

TEST_F(ListInput, ClickOnTheIcon_BeginsNoEdit)
{
    const RowImages images(list);
    CRect icon;
    list.GetItemRect(1, icon, LVIR_ICON);
    ASSERT_GT(icon.Width(), 4);
    ClickTwice(icon.CenterPoint());
    EXPECT_EQ(Current(), "1,0");
    EXPECT_EQ(owner.TakeEdits(), Lines{});
}

TEST_F(ListInput, ClickOnALabelBesideAnIcon_BeginsTheEdit)
{
    const RowImages images(list);
    CRect label;
    list.GetItemRect(1, label, LVIR_LABEL);
    ClickTwice(CPoint(label.left + 4, label.CenterPoint().y));
    EXPECT_EQ(owner.TakeEdits(), Lines{"begin 1,0 [r1c0]"});
}

TEST_F(ListInput, ClickOnTheBlankBesideALabel_BeginsNoEdit)
{
    const CRect cell = list.Cell(1, 0);
    ClickTwice(CPoint(cell.right - 30, cell.CenterPoint().y));
    EXPECT_EQ(Current(), "1,0");
    EXPECT_EQ(owner.TakeEdits(), Lines{});
}

TEST_F(ListInput, SecondClickInAMovedColumn_NamesTheColumnByItsIndex)
{
    list.Order({2, 0, 1, 3, 4, 5, 6, 7});
    ClickTwice(list.Middle(1, 2));
    EXPECT_EQ(Current(), "1,0");
    EXPECT_EQ(owner.TakeEdits(), Lines{"begin 1,2 [r1c2]"});
}

TEST_F(ListInput, ClickOnALabelOfTheMovedFirstColumn_BeginsTheEdit)
{
    list.Order({1, 0, 2, 3, 4, 5, 6, 7});
    ClickTwice(CPoint(list.Cell(1, 0).left + 8, list.Cell(1, 0).CenterPoint().y));
    EXPECT_EQ(Current(), "1,1");
    EXPECT_EQ(owner.TakeEdits(), Lines{"begin 1,0 [r1c0]"});
}

TEST_F(ListInput, ClickOnTheBlankOfTheMovedFirstColumn_BeginsNoEdit)
{
    list.Order({1, 2, 0, 3, 4, 5, 6, 7});
    ClickTwice(CPoint(list.Cell(1, 0).right - 30, list.Cell(1, 0).CenterPoint().y));
    EXPECT_EQ(Current(), "1,2");
    EXPECT_EQ(owner.TakeEdits(), Lines{});
}

TEST_F(ListInput, ClickOnTheIconOfTheMovedFirstColumn_BeginsNoEdit)
{
    const RowImages images(list);
    list.Order({1, 0, 2, 3, 4, 5, 6, 7});
    CRect icon;
    list.GetItemRect(1, icon, LVIR_ICON);
    ASSERT_GE(icon.left, list.Cell(1, 0).left);
    ASSERT_GT(icon.Width(), 4);
    ClickTwice(icon.CenterPoint());
    EXPECT_EQ(Current(), "1,1");
    EXPECT_EQ(owner.TakeEdits(), Lines{});
    ClickTwice(CPoint(icon.right + 4, icon.CenterPoint().y));
    EXPECT_EQ(owner.TakeEdits(), Lines{"begin 1,0 [r1c0]"});
}

TEST_F(ListInput, ClickBelowTheRows_BeginsNoEdit)
{
    list.DeleteAllItems();
    MakeRows(1);
    ClickTwice(CPoint(50, list.Bounds(0).bottom + 40));
    EXPECT_EQ(owner.TakeEdits(), Lines{});
}

TEST_F(ListInput, ClickOnAPartlyHiddenColumn_ShowsIt)
{
    list.Scroll(CSize(40, 0));
    const CRect cell = list.Cell(1, 3);
    Click(list, CPoint(cell.left + 10, cell.CenterPoint().y));
    EXPECT_EQ(list.Cell(1, 3).left, 0);
    EXPECT_EQ(list.curColumn, 3);
}

TEST_F(ListInput, KeysWalkARowAndEdit)
{
    ClickCell(1, 0);
    KeyPress(VK_RIGHT);
    KeyPress(VK_RIGHT);
    KeyPress(VK_F2);
    TypeText(L"first");
    KeyPress(VK_RETURN);
    KeyPress(VK_RIGHT);
    KeyPress(VK_F2);
    TypeText(L"second");
    KeyPress(VK_ESCAPE);
    KeyPress(VK_LEFT);
    EXPECT_EQ(Current(), "1,2");
    EXPECT_EQ(owner.TakeEdits(),
              (Lines{"begin 1,2 [r1c2]", "end 1,2 [first]", "begin 1,3 [r1c3]", "end 1,3 cancelled"}));
    EXPECT_EQ(list.GetItemText(1, 2), L"first");
    EXPECT_EQ(list.GetItemText(1, 3), L"r1c3");
}

TEST_F(ListInput, ClickElsewhere_EndsTheEdit)
{
    ClickCell(1, 1);
    KeyPress(VK_F2);
    TypeText(L"typed");
    ClickCell(4, 2);
    EXPECT_EQ(owner.TakeEdits(), (Lines{"begin 1,1 [r1c1]", "end 1,1 [typed]"}));
    EXPECT_FALSE(owner.IsEditing());
    EXPECT_EQ(Current(), "4,2");
}

TEST_F(ListInput, ScrollingDown_EndsTheEdit)
{
    ClickCell(1, 1);
    KeyPress(VK_F2);
    TypeText(L"typed");
    PressArrow(OBJID_VSCROLL);
    EXPECT_TRUE(PumpUntil([&] { return list.GetTopIndex() >= 1; }));
    EXPECT_EQ(owner.TakeEdits(), (Lines{"begin 1,1 [r1c1]", "end 1,1 [typed]"}));
    EXPECT_EQ(::GetFocus(), list.m_hWnd);
}

TEST_F(ListInput, ScrollingSideways_EndsTheEdit)
{
    ClickCell(1, 1);
    KeyPress(VK_F2);
    PressArrow(OBJID_HSCROLL);
    EXPECT_TRUE(PumpUntil([&] { return list.Bounds(0).left < 0; }));
    EXPECT_EQ(owner.TakeEdits(), (Lines{"begin 1,1 [r1c1]", "end 1,1 [r1c1]"}));
    EXPECT_EQ(::GetFocus(), list.m_hWnd);
}

TEST_F(ListInput, DraggedHeader_ChangesWhatTheKeysReach)
{
    CRect first;
    CRect third;
    list.GetHeaderCtrl()->GetItemRect(0, first);
    list.GetHeaderCtrl()->GetItemRect(2, third);
    const CPoint from = first.CenterPoint();
    const CPoint to(third.right - 10, from.y);
    DragPath(*list.GetHeaderCtrl(), {from, CPoint(from.x + 20, from.y), CPoint(to.x - 10, to.y), to});
    ASSERT_TRUE(PumpUntil([&] { return list.GetHeaderCtrl()->OrderToIndex(0) == 1; }));
    owner.createsEditors = false;
    ClickCell(0, 1);
    EXPECT_EQ(list.curColumn, 0) << "column 1 is shown first";
    KeyPress(VK_RIGHT);
    KeyPress(VK_F2);
    KeyPress(VK_RIGHT);
    KeyPress(VK_F2);
    EXPECT_EQ(owner.TakeEdits(), (Lines{"begin 0,2 [r0c2]", "begin 0,0 [r0c0]"}));
}

TEST_F(ListInput, TypingPastTheEdge_GrowsTheEditor)
{
    ClickCell(1, 1);
    KeyPress(VK_F2);
    TypeText(std::wstring(60, L'w'));
    CRect client;
    list.GetClientRect(client);
    EXPECT_EQ(owner.editor->Place().right, client.right - 2);
}

TEST_F(ListInput, TypingPastTheCell_KeepsTheStartOfTheTextInSight)
{
    ClickCell(1, 1);
    KeyPress(VK_F2);
    TypeText(L"a text that is longer than its cell");
    EXPECT_GT(owner.editor->Place().Width(), ColumnWidth);
    EXPECT_GE(owner.editor->PosFromChar(0).x, 0);
    EXPECT_EQ(owner.editor->Selection(), "35-35");
}

TEST_F(ListInput, CopyAndPaste_WorkInTheEditor)
{
    ClickCell(1, 1);
    KeyPress(VK_F2);
    KeyPress('C', Modifiers::Control);
    KeyPress(VK_END);
    KeyPress('V', Modifiers::Control);
    EXPECT_EQ(owner.editor->Text(), L"r1c1r1c1");
    KeyPress(VK_RETURN);
    EXPECT_EQ(list.GetItemText(1, 1), L"r1c1r1c1");
}

TEST_F(ListInput, MultiLineEditor_TakesLinesWithControlEnterAndEndsWithEnter)
{
    owner.editorStyle = ES_MULTILINE | ES_AUTOVSCROLL;
    ClickCell(1, 1);
    KeyPress(VK_F2);
    TypeText(L"one");
    const int height = owner.editor->Place().Height();
    KeyPress(VK_RETURN, Modifiers::Control);
    TypeText(L"two");
    EXPECT_EQ(owner.editor->Text(), L"one\r\ntwo");
    EXPECT_GT(owner.editor->Place().Height(), height);
    KeyPress(VK_ESCAPE);
    EXPECT_TRUE(owner.IsEditing());
    KeyPress(VK_RETURN);
    EXPECT_EQ(list.GetItemText(1, 1), L"one\r\ntwo");
}

} // namespace
