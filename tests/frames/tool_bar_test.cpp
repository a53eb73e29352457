// Tool bars: resources, buttons, sizes, places and the state of the buttons.
#include "tests/frames/BarFrame.h"
#include "tests/support/HostWindow.h"
#include "tests/support/Snapshot.h"

namespace
{

using namespace quor::test;

class ToolBar : public BarFrameTest
{
protected:
    CToolBar& bar = frame->toolBar;

    int Red() const { return bar.CommandToIndex(ID_RED); }
};

TEST_F(ToolBar, LoadToolBar_TakesTheButtonsOfTheResource)
{
    EXPECT_EQ(bar.GetCount(), 6);
    EXPECT_EQ(bar.GetToolBarCtrl().GetButtonCount(), 6);
    const UINT commands[] = {ID_RED, ID_GREEN, 0, ID_BLUE, 0, ID_YELLOW};
    for (int index = 0; index < 6; ++index)
        EXPECT_EQ(bar.GetItemID(index), commands[index]) << index;
    EXPECT_EQ(bar.GetButtonStyle(2) & TBBS_SEPARATOR, static_cast<UINT>(TBBS_SEPARATOR));
}

TEST_F(ToolBar, LoadToolBar_CountsImagesWithoutSeparators)
{
    UINT id, style;
    int image;
    bar.GetButtonInfo(bar.CommandToIndex(ID_YELLOW), id, style, image);
    EXPECT_EQ(id, static_cast<UINT>(ID_YELLOW));
    EXPECT_EQ(image, 3);
    bar.GetButtonInfo(2, id, style, image);
    EXPECT_EQ(image, 8);
}

TEST_F(ToolBar, LoadToolBar_RefusesWhatIsNotThereOrDamaged)
{
    EXPECT_FALSE(bar.LoadToolBar(31998));
    EXPECT_FALSE(bar.LoadToolBar(IDR_DAMAGED));
    EXPECT_EQ(bar.GetToolBarCtrl().GetButtonCount(), 6);
}

// The resource compiler of the GNU tools has a format of its own.
TEST_F(ToolBar, LoadToolBar_ReadsWhatTheResourceCompilerMakesOfAScript)
{
    ASSERT_TRUE(bar.LoadToolBar(IDR_SCRIPTED));
    EXPECT_EQ(bar.GetToolBarCtrl().GetButtonCount(), 3);
    UINT id = 0, style = 0;
    int image = 0;
    bar.GetButtonInfo(1, id, style, image);
    EXPECT_EQ(id, static_cast<UINT>(ID_SEPARATOR));
    bar.GetButtonInfo(2, id, style, image);
    EXPECT_EQ(id, static_cast<UINT>(ID_BLUE));
    EXPECT_EQ(image, 1);
    CRect rect;
    bar.GetItemRect(0, &rect);
    EXPECT_EQ(rect.Size(), CSize(23, 22));
}

TEST_F(ToolBar, LoadToolBar_MakesButtonsThatFitTheImages)
{
    CRect rect;
    bar.GetItemRect(Red(), &rect);
    EXPECT_EQ(rect.Size(), CSize(23, 22));
}

TEST_F(ToolBar, Images_AreShown)
{
    const Snapshot picture(bar.m_hWnd);
    CRect rect;
    bar.GetItemRect(Red(), &rect);
    EXPECT_EQ(picture.CountColour(rect, RGB(255, 0, 0)), 90);
    bar.GetItemRect(bar.CommandToIndex(ID_YELLOW), &rect);
    EXPECT_EQ(picture.CountColour(rect, RGB(255, 255, 0)), 90);
    EXPECT_EQ(picture.CountColour(rect, RGB(192, 192, 192)), 0);
}

TEST_F(ToolBar, SetSizes_CutsTheImagesAgain)
{
    bar.SetSizes(CSize(40, 30), CSize(32, 15));
    frame->RecalcLayout();
    const Snapshot picture(bar.m_hWnd);
    CRect rect;
    bar.GetItemRect(Red(), &rect);
    EXPECT_EQ(rect.Size(), CSize(40, 30));
    EXPECT_EQ(picture.CountColour(rect, RGB(255, 0, 0)), 90);
    EXPECT_EQ(picture.CountColour(rect, RGB(0, 255, 0)), 90);
}

TEST_F(ToolBar, CommandToIndex_OfAnUnknownCommandIsMinusOne)
{
    EXPECT_EQ(bar.CommandToIndex(ID_BLUE), 3);
    EXPECT_EQ(bar.CommandToIndex(ID_NOBODY), -1);
}

TEST_F(ToolBar, SetButtonInfo_ChangesOneButton)
{
    bar.SetButtonInfo(1, ID_NOBODY, TBBS_CHECKBOX, 2);
    UINT id, style;
    int image;
    bar.GetButtonInfo(1, id, style, image);
    EXPECT_EQ(id, static_cast<UINT>(ID_NOBODY));
    EXPECT_EQ(style, static_cast<UINT>(TBBS_CHECKBOX));
    EXPECT_EQ(image, 2);
    EXPECT_TRUE(bar.GetToolBarCtrl().IsButtonEnabled(ID_NOBODY));
}

TEST_F(ToolBar, SetButtonInfo_GivesASeparatorItsWidth)
{
    CRect before, after;
    bar.GetItemRect(3, &before);
    bar.SetButtonInfo(2, ID_SEPARATOR, TBBS_SEPARATOR, 50);
    bar.GetItemRect(3, &after);
    EXPECT_EQ(after.left - before.left, 42);
}

TEST_F(ToolBar, SetButtonStyle_DisablesAndChecks)
{
    bar.SetButtonStyle(Red(), TBBS_DISABLED);
    EXPECT_FALSE(bar.GetToolBarCtrl().IsButtonEnabled(ID_RED));
    EXPECT_EQ(bar.GetButtonStyle(Red()), static_cast<UINT>(TBBS_DISABLED));
    bar.SetButtonStyle(Red(), TBBS_CHECKBOX | TBBS_CHECKED);
    EXPECT_TRUE(bar.GetToolBarCtrl().IsButtonEnabled(ID_RED));
    EXPECT_TRUE(bar.GetToolBarCtrl().IsButtonChecked(ID_RED));
}

TEST_F(ToolBar, SetButtonText_IsReadBack)
{
    EXPECT_TRUE(bar.SetButtonText(1, L"Green"));
    EXPECT_EQ(Narrow(bar.GetButtonText(1)), "Green");
    CString text;
    bar.GetButtonText(1, text);
    EXPECT_EQ(Narrow(text), "Green");
    EXPECT_EQ(Narrow(bar.GetButtonText(0)), "");
}

TEST_F(ToolBar, SetButtons_WithoutAnArrayMakesEmptyOnes)
{
    EXPECT_TRUE(bar.SetButtons(NULL, 3));
    EXPECT_EQ(bar.GetCount(), 3);
    bar.SetButtonInfo(1, ID_RED, TBBS_BUTTON, 0);
    EXPECT_EQ(bar.CommandToIndex(ID_RED), 1);
}

TEST_F(ToolBar, Place_IsTheTopEdgeOfTheFrame)
{
    CRect client;
    frame->GetClientRect(&client);
    const CRect rect = RectIn(bar, *frame);
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.top, 0);
    EXPECT_EQ(rect.right, client.right);
    EXPECT_EQ(rect.Height(), bar.CalcFixedLayout(TRUE, TRUE).cy);
    EXPECT_GE(rect.Height(), 22);
}

