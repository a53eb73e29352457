// Series of numbers that go on from texts.
#include "rules/NumberSeries.h"

#include <gtest/gtest.h>

#include <limits>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

std::wstring Three(std::wstring_view first, std::optional<std::wstring_view> second = std::nullopt)
{
    const auto series = NumberSeries::Of(first, second);
    std::wstring text;
    for (const long place : {0L, 1L, 2L})
        text += (place > 0 ? L" " : L"") + (series ? series->At(place).value_or(L"?") : L"-");
    return text;
}

TEST(Series, GoOn_ByTheDistanceOfTwo_OrByOne)
{
    EXPECT_EQ(Three(L"5"), L"5 6 7");
    EXPECT_EQ(Three(L"10", L"8"), L"10 8 6");
    EXPECT_EQ(Three(L"-1", L"-1"), L"-1 -1 -1");
    EXPECT_EQ(Three(L" +3 "), L"3 4 5");
}

TEST(Series, KeepTheDecimals_AndInventNone)
{
    EXPECT_EQ(Three(L"1.10", L"1.2"), L"1.10 1.20 1.30");
    EXPECT_EQ(Three(L"0.1", L"0.2"), L"0.1 0.2 0.3");
    EXPECT_EQ(Three(L"0.05", L"0"), L"0.05 0.00 -0.05");
    EXPECT_EQ(Three(L".5"), L"0.5 1.5 2.5");
}

TEST(Series, DecimalOfADouble_IsWhatWasMeant)
{
    const auto text = [](double number) {
        const auto decimal = DecimalOf(number);
        return decimal ? WriteDecimal(*decimal) : std::wstring(L"-");
    };
    EXPECT_EQ(text(0.1), L"0.1");
    EXPECT_EQ(text(0.1 + 0.2), L"0.3");
    EXPECT_EQ(text(-2.5), L"-2.5");
    EXPECT_EQ(text(0), L"0");
    EXPECT_EQ(text(-0.0), L"0");
    EXPECT_EQ(text(1200), L"1200");
    EXPECT_EQ(text(1e14), L"100000000000000");
    EXPECT_EQ(text(123456789012345), L"123456789012345");
    EXPECT_EQ(text(1e15), L"-");
    EXPECT_EQ(text(0.00002), L"0.00002");
    EXPECT_EQ(text(1e-15), L"0.000000000000001");
    for (const double none : {1e-16, 1e300, 1e-300, std::numeric_limits<double>::infinity(),
                              std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(text(none), L"-");
}

TEST(Series, OtherTexts_AreNone)
{
    for (const std::wstring_view text :
         {L"", L" ", L"a", L"1e5", L"1,5", L"1.2.3", L"-", L".", L"1 2", L"1234567890123456"})
        EXPECT_EQ(Three(text), L"- - -") << std::string(text.begin(), text.end());
    EXPECT_EQ(Three(L"1", L"x"), L"- - -");
}

TEST(Series, BeyondTheDigits_EndWithoutAWrongNumber)
{
    EXPECT_EQ(Three(L"999999999999998"), L"999999999999998 999999999999999 ?");
    EXPECT_EQ(Three(L"0", L"999999999999999"), L"0 999999999999999 ?");
    EXPECT_EQ(Three(L"0.00000000000001", L"99999999999999"), L"- - -");
}

} // namespace
} // namespace quor::test
