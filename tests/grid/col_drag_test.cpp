// Moving and resizing columns by dragging in the column header.
#include "tests/grid/HeaderFixture.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class ColDrags : public HeaderFixture
{
};

TEST_F(ColDrags, SelectedColumns_MoveBeforeTheColumnTheyAreDroppedOn)
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

TEST_F(ColDrags, ColumnDrag_DoesNotBeginWhereColumnsMayNotMove)
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

TEST_F(ColDrags, ColumnHooks_RefuseTheDragThePositionAndTheDrop)
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

TEST_F(ColDrags, ColumnMark_IsThreePixelsWideAtTheLeftEdgeOrBehindTheLastColumn)
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

TEST_F(ColDrags, RefusedPosition_GetsNoMark)
{
    CommandGrid grid;
    Make(grid, "");
    grid.SelectCols({0});
    grid.vetoes = {"OnMovingCol"};
    Press(ColHeader(grid), ColBox(grid, 0));
    Move(ColHeader(grid), ColBox(grid, 3));
    const Snapshot picture(grid);
    const CPoint corner = grid.ToClient(150, 0);
    EXPECT_TRUE(picture.IsAll(CRect(corner.x, 100, corner.x + 10, 140), white));
    ColHeader(grid).SendMessage(WM_CANCELMODE);
}

TEST_F(ColDrags, ResizeZone_IsTwoPixelsWide)
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

TEST_F(ColDrags, CellThatIsPaintedDuringADrag_KeepsTheMark)
{
    CommandGrid grid;
    Make(grid, "ab");
    grid.SelectCols({0});
    Press(ColHeader(grid), ColBox(grid, 0));
    Move(ColHeader(grid), ColBox(grid, 3));
    grid.GetCell(0, 3).Refresh();
    const CPoint corner = grid.ToClient(3 * colWidth, 0);
    // Beside the line between the columns, which is not white.
    EXPECT_TRUE(Snapshot(grid).IsAll(CRect(corner.x + 1, corner.y + 2, corner.x + 3, corner.y + 18), black));
    Release(ColHeader(grid), ColBox(grid, 0));
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(ColDrags, CursorOfAnEdge_IsNotReplacedByAnybody)
{
    CommandGrid grid;
    Make(grid, "ab");
    CWnd& header = ColHeader(grid);
    const auto isSet = [&header](CPoint point) {
        header.ClientToScreen(&point);
        ::SetCursorPos(point.x, point.y);
        return header.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(header.m_hWnd),
                                  MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    };
    EXPECT_EQ(isSet(CPoint(98, 10)), TRUE);
}

TEST_F(ColDrags, DraggedEdge_ResizesTheColumnAndShiftsTheOthers)
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

TEST_F(ColDrags, EdgeDraggedToTheOtherEdge_LeavesTheWidth)
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

TEST_F(ColDrags, CoincidingEdges_ResizeTheLastColumn)
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

TEST_F(ColDrags, ColumnDragAtTheEdges_Scrolls)
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

TEST_F(ColDrags, ColumnDragOverAColumnThatBeginsAtTheEdge_DoesNotScroll)
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

TEST_F(ColDrags, LostCapture_CancelsColumnDrags)
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

TEST_F(ColDrags, ColumnsThatAHookDeletes_AreNotDropped)
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
