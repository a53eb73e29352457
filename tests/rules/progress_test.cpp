// Percentages of progress.
#include "rules/Progress.h"

#include <gtest/gtest.h>

#include <climits>

using namespace QuorUiCtr;

namespace
{

TEST(PercentOf, CountsWholePerCent_AndAHundredOnlyAtTheEnd)
{
    EXPECT_EQ(PercentOf(0, 3), 0);
    EXPECT_EQ(PercentOf(1, 3), 33);
    EXPECT_EQ(PercentOf(2, 3), 66);
    EXPECT_EQ(PercentOf(3, 3), 100);
    EXPECT_EQ(PercentOf(999, 1000), 99);
    EXPECT_EQ(PercentOf(LLONG_MAX - 1, LLONG_MAX), 99);
    EXPECT_EQ(PercentOf(LLONG_MAX / 2, LLONG_MAX), 50);
}

TEST(PercentOf, NumbersThatMakeNoSense)
{
    EXPECT_EQ(PercentOf(5, 0), 0);
    EXPECT_EQ(PercentOf(5, -1), 0);
    EXPECT_EQ(PercentOf(-5, 10), 0);
    EXPECT_EQ(PercentOf(50, 10), 100);
}

} // namespace
