// Where the cell cursor stands after clicks of all kinds, and when rows and columns change below it.
#include "tests/extras/CursorGrid.h"

#include "grid/TGGridUpdate.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// ---- Mouse

TEST_F(CellCursor, APressOfTheRightButton_GoesToItsCell_UnlessThatIsSelected)
{
    Make();
    const auto press = [&](long row, long col) {
        SendMouse(grid, WM_RBUTTONDOWN, Middle(row, col), MK_RBUTTON);
        return State();
    };
    EXPECT_EQ(press(2, 1), "2,1");
    cursor.SelectRange({1, 1, 2, 2});
    EXPECT_EQ(press(1, 1), "2,2 [1,1-2,2]");
    EXPECT_EQ(press(1, 2), "2,2 [1,1-2,2]");
    EXPECT_EQ(press(1, 0), "1,0");
    cursor.SelectRange({1, 1, 2, 1});
    EXPECT_EQ(press(1, 2), "1,2");
    cursor.SelectRange({1, 1, 2, 1});
    EXPECT_EQ(press(0, 1), "0,1");
    cursor.SelectRange({1, 1, 2, 1});
    EXPECT_EQ(press(3, 1), "3,1");
}

TEST_F(CellCursor, IsInRanges_GoesByRowsAndColumnsWhereTheyAreSelected)
{
    Make();
    cursor.MoveTo(3, 2);
    EXPECT_TRUE(cursor.IsInRanges(3, 2));
    EXPECT_FALSE(cursor.IsInRanges(3, 1));
    grid.SelectRow(1, true);
    EXPECT_TRUE(cursor.IsInRanges(1, 0));
    EXPECT_FALSE(cursor.IsInRanges(3, 2));
    grid.UnSelect();
    grid.SelectCol(2, true);
    EXPECT_TRUE(cursor.IsInRanges(0, 2));
    EXPECT_FALSE(cursor.IsInRanges(1, 0));
    cursor.Detach();
    EXPECT_FALSE(cursor.IsInRanges(0, 2));
}

TEST_F(CellCursor, ClicksBesideTheCells_AreTheGrids)
{
    Make(2, 2);
    grid.SetNoAppendButton(true);
    cursor.MoveTo(1, 1);
    SendMouse(grid, WM_LBUTTONDOWN, CPoint(Middle(0, 0).x + 250, Middle(0, 0).y), MK_LBUTTON);
    SendMouse(grid, WM_LBUTTONDOWN, CPoint(Middle(0, 0).x, Middle(4, 0).y), MK_LBUTTON);
    SendMouse(grid, WM_LBUTTONDBLCLK, CPoint(Middle(0, 0).x + 250, Middle(0, 0).y), MK_LBUTTON);
    SendMouse(grid, WM_LBUTTONDBLCLK, CPoint(Middle(0, 0).x, Middle(4, 0).y), MK_LBUTTON);
    EXPECT_EQ(State(), "1,1");
    EXPECT_NE(::GetCapture(), grid.m_hWnd);
}

TEST_F(CellCursor, ControlAndShift_MoveTheLastRange)
{
    Make();
    AfterClick(0, 0);
    AfterClick(2, 1, control);
    EXPECT_EQ(AfterClick(3, 2, control | shift), "3,2 [0,0-0,0] [2,1-3,2]");
}

TEST_F(CellCursor, DragsBesideTheCells_GoToTheNearestOne)
{
    Make(3, 2);
    SendMouse(grid, WM_LBUTTONDOWN, Middle(1, 1), MK_LBUTTON);
    SendMouse(grid, WM_MOUSEMOVE, CPoint(-30, -30), MK_LBUTTON);
    EXPECT_EQ(State(), "0,0 [0,0-1,1]");
    SendMouse(grid, WM_MOUSEMOVE, CPoint(Middle(0, 0).x + 250, Middle(5, 0).y), MK_LBUTTON);
    EXPECT_EQ(State(), "3,1 [1,1-3,1]");
    // The same cell again.
    SendMouse(grid, WM_MOUSEMOVE, CPoint(Middle(0, 0).x + 251, Middle(5, 0).y), MK_LBUTTON);
    EXPECT_EQ(State(), "3,1 [1,1-3,1]");
    SendMouse(grid, WM_LBUTTONUP, Middle(1, 1));
    SendMouse(grid, WM_MOUSEMOVE, Middle(0, 0), MK_LBUTTON);
    EXPECT_EQ(State(), "3,1 [1,1-3,1]");
}

