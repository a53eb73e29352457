// Natural order, and the numbers and dates that texts begin with.
#include "rules/SortKeys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace QuorUiCtr;

namespace
{

// ---- Natural order

TEST(NaturalOrder, NumbersInTexts_AreCompared)
{
    std::vector<std::wstring> texts = {L"row 10", L"row 9", L"Row 2", L"row", L"row 010 b", L"row 10 a",
                                       L"",       L"a",     L"9",     L"10",  L"row 9.5",   L"row 9.25"};
    std::sort(texts.begin(), texts.end(),
              [](const auto& a, const auto& b) { return CompareNatural(a, b) < 0; });
    const std::vector<std::wstring> expected = {L"",         L"9",      L"10",       L"a",
                                                L"row",      L"Row 2",  L"row 9",    L"row 9.5",
                                                L"row 9.25", L"row 10", L"row 10 a", L"row 010 b"};
    EXPECT_EQ(texts, expected);
}

TEST(NaturalOrder, NumbersOfAnyLength)
{
    EXPECT_LT(CompareNatural(L"99999999999999999998", L"99999999999999999999"), 0);
    EXPECT_LT(CompareNatural(L"99999999999999999999", L"100000000000000000000"), 0);
}

TEST(NaturalOrder, CaseAndLeadingZeros_DecideLast)
{
    EXPECT_LT(CompareNatural(L"A1", L"a1"), 0);
    EXPECT_LT(CompareNatural(L"a01", L"a1"), 0);
    EXPECT_LT(CompareNatural(L"a01", L"A2"), 0);
    EXPECT_EQ(CompareNatural(L"a1", L"a1"), 0);
}

// Sorting needs an order in which no three texts go in a circle.
TEST(NaturalOrder, IsAnOrder)
{
    const std::vector<std::wstring> texts = {L"",   L"0",   L"00", L"1",   L"01", L"a",  L"A",  L"a0", L"A00",
                                             L"0a", L"00A", L"-1", L"a-1", L"aB", L"Ab", L"ab", L"9",  L"10"};
    for (const auto& a : texts)
        for (const auto& b : texts)
        {
            EXPECT_EQ(CompareNatural(a, b) < 0, CompareNatural(b, a) > 0);
            EXPECT_EQ(CompareNatural(a, b) == 0, a == b);
            for (const auto& c : texts)
                if (CompareNatural(a, b) < 0 && CompareNatural(b, c) < 0)
                {
                    EXPECT_LT(CompareNatural(a, c), 0);
                }
        }
}

// ---- Numbers

struct NumberCase
{
    const wchar_t* text;
    double number;
};

class NumberTexts : public testing::TestWithParam<NumberCase>
{
};

TEST_P(NumberTexts, AreRead)
{
    const auto number = ReadNumber(GetParam().text);
    ASSERT_TRUE(number.has_value());
    EXPECT_EQ(*number, GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(
    ReadNumber, NumberTexts,
    testing::Values(NumberCase{L"0", 0}, NumberCase{L"42", 42}, NumberCase{L"-7", -7}, NumberCase{L"+7", 7},
                    NumberCase{L"\x2212"
                               L"3",
                               -3},
                    NumberCase{L"  12 kg", 12}, NumberCase{L"1.5", 1.5}, NumberCase{L"0.10", 0.1},
                    NumberCase{L".25", 0.25}, NumberCase{L"5.", 5}, NumberCase{L"1,234,567.5", 1234567.5},
                    NumberCase{L"1,23", 1}, NumberCase{L"1e3", 1000}, NumberCase{L"1.5E-2", 0.015},
                    NumberCase{L"2e", 2}, NumberCase{L"12%", 12},
                    NumberCase{L"123456789012345678901234567890", 1.2345678901234568e29}));

TEST(ReadNumber, OtherTexts_AreNone)
{
    for (const wchar_t* text : {L"", L" ", L"-", L"+", L".", L"abc", L"kg 12", L"--1", L",123", L"e5"})
        EXPECT_FALSE(ReadNumber(text).has_value()) << text;
}

// ---- Dates

long long MomentOf(const wchar_t* text, DateOrder order = DateOrder::MonthDayYear)
{
    const auto moment = ReadMoment(text, order);
    EXPECT_TRUE(moment.has_value()) << text;
    return moment.value_or(-1);
}

TEST(ReadMoment, DaysFollowOneAnother)
{
    constexpr long long day = 86400;
    EXPECT_EQ(MomentOf(L"2024-03-01") - MomentOf(L"2024-02-29"), day);
    EXPECT_EQ(MomentOf(L"2023-03-01") - MomentOf(L"2023-02-28"), day);
    EXPECT_EQ(MomentOf(L"2025-01-01") - MomentOf(L"2024-12-31"), day);
    EXPECT_EQ(MomentOf(L"2001-01-01") - MomentOf(L"2000-01-01"), 366 * day);
    EXPECT_EQ(MomentOf(L"1901-01-01") - MomentOf(L"1900-01-01"), 365 * day);
}

TEST(ReadMoment, PartsStandAsTheOrderSays_AndAYearInFrontIsOne)
{
    const long long moment = MomentOf(L"2024-03-05");
    EXPECT_EQ(MomentOf(L"3/5/2024"), moment);
    EXPECT_EQ(MomentOf(L"5.3.2024", DateOrder::DayMonthYear), moment);
    EXPECT_EQ(MomentOf(L" 5. 3. 2024", DateOrder::DayMonthYear), moment);
    EXPECT_EQ(MomentOf(L"05/03/24", DateOrder::DayMonthYear), moment);
    EXPECT_EQ(MomentOf(L"24-3-5", DateOrder::YearMonthDay), moment);
    EXPECT_EQ(MomentOf(L"2024/3/5", DateOrder::DayMonthYear), moment);
    EXPECT_EQ(MomentOf(L"2024\x5E74"
                       L"3\x6708"
                       L"5\x65E5"),
              moment);
    EXPECT_EQ(MomentOf(L"3/5/99"), MomentOf(L"1999-03-05"));
    EXPECT_EQ(MomentOf(L"3/5/50"), MomentOf(L"1950-03-05"));
    EXPECT_EQ(MomentOf(L"3/5/49"), MomentOf(L"2049-03-05"));
}

TEST(ReadMoment, TimeOfTheDay)
{
    const long long day = MomentOf(L"2024-03-05");
    EXPECT_EQ(MomentOf(L"2024-03-05 13:05"), day + 13 * 3600 + 5 * 60);
    EXPECT_EQ(MomentOf(L"2024-03-05T13:05:09"), day + 13 * 3600 + 5 * 60 + 9);
    EXPECT_EQ(MomentOf(L"2024-03-05 25:00"), day);
    EXPECT_EQ(MomentOf(L"2024-03-05 noon"), day);
}

TEST(ReadMoment, OtherTexts_AreNone)
{
    for (const wchar_t* text : {L"", L"5", L"5.3", L"2023-02-29", L"2024-13-01", L"2024-00-01", L"2024-01-32",
                                L"soon", L"x2024-01-01", L"1234567-01-01", L"13/1/2024"})
        EXPECT_FALSE(ReadMoment(text, DateOrder::MonthDayYear).has_value()) << text;
}

} // namespace
