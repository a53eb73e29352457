// Clipboards that others hold, and what they may put there: nothing is lost, nothing half done without a
// report.
#include "module/QuorTexts.h"
#include "tests/clipboard/ClipboardTest.h"
#include "tests/support/Rounds.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class BadInput : public ClipboardTest
{
protected:
    static constexpr const char* Unchanged = "0,0|0,1|0,2 / 1,0|1,1|1,2 / 2,0|2,1|2,2";
};

TEST_F(BadInput, AClipboardThatIsHeld_IsTriedAWhile_AndThenRefused)
{
    Make();
    PutText(L"a");
    HeldClipboard held;
    clipboard.SetPatience(50);
    const ULONGLONG start = ::GetTickCount64();
    EXPECT_EQ(Text(clipboard.Paste()), "refused: busy, done 0");
    EXPECT_GE(::GetTickCount64() - start, 45U);
    EXPECT_EQ(Text(clipboard.Copy()), "refused: busy, done 0");
    held.Release();
    EXPECT_EQ(AllTexts(grid), Unchanged);
    EXPECT_EQ(TextOnClipboard(), L"a");
}

// Who holds it may wait for an answer of this very thread.
TEST_F(BadInput, AClipboardThatComesFree_IsUsed)
{
    Make();
    PutText(L"a");
    clipboard.SetPatience(DefaultDeadline);
    {
        HeldClipboard held;
        held.ReleaseWhenAnswered(host.m_hWnd);
        EXPECT_EQ(Text(clipboard.Paste()), "done 1");
    }
    HeldClipboard held;
    held.ReleaseWhenAnswered(host.m_hWnd);
    EXPECT_EQ(Text(clipboard.Copy()), "done 1");
    held.Release();
    EXPECT_EQ(TextOnClipboard(), L"a\r\n");
}

TEST_F(BadInput, AnEmptyClipboard_OrNoneOfTheFormats)
{
    Make();
    EXPECT_FALSE(clipboard.CanPaste());
    EXPECT_EQ(Text(clipboard.Paste()), "refused: nothing to paste, done 0");
    PutBytes(CF_WAVE, std::string(1000, '\7'));
    EXPECT_FALSE(clipboard.CanPaste());
    EXPECT_EQ(Text(clipboard.Paste()), "refused: nothing to paste, done 0");
    PutText(L"");
    EXPECT_EQ(Text(clipboard.Paste()), "refused: nothing to paste, done 0");
    EXPECT_EQ(AllTexts(grid), Unchanged);
}

TEST_F(BadInput, BytesThatAreNoTable_AreRefused)
{
    Make();
    for (const std::string& bytes : {std::string("QCELPACK"), std::string(5, '\0'), std::string(200, '\xFF'),
                                     "QCELPACK" + std::string(200, '\x7F')})
    {
        PutBytes(OwnFormat(), bytes);
        EXPECT_TRUE(clipboard.CanPaste());
        EXPECT_EQ(Text(clipboard.Paste()), "refused: nothing to paste, done 0");
    }
    EXPECT_EQ(AllTexts(grid), Unchanged);
}

TEST_F(BadInput, AnOddNumberOfQuotes_LosesNothing)
{
    Make();
    PutText(L"\"a\tb\r\nc\td\"\"\r\n");
    EXPECT_EQ(Text(clipboard.Paste()), "done 4");
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"\"a");
    EXPECT_EQ(grid.GetCell(1, 1).GetText(), L"d\"\"");
}

TEST_F(BadInput, ATextWithAZeroInIt_OrOfHalfACharacter_EndsThere)
{
    Make();
    PutBytes(CF_UNICODETEXT, std::string("c\0\0\0d\0", 6));
    EXPECT_EQ(Text(clipboard.Paste()), "done 1");
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"c");
    PutBytes(CF_UNICODETEXT, std::string("e\0\0\0f", 5));
    EXPECT_EQ(Text(clipboard.Paste()), "done 1");
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"e");
    PutBytes(CF_UNICODETEXT, "g");
    EXPECT_EQ(Text(clipboard.Paste()), "refused: nothing to paste, done 0");
}

TEST_F(BadInput, ATextOfTheProgramWithAZeroInIt_IsPastedWhole)
{
    Make();
    EXPECT_EQ(Text(clipboard.PasteText(CString(L"a\0b\tc", 5))), "done 2");
    EXPECT_EQ(std::wstring_view(grid.GetCell(0, 0).GetText(), 3), std::wstring_view(L"a\0b", 3));
    EXPECT_EQ(grid.GetCell(0, 1).GetText(), L"c");
}

