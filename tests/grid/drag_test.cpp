// Moving rows and columns and resizing columns by dragging in the header windows.
#include "tests/grid/HeaderFixture.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class HeaderDrags : public HeaderFixture
{
};

// ---- Rows

TEST_F(HeaderDrags, SelectedRows_MoveBeforeTheRowTheyAreDroppedOn)
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

TEST_F(HeaderDrags, RowsWithGaps_MoveTogether)
{
    CommandGrid grid;
    Make(grid, "abcdefgh");
    grid.SelectRows({1, 4, 6});
    DragRow(grid, 6, 3);
    EXPECT_EQ(grid.Rows(), "a c b* e* g* d f h");
}

TEST_F(HeaderDrags, RowsToTheEnd_AreAppendedLastToFirst)
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

TEST_F(HeaderDrags, DroppedOnTheRowItStartedFrom_ChangesNothing)
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

TEST_F(HeaderDrags, DroppedRows_TellOfTheChangedSelectionOnceMoreThanCutOnes)
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

TEST_F(HeaderDrags, RowDrag_LeavesTheRowBufferAlone)
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

TEST_F(HeaderDrags, RowDrag_DoesNotBeginWhereRowsMayNotMove)
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

TEST_F(HeaderDrags, UnfoldedParent_IsNotDragged)
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

TEST_F(HeaderDrags, ChildRows_MoveAmongSiblingsAndOutOfTheTree)
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

TEST_F(HeaderDrags, RowHooks_RefuseTheDragThePositionAndTheDrop)
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

TEST_F(HeaderDrags, DropMark_StandsOnTheBoundaryUnderTheMouse)
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

TEST_F(HeaderDrags, DropMark_SurvivesEveryKindOfRepaint)
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

TEST_F(HeaderDrags, RowDragAtTheEdges_ScrollsByFivePixels)
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

TEST_F(HeaderDrags, ScrollingUnderTheMark_TakesItAlong)
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

TEST_F(HeaderDrags, LostCapture_CancelsARowDrag)
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

TEST_F(HeaderDrags, RowsThatAHookDeletes_AreNotDropped)
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

TEST_F(HeaderDrags, WindowThatAHookCloses_EndsTheDrag)
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

TEST_F(HeaderDrags, GridThatIsDestroyedDuringADrag_LeavesNoCapture)
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

// ---- Columns

