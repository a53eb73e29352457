// Scrolling with the real mouse.
#include "tests/grid/WindowGrid.h"

#include "tests/support/Input.h"

#include <functional>

using namespace quor::test;

namespace
{

// Does steps while a scroll bar runs its own message loop: each step is asked again and again until it is
// done.
class StepsInALoop
{
public:
    explicit StepsInALoop(std::vector<std::function<bool()>> wanted) : steps(std::move(wanted))
    {
        running = this;
        timer =
            ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, [](HWND, UINT, UINT_PTR, DWORD) { running->Tick(); });
    }
    ~StepsInALoop()
    {
        ::KillTimer(nullptr, timer);
        running = nullptr;
    }
    StepsInALoop(const StepsInALoop&) = delete;
    StepsInALoop& operator=(const StepsInALoop&) = delete;

    bool IsDone() const { return next == steps.size(); }

private:
    void Tick()
    {
        // What must not go on for ever does not: the mouse button is let go.
        if (++ticks > 1000 && !IsDone())
            next = steps.size() - 1;
        if (!IsDone() && steps[next]())
            ++next;
    }

    std::vector<std::function<bool()>> steps;
    size_t next = 0;
    int ticks = 0;
    UINT_PTR timer = 0;
    static inline StepsInALoop* running = nullptr;
};

void SendMouseInput(DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    ::SendInput(1, &input, sizeof input);
}

class GridScrollInput : public GridWindowTest
{
};

TEST_F(GridScrollInput, DraggedThumb_MovesTheViewWhileItIsHeld)
{
    WindowGrid grid;
    Create(grid);
    Fill(grid, 200, 2);
    ASSERT_TRUE(Activate(host));
    SCROLLBARINFO bar = {};
    bar.cbSize = sizeof bar;
    ASSERT_TRUE(::GetScrollBarInfo(grid, OBJID_VSCROLL, &bar));
    const CPoint thumb((bar.rcScrollBar.left + bar.rcScrollBar.right) / 2,
                       bar.rcScrollBar.top + (bar.xyThumbTop + bar.xyThumbBottom) / 2);

    int whileHeld = 0;
    StepsInALoop drag({
        [&] { return ::GetCapture() == grid.m_hWnd; },
        [&] { return ::SetCursorPos(thumb.x, thumb.y + 40) != FALSE; },
        [&] {
            whileHeld = grid.VScroll();
            return whileHeld > 0;
        },
        [] {
            SendMouseInput(MOUSEEVENTF_LEFTUP);
            return true;
        },
    });
    ::SetCursorPos(thumb.x, thumb.y);
    SendMouseInput(MOUSEEVENTF_LEFTDOWN);
    EXPECT_TRUE(PumpUntil([&] { return drag.IsDone() && ::GetCapture() == nullptr; }));
    EXPECT_GT(whileHeld, 100);
    EXPECT_NEAR(whileHeld, grid.VScroll(), 200);
    EXPECT_EQ(grid.m_hWnd, ::GetFocus());
    // The rows shown are those of the position.
    EXPECT_EQ(20 - grid.VScroll(), grid.UpCorner().y);
}

TEST_F(GridScrollInput, ArrowOfTheBar_MovesOneRow)
{
    WindowGrid grid;
    Create(grid);
    Fill(grid, 200, 2);
    ASSERT_TRUE(Activate(host));
    SCROLLBARINFO bar = {};
    bar.cbSize = sizeof bar;
    ASSERT_TRUE(::GetScrollBarInfo(grid, OBJID_VSCROLL, &bar));
    StepsInALoop press({
        [&] { return grid.VScroll() > 0; },
        [] {
            SendMouseInput(MOUSEEVENTF_LEFTUP);
            return true;
        },
    });
    ::SetCursorPos((bar.rcScrollBar.left + bar.rcScrollBar.right) / 2,
                   bar.rcScrollBar.bottom - bar.dxyLineButton / 2);
    SendMouseInput(MOUSEEVENTF_LEFTDOWN);
    EXPECT_TRUE(PumpUntil([&] { return press.IsDone() && ::GetCapture() == nullptr; }));
    EXPECT_GT(grid.VScroll(), 0);
    EXPECT_EQ(0, grid.VScroll() % rowHeight);
}

TEST_F(GridScrollInput, Wheel_LeavesTheView)
{
    WindowGrid grid;
    Create(grid);
    Fill(grid, 200, 2);
    ASSERT_TRUE(Activate(host));
    grid.SetFocus();
    TurnWheel(grid, CPoint(100, 100), -1);
    EXPECT_EQ(0, grid.VScroll());
}

TEST_F(GridScrollInput, ClickIntoACell_OpensItsEditor)
{
    WindowGrid grid;
    Create(grid);
    Fill(grid, 200, 2);
    ASSERT_TRUE(Activate(host));
    grid.MoveView(0, 410);
    Click(grid, grid.ToClient(150, 25 * rowHeight + 10));
    long row = -1;
    long col = -1;
    EXPECT_TRUE(grid.GetCurCell(row, col));
    EXPECT_EQ(25, row);
    EXPECT_EQ(1, col);
    grid.CancelEditCell();
}

} // namespace