TEST_F(ToolBar, CalcFixedLayout_HoldsAllButtonsInOneRowOrOneColumn)
{
    // Four buttons and two separators of 8, the gripper of 9 and the line of 2 at the bottom.
    EXPECT_EQ(bar.CalcFixedLayout(FALSE, TRUE), CSize(4 * 23 + 2 * 8 + 9, 22 + 2));
    const CSize standing = bar.CalcFixedLayout(FALSE, FALSE);
    EXPECT_EQ(standing.cx, 23);
    EXPECT_GE(standing.cy, 4 * 22 + 9);
}

TEST_F(ToolBar, CalcDynamicLayout_BreaksRowsWhereSeparatorsAre)
{
    // Asking changes nothing.
    CRect before, after;
    bar.GetItemRect(3, &before);
    const CSize size = bar.CalcDynamicLayout(50 + 9, LM_HORZ);
    bar.GetItemRect(3, &after);
    EXPECT_EQ(before, after);
    EXPECT_EQ(size.cx, 2 * 23 + 9);
    EXPECT_GT(size.cy, 3 * 22);
    bar.CalcDynamicLayout(50 + 9, LM_HORZ | LM_COMMIT);
    bar.GetItemRect(3, &after);
    EXPECT_EQ(after.left, 0);
    EXPECT_GE(after.top, 22);
    EXPECT_EQ(bar.CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH), size);
}

