// Series of texts that are written as the first ones are.
#include "rules/TextSeries.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

std::wstring Three(std::wstring_view first, std::optional<std::wstring_view> second = std::nullopt)
{
    const auto series = TextSeries::Of(first, second);
    std::wstring text;
    for (const long place : {0L, 1L, 2L})
        text += (place > 0 ? L" " : L"") + (series ? series->At(place).value_or(L"?") : L"-");
    return text;
}

TEST(TextSeries, GoOn_ByTheDistanceOfTwo_OrByOne)
{
    EXPECT_EQ(Three(L"5"), L"5 6 7");
    EXPECT_EQ(Three(L"10", L"8"), L"10 8 6");
    EXPECT_EQ(Three(L" +3 "), L"3 4 5");
    EXPECT_EQ(Three(L"1.10", L"1.2"), L"1.10 1.20 1.30");
    EXPECT_EQ(Three(L"0.05", L"0"), L"0.05 0.00 -0.05");
    EXPECT_EQ(Three(L".5"), L"0.5 1.5 2.5");
}

TEST(TextSeries, OtherTexts_DoNotGoOn)
{
    for (const std::wstring_view text : {L"", L" ", L"a", L"1e5", L"1.2.3", L"-", L".", L"%", L"1 2", L"5 kg",
                                         L"1234567890123456", L"x1234567890123456"})
        EXPECT_EQ(Three(text), L"- - -") << std::string(text.begin(), text.end());
    EXPECT_EQ(Three(L"1", L"x"), L"- - -");
    EXPECT_EQ(Three(L"999999999999998"), L"999999999999998 999999999999999 ?");
}

TEST(TextSeries, AreWrittenAsTheirTextsAre)
{
    EXPECT_EQ(Three(L"1,5", L"2"), L"1,5 2,0 2,5");
    EXPECT_EQ(Three(L"1", L"1,25"), L"1,00 1,25 1,50");
    EXPECT_EQ(Three(L"999,000.50"), L"999,000.50 999,001.50 999,002.50");
    EXPECT_EQ(Three(L"999 999", L"1 000 000"), L"999 999 1 000 000 1 000 001");
    EXPECT_EQ(Three(L"1'000", L"500"), L"1'000 500 0");
    EXPECT_EQ(Three(L"1\x202F"
                    L"000",
                    L"0"),
              L"1\x202F"
              L"000 0 -1\x202F"
              L"000");
    EXPECT_EQ(Three(L"\x2212"
                    L"1",
                    L"\x2212"
                    L"2"),
              L"\x2212"
              L"1 \x2212"
              L"2 \x2212"
              L"3");
    EXPECT_EQ(Three(L"10%", L"20%"), L"10% 20% 30%");
    EXPECT_EQ(Three(L"1,5 %"), L"1,5 % 2,5 % 3,5 %");
    EXPECT_EQ(Three(L"008"), L"008 009 010");
    EXPECT_EQ(Three(L"99", L"0100"), L"0099 0100 0101");
}

TEST(TextSeries, TheLocaleDecides_WhereThousandsLookLikeDecimals)
{
    const auto second = [](const wchar_t* first, wchar_t decimal) {
        return *TextSeries::Of(first, std::nullopt, decimal)->At(1);
    };
    EXPECT_EQ(second(L"1,999", L'.'), L"2,000");
    EXPECT_EQ(second(L"1,999", L','), L"2,999");
    EXPECT_EQ(second(L"1.999", L'.'), L"2.999");
    EXPECT_EQ(second(L"1.999", L','), L"2.000");
    EXPECT_EQ(second(L"0,999", L'.'), L"1,999");
    EXPECT_EQ(second(L"1,99", L'.'), L"2,99");
    EXPECT_EQ(second(L"1.999.999", L'.'), L"2.000.000");
    EXPECT_EQ(TextSeries::Of(L"1.250", L"1.500,5", L',')->At(2), L"1.751,0");
    EXPECT_FALSE(TextSeries::Of(L"1.250", L"1.500,5", L'.'));
}

TEST(TextSeries, TextsThatEndWithANumber_GoOn_ButNotBelowNone)
{
    EXPECT_EQ(Three(L"Item 9"), L"Item 9 Item 10 Item 11");
    EXPECT_EQ(Three(L"Item 007", L"Item 005"), L"Item 007 Item 005 Item 003");
    EXPECT_EQ(Three(L"A-1"), L"A-1 A-2 A-3");
    EXPECT_EQ(Three(L"Q1", L"Q0"), L"Q1 Q0 ?");
    EXPECT_EQ(Three(L"Item 1", L"Part 2"), L"- - -");
    EXPECT_EQ(Three(L"Item 1", L"2"), L"- - -");
}

TEST(TextSeries, DatesAndTimes_AreNone)
{
    for (const wchar_t* text : {L"2024-01-31", L"1.2.2024", L"1/2/2024", L"31.12.", L"10:30", L"31. Dec 2024",
                                L"1,2,3", L"1.2345.678", L"1,234.567,8", L"1 234,567 8", L"192.168.1.1"})
        EXPECT_EQ(Three(text), L"- - -") << std::wstring(text).size();
    EXPECT_EQ(Three(L"1,5", L"2.5"), L"- - -");
    EXPECT_EQ(Three(L"1,5", L"1,200"), L"- - -");
    EXPECT_EQ(Three(L"1%", L"2"), L"- - -");
}

TEST(TextSeries, ByAStep_KeepTheForm)
{
    const auto second = [](const wchar_t* first, const wchar_t* step, wchar_t decimal) {
        const auto series = TextSeries::By(first, *ReadDecimal(step), decimal);
        return series ? series->At(1).value_or(L"?") : L"-";
    };
    EXPECT_EQ(second(L"1,5", L"0.25", L'.'), L"1,75");
    EXPECT_EQ(second(L"1", L"0.5", L','), L"1,5");
    EXPECT_EQ(second(L"1,000", L"0.5", L'.'), L"1,000.5");
    EXPECT_EQ(second(L"1.000", L"0.5", L','), L"1.000,5");
    EXPECT_EQ(second(L"1.000.000", L"0.5", L'.'), L"1.000.000,5");
    EXPECT_EQ(second(L"Item 3", L"-2", L'.'), L"Item 1");
    EXPECT_EQ(second(L"Item 3", L"0.5", L'.'), L"-");
    EXPECT_EQ(second(L"abc", L"1", L'.'), L"-");
}

} // namespace
} // namespace quor::test
