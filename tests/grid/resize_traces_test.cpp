// What a resize leaves on the screen: nothing of the bars and cells that stood there before.
#include "tests/grid/WindowGrid.h"

#include <algorithm>
#include <tuple>

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

struct Resize
{
    const char* name;
    CSize from;
    CSize to;
    const char* barsBefore;
    const char* barsAfter;
};

// With three columns of 100 pixels and eight rows the cells are 300 pixels wide and, with the new-row line,
// 180 high; the headers take 20 pixels of each direction.
const Resize resizes[] = {
    {"both to none", CSize(200, 130), CSize(420, 320), "HV", ""},
    {"both to horizontal", CSize(200, 130), CSize(200, 320), "HV", "H"},
    {"both to vertical", CSize(200, 130), CSize(420, 130), "HV", "V"},
    {"horizontal to none", CSize(200, 320), CSize(420, 320), "H", ""},
    {"vertical to none", CSize(420, 130), CSize(420, 320), "V", ""},
    {"one bar to the other", CSize(200, 320), CSize(420, 130), "H", "V"},
    {"both, larger", CSize(200, 130), CSize(230, 160), "HV", "HV"},
    // The last pixel makes both bars unnecessary at once.
    {"both to none by a pixel", CSize(319, 199), CSize(320, 200), "HV", ""},
};

class ResizeTraces : public GridWindowTest
{
protected:
    void Make(CSize size, bool scrolled = false)
    {
        Create(grid, size.cx, size.cy);
        Fill(grid, 8, 3);
        grid.UpdateWindow();
        if (scrolled)
            grid.MoveView(1000, 1000);
        PumpPending();
        grid.UpdateWindow();
    }

    void Place(CSize size) { grid.MoveWindow(CRect(CPoint(10, 10), size)); }

    std::string ShownBars()
    {
        const DWORD style = grid.CWnd::GetStyle();
        return std::string((style & WS_HSCROLL) != 0 ? "H" : "") + ((style & WS_VSCROLL) != 0 ? "V" : "");
    }

    testing::AssertionResult IsWhiteOutsideTheCells()
    {
        const Snapshot picture(grid);
        const CRect area = grid.Area();
        const CPoint end = grid.ToClient(grid.GetRight() + 1, grid.GetBottom() + 1);
        const CRect right((std::max)(end.x, area.left), area.top, area.right, area.bottom);
        const CRect below(area.left, (std::max)(end.y, area.top), area.right, area.bottom);
        for (const CRect& side : {right, below})
            if (!side.IsRectEmpty() && !picture.IsAll(side, white))
                return testing::AssertionFailure() << "not all white: " << Text(side);
        return testing::AssertionSuccess();
    }

    // Whether the picture is what painting all of it anew gives.
    testing::AssertionResult ShowsNoTrace()
    {
        const Snapshot before(grid);
        grid.Invalidate(1);
        const Snapshot fresh(grid);
        for (int y = 0; y < before.Height(); ++y)
            for (int x = 0; x < before.Width(); ++x)
                if (before.At(x, y) != fresh.At(x, y))
                    return testing::AssertionFailure() << "trace at " << x << "," << y;
        return testing::AssertionSuccess();
    }

    WindowGrid grid;
};

class ResizeTracesOf : public ResizeTraces, public testing::WithParamInterface<std::tuple<Resize, bool>>
{
};

TEST_P(ResizeTracesOf, Window_LeavesNothingOutsideTheCells)
{
    const auto& [resize, scrolled] = GetParam();
    SCOPED_TRACE(std::string(resize.name) + (scrolled ? ", scrolled to the end" : ""));
    Make(resize.from, scrolled);
    EXPECT_EQ(resize.barsBefore, ShownBars());
    Place(resize.to);
    PumpPending();
    EXPECT_EQ(resize.barsAfter, ShownBars());
    EXPECT_TRUE(IsWhiteOutsideTheCells());
    EXPECT_TRUE(ShowsNoTrace());
}

INSTANTIATE_TEST_SUITE_P(Combinations, ResizeTracesOf,
                         testing::Combine(testing::ValuesIn(resizes), testing::Bool()));

TEST_F(ResizeTraces, MaximisedWindow_ShowsNothingOfItsBars)
{
    for (const CSize size : {CSize(200, 130), CSize(200, 320), CSize(420, 130)})
    {
        WindowGrid other;
        Create(other, size.cx, size.cy);
        Fill(other, 8, 3);
        PumpPending();
        other.UpdateWindow();
        other.ShowWindow(SW_MAXIMIZE);
        PumpPending();
        EXPECT_EQ("", other.Bars());
        const Snapshot picture(other);
        const CRect area = other.Area();
        const CPoint end = other.ToClient(301, 181);
        EXPECT_GT(area.Width(), 700);
        EXPECT_TRUE(picture.IsAll(CRect(end.x, area.top, area.right, area.bottom), white)) << size.cx;
        EXPECT_TRUE(picture.IsAll(CRect(area.left, end.y, area.right, area.bottom), white)) << size.cx;
    }
}

TEST_F(ResizeTraces, WindowResizedInsideAnUpdate_LeavesNothingEither)
{
    Make(CSize(200, 130));
    {
        const TGGridUpdate update(grid);
        Place(CSize(420, 320));
    }
    PumpPending();
    EXPECT_EQ("", ShownBars());
    EXPECT_TRUE(IsWhiteOutsideTheCells());
    EXPECT_TRUE(ShowsNoTrace());
}

TEST_F(ResizeTraces, BothBarsShown_NothingIsErased)
{
    Make(CSize(200, 130));
    CClientDC context(&grid);
    const CPoint inside = grid.Area().CenterPoint();
    context.SetPixel(inside.x, inside.y, RGB(1, 2, 3));
    EXPECT_TRUE(grid.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(context.m_hDC)));
    EXPECT_EQ(RGB(1, 2, 3), context.GetPixel(inside.x, inside.y));
}

} // namespace
