// What the recipe for spreadsheets writes and reads.
#include "samples/recipes/SeparatedText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

using Lines = std::vector<std::vector<std::wstring>>;

void AddColumns(TGGrid& grid, int number)
{
    for (int i = 0; i < number; ++i)
        grid.AppendCol(L"", 50);
}

Lines LinesOf(TGGrid& grid)
{
    Lines lines;
    for (long row = 0; row < grid.GetRowNum(); ++row)
    {
        lines.emplace_back();
        for (long col = 0; col < grid.GetColNum(); ++col)
            lines.back().emplace_back(grid.GetCell(row, col).GetText().GetString());
    }
    return lines;
}

Lines Read(const wchar_t* text, wchar_t separator)
{
    TGGrid grid;
    AddColumns(grid, 2);
    AppendText(grid, text, separator);
    return LinesOf(grid);
}

TEST(SeparatedText, IsReadAsSpreadsheetsWriteIt)
{
    EXPECT_EQ(Read(L"a,b\r\nc,d\r\n", L','), (Lines{{L"a", L"b"}, {L"c", L"d"}}));
    EXPECT_EQ(Read(L"a\tb, c", L'\t'), (Lines{{L"a", L"b, c"}}));
    EXPECT_EQ(Read(L"\"a, b\",\"say \"\"c\"\"\"\n", L','), (Lines{{L"a, b", L"say \"c\""}}));
    EXPECT_EQ(Read(L"\"one\ntwo\",3\n", L','), (Lines{{L"one\ntwo", L"3"}}));
    EXPECT_EQ(Read(L"3\" pipe,\"\"\n", L','), (Lines{{L"3\" pipe", L""}}));
}

TEST(SeparatedText, KeepsEmptyFieldsAndLines)
{
    EXPECT_EQ(Read(L"", L','), Lines{});
    EXPECT_EQ(Read(L"\n", L','), (Lines{{L"", L""}}));
    EXPECT_EQ(Read(L",b\n\na,", L','), (Lines{{L"", L"b"}, {L"", L""}, {L"a", L""}}));
}

TEST(SeparatedText, BeyondTheColumnsOrWithOpenQuotes_LosesNoLine)
{
    EXPECT_EQ(Read(L"a,b,c\nd\n", L','), (Lines{{L"a", L"b"}, {L"d", L""}}));
    EXPECT_EQ(Read(L"a,\"b,c", L','), (Lines{{L"a", L"b,c"}}));
}

TEST(SeparatedText, GoesBehindTheRowsThatAreThere)
{
    TGGrid grid;
    AddColumns(grid, 1);
    AppendText(grid, L"a\n", L',');
    AppendText(grid, L"b\n", L',');
    EXPECT_EQ(LinesOf(grid), (Lines{{L"a"}, {L"b"}}));
}

TEST(SeparatedText, ComesBackAsItWasWritten)
{
    for (const wchar_t separator : {L',', L'\t', L';'})
    {
        TGGrid grid;
        AddColumns(grid, 3);
        const wchar_t* const texts[] = {L"plain", L"a,b;c\td", L"\"", L"one\ntwo", L"",
                                        L" x ",   L"\"\"q\"",  L",",  L"7"};
        grid.SetRowNum(3);
        for (long i = 0; i < 9; ++i)
            grid.GetCell(i / 3, i % 3).SetText(texts[i]);
        TGGrid copy;
        AddColumns(copy, 3);
        AppendText(copy, ToText(grid, separator, false), separator);
        EXPECT_EQ(LinesOf(copy), LinesOf(grid)) << static_cast<int>(separator);
    }
}

TEST(SeparatedText, CanBeOfTheSelectedRows)
{
    TGGrid grid;
    AddColumns(grid, 2);
    AppendText(grid, L"a,1\nb,2\nc,3\n", L',');
    grid.SelectRow(0, true);
    grid.SelectRow(2, true);
    EXPECT_STREQ(ToText(grid, L'\t', true), L"a\t1\nc\t3\n");
}

} // namespace
} // namespace quor::test
