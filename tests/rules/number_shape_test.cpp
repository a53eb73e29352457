// Numbers as people of a locale read them.
#include "rules/NumberShape.h"

#include <gtest/gtest.h>

namespace
{

using namespace QuorUiCtr;

// "-" for a text that is no number.
std::wstring Shape(const wchar_t* text, const NumberStyle& style = {}, const NumberMarks& marks = {})
{
    return ShapeNumber(text, style, marks).value_or(L"-");
}

NumberMarks German()
{
    NumberMarks marks;
    marks.decimal = L",";
    marks.group = L".";
    marks.percentOrder = 0;
    return marks;
}

TEST(NumberShape, GroupsTheWholeNumber)
{
    EXPECT_EQ(Shape(L"1234567.5"), L"1,234,567.5");
    EXPECT_EQ(Shape(L"123456"), L"123,456");
    EXPECT_EQ(Shape(L"123"), L"123");
    EXPECT_EQ(Shape(L"-1234"), L"-1,234");
    EXPECT_EQ(Shape(L"1234567.5", {.decimals = -1, .isGrouped = false}), L"1234567.5");
    EXPECT_EQ(Shape(L"1234567.5", {}, German()), L"1.234.567,5");
}

TEST(NumberShape, GroupsAreTheOnesOfTheLocale)
{
    NumberMarks marks;
    marks.grouping = L"3;2;0";
    EXPECT_EQ(Shape(L"123456789", {}, marks), L"12,34,56,789");
    marks.grouping = L"3";
    EXPECT_EQ(Shape(L"123456789", {}, marks), L"123456,789");
    marks.grouping = L"0";
    EXPECT_EQ(Shape(L"123456789", {}, marks), L"123456789");
    marks.grouping = L"";
    EXPECT_EQ(Shape(L"123456789", {}, marks), L"123456789");
}

TEST(NumberShape, RoundsExactly_HalvesAwayFromZero)
{
    const auto rounded = [](const wchar_t* text, int decimals) {
        return Shape(text, {.decimals = decimals});
    };
    EXPECT_EQ(rounded(L"1.005", 2), L"1.01");
    EXPECT_EQ(rounded(L"-0.125", 2), L"-0.13");
    EXPECT_EQ(rounded(L"0.124999", 2), L"0.12");
    EXPECT_EQ(rounded(L"999.995", 2), L"1,000.00");
    EXPECT_EQ(rounded(L"9.5", 0), L"10");
    EXPECT_EQ(rounded(L"0.4", 0), L"0");
    EXPECT_EQ(rounded(L"5", 2), L"5.00");
    EXPECT_EQ(rounded(L"-0.004", 2), L"0.00");
    EXPECT_EQ(rounded(L"12345678901234567890.125", 1), L"12,345,678,901,234,567,890.1");
}

TEST(NumberShape, TakesSignsSpacesAndExponents)
{
    EXPECT_EQ(Shape(L" +12 "), L"12");
    EXPECT_EQ(Shape(L"007"), L"7");
    EXPECT_EQ(Shape(L"0"), L"0");
    EXPECT_EQ(Shape(L".5"), L"0.5");
    EXPECT_EQ(Shape(L"5."), L"5");
    EXPECT_EQ(Shape(L"1e6"), L"1,000,000");
    EXPECT_EQ(Shape(L"1.25E+1"), L"12.5");
    EXPECT_EQ(Shape(L"5e-3"), L"0.005");
}

TEST(NumberShape, OtherTextsAreNoNumbers)
{
    for (const wchar_t* text : {L"", L" ", L"abc", L"12 kg", L"1,5", L"1.2.3", L"-", L".", L"e5", L"1e",
                                L"1e+", L"1e301", L"1e99999999999", L"0x10", L"--1", L"1 2", L"NaN", L"50%"})
        EXPECT_EQ(Shape(text), L"-") << text;
    EXPECT_EQ(Shape(std::wstring(301, L'1').c_str()), L"-");
}

TEST(NumberShape, PercentsAreAHundredfold)
{
    NumberStyle style{.decimals = -1, .isGrouped = true, .isPercent = true};
    EXPECT_EQ(Shape(L"0.5", style), L"50%");
    EXPECT_EQ(Shape(L"0.125", style), L"12.5%");
    EXPECT_EQ(Shape(L"12", style), L"1,200%");
    EXPECT_EQ(Shape(L"-0.05", style, German()), L"-5 %");
    style.decimals = 0;
    EXPECT_EQ(Shape(L"0.125", style), L"13%");
    NumberMarks marks;
    marks.percentOrder = 2;
    EXPECT_EQ(Shape(L"0.5", style, marks), L"%50");
    marks.percentOrder = 3;
    EXPECT_EQ(Shape(L"0.5", style, marks), L"% 50");
}

TEST(NumberShape, NegativeNumbersStandInTheOrderOfTheLocale)
{
    const wchar_t* const expected[] = {L"(5)", L"-5", L"- 5", L"5-", L"5 -"};
    for (int order = 0; order < 5; ++order)
    {
        NumberMarks marks;
        marks.negativeOrder = order;
        EXPECT_EQ(Shape(L"-5", {}, marks), expected[order]);
        EXPECT_EQ(Shape(L"5", {}, marks), L"5");
    }
}

} // namespace
