// Tables as HTML for the clipboard: what is written.
#include "rules/CellHtml.h"

#include "tests/rules/CellTables.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

std::size_t OffsetIn(std::string_view html, std::string_view name)
{
    const std::size_t at = html.find(std::string(name) + ":");
    return at == std::string_view::npos ? at : std::stoul(std::string(html.substr(at + name.size() + 1, 10)));
}

// The cell as it stands in the HTML, with its tags.
std::string Cell(std::wstring_view text)
{
    CellHtmlWriter writer;
    writer.BeginRow();
    writer.Cell(text);
    writer.EndRow();
    const std::string html = writer.TakeHtml();
    const std::size_t first = html.find("<tr>") + 4;
    return html.substr(first, html.find("</tr>") - first);
}

TEST(CellHtml, TheHeaderHasTheOffsetsOfPageAndFragment_InBytes)
{
    CellHtmlWriter writer;
    writer.BeginRow();
    writer.Cell(L"\xE4\x20AC\xD83D\xDE00");
    writer.EndRow();
    const std::string html = writer.TakeHtml();
    EXPECT_TRUE(html.starts_with("Version:0.9\r\nStartHTML:"));
    EXPECT_TRUE(html.substr(OffsetIn(html, "StartHTML")).starts_with("<html>"));
    EXPECT_EQ(OffsetIn(html, "EndHTML"), html.size());
    EXPECT_TRUE(html.ends_with("</html>"));
    const std::size_t first = OffsetIn(html, "StartFragment");
    const std::size_t end = OffsetIn(html, "EndFragment");
    EXPECT_EQ(html.substr(first, end - first),
              "<table>\r\n<tr><td>\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80</td></tr>\r\n</table>");
    EXPECT_TRUE(html.substr(0, first).ends_with("<!--StartFragment-->"));
    EXPECT_TRUE(html.substr(end).starts_with("<!--EndFragment-->"));
}

TEST(CellHtml, MarkupInTexts_IsText)
{
    EXPECT_EQ(Cell(L"<b>\"a\" & 'b'</b>"), "<td>&lt;b&gt;&quot;a&quot; &amp; 'b'&lt;/b&gt;</td>");
    EXPECT_EQ(Cell(L""), "<td></td>");
}

TEST(CellHtml, LineBreaks_AreBr)
{
    EXPECT_EQ(Cell(L"a\r\nb\nc\rd"), "<td>a<br>b<br>c<br>d</td>");
    EXPECT_EQ(Cell(L"\n\ra"), "<td><br><br>a</td>");
}

TEST(CellHtml, BlanksThatWouldBeFolded_HaveAName)
{
    EXPECT_EQ(Cell(L"a b c"), "<td>a b c</td>");
    EXPECT_EQ(Cell(L" a  b "), "<td>&nbsp;a &nbsp;b&nbsp;</td>");
    EXPECT_EQ(Cell(L"a \n b"), "<td>a&nbsp;<br>&nbsp;b</td>");
    EXPECT_EQ(Cell(L"  "), "<td>&nbsp;&nbsp;</td>");
    EXPECT_EQ(Cell(L"1\xA0"
                   L"2"),
              "<td>1&#160;2</td>");
}

TEST(CellHtml, OtherWhiteSpace_IsMarkedToBeKept)
{
    EXPECT_EQ(Cell(L"a\tb"), "<td style=\"white-space:pre-wrap\">a\tb</td>");
    EXPECT_EQ(Cell(L" "), "<td style=\"white-space:pre-wrap\">&nbsp;</td>");
    EXPECT_EQ(Cell(L"\n"), "<td style=\"white-space:pre-wrap\"><br></td>");
}

TEST(CellHtml, CaptionsAreHeaders_AndLevelsAreIndented)
{
    CellHtmlWriter writer;
    writer.BeginCaptions();
    writer.Cell(L"A");
    writer.Cell(L"B");
    writer.EndRow();
    writer.BeginRow({1, false, 0});
    writer.Cell(L"a");
    writer.Cell(L"b");
    writer.EndRow();
    writer.BeginRow({2, false, 0});
    writer.Cell(L"\t");
    writer.EndRow();
    const std::string html = writer.TakeHtml();
    EXPECT_NE(html.find("<tr><th>A</th><th>B</th></tr>\r\n"
                        "<tr><td style=\"padding-left:1.5em\">a</td><td>b</td></tr>\r\n"
                        "<tr><td style=\"padding-left:3em;white-space:pre-wrap\">\t</td></tr>"),
              std::string::npos);
}

TEST(CellHtml, WhatHtmlCannotHave_IsReplacedAndCounted)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(Cell(L"a\0b\xD800z"sv), "<td>a\xE2\x90\x80"
                                      "b\xEF\xBF\xBDz</td>");
    CellHtmlWriter writer;
    writer.Cell(L"a\0b\xDC00z"sv);
    EXPECT_EQ(writer.GetReplacedNum(), 2U);
}

// What HTML does not say comes back otherwise: line breaks as line feeds, replaced characters, no marks, and
// captions as a row where there is no other, or nothing in them.
std::wstring AsHtml(std::wstring_view text)
{
    std::wstring changed;
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        const auto code = static_cast<unsigned long>(text[at]);
        const auto next = at + 1 < text.size() ? static_cast<unsigned long>(text[at + 1]) : 0;
        const bool isPair =
            sizeof(wchar_t) == 2 && code >= 0xD800 && code < 0xDC00 && next >= 0xDC00 && next < 0xE000;
        if (isPair)
            changed.append(text, at++, 2);
        else if (code >= 0xD800 && code < 0xE000)
            changed += L'\xFFFD';
        else if (code == 0)
            changed += L'\x2400';
        else if (code != '\n' || at == 0 || text[at - 1] != L'\r')
            changed += code == '\r' ? L'\n' : text[at];
    }
    return changed;
}

CellTable AsHtml(const CellTable& table)
{
    CellTable changed;
    if (table.HasCaptions())
    {
        if (table.GetRowNum() > 0 && table.GetCaptionNum() > 0)
            changed.BeginCaptions();
        for (std::size_t col = 0; col < table.GetCaptionNum(); ++col)
            changed.Cell(AsHtml(table.GetCaption(col)));
        changed.EndRow();
    }
    for (std::size_t row = 0; row < table.GetRowNum(); ++row)
    {
        for (std::size_t col = 0; col < table.GetCellNum(row); ++col)
            changed.Cell(AsHtml(table.GetText(row, col)));
        changed.EndRow();
    }
    return changed;
}

TEST(CellHtml, RandomTables_ComeBackAsTheyWere)
{
    std::mt19937 random(20264);
    for (int i = 0; i < RandomTableNum(); ++i)
    {
        const CellTable table = RandomTable(random, {});
        CellHtmlWriter writer;
        table.WriteTo(writer);
        const std::string html = writer.TakeHtml();
        CellHtmlNotes notes;
        ASSERT_EQ(Shown(ReadCellHtml(html, &notes)), Shown(AsHtml(table))) << "table " << i << "\n" << html;
        ASSERT_FALSE(notes.hasWrongOffsets || notes.isCut || notes.wrongBytes > 0) << "table " << i;
    }
}

} // namespace
} // namespace quor::test