TEST_F(HeaderDrags, SelectedColumns_MoveBeforeTheColumnTheyAreDroppedOn)
{
    CommandGrid grid;
    Make(grid, "ab");
    grid.GetCell(0, 2).SetText(L"c0");
    grid.SelectCols({2, 3});
    // On the column behind the last selected one nothing moves.
    DragCol(grid, 2, ColBox(grid, 4));
    EXPECT_EQ(grid.Cols(), "A B C* D* E F");
    EXPECT_EQ(grid.TakeText(), "OnBeginMoveCol | OnMovingCol 4 | OnMoveCol 4 | OnMovingCol 4");
    DragCol(grid, 2, ColBox(grid, 6));
    EXPECT_EQ(grid.Cols(), "A B E F C* D*");
    EXPECT_EQ(grid.TakeText(),
              "OnBeginMoveCol | OnMovingCol 6 | OnMoveCol 6 | OnMovingCol 6 | OnEndMoveCol | OnDataChanged");
    DragCol(grid, 5, ColBox(grid, 1));
    EXPECT_EQ(grid.Cols(), "A C* D* B E F");
    EXPECT_EQ(grid.GetCell(0, 1).GetText(), L"c0");
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(HeaderDrags, ColumnDrag_DoesNotBeginWhereColumnsMayNotMove)
{
    CommandGrid grid;
    Make(grid, "ab");
    grid.SelectCols({1, 3});
    DragCol(grid, 1, ColBox(grid, 5));
    EXPECT_EQ(grid.TakeText(), "") << "nobody is asked for a selection with gaps";
    grid.SelectCols({1});
    grid.SetColPosFix(true);
    DragCol(grid, 1, ColBox(grid, 5));
    grid.SetColPosFix(false);
    grid.SetReadOnly(true);
    DragCol(grid, 1, ColBox(grid, 5));
    grid.SetReadOnly(false);
    EXPECT_EQ(grid.TakeText(), "");
    EXPECT_EQ(grid.Cols(), "A B* C D E F");
}

TEST_F(HeaderDrags, ColumnHooks_RefuseTheDragThePositionAndTheDrop)
{
    CommandGrid grid;
    Make(grid, "ab");
    grid.SelectCols({1});
    for (const auto& [veto, log] :
         {std::pair<std::string, std::string>("OnBeginMoveCol", "OnBeginMoveCol"),
          {"OnMovingCol", "OnBeginMoveCol | OnMovingCol 4 | OnMoveCol 4 | OnMovingCol 4"},
          {"OnMoveCol", "OnBeginMoveCol | OnMovingCol 4 | OnMoveCol 4"}})
    {
        grid.vetoes = {veto};
        DragCol(grid, 1, ColBox(grid, 4));
        EXPECT_EQ(grid.TakeText(), log);
    }
    EXPECT_EQ(grid.Cols(), "A B* C D E F");
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(HeaderDrags, ColumnMark_IsThreePixelsWideAtTheLeftEdgeOrBehindTheLastColumn)
{
    CommandGrid grid;
    Make(grid, "");
    grid.SetNoAppendButton(true);
    grid.RecalcLayout(1);
    grid.SelectCols({0});
    Press(ColHeader(grid), ColBox(grid, 0));
    Move(ColHeader(grid), ColBox(grid, 3));
    const auto markAt = [&](long logicalX, int width) {
        const Snapshot picture(grid);
        const CPoint corner = grid.ToClient(logicalX, 0);
        return picture.IsAll(CRect(corner.x, 100, corner.x + width, 140), black) &&
               picture.IsAll(CRect(corner.x + width, 100, corner.x + width + 10, 140), white);
    };
    EXPECT_TRUE(markAt(150, 3));
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_SIZEWE));
    Move(ColHeader(grid), ColBox(grid, 7));
    EXPECT_TRUE(markAt(300, 3));
    EXPECT_FALSE(markAt(150, 3));
    ColHeader(grid).SendMessage(WM_CANCELMODE);
    EXPECT_FALSE(markAt(300, 3));

    Press(ColHeader(grid), CPoint(99, 10));
    Move(ColHeader(grid), CPoint(120, 10));
    EXPECT_TRUE(markAt(120 + 1, 1));
    Release(ColHeader(grid), CPoint(99, 10));
    EXPECT_FALSE(markAt(120 + 1, 1));
}

TEST_F(HeaderDrags, ResizeZone_IsTwoPixelsWide)
{
    CommandGrid grid;
    Make(grid, "ab");
    CWnd& header = ColHeader(grid);
    const auto cursorAt = [&](int x) {
        CPoint point(x, 10);
        header.ClientToScreen(&point);
        ::SetCursorPos(point.x, point.y);
        header.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(header.m_hWnd),
                           MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return ::GetCursor() == ::LoadCursor(nullptr, IDC_SIZEWE);
    };
    std::string zone;
    for (int x = 90; x < 110; ++x)
        zone += cursorAt(x) ? '^' : '-';
    // The logical origin lies one pixel left of the data area: logical 99 and 100 are at 98 and 99.
    EXPECT_EQ(zone, "--------^^----------");
    grid.SetColFixWidth(true);
    EXPECT_FALSE(cursorAt(98));
    grid.SelectCols({1});
    Press(header, CPoint(98, 10));
    Move(header, CPoint(130, 10));
    Release(header, CPoint(130, 10));
    EXPECT_EQ(grid.GetCol(1).GetWidth(), 50);
}

