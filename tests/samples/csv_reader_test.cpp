// Tests of the gallery's CSV reader on text, and of the CSV files that the gallery ships.
#include "samples/gallery/CsvReader.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace gallery
{
namespace
{
// One readable string for a whole table: fields in brackets, lines after slashes, errors after exclamation
// marks.
std::wstring Describe(const CsvTable& table)
{
    std::wstring text;
    const auto add = [&text](const CsvRow& row) {
        for (const std::wstring& field : row)
            text += L"[" + field + L"]";
    };
    add(table.header);
    for (const CsvRow& row : table.rows)
    {
        text += L" / ";
        add(row);
    }
    for (const std::wstring& error : table.errors)
        text += L" ! " + error;
    return text;
}

struct Case
{
    const char* name;
    std::string bytes;
    const wchar_t* expected;
};

void PrintTo(const Case& testCase, std::ostream* stream)
{
    *stream << testCase.name;
}

std::string CaseName(const testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

class CsvText : public testing::TestWithParam<Case>
{
};

TEST_P(CsvText, IsReadAs)
{
    EXPECT_EQ(Describe(ParseCsv(GetParam().bytes)), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    GoodText, CsvText,
    testing::Values(Case{"PlainFields", "a,b\n1,2\n", L"[a][b] / [1][2]"},
                    Case{"LastLineWithoutBreak", "a,b\n1,2", L"[a][b] / [1][2]"},
                    Case{"HeaderOnly", "a,b", L"[a][b]"},
                    Case{"CarriageReturns", "a,b\r1,2\r", L"[a][b] / [1][2]"},
                    Case{"CarriageReturnLineFeeds", "a,b\r\n1,2\r\n", L"[a][b] / [1][2]"},
                    Case{"MixedLineEnds", "a\r\nb\rc\nd", L"[a] / [b] / [c] / [d]"},
                    Case{"BlankLinesSkipped", "\n\na,b\n\r\n  \t\n1,2\n\n", L"[a][b] / [1][2]"},
                    Case{"EmptyFields", "a,b,c\n,,\n", L"[a][b][c] / [][][]"},
                    Case{"BlanksAreKeptInFields", "a,b\n 1 , 2\n", L"[a][b] / [ 1 ][ 2]"},
                    Case{"QuotedComma", "a,b\n\"1,5\",2\n", L"[a][b] / [1,5][2]"},
                    Case{"DoubledQuotes", "a,b\n\"say \"\"hi\"\"\",\"\"\"\"\n", L"[a][b] / [say \"hi\"][\"]"},
                    Case{"EmptyQuotedField", "a,b\n\"\",2\n", L"[a][b] / [][2]"},
                    Case{"EmptyQuotedLineIsNotBlank", "a\n\"\"\n", L"[a] / []"},
                    Case{"LineFeedInQuotes", "a,b\n\"1\n2\",3\n", L"[a][b] / [1\n2][3]"},
                    Case{"CarriageReturnLineFeedInQuotes", "a,b\n\"1\r\n2\",3\n", L"[a][b] / [1\r\n2][3]"},
                    Case{"CarriageReturnInQuotes", "a,b\n\"1\r2\",3\n", L"[a][b] / [1\r2][3]"},
                    Case{"BlankLineInQuotes", "a,b\n\"1\n\n2\",3\n", L"[a][b] / [1\n\n2][3]"},
                    Case{"QuotedLastFieldAtEnd", "a,b\n1,\"2\"", L"[a][b] / [1][2]"},
                    Case{"ByteOrderMark",
                         "\xEF\xBB\xBF"
                         "a,b\n1,2\n",
                         L"[a][b] / [1][2]"},
                    Case{"ByteOrderMarkBeforeQuote",
                         "\xEF\xBB\xBF"
                         "\"a\",b\n",
                         L"[a][b]"},
                    Case{"TwoThreeAndFourByteCharacters", "\xC3\xA9,\xE6\xB0\xA2\n\xF0\xAB\x93\xA7,x\n",
                         L"[\u00E9][\u6C22] / [\U0002B4E7][x]"},
                    Case{"LastCodePoint", "\xF4\x8F\xBF\xBF", L"[\U0010FFFF]"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    BadLines, CsvText,
    testing::Values(
        Case{"TooFewFields", "a,b,c\n1,2,3\n4\n5,6,7\n",
             L"[a][b][c] / [1][2][3] / [5][6][7] ! line 3: 1 field, expected 3"},
        Case{"TooManyFields", "a,b\n1,2,3\n4,5\n", L"[a][b] / [4][5] ! line 2: 3 fields, expected 2"},
        Case{"TrailingCommaIsAField", "a,b\n1,2,\n", L"[a][b] ! line 2: 3 fields, expected 2"},
        Case{"EveryBadLineIsReported", "a,b\n1\n2,3\n4,5,6\n",
             L"[a][b] / [2][3] ! line 2: 1 field, expected 2 ! line 4: 3 fields, expected 2"},
        Case{"LinesAreCountedThroughQuotesAndBlankLines", "a,b\r\n\"1\r\n2\n3\r4\",5\r\n\r\nbad\r\n",
             L"[a][b] / [1\r\n2\n3\r4][5] ! line 7: 1 field, expected 2"},
        Case{"RaggedLineOverSeveralLinesIsNamedByItsFirst", "a,b\n\"1\n2\"\n3,4\n",
             L"[a][b] / [3][4] ! line 2: 1 field, expected 2"},
        Case{"QuoteNeverClosed", "a,b\n1,2\n3,\"4\n", L"[a][b] / [1][2] ! line 3: a quote is never closed"},
        Case{"QuoteNeverClosedKeepsTheLinesBelow", "a,b\n\"1,2\n3,4\n5,\"\"\n",
             L"[a][b] / [3][4] / [5][] ! line 2: a quote is never closed"},
        Case{"QuoteNeverClosedOnALaterLineOfTheRow", "a,b\n\"1\n2\",\"3\n4,5\n",
             L"[a][b] / [4][5] ! line 3: a quote is never closed"},
        Case{"QuoteClosedByALaterLinesQuote", "a,b\n1,\"2\n3,4\n5,\"x, y\"\n",
             L"[a][b] / [3][4] / [5][x, y] ! line 2: the quote opened here closes inside a field on line 4"},
        Case{"LoneQuoteAtTheEnd", "a,b\n1,\"", L"[a][b] ! line 2: a quote is never closed"},
        Case{"TextAfterClosingQuote", "a,b\n\"1\"x,2\n3,4\n",
             L"[a][b] / [3][4] ! line 2: text after a closing quote"},
        Case{"BlankAfterClosingQuote", "a,b\n\"1\" ,2\n3,4\n",
             L"[a][b] / [3][4] ! line 2: text after a closing quote"},
        Case{"QuoteInsidePlainField", "a,b\n1\"2\",3\n4,5\n",
             L"[a][b] / [4][5] ! line 2: a quote inside a field that does not start with one"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    RefusedFiles, CsvText,
    testing::Values(Case{"Empty", "", L" ! the file is empty"},
                    Case{"OnlyBlankLines", "\r\n \n\t", L" ! the file is empty"},
                    Case{"OnlyByteOrderMark", "\xEF\xBB\xBF", L" ! the file is empty"},
                    Case{"BadHeader", "a,\"b\n1,2\n3\n", L" ! line 1: a quote is never closed"},
                    Case{"StrayByteOnALateLine", "a,b\n1,2\n3,\xFF\n", L" ! not UTF-8 at byte 11 (line 3)"},
                    Case{"CarriageReturnsCountLines", "a\r\nb\rc\xFF", L" ! not UTF-8 at byte 7 (line 3)"},
                    Case{"StrayContinuationByte", "a\x80", L" ! not UTF-8 at byte 2 (line 1)"},
                    Case{"CutOffAtTheEnd", "a,\xE6\xB0", L" ! not UTF-8 at byte 3 (line 1)"},
                    Case{"CutOffByAnotherCharacter", "\xE6\xB0,a", L" ! not UTF-8 at byte 1 (line 1)"},
                    Case{"OverlongTwoBytes", "\xC0\xAF", L" ! not UTF-8 at byte 1 (line 1)"},
                    Case{"OverlongThreeBytes", "\xE0\x80\xAF", L" ! not UTF-8 at byte 1 (line 1)"},
                    Case{"OverlongFourBytes", "\xF0\x80\x80\xAF", L" ! not UTF-8 at byte 1 (line 1)"},
                    Case{"Surrogate", "\xED\xA0\x80", L" ! not UTF-8 at byte 1 (line 1)"},
                    Case{"BeyondTheLastCodePoint", "\xF4\x90\x80\x80", L" ! not UTF-8 at byte 1 (line 1)"},
                    Case{"Nul", std::string("a,b\n1,\0\n", 8), L" ! not text: a NUL at byte 7 (line 2)"}),
    CaseName);

TEST(CsvParsing, CharacterBeyondTheBasicPlane_IsASurrogatePairWhereWideCharactersHave16Bits)
{
    const CsvTable table = ParseCsv("\xF0\xAB\x93\xA7");
    const std::wstring& field = table.header.at(0);
    if (sizeof(wchar_t) == 2)
    {
        ASSERT_EQ(field.size(), 2u);
        EXPECT_EQ(static_cast<unsigned>(field[0]), 0xD86Du);
        EXPECT_EQ(static_cast<unsigned>(field[1]), 0xDCE7u);
    }
    else
    {
        ASSERT_EQ(field.size(), 1u);
        EXPECT_EQ(static_cast<unsigned>(field[0]), 0x2B4E7u);
    }
}

// A broken quote makes the reader go back to the line below it; it must not go over the same lines ever
// again.
TEST(CsvParsing, ManyBrokenQuotes_TakeTimeProportionalToTheSize)
{
    std::string bytes = "a,b\n";
    for (int i = 0; i < 100000; ++i)
        bytes += "\"x\"\"\"\"y,\"\"\n";
    bytes += "\"";
    const auto start = std::chrono::steady_clock::now();
    const CsvTable table = ParseCsv(bytes);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    EXPECT_FALSE(table.errors.empty());
    EXPECT_LT(seconds.count(), 5.0);
}

// Random text over the characters that mean something in CSV files.
std::string RandomText(std::mt19937& random, std::size_t longest)
{
    static constexpr std::string_view pieces[] = {"a",    "b",  " ",  ",",    "\"",
                                                  "\"\"", "\r", "\n", "\r\n", "\xE6\xB0\xA2"};
    std::string text;
    for (std::size_t n = random() % (longest + 1); n > 0; --n)
        text += pieces[random() % std::size(pieces)];
    return text;
}

// The text that the bytes of RandomText stand for.
std::wstring Decoded(const std::string& bytes)
{
    std::wstring text;
    for (const char c : bytes)
    {
        if (c == '\xE6')
            text += L'\u6C22';
        else if ((c & 0x80) == 0)
            text += static_cast<wchar_t>(c);
    }
    return text;
}

std::string Quoted(const std::string& field)
{
    std::string text = "\"";
    for (const char c : field)
        text += c == '"' ? "\"\"" : std::string(1, c);
    return text + '"';
}

TEST(CsvParsing, WhatAWriterQuotes_IsReadBack)
{
    for (unsigned seed = 0; seed < 500; ++seed)
    {
        std::mt19937 random(seed);
        const std::size_t columns = 1 + random() % 4;
        std::string bytes;
        std::vector<std::vector<std::string>> written(1 + random() % 5);
        for (std::vector<std::string>& row : written)
        {
            for (std::size_t i = 0; i < columns; ++i)
            {
                row.push_back(RandomText(random, 6));
                bytes += (i == 0 ? "" : ",") + Quoted(row.back());
            }
            bytes += random() % 2 == 0 ? "\n" : "\r\n";
        }
        const CsvTable table = ParseCsv(bytes);
        ASSERT_TRUE(table.errors.empty()) << "seed " << seed;
        ASSERT_EQ(table.rows.size() + 1, written.size()) << "seed " << seed;
        for (std::size_t i = 0; i < written.size(); ++i)
        {
            const CsvRow& read = i == 0 ? table.header : table.rows[i - 1];
            for (std::size_t column = 0; column < columns; ++column)
                ASSERT_EQ(read[column], Decoded(written[i][column])) << "seed " << seed;
        }
    }
}

TEST(CsvParsing, AnyText_GivesRowsOfOneWidthAndNamesEveryBadLine)
{
    for (unsigned seed = 0; seed < 5000; ++seed)
    {
        std::mt19937 random(seed);
        const std::string bytes = "h,i\n" + RandomText(random, 40);
        const CsvTable table = ParseCsv(bytes);
        ASSERT_EQ(table.header.size(), 2u) << "seed " << seed;
        for (const CsvRow& row : table.rows)
            ASSERT_EQ(row.size(), 2u) << "seed " << seed;
        std::set<std::wstring> lines;
        for (const std::wstring& error : table.errors)
        {
            ASSERT_EQ(error.rfind(L"line ", 0), 0u) << "seed " << seed;
            ASSERT_TRUE(lines.insert(error.substr(0, error.find(L':'))).second) << "seed " << seed;
        }
    }
}

class CsvFile : public testing::Test
{
protected:
    void SetUp() override { std::filesystem::create_directories(folder); }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::filesystem::path Write(const std::filesystem::path& name, const std::string& bytes) const
    {
        std::ofstream(folder / name, std::ios::binary) << bytes;
        return folder / name;
    }

    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "quor_csv_reader_test";
};

TEST_F(CsvFile, IsReadThroughAChineseName)
{
    EXPECT_EQ(Describe(ReadCsvFile(Write(std::filesystem::path(u8"元素.csv"), "a,b\r\n1,2\r\n"))),
              L"[a][b] / [1][2]");
}

TEST_F(CsvFile, BytesAreReadUnchanged)
{
    const std::string bytes("\r\n\x1A\0\n\xFF", 6);
    EXPECT_EQ(ReadFileBytes(Write("bytes.bin", bytes)), bytes);
}

TEST_F(CsvFile, Missing_IsRefusedByName)
{
    const CsvTable table = ReadCsvFile(folder / "missing.csv");
    EXPECT_TRUE(table.IsRefused());
    ASSERT_EQ(table.errors.size(), 1u);
    EXPECT_NE(table.errors[0].find(L"cannot read the file"), std::wstring::npos);
    EXPECT_NE(table.errors[0].find(L"missing.csv"), std::wstring::npos);
    EXPECT_TRUE(table.rows.empty());
}

TEST_F(CsvFile, Folder_IsRefused)
{
    EXPECT_FALSE(ReadFileBytes(folder).has_value());
    EXPECT_TRUE(ReadCsvFile(folder).IsRefused());
}

TEST_F(CsvFile, Empty_IsRefused)
{
    EXPECT_EQ(Describe(ReadCsvFile(Write("empty.csv", ""))), L" ! the file is empty");
}

CsvTable Shipped(const char* name)
{
    return ReadCsvFile(std::filesystem::path(QUOR_GALLERY_DATA) / name);
}

template <class Value, class Read> std::set<Value> Distinct(const CsvTable& table, Read read)
{
    std::set<Value> values;
    for (const CsvRow& row : table.rows)
        values.insert(read(row));
    return values;
}

std::set<std::wstring> DistinctTexts(const CsvTable& table, std::size_t column)
{
    return Distinct<std::wstring>(table, [column](const CsvRow& row) { return row[column]; });
}

// The tables exist in English and in Chinese.
class Elements : public testing::TestWithParam<const char*>
{
};

class Countries : public testing::TestWithParam<const char*>
{
};

INSTANTIATE_TEST_SUITE_P(BothLanguages, Elements, testing::Values("elements.csv", "elements.zh.csv"));
INSTANTIATE_TEST_SUITE_P(BothLanguages, Countries, testing::Values("countries.csv", "countries.zh.csv"));

TEST_P(Elements, AreReadWithoutErrors)
{
    const CsvTable table = Shipped(GetParam());
    EXPECT_TRUE(table.errors.empty())
        << "first error: "
        << (table.errors.empty() ? "" : std::string(table.errors[0].begin(), table.errors[0].end()));
    EXPECT_EQ(table.header.size(), 11u);
    EXPECT_EQ(table.rows.size(), 118u);
}

TEST_P(Elements, NumbersRunFrom1To118)
{
    const CsvTable table = Shipped(GetParam());
    long expected = 1;
    for (const CsvRow& row : table.rows)
        EXPECT_EQ(std::wcstol(row[0].c_str(), nullptr, 10), expected++);
}

TEST_P(Elements, SymbolsAndNamesAreUnique)
{
    const CsvTable table = Shipped(GetParam());
    for (const std::size_t column : {1u, 2u, 3u})
        EXPECT_EQ(DistinctTexts(table, column).size(), 118u) << "column " << column;
}

TEST(ElementTables, ChineseNamesAreOneCharacter)
{
    for (const CsvRow& row : Shipped("elements.zh.csv").rows)
    {
        const bool isPair = sizeof(wchar_t) == 2 && (row[2].at(0) & 0xFC00) == 0xD800;
        EXPECT_EQ(row[2].size(), isPair ? 2u : 1u);
    }
}

TEST_P(Elements, CategoriesAreEleven)
{
    EXPECT_EQ(DistinctTexts(Shipped(GetParam()), 5).size(), 11u);
}

// The two languages of one table: rows and columns correspond.
std::vector<std::vector<std::wstring>> ColumnsOf(const char* name, std::initializer_list<std::size_t> columns)
{
    std::vector<std::vector<std::wstring>> texts;
    for (const CsvRow& row : Shipped(name).rows)
    {
        texts.emplace_back();
        for (const std::size_t column : columns)
            texts.back().push_back(row[column]);
    }
    return texts;
}

TEST(ElementTables, HaveTheSameFactsInBothLanguages)
{
    EXPECT_EQ(ColumnsOf("elements.csv", {0, 1, 2, 3, 4, 6, 7}),
              ColumnsOf("elements.zh.csv", {0, 1, 3, 2, 4, 6, 7}));
}

TEST(ElementTables, GroupTheElementsAlikeInBothLanguages)
{
    const CsvTable english = Shipped("elements.csv");
    const CsvTable chinese = Shipped("elements.zh.csv");
    std::set<std::wstring> pairs;
    for (std::size_t row = 0; row < english.rows.size(); ++row)
        pairs.insert(english.rows[row][5] + L"/" + chinese.rows[row][5]);
    EXPECT_EQ(pairs.size(), 11u);
}

TEST(CountryTables, HaveTheSameFactsInBothLanguages)
{
    EXPECT_EQ(ColumnsOf("countries.csv", {2, 3, 4, 5}), ColumnsOf("countries.zh.csv", {3, 2, 4, 5}));
}

TEST_P(Elements, EveryPlaceInTheMainTableHoldsOneElement)
{
    std::set<std::wstring> places;
    std::size_t withoutGroup = 0;
    for (const CsvRow& row : Shipped(GetParam()).rows)
    {
        if (row[7].empty())
            ++withoutGroup;
        else
            EXPECT_TRUE(places.insert(row[6] + L"/" + row[7]).second);
    }
    EXPECT_EQ(withoutGroup, 30u);
    EXPECT_EQ(places.size(), 88u);
}

TEST_P(Elements, NotesExerciseQuoting)
{
    std::size_t commas = 0, quotes = 0, lineBreaks = 0;
    for (const CsvRow& row : Shipped(GetParam()).rows)
    {
        commas += row[10].find(L',') != std::wstring::npos;
        quotes += row[10].find(L'"') != std::wstring::npos;
        lineBreaks += row[10].find(L'\n') != std::wstring::npos;
    }
    EXPECT_GE(commas, 20u);
    EXPECT_GE(quotes, 5u);
    EXPECT_GE(lineBreaks, 2u);
}

TEST_P(Countries, AreThe193MembersWithoutErrors)
{
    const CsvTable table = Shipped(GetParam());
    EXPECT_TRUE(table.errors.empty());
    EXPECT_EQ(table.header.size(), 6u);
    EXPECT_EQ(table.rows.size(), 193u);
}

TEST_P(Countries, NumericCodesAreUniqueAndHaveThreeDigits)
{
    const CsvTable table = Shipped(GetParam());
    for (const CsvRow& row : table.rows)
    {
        EXPECT_EQ(row[5].size(), 3u);
        EXPECT_EQ(row[5].find_first_not_of(L"0123456789"), std::wstring::npos);
    }
    const auto number = [](const CsvRow& row) { return std::wcstol(row[5].c_str(), nullptr, 10); };
    EXPECT_EQ(Distinct<long>(table, number).size(), 193u);
}

TEST_P(Countries, NamesAndLetterCodesAreUnique)
{
    const CsvTable table = Shipped(GetParam());
    for (const std::size_t column : {2u, 3u, 4u})
        EXPECT_EQ(DistinctTexts(table, column).size(), 193u) << "column " << column;
}

TEST_P(Countries, RegionsStandTogetherUnderOneContinent)
{
    const CsvTable table = Shipped(GetParam());
    std::set<std::wstring> seen;
    std::wstring continent, region;
    for (const CsvRow& row : table.rows)
    {
        if (row[1] == region)
        {
            EXPECT_EQ(row[0], continent);
            continue;
        }
        EXPECT_TRUE(seen.insert(row[1]).second);
        continent = row[0];
        region = row[1];
    }
    EXPECT_EQ(DistinctTexts(table, 0).size(), 5u);
    EXPECT_EQ(seen.size(), 22u);
}
} // namespace
} // namespace gallery
