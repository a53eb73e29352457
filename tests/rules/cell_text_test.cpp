// Tables as separated text: what is written, and what is made of texts that other programs write.
#include "rules/CellText.h"

#include "tests/rules/CellTables.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

std::string Read(std::wstring_view text, wchar_t separator = L'\t')
{
    return Shown(ReadCellText(text, separator));
}

std::wstring Written(std::initializer_list<std::wstring_view> cells, wchar_t separator = L'\t')
{
    CellTextWriter writer(separator);
    writer.BeginRow();
    for (const std::wstring_view cell : cells)
        writer.Cell(cell);
    writer.EndRow();
    return writer.TakeText();
}

// ---- Writing

TEST(CellText, QuotesCells_WithSeparatorBreakOrQuote_AndNoOthers)
{
    EXPECT_EQ(Written({L"a", L"", L" b  ", L"c,d;e"}), L"a\t\t b  \tc,d;e\r\n");
    EXPECT_EQ(Written({L"a\tb", L"c\nd", L"e\rf", L"say \"g\""}),
              L"\"a\tb\"\t\"c\nd\"\t\"e\rf\"\t\"say \"\"g\"\"\"\r\n");
    EXPECT_EQ(Written({L"\"", L"\"\"", L""}), L"\"\"\"\"\t\"\"\"\"\"\"\t\r\n");
    EXPECT_EQ(Written({L"a;b", L"a\tb"}, L';'), L"\"a;b\";a\tb\r\n");
}

TEST(CellText, WritesCaptionsAsTheFirstLine_AndOtherLineBreaksWhereAsked)
{
    CellTextWriter writer(L',', L"\n");
    writer.BeginCaptions();
    writer.Cell(L"Name");
    writer.Cell(L"Size, mm");
    writer.EndRow();
    writer.BeginRow({2, true, 7});
    writer.Cell(L"bolt");
    writer.EndRow();
    writer.BeginRow();
    writer.EndRow();
    EXPECT_EQ(writer.GetText(), L"Name,\"Size, mm\"\nbolt\n\n");
}

TEST(CellText, CountsNuls_AndReplacesThemWhereAsked)
{
    using namespace std::string_view_literals;
    CellTextWriter kept;
    kept.Cell(L"a\0b\0"sv);
    EXPECT_EQ(kept.GetText(), L"a\0b\0"sv);
    EXPECT_EQ(kept.GetNulNum(), 2U);
    CellTextWriter replaced;
    replaced.ReplaceNuls();
    replaced.Cell(L"x");
    replaced.Cell(L"a\0\"b"sv);
    EXPECT_EQ(replaced.GetText(), L"x\t\"a\x2400\"\"b\"");
    EXPECT_EQ(replaced.GetNulNum(), 1U);
}

// ---- Reading

TEST(CellText, RowsEnd_WithAnyLineBreak_OrWithTheText)
{
    for (const wchar_t* text : {L"a\tb\r\nc\td\r\n", L"a\tb\nc\td\n", L"a\tb\rc\td\r", L"a\tb\r\nc\td",
                                L"a\tb\nc\td", L"a\tb\rc\td", L"a\tb\rc\td\n"})
        EXPECT_EQ(Read(text), "a|b|\nc|d|\n");
    EXPECT_EQ(Read(L"a\n\rb"), "a|\n|\nb|\n");
}

TEST(CellText, EmptyLines_HaveAnEmptyCell_AndAnEmptyTextHasNoRow)
{
    EXPECT_EQ(Read(L""), "");
    EXPECT_EQ(Read(L"\r\n"), "|\n");
    EXPECT_EQ(Read(L"\t"), "||\n");
    EXPECT_EQ(Read(L"\n\na"), "|\n|\na|\n");
    EXPECT_EQ(Read(L"\"\""), "|\n");
}

TEST(CellText, KeepsBlanks_AndControlCharacters)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(Read(L"  a \t b\t  "), "  a | b|  |\n");
    EXPECT_EQ(Read(L"a\v\f\x85\x2028\x1"), "a\\{B}\\{C}\\{85}\\{2028}\\{1}|\n");
    CellTextNotes notes;
    EXPECT_EQ(Shown(ReadCellText(L"a\0b\tc\0\n\0"sv, L'\t', &notes)), "a\\{0}b|c\\{0}|\n\\{0}|\n");
    EXPECT_EQ(notes.nuls, 3U);
}