TEST_F(HeaderDrags, DraggedEdge_ResizesTheColumnAndShiftsTheOthers)
{
    CommandGrid grid;
    Make(grid, "ab", 6, 340, 200);
    ASSERT_EQ(grid.Bars(), "");
    Press(ColHeader(grid), CPoint(149, 10));
    Move(ColHeader(grid), CPoint(155, 10));
    Release(ColHeader(grid), CPoint(189, 10));
    EXPECT_EQ(grid.GetCol(2).GetWidth(), 90);
    EXPECT_EQ(grid.GetRight(), 340);
    EXPECT_NE(grid.Bars(), "");
    EXPECT_EQ(grid.TakeText(), "");
    EXPECT_FALSE(grid.IsModified());
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(HeaderDrags, EdgeDraggedToTheOtherEdge_LeavesTheWidth)
{
    CommandGrid grid;
    Make(grid, "ab");
    const auto dragTo = [&](int x) {
        Press(ColHeader(grid), CPoint(149, 10));
        Move(ColHeader(grid), CPoint(x, 10));
        Release(ColHeader(grid), CPoint(x, 10));
        return grid.GetCol(2).GetWidth();
    };
    EXPECT_EQ(dragTo(20), 50);
    // Logical 101, one pixel right of the left edge.
    EXPECT_EQ(dragTo(100), 50);
    EXPECT_EQ(dragTo(101), 2);
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(HeaderDrags, CoincidingEdges_ResizeTheLastColumn)
{
    CommandGrid grid;
    Make(grid, "ab", 2);
    grid.AppendCol(L"narrow", 1);
    grid.AppendCol(L"D", 50);
    Press(ColHeader(grid), CPoint(99, 10));
    Release(ColHeader(grid), CPoint(129, 10));
    EXPECT_EQ(grid.GetCol(1).GetWidth(), 50);
    EXPECT_EQ(grid.GetCol(2).GetWidth(), 30);
}

TEST_F(HeaderDrags, ColumnDragAtTheEdges_Scrolls)
{
    CommandGrid grid;
    Make(grid, "ab", 20, 320, 200);
    grid.SelectCols({1});
    Press(ColHeader(grid), ColBox(grid, 1));
    Move(ColHeader(grid), CPoint(299, 10));
    EXPECT_EQ(grid.HScroll(), 0);
    Move(ColHeader(grid), CPoint(300, 10));
    Move(ColHeader(grid), CPoint(300, 10));
    EXPECT_EQ(grid.HScroll(), 10);
    // The first column is cut: inside its width the view scrolls back.
    Move(ColHeader(grid), CPoint(60, 10));
    EXPECT_EQ(grid.HScroll(), 10);
    Move(ColHeader(grid), CPoint(30, 10));
    EXPECT_EQ(grid.HScroll(), 5);
    grid.MoveView(-100, 0);
    Release(ColHeader(grid), CPoint(275, 10));
    EXPECT_EQ(grid.GetCol(4).GetName(), L"B");
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(HeaderDrags, ColumnDragOverAColumnThatBeginsAtTheEdge_DoesNotScroll)
{
    CommandGrid grid;
    Make(grid, "ab", 20, 320, 200);
    grid.SelectCols({3});
    grid.MoveView(colWidth, 0);
    Press(ColHeader(grid), ColBox(grid, 3));
    Move(ColHeader(grid), CPoint(30, 10));
    EXPECT_EQ(grid.HScroll(), colWidth);
    Release(ColHeader(grid), CPoint(30, 10));
    EXPECT_EQ(grid.Cols().substr(0, 9), "A D* B C ");
}

TEST_F(HeaderDrags, LostCapture_CancelsColumnDrags)
{
    for (const CPoint start : {CPoint(75, 10), CPoint(99, 10)})
    {
        CommandGrid grid;
        Make(grid, "ab");
        grid.SelectCols({1});
        Press(ColHeader(grid), start);
        Move(ColHeader(grid), CPoint(220, 10));
        host.SetCapture();
        EXPECT_TRUE(ShowsNoTrace(grid));
        ::ReleaseCapture();
        Release(ColHeader(grid), CPoint(220, 10));
        EXPECT_EQ(grid.Cols(), "A B* C D E F");
        EXPECT_EQ(grid.GetCol(1).GetWidth(), 50);
    }
}

TEST_F(HeaderDrags, ColumnsThatAHookDeletes_AreNotDropped)
{
    for (const char* hook : {"OnBeginMoveCol", "OnMovingCol", "OnMoveCol"})
        for (const long left : {0L, 1L, 2L})
        {
            CommandGrid grid;
            Make(grid, "abcd");
            grid.SelectCols({1, 2});
            grid.actions[hook] = [&] {
                grid.actions.clear();
                grid.SetColNum(left);
            };
            DragCol(grid, 1, CPoint(275, 10));
            EXPECT_EQ(grid.GetColNum(), left) << hook;
            EXPECT_TRUE(ShowsNoTrace(grid)) << hook;
        }
}

} // namespace
} // namespace quor::test
