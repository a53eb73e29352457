// Owners that destroy the list or the editor while they are told of something.
#include "tests/controls/OwnedList.h"
#include "tests/support/GuiHandles.h"
#include "tests/support/Input.h"

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
