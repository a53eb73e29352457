// What turns of a mouse wheel add up to.
#include "rules/WheelTurns.h"

#include <gtest/gtest.h>

#include <climits>

using namespace QuorUiCtr;

namespace
{

TEST(WheelStep, IsTheSettingInUnits_ButNotMoreThanAPage)
{
    EXPECT_EQ(WheelStep(3, 20, 300), 60);
    EXPECT_EQ(WheelStep(1, 20, 300), 20);
    EXPECT_EQ(WheelStep(0, 20, 300), 0);
    EXPECT_EQ(WheelStep(100, 20, 300), 300);
    EXPECT_EQ(WheelStep(WheelPages, 20, 300), 300);
    EXPECT_EQ(WheelStep(WheelPages - 1, 20, 300), 300);
    EXPECT_EQ(WheelStep(3, 20, -5), 0);
}

TEST(TakeWheelTurn, WholeNotches)
{
    int rest = 0;
    EXPECT_EQ(TakeWheelTurn(120, 60, rest), 60);
    EXPECT_EQ(TakeWheelTurn(-240, 60, rest), -120);
    EXPECT_EQ(rest, 0);
}

TEST(TakeWheelTurn, FineTurns_AddUpToTheNotch)
{
    for (const int delta : {1, 7, -1, -11, 50})
    {
        int rest = 0;
        long long sum = 0;
        for (int i = 0; i < 120; ++i)
            sum += TakeWheelTurn(delta, 57, rest);
        EXPECT_EQ(sum, delta * 57LL) << delta;
        EXPECT_EQ(rest, 0);
    }
}

TEST(TakeWheelTurn, TheOtherWay_DropsWhatWasLeft)
{
    int rest = 0;
    EXPECT_EQ(TakeWheelTurn(1, 100, rest), 0);
    EXPECT_EQ(rest, 100);
    EXPECT_EQ(TakeWheelTurn(-1, 100, rest), 0);
    EXPECT_EQ(rest, -100);
    EXPECT_EQ(TakeWheelTurn(-1, 100, rest), -1);
}

TEST(TakeWheelTurn, TurnsOfAnySize_StayInRange)
{
    int rest = 0;
    EXPECT_EQ(TakeWheelTurn(SHRT_MAX, INT_MAX, rest), 1 << 24);
    EXPECT_EQ(TakeWheelTurn(SHRT_MIN, INT_MAX, rest), -(1 << 24));
}

} // namespace
