// The pictures of the scroll bars: they may lag behind while the view scrolls, not when it has stopped.
#include "tests/grid/WindowGrid.h"
#include "tests/support/Input.h"

#include <string>
#include <tuple>
#include <utility>

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

class BarPictures : public GridWindowTest
{
protected:
    void SetUp() override
    {
        Create(grid);
        grid.SetNoAppendButton(true);
        Fill(grid, 100, 10);
        PumpPending();
    }

    // The pixels beside and below the client area, where the bars are.
    std::vector<COLORREF> Picture()
    {
        CRect client;
        ::GetClientRect(grid.m_hWnd, &client);
        ::MapWindowPoints(grid.m_hWnd, host.m_hWnd, reinterpret_cast<POINT*>(&client), 2);
        const Snapshot snapshot(host);
        std::vector<COLORREF> pixels;
        for (int y = client.top; y < client.bottom; ++y)
            for (int x = client.right; x < client.right + ::GetSystemMetrics(SM_CXVSCROLL); ++x)
                pixels.push_back(snapshot.At(x, y));
        for (int y = client.bottom; y < client.bottom + ::GetSystemMetrics(SM_CYHSCROLL); ++y)
            for (int x = client.left; x < client.right; ++x)
                pixels.push_back(snapshot.At(x, y));
        return pixels;
    }

    std::vector<COLORREF> PictureDrawnAnew()
    {
        ::RedrawWindow(grid.m_hWnd, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
        return Picture();
    }

    // Scrolls by single steps, each painted, without handling messages in between.
    void Step(UINT message, UINT code, int times)
    {
        for (int i = 0; i < times; ++i)
        {
            grid.SendMessage(message, code, 0);
            grid.UpdateWindow();
        }
    }

    WindowGrid grid;
};

TEST_F(BarPictures, AfterStepsInRapidSuccessionAreThoseOfTheLastStep)
{
    const std::vector<COLORREF> atTheStart = PictureDrawnAnew();
    Step(WM_VSCROLL, SB_LINEDOWN, 60);
    Step(WM_HSCROLL, SB_LINERIGHT, 5);
    const std::vector<COLORREF> atTheEnd = PictureDrawnAnew();
    EXPECT_NE(atTheStart, atTheEnd);
    Step(WM_HSCROLL, SB_LINELEFT, 5);
    Step(WM_VSCROLL, SB_LINEUP, 60);
    EXPECT_TRUE(PumpUntil([&] { return Picture() == atTheStart; }));
    Step(WM_VSCROLL, SB_LINEDOWN, 60);
    Step(WM_HSCROLL, SB_LINERIGHT, 5);
    EXPECT_TRUE(PumpUntil([&] { return Picture() == atTheEnd; }));
}

TEST_F(BarPictures, AreTrueAtOnceWhenTheBarSaysThatScrollingHasEnded)
{
    const std::vector<COLORREF> atTheStart = PictureDrawnAnew();
    Step(WM_VSCROLL, SB_LINEDOWN, 60);
    Step(WM_VSCROLL, SB_LINEUP, 60);
    Step(WM_VSCROLL, SB_ENDSCROLL, 1);
    EXPECT_EQ(atTheStart, Picture());
}

TEST_F(BarPictures, AreTrueAtOnceWhenTheLastOnesAreOld)
{
    const std::vector<COLORREF> atTheStart = PictureDrawnAnew();
    Step(WM_VSCROLL, SB_PAGEDOWN, 1);
    const DWORD drawn = ::GetTickCount();
    // Wakes the pump, which waits for messages.
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 60, nullptr);
    EXPECT_TRUE(PumpUntil([&] { return ::GetTickCount() - drawn > 50; }));
    ::KillTimer(nullptr, timer);
    grid.MoveView(0, -100000);
    EXPECT_EQ(atTheStart, Picture());
}

