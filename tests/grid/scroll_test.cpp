// Scrolling: moving the view, showing rectangles, scroll bar messages and the wheel.
#include "tests/grid/WindowGrid.h"

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

// 100 rows and 10 columns of 100 pixels, without the new-row line; the area is what 400 x 300 pixels leave
// beside headers and bars.
class GridScrolling : public GridWindowTest
{
protected:
    void SetUp() override
    {
        Create(grid);
        grid.SetNoAppendButton(true);
        Fill(grid, 100, 10);
        vMax = 2000 - grid.Area().Height();
        hMax = 1000 - grid.Area().Width();
    }

    std::string Position() { return std::to_string(grid.HScroll()) + "," + std::to_string(grid.VScroll()); }

    void Scroll(UINT message, UINT code, int position = 0)
    {
        grid.SendMessage(message, MAKEWPARAM(code, position), 0);
    }

    // What the window shows must be what a full repaint draws.
    void ExpectPictureToBeTrue()
    {
        const Snapshot scrolled(grid);
        grid.Invalidate(1);
        const Snapshot repainted(grid);
        int different = 0;
        for (int y = 0; y < scrolled.Height(); ++y)
        {
            for (int x = 0; x < scrolled.Width(); ++x)
                different += scrolled.At(x, y) != repainted.At(x, y) ? 1 : 0;
        }
        EXPECT_EQ(0, different);
    }

    WindowGrid grid;
    int vMax = 0;
    int hMax = 0;
};

TEST_F(GridScrolling, MoveView_ScrollsByTheDistance)
{
    grid.MoveView(30, 45);
    EXPECT_EQ("30,45", Position());
    grid.MoveView(-10, -5);
    EXPECT_EQ("20,40", Position());
}

TEST_F(GridScrolling, MoveView_StopsAtTheEnds)
{
    grid.MoveView(100000, 100000);
    EXPECT_EQ(hMax, grid.HScroll());
    EXPECT_EQ(vMax, grid.VScroll());
    grid.MoveView(-100000, -100000);
    EXPECT_EQ("0,0", Position());
}

TEST_F(GridScrolling, CutRows_ShortenTheScrollRange)
{
    const std::string bars = grid.Bars();
    for (long row = 0; row < 50; ++row)
        grid.SelectRow(row, true);
    ASSERT_TRUE(grid.DoClip());
    EXPECT_EQ(grid.GetRowNum(), 50);
    EXPECT_NE(grid.Bars(), bars);
    grid.MoveView(0, 5000);
    EXPECT_EQ(grid.VScroll(), 1000 - grid.Area().Height());
}

TEST_F(GridScrolling, MoveView_KeepsThePictureTrue)
{
    grid.SelectRow(4, true);
    grid.UpdateWindow();
    grid.MoveView(33, 47);
    ExpectPictureToBeTrue();
    grid.MoveView(-7, 5);
    ExpectPictureToBeTrue();
    grid.MoveView(500, 1000);
    ExpectPictureToBeTrue();
}

TEST_F(GridScrolling, MoveViewDuringAnEdit_ShowsTheNewTextWhereTheCellIsThen)
{
    for (const int step : {7, 45})
    {
        grid.MoveView(0, -2000);
        grid.UpdateWindow();
        grid.BeginEditCell(4, 0);
        CWnd& editor = *grid.GetDlgItem(101);
        editor.SetWindowText(L"XXXXXXXX");
        editor.SendMessage(EM_SETMODIFY, TRUE);
        grid.UpdateWindow();
        grid.MoveView(0, step);
        EXPECT_FALSE(grid.IsEditing());
        EXPECT_EQ(grid.GetCell(4, 0).GetText(), L"XXXXXXXX");
        ExpectPictureToBeTrue();
    }
}

TEST_F(GridScrolling, MoveView_LeavesTheHeadersWhereTheyAre)
{
    grid.MoveView(50, 70);
    EXPECT_EQ("0,0-20,20", Text(PlaceOf(*grid.GetDlgItem(102))));
    EXPECT_EQ("20,0-10000,20", Text(PlaceOf(*grid.GetDlgItem(103))));
    EXPECT_EQ("0,20-20,10000", Text(PlaceOf(*grid.GetDlgItem(104))));
}

