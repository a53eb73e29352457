// Clicks on the row header, the column header and the corner.
#include "tests/grid/HeaderFixture.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class HeaderClicks : public HeaderFixture
{
protected:
    void SetUp() override
    {
        Make(grid, "abcdefgh");
        grid.TakeLog();
    }

    CommandGrid grid;
};

// ---- Row header

TEST_F(HeaderClicks, Row_BecomesTheOnlySelectedOne)
{
    grid.SelectRows({1, 5});
    ClickRow(grid, 3);
    EXPECT_EQ(grid.Rows(), "a b c d* e f g h");
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(grid.TakeText(), "");
}

TEST_F(HeaderClicks, Row_HoldsFocusAndCaptureWhilePressed)
{
    Press(RowHeader(grid), RowBox(grid, 3));
    EXPECT_EQ(::GetFocus(), RowHeader(grid).m_hWnd);
    EXPECT_EQ(::GetCapture(), RowHeader(grid).m_hWnd);
    Release(RowHeader(grid), RowBox(grid, 3));
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

TEST_F(HeaderClicks, RowWithControl_IsAddedAndTakenOut)
{
    grid.SelectRows({1});
    const HeldKeys control({VK_CONTROL});
    ClickRow(grid, 4);
    ClickRow(grid, 6);
    EXPECT_EQ(grid.Rows(), "a b* c d e* f g* h");
    ClickRow(grid, 4);
    EXPECT_EQ(grid.Rows(), "a b* c d e f g* h");
    EXPECT_EQ(grid.TakeText(), "");
}

TEST_F(HeaderClicks, RowWithShift_ExtendsTheRunBothWays)
{
    grid.SelectRows({3});
    const HeldKeys shift({VK_SHIFT});
    ClickRow(grid, 5);
    EXPECT_EQ(grid.Rows(), "a b c d* e* f* g h");
    ClickRow(grid, 1);
    EXPECT_EQ(grid.Rows(), "a b* c* d* e* f* g h");
}

TEST_F(HeaderClicks, RowWithShift_DoesNothingForASelectionWithGaps)
{
    grid.SelectRows({1, 3});
    const HeldKeys shift({VK_SHIFT});
    ClickRow(grid, 5);
    EXPECT_EQ(grid.Rows(), "a b* c d* e f g h");
}

TEST_F(HeaderClicks, RowWithShift_DoesNothingWithoutASelection)
{
    const HeldKeys shift({VK_SHIFT});
    ClickRow(grid, 5);
    EXPECT_EQ(grid.Rows(), "a b c d e f g h");
}

TEST_F(HeaderClicks, SingleSelection_IgnoresControlAndShift)
{
    grid.SetSingleSelRow(true);
    grid.SelectRows({1});
    const HeldKeys both({VK_CONTROL, VK_SHIFT});
    ClickRow(grid, 4);
    EXPECT_EQ(grid.Rows(), "a b c d e* f g h");
    ClickRow(grid, 4);
    EXPECT_EQ(grid.Rows(), "a b c d e* f g h");
}

TEST_F(HeaderClicks, BelowTheRows_Unselects)
{
    grid.SelectRows({1, 5});
    ClickRow(grid, 10);
    EXPECT_FALSE(grid.IsRowSelected());
    grid.SelectRows({1, 5});
    grid.SetNoAppendButton(true);
    ClickRow(grid, 8);
    EXPECT_FALSE(grid.IsRowSelected());
    EXPECT_EQ(grid.GetRowNum(), 8);
}

TEST_F(HeaderClicks, NewRowBox_AppendsARowAndSelectsNothing)
{
    grid.SelectRows({1});
    Press(RowHeader(grid), RowBox(grid, 8));
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(grid.TakeText(), "OnBeforeInsertRow 8 | OnInsertRow 8 | OnDataChanged");
    EXPECT_EQ(grid.Rows(), "a b c d e f g h ");
    Release(RowHeader(grid), RowBox(grid, 8));
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

TEST_F(HeaderClicks, NewRowBox_CommitsTheEditOfTheNewRowInstead)
{
    grid.BeginEditCell(8, 0);
    CWnd& editor = *grid.GetDlgItem(101);
    editor.SetWindowText(L"x");
    editor.SendMessage(EM_SETMODIFY, TRUE);
    grid.TakeLog();
    Press(RowHeader(grid), RowBox(grid, 8));
    EXPECT_EQ(grid.Rows(), "a b c d e f g h x");
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(HeaderClicks, NewRowBox_WithAnEditOfAnotherCell_CommitsItAndAppends)
{
    grid.BeginEditCell(2, 0);
    CWnd& editor = *grid.GetDlgItem(101);
    editor.SetWindowText(L"x");
    editor.SendMessage(EM_SETMODIFY, TRUE);
    Press(RowHeader(grid), RowBox(grid, 8));
    EXPECT_EQ(grid.Rows(), "a b x d e f g h ");
}

TEST_F(HeaderClicks, NewRowBox_ScrollsToTheNewRowLine)
{
    CommandGrid tall;
    Make(tall, std::string(30, 'r'), 2, 300, 120);
    tall.MoveView(0, 10000);
    Press(RowHeader(tall), RowBox(tall, 30));
    EXPECT_EQ(tall.GetRowNum(), 31);
    EXPECT_EQ(tall.VScroll(), 32 * 20 - 100);
}

TEST_F(HeaderClicks, NewRowBoxDuringItsEdit_ScrollsToTheNextNewRowLine)
{
    CommandGrid tall;
    Make(tall, std::string(30, 'r'), 2, 300, 120);
    tall.BeginEditCell(30, 0);
    CWnd& editor = *tall.GetDlgItem(101);
    editor.SetWindowText(L"x");
    editor.SendMessage(EM_SETMODIFY, TRUE);
    const int before = tall.VScroll();
    Press(RowHeader(tall), RowBox(tall, 30));
    EXPECT_EQ(tall.GetRowNum(), 31);
    EXPECT_EQ(tall.VScroll(), before + 20);
}

TEST_F(HeaderClicks, DoubleClickOnARow_ReachesTheHook)
{
    SendMouse(RowHeader(grid), WM_LBUTTONDBLCLK, RowBox(grid, 2), MK_LBUTTON);
    EXPECT_EQ(grid.TakeText(), "OnDblClick 2");
    SendMouse(RowHeader(grid), WM_LBUTTONDBLCLK, RowBox(grid, 8), MK_LBUTTON);
    EXPECT_EQ(grid.TakeText(), "");
}

TEST_F(HeaderClicks, RightClickOnARow_SelectsItUnlessItIsSelected)
{
    grid.SelectRows({1, 5});
    SendMouse(RowHeader(grid), WM_RBUTTONUP, RowBox(grid, 5));
    EXPECT_EQ(grid.Rows(), "a b* c d e f* g h");
    SendMouse(RowHeader(grid), WM_RBUTTONUP, RowBox(grid, 2));
    EXPECT_EQ(grid.Rows(), "a b c* d e f g h");
    EXPECT_EQ(grid.TakeText(), "OnRClickRow 5 | OnRClickRow 2");
    SendMouse(RowHeader(grid), WM_RBUTTONUP, RowBox(grid, 8));
    EXPECT_EQ(grid.TakeText(), "");
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

TEST_F(HeaderClicks, RightClick_SurvivesAHookThatDeletesTheRow)
{
    grid.actions["OnCurChanged"] = [&] {
        grid.actions.clear();
        grid.SetRowNum(1);
    };
    SendMouse(RowHeader(grid), WM_RBUTTONUP, RowBox(grid, 5));
    EXPECT_EQ(grid.TakeText(), "");
    EXPECT_EQ(grid.GetRowNum(), 1);
}

TEST_F(HeaderClicks, ClosingTheWindowInAHook_EndsEveryClick)
{
    using Act = std::function<void(CommandGrid&)>;
    const Act acts[] = {
        [](CommandGrid& g) { Press(RowHeader(g), CPoint(10, 30)); },
        [](CommandGrid& g) { Press(ColHeader(g), CPoint(25, 10)); },
        [](CommandGrid& g) { Press(ColHeader(g), CPoint(49, 10)); },
        [](CommandGrid& g) { SendMouse(RowHeader(g), WM_RBUTTONUP, CPoint(10, 30)); },
        [](CommandGrid& g) { SendMouse(ColHeader(g), WM_RBUTTONUP, CPoint(25, 10)); },
        [](CommandGrid& g) { SendMouse(Quad(g), WM_LBUTTONDBLCLK, CPoint(5, 5)); },
        [](CommandGrid& g) { Press(RowHeader(g), CPoint(10, 3 * 20 + 10)); },
    };
    for (const Act& act : acts)
        for (const bool edited : {false, true})
        {
            CommandGrid closing;
            Make(closing, "abc");
            if (edited)
            {
                closing.BeginEditCell(0, 0);
                closing.GetDlgItem(101)->SetWindowText(L"x");
                closing.GetDlgItem(101)->SendMessage(EM_SETMODIFY, TRUE);
            }
            const auto close = [&] {
                closing.actions.clear();
                closing.DestroyWindow();
            };
            closing.actions = {
                {"OnCurChanged", close}, {"OnDataChanged", close}, {"OnBeforeInsertRow", close}};
            act(closing);
            // A column's edge alone runs no hook.
            if (&act == &acts[2] && !edited)
                closing.DestroyWindow();
            EXPECT_EQ(::GetCapture(), nullptr);
            EXPECT_EQ(closing.m_hWnd, nullptr);
        }
}

// ---- Column header

TEST_F(HeaderClicks, Column_BecomesTheOnlySelectedOne)
{
    grid.SelectRows({1});
    ClickCol(grid, 2);
    EXPECT_EQ(grid.Cols(), "A B C* D E F");
    EXPECT_FALSE(grid.IsRowSelected());
    ClickCol(grid, 4);
    EXPECT_EQ(grid.Cols(), "A B C D E* F");
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(HeaderClicks, ColumnWithControl_IsAddedAndTakenOut)
{
    const HeldKeys control({VK_CONTROL});
    ClickCol(grid, 2);
    ClickCol(grid, 4);
    EXPECT_EQ(grid.Cols(), "A B C* D E* F");
    ClickCol(grid, 2);
    EXPECT_EQ(grid.Cols(), "A B C D E* F");
}

TEST_F(HeaderClicks, ColumnWithShift_ExtendsFromTheOneSelectedColumn)
{
    grid.SelectCols({2});
    const HeldKeys shift({VK_SHIFT});
    ClickCol(grid, 4);
    EXPECT_EQ(grid.Cols(), "A B C* D* E* F");
    // With more than one selected column nothing happens.
    ClickCol(grid, 0);
    EXPECT_EQ(grid.Cols(), "A B C* D* E* F");
    grid.SelectCols({2});
    ClickCol(grid, 0);
    EXPECT_EQ(grid.Cols(), "A* B* C* D E F");
}

TEST_F(HeaderClicks, BehindTheColumns_LeavesTheSelection)
{
    grid.SelectCols({2});
    ClickCol(grid, 6);
    EXPECT_EQ(grid.Cols(), "A B C* D E F");
}

TEST_F(HeaderClicks, RightClickOnAColumn_SelectsItUnlessItIsSelected)
{
    grid.SelectCols({1, 3});
    SendMouse(ColHeader(grid), WM_RBUTTONUP, ColBox(grid, 3));
    EXPECT_EQ(grid.Cols(), "A B* C D* E F");
    SendMouse(ColHeader(grid), WM_RBUTTONUP, ColBox(grid, 0));
    EXPECT_EQ(grid.Cols(), "A* B C D E F");
    SendMouse(ColHeader(grid), WM_RBUTTONUP, ColBox(grid, 6));
    EXPECT_EQ(grid.TakeText(), "OnRClickCol 3 | OnRClickCol 0");
}

TEST_F(HeaderClicks, DoubleClickOnAColumn_DoesNothing)
{
    SendMouse(ColHeader(grid), WM_LBUTTONDBLCLK, ColBox(grid, 2), MK_LBUTTON);
    EXPECT_FALSE(grid.IsColSelected());
    EXPECT_EQ(grid.TakeText(), "");
}

TEST_F(HeaderClicks, CurrentRowThatAnUpdateSets_IsMarkedAtItsEnd)
{
    {
        const TGGridUpdate update(grid);
        grid.SetCurRowIndex(3);
    }
    EXPECT_TRUE(ShowsNoTrace(grid));
}

// ---- Corner

TEST_F(HeaderClicks, Corner_TakesTheFocusAndSelectsOnlyOnADoubleClick)
{
    host.SetFocus();
    Press(Quad(grid), CPoint(5, 5));
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
    EXPECT_FALSE(grid.IsRowSelected());
    SendMouse(Quad(grid), WM_LBUTTONDBLCLK, CPoint(5, 5), MK_LBUTTON);
    EXPECT_EQ(grid.GetRowSelNum(), 8);
    EXPECT_TRUE(ShowsNoTrace(grid));
}

TEST_F(HeaderClicks, Corner_ShowsTheFocusOfTheGridAndItsEditors)
{
    const auto colour = [&] { return Snapshot(Quad(grid)).At(10, 10); };
    const COLORREF active = ::GetSysColor(COLOR_ACTIVECAPTION);
    const COLORREF passive = ::GetSysColor(COLOR_BTNFACE);
    ASSERT_NE(active, passive);
    host.SetFocus();
    EXPECT_EQ(colour(), passive);
    grid.SetFocus();
    EXPECT_EQ(colour(), active);
    grid.BeginEditCell(0, 0);
    ASSERT_NE(::GetFocus(), grid.m_hWnd);
    EXPECT_EQ(colour(), active);
    grid.EndEditCell();
    host.SetFocus();
    EXPECT_EQ(colour(), passive);
}

TEST_F(HeaderClicks, RightClickOnTheCorner_ReachesTheHook)
{
    SendMouse(Quad(grid), WM_RBUTTONUP, CPoint(5, 5));
    EXPECT_EQ(grid.TakeText(), "OnRClickQuad");
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

} // namespace
} // namespace quor::test