TEST(CellText, InQuotes_BreaksAndSeparatorsAreText)
{
    EXPECT_EQ(Read(L"\"a\r\nb\"\t\"c\td\"\r\n\"e\nf\"\n\"\r\""), "a\\r\\nb|c\\td|\ne\\nf|\n\\r|\n");
    EXPECT_EQ(Read(L"\"a \"\"b\"\" c\"\t\"\"\"\"\"\"\t\"\"\"d\""), "a \"b\" c|\"\"|\"d|\n");
    EXPECT_EQ(Read(L"\"a\tb\""), "a\\tb|\n");
    EXPECT_EQ(Read(L"\"a\n"
                   L"b\";2",
                   L';'),
              "a\\nb|2|\n");
}

TEST(CellText, QuotesInUnquotedCells_StayAsTheyAre)
{
    EXPECT_EQ(Read(L"5\" pipe\t3\"\"4\ta\""), "5\" pipe|3\"\"4|a\"|\n");
    EXPECT_EQ(Read(L" \"a\"\tb"), " \"a\"|b|\n");
}

TEST(CellText, QuotesThatCloseNoCell_StayAsTheyAre)
{
    CellTextNotes notes;
    EXPECT_EQ(Shown(ReadCellText(L"\"so\" they said\t1\n\"a\"b\"\tc", L'\t', &notes)),
              "\"so\" they said|1|\n\"a\"b\"|c|\n");
    EXPECT_EQ(notes.strayQuotes, 2U);
    EXPECT_EQ(Read(L"\"a\" \t\"b\""), "\"a\" |b|\n");
}

TEST(CellText, AnOddNumberOfQuotes_SwallowsNoCells)
{
    CellTextNotes notes;
    EXPECT_EQ(Shown(ReadCellText(L"\"a\tb\r\nc\td\r\n", L'\t', &notes)), "\"a|b|\nc|d|\n");
    EXPECT_EQ(notes.strayQuotes, 1U);
    EXPECT_EQ(Read(L"\""), "\"|\n");
    EXPECT_EQ(Read(L"\"\"\""), "\"\"\"|\n");
    EXPECT_EQ(Read(L"a\t\""), "a|\"|\n");
    EXPECT_EQ(Read(L"\"a\"\"\tb\n\"c\""), "\"a\"\"|b|\nc|\n");
}

TEST(CellText, AFileMark_IsNoText_UnlessItIsACells)
{
    EXPECT_EQ(Read(L"\xFEFF"
                   L"a\tb"),
              "a|b|\n");
    EXPECT_EQ(Read(L"\xFEFF\"a\tb\""), "a\\tb|\n");
    EXPECT_EQ(Written({L"\xFEFF"
                       L"a",
                       L"\xFEFF"}),
              L"\"\xFEFF"
              L"a\"\t\xFEFF\r\n");
}

TEST(CellText, ABlocksText_EndsAtU0000_AndTheRestIsNoticed)
{
    using namespace std::string_view_literals;
    const auto shown = [](std::wstring_view block) {
        const BlockText text = TextOfBlock(block);
        return std::wstring(text.text) + (text.hasMore ? L"+" : L"");
    };
    EXPECT_EQ(shown(L"ab\0\0\0"sv), L"ab");
    EXPECT_EQ(shown(L"ab"sv), L"ab");
    EXPECT_EQ(shown(L"ab\0c"sv), L"ab+");
    EXPECT_EQ(shown(L"\0"sv), L"");
    EXPECT_EQ(shown(L""sv), L"");
}

// ---- Separators

TEST(Csv, TheSeparator_IsTheOneThatDividesAllLinesAlike)
{
    EXPECT_EQ(RecognizeSeparator(L"a,b,c\n1,2,3\n"), L',');
    EXPECT_EQ(RecognizeSeparator(L"a;b\n1,5;2,5\n3,5;4,5"), L';');
    EXPECT_EQ(RecognizeSeparator(L"a\tb\n1;5\t2,5\n"), L'\t');
    EXPECT_EQ(RecognizeSeparator(L"a|b\n1|2,3"), L'|');
    EXPECT_EQ(RecognizeSeparator(L"\"a;b\",c\n\"d;e;f\",g"), L',');
    EXPECT_EQ(RecognizeSeparator(L"a,b\n\n1,2\n\n"), L',');
}