TEST_F(ToolBar, SetHeight_SetsTheHeightOfTheBar)
{
    bar.SetHeight(40);
    frame->RecalcLayout();
    EXPECT_EQ(RectIn(bar, *frame).Height(), 40);
}

TEST_F(ToolBar, Borders_MakeRoomAroundTheButtons)
{
    const CSize before = bar.CalcFixedLayout(FALSE, TRUE);
    bar.SetBorders(1, 2, 3, 4);
    EXPECT_EQ(bar.GetBorders(), CRect(1, 2, 3, 4));
    EXPECT_EQ(bar.CalcFixedLayout(FALSE, TRUE), before + CSize(4, 6));
}

TEST_F(ToolBar, Idle_EnablesAndDisablesButtons)
{
    Idle();
    EXPECT_TRUE(bar.GetToolBarCtrl().IsButtonEnabled(ID_GREEN));
    frame->enablesGreen = false;
    Idle();
    EXPECT_FALSE(bar.GetToolBarCtrl().IsButtonEnabled(ID_GREEN));
    frame->enablesGreen = true;
    Idle();
    EXPECT_TRUE(bar.GetToolBarCtrl().IsButtonEnabled(ID_GREEN));
}

TEST_F(ToolBar, Idle_DisablesButtonsThatNobodyHandles)
{
    bar.SetButtonInfo(0, ID_NOBODY, TBBS_BUTTON, 0);
    Idle();
    EXPECT_FALSE(bar.GetToolBarCtrl().IsButtonEnabled(ID_NOBODY));
    EXPECT_TRUE(bar.GetToolBarCtrl().IsButtonEnabled(ID_YELLOW));
}

TEST_F(ToolBar, Idle_ChecksButtons)
{
    frame->checksBlue = 1;
    Idle();
    EXPECT_TRUE(bar.GetToolBarCtrl().IsButtonChecked(ID_BLUE));
    frame->checksBlue = 2;
    Idle();
    EXPECT_FALSE(bar.GetToolBarCtrl().IsButtonChecked(ID_BLUE));
    EXPECT_TRUE(bar.GetToolBarCtrl().IsButtonIndeterminate(ID_BLUE));
    frame->checksBlue = 0;
    Idle();
    EXPECT_FALSE(bar.GetToolBarCtrl().IsButtonIndeterminate(ID_BLUE));
}

TEST_F(ToolBar, ToolTip_IsTheSecondPartOfTheCommandsString)
{
    TOOLINFO tool = {};
    tool.cbSize = sizeof(tool);
    ASSERT_EQ(bar.OnToolHitTest(ButtonPoint(ID_GREEN), &tool), ID_GREEN);
    EXPECT_EQ(tool.hwnd, bar.m_hWnd);
    EXPECT_EQ(tool.lpszText, LPSTR_TEXTCALLBACK);
    NMTTDISPINFO tip = {};
    tip.hdr.code = TTN_GETDISPINFO;
    // Any window that is not ours stands for the tip.
    tip.hdr.hwndFrom = ::GetDesktopWindow();
    tip.hdr.idFrom = tool.uId;
    bar.SendMessage(WM_NOTIFY, tip.hdr.idFrom, reinterpret_cast<LPARAM>(&tip));
    EXPECT_STREQ(tip.szText, L"Green");
    EXPECT_EQ(bar.OnToolHitTest(CPoint(-5, 5), NULL), -1);
}

TEST_F(ToolBar, Command_HidesAndShowsTheBar)
{
    const int height = RectIn(bar, *frame).Height();
    CWnd pane;
    ASSERT_TRUE(pane.Create(NULL, NULL, WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), frame, AFX_IDW_PANE_FIRST));
    frame->RecalcLayout();
    EXPECT_EQ(RectIn(pane, *frame).top, height);
    frame->SendMessage(WM_COMMAND, ID_VIEW_TOOLBAR);
    EXPECT_FALSE(bar.IsWindowVisible());
    EXPECT_EQ(RectIn(pane, *frame).top, 0);
    frame->SendMessage(WM_COMMAND, ID_VIEW_TOOLBAR);
    EXPECT_TRUE(bar.IsWindowVisible());
    EXPECT_EQ(RectIn(pane, *frame).top, height);
}

