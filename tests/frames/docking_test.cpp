// Docking: bars at the edges of a frame, in rows, floating, dragged with the mouse, and kept in the settings.
#include "tests/frames/BarFrame.h"

#include <afxadv.h>

namespace
{

using namespace quor::test;

class Docking : public BarFrameTest
{
protected:
    void SetUp() override
    {
        BarFrameTest::SetUp();
        const DWORD style = WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER | CBRS_SIZE_DYNAMIC;
        ASSERT_TRUE(
            pane.Create(NULL, NULL, WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), frame, AFX_IDW_PANE_FIRST));
        ASSERT_TRUE(second.CreateEx(frame, TBSTYLE_FLAT, style, CRect(0, 0, 0, 0), 0xE820));
        const UINT commands[] = {ID_BLUE, ID_YELLOW};
        ASSERT_TRUE(second.SetButtons(commands, 2));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        for (CToolBar* bar : {&first, &second})
        {
            bar->EnableDocking(CBRS_ALIGN_ANY);
            frame->DockControlBar(bar);
        }
        frame->RecalcLayout();
        PumpPending();
    }

    CRect In(const CWnd& window) const { return RectIn(window, *frame); }
    CRect OnScreen(const CWnd& window) const
    {
        CRect rect;
        window.GetWindowRect(&rect);
        return rect;
    }

    CToolBar& first = frame->toolBar;
    CToolBar second;
    CWnd pane;
};

TEST_F(Docking, DockControlBar_GivesEachBarARowOfItsOwn)
{
    EXPECT_EQ(In(first).TopLeft(), CPoint(0, 0));
    EXPECT_EQ(In(second).TopLeft(), CPoint(0, In(first).bottom));
    EXPECT_EQ(In(pane).top, In(second).bottom);
    EXPECT_EQ(In(first).Size(), first.CalcFixedLayout(FALSE, TRUE));
    EXPECT_FALSE(first.IsFloating());
    EXPECT_EQ(first.GetDockingFrame(), frame);
    EXPECT_EQ(first.GetParent(), frame->GetControlBar(AFX_IDW_DOCKBAR_TOP));
}

TEST_F(Docking, DockControlBar_AtARectangleJoinsTheRow)
{
    CRect rect = OnScreen(first);
    rect.OffsetRect(200, 0);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &rect);
    frame->RecalcLayout();
    EXPECT_EQ(In(second).TopLeft(), CPoint(200, 0));
    EXPECT_EQ(In(first).TopLeft(), CPoint(0, 0));
    EXPECT_EQ(In(pane).top, In(first).bottom);
}

TEST_F(Docking, DockControlBar_AtASideMakesTheBarStand)
{
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_LEFT);
    frame->RecalcLayout();
    EXPECT_TRUE(second.GetBarStyle() & CBRS_ALIGN_LEFT);
    EXPECT_EQ(In(second).TopLeft(), CPoint(0, In(first).bottom));
    EXPECT_LT(In(second).Width(), In(second).Height());
    EXPECT_EQ(In(pane).TopLeft(), CPoint(In(second).right, In(first).bottom));
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_RIGHT);
    frame->RecalcLayout();
    CRect client;
    frame->GetClientRect(&client);
    EXPECT_EQ(In(second).right, client.right);
    EXPECT_EQ(In(pane).right, In(second).left);
    EXPECT_EQ(In(pane).left, 0);
}

TEST_F(Docking, DockControlBar_AtTheBottomStandsAboveTheStatusBar)
{
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_BOTTOM);
    frame->RecalcLayout();
    EXPECT_EQ(In(second).bottom, In(frame->statusBar).top);
    EXPECT_EQ(In(pane).bottom, In(second).top);
}

TEST_F(Docking, Layout_KeepsBarsInsideTheRowAsTheFrameShrinks)
{
    CRect rect = OnScreen(first);
    rect.OffsetRect(300, 0);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &rect);
    frame->RecalcLayout();
    EXPECT_EQ(In(second).left, 300);
    CRect window;
    frame->GetWindowRect(&window);
    frame->SetWindowPos(NULL, 0, 0, 300, window.Height(), SWP_NOMOVE | SWP_NOZORDER);
    CRect client;
    frame->GetClientRect(&client);
    EXPECT_EQ(In(second).right, client.right);
    frame->SetWindowPos(NULL, 0, 0, window.Width(), window.Height(), SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(In(second).left, 300);
}

TEST_F(Docking, HiddenBar_LeavesItsRowToThePane)
{
    frame->ShowControlBar(&second, FALSE, FALSE);
    EXPECT_EQ(In(pane).top, In(first).bottom);
    frame->ShowControlBar(&second, TRUE, FALSE);
    EXPECT_EQ(In(pane).top, In(second).bottom);
}

