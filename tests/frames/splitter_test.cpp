// Splitters: panes, sizes, the active pane, and bars that the user drags.
#include "tests/frames/BarFrame.h"
#include "tests/support/Snapshot.h"

namespace
{

using namespace quor::test;

// A view of one colour, so that panes can be seen.
class PlainView : public CView
{
    DECLARE_DYNCREATE(PlainView)

public:
    int updates = 0;

protected:
    void OnDraw(CDC* dc) override
    {
        CRect client;
        GetClientRect(&client);
        dc->FillSolidRect(&client, RGB(240, 250, 200));
    }
    void OnInitialUpdate() override { ++updates; }
};

IMPLEMENT_DYNCREATE(PlainView, CView)

class TestSplitter : public CSplitterWnd
{
public:
    std::vector<CRect> trackers;
    void OnInvertTracker(const CRect& rect) override
    {
        trackers.push_back(rect);
        CSplitterWnd::OnInvertTracker(rect);
    }
};

// Fills the frame of the test with a splitter.
class SplitterTest : public BarFrameTest
{
protected:
    virtual BOOL Fill() = 0;

    void SetUp() override
    {
        frame->createClient = [this](BarFrame&) { return Fill(); };
        BarFrameTest::SetUp();
        frame->SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    }

    void TearDown() override
    {
        BarFrameTest::TearDown();
        splitter.DestroyWindow();
    }

    CRect Pane(int row, int col) const { return RectIn(*splitter.GetPane(row, col), splitter); }
    CSize Inside() const
    {
        CRect client;
        splitter.GetClientRect(&client);
        return client.Size();
    }
    // In the bar behind a row or column.
    CPoint RowBar(int row) const { return CPoint(Pane(row, 0).left + 60, Pane(row, 0).bottom + 4); }
    CPoint ColumnBar(int col) const { return CPoint(Pane(0, col).right + 4, Pane(0, col).top + 40); }
    bool IsActive(int row, int col) const
    {
        return frame->GetActiveView() != NULL && frame->GetActiveView() == splitter.GetPane(row, col);
    }

    TestSplitter splitter;
};

class StaticSplitter : public SplitterTest
{
protected:
    BOOL Fill() override
    {
        if (!splitter.CreateStatic(frame, 2, 2))
            return FALSE;
        CCreateContext context;
        for (int row = 0; row < 2; ++row)
            for (int col = 0; col < 2; ++col)
                if (!splitter.CreateView(row, col, RUNTIME_CLASS(PlainView), CSize(150, 100), &context))
                    return FALSE;
        return TRUE;
    }
};

TEST_F(StaticSplitter, FillsTheFrame)
{
    CRect client;
    frame->GetClientRect(&client);
    const CRect rect = RectIn(splitter, *frame);
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.right, client.right);
    EXPECT_EQ(rect.top, RectIn(frame->toolBar, *frame).bottom);
    EXPECT_EQ(rect.bottom, RectIn(frame->statusBar, *frame).top);
    EXPECT_EQ(splitter.GetDlgCtrlID(), AFX_IDW_PANE_FIRST);
}

TEST_F(StaticSplitter, Panes_HaveTheirSizesAndTheLastOnesTheRest)
{
    EXPECT_EQ(splitter.GetRowCount(), 2);
    EXPECT_EQ(splitter.GetColumnCount(), 2);
    EXPECT_EQ(Pane(0, 0), CRect(CPoint(2, 2), CSize(150, 100)));
    EXPECT_EQ(Pane(1, 1).BottomRight(), CPoint(Inside().cx - 2, Inside().cy - 2));
    EXPECT_EQ(Pane(1, 0).top, Pane(0, 0).bottom + 9);
    EXPECT_EQ(Pane(0, 1).left, Pane(0, 0).right + 9);
    EXPECT_EQ(splitter.GetPane(1, 1)->GetDlgCtrlID(), splitter.IdFromRowCol(1, 1));
    int current, least;
    splitter.GetColumnInfo(1, current, least);
    EXPECT_EQ(current, Pane(1, 1).Width());
    EXPECT_EQ(splitter.GetScrollStyle(), 0u);
}