TEST_F(ToolBar, MenuItemOfTheBar_IsCheckedWhileItIsShown)
{
    CMenu* const view = frame->GetMenu()->GetSubMenu(1);
    const auto isChecked = [&] {
        frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(view->m_hMenu), 0);
        return (view->GetMenuState(ID_VIEW_TOOLBAR, MF_BYCOMMAND) & MF_CHECKED) != 0;
    };
    EXPECT_TRUE(isChecked());
    frame->ShowControlBar(&bar, FALSE, FALSE);
    EXPECT_FALSE(isChecked());
}

TEST_F(ToolBar, ShowControlBar_DelayedWaitsForTheIdleTime)
{
    frame->ShowControlBar(&bar, FALSE, TRUE);
    EXPECT_TRUE(bar.IsWindowVisible());
    EXPECT_FALSE(bar.IsVisible());
    Idle();
    EXPECT_FALSE(bar.IsWindowVisible());
}

TEST_F(ToolBar, GetControlBar_FindsTheBarsOfTheFrame)
{
    EXPECT_EQ(frame->GetControlBar(AFX_IDW_TOOLBAR), &bar);
    EXPECT_EQ(frame->GetControlBar(AFX_IDW_STATUS_BAR), &frame->statusBar);
    EXPECT_EQ(frame->GetControlBar(AFX_IDW_REBAR), nullptr);
    bar.DestroyWindow();
    EXPECT_EQ(frame->GetControlBar(AFX_IDW_TOOLBAR), nullptr);
}

TEST_F(ToolBar, Click_SendsTheCommand)
{
    Click(bar.m_hWnd, ButtonPoint(ID_BLUE));
    EXPECT_EQ(frame->commands, (std::vector<UINT>{ID_BLUE}));
}

TEST_F(ToolBar, Click_OnADisabledButtonSendsNothing)
{
    frame->enablesGreen = false;
    Idle();
    Click(bar.m_hWnd, ButtonPoint(ID_GREEN));
    Click(bar.m_hWnd, ButtonPoint(ID_RED));
    EXPECT_EQ(frame->commands, (std::vector<UINT>{ID_RED}));
}

TEST_F(ToolBar, MouseOverAButton_ShowsItsTextInTheMessageLine)
{
    MoveMouse(bar.m_hWnd, ButtonPoint(ID_RED));
    EXPECT_TRUE(PumpUntil([&] { return MessageLine() == "Paints it red."; })) << MessageLine();
    MoveMouse(bar.m_hWnd, ButtonPoint(ID_GREEN));
    EXPECT_TRUE(PumpUntil([&] { return MessageLine() == "Paints it green."; })) << MessageLine();
    MoveMouse(frame->m_hWnd, CPoint(200, 150));
    EXPECT_TRUE(PumpUntil([&] { return MessageLine() == "Ready"; })) << MessageLine();
}

// A window that is no frame lets its bars take their places itself.
TEST(BarsOfAWindow, StandAtItsEdgesAndSendItTheirCommands)
{
    HostWindow host(400, 300);
    CToolBar toolBar;
    CStatusBar statusBar;
    ASSERT_TRUE(toolBar.CreateEx(&host));
    ASSERT_TRUE(toolBar.LoadToolBar(IDR_FRAMES));
    ASSERT_TRUE(statusBar.Create(&host));
    const UINT indicators[] = {ID_SEPARATOR, ID_INDICATOR_CAPS};
    ASSERT_TRUE(statusBar.SetIndicators(indicators, 2));
    host.RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, 0);
    EXPECT_EQ(RectIn(toolBar, host).TopLeft(), CPoint(0, 0));
    EXPECT_EQ(RectIn(toolBar, host).right, 400);
    EXPECT_EQ(RectIn(statusBar, host).BottomRight(), CPoint(400, 300));
    host.TakeLog();
    CRect rect;
    toolBar.GetItemRect(0, &rect);
    Click(toolBar.m_hWnd, rect.CenterPoint());
    const std::vector<std::string> log = host.TakeLog();
    EXPECT_NE(std::find(log.begin(), log.end(), "command " + std::to_string(ID_RED) + " code 0"), log.end());
}

} // namespace