TEST_F(Docking, DockedButton_SendsItsCommandToTheFrame)
{
    Click(first.m_hWnd, ButtonPoint(ID_RED));
    EXPECT_EQ(frame->commands, (std::vector<UINT>{ID_RED}));
}

TEST_F(Docking, FloatControlBar_TakesTheBarOutOfTheFrame)
{
    frame->FloatControlBar(&first, CPoint(150, 200));
    frame->RecalcLayout();
    EXPECT_TRUE(first.IsFloating());
    EXPECT_EQ(OnScreen(first).TopLeft(), CPoint(150, 200));
    EXPECT_EQ(In(second).TopLeft(), CPoint(0, 0));
    CFrameWnd* const floating = first.GetParentFrame();
    ASSERT_NE(floating, frame);
    EXPECT_TRUE(floating->IsKindOf(RUNTIME_CLASS(CMiniFrameWnd)));
    EXPECT_TRUE(floating->IsWindowVisible());
    EXPECT_EQ(floating->GetWindow(GW_OWNER), frame);
    CRect client;
    floating->GetClientRect(&client);
    EXPECT_EQ(client.Size(), OnScreen(first).Size());
    EXPECT_EQ(frame->GetControlBar(AFX_IDW_TOOLBAR), &first);
    EXPECT_EQ(first.GetDockingFrame(), frame);
}

TEST_F(Docking, FloatingBar_IsUpdatedAndSendsItsCommandsToTheFrame)
{
    frame->FloatControlBar(&first, CPoint(150, 200));
    frame->enablesGreen = false;
    Idle();
    EXPECT_FALSE(first.GetToolBarCtrl().IsButtonEnabled(ID_GREEN));
    Click(first.m_hWnd, ButtonPoint(ID_RED));
    EXPECT_EQ(frame->commands, (std::vector<UINT>{ID_RED}));
    EXPECT_EQ(::GetActiveWindow(), frame->m_hWnd);
}

TEST_F(Docking, FloatingBar_MovesWhenItIsFloatedAgain)
{
    frame->FloatControlBar(&first, CPoint(150, 200));
    const HWND floating = first.GetParentFrame()->m_hWnd;
    frame->FloatControlBar(&first, CPoint(250, 210));
    EXPECT_EQ(first.GetParentFrame()->m_hWnd, floating);
    EXPECT_EQ(OnScreen(first).TopLeft(), CPoint(250, 210));
    frame->FloatControlBar(&first, CPoint(250, 210), CBRS_ALIGN_LEFT);
    EXPECT_FALSE(::IsWindow(floating));
    EXPECT_LT(OnScreen(first).Width(), OnScreen(first).Height());
}

TEST_F(Docking, FloatingFrame_IsHiddenByItsCloseButtonAndShownAgain)
{
    frame->FloatControlBar(&first, CPoint(150, 200));
    CFrameWnd* const floating = first.GetParentFrame();
    floating->SendMessage(WM_CLOSE);
    EXPECT_FALSE(floating->IsWindowVisible());
    EXPECT_FALSE(first.IsVisible());
    frame->SendMessage(WM_COMMAND, ID_VIEW_TOOLBAR);
    EXPECT_TRUE(floating->IsWindowVisible());
    EXPECT_TRUE(first.IsWindowVisible());
}

TEST_F(Docking, FloatingFrame_IsShownTogetherWithItsFrame)
{
    frame->FloatControlBar(&first, CPoint(150, 200));
    frame->RecalcLayout();
    const CFrameWnd* const floating = first.GetParentFrame();
    frame->ShowWindow(SW_HIDE);
    frame->RecalcLayout();
    EXPECT_FALSE(floating->IsWindowVisible());
    frame->ShowWindow(SW_SHOW);
    Idle();
    EXPECT_TRUE(floating->IsWindowVisible());
}

TEST_F(Docking, FloatingFrame_GoesWhenItsBarIsDocked)
{
    frame->FloatControlBar(&first, CPoint(150, 200));
    const HWND floating = first.GetParentFrame()->m_hWnd;
    frame->DockControlBar(&first);
    frame->RecalcLayout();
    EXPECT_FALSE(::IsWindow(floating));
    EXPECT_EQ(In(first).TopLeft(), CPoint(0, In(second).bottom));
}

TEST_F(Docking, DestroyedBar_LeavesDockAndFloatingFrame)
{
    frame->FloatControlBar(&second, CPoint(150, 200));
    const HWND floating = second.GetParentFrame()->m_hWnd;
    second.DestroyWindow();
    frame->RecalcLayout();
    EXPECT_FALSE(::IsWindow(floating));
    first.DestroyWindow();
    frame->RecalcLayout();
    EXPECT_EQ(In(pane).top, 0);
}

