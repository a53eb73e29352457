// The cell cursor as a user drives it: keys and clicks of real input, in a window of its own and in a dialog.
#include "tests/extras/CursorGrid.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// ---- Keys that move

TEST_F(CellCursor, Arrows_MoveTheCurrentCell_AndStopAtTheEdges)
{
    Make();
    EXPECT_EQ(State(), "0,0");
    EXPECT_EQ(After(VK_RIGHT), "0,1");
    EXPECT_EQ(After(VK_DOWN), "1,1");
    EXPECT_EQ(After(VK_LEFT), "1,0");
    EXPECT_EQ(After(VK_LEFT), "1,0");
    EXPECT_EQ(After(VK_UP), "0,0");
    EXPECT_EQ(After(VK_UP), "0,0");
}

TEST_F(CellCursor, HomeAndEnd)
{
    Make();
    cursor.MoveTo(2, 1);
    EXPECT_EQ(After(VK_END), "2,2");
    EXPECT_EQ(After(VK_HOME), "2,0");
    EXPECT_EQ(After(VK_END, control), "4,2");
    EXPECT_EQ(After(VK_HOME, control), "0,0");
}

TEST_F(CellCursor, ControlAndArrows_GoToTheEdgeOfTheData)
{
    Make();
    for (const long row : {1L, 2L})
        grid.GetCell(row, 0).SetText(L"");
    EXPECT_EQ(After(VK_DOWN, control), "3,0");
    EXPECT_EQ(After(VK_DOWN, control), "4,0");
    EXPECT_EQ(After(VK_UP, control), "3,0");
    EXPECT_EQ(After(VK_UP, control), "0,0");
    EXPECT_EQ(After(VK_RIGHT, control), "0,2");
    EXPECT_EQ(After(VK_LEFT, control), "0,0");
}

TEST_F(CellCursor, Pages_FollowOnTheScreen)
{
    Make(100);
    const std::string first = After(VK_NEXT);
    EXPECT_GE(cursor.GetRow(), 10) << first;
    EXPECT_GT(grid.VScroll() + grid.Area().Height(), cursor.GetRow() * 20);
    EXPECT_EQ(After(VK_PRIOR), "0,0");
    EXPECT_EQ(grid.VScroll(), 0);
    EXPECT_EQ(After(VK_END, control), "99,2");
    EXPECT_GT(grid.VScroll(), 0);
}

TEST_F(CellCursor, Shift_SpansARange)
{
    Make();
    EXPECT_EQ(After(VK_RIGHT, shift), "0,1 [0,0-0,1]");
    EXPECT_EQ(After(VK_DOWN, shift), "1,1 [0,0-1,1]");
    EXPECT_EQ(After(VK_END, shift | control), "4,2 [0,0-4,2]");
    EXPECT_EQ(After(VK_HOME, shift), "4,0 [0,0-4,0]");
    EXPECT_EQ(After(VK_ESCAPE), "4,0");
    EXPECT_EQ(After(VK_UP, shift | control), "0,0 [0,0-4,0]");
    EXPECT_EQ(After(VK_RIGHT), "0,1");
}

TEST_F(CellCursor, AllRowsAndColumns)
{
    Make();
    cursor.MoveTo(1, 1);
    EXPECT_EQ(After('A', control), "0,0 [0,0-4,2]");
    cursor.SelectRange({1, 1, 2, 1});
    EXPECT_EQ(After(VK_SPACE, shift), "2,1 [1,0-2,2]");
    EXPECT_EQ(grid.GetRowSelNum(), 2);
    cursor.MoveTo(1, 1);
    EXPECT_EQ(grid.GetRowSelNum(), 0);
    EXPECT_EQ(After(VK_SPACE, control), "1,1 [0,1-4,1]");
    EXPECT_EQ(grid.GetColSelNum(), 1);
}

// ---- Editing

