// Other separators and encodings than the usual ones, long work, and files that the writer makes.
#include "samples/gallery/CsvReader.h"
#include "samples/gallery/CsvWriter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace gallery
{
namespace
{
using Rows = std::vector<CsvRow>;

std::string Utf16(const std::u16string& text, bool littleEndian)
{
    std::string bytes = littleEndian ? "\xFF\xFE" : "\xFE\xFF";
    for (const char16_t unit : text)
    {
        const auto low = static_cast<char>(unit & 0xFF);
        const auto high = static_cast<char>(unit >> 8);
        bytes += littleEndian ? low : high;
        bytes += littleEndian ? high : low;
    }
    return bytes;
}

TEST(CsvSeparator, IsWhatTheHeaderLineHasMostOf)
{
    EXPECT_EQ(ParseCsv("a;b\n1,5;2\n").rows, (Rows{{L"1,5", L"2"}}));
    EXPECT_EQ(ParseCsv("a\tb\n\t2\n").rows, (Rows{{L"", L"2"}}));
    EXPECT_EQ(ParseCsv("a,b;c,d\n1,2;3,4\n").rows, (Rows{{L"1", L"2;3", L"4"}}));
    EXPECT_EQ(ParseCsv("a\n1;2\n").rows, (Rows{{L"1;2"}}));
}

TEST(CsvSeparator, InsideQuotesOfTheHeader_DoesNotCount)
{
    EXPECT_EQ(ParseCsv("\"a;b;c\",d\n1,2\n").rows, (Rows{{L"1", L"2"}}));
}

TEST(CsvEncoding, Utf16_IsReadInBothOrders)
{
    for (const bool littleEndian : {true, false})
    {
        const CsvTable table = ParseCsv(Utf16(u"a,\u6C22\n\U0001F600,2\n", littleEndian));
        EXPECT_EQ(table.header, (CsvRow{L"a", L"\u6C22"})) << littleEndian;
        EXPECT_EQ(table.rows, (Rows{{L"\U0001F600", L"2"}})) << littleEndian;
    }
}

TEST(CsvEncoding, BrokenUtf16_IsRefused)
{
    EXPECT_EQ(ParseCsv(Utf16(u"a", true) + "b").errors.at(0), L"not UTF-16: half a character at the end");
    EXPECT_EQ(ParseCsv(Utf16({u'a', 0xD800}, true)).errors.at(0), L"not UTF-16 at byte 5");
    EXPECT_EQ(ParseCsv(Utf16({0xDC00}, false)).errors.at(0), L"not UTF-16 at byte 3");
    EXPECT_EQ(ParseCsv(Utf16({u'a', 0}, true)).errors.at(0), L"not text: a NUL at byte 5");
}

TEST(CsvProgressReports, ComeInOrderAndStopTheWork)
{
    std::string bytes = "a,b\n";
    while (bytes.size() < 4'000'000)
        bytes += "some text,some other text\n";
    std::vector<double> reports;
    const CsvTable whole = ParseCsv(bytes, [&](double done) {
        reports.push_back(done);
        return true;
    });
    EXPECT_FALSE(whole.IsRefused());
    ASSERT_GE(reports.size(), 10u);
    EXPECT_TRUE(std::is_sorted(reports.begin(), reports.end()));
    EXPECT_LE(reports.back(), 1.0);
    int asked = 0;
    const CsvTable stopped = ParseCsv(bytes, [&](double) { return ++asked < 3; });
    EXPECT_TRUE(stopped.IsRefused());
    EXPECT_EQ(asked, 3);
}

class CsvWriting : public testing::Test
{
protected:
    void SetUp() override { std::filesystem::create_directories(folder); }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::size_t FilesInFolder() const
    {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder),
                                                      std::filesystem::directory_iterator()));
    }

    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "quor_csv_writer_test";
    const std::filesystem::path path = folder / u8"\u8868.csv";
};

TEST_F(CsvWriting, QuotesWhatReadersWouldMisunderstand)
{
    CsvWriter writer(path);
    for (const wchar_t* text : {L"plain", L"a,b", L"say \"hi\"", L"two\r\nlines", L" blank", L"", L"\""})
        writer.AddField(text);
    writer.EndLine();
    writer.AddField(L"");
    writer.EndLine();
    ASSERT_TRUE(writer.Finish());
    EXPECT_EQ(ReadFileBytes(path),
              "plain,\"a,b\",\"say \"\"hi\"\"\",\"two\r\nlines\",\" blank\",,\"\"\"\"\r\n\"\"\r\n");
}

TEST_F(CsvWriting, WhatIsWritten_IsReadBack)
{
    const Rows rows = {{L"\u6C22", L"\U0001F600 \"x\"", L""}, {L"\n", L",", L" a "}, {L"1", L"2", L"3"}};
    {
        CsvWriter writer(path);
        for (const CsvRow& row : rows)
        {
            for (const std::wstring& text : row)
                writer.AddField(text);
            writer.EndLine();
        }
        ASSERT_TRUE(writer.Finish());
    }
    const CsvTable table = ReadCsvFile(path);
    EXPECT_EQ(table.header, rows[0]);
    EXPECT_EQ(table.rows, (Rows{rows[1], rows[2]}));
    EXPECT_TRUE(table.errors.empty());
    EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(CsvWriting, HalfASurrogatePair_BecomesTheReplacementCharacter)
{
    CsvWriter writer(path);
    writer.AddField(std::wstring(1, wchar_t(0xD83D)) + L"a");
    writer.EndLine();
    ASSERT_TRUE(writer.Finish());
    EXPECT_EQ(ReadFileBytes(path), "\xEF\xBF\xBD"
                                   "a\r\n");
}

TEST_F(CsvWriting, WithoutFinish_LeavesTheFileAsItWas)
{
    std::ofstream(path, std::ios::binary) << "before";
    {
        CsvWriter writer(path);
        writer.AddField(L"after");
        writer.EndLine();
    }
    EXPECT_EQ(ReadFileBytes(path), "before");
    EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(CsvWriting, OverAFile_ReplacesIt)
{
    std::ofstream(path, std::ios::binary) << "before";
    CsvWriter writer(path);
    writer.AddField(L"after");
    writer.EndLine();
    ASSERT_TRUE(writer.Finish());
    EXPECT_EQ(ReadFileBytes(path), "after\r\n");
}

TEST_F(CsvWriting, InAFolderThatIsNotThere_Fails)
{
    CsvWriter writer(folder / "missing" / "a.csv");
    writer.AddField(L"a");
    writer.EndLine();
    EXPECT_FALSE(writer.Finish());
}
} // namespace
} // namespace gallery