TEST_F(Docking, DestroyedFrame_TakesFloatingBarsAlong)
{
    frame->FloatControlBar(&second, CPoint(150, 200));
    const HWND floating = second.GetParentFrame()->m_hWnd;
    AfxGetThread()->m_pMainWnd = NULL;
    frame->DestroyWindow();
    EXPECT_FALSE(::IsWindow(floating));
    EXPECT_EQ(second.m_hWnd, nullptr);
    frame = NULL;
}

TEST_F(Docking, DragOfTheGripper_DocksAtAnotherEdge)
{
    const CPoint grip(-5, 8); // the gripper is outside of the client area of the buttons
    const CRect bar = OnScreen(first);
    const CRect middle = OnScreen(pane);
    const CPoint target(middle.left + 3, middle.top + 60);
    const CPoint origin = bar.TopLeft() + CSize(9, 2);
    DragPath(first.m_hWnd, {grip, grip + CSize(20, 20), target - CSize(origin)});
    EXPECT_TRUE(PumpUntil([&] { return (first.GetBarStyle() & CBRS_ALIGN_LEFT) != 0; }));
    EXPECT_FALSE(first.IsFloating());
    EXPECT_EQ(In(first).left, 0);
    EXPECT_EQ(In(pane).left, In(first).right);
}

TEST_F(Docking, DragOfTheGripper_IntoTheMiddleFloats)
{
    const CPoint grip(-5, 8);
    DragPath(first.m_hWnd, {grip, grip + CSize(20, 20), grip + CSize(150, 130)});
    EXPECT_TRUE(PumpUntil([&] { return first.IsFloating() != FALSE; }));
    EXPECT_EQ(In(second).TopLeft(), CPoint(0, 0));
}

TEST_F(Docking, DragOfTheGripper_IsCancelledByEscape)
{
    const CPoint grip(-5, 8);
    PressMouse(first.m_hWnd, grip);
    MoveMouse(first.m_hWnd, grip + CSize(150, 130));
    EXPECT_EQ(::GetCapture(), first.m_hWnd);
    PostKey(frame->m_hWnd, VK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return ::GetCapture() == NULL; }));
    ReleaseMouse(first.m_hWnd, grip + CSize(150, 130));
    EXPECT_FALSE(first.IsFloating());
    EXPECT_EQ(In(first).TopLeft(), CPoint(0, 0));
}

TEST_F(Docking, DoubleClickOnTheGripper_FloatsTheBarAndDocksItAgain)
{
    const CPoint grip(-5, 8);
    DoubleClick(first.m_hWnd, grip);
    EXPECT_TRUE(PumpUntil([&] { return first.IsFloating() != FALSE; }));
    EXPECT_EQ(In(second).TopLeft(), CPoint(0, 0));
    // The last separator is blank as well.
    CRect blank;
    first.GetItemRect(4, &blank);
    DoubleClick(first.m_hWnd, blank.CenterPoint());
    EXPECT_TRUE(PumpUntil([&] { return !first.IsFloating(); }));
    EXPECT_EQ(In(first).TopLeft(), CPoint(0, 0));
}

TEST_F(Docking, BarWithoutEnableDocking_CannotBeDragged)
{
    first.EnableDocking(0);
    const CPoint grip(-5, 8);
    DragPath(first.m_hWnd, {grip, grip + CSize(20, 20), grip + CSize(150, 130)});
    EXPECT_FALSE(first.IsFloating());
}

TEST_F(Docking, DockState_PutsBarsBack)
{
    CRect rect = OnScreen(first);
    rect.OffsetRect(200, 0);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &rect);
    frame->RecalcLayout();
    const CRect firstPlace = In(first);
    const CRect secondPlace = In(second);
    CDockState state;
    frame->GetDockState(state);
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 3); // the status bar has a record, too
    frame->FloatControlBar(&first, CPoint(150, 200));
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_LEFT);
    frame->ShowControlBar(&frame->statusBar, FALSE, FALSE);
    frame->SetDockState(state);
    EXPECT_EQ(In(first), firstPlace);
    EXPECT_EQ(In(second), secondPlace);
    EXPECT_TRUE(frame->statusBar.IsWindowVisible());
    state.Clear();
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 0);
}

TEST_F(Docking, BarState_IsKeptInTheSettings)
{
    frame->FloatControlBar(&first, CPoint(150, 200), CBRS_ALIGN_LEFT);
    frame->ShowControlBar(&second, FALSE, FALSE);
    frame->SaveBarState(L"Bars of the test");
    frame->DockControlBar(&first);
    frame->ShowControlBar(&second, TRUE, FALSE);
    frame->LoadBarState(L"Bars of the test");
    EXPECT_TRUE(first.IsFloating());
    EXPECT_EQ(OnScreen(first).TopLeft(), CPoint(150, 200));
    EXPECT_LT(OnScreen(first).Width(), OnScreen(first).Height());
    EXPECT_FALSE(second.IsVisible());
    frame->LoadBarState(L"Nothing was saved under this name");
    EXPECT_TRUE(first.IsFloating());
}

