// Owners that destroy the list or the editor while they are told of something.
#include "tests/controls/OwnedList.h"
#include "tests/support/GuiHandles.h"
#include "tests/support/Input.h"

#include <vector>

using namespace quor::test;

namespace
{

class ListReentry : public ListTest
{
protected:
    ListReentry()
    {
        MakeColumns(3);
        MakeRows(60);
        window = list.m_hWnd;
    }

    void DestroyListOnBegin()
    {
        owner.onBegin = [this](const NMLVDISPINFO&) { owner.list.reset(); };
    }
    void DestroyListOnEnd()
    {
        owner.onEnd = [this](const NMLVDISPINFO&) { owner.list.reset(); };
    }
    void DestroyEditorOnEnd()
    {
        owner.onEnd = [this](const NMLVDISPINFO&) { owner.editor.reset(); };
    }

    // A click that ends an edit, whose owner then destroys the list: the notifications after that. The
    // platform's list goes on with the click after it has taken the focus.
    std::vector<UINT> ToldAfterTheListIsGone(UINT down, UINT up, CPoint point)
    {
        owner.Edit(0, 1, L"x");
        bool isGone = false;
        owner.onEnd = [&](const NMLVDISPINFO&) {
            owner.list.reset();
            isGone = true;
        };
        std::vector<UINT> afterwards;
        owner.onNotification = [&](const NMHDR& header) {
            if (isGone)
                afterwards.push_back(header.code);
        };
        ::PostMessage(window, up, 0, MAKELPARAM(point.x, point.y));
        SendMouse(window, down, point, down == WM_LBUTTONDOWN ? MK_LBUTTON : MK_RBUTTON);
        EXPECT_TRUE(isGone);
        EXPECT_FALSE(::IsWindow(window));
        return afterwards;
    }