TEST_F(CellCursor, Typing_OpensTheEditorWithTheCharacters)
{
    Make();
    EXPECT_EQ(AfterTyping(L"xy"), "0,0 edit xy");
    EXPECT_EQ(After(VK_RETURN), "1,0");
    EXPECT_EQ(TextOf(grid, 0, 0), L"xy");
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

TEST_F(CellCursor, Letters_AreTyped_AndNoCommands)
{
    Make(3);
    EXPECT_EQ(AfterTyping(L"n"), "0,0 edit n");
    EXPECT_EQ(After(VK_ESCAPE), "0,0");
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
    EXPECT_EQ(grid.GetRowNum(), 3);
    After('N', control);
    EXPECT_EQ(grid.GetRowNum(), 4);
}

TEST_F(CellCursor, F2_SetsTheCaretBehindTheText)
{
    Make();
    EXPECT_EQ(After(VK_F2), "0,0 edit 0,0");
    EXPECT_EQ(AfterTyping(L"!"), "0,0 edit 0,0!");
    // The caret stays in the text.
    EXPECT_EQ(After(VK_RIGHT), "0,0 edit 0,0!");
    EXPECT_EQ(After(VK_TAB), "0,1");
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0!");
}

TEST_F(CellCursor, ArrowsWhileTyping_CommitAndGoOn)
{
    Make();
    AfterTyping(L"a");
    EXPECT_EQ(After(VK_RIGHT), "0,1");
    AfterTyping(L"b");
    EXPECT_EQ(After(VK_DOWN), "1,1");
    EXPECT_EQ(TextOf(grid, 0, 0), L"a");
    EXPECT_EQ(TextOf(grid, 0, 1), L"b");
}

// The host looks something up while the text is stored, which takes the focus.
TEST_F(CellCursor, CommitThatMovesTheFocus_GivesItBackToTheGrid)
{
    Make();
    AfterTyping(L"a");
    grid.modifiedText = [this](TGGridCell&, CString&) {
        host.SetFocus();
        return true;
    };
    EXPECT_EQ(After(VK_RETURN), "1,0");
    EXPECT_EQ(TextOf(grid, 0, 0), L"a");
    EXPECT_EQ(CWnd::GetFocus(), &grid);
}

TEST_F(CellCursor, AltDown_OpensTheList)
{
    Make();
    grid.GetCol(1).SetComboEdit(true);
    grid.comboStrings = [](TGGridCell&, CComboBox& combo) { combo.AddString(L"item"); };
    cursor.MoveTo(0, 1);
    After(VK_DOWN, Modifiers::Alt);
    ASSERT_NE(grid.EditorWindow(), nullptr);
    EXPECT_NE(grid.EditorWindow()->SendMessage(CB_GETDROPPEDSTATE), 0);
    EXPECT_EQ(After(VK_ESCAPE), "0,1");
}

TEST_F(CellCursor, Steps_AreOptions)
{
    Make(2, 2);
    grid.SetNoAppendButton(true);
    EXPECT_EQ(After(VK_RETURN), "1,0");
    EXPECT_EQ(After(VK_RETURN), "0,1");
    EXPECT_EQ(After(VK_RETURN, shift), "1,0");
    EXPECT_EQ(After(VK_TAB), "1,1");
    EXPECT_EQ(After(VK_TAB, shift), "1,0");
    cursor.SetEnterStep(TGCellCursor::Step::Right);
    cursor.SetWrapping(false);
    EXPECT_EQ(After(VK_RETURN), "1,1");
    EXPECT_EQ(After(VK_RETURN), "1,1");
    cursor.SetTabStep(TGCellCursor::Step::Down);
    EXPECT_EQ(After(VK_TAB, shift), "0,1");
}

TEST_F(CellCursor, Delete_EmptiesTheRange_AndTellsOnce)
{
    Make();
    grid.GetCell(1, 0).SetReadOnly(true);
    grid.modifiedText = [](TGGridCell& cell, CString&) { return cell.GetRowIndex() != 0; };
    cursor.SelectRange({0, 0, 2, 0});
    grid.TakeText();
    After(VK_DELETE);
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
    EXPECT_EQ(TextOf(grid, 1, 0), L"1,0");
    EXPECT_EQ(TextOf(grid, 2, 0), L"");
    EXPECT_EQ(grid.TakeEditText(), "OnBeforeEdit 0,0 | OnModified 0,0 | OnBeforeEdit 2,0 | OnModified 2,0 | "
                                   "OnDataChanged");
    EXPECT_EQ(grid.GetRowNum(), 5);
}

TEST_F(CellCursor, ControlDelete_DeletesTheSelectedRows)
{
    Make();
    cursor.SelectRange({1, 0, 2, 0});
    After(VK_SPACE, shift);
    After(VK_DELETE, control);
    EXPECT_EQ(grid.GetRowNum(), 3);
    EXPECT_EQ(cursor.GetRow(), 1);
}

TEST_F(CellCursor, NewRowLine_IsReachedWithDown_AndTypingMakesARow)
{
    Make(2);
    cursor.MoveTo(1, 1);
    EXPECT_EQ(After(VK_DOWN), "2,1");
    EXPECT_EQ(After(VK_DOWN), "2,1");
    EXPECT_EQ(AfterTyping(L"new"), "2,1 edit new");
    EXPECT_EQ(After(VK_RETURN), "3,1");
    EXPECT_EQ(grid.GetRowNum(), 3);
    EXPECT_EQ(TextOf(grid, 2, 1), L"new");
}

TEST_F(CellCursor, LetterCommands_NeedControl)
{
    Make(3);
    After(VK_SPACE, shift);
    After('C', control);
    cursor.MoveTo(0, 0);
    After('V', control);
    EXPECT_EQ(Texts(grid), "0,0 1,0 2,0 0,0");
    EXPECT_EQ(After('X', control), "3,0");
    EXPECT_EQ(Texts(grid), "0,0 1,0 2,0");
    grid.UnSelect();
    grid.AppendKey(0);
    After('U', control);
    EXPECT_EQ(Texts(grid), "2,0 1,0 0,0");
    After('R', control);
    EXPECT_EQ(Texts(grid), "0,0 1,0 2,0");
}

// ---- Mouse

TEST_F(CellCursor, Clicks_SetTheCellAndEditNothing)
{
    Make();
    EXPECT_EQ(AfterClick(2, 1), "2,1");
    EXPECT_EQ(AfterClick(4, 2, shift), "4,2 [2,1-4,2]");
    EXPECT_EQ(AfterClick(0, 0, control), "0,0 [2,1-4,2] [0,0-0,0]");
    EXPECT_EQ(AfterClick(1, 1), "1,1");
    DoubleClick(grid, Middle(1, 1));
    EXPECT_EQ(State(), "1,1 edit 1,1");
    EXPECT_EQ(AfterClick(2, 0), "2,0");
}

TEST_F(CellCursor, DoubleClick_MayBeTheHosts)
{
    Make();
    cursor.SetDoubleClickEditing(false);
    DoubleClick(grid, Middle(1, 1));
    EXPECT_EQ(State(), "1,1");
}

TEST_F(CellCursor, Dragging_SpansARange)
{
    Make();
    DragPath(grid, {Middle(0, 0), Middle(1, 1), Middle(3, 1)});
    EXPECT_EQ(State(), "3,1 [0,0-3,1]");
    EXPECT_NE(::GetCapture(), grid.m_hWnd);
}

class DragOutOfTheView : public CellCursor
{
protected:
    // Presses on a cell and moves below the view, where the mouse stays until some rows have come by.
    void Begin()
    {
        Make(200);
        CRect view;
        grid.GetClientRect(&view);
        below = CPoint(Middle(1, 1).x, view.bottom + 30);
        PressMouse(grid, Middle(1, 1));
        MoveMouse(grid, below);
        const long first = cursor.GetRow();
        ASSERT_TRUE(PumpUntil([&] { return cursor.GetRow() >= first + 6; }));
    }
    // Longer than from one step to the next, by a timer of the test's own.
    void WaitSomeSteps()
    {
        const UINT_PTR timer = ::SetTimer(nullptr, 0, 250, nullptr);
        MSG message = {};
        while (::GetMessage(&message, nullptr, 0, 0) > 0 &&
               !(message.message == WM_TIMER && message.wParam == timer))
            ::DispatchMessage(&message);
        ::KillTimer(nullptr, timer);
    }

    CPoint below;
};

TEST_F(DragOutOfTheView, ScrollsOnWhileTheMouseWaits_UntilTheButtonIsReleased)
{
    Begin();
    ReleaseMouse(grid, below);
    PumpPending();
    const std::string state = State();
    EXPECT_NE(state.find("[1,1-"), std::string::npos) << state;
    EXPECT_LT(cursor.GetRow(), 199);
    WaitSomeSteps();
    EXPECT_EQ(State(), state);
    EXPECT_NE(::GetCapture(), grid.m_hWnd);
}

TEST_F(DragOutOfTheView, StandsStillOnceTheMouseIsBack)
{
    Begin();
    MoveMouse(grid, CPoint(below.x, below.y - 60));
    PumpPending();
    const std::string state = State();
    WaitSomeSteps();
    EXPECT_EQ(State(), state);
    ReleaseMouse(grid, CPoint(below.x, below.y - 60));
    PumpPending();
}

TEST_F(DragOutOfTheView, EndsWithTheCursor)
{
    Begin();
    cursor.Detach();
    const int position = grid.GetScrollPos(SB_VERT);
    WaitSomeSteps();
    EXPECT_EQ(grid.GetScrollPos(SB_VERT), position);
    ReleaseMouse(grid, below);
    PumpPending();
}

TEST_F(CellCursor, Headers_SelectRowsColumnsAndAll)
{
    Make();
    Click(*grid.GetDlgItem(104), CPoint(5, 2 * 20 + 10));
    EXPECT_EQ(State(), "2,0 [2,0-2,2]");
    Click(*grid.GetDlgItem(103), CPoint(150, 10));
    EXPECT_EQ(State(), "2,1 [0,1-4,1]");
    Click(*grid.GetDlgItem(102), CPoint(5, 5));
    EXPECT_EQ(State(), "2,1 [0,0-4,2]");
    EXPECT_EQ(AfterClick(0, 0), "0,0");
}

// ---- Trees

TEST_F(TreeCursor, LeftAndRight_FoldUnfoldAndStep)
{
    MakeTree();
    After(VK_RIGHT);
    EXPECT_EQ(Texts(grid), "a x y b");
    EXPECT_EQ(After(VK_RIGHT), "1,0");
    After(VK_RIGHT);
    EXPECT_EQ(Texts(grid), "a x deep y b");
    EXPECT_EQ(After(VK_RIGHT), "2,0");
    EXPECT_EQ(After(VK_RIGHT), "2,1");
    EXPECT_EQ(After(VK_LEFT), "2,0");
    EXPECT_EQ(After(VK_LEFT), "1,0");
    EXPECT_EQ(After(VK_LEFT), "1,0");
    EXPECT_EQ(Texts(grid), "a x y b");
    EXPECT_EQ(After(VK_LEFT), "0,0");
    EXPECT_EQ(After(VK_LEFT), "0,0");
    EXPECT_EQ(Texts(grid), "a b");
}

TEST_F(TreeCursor, PlusMinusAndStar)
{
    MakeTree();
    AfterTyping(L"*");
    EXPECT_EQ(Texts(grid), "a x deep y b");
    AfterTyping(L"-");
    EXPECT_EQ(Texts(grid), "a b");
    AfterTyping(L"+");
    EXPECT_EQ(Texts(grid), "a x deep y b");
    cursor.MoveTo(4, 0);
    EXPECT_EQ(AfterTyping(L"+"), "4,0 edit +");
}

TEST_F(TreeCursor, FoldedAway_GoesToTheParent)
{
    MakeTree();
    grid.GetTreeRow(0).UnFoldAll();
    cursor.MoveTo(2, 1);
    grid.GetTreeRow(0).Fold();
    EXPECT_EQ(State(), "0,1");
}

TEST_F(TreeCursor, AClickOnTheBox_FoldsAndUnfolds)
{
    MakeTree();
    cursor.MoveTo(1, 0);
    const long half = (grid.GetRowHeight() - 3) / 2;
    Click(grid, grid.ToClient(half + 2, half + 2));
    EXPECT_EQ(Texts(grid), "a x y b");
    EXPECT_FALSE(grid.IsEditing());
}

// ---- Changes of the grid

TEST_F(CellCursor, StaysWithItsRowAndColumn)
{
    Make();
    cursor.MoveTo(2, 1);
    grid.InsertRow(0, nullptr);
    EXPECT_EQ(State(), "3,1");
    grid.MoveRow(3, 0);
    EXPECT_EQ(State(), "0,1");
    grid.AppendKey(0);
    grid.Arrange(false);
    EXPECT_EQ(State(), "2,1");
    grid.MoveCol(1, 3);
    EXPECT_EQ(State(), "2,2");
    grid.DelCol(2);
    EXPECT_EQ(State(), "2,1");
    grid.DelRow(2);
    EXPECT_EQ(State(), "2,1");
    grid.SetRowNum(1);
    EXPECT_EQ(cursor.GetCol(), 1);
    grid.Clear();
    EXPECT_LE(cursor.GetRow(), 0);
    grid.SetRowNum(2);
    EXPECT_TRUE(cursor.MoveTo(1, 0));
}

TEST_F(CellCursor, BadPlaces_AreRefused)
{
    Make();
    EXPECT_FALSE(cursor.MoveTo(-1, 0));
    EXPECT_FALSE(cursor.MoveTo(0, 3));
    EXPECT_FALSE(cursor.MoveTo(6, 0));
    EXPECT_TRUE(cursor.SelectRange({-5, -5, 99, 99}));
    EXPECT_EQ(State(), "5,2 [0,0-5,2]");
    TGCellCursor loose;
    EXPECT_FALSE(loose.MoveTo(0, 0));
    EXPECT_FALSE(loose.SelectAllCells());
    EXPECT_EQ(loose.EmptyRanges(), 0);
    EXPECT_FALSE(loose.Edit(false));
    EXPECT_EQ(loose.GetRow(), -1);
}

TEST_F(CellCursor, AfterTheWindowIsGone_IsAModelStill)
{
    Make();
    grid.DestroyWindow();
    EXPECT_TRUE(cursor.MoveTo(1, 1));
    EXPECT_FALSE(cursor.Edit(false));
    EXPECT_EQ(cursor.EmptyRanges(), 1);
}

TEST_F(CellCursor, Detached_LeavesTheGridAsItWas)
{
    Make();
    cursor.Detach();
    AfterClick(1, 1);
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(cursor.GetRow(), -1);
}

// ---- The picture

TEST_F(CellCursor, Frame_StandsOnTheLinesOfTheCell)
{
    Make();
    cursor.MoveTo(1, 1);
    grid.UpdateWindow();
    const COLORREF frame = ::GetSysColor(COLOR_HIGHLIGHT);
    const Snapshot picture(grid);
    const CRect cell = grid.InsideOf(1, 1);
    EXPECT_EQ(picture.At(cell.left - 1, cell.CenterPoint().y), frame);
    EXPECT_EQ(picture.At(cell.right, cell.CenterPoint().y), frame);
    EXPECT_EQ(picture.At(cell.CenterPoint().x, cell.top - 1), frame);
    EXPECT_EQ(picture.At(cell.CenterPoint().x, cell.bottom), frame);
    EXPECT_NE(picture.At(grid.InsideOf(3, 1).left - 1, grid.InsideOf(3, 1).CenterPoint().y), frame);
}

TEST_F(CellCursor, Ranges_AreInvertedOnce_WithoutTheCurrentCell)
{
    Make();
    cursor.SelectRange({0, 0, 2, 2});
    cursor.SelectRange({1, 1, 3, 1}, true);
    grid.UpdateWindow();
    const Snapshot picture(grid);
    const auto corner = [&](long row, long col) {
        const CRect cell = grid.InsideOf(row, col);
        return picture.At(cell.right - 4, cell.bottom - 4);
    };
    EXPECT_EQ(corner(0, 0), black);
    EXPECT_EQ(corner(1, 1), black);
    EXPECT_EQ(corner(3, 1), white);
    EXPECT_EQ(corner(3, 0), white);
}

} // namespace
} // namespace quor::test
