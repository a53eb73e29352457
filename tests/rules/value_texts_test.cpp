// Dates and truth values in the texts of cells.
#include "rules/ValueTexts.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using namespace QuorUiCtr;

std::string Date(const wchar_t* text)
{
    const auto value = ReadDate(text);
    if (!value)
        return "-";
    std::string read;
    for (const int part : {value->year, value->month, value->day, value->hour, value->minute, value->second})
        read += std::to_string(part) + " ";
    return read;
}

TEST(Dates, WithAndWithoutATime)
{
    EXPECT_EQ(Date(L"2026-02-28"), "2026 2 28 0 0 0 ");
    EXPECT_EQ(Date(L" 2026-02-28 13:05 "), "2026 2 28 13 5 0 ");
    EXPECT_EQ(Date(L"2026-02-28T23:59:59"), "2026 2 28 23 59 59 ");
}

TEST(Dates, LeapDays)
{
    EXPECT_NE(Date(L"2024-02-29"), "-");
    EXPECT_NE(Date(L"2000-02-29"), "-");
    EXPECT_EQ(Date(L"2026-02-29"), "-");
    EXPECT_EQ(Date(L"1900-02-29"), "-");
}

TEST(Dates, OtherTextsAreNone)
{
    for (const wchar_t* text :
         {L"", L"today", L"28.02.2026", L"2026-2-28", L"2026-13-01", L"2026-00-01", L"2026-01-00",
          L"2026-04-31", L"1600-01-01", L"20260-01-01", L"2026-02-28 ", L"2026-02-28x", L"2026-02-28 24:00",
          L"2026-02-28 12:60", L"2026-02-28 12", L"2026-02-28 12:00:60", L"2026-02-28T"})
    {
        const bool isDate = std::wstring(text) == L"2026-02-28 ";
        EXPECT_EQ(Date(text) != "-", isDate) << text;
    }
}

TEST(TruthValues, InWhateverCase)
{
    for (const wchar_t* text : {L"1", L"true", L"TRUE", L"Yes", L"on", L" yes "})
        EXPECT_EQ(ReadTruth(text), true) << text;
    for (const wchar_t* text : {L"0", L"false", L"False", L"NO", L"off"})
        EXPECT_EQ(ReadTruth(text), false) << text;
    for (const wchar_t* text : {L"", L"2", L"tru", L"truth", L"y", L"10"})
        EXPECT_EQ(ReadTruth(text), std::nullopt) << text;
}

TEST(TruthValues, TheOppositeIsOfTheSamePairAndCase)
{
    const auto opposite = [](const wchar_t* text) { return OppositeTruth(text, L"x").value_or(L"-"); };
    EXPECT_EQ(opposite(L"1"), L"0");
    EXPECT_EQ(opposite(L"0"), L"1");
    EXPECT_EQ(opposite(L"true"), L"false");
    EXPECT_EQ(opposite(L"False"), L"True");
    EXPECT_EQ(opposite(L"YES"), L"NO");
    EXPECT_EQ(opposite(L"off"), L"on");
    EXPECT_EQ(opposite(L""), L"x");
    EXPECT_EQ(opposite(L"  "), L"x");
    EXPECT_EQ(opposite(L"maybe"), L"-");
}

} // namespace