    HWND window;
};

TEST_F(ListReentry, ListDestroyedByF2_IsLeftAlone)
{
    SetCurrent(0, 1);
    DestroyListOnBegin();
    PostKey(window, VK_F2);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(owner.TakeEdits(), Lines{"begin 0,1 [r0c1]"});
}

TEST_F(ListReentry, ListDestroyedByTheSecondClick_IsLeftAlone)
{
    SetCurrent(0, 1);
    DestroyListOnBegin();
    const CPoint point = list.Middle(0, 1);
    ::PostMessage(window, WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    SendMouse(window, WM_LBUTTONDOWN, point, MK_LBUTTON);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(owner.TakeEdits(), Lines{"begin 0,1 [r0c1]"});
}

TEST_F(ListReentry, EditorDestroyedInItsReport_IsLeftAlone)
{
    for (const wchar_t key : {L'\r', L'\x1B'})
    {
        owner.Edit(0, 1, L"x");
        DestroyEditorOnEnd();
        PostCharacter(owner.editor->m_hWnd, key);
        EXPECT_EQ(owner.editor, nullptr);
        EXPECT_EQ(::GetFocus(), window);
    }
    EXPECT_EQ(owner.TakeEdits(), (Lines{"end 0,1 [x]", "end 0,1 cancelled"}));
}

TEST_F(ListReentry, ListDestroyedInTheReport_TakesTheEditorAlong)
{
    owner.Edit(0, 1, L"x");
    DestroyListOnEnd();
    PostCharacter(owner.editor->m_hWnd, L'\r');
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_FALSE(owner.IsEditing());
    EXPECT_EQ(owner.TakeEdits(), Lines{"end 0,1 [x]"});
}

TEST_F(ListReentry, ListDestroyedWhenScrollingEndsTheEdit_IsLeftAlone)
{
    owner.Edit(0, 1, L"x");
    DestroyListOnEnd();
    ::SendMessage(window, WM_VSCROLL, SB_LINEDOWN, 0);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(ListReentry, ListDestroyedWhenSidewaysScrollingEndsTheEdit_IsLeftAlone)
{
    owner.Edit(0, 1, L"x");
    DestroyListOnEnd();
    ::SendMessage(window, WM_HSCROLL, SB_LINERIGHT, 0);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(ListReentry, EditorWhosePredecessorTookTheListAlong_IsNotCreated)
{
    owner.Edit(0, 1, L"x");
    DestroyListOnEnd();
    TestEditor next(1, 1, L"y");
    EXPECT_FALSE(next.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &list, 5));
    EXPECT_EQ(next.m_hWnd, nullptr);
}

TEST_F(ListReentry, ListDestroyedWhileEditing_EndsTheEdit)
{
    owner.Edit(0, 1, L"x");
    owner.onEnd = [](const NMLVDISPINFO&) {};
    owner.list->DestroyWindow();
    EXPECT_FALSE(owner.IsEditing());
}

TEST_F(ListReentry, OwnerDestroyedWhenAskedForAnEdit_TakesTheListAlong)
{
    for (const bool byKey : {true, false})
    {
        ListOwner other;
        other.list->InsertColumn(0, L"A", LVCFMT_LEFT, 100);
        other.list->InsertItem(0, L"text");
        other.list->SetFocus();
        other.list->SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED);
        other.list->curColumn = 0;
        other.onBegin = [&](const NMLVDISPINFO&) { other.DestroyWindow(); };
        const HWND destroyed = *other.list;
        CRect label;
        other.list->GetItemRect(0, label, LVIR_LABEL);
        const CPoint point(label.left + 4, label.CenterPoint().y);
        ::PostMessage(destroyed, WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
        if (byKey)
            PostKey(destroyed, VK_F2);
        else
            SendMouse(destroyed, WM_LBUTTONDOWN, point, MK_LBUTTON);
        EXPECT_EQ(other.TakeEdits(), Lines{"begin 0,0 [text]"});
        EXPECT_FALSE(::IsWindow(destroyed));
    }
}

TEST_F(ListReentry, OwnerDestroyedInTheReport_TakesEditorAndListAlong)
{
    owner.Edit(0, 1, L"x");
    owner.onEnd = [this](const NMLVDISPINFO&) { owner.DestroyWindow(); };
    PostCharacter(owner.editor->m_hWnd, L'\r');
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(owner.editor->m_hWnd, nullptr);
    EXPECT_EQ(owner.TakeEdits().front(), "end 0,1 [x]");
}

TEST_F(ListReentry, ListDestroyedByTheSelectionOfAClick_IsLeftAlone)
{
    SetCurrent(0, 1);
    owner.onNotification = [this](const NMHDR& header) {
        if (header.code == LVN_ITEMCHANGED && owner.list)
            owner.list->DestroyWindow();
    };
    const CPoint point = list.Middle(2, 1);
    ::PostMessage(window, WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    SendMouse(window, WM_LBUTTONDOWN, point, MK_LBUTTON);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(owner.TakeEdits(), Lines{});
}

TEST_F(ListReentry, ListDestroyedWhenARightClickEndsTheEdit_HearsNoMoreOfTheClick)
{
    EXPECT_EQ(ToldAfterTheListIsGone(WM_RBUTTONDOWN, WM_RBUTTONUP, list.Middle(2, 1)), std::vector<UINT>());
}

TEST_F(ListReentry, ListDestroyedWhenALeftClickEndsTheEdit_HearsNoMoreOfTheClick)
{
    EXPECT_EQ(ToldAfterTheListIsGone(WM_LBUTTONDOWN, WM_LBUTTONUP, list.Middle(2, 1)), std::vector<UINT>());
}

TEST_F(ListReentry, ListDestroyedWhenAClickBesideTheRowsEndsTheEdit_HearsNoMoreOfTheClick)
{
    CRect client;
    list.GetClientRect(&client);
    const CPoint blank(client.right - 2, list.Middle(2, 1).y);
    ASSERT_EQ(list.HitTest(blank), -1);
    EXPECT_EQ(ToldAfterTheListIsGone(WM_LBUTTONDOWN, WM_LBUTTONUP, blank), std::vector<UINT>());
}

TEST_F(ListReentry, ARightClick_SelectsAndIsToldOf)
{
    owner.Edit(0, 1, L"x");
    std::vector<UINT> told;
    owner.onNotification = [&](const NMHDR& header) {
        if (header.code == NM_RCLICK)
            told.push_back(header.code);
    };
    const CPoint point = list.Middle(2, 1);
    ::PostMessage(window, WM_RBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    SendMouse(window, WM_RBUTTONDOWN, point, MK_RBUTTON);
    EXPECT_EQ(list.FocusedRow(), 2);
    EXPECT_EQ(::GetFocus(), window);
    EXPECT_EQ(told, std::vector<UINT>{NM_RCLICK});
    EXPECT_EQ(owner.TakeEdits(), Lines{"end 0,1 [x]"});
}

TEST_F(ListReentry, ListDestroyedByItsOwnScrolling_IsLeftAlone)
{
    list.SetColumnWidth(1, 400);
    SetCurrent(0, 1);
    list.destroysItselfWhenScrolled = true;
    Key(VK_RIGHT);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(ListReentry, ListDestroyedByAClickThatScrollsIt_IsLeftAlone)
{
    list.SetColumnWidth(1, 400);
    SetCurrent(0, 0);
    list.destroysItselfWhenScrolled = true;
    SendMouse(window, WM_LBUTTONDOWN, CPoint(150, list.Middle(0, 0).y), MK_LBUTTON);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(ListReentry, ListDestroyedWhileItMakesRoomForAnEditor_RefusesIt)
{
    for (const bool sideways : {true, false})
    {
        ListOwner other;
        other.list->InsertColumn(0, L"A", LVCFMT_LEFT, 200);
        other.list->InsertColumn(1, L"B", LVCFMT_LEFT, 200);
        for (int row = 0; row < 90; ++row)
            other.list->InsertItem(row, L"text");
        CStatic control;
        control.Create(L"", WS_CHILD, CRect(1, 2, 3, 4), other.list.get(), 77);
        other.list->destroysItselfWhenScrolled = true;
        EXPECT_EQ(other.list->PositionControl(&control, sideways ? 0 : 80, sideways ? 1 : 0), 0);
        EXPECT_EQ(other.list->m_hWnd, nullptr);
    }
}

TEST_F(ListReentry, ControlDestroyedWhileRoomIsMadeForIt_IsRefused)
{
    list.SetColumnWidth(0, 900);
    for (const UINT scroll : {LVM_ENSUREVISIBLE, LVM_SCROLL})
    {
        CStatic control;
        control.Create(L"", WS_CHILD, CRect(1, 2, 3, 4), &list, 77);
        list.onScrolled = [&](UINT message) {
            if (message == scroll)
                control.DestroyWindow();
        };
        EXPECT_EQ(list.PositionControl(&control, 50, 1), 0);
        EXPECT_EQ(control.m_hWnd, nullptr);
        list.onScrolled = nullptr;
        list.Scroll(CSize(-2000, -2000));
    }
}

TEST_F(ListReentry, ManyEdits_LeaveNoHandles)
{
    const auto editOnce = [this](int row) {
        SetCurrent(row, 1);
        Key(VK_F2);
        PostCharacter(owner.editor->m_hWnd, L'\r');
        PumpPending();
        list.Invalidate();
        list.UpdateWindow();
    };
    for (int row = 0; row < 3; ++row)
        editOnce(row);
    const GuiHandles before = CountGuiHandles();
    for (int row = 0; row < 50; ++row)
        editOnce(row);
    EXPECT_EQ(Growth(before, CountGuiHandles()), "");
}

} // namespace