TEST_F(GridScrolling, MoveView_WithAHiddenBar_DoesNotClampTheDistance)
{
    WindowGrid small;
    Create(small);
    Fill(small, 3, 1);
    EXPECT_EQ("", small.Bars());
    small.UpdateWindow();
    small.MoveView(10, 0);
    // The pixels moved although there is no bar to keep the position.
    EXPECT_EQ("", small.Bars());
    EXPECT_EQ("20,20", Text(small.UpCorner()));
    EXPECT_TRUE(small.GetUpdateRect(nullptr));
}

TEST_F(GridScrolling, MoveViewByNothing_DoesNothing)
{
    grid.UpdateWindow();
    grid.MoveView(0, 0);
    grid.MoveView(-5, -5);
    EXPECT_FALSE(grid.GetUpdateRect(nullptr));
    EXPECT_EQ("0,0", Position());
}

TEST_F(GridScrolling, ShowRect_ScrollsTheLeastNeeded)
{
    const int height = grid.Area().Height();
    const int width = grid.Area().Width();
    grid.ShowRect(CRect(0, 0, 100, 20));
    EXPECT_EQ("0,0", Position());
    grid.ShowRect(CRect(500, 600, 600, 620));
    EXPECT_EQ(600 - width, grid.HScroll());
    EXPECT_EQ(620 - height, grid.VScroll());
    // In view already.
    grid.ShowRect(CRect(500, 580, 580, 600));
    EXPECT_EQ(600 - width, grid.HScroll());
    EXPECT_EQ(620 - height, grid.VScroll());
    // Above and left of the view.
    grid.ShowRect(CRect(100, 200, 200, 220));
    EXPECT_EQ("100,200", Position());
}

TEST_F(GridScrolling, ShowRect_OfALargerRectangle_ShowsItsBeginning)
{
    grid.ShowRect(CRect(200, 300, 900, 1000));
    EXPECT_EQ("200,300", Position());
}

TEST_F(GridScrolling, SelectRow_ShowsTheRowAndDoesNotScrollSideways)
{
    grid.MoveView(130, 0);
    grid.SelectRow(50, true);
    EXPECT_EQ(130, grid.HScroll());
    EXPECT_EQ(51 * 20 - grid.Area().Height(), grid.VScroll());
    grid.SelectRow(2, true);
    EXPECT_EQ(40, grid.VScroll());
}

TEST_F(GridScrolling, ShowAppendRow_ShowsTheLineBehindTheLastRow)
{
    grid.SetNoAppendButton(false);
    grid.RecalcLayout(1);
    grid.MoveView(70, 0);
    grid.ShowAppendRow();
    EXPECT_EQ(70, grid.HScroll());
    EXPECT_EQ(101 * 20 - grid.Area().Height(), grid.VScroll());
    const long top = grid.UpCorner().y + 100 * 20;
    EXPECT_GE(top, grid.Area().top);
    EXPECT_LE(top + 20, grid.Area().bottom);
}

