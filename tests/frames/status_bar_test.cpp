// Status bars: panes, texts, indicators, and the message line of the frame.
#include "tests/frames/BarFrame.h"
#include "tests/support/MenuProbe.h"

namespace
{

using namespace quor::test;

class StatusBar : public BarFrameTest
{
protected:
    CStatusBar& bar = frame->statusBar;

    CRect Pane(int index) const
    {
        CRect rect;
        bar.GetItemRect(index, &rect);
        return rect;
    }
    int Place() const { return bar.CommandToIndex(ID_INDICATOR_PLACE); }
    std::string Shown(int index) const { return Narrow(bar.GetStatusBarCtrl().GetText(index)); }
};

TEST_F(StatusBar, SetIndicators_MakesAPaneForEachId)
{
    EXPECT_EQ(bar.GetCount(), 4);
    EXPECT_EQ(bar.GetStatusBarCtrl().GetParts(0, NULL), 4);
    EXPECT_EQ(bar.GetItemID(0), 0u);
    EXPECT_EQ(bar.GetItemID(2), static_cast<UINT>(ID_INDICATOR_CAPS));
    EXPECT_EQ(bar.CommandToIndex(ID_INDICATOR_NUM), 3);
    EXPECT_EQ(bar.CommandToIndex(ID_INDICATOR_SCRL), -1);
}

TEST_F(StatusBar, SetIndicators_FailsWithoutAString)
{
    const UINT indicators[] = {ID_SEPARATOR, ID_INDICATOR_SCRL};
    EXPECT_FALSE(bar.SetIndicators(indicators, 2));
    EXPECT_EQ(bar.GetCount(), 4);
}

TEST_F(StatusBar, FirstPane_StretchesWithTheFrame)
{
    EXPECT_EQ(bar.GetPaneStyle(0), static_cast<UINT>(SBPS_STRETCH | SBPS_NOBORDERS));
    const int first = Pane(0).Width();
    const int place = Pane(Place()).Width();
    CRect rect;
    frame->GetWindowRect(&rect);
    frame->SetWindowPos(NULL, 0, 0, rect.Width() + 60, rect.Height(), SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Pane(0).Width(), first + 60);
    EXPECT_EQ(Pane(Place()).Width(), place);
}

TEST_F(StatusBar, Panes_AreAsWideAsTheirTexts)
{
    UINT id, style;
    int width;
    bar.GetPaneInfo(Place(), id, style, width);
    CClientDC dc(&bar);
    dc.SelectObject(bar.GetFont());
    EXPECT_EQ(width, dc.GetTextExtent(L"Ln 000, Col 000", 15).cx);
    EXPECT_GE(Pane(Place()).Width(), width);
}

TEST_F(StatusBar, SetPaneInfo_MovesTheEdgesOfThePane)
{
    UINT id, style;
    int width;
    bar.GetPaneInfo(Place(), id, style, width);
    const CRect before = Pane(Place());
    bar.SetPaneInfo(Place(), id, style, width + 25);
    EXPECT_EQ(Pane(Place()).Width(), before.Width() + 25);
    EXPECT_EQ(Pane(Place()).right, before.right);
    int after;
    bar.GetPaneInfo(Place(), id, style, after);
    EXPECT_EQ(after, width + 25);
}

TEST_F(StatusBar, Place_IsTheBottomEdgeOfTheFrame)
{
    CRect client;
    frame->GetClientRect(&client);
    const CRect rect = RectIn(bar, *frame);
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.right, client.right);
    EXPECT_EQ(rect.bottom, client.bottom);
    EXPECT_EQ(rect.Height(), bar.CalcFixedLayout(TRUE, TRUE).cy);
    EXPECT_GT(rect.Height(), 14);
}

TEST_F(StatusBar, SetMinHeight_MakesTheBarHigher)
{
    bar.GetStatusBarCtrl().SetMinHeight(50);
    frame->RecalcLayout();
    EXPECT_EQ(RectIn(bar, *frame).Height(), 50);
}

TEST_F(StatusBar, SetPaneText_ShowsTheText)
{
    EXPECT_TRUE(bar.SetPaneText(0, L"Hello"));
    EXPECT_EQ(Narrow(bar.GetPaneText(0)), "Hello");
    EXPECT_EQ(Shown(0), "Hello");
    EXPECT_FALSE(bar.SetPaneText(9, L"Nowhere"));
}

TEST_F(StatusBar, SetPaneText_WithoutUpdateIsShownLater)
{
    bar.SetPaneText(0, L"Before");
    bar.SetPaneText(0, L"Later", FALSE);
    EXPECT_EQ(Shown(0), "Before");
    EXPECT_EQ(Narrow(bar.GetPaneText(0)), "Later");
    bar.SetPaneText(0, L"Later");
    EXPECT_EQ(Shown(0), "Later");
}

TEST_F(StatusBar, WindowText_IsTheMessageLine)
{
    bar.SetWindowText(L"Line");
    EXPECT_EQ(MessageLine(), "Line");
    CString text;
    bar.GetWindowText(text);
    EXPECT_EQ(Narrow(text), "Line");
}

TEST_F(StatusBar, DisabledPane_ShowsNoText)
{
    bar.SetPaneText(2, L"CAP");
    bar.SetPaneStyle(2, SBPS_DISABLED);
    EXPECT_EQ(Shown(2), "");
    EXPECT_EQ(Narrow(bar.GetPaneText(2)), "CAP");
    bar.SetPaneStyle(2, SBPS_NORMAL);
    EXPECT_EQ(Shown(2), "CAP");
}

