// Numbers as users type them.
#include "propertyrules/NumberText.h"

#include <gtest/gtest.h>

#include <climits>
#include <optional>

namespace
{

using namespace quorfx;

TEST(ReadInteger, TakesTheNumberAtTheBeginning)
{
    EXPECT_EQ(ReadInteger(L"12", -99, 99), 12);
    EXPECT_EQ(ReadInteger(L"  -12 ", -99, 99), -12);
    EXPECT_EQ(ReadInteger(L"12 mm", -99, 99), 12);
    EXPECT_EQ(ReadInteger(L"1.9", -99, 99), 1);
    EXPECT_EQ(ReadInteger(L"abc", -99, 99), std::nullopt);
    EXPECT_EQ(ReadInteger(L"", -99, 99), std::nullopt);
}

TEST(ReadInteger, StaysInItsRange)
{
    EXPECT_EQ(ReadInteger(L"99", -99, 99), 99);
    EXPECT_EQ(ReadInteger(L"100", -99, 99), std::nullopt);
    EXPECT_EQ(ReadInteger(L"-99", -99, 99), -99);
    EXPECT_EQ(ReadInteger(L"-100", -99, 99), std::nullopt);
    EXPECT_EQ(ReadInteger(L"9223372036854775807", LLONG_MIN, LLONG_MAX), LLONG_MAX);
    EXPECT_EQ(ReadInteger(L"9223372036854775808", LLONG_MIN, LLONG_MAX), std::nullopt);
}

TEST(ReadReal, TakesFiniteNumbersOnly)
{
    EXPECT_EQ(ReadReal(L"2.5e3"), 2500.0);
    EXPECT_EQ(ReadReal(L" -0.25 m"), -0.25);
    EXPECT_EQ(ReadReal(L"1e999"), std::nullopt);
    EXPECT_EQ(ReadReal(L"nan"), std::nullopt);
    EXPECT_EQ(ReadReal(L"inf"), std::nullopt);
    EXPECT_EQ(ReadReal(L"x"), std::nullopt);
    EXPECT_EQ(ReadReal(L""), std::nullopt);
}

} // namespace