TEST_F(StaticSplitter, SetRowInfo_TakesEffectWithTheLayout)
{
    splitter.SetRowInfo(0, 60, 10);
    splitter.SetColumnInfo(0, 200, 20);
    EXPECT_EQ(Pane(0, 0).Size(), CSize(150, 100));
    splitter.RecalcLayout();
    EXPECT_EQ(Pane(0, 0).Size(), CSize(200, 60));
    int current, least;
    splitter.GetRowInfo(0, current, least);
    EXPECT_EQ(current, 60);
    EXPECT_EQ(least, 10);
    // Smaller than the least is not shown.
    splitter.SetRowInfo(0, 9, 10);
    splitter.RecalcLayout();
    EXPECT_EQ(Pane(0, 0).Height(), 0);
}

TEST_F(StaticSplitter, CreateView_RefusesAPaneThatExists)
{
    EXPECT_FALSE(splitter.CreateView(0, 0, RUNTIME_CLASS(PlainView), CSize(1, 1), NULL));
}

TEST_F(StaticSplitter, IsChildPane_TellsRowAndColumn)
{
    int row = -1, col = -1;
    EXPECT_TRUE(splitter.IsChildPane(splitter.GetPane(1, 0), &row, &col));
    EXPECT_EQ(row, 1);
    EXPECT_EQ(col, 0);
    EXPECT_FALSE(splitter.IsChildPane(&frame->toolBar, &row, &col));
    EXPECT_FALSE(splitter.IsChildPane(NULL, NULL, NULL));
}

TEST_F(StaticSplitter, ActivateNext_GoesRoundThePanes)
{
    splitter.SetActivePane(0, 0);
    EXPECT_TRUE(IsActive(0, 0));
    EXPECT_TRUE(splitter.CanActivateNext());
    splitter.ActivateNext();
    EXPECT_TRUE(IsActive(0, 1));
    splitter.ActivateNext();
    EXPECT_TRUE(IsActive(1, 0));
    splitter.ActivateNext(TRUE);
    splitter.ActivateNext(TRUE);
    splitter.ActivateNext(TRUE);
    EXPECT_TRUE(IsActive(1, 1));
    int row, col;
    EXPECT_EQ(splitter.GetActivePane(&row, &col), splitter.GetPane(1, 1));
    EXPECT_EQ(row, 1);
    EXPECT_EQ(col, 1);
}

TEST_F(StaticSplitter, F6_ActivatesTheNextPane)
{
    splitter.SetActivePane(0, 0);
    KeyPress(VK_F6);
    EXPECT_TRUE(PumpUntil([&] { return IsActive(0, 1); }));
    KeyPress(VK_F6, Modifiers::Shift);
    EXPECT_TRUE(PumpUntil([&] { return IsActive(0, 0); }));
}

TEST_F(StaticSplitter, Click_ActivatesThePane)
{
    Click(splitter.GetPane(1, 1)->m_hWnd, CPoint(20, 20));
    EXPECT_TRUE(IsActive(1, 1));
}

TEST_F(StaticSplitter, DraggedBar_MovesTheEdgeOfThePanes)
{
    const CPoint bar = RowBar(0);
    DragPath(splitter.m_hWnd, {bar, bar + CSize(0, 10), bar + CSize(0, 25)});
    EXPECT_EQ(Pane(0, 0).Height(), 125);
    EXPECT_EQ(Pane(1, 0).top, Pane(0, 0).bottom + 9);
    EXPECT_FALSE(splitter.IsTracking());
    const CPoint column = ColumnBar(0);
    DragPath(splitter.m_hWnd, {column, column + CSize(10, 0), column + CSize(-30, 0)});
    EXPECT_EQ(Pane(0, 0).Width(), 120);
}

TEST_F(StaticSplitter, DraggedCrossing_MovesBothBars)
{
    const CPoint crossing(ColumnBar(0).x, RowBar(0).y);
    DragPath(splitter.m_hWnd, {crossing, crossing + CSize(5, 5), crossing + CSize(20, 30)});
    EXPECT_EQ(Pane(0, 0).Size(), CSize(170, 130));
}

TEST_F(StaticSplitter, DraggedBar_ShowsATrackerAndTakesItAwayAgain)
{
    const Snapshot before(splitter.m_hWnd);
    const CPoint bar = RowBar(0);
    PressMouse(splitter.m_hWnd, bar);
    EXPECT_TRUE(splitter.IsTracking());
    MoveMouse(splitter.m_hWnd, bar + CSize(0, 30));
    KeyPress(VK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return !splitter.IsTracking(); }));
    ReleaseMouse(splitter.m_hWnd, bar + CSize(0, 30));
    EXPECT_EQ(Pane(0, 0).Height(), 100);
    // Each tracker was drawn twice.
    ASSERT_GE(splitter.trackers.size(), 4u);
    for (size_t index = 0; index < splitter.trackers.size(); index += 2)
        EXPECT_EQ(splitter.trackers[index], splitter.trackers[index + 1]);
}

