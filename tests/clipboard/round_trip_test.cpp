// Random tables go through the clipboard in each format, and come back as they were.
#include "tests/clipboard/ClipboardTest.h"

#include <cstdlib>
#include <random>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// In the checked variant a table takes a hundred times as long.
#ifdef _DEBUG
constexpr int UsualTables = 40;
#else
constexpr int UsualTables = 10000;
#endif

// How many tables for each format: QUOR_CLIPBOARD_TABLES, or the usual number.
int TableNum()
{
    const char* const wanted = std::getenv("QUOR_CLIPBOARD_TABLES");
    return wanted != nullptr ? std::atoi(wanted) : UsualTables;
}

class RandomTable
{
public:
    RandomTable(unsigned seed, std::wstring_view letters) : random(seed)
    {
        rows = Below(6) + 1;
        cols = Below(4) + 2;
        for (long i = 0; i < rows * cols; ++i)
        {
            std::wstring text;
            for (long k = Below(8); k > 0; --k)
                text += letters[static_cast<std::size_t>(Below(static_cast<long>(letters.size())))];
            texts.push_back(text);
        }
    }
    void Fill(TGGrid& grid) const
    {
        AddCols(grid, static_cast<int>(cols));
        grid.SetRowNum(rows);
        for (long i = 0; i < rows * cols; ++i)
            grid.GetCell(i / cols, i % cols).SetText(texts[static_cast<std::size_t>(i)].c_str());
    }
    // Fails the test where a text is another one.
    void Compare(TGGrid& grid, unsigned seed) const
    {
        ASSERT_EQ(grid.GetRowNum(), rows) << "seed " << seed;
        for (long i = 0; i < rows * cols; ++i)
            ASSERT_EQ(std::wstring(grid.GetCell(i / cols, i % cols).GetText().GetString()),
                      texts[static_cast<std::size_t>(i)])
                << "seed " << seed << ", cell " << i / cols << "," << i % cols;
    }
    long Cols() const { return cols; }

private:
    long Below(long limit) { return static_cast<long>(random() % static_cast<unsigned long>(limit)); }

    std::mt19937 random;
    long rows;
    long cols;
    std::vector<std::wstring> texts;
};

// Copies a table and leaves one format of it on the clipboard, as a program does that knows no other.
void RoundTrip(UINT format, std::wstring_view letters)
{
    for (unsigned seed = 1; seed <= static_cast<unsigned>(TableNum()) && !testing::Test::HasFailure(); ++seed)
    {
        const RandomTable table(seed, letters);
        TGGrid source;
        table.Fill(source);
        TGClipboard clipboard(source);
        clipboard.CopyAll();
        const std::string bytes = BytesOnClipboard(format);
        PutBytes(format, bytes);
        TGGrid target;
        AddCols(target, static_cast<int>(table.Cols()));
        TGClipboard other(target);
        const TGClipboardReport report = other.Paste();
        EXPECT_TRUE(report.IsComplete()) << "seed " << seed << ": " << Text(report);
        table.Compare(target, seed);
    }
}

TEST(RoundTrips, AsText)
{
    RoundTrip(CF_UNICODETEXT, L"ab \t\"\r\n,;\x4E2D\xFC'=");
}

// What divides cells is guessed by the reader.
TEST(RoundTrips, AsCsv)
{
    RoundTrip(CsvFormat(), L"ab \"\r\n,\x4E2D\xFC'=");
}

// A line break is a line feed there.
TEST(RoundTrips, AsHtml)
{
    RoundTrip(HtmlFormat(), L"ab \t\"\n<>&,;\x4E2D\xFC");
}

TEST(RoundTrips, AsTheOwnFormat)
{
    RoundTrip(OwnFormat(), L"ab \t\"\r\n<>&,;\x4E2D\xFC\x1\xFFFF");
}

} // namespace
} // namespace quor::test
