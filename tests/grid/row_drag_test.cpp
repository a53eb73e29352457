// Moving rows by dragging in the row header.
#include "tests/grid/HeaderFixture.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class RowDrags : public HeaderFixture
{
};

TEST_F(RowDrags, SelectedRows_MoveBeforeTheRowTheyAreDroppedOn)
{
    CommandGrid grid;
    Make(grid, "abcdefgh");
    grid.SelectRows({2, 3});
    DragRow(grid, 3, 6);
    EXPECT_EQ(grid.Rows(), "a b e f c* d* g h");
    EXPECT_EQ(grid.TakeText(),
              "OnBeginMoveRow | OnMovingRow 6 | OnMoveRow 6 | OnMovingRow 6 | OnEndMoveRow | OnDataChanged");
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(RowDrags, RowsWithGaps_MoveTogether)
{
    CommandGrid grid;
    Make(grid, "abcdefgh");
    grid.SelectRows({1, 4, 6});
    DragRow(grid, 6, 3);
    EXPECT_EQ(grid.Rows(), "a c b* e* g* d f h");
}

TEST_F(RowDrags, RowsToTheEnd_AreAppendedLastToFirst)
{
    CommandGrid grid;
    Make(grid, "abcd");
    grid.SelectRows({0});
    DragRow(grid, 0, 4);
    EXPECT_EQ(grid.Rows(), "b c d a*");
    grid.SelectRows({0, 1});
    DragRow(grid, 0, 4);
    EXPECT_EQ(grid.Rows(), "d a c* b*");
}

TEST_F(RowDrags, DroppedOnTheRowItStartedFrom_ChangesNothing)
{
    CommandGrid grid;
    Make(grid, "abcd");
    grid.SelectRows({2});
    Press(RowHeader(grid), RowBox(grid, 2));
    Move(RowHeader(grid), RowBox(grid, 0));
    Move(RowHeader(grid), RowBox(grid, 2));
    Release(RowHeader(grid), RowBox(grid, 2));
    EXPECT_EQ(grid.Rows(), "a b c* d");
    EXPECT_EQ(grid.TakeText(), "OnBeginMoveRow | OnMovingRow 0");
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(RowDrags, DroppedRows_TellOfTheChangedSelectionOnceMoreThanCutOnes)
{
    CommandGrid grid;
    Make(grid, "abcdef");
    grid.SelectRows({1, 2});
    Press(RowHeader(grid), RowBox(grid, 1));
    Move(RowHeader(grid), RowBox(grid, 5));
    grid.TakeLog();
    grid.logsCurrent = true;
    Release(RowHeader(grid), RowBox(grid, 5));
    EXPECT_EQ(grid.TakeText(),
              "OnMoveRow 5 | OnMovingRow 5 | OnCurChanged -1,-1 | OnCurChanged -1,-1 | OnCurChanged -1,-1 | "
              "OnCurChanged -1,-1 | "
              "OnCurChanged -1,-1 | OnCurChanged 3,-1 | OnCurChanged -1,-1 | OnEndMoveRow | OnDataChanged");
}

TEST_F(RowDrags, RowDrag_LeavesTheRowBufferAlone)
{
    CommandGrid grid;
    Make(grid, "abcd");
    grid.SelectRows({0, 1});
    grid.DoCopy();
    TGGridRow* const first = grid.GetRowPaste()[0];
    grid.SelectRows({3});
    DragRow(grid, 3, 0);
    EXPECT_EQ(grid.Rows(), "d* a b c");
    EXPECT_EQ(grid.Buffer(), "a b");
    EXPECT_EQ(grid.GetRowPaste()[0], first);
}

TEST_F(RowDrags, RowDrag_DoesNotBeginWhereRowsMayNotMove)
{
    CommandGrid grid;
    Make(grid, "abcd");
    const auto isDragged = [&] {
        grid.TakeLog();
        DragRow(grid, 1, 3);
        return grid.TakeText() != "";
    };
    grid.SelectRows({1});
    grid.SetRowPosFix(true);
    EXPECT_FALSE(isDragged());
    grid.SetRowPosFix(false);
    grid.SetReadOnly(true);
    EXPECT_FALSE(isDragged());
    grid.SetReadOnly(false);
    grid.GetRow(1).SetDelUnable(true);
    EXPECT_FALSE(isDragged());
    grid.GetRow(1).SetDelUnable(false);
    EXPECT_EQ(grid.Rows(), "a b* c d");
    EXPECT_TRUE(isDragged());
}

TEST_F(RowDrags, UnfoldedParent_IsNotDragged)
{
    CommandGrid grid(true);
    Make(grid, "abc");
    grid.AddChild(grid.GetTreeRow(1), 'x');
    grid.GetTreeRow(1).UnFold();
    grid.SelectRows({1});
    DragRow(grid, 1, 0);
    EXPECT_EQ(grid.TakeText(), "");
    grid.GetTreeRow(1).Fold();
    DragRow(grid, 1, 0);
    EXPECT_EQ(grid.Rows(), "b*(x) a c");
}

TEST_F(RowDrags, ChildRows_MoveAmongSiblingsAndOutOfTheTree)
{
    CommandGrid grid(true);
    Make(grid, "abc");
    for (const char text : {'x', 'y', 'z'})
        grid.AddChild(grid.GetTreeRow(1), text);
    grid.GetTreeRow(1).UnFold();
    grid.SelectRows({4});
    DragRow(grid, 4, 2);
    EXPECT_EQ(grid.Rows(), "a b(z* x y) c");
    DragRow(grid, 2, 0);
    EXPECT_EQ(grid.Rows(), "z* a b(x y) c");
    DragRow(grid, 0, 4);
    EXPECT_EQ(grid.Rows(), "a b(x z* y) c");
}

TEST_F(RowDrags, RowHooks_RefuseTheDragThePositionAndTheDrop)
{
    CommandGrid grid;
    Make(grid, "abcd");
    grid.SelectRows({1});
    grid.vetoes = {"OnBeginMoveRow"};
    DragRow(grid, 1, 3);
    EXPECT_EQ(grid.TakeText(), "OnBeginMoveRow");
    grid.vetoes = {"OnMovingRow"};
    Press(RowHeader(grid), RowBox(grid, 1));
    Move(RowHeader(grid), RowBox(grid, 3));
    EXPECT_FALSE(HasDropMark(grid, 3));
    Release(RowHeader(grid), RowBox(grid, 3));
    EXPECT_EQ(grid.TakeText(), "OnBeginMoveRow | OnMovingRow 3 | OnMoveRow 3 | OnMovingRow 3");
    grid.vetoes = {"OnMoveRow"};
    DragRow(grid, 1, 3);
    EXPECT_EQ(grid.TakeText(), "OnBeginMoveRow | OnMovingRow 3 | OnMoveRow 3");
    EXPECT_EQ(grid.Rows(), "a b* c d");
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(RowDrags, DropMark_StandsOnTheBoundaryUnderTheMouse)
{
    CommandGrid grid;
    Make(grid, "abcdefgh");
    grid.SelectRows({1});
    Press(RowHeader(grid), RowBox(grid, 1));
    EXPECT_TRUE(ShowsNoTrace(grid));
    Move(RowHeader(grid), RowBox(grid, 4));
    EXPECT_TRUE(HasDropMark(grid, 4));
    Move(RowHeader(grid), RowBox(grid, 8));
    EXPECT_FALSE(HasDropMark(grid, 4));
    EXPECT_TRUE(HasDropMark(grid, 8));
    // Behind the new-row line there is no position: the mark stays.
    Move(RowHeader(grid), RowBox(grid, 9));
    EXPECT_TRUE(HasDropMark(grid, 8));
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_SIZENS));
    Release(RowHeader(grid), RowBox(grid, 9));
    EXPECT_FALSE(HasDropMark(grid, 8));
    EXPECT_EQ(grid.Rows(), "a b* c d e f g h");
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(RowDrags, DropMark_SurvivesEveryKindOfRepaint)
{
    CommandGrid grid;
    Make(grid, "abcdefgh");
    grid.SelectRows({1});
    Press(RowHeader(grid), RowBox(grid, 1));
    Move(RowHeader(grid), RowBox(grid, 4));
    grid.Invalidate(1);
    EXPECT_TRUE(HasDropMark(grid, 4));
    grid.GetCell(4, 2).Refresh();
    EXPECT_TRUE(HasDropMark(grid, 4));
    grid.GetRow(4).Refresh();
    EXPECT_TRUE(HasDropMark(grid, 4));
    EXPECT_TRUE(ShowsNoTrace(grid));
    grid.Refresh();
    EXPECT_TRUE(HasDropMark(grid, 4));
    EXPECT_TRUE(ShowsNoTrace(grid));
    Release(RowHeader(grid), RowBox(grid, 1));
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(RowDrags, RowDragAtTheEdges_ScrollsByFivePixels)
{
    CommandGrid grid;
    Make(grid, std::string(50, 'r'), 2, 300, 220);
    grid.SelectRows({2});
    Press(RowHeader(grid), RowBox(grid, 2));
    // The logical origin lies one pixel above the data area: the last pixel belongs to the next row.
    Move(RowHeader(grid), CPoint(10, 199));
    EXPECT_EQ(grid.VScroll(), 0);
    EXPECT_EQ(grid.TakeText(), "OnBeginMoveRow | OnMovingRow 10");
    for (int i = 1; i <= 4; ++i)
    {
        Move(RowHeader(grid), CPoint(10, 200));
        EXPECT_EQ(grid.VScroll(), 5 * i);
    }
    EXPECT_EQ(grid.TakeText(), "");
    // With the view scrolled, one row height at the top scrolls back.
    Move(RowHeader(grid), CPoint(10, 21));
    EXPECT_EQ(grid.VScroll(), 20);
    Move(RowHeader(grid), CPoint(10, 20));
    EXPECT_EQ(grid.VScroll(), 15);
    grid.MoveView(0, -100);
    Move(RowHeader(grid), CPoint(10, 1));
    EXPECT_EQ(grid.VScroll(), 0);
    Release(RowHeader(grid), CPoint(10, 1));
    EXPECT_EQ(grid.GetSelRow(0).GetIndex(), 0);
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(RowDrags, ScrollingUnderTheMark_TakesItAlong)
{
    CommandGrid grid;
    Make(grid, std::string(50, ' '), 4, 300, 220);
    grid.SelectRows({2});
    Press(RowHeader(grid), RowBox(grid, 2));
    Move(RowHeader(grid), RowBox(grid, 6));
    Move(RowHeader(grid), CPoint(10, 200));
    EXPECT_TRUE(HasDropMark(grid, 6));
    Release(RowHeader(grid), CPoint(10, 2 * 20 + 2));
    EXPECT_TRUE(ShowsNoTrace(grid));
}

// ---- Drags that end before the button does

TEST_F(RowDrags, LostCapture_CancelsARowDrag)
{
    using Act = std::function<void(CommandGrid&, CWnd&)>;
    const Act acts[] = {
        [](CommandGrid& g, CWnd&) { RowHeader(g).SendMessage(WM_CANCELMODE); },
        [](CommandGrid&, CWnd& other) { other.SetCapture(); },
        [](CommandGrid&, CWnd&) { ::ReleaseCapture(); },
        [](CommandGrid& g, CWnd&) { g.EnableWindow(FALSE); },
    };
    for (const Act& act : acts)
    {
        CommandGrid grid;
        Make(grid, "abcd");
        grid.SelectRows({1});
        Press(RowHeader(grid), RowBox(grid, 1));
        Move(RowHeader(grid), RowBox(grid, 3));
        ASSERT_TRUE(HasDropMark(grid, 3));
        act(grid, host);
        if (&act == &acts[3])
        {
            RowHeader(grid).SendMessage(WM_CANCELMODE);
            grid.EnableWindow(TRUE);
        }
        EXPECT_TRUE(ShowsNoTrace(grid));
        ::ReleaseCapture();
        grid.TakeLog();
        Move(RowHeader(grid), RowBox(grid, 0));
        Release(RowHeader(grid), RowBox(grid, 0));
        EXPECT_EQ(grid.Rows(), "a b* c d");
        EXPECT_EQ(grid.TakeText(), "");
    }
}

TEST_F(RowDrags, RowsThatAHookDeletes_AreNotDropped)
{
    for (const char* hook : {"OnBeginMoveRow", "OnMovingRow", "OnMoveRow"})
        for (const long left : {0L, 1L, 2L})
        {
            CommandGrid grid;
            Make(grid, "abcd");
            grid.SelectRows({1, 2});
            grid.actions[hook] = [&] {
                grid.actions.clear();
                grid.SetRowNum(left);
            };
            DragRow(grid, 1, 3);
            EXPECT_EQ(grid.GetRowNum(), left) << hook;
            EXPECT_EQ(::GetCapture(), nullptr);
            EXPECT_TRUE(ShowsNoTrace(grid)) << hook;
        }
}

TEST_F(RowDrags, WindowThatAHookCloses_EndsTheDrag)
{
    for (const char* hook : {"OnBeginMoveRow", "OnMovingRow", "OnMoveRow", "OnEndMoveRow", "OnDataChanged"})
    {
        CommandGrid grid;
        Make(grid, "abcd");
        grid.SelectRows({1});
        CWnd& header = RowHeader(grid);
        grid.actions[hook] = [&] {
            grid.actions.clear();
            grid.DestroyWindow();
        };
        Press(header, CPoint(10, 30));
        if (header.m_hWnd != nullptr)
            Move(header, CPoint(10, 70));
        if (header.m_hWnd != nullptr)
            Release(header, CPoint(10, 70));
        EXPECT_EQ(grid.m_hWnd, nullptr) << hook;
        EXPECT_EQ(grid.GetRowNum(), 4);
        EXPECT_EQ(::GetCapture(), nullptr);
    }
}

TEST_F(RowDrags, GridThatIsDestroyedDuringADrag_LeavesNoCapture)
{
    {
        CommandGrid grid;
        Make(grid, "abcd");
        grid.SelectRows({1});
        Press(RowHeader(grid), RowBox(grid, 1));
        Move(RowHeader(grid), RowBox(grid, 3));
    }
    EXPECT_EQ(::GetCapture(), nullptr);
}

} // namespace
} // namespace quor::test