TEST_F(Docking, NegotiateBorderSpace_KeepsABorderAroundThePane)
{
    const CRect before = In(pane);
    CRect free;
    EXPECT_TRUE(frame->NegotiateBorderSpace(CFrameWnd::borderGet, &free));
    EXPECT_EQ(free, before);
    CRect border(1, 2, 3, 4);
    EXPECT_TRUE(frame->NegotiateBorderSpace(CFrameWnd::borderRequest, &border));
    EXPECT_TRUE(frame->NegotiateBorderSpace(CFrameWnd::borderSet, &border));
    EXPECT_FALSE(frame->NegotiateBorderSpace(CFrameWnd::borderSet, &border));
    frame->RecalcLayout();
    EXPECT_EQ(In(pane), CRect(before.left + 1, before.top + 2, before.right - 3, before.bottom - 4));
    EXPECT_TRUE(frame->NegotiateBorderSpace(CFrameWnd::borderSet, NULL));
    frame->RecalcLayout();
    EXPECT_EQ(In(pane), before);
}

class DialogBar : public BarFrameTest
{
protected:
    void SetUp() override
    {
        BarFrameTest::SetUp();
        ASSERT_TRUE(bar.Create(frame, IDD_BAR, CBRS_BOTTOM, AFX_IDW_DIALOGBAR));
        frame->RecalcLayout();
    }

    CDialogBar bar;
};

TEST_F(DialogBar, Create_TakesControlsAndHeightOfTheTemplate)
{
    CRect size(0, 0, 150, 20);
    ::MapDialogRect(bar.m_hWnd, &size);
    const CRect rect = RectIn(bar, *frame);
    EXPECT_EQ(rect.Height(), size.Height() + 2); // and the line
    EXPECT_EQ(rect.bottom, RectIn(frame->statusBar, *frame).top);
    EXPECT_NE(bar.GetDlgItem(IDC_BAR_EDIT), nullptr);
    EXPECT_EQ(frame->GetControlBar(AFX_IDW_DIALOGBAR), &bar);
}

TEST_F(DialogBar, Create_FailsWithoutATemplate)
{
    CDialogBar other;
    EXPECT_FALSE(other.Create(frame, 31998, CBRS_TOP, 0xE821));
    EXPECT_EQ(other.m_hWnd, nullptr);
}

TEST_F(DialogBar, Button_SendsItsCommandToTheFrame)
{
    CWnd* const button = bar.GetDlgItem(ID_RED);
    Click(button->m_hWnd, CPoint(10, 8));
    EXPECT_EQ(frame->commands, (std::vector<UINT>{ID_RED}));
}

TEST_F(DialogBar, Idle_DisablesButtonsThatNobodyHandles)
{
    const HWND button = bar.GetDlgItem(ID_RED)->m_hWnd;
    Idle();
    EXPECT_TRUE(::IsWindowEnabled(button));
    ::SetWindowLongPtr(button, GWLP_ID, ID_NOBODY);
    Idle();
    EXPECT_FALSE(::IsWindowEnabled(button));
}

TEST_F(DialogBar, TabKey_MovesTheFocus)
{
    bar.GetDlgItem(IDC_BAR_EDIT)->SetFocus();
    KeyPress(VK_TAB);
    EXPECT_TRUE(PumpUntil([&] { return ::GetFocus() == bar.GetDlgItem(ID_RED)->m_hWnd; }));
}

TEST(MiniFrame, IsASmallWindowOfItsOwner)
{
    CFrameWnd* const owner = new CFrameWnd;
    ASSERT_TRUE(owner->Create(NULL, L"Owner"));
    CMiniFrameWnd* const mini = new CMiniFrameWnd;
    ASSERT_TRUE(mini->Create(NULL, L"Mini", WS_POPUP | WS_CAPTION | WS_VISIBLE | MFS_4THICKFRAME,
                             CRect(30, 40, 330, 240), owner));
    EXPECT_TRUE(mini->GetExStyle() & WS_EX_TOOLWINDOW);
    EXPECT_EQ(mini->GetWindow(GW_OWNER), owner);
    EXPECT_STREQ(mini->GetTitle(), L"Mini");
    CRect rect;
    mini->GetWindowRect(&rect);
    EXPECT_EQ(rect, CRect(30, 40, 330, 240));
    // A frame that does not resize.
    EXPECT_EQ(mini->SendMessage(WM_NCHITTEST, 0, MAKELPARAM(31, 90)), HTBORDER);
    const HWND window = mini->m_hWnd;
    owner->DestroyWindow();
    EXPECT_FALSE(::IsWindow(window));
}

} // namespace
