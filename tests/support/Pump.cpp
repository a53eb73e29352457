// The pump waits for messages, never for time to pass.
#include "tests/support/Pump.h"

#include <afxwin.h>

#include <chrono>

namespace quor::test
{

namespace
{

using Clock = std::chrono::steady_clock;

bool HasMessage()
{
    MSG message;
    return PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE) != FALSE;
}

void DoIdleWork()
{
    for (LONG count = 0; !HasMessage() && AfxGetThread()->OnIdle(count); ++count)
        ;
}

void WaitForMessage(Clock::time_point end)
{
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
    if (left > 0)
        MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(left), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

} // namespace

bool PumpUntil(const std::function<bool()>& condition, int deadline)
{
    const Clock::time_point end = Clock::now() + std::chrono::milliseconds(deadline);
    while (!condition())
    {
        if (Clock::now() >= end)
            return false;
        if (HasMessage())
        {
            if (!AfxPumpMessage())
                return condition();
            continue;
        }
        DoIdleWork();
        if (!condition())
            WaitForMessage(end);
    }
    return true;
}

void PumpPending()
{
    PumpUntil([] { return !HasMessage(); });
    DoIdleWork();
}

} // namespace quor::test
