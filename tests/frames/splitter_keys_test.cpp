// Splitters: columns, failures, the keyboard, and panes that are no views.
#include "tests/frames/BarFrame.h"

namespace
{

using namespace quor::test;

// A scrolling view of which only so many can be made.
class CountedView : public CScrollView
{
    DECLARE_DYNCREATE(CountedView)

public:
    static int left;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override { return left-- > 0 && CScrollView::PreCreateWindow(cs); }

protected:
    void OnDraw(CDC*) override {}
    void OnInitialUpdate() override { SetScrollSizes(MM_TEXT, CSize(1000, 1000)); }
};

int CountedView::left = 0;
IMPLEMENT_DYNCREATE(CountedView, CScrollView)

// A frame whose client is a splitter of up to two rows and columns, which is asked by `fill`.
class SplitterPanes : public BarFrameTest
{
protected:
    SplitterPanes()
    {
        CountedView::left = 100;
        frame->createClient = [this](BarFrame&) {
            CCreateContext context;
            context.m_pNewViewClass = RUNTIME_CLASS(CountedView);
            return splitter.Create(frame, 2, 2, CSize(30, 30), &context);
        };
    }
    void SetUp() override
    {
        BarFrameTest::SetUp();
        frame->SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
        frame->SetActiveView(View(0, 0));
    }
    void TearDown() override
    {
        BarFrameTest::TearDown();
        splitter.DestroyWindow();
    }

    CView* View(int row, int col) const { return static_cast<CView*>(splitter.GetPane(row, col)); }
    CRect Pane(int row, int col) const { return RectIn(*splitter.GetPane(row, col), splitter); }
    CPoint Position(int row, int col) const
    {
        return static_cast<CScrollView*>(splitter.GetPane(row, col))->GetScrollPosition();
    }
    CSize Inside() const
    {
        CRect client;
        splitter.GetClientRect(&client);
        return client.Size();
    }
    CPoint ColumnBar(int col) const { return CPoint(Pane(0, col).right + 4, Pane(0, col).top + 40); }
    void Key(WPARAM key) { splitter.SendMessage(WM_KEYDOWN, key); }