TEST_F(BadInput, HtmlWithAZeroInIt_EndsWhereItsHeaderSays)
{
    Make();
    const std::string header = "Version:0.9\r\nStartFragment:0000000063\r\nEndFragment:0000000083\r\n";
    ASSERT_EQ(header.size(), 63U);
    const std::string rows = std::string("<td>a\0<td>b<tr><td>c", 20);
    PutBytes(HtmlFormat(), header + rows + std::string("\0<td>old", 9));
    EXPECT_EQ(Text(clipboard.Paste()), "done 3");
    EXPECT_EQ(Narrow(grid.GetCell(0, 1).GetText()), "b");
    EXPECT_EQ(Narrow(grid.GetCell(1, 0).GetText()), "c");
}

TEST_F(BadInput, MalformedHtml_HasAnAnswer)
{
    Make();
    for (const char* html :
         {"", "<", "Version:0.9\r\nStartHTML:99999999\r\nEndHTML:-1\r\n", "<!-- <table>", "<table", "<td>"})
    {
        PutBytes(HtmlFormat(), html + std::string(1, '\0'));
        const TGClipboardReport report = clipboard.Paste();
        EXPECT_LE(report.GetDone(), 1) << html;
    }
    PutBytes(HtmlFormat(), "<table><tr><td>a<td>b<tr><td>c&nbsp;&#x41;&lt");
    cursor.MoveTo(0, 0);
    EXPECT_EQ(Text(clipboard.Paste()), "done 3");
    EXPECT_EQ(grid.GetCell(0, 1).GetText(), L"b");
}

// 100 MB, less in the checked variant: a few long texts are pasted, millions of lines are refused before
// anything changes.
TEST_F(BadInput, AHugeText_IsPastedOrRefused_AsAWhole)
{
    Make();
    constexpr std::size_t Units = Rounds(50'000'000);
    {
        std::wstring text(Units, L'x');
        text[Units / 2] = L'\t';
        PutText(text);
        EXPECT_EQ(Text(clipboard.Paste()), "done 2");
        EXPECT_EQ(grid.GetCell(0, 0).GetText().GetLength(), static_cast<int>(Units / 2));
        clipboard.Empty();
        for (std::size_t i = 1; i < Units; i += 2)
            text[i] = L'\n';
        PutText(text);
    }
    EXPECT_EQ(Text(clipboard.Paste()), "refused: too large, done 0");
    EXPECT_EQ(grid.GetRowNum(), 3);
    EmptyClipboardContent();
}

// ---- The text of a report

TEST_F(BadInput, Reports_AreInTheLanguageOfTheLibrary)
{
    Make(1);
    QuorTexts::SetLanguage(QuorLanguage::English);
    grid.GetCell(0, 0).SetReadOnly(true);
    grid.SetRowFixLength(true);
    PutText(L"a\tb\nc\td");
    clipboard.Paste();
    EXPECT_EQ(reportText, L"Cells pasted: 1\nRead-only cells, left as they are: 1\nBeyond the last row: 2");
    EmptyClipboardContent();
    clipboard.Paste();
    EXPECT_EQ(reportText, L"There is nothing on the clipboard that can be pasted here.");
    clipboard.Copy();
    EXPECT_EQ(reportText, L"Cells copied: 2");
    QuorTexts::SetLanguage(QuorLanguage::Chinese);
    clipboard.Copy();
    EXPECT_EQ(reportText, L"\x5DF2\x590D\x5236\x5355\x5143\x683C\xFF1A"
                          L"2");
    QuorTexts::SetLanguage(QuorLanguage::Default);
}

TEST_F(BadInput, ADerivedClass_SeesTheReportItself)
{
    class Telling : public TGClipboard
    {
    public:
        using TGClipboard::TGClipboard;
        std::string seen;

    protected:
        void OnReport(const TGClipboardReport& report) override { seen += quor::test::Text(report) + ";"; }
    };
    Make();
    Telling telling(grid);
    telling.Copy();
    telling.FillWith(L"x");
    EXPECT_EQ(telling.seen, "done 1;done 1;");
}

} // namespace
} // namespace quor::test
