// Tests of the message pump for tests.
#include "tests/support/HostWindow.h"
#include "tests/support/Pump.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

class EatingWindow : public HostWindow
{
public:
    BOOL PreTranslateMessage(MSG* message) override
    {
        ++seen;
        return message->message == WM_USER + 1 || HostWindow::PreTranslateMessage(message);
    }

    int seen = 0;
};

TEST(Pump, PumpUntil_TrueCondition_ReturnsAtOnce)
{
    EXPECT_TRUE(PumpUntil([] { return true; }, 0));
}

TEST(Pump, PumpUntil_ConditionNeverTrue_GivesUpAtTheDeadline)
{
    const ULONGLONG start = GetTickCount64();
    EXPECT_FALSE(PumpUntil([] { return false; }, 100));
    EXPECT_GE(GetTickCount64() - start, 90u);
}

TEST(Pump, PumpUntil_ConditionSetByMessage_ReturnsTrue)
{
    HostWindow host;
    host.PostMessage(WM_USER + 5, 1, 2);
    std::vector<std::string> log;
    EXPECT_TRUE(PumpUntil([&] {
        log = host.TakeLog();
        return !log.empty();
    }));
    EXPECT_EQ(log, std::vector<std::string>{"user+5 w=1 l=2"});
}

TEST(Pump, PumpUntil_ConditionSetByTimer_Waits)
{
    static bool fired;
    fired = false;
    const UINT_PTR timer = SetTimer(nullptr, 0, 30, [](HWND, UINT, UINT_PTR id, DWORD) {
        fired = true;
        KillTimer(nullptr, id);
    });
    ASSERT_NE(timer, 0u);
    EXPECT_TRUE(PumpUntil([] { return fired; }));
}

TEST(Pump, PumpPending_PostedMessage_PassesPreTranslation)
{
    EatingWindow host;
    host.seen = 0;
    host.PostMessage(WM_USER + 1, 0, 0);
    host.PostMessage(WM_USER + 2, 0, 0);
    PumpPending();
    EXPECT_GE(host.seen, 2);
    EXPECT_EQ(host.TakeLog(), std::vector<std::string>{"user+2 w=0 l=0"});
}

TEST(Pump, PumpPending_WindowThatNeverValidates_Ends)
{
    class Stubborn : public HostWindow
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_PAINT && stubborn ? 0 : HostWindow::WindowProc(message, wParam, lParam);
        }

    public:
        bool stubborn = false;
    };
    Stubborn host;
    host.stubborn = true;
    host.Invalidate();
    EXPECT_FALSE(PumpUntil([] { return false; }, 50));
}

} // namespace
} // namespace quor::test