TEST(Csv, WithoutSuchASeparator_TheOneThatDividesMostLinesIsTaken)
{
    EXPECT_EQ(RecognizeSeparator(L"title\na;b,c\nd;e\nf"), L';');
    EXPECT_EQ(RecognizeSeparator(L"one column\nonly"), L',');
    EXPECT_EQ(RecognizeSeparator(L""), L',');
}

TEST(Csv, OnlyTheBeginningOfALongText_IsLookedAt)
{
    std::wstring text;
    while (text.size() < 70000)
        text += L"1,5;2,5;3\n";
    EXPECT_EQ(RecognizeSeparator(text), L';');
    EXPECT_EQ(RecognizeSeparator(std::wstring(70000, L'x') + L";"), L',');
}

TEST(Csv, IsReadWithTheSeparatorThatIsRecognised)
{
    CellTextNotes notes;
    EXPECT_EQ(Shown(ReadCsv(L"Name;Price\r\n\"bolt; \"\"big\"\"\";1,50\r\n nut ;2\r\n", &notes)),
              "Name|Price|\nbolt; \"big\"|1,50|\n nut |2|\n");
    EXPECT_EQ(notes.separator, L';');
}

TEST(Csv, AFirstLineMayNameTheSeparator)
{
    CellTextNotes notes;
    EXPECT_EQ(Shown(ReadCsv(L"sep=:\r\na:b,c\r\n", &notes)), "a|b,c|\n");
    EXPECT_EQ(notes.separator, L':');
    EXPECT_EQ(Shown(ReadCsv(L"\xFEFFsep=;\na;b")), "a|b|\n");
    EXPECT_EQ(Shown(ReadCsv(L"sep=;")), "");
    EXPECT_EQ(Shown(ReadCsv(L"sep=,x\na,b")), "sep=|x|\na|b|\n");
    EXPECT_EQ(Shown(ReadCsv(L"sep=\"\na,b")), "sep=\"|\na|b|\n");
    EXPECT_EQ(Shown(ReadCsv(L"sep=")), "sep=|\n");
}

// ---- Round trips

// What a text does not say comes back plain: captions are a row, marks are gone, a row without a cell has
// one.
CellTable AsText(const CellTable& table)
{
    CellTable plain;
    const auto copy = [&](std::size_t cells, auto textOf) {
        plain.BeginRow();
        for (std::size_t col = 0; col < cells; ++col)
            plain.Cell(textOf(col));
        if (cells == 0)
            plain.Cell({});
        plain.EndRow();
    };
    if (table.HasCaptions())
        copy(table.GetCaptionNum(), [&](std::size_t col) { return table.GetCaption(col); });
    for (std::size_t row = 0; row < table.GetRowNum(); ++row)
        copy(table.GetCellNum(row), [&](std::size_t col) { return table.GetText(row, col); });
    return plain;
}

TEST(CellText, RandomTables_ComeBackAsTheyWere)
{
    std::mt19937 random(20261);
    for (int i = 0; i < RandomTableNum(); ++i)
    {
        const CellTable table = RandomTable(random, {});
        const wchar_t separator = L"\t;,|x"[i % 5];
        CellTextWriter writer(separator, i % 2 == 0 ? L"\r\n" : i % 3 == 0 ? L"\r" : L"\n");
        table.WriteTo(writer);
        ASSERT_EQ(Shown(ReadCellText(writer.GetText(), separator)), Shown(AsText(table))) << "table " << i;
    }
}

// Quotes that seem to open cells over and over must not be followed over and over.
TEST(CellText, HostileQuotes_CostNoMoreThanOthers)
{
    std::wstring text(1, L'"');
    while (text.size() < 4'000'000)
        text += L"\t\"\"\"\"x\t\"\"";
    const auto begin = std::chrono::steady_clock::now();
    CellTextNotes notes;
    const CellTable table = ReadCellText(text, L'\t', &notes);
    EXPECT_GT(notes.strayQuotes, 400'000U);
    EXPECT_GT(table.GetCellNum(0), 800'000U);
    // Takes a fraction of a second; many hours, if each quote were followed to the end.
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}

} // namespace
} // namespace quor::test
