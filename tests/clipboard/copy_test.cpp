// What copies put on the clipboard.
#include "tests/clipboard/ClipboardTest.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class Copying : public ClipboardTest
{
};

TEST_F(Copying, ARange_IsText_WithTabsAndLines)
{
    Make();
    Select(0, 1, 1, 2);
    EXPECT_EQ(Text(clipboard.Copy()), "done 4");
    EXPECT_EQ(TextOnClipboard(), L"0,1\t0,2\r\n1,1\t1,2\r\n");
    EXPECT_EQ(reports, 1);
}

TEST_F(Copying, TextsThatNeedIt_AreQuoted)
{
    Make(1, 4);
    const wchar_t* const texts[] = {L"a\tb", L"say \"c\"", L"two\r\nlines", L" d "};
    for (long col = 0; col < 4; ++col)
        grid.GetCell(0, col).SetText(texts[col]);
    clipboard.CopyAll();
    EXPECT_EQ(TextOnClipboard(), L"\"a\tb\"\t\"say \"\"c\"\"\"\t\"two\r\nlines\"\t d \r\n");
}

TEST_F(Copying, OffersAllFormats_WithTheSameCells)
{
    Make();
    grid.GetCell(0, 0).SetText(L"a,b");
    Select(0, 0, 0, 1);
    clipboard.Copy();
    EXPECT_TRUE(HasFormat(CF_UNICODETEXT) && HasFormat(CsvFormat()) && HasFormat(HtmlFormat()) &&
                HasFormat(OwnFormat()));
    EXPECT_EQ(BytesOnClipboard(CsvFormat()).substr(0, 14), std::string("\"a,b\",\"0,1\"\r\n\0", 14));
    const std::string html = BytesOnClipboard(HtmlFormat());
    EXPECT_NE(html.find("StartFragment"), std::string::npos);
    EXPECT_NE(html.find("a,b"), std::string::npos) << html;
    EXPECT_EQ(BytesOnClipboard(OwnFormat()).substr(0, 8), "QCELPACK");
}

// Programs take CSV as text of the system's code page unless it says what it is.
TEST_F(Copying, Csv_SaysThatItIsUtf8_WhereItMatters)
{
    Make(1, 2);
    grid.GetCell(0, 0).SetText(L"\x540D\x79F0");
    clipboard.CopyAll();
    EXPECT_EQ(BytesOnClipboard(CsvFormat()).substr(0, 9), "\xEF\xBB\xBF\xE5\x90\x8D\xE7\xA7\xB0");
}

TEST_F(Copying, Captions_AreALineOfTheirOwn_IfWanted)
{
    Make(2, 2);
    grid.GetCol(0).SetName(L"Part");
    grid.GetCol(1).SetName(L"Unit");
    clipboard.SetCaptions(true);
    Select(1, 0, 1, 1);
    clipboard.Copy();
    EXPECT_EQ(TextOnClipboard(), L"Part\tUnit\r\n1,0\t1,1\r\n");
    Select(0, 0, 0, 0);
    clipboard.Paste();
    EXPECT_EQ(AllTexts(grid), "1,0|1,1 / 1,0|1,1") << "the own format keeps captions and cells apart";
}

TEST_F(Copying, RowsAndColumns_ThatAreSelected_AreTheCells)
{
    Make(4);
    grid.SelectRow(1, true);
    grid.SelectRow(3, true);
    EXPECT_EQ(Text(clipboard.Copy()), "done 6");
    EXPECT_EQ(TextOnClipboard(), L"1,0\t1,1\t1,2\r\n3,0\t3,1\t3,2\r\n");
    grid.SelectCol(2, true);
    grid.SelectCol(0, true);
    clipboard.Copy();
    EXPECT_EQ(TextOnClipboard(), L"0,0\t0,2\r\n1,0\t1,2\r\n2,0\t2,2\r\n3,0\t3,2\r\n");
}

TEST_F(Copying, SeveralRanges_OfOneShape_GoTogether)
{
    Make(4);
    Select(2, 1, 2, 1);
    cursor.SelectRange({0, 1, 0, 1}, true);
    EXPECT_EQ(Text(clipboard.Copy()), "done 2");
    EXPECT_EQ(TextOnClipboard(), L"0,1\r\n2,1\r\n");
    cursor.SelectRange({3, 2, 3, 2}, true);
    clipboard.Copy();
    EXPECT_EQ(TextOnClipboard(), L"0,1\r\n2,1\r\n3,2\r\n");
}

TEST_F(Copying, OtherRanges_AreRefused_AndLeaveTheClipboardAlone)
{
    Make(4);
    PutText(L"before");
    Select(0, 0, 0, 1);
    cursor.SelectRange({2, 2, 3, 2}, true);
    EXPECT_EQ(Text(clipboard.Copy()), "refused: different shapes, done 0");
    EXPECT_EQ(TextOnClipboard(), L"before");
}

TEST_F(Copying, WithoutCells_ThereIsNothingToCopy)
{
    Make(0);
    EXPECT_FALSE(clipboard.CanCopy());
    EXPECT_EQ(Text(clipboard.Copy()), "refused: nothing selected, done 0");
    EXPECT_EQ(Text(clipboard.CopyAll()), "refused: nothing selected, done 0");
    cursor.Detach();
    grid.AppendRow(nullptr);
    EXPECT_FALSE(clipboard.CanCopy());
    EXPECT_EQ(Text(clipboard.Copy()), "refused: nothing selected, done 0") << "nobody has ranges";
    clipboard.Detach();
    EXPECT_EQ(Text(clipboard.Copy()), "refused: nothing selected, done 0");
}

TEST_F(Copying, MoreCellsThanAllowed_AreRefused)
{
    Make();
    clipboard.SetMaxCells(8);
    EXPECT_EQ(Text(clipboard.CopyAll()), "refused: too large, done 0");
    EXPECT_FALSE(HasFormat(CF_UNICODETEXT));
    clipboard.SetMaxCells(9);
    EXPECT_EQ(Text(clipboard.CopyAll()), "done 9");
}

TEST_F(Copying, TheRowBuffer_IsAnotherThing)
{
    Make();
    grid.SelectRow(0, true);
    grid.DoCopy();
    grid.UnSelect();
    cursor.MoveTo(1, 1);
    clipboard.Copy();
    EXPECT_EQ(grid.GetRowPaste().GetNum(), 1);
    EXPECT_EQ(TextOnClipboard(), L"1,1\r\n");
}

// Before the text could go on, a zero would end it for whoever reads it.
TEST_F(Copying, AZeroInAText_LosesNothingBehindIt)
{
    Make(1, 2);
    grid.GetCell(0, 0).GetText() = CString(L"a\0b", 3);
    Select(0, 0, 0, 1);
    clipboard.Copy();
    EXPECT_EQ(TextOnClipboard(), L"a\x2400"
                                 L"b\t0,1\r\n");
}

} // namespace
} // namespace quor::test