TEST_F(StatusBar, Idle_SetsTextAndStateOfIndicators)
{
    Idle();
    EXPECT_EQ(Shown(Place()), "Ln 1, Col 1");
    frame->place = L"Ln 7, Col 9";
    Idle();
    EXPECT_EQ(Shown(Place()), "Ln 7, Col 9");
    frame->place.Empty();
    Idle();
    EXPECT_EQ(bar.GetPaneStyle(Place()), static_cast<UINT>(SBPS_DISABLED));
}

TEST_F(StatusBar, Idle_ShowsWhichKeysAreLocked)
{
    BYTE keys[256];
    ASSERT_TRUE(::GetKeyboardState(keys));
    const BYTE capital = keys[VK_CAPITAL];
    keys[VK_CAPITAL] = 1;
    ::SetKeyboardState(keys);
    Idle();
    EXPECT_EQ(Shown(2), "CAP");
    keys[VK_CAPITAL] = 0;
    ::SetKeyboardState(keys);
    Idle();
    EXPECT_EQ(Shown(2), "");
    keys[VK_CAPITAL] = capital;
    ::SetKeyboardState(keys);
}

TEST_F(StatusBar, OwnerDrawnPane_IsDrawnByDrawItem)
{
    class DrawingBar : public CStatusBar
    {
    public:
        int drawn = -1;
        void DrawItem(LPDRAWITEMSTRUCT item) override { drawn = static_cast<int>(item->itemID); }
    };
    DrawingBar drawing;
    ASSERT_TRUE(drawing.Create(frame, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, AFX_IDW_CONTROLBAR_LAST));
    ASSERT_TRUE(drawing.SetIndicators(NULL, 2));
    frame->RecalcLayout();
    drawing.SetPaneStyle(1, SBPS_OWNERDRAW);
    drawing.SetPaneText(1, L"x");
    drawing.Invalidate();
    drawing.UpdateWindow();
    EXPECT_EQ(drawing.drawn, 1);
}

class MessageLineTest : public BarFrameTest
{
protected:
    void Select(UINT item, UINT flags, HMENU menu = NULL)
    {
        frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(item, flags), reinterpret_cast<LPARAM>(menu));
    }
};

TEST_F(MessageLineTest, Idle_ShowsTheFirstMessage)
{
    Idle();
    EXPECT_EQ(MessageLine(), "Ready");
    frame->SetMessageText(L"Another");
    Idle();
    EXPECT_EQ(MessageLine(), "Another");
}

TEST_F(MessageLineTest, SelectedMenuItem_IsExplained)
{
    const HMENU menu = frame->GetMenu()->GetSubMenu(0)->m_hMenu;
    Select(ID_RED, MF_HILITE, menu);
    EXPECT_EQ(MessageLine(), "Paints it red.");
    Select(ID_NOBODY, MF_HILITE, menu);
    EXPECT_EQ(MessageLine(), "");
    Select(SC_CLOSE, MF_HILITE | MF_SYSMENU, menu);
    EXPECT_EQ(MessageLine(), "Closes the window.");
    Select(0, MF_HILITE | MF_POPUP, menu);
    EXPECT_EQ(MessageLine(), "");
    Select(0, 0xffff);
    EXPECT_EQ(MessageLine(), "Ready");
}

TEST_F(MessageLineTest, MenuOpenedByTheUser_ExplainsTheItemUnderTheMouse)
{
    MenuProbe probe(ID_GREEN);
    KeyPress('C', Modifiers::Alt);
    EXPECT_TRUE(probe.Chosen());
    EXPECT_TRUE(PumpUntil([&] { return !frame->commands.empty(); }));
    EXPECT_EQ(frame->commands, (std::vector<UINT>{ID_GREEN}));
    EXPECT_NE(std::find(frame->messages.begin(), frame->messages.end(), "Paints it green."),
              frame->messages.end());
    EXPECT_EQ(MessageLine(), "Ready");
}

TEST_F(MessageLineTest, SetMessageText_TakesATextOrAnId)
{
    frame->SetMessageText(L"Any text");
    EXPECT_EQ(MessageLine(), "Any text");
    frame->SetMessageText(ID_GREEN);
    EXPECT_EQ(MessageLine(), "Paints it green.");
}

TEST_F(MessageLineTest, SetMessageString_AnswersWhatWasShownBefore)
{
    frame->SendMessage(WM_SETMESSAGESTRING, ID_RED);
    EXPECT_EQ(frame->SendMessage(WM_SETMESSAGESTRING, ID_GREEN), ID_RED);
    EXPECT_EQ(frame->SendMessage(WM_POPMESSAGESTRING, AFX_IDS_IDLEMESSAGE), ID_GREEN);
    EXPECT_EQ(MessageLine(), "Ready");
}

TEST_F(MessageLineTest, GetMessageString_MayBeReplaced)
{
    class Telling : public CFrameWnd
    {
    public:
        void GetMessageString(UINT nID, CString& rMessage) const override { rMessage.Format(L"%u", nID); }
    };
    Telling* const telling = new Telling;
    ASSERT_TRUE(telling->Create(NULL, L"Telling"));
    {
        CStatusBar bar;
        ASSERT_TRUE(bar.Create(telling));
        const UINT indicators[] = {ID_SEPARATOR};
        ASSERT_TRUE(bar.SetIndicators(indicators, 1));
        EXPECT_EQ(telling->GetMessageBar(), &bar);
        telling->SetMessageText(17);
        EXPECT_EQ(Narrow(bar.GetPaneText(0)), "17");
    }
    EXPECT_EQ(telling->GetMessageBar(), nullptr);
    telling->DestroyWindow();
}

} // namespace