    CSplitterWnd splitter;
};

TEST_F(SplitterPanes, SplitRow_WithoutAViewChangesNothing)
{
    const CRect whole = Pane(0, 0);
    CountedView::left = 0;
    EXPECT_FALSE(splitter.SplitRow(100));
    EXPECT_FALSE(splitter.SplitColumn(200));
    EXPECT_EQ(splitter.GetRowCount(), 1);
    EXPECT_EQ(splitter.GetColumnCount(), 1);
    splitter.RecalcLayout();
    EXPECT_EQ(Pane(0, 0), whole);
    EXPECT_EQ(splitter.GetDlgItem(AFX_IDW_VSCROLL_FIRST + 1), nullptr) << "no bar without its row";
    EXPECT_EQ(splitter.GetDlgItem(AFX_IDW_HSCROLL_FIRST + 1), nullptr);
}

TEST_F(SplitterPanes, SplitRow_TakesBackTheViewsItMade)
{
    ASSERT_TRUE(splitter.SplitColumn(200));
    CountedView::left = 1;
    EXPECT_FALSE(splitter.SplitRow(100));
    EXPECT_EQ(splitter.GetRowCount(), 1);
    EXPECT_EQ(splitter.GetPane(1, 0), nullptr);
    EXPECT_EQ(splitter.GetPane(1, 1), nullptr);
    CountedView::left = 2;
    EXPECT_TRUE(splitter.SplitRow(100));
    EXPECT_NE(splitter.GetPane(1, 1), nullptr);
}

TEST_F(SplitterPanes, CreateView_NeedsAWindowClass)
{
    ASSERT_TRUE(splitter.SplitRow(100));
    splitter.GetPane(1, 0)->DestroyWindow();
    EXPECT_FALSE(splitter.CreateView(1, 0, RUNTIME_CLASS(CMenu), CSize(10, 10), nullptr));
    EXPECT_EQ(splitter.GetPane(1, 0), nullptr);
    EXPECT_TRUE(splitter.CreateView(1, 0, RUNTIME_CLASS(CountedView), CSize(10, 10), nullptr));
}

TEST_F(SplitterPanes, Create_WithoutAFirstViewFails)
{
    CWnd parent;
    ASSERT_TRUE(parent.Create(nullptr, nullptr, WS_CHILD, CRect(0, 0, 100, 100), frame, 77));
    CSplitterWnd other;
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(CountedView);
    CountedView::left = 0;
    EXPECT_FALSE(other.Create(&parent, 2, 2, CSize(10, 10), &context));
    EXPECT_EQ(other.m_hWnd, nullptr);
    parent.DestroyWindow();
}

TEST_F(SplitterPanes, DeleteColumn_MovesTheOtherOneToTheLeft)
{
    ASSERT_TRUE(splitter.SplitColumn(200));
    CWnd* const right = splitter.GetPane(0, 1);
    CWnd* const rightBar = splitter.GetDlgItem(AFX_IDW_HSCROLL_FIRST + 1);
    ASSERT_NE(rightBar, nullptr);
    const HWND rightBarWindow = rightBar->m_hWnd;
    splitter.DeleteColumn(0);
    EXPECT_EQ(splitter.GetColumnCount(), 1);
    EXPECT_EQ(splitter.GetPane(0, 0), right);
    EXPECT_EQ(frame->GetActiveView(), right) << "the active pane went";
    EXPECT_EQ(::GetDlgItem(splitter.m_hWnd, AFX_IDW_HSCROLL_FIRST), rightBarWindow);
    EXPECT_EQ(splitter.GetDlgItem(AFX_IDW_HSCROLL_FIRST + 1), nullptr);
}

TEST_F(SplitterPanes, DeleteView_MakesTheNextPaneActive)
{
    ASSERT_TRUE(splitter.SplitRow(100));
    splitter.SetActivePane(0, 0);
    splitter.DeleteView(0, 0);
    EXPECT_EQ(splitter.GetPane(0, 0), nullptr);
    EXPECT_EQ(frame->GetActiveView(), splitter.GetPane(1, 0));
    splitter.DeleteView(0, 0);
    EXPECT_EQ(frame->GetActiveView(), splitter.GetPane(1, 0));
}

TEST_F(SplitterPanes, ColumnBarDraggedToTheRight_RemovesTheRightColumn)
{
    ASSERT_TRUE(splitter.SplitColumn(200));
    CWnd* const left = splitter.GetPane(0, 0);
    const CPoint bar = ColumnBar(0);
    DragPath(splitter.m_hWnd, {bar, bar + CSize(20, 0), CPoint(Inside().cx - 25, bar.y)});
    ASSERT_EQ(splitter.GetColumnCount(), 1);
    EXPECT_EQ(splitter.GetPane(0, 0), left);
}

TEST_F(SplitterPanes, ColumnBarDraggedToTheLeft_RemovesTheLeftColumn)
{
    ASSERT_TRUE(splitter.SplitColumn(200));
    CWnd* const right = splitter.GetPane(0, 1);
    const CPoint bar = ColumnBar(0);
    DragPath(splitter.m_hWnd, {bar, bar + CSize(-20, 0), CPoint(5, bar.y)});
    ASSERT_EQ(splitter.GetColumnCount(), 1);
    EXPECT_EQ(splitter.GetPane(0, 0), right);
}

TEST_F(SplitterPanes, DraggedRowBar_RemovesTheLowerRow)
{
    ASSERT_TRUE(splitter.SplitRow(100));
    CWnd* const above = splitter.GetPane(0, 0);
    const CPoint bar(60, Pane(0, 0).bottom + 4);
    DragPath(splitter.m_hWnd, {bar, bar + CSize(0, 20), CPoint(bar.x, Inside().cy - 25)});
    EXPECT_EQ(splitter.GetRowCount(), 1);
    EXPECT_EQ(splitter.GetPane(0, 0), above);
}

TEST_F(SplitterPanes, DoubleClick_SplitsAndJoinsColumns)
{
    const CPoint box(3, Inside().cy - 5);
    DoubleClick(splitter.m_hWnd, box);
    ASSERT_EQ(splitter.GetColumnCount(), 2);
    EXPECT_NEAR(Pane(0, 0).Width(), Pane(0, 1).Width(), 3);
    DoubleClick(splitter.m_hWnd, ColumnBar(0));
    EXPECT_EQ(splitter.GetColumnCount(), 1);
}

TEST_F(SplitterPanes, DraggedColumnBox_Splits)
{
    const CPoint box(3, Inside().cy - 5);
    DragPath(splitter.m_hWnd, {box, box + CSize(40, -10), box + CSize(150, -10)});
    EXPECT_EQ(splitter.GetColumnCount(), 2);
    EXPECT_NEAR(Pane(0, 0).right, 150, 8);
}

TEST_F(SplitterPanes, KeyboardSplit_SplitsBothWaysAtOnce)
{
    EXPECT_TRUE(splitter.DoKeyboardSplit());
    EXPECT_TRUE(splitter.IsTracking());
    Key(VK_RIGHT);
    Key(VK_UP);
    Key('X');
    EXPECT_TRUE(splitter.IsTracking()) << "other keys do nothing";
    Key(VK_RETURN);
    EXPECT_FALSE(splitter.IsTracking());
    ASSERT_EQ(splitter.GetRowCount(), 2);
    ASSERT_EQ(splitter.GetColumnCount(), 2);
    EXPECT_GT(Pane(0, 0).Width(), Pane(0, 1).Width());
    EXPECT_LT(Pane(0, 0).Height(), Pane(1, 0).Height());
}

TEST_F(SplitterPanes, TrackingEndsWithoutASplitWhenItIsCancelled)
{
    EXPECT_TRUE(splitter.DoKeyboardSplit());
    EXPECT_EQ(::GetCapture(), splitter.m_hWnd);
    splitter.SendMessage(WM_CANCELMODE);
    EXPECT_FALSE(splitter.IsTracking());
    EXPECT_NE(::GetCapture(), splitter.m_hWnd);
    EXPECT_EQ(splitter.GetRowCount(), 1);
    EXPECT_EQ(::GetFocus(), View(0, 0)->m_hWnd) << "the focus is where it was";
    Key(VK_RETURN);
    EXPECT_EQ(splitter.GetRowCount(), 1) << "keys are nothing special any more";
}

TEST_F(SplitterPanes, SplitCommandOfAView_BeginsTracking)
{
    CCmdUI ui;
    ui.m_nID = ID_WINDOW_SPLIT;
    EXPECT_TRUE(View(0, 0)->OnCmdMsg(ID_WINDOW_SPLIT, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(splitter.IsTracking());
    Key(VK_ESCAPE);
    EXPECT_FALSE(splitter.IsTracking());
    EXPECT_EQ(splitter.GetRowCount(), 1);
}

// The state that the update handler of a command chooses.
class EnabledState : public CCmdUI
{
public:
    explicit EnabledState(UINT command) { m_nID = command; }
    int enabled = -1;
    void Enable(BOOL on) override { enabled = on ? 1 : 0; }
};

TEST_F(SplitterPanes, SplitCommandOfAView_IsDisabledWhileTracking)
{
    EnabledState before(ID_WINDOW_SPLIT);
    EXPECT_TRUE(View(0, 0)->OnCmdMsg(ID_WINDOW_SPLIT, CN_UPDATE_COMMAND_UI, &before, nullptr));
    EXPECT_EQ(before.enabled, 1);
    splitter.DoKeyboardSplit();
    EnabledState during(ID_WINDOW_SPLIT);
    EXPECT_TRUE(View(0, 0)->OnCmdMsg(ID_WINDOW_SPLIT, CN_UPDATE_COMMAND_UI, &during, nullptr));
    EXPECT_EQ(during.enabled, 0);
    Key(VK_ESCAPE);
}

TEST_F(SplitterPanes, NextPaneCommand_NeedsAnotherPane)
{
    EnabledState alone(ID_NEXT_PANE);
    View(0, 0)->OnCmdMsg(ID_NEXT_PANE, CN_UPDATE_COMMAND_UI, &alone, nullptr);
    EXPECT_EQ(alone.enabled, 0);
    EXPECT_FALSE(View(0, 0)->OnCmdMsg(ID_NEXT_PANE, CN_COMMAND, nullptr, nullptr));
    ASSERT_TRUE(splitter.SplitColumn(200));
    EnabledState among(ID_PREV_PANE);
    View(0, 0)->OnCmdMsg(ID_PREV_PANE, CN_UPDATE_COMMAND_UI, &among, nullptr);
    EXPECT_EQ(among.enabled, 1);
    EXPECT_TRUE(View(0, 0)->OnCmdMsg(ID_PREV_PANE, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(frame->GetActiveView(), View(0, 1));
}

TEST_F(SplitterPanes, DoScroll_TakesAlongThePanesThatShareABar)
{
    ASSERT_TRUE(splitter.SplitRow(100));
    ASSERT_TRUE(splitter.SplitColumn(200));
    EXPECT_TRUE(splitter.DoScrollBy(View(0, 0), CSize(5, 7)));
    EXPECT_EQ(Position(0, 0), CPoint(5, 7));
    EXPECT_EQ(Position(0, 1), CPoint(0, 7));
    EXPECT_EQ(Position(1, 0), CPoint(5, 0));
    EXPECT_EQ(Position(1, 1), CPoint(0, 0));
    EXPECT_TRUE(splitter.DoScroll(View(0, 0), MAKEWORD(SB_LINEDOWN, SB_LINEDOWN)));
    EXPECT_EQ(Position(0, 0), CPoint(15, 17));
    EXPECT_EQ(Position(0, 1), CPoint(0, 17));
    EXPECT_EQ(Position(1, 0), CPoint(15, 0));
    EXPECT_TRUE(splitter.DoScrollBy(View(0, 0), CSize(1, 1), FALSE)) << "whether it could be";
    EXPECT_TRUE(splitter.DoScroll(View(0, 0), MAKEWORD(SB_LINEDOWN, SB_LINEDOWN), FALSE));
    EXPECT_EQ(Position(0, 0), CPoint(15, 17));
}

TEST_F(SplitterPanes, DoScroll_KnowsOnlyItsOwnScrollingViews)
{
    EXPECT_FALSE(splitter.DoScroll(nullptr, SB_LINEDOWN));
    EXPECT_FALSE(splitter.DoScrollBy(nullptr, CSize(1, 1)));
    CountedView* const stranger = new CountedView;
    ASSERT_TRUE(stranger->Create(nullptr, nullptr, WS_CHILD, CRect(0, 0, 10, 10), frame, 78));
    EXPECT_FALSE(splitter.DoScroll(stranger, SB_LINEDOWN));
    EXPECT_FALSE(splitter.DoScrollBy(stranger, CSize(1, 1)));
    stranger->DestroyWindow();
}

TEST_F(SplitterPanes, ScrollMessagesOfOtherBarsAreNobodys)
{
    splitter.SendMessage(WM_HSCROLL, SB_LINEDOWN, 0);
    splitter.SendMessage(WM_VSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(frame->m_hWnd));
    splitter.SendMessage(WM_HSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(frame->m_hWnd));
    EXPECT_EQ(Position(0, 0), CPoint(0, 0));
}

// A plain window as a pane; notes its focus.
class PlainPane : public CWnd
{
    DECLARE_DYNCREATE(PlainPane)
};

IMPLEMENT_DYNCREATE(PlainPane, CWnd)

// Answers notifications.
class AnsweringFrame : public BarFrame
{
protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        if (wParam != 4711)
            return BarFrame::OnNotify(wParam, lParam, result);
        *result = 99;
        return TRUE;
    }
};

class PlainPanes : public BarFrameTest
{
protected:
    PlainPanes()
    {
        delete frame;
        frame = new AnsweringFrame;
        frame->createClient = [this](BarFrame&) {
            CCreateContext context;
            return splitter.CreateStatic(frame, 1, 2) &&
                   splitter.CreateView(0, 0, RUNTIME_CLASS(PlainPane), CSize(100, 50), &context) &&
                   splitter.CreateView(0, 1, RUNTIME_CLASS(PlainPane), CSize(100, 50), &context);
        };
    }
    void TearDown() override
    {
        CWnd* const panes[] = {splitter.GetPane(0, 0), splitter.GetPane(0, 1)};
        BarFrameTest::TearDown();
        splitter.DestroyWindow();
        for (CWnd* pane : panes)
            delete pane;
    }

    CSplitterWnd splitter;
};

TEST_F(PlainPanes, SetActivePane_GivesThemTheFocus)
{
    splitter.SetActivePane(0, 1);
    EXPECT_EQ(::GetFocus(), splitter.GetPane(0, 1)->m_hWnd);
    int row = -1, col = -1;
    EXPECT_EQ(splitter.GetActivePane(&row, &col), splitter.GetPane(0, 1));
    EXPECT_EQ(col, 1);
    splitter.ActivateNext();
    EXPECT_EQ(::GetFocus(), splitter.GetPane(0, 0)->m_hWnd);
    splitter.SetActivePane(0, 0, splitter.GetPane(0, 1));
    EXPECT_EQ(::GetFocus(), splitter.GetPane(0, 1)->m_hWnd) << "the window comes before its place";
}

TEST_F(PlainPanes, WithoutAnActivePaneThereIsNoNext)
{
    frame->SetFocus();
    EXPECT_FALSE(splitter.CanActivateNext());
    splitter.ActivateNext();
    EXPECT_EQ(::GetFocus(), frame->m_hWnd);
}

TEST_F(PlainPanes, NotificationsGoToTheFrame)
{
    NMHDR header = {splitter.GetPane(0, 0)->m_hWnd, 4711, NM_CLICK};
    EXPECT_EQ(splitter.SendMessage(WM_NOTIFY, 4711, reinterpret_cast<LPARAM>(&header)), 99);
}

TEST_F(PlainPanes, AStaticSplitterIsMovedByTheKeyboardButNeverSplit)
{
    const int before = RectIn(*splitter.GetPane(0, 0), splitter).Width();
    EXPECT_FALSE(splitter.SplitColumn(50));
    EXPECT_FALSE(splitter.SplitRow(50));
    EXPECT_TRUE(splitter.DoKeyboardSplit());
    splitter.SendMessage(WM_KEYDOWN, VK_RIGHT);
    splitter.SendMessage(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(RectIn(*splitter.GetPane(0, 0), splitter).Width(), before + 16);
    EXPECT_EQ(splitter.GetColumnCount(), 2);
}

TEST_F(PlainPanes, ASingleStaticPaneHasNothingToTrack)
{
    CSplitterWnd single;
    ASSERT_TRUE(single.CreateStatic(frame, 1, 1, WS_CHILD, 99));
    EXPECT_FALSE(single.DoKeyboardSplit());
    EXPECT_FALSE(single.IsTracking());
    single.DestroyWindow();
}

} // namespace