// The window may be made a second time: what waited for the first one is forgotten.
TEST_F(BarPictures, DoNotWaitForTheTimerOfAWindowThatIsGone)
{
    Step(WM_VSCROLL, SB_LINEDOWN, 10);
    grid.DestroyWindow();
    Create(grid);
    const std::vector<COLORREF> atTheStart = PictureDrawnAnew();
    Step(WM_VSCROLL, SB_LINEDOWN, 10);
    Step(WM_VSCROLL, SB_LINEUP, 10);
    EXPECT_TRUE(PumpUntil([&] { return Picture() == atTheStart; }));
}

// Knows which of its bars it was told to draw.
class NotingGrid : public WindowGrid
{
public:
    // "h", "v" or "hv": the bars that were drawn since the last call.
    std::string TakeBars()
    {
        return std::string(std::exchange(horizontal, false) ? "h" : "") +
               (std::exchange(vertical, false) ? "v" : "");
    }
    bool HasDrawnBars() const { return horizontal || vertical; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NCPAINT)
        {
            CRect area;
            ::GetClientRect(m_hWnd, &area);
            const CPoint middle = area.CenterPoint();
            horizontal = horizontal || IsIn(wParam, CPoint(middle.x, area.bottom + 3));
            vertical = vertical || IsIn(wParam, CPoint(area.right + 3, middle.y));
        }
        return WindowGrid::WindowProc(message, wParam, lParam);
    }

private:
    bool IsIn(WPARAM region, CPoint point)
    {
        ClientToScreen(&point);
        return region == 1 || ::PtInRegion(reinterpret_cast<HRGN>(region), point.x, point.y);
    }

    bool horizontal = false;
    bool vertical = false;
};

using StandingBars = GridWindowTest;

TEST_F(StandingBars, AreNotDrawnWhileTheOtherMoves)
{
    NotingGrid grid;
    Create(grid);
    Fill(grid, 100, 10);
    grid.UpdateWindow();
    PumpPending();
    grid.TakeBars();
    for (const auto& [message, code, drawn] :
         {std::tuple<UINT, UINT, std::string>{WM_VSCROLL, SB_LINEDOWN, "v"}, {WM_HSCROLL, SB_LINERIGHT, "h"}})
    {
        grid.SendMessage(message, code);
        grid.UpdateWindow();
        EXPECT_TRUE(PumpUntil([&] { return grid.HasDrawnBars(); }));
        EXPECT_EQ(grid.TakeBars(), drawn);
    }
}

// Moves the mouse and releases it while the bar's own loop runs, which ends with that.
POINT thumbGoal;

void CALLBACK DragThumb(HWND, UINT, UINT_PTR timer, DWORD)
{
    if (::GetCapture() == nullptr)
        return;
    ::KillTimer(nullptr, timer);
    ::SetCursorPos(thumbGoal.x, thumbGoal.y);
    INPUT inputs[2] = {};
    inputs[0].type = INPUT_MOUSE;
    inputs[0].mi.dwFlags = MOUSEEVENTF_MOVE;
    inputs[0].mi.dy = 1;
    inputs[1].type = INPUT_MOUSE;
    inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    ::SendInput(2, inputs, sizeof(INPUT));
}

TEST_F(BarPictures, AreTrueAfterTheThumbWasDragged)
{
    ASSERT_TRUE(Activate(host));
    CRect client;
    ::GetClientRect(grid.m_hWnd, &client);
    const int middle = client.right + ::GetSystemMetrics(SM_CXVSCROLL) / 2;
    const POINT thumb = {middle, ::GetSystemMetrics(SM_CYVSCROLL) + 4};
    thumbGoal = {middle, thumb.y + 80};
    ::ClientToScreen(grid.m_hWnd, &thumbGoal);
    ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, DragThumb);
    PressMouse(grid.m_hWnd, thumb);
    EXPECT_TRUE(PumpUntil([&] { return grid.VScroll() > 0 && ::GetCapture() == nullptr; }));
    PumpPending();
    const std::vector<COLORREF> last = Picture();
    EXPECT_EQ(PictureDrawnAnew(), last);
}

} // namespace