TEST_F(GridScrolling, VerticalCodes_MoveByRowsAndPages)
{
    const int page = grid.Area().Height();
    Scroll(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(20, grid.VScroll());
    Scroll(WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(20 + page, grid.VScroll());
    Scroll(WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(page, grid.VScroll());
    Scroll(WM_VSCROLL, SB_PAGEUP);
    EXPECT_EQ(0, grid.VScroll());
    Scroll(WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(0, grid.VScroll());
    Scroll(WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(vMax, grid.VScroll());
    Scroll(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(vMax, grid.VScroll());
    Scroll(WM_VSCROLL, SB_TOP);
    EXPECT_EQ("0,0", Position());
}

TEST_F(GridScrolling, HorizontalCodes_MoveByTheDefaultWidthAndPages)
{
    const int page = grid.Area().Width();
    grid.SetDefaultWidth(33);
    Scroll(WM_HSCROLL, SB_LINERIGHT);
    EXPECT_EQ(33, grid.HScroll());
    Scroll(WM_HSCROLL, SB_PAGERIGHT);
    EXPECT_EQ(33 + page, grid.HScroll());
    Scroll(WM_HSCROLL, SB_LINELEFT);
    EXPECT_EQ(page, grid.HScroll());
    Scroll(WM_HSCROLL, SB_PAGELEFT);
    EXPECT_EQ(0, grid.HScroll());
    Scroll(WM_HSCROLL, SB_RIGHT);
    EXPECT_EQ(hMax, grid.HScroll());
    Scroll(WM_HSCROLL, SB_LEFT);
    EXPECT_EQ("0,0", Position());
}

TEST_F(GridScrolling, ThumbPosition_NeverMovesTheView)
{
    grid.MoveView(40, 60);
    Scroll(WM_VSCROLL, SB_THUMBPOSITION, 500);
    Scroll(WM_HSCROLL, SB_THUMBPOSITION, 500);
    EXPECT_EQ("40,60", Position());
}

TEST_F(GridScrolling, ThumbTrack_IgnoresThePositionOfTheMessage)
{
    grid.MoveView(40, 60);
    Scroll(WM_VSCROLL, SB_THUMBTRACK, 500);
    Scroll(WM_HSCROLL, SB_THUMBTRACK, 500);
    EXPECT_EQ("40,60", Position());
}

TEST_F(GridScrolling, ScrollMessages_TakeTheFocus)
{
    host.SetFocus();
    Scroll(WM_VSCROLL, SB_ENDSCROLL);
    EXPECT_EQ(grid.m_hWnd, ::GetFocus());
    host.SetFocus();
    Scroll(WM_HSCROLL, SB_LINERIGHT);
    EXPECT_EQ(grid.m_hWnd, ::GetFocus());
}

class WheelGrid : public WindowGrid
{
public:
    std::vector<std::string> defaults;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_MOUSEWHEEL)
            return WindowGrid::DefWindowProc(message, wParam, lParam);
        defaults.push_back("wheel " + std::to_string(GET_WHEEL_DELTA_WPARAM(wParam)));
        return 42;
    }
};

TEST_F(GridScrolling, Wheel_WithAVerticalBar_IsATrackOfTheBarsOwnPosition)
{
    WheelGrid wheel;
    Create(wheel);
    Fill(wheel, 100, 1);
    wheel.MoveView(0, 100);
    host.SetFocus();
    EXPECT_EQ(42, wheel.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0));
    EXPECT_EQ(100, wheel.VScroll());
    // Once through the scroll handling, which takes the focus, and once for the wheel itself.
    EXPECT_EQ(2u, wheel.defaults.size());
    EXPECT_EQ("wheel -120", wheel.defaults.back());
    EXPECT_EQ(wheel.m_hWnd, ::GetFocus());
}

TEST_F(GridScrolling, Wheel_WithoutAVerticalBar_GoesToTheDefaultOnly)
{
    WheelGrid wheel;
    Create(wheel);
    Fill(wheel, 2, 1);
    host.SetFocus();
    EXPECT_EQ(42, wheel.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0));
    EXPECT_EQ(1u, wheel.defaults.size());
    EXPECT_EQ(host.m_hWnd, ::GetFocus());
}

// Writes down which scroll bar messages are left to the window below, which a host may have made this one of.
class PassingGrid : public WindowGrid
{
public:
    std::vector<UINT> passed;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_HSCROLL || message == WM_VSCROLL)
            passed.push_back(message);
        return WindowGrid::DefWindowProc(message, wParam, lParam);
    }
};

TEST_F(GridScrolling, MessagesOfTheBars_GoToTheDefault)
{
    PassingGrid passing;
    Create(passing);
    Fill(passing, 100, 10);
    passing.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    passing.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    EXPECT_EQ(passing.passed, (std::vector<UINT>{WM_VSCROLL, WM_HSCROLL}));
}

} // namespace