TEST_F(StaticSplitter, DoubleClickedBar_Stays)
{
    DoubleClick(splitter.m_hWnd, RowBar(0));
    EXPECT_EQ(splitter.GetRowCount(), 2);
    EXPECT_EQ(Pane(0, 0).Height(), 100);
}

TEST_F(StaticSplitter, CommandOfAControl_ReachesTheFrame)
{
    splitter.SendMessage(WM_COMMAND, ID_RED);
    EXPECT_EQ(frame->commands, (std::vector<UINT>{ID_RED}));
}

TEST_F(StaticSplitter, Painting_ShowsPanesBarsAndBorders)
{
    const Snapshot picture(splitter.m_hWnd);
    EXPECT_TRUE(picture.IsAll(Pane(0, 0), RGB(240, 250, 200)));
    EXPECT_EQ(picture.At(RowBar(0).x, RowBar(0).y), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(picture.At(ColumnBar(0).x, ColumnBar(0).y), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(picture.At(Pane(0, 0).left - 2, Pane(0, 0).top + 20), ::GetSysColor(COLOR_BTNSHADOW));
}

// A view of 1000 by 1000 pixels.
class LargeView : public CScrollView
{
    DECLARE_DYNCREATE(LargeView)

protected:
    void OnDraw(CDC*) override {}
    void OnInitialUpdate() override { SetScrollSizes(MM_TEXT, CSize(1000, 1000)); }
};

IMPLEMENT_DYNCREATE(LargeView, CScrollView)

class DynamicSplitter : public SplitterTest
{
protected:
    BOOL Fill() override
    {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(LargeView);
        return splitter.Create(frame, 2, 2, CSize(30, 30), &context);
    }

    void SetUp() override
    {
        SplitterTest::SetUp();
        frame->SetActiveView(static_cast<CView*>(splitter.GetPane(0, 0)));
    }

    CScrollBar* Bar(int id) const { return static_cast<CScrollBar*>(splitter.GetDlgItem(id)); }
    CPoint Position(int row, int col) const
    {
        return static_cast<CScrollView*>(splitter.GetPane(row, col))->GetScrollPosition();
    }
};

TEST_F(DynamicSplitter, BeginsWithOnePaneAndSharedBars)
{
    EXPECT_EQ(splitter.GetRowCount(), 1);
    EXPECT_EQ(splitter.GetColumnCount(), 1);
    EXPECT_EQ(splitter.GetScrollStyle(), static_cast<DWORD>(WS_HSCROLL | WS_VSCROLL));
    ASSERT_NE(Bar(AFX_IDW_HSCROLL_FIRST), nullptr);
    ASSERT_NE(Bar(AFX_IDW_VSCROLL_FIRST), nullptr);
    EXPECT_EQ(Pane(0, 0).right + 2 + ::GetSystemMetrics(SM_CXVSCROLL), Inside().cx);
    EXPECT_EQ(splitter.GetPane(0, 0)->GetScrollBarCtrl(SB_VERT), Bar(AFX_IDW_VSCROLL_FIRST));
    int low, high;
    Bar(AFX_IDW_VSCROLL_FIRST)->GetScrollRange(&low, &high);
    EXPECT_EQ(high, 999);
}

TEST_F(DynamicSplitter, SplitRow_AddsPanesOfTheSameKind)
{
    const CRect whole = Pane(0, 0);
    EXPECT_TRUE(splitter.SplitRow(100));
    EXPECT_EQ(splitter.GetRowCount(), 2);
    EXPECT_TRUE(splitter.GetPane(1, 0)->IsKindOf(RUNTIME_CLASS(LargeView)));
    EXPECT_EQ(Pane(1, 0).bottom, whole.bottom);
    EXPECT_NEAR(Pane(0, 0).bottom, 100, 5);
    EXPECT_TRUE(IsActive(0, 0));
    EXPECT_FALSE(splitter.SplitRow(150));
    EXPECT_TRUE(splitter.SplitColumn(200));
    EXPECT_NE(splitter.GetPane(1, 1), nullptr);
}

TEST_F(DynamicSplitter, SplitRow_RefusesPanesThatWouldBeTooSmall)
{
    EXPECT_FALSE(splitter.SplitRow(20));
    EXPECT_FALSE(splitter.SplitRow(Inside().cy - 10));
    EXPECT_EQ(splitter.GetRowCount(), 1);
}

TEST_F(DynamicSplitter, TheBarsOfRowsAndColumnsLieBesideThem)
{
    ASSERT_TRUE(splitter.SplitRow(100));
    ASSERT_TRUE(splitter.SplitColumn(200));
    for (int line = 0; line < 2; ++line)
    {
        // Before the first one there is the box that splits, unless there are as many lines as there may be.
        const CRect vertical = RectIn(*Bar(AFX_IDW_VSCROLL_FIRST + line), splitter);
        EXPECT_EQ(vertical.top, Pane(line, 0).top - 2) << line;
        EXPECT_EQ(vertical.bottom, Pane(line, 0).bottom + 2) << line;
        const CRect horizontal = RectIn(*Bar(AFX_IDW_HSCROLL_FIRST + line), splitter);
        EXPECT_EQ(horizontal.left, Pane(0, line).left - 2) << line;
        EXPECT_EQ(horizontal.right, Pane(0, line).right + 2) << line;
    }
}

TEST_F(DynamicSplitter, DeleteRow_MovesTheOtherPanesUp)
{
    ASSERT_TRUE(splitter.SplitRow(100));
    CWnd* const below = splitter.GetPane(1, 0);
    const CRect whole(Pane(0, 0).TopLeft(), Pane(1, 0).BottomRight());
    splitter.DeleteRow(0);
    EXPECT_EQ(splitter.GetRowCount(), 1);
    EXPECT_EQ(splitter.GetPane(0, 0), below);
    EXPECT_EQ(Pane(0, 0), whole);
    EXPECT_TRUE(IsActive(0, 0));
    EXPECT_EQ(Bar(AFX_IDW_VSCROLL_FIRST + 1), nullptr);
    ASSERT_NE(Bar(AFX_IDW_VSCROLL_FIRST), nullptr);
}

TEST_F(DynamicSplitter, DeleteColumn_KeepsTheFirstOne)
{
    ASSERT_TRUE(splitter.SplitColumn(200));
    CWnd* const left = splitter.GetPane(0, 0);
    splitter.DeleteColumn(1);
    EXPECT_EQ(splitter.GetColumnCount(), 1);
    EXPECT_EQ(splitter.GetPane(0, 0), left);
}

TEST_F(DynamicSplitter, DraggedBox_SplitsThePane)
{
    const CPoint box(Inside().cx - 5, 3);
    DragPath(splitter.m_hWnd, {box, box + CSize(-10, 40), box + CSize(-20, 100)});
    EXPECT_EQ(splitter.GetRowCount(), 2);
    EXPECT_NEAR(Pane(0, 0).bottom, 100, 8);
}

TEST_F(DynamicSplitter, BarDraggedToTheEdge_RemovesTheRow)
{
    ASSERT_TRUE(splitter.SplitRow(100));
    const CPoint bar = RowBar(0);
    DragPath(splitter.m_hWnd, {bar, bar + CSize(0, -20), CPoint(bar.x, 5)});
    EXPECT_EQ(splitter.GetRowCount(), 1);
}

TEST_F(DynamicSplitter, DoubleClick_SplitsAtTheBoxAndJoinsAtTheBar)
{
    DoubleClick(splitter.m_hWnd, CPoint(Inside().cx - 5, 3));
    ASSERT_EQ(splitter.GetRowCount(), 2);
    EXPECT_NEAR(Pane(0, 0).Height(), Pane(1, 0).Height(), 3);
    DoubleClick(splitter.m_hWnd, RowBar(0));
    EXPECT_EQ(splitter.GetRowCount(), 1);
}

TEST_F(DynamicSplitter, SharedBar_ScrollsAllPanesOfTheColumn)
{
    ASSERT_TRUE(splitter.SplitRow(100));
    splitter.SendMessage(WM_HSCROLL, SB_LINEDOWN,
                         reinterpret_cast<LPARAM>(Bar(AFX_IDW_HSCROLL_FIRST)->m_hWnd));
    EXPECT_EQ(Position(0, 0), CPoint(10, 0));
    EXPECT_EQ(Position(1, 0), CPoint(10, 0));
    splitter.SendMessage(WM_VSCROLL, SB_LINEDOWN,
                         reinterpret_cast<LPARAM>(Bar(AFX_IDW_VSCROLL_FIRST + 1)->m_hWnd));
    EXPECT_EQ(Position(0, 0), CPoint(10, 0));
    EXPECT_EQ(Position(1, 0), CPoint(10, 10));
}

TEST_F(DynamicSplitter, SharedBar_MovesTheContentsOfEveryPane)
{
    ASSERT_TRUE(splitter.SplitRow(100));
    for (int row = 0; row < 2; ++row)
    {
        CWnd* const child = new CWnd;
        ASSERT_TRUE(child->Create(NULL, NULL, WS_CHILD | WS_VISIBLE, CRect(50, 10, 60, 20),
                                  splitter.GetPane(row, 0), 7));
    }
    splitter.SendMessage(WM_HSCROLL, SB_LINEDOWN,
                         reinterpret_cast<LPARAM>(Bar(AFX_IDW_HSCROLL_FIRST)->m_hWnd));
    for (int row = 0; row < 2; ++row)
    {
        CWnd* const child = splitter.GetPane(row, 0)->GetDlgItem(7);
        EXPECT_EQ(RectIn(*child, *splitter.GetPane(row, 0)).left, 40) << row;
        delete child;
    }
}

TEST_F(DynamicSplitter, DoScrollBy_ScrollsPanesThatShareABar)
{
    ASSERT_TRUE(splitter.SplitColumn(200));
    CView* const view = static_cast<CView*>(splitter.GetPane(0, 0));
    EXPECT_TRUE(splitter.DoScrollBy(view, CSize(5, 7)));
    EXPECT_EQ(Position(0, 0), CPoint(5, 7));
    EXPECT_EQ(Position(0, 1), CPoint(0, 7));
    EXPECT_FALSE(splitter.DoScrollBy(view, CSize(-20, 0), FALSE) && Position(0, 0) != CPoint(5, 7));
    EXPECT_TRUE(splitter.DoScroll(view, MAKEWORD(0xff, SB_TOP)));
    EXPECT_EQ(Position(0, 0), CPoint(5, 0));
}

TEST_F(DynamicSplitter, KeyboardSplit_FollowsTheArrowKeys)
{
    ASSERT_TRUE(splitter.SplitRow(100));
    ASSERT_TRUE(splitter.SplitColumn(200));
    const CSize before = Pane(0, 0).Size();
    EXPECT_TRUE(splitter.DoKeyboardSplit());
    EXPECT_TRUE(splitter.IsTracking());
    splitter.SendMessage(WM_KEYDOWN, VK_DOWN);
    splitter.SendMessage(WM_KEYDOWN, VK_LEFT);
    splitter.SendMessage(WM_KEYDOWN, VK_RETURN);
    EXPECT_FALSE(splitter.IsTracking());
    EXPECT_EQ(Pane(0, 0).Size(), before + CSize(-16, 16));
}

// As many columns as there may be, in two rows with a bar each.
class WideSplitter : public SplitterTest
{
protected:
    static constexpr int Columns = 16;

    BOOL Fill() override
    {
        if (!splitter.CreateStatic(frame, 2, Columns, WS_CHILD | WS_VISIBLE | WS_VSCROLL))
            return FALSE;
        CCreateContext context;
        for (int row = 0; row < 2; ++row)
            for (int col = 0; col < Columns; ++col)
                if (!splitter.CreateView(row, col, RUNTIME_CLASS(LargeView), CSize(5, 100), &context))
                    return FALSE;
        return TRUE;
    }

    int Position(int row, int col) const
    {
        return static_cast<CScrollView*>(splitter.GetPane(row, col))->GetScrollPosition().y;
    }
};

TEST_F(WideSplitter, DoScrollBy_ScrollsItsOwnRowOnly)
{
    EXPECT_TRUE(splitter.DoScrollBy(static_cast<CView*>(splitter.GetPane(0, 3)), CSize(0, 7)));
    for (int col = 0; col < Columns; ++col)
    {
        EXPECT_EQ(Position(0, col), 7) << col;
        EXPECT_EQ(Position(1, col), 0) << col;
    }
}

} // namespace