TEST_F(CellCursor, ADragWhoseCaptureIsTaken_IsOver)
{
    Make();
    SendMouse(grid, WM_LBUTTONDOWN, Middle(1, 1), MK_LBUTTON);
    ::SetCapture(host);
    SendMouse(grid, WM_MOUSEMOVE, Middle(3, 1), MK_LBUTTON);
    EXPECT_EQ(State(), "1,1");
    ::ReleaseCapture();
}

TEST_F(CellCursor, AClickThatEndsAnEdit_WhoseCommitDetachesOrDestroys)
{
    Make();
    AfterTyping(L"a");
    grid.dataChanged = [this] {
        grid.dataChanged = nullptr;
        cursor.Detach();
    };
    SendMouse(grid, WM_LBUTTONDOWN, Middle(2, 2), MK_LBUTTON);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(TextOf(grid, 0, 0), L"a");
    cursor.AttachTo(grid);
    AfterTyping(L"b");
    grid.dataChanged = [this] {
        grid.dataChanged = nullptr;
        grid.DestroyWindow();
    };
    SendMouse(grid, WM_LBUTTONDOWN, Middle(2, 2), MK_LBUTTON);
    EXPECT_EQ(grid.m_hWnd, nullptr);
    EXPECT_EQ(State(), "0,0");
    EXPECT_EQ(TextOf(grid, 0, 0), L"b");
}

TEST_F(TreeCursor, ADoubleClickOnTheBox_EditsNothing)
{
    MakeTree();
    const long half = (grid.GetRowHeight() - 3) / 2;
    const CPoint box = grid.ToClient(half + 2, half + 2);
    SendMouse(grid, WM_LBUTTONDBLCLK, box, MK_LBUTTON);
    EXPECT_FALSE(grid.IsEditing());
    SendMouse(grid, WM_LBUTTONDBLCLK, Middle(0, 0), MK_LBUTTON);
    EXPECT_TRUE(grid.IsEditing());
}

// ---- Selections

TEST_F(CellCursor, SeveralRowsOrColumns_LeaveTheCellWhereItIs)
{
    Make();
    cursor.MoveTo(4, 2);
    grid.SelectAll();
    EXPECT_EQ(State(), "4,2 [0,0-4,2]");
    grid.UnSelect();
    {
        const TGGridUpdate update(grid);
        grid.SelectCol(0, true);
        grid.SelectCol(1, true);
    }
    EXPECT_EQ(cursor.GetCol(), 0);
    cursor.MoveTo(1, 1);
    EXPECT_FALSE(grid.IsColSelected());
}

TEST_F(CellCursor, ASelectionThatGoesWithTheCursor_MayDetachIt)
{
    Make();
    grid.SelectRow(1, true);
    grid.curChanged = [this] {
        grid.curChanged = nullptr;
        cursor.Detach();
    };
    EXPECT_TRUE(cursor.MoveTo(3, 1));
    EXPECT_EQ(State(), "-1,-1");
    EXPECT_FALSE(grid.IsRowSelected());
}

// ---- Changes of the grid

TEST_F(CellCursor, WhileUpdatesAreHeldBack_GoesAlongAsWell)
{
    Make();
    cursor.SelectRange({1, 1, 3, 2});
    const TGGridUpdate update(grid);
    grid.DelCol(2);
    EXPECT_EQ(State(), "3,1 [1,1-3,1]");
    grid.DelCol(1);
    EXPECT_EQ(State(), "3,0 [1,0-3,0]");
    grid.DelRow(3);
    EXPECT_EQ(cursor.GetRow(), 3);
    grid.DelRow(3);
    EXPECT_EQ(cursor.GetRow(), 3);
}

TEST_F(CellCursor, OnTheNewRowLine_StaysOnIt)
{
    Make(2);
    cursor.MoveTo(2, 1);
    grid.AppendRow(nullptr);
    EXPECT_EQ(State(), "3,1");
    grid.DelRow(0);
    EXPECT_EQ(State(), "2,1");
}

TEST_F(TreeCursor, OnTheNewRowLine_StaysOnItWhenRowsFold)
{
    MakeTree();
    cursor.MoveTo(2, 1);
    grid.GetTreeRow(0).UnFoldAll();
    EXPECT_EQ(State(), "5,1");
    grid.GetTreeRow(0).Fold();
    EXPECT_EQ(State(), "2,1");
}

TEST_F(TreeCursor, WithItsTree_IsDeletedOrMoved)
{
    MakeTree();
    grid.GetTreeRow(0).UnFoldAll();
    cursor.MoveTo(2, 1);
    grid.DelRow(0);
    EXPECT_EQ(Texts(grid), "b");
    EXPECT_EQ(cursor.GetCol(), 1);
    EXPECT_LE(cursor.GetRow(), 1);
    EXPECT_TRUE(cursor.MoveTo(0, 0));
}

} // namespace
} // namespace quor::test
