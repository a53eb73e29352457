// Tables from HTML of all kinds: structure, text, and bytes that are hardly HTML.
#include "rules/CellHtml.h"

#include "tests/rules/CellTables.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

std::string Read(std::string_view html)
{
    return Shown(ReadCellHtml(html));
}

// One cell.
std::string Cell(std::string_view html)
{
    return Read("<table><tr><td>" + std::string(html) + "</td></tr></table>");
}

CellHtmlNotes NotesOf(std::string_view html)
{
    CellHtmlNotes notes;
    ReadCellHtml(html, &notes);
    return notes;
}

// ---- Rows and cells

TEST(CellHtmlRead, TagsMayBeWrittenInAnyWay)
{
    EXPECT_EQ(
        Read("<TABLE BORDER=1><TR class='x'><Td ALIGN=left >a</tD\n><td\nid=\"a>b\">b</TD></tr></TABLE>"),
        "a|b|\n");
    EXPECT_EQ(Read("<table><thead><tr><td>a</td></tr></thead><tbody><tr><td>b</td></tr></tbody><tfoot><tr>"
                   "<td>c</td></tr></tfoot></table>"),
              "a|\nb|\nc|\n");
}

TEST(CellHtmlRead, WhatIsLeftOpen_EndsWhereTheNextBegins)
{
    EXPECT_EQ(Read("<table><tr><td>a<td>b<tr><td>c<th>d"), "a|b|\nc|d|\n");
    EXPECT_EQ(Read("<table><td>a<td>b</table>"), "a|b|\n");
    EXPECT_EQ(Read("<tr><td>a</td></tr><tr><td>b"), "a|\nb|\n");
    EXPECT_EQ(Read("<td>a</td><td>b</td>"), "a|b|\n");
    EXPECT_EQ(Read("</td></tr></table><table><tr><td>a</td></table></table>"), "a|\n");
    EXPECT_EQ(Read("<table><tr></tr><tr><td></td></tr></table>"), "\n|\n");
    EXPECT_EQ(Read("<table></table>"), "");
    EXPECT_EQ(Read(""), "");
}

TEST(CellHtmlRead, AFirstRowOfHeaders_IsTheCaptions)
{
    EXPECT_EQ(Read("<table><tr><th>A<th>B<tr><td>a<td>b</table>"), "^A|B|\na|b|\n");
    EXPECT_EQ(Read("<table><tr><th>A<td>B<tr><td>a<td>b</table>"), "A|B|\na|b|\n");
    EXPECT_EQ(Read("<table><tr><th>A<th>B</table>"), "A|B|\n");
    EXPECT_EQ(Read("<table><tr><td>A<tr><th>B</table>"), "A|\nB|\n");
    EXPECT_EQ(Read("<table><tr></tr><tr><td>B</table>"), "\nB|\n");
}

TEST(CellHtmlRead, CellsThatOthersCover_AreEmpty)
{
    EXPECT_EQ(Read("<table><tr><td colspan=2>a<td>b<tr><td>c<td>d<td>e</table>"), "a||b|\nc|d|e|\n");
    EXPECT_EQ(Read("<table><tr><td rowspan='2'>a<td>b<tr><td>c<tr><td>d<td>e</table>"), "a|b|\n|c|\nd|e|\n");
    EXPECT_EQ(Read("<table><tr><td>a<td rowspan=3>b<td>c<tr><td>d<td>e<tr><td>f</table>"),
              "a|b|c|\nd||e|\nf||\n");
    EXPECT_EQ(Read("<table><tr><td>x<td rowspan=2 colspan=\" 2 \">a<tr><td>c</table>"), "x|a||\nc|||\n");
    EXPECT_EQ(Read("<table><tr><td>a<td>b<td rowspan=2>c<tr></table>"), "a|b|c|\n|||\n");
}

TEST(CellHtmlRead, SpansThatGoTooFar_EndWithTheTable)
{
    EXPECT_EQ(Read("<table><tr><td rowspan=9>a<td>b<tr><td>c</table><p>d"), "a|b|\n|c|\nd|\n");
    EXPECT_EQ(Read("<table><tr><td rowspan=0>a<td>b<tr><td>c<tr><td>d</table>"), "a|b|\n|c|\n|d|\n");
    EXPECT_EQ(Read("<table><tbody><tr><td rowspan=5>a<td>b<tbody><tr><td>c</table>"), "a|b|\nc|\n");
    for (const char* nonsense : {"colspan", "colspan=", "colspan=-2", "colspan=x", "colspan=0", "colspan=''"})
        EXPECT_EQ(Read("<table><tr><td " + std::string(nonsense) + ">a<td>b</table>"), "a|b|\n") << nonsense;
    EXPECT_EQ(ReadCellHtml("<td colspan=99999999999999999999>a").GetCellNum(0), 1000U);
}

TEST(CellHtmlRead, SpansOverSpans_LoseNoText)
{
    EXPECT_EQ(Read("<table><tr><td>a<td rowspan=3>b<tr><td colspan=2>c<td>d<tr><td>e<td>f</table>"),
              "a|b|\nc||d|\ne||f|\n");
}

TEST(CellHtmlRead, SpansBeyondAllReason_AreLeftOutAndNoticed)
{
    std::string html = "<table>";
    for (int i = 0; i < 2000; ++i)
        html += "<tr><td colspan=1000 rowspan=65534>x";
    CellHtmlNotes notes;
    const CellTable table = ReadCellHtml(html, &notes);
    EXPECT_TRUE(notes.hasCutSpans);
    EXPECT_EQ(table.GetRowNum(), 2000U);
    EXPECT_LT(table.GetAllCellNum(), 200'000U);
    std::size_t texts = 0;
    for (std::size_t row = 0; row < table.GetRowNum(); ++row)
        for (std::size_t col = 0; col < table.GetCellNum(row); ++col)
            texts += table.GetText(row, col).size();
    EXPECT_EQ(texts, 2000U);
    EXPECT_FALSE(NotesOf("<td colspan=1000>").hasCutSpans);
}

TEST(CellHtmlRead, RowsThatAreNotDisplayed_AreNone)
{
    EXPECT_EQ(
        Read("<table><tr><td>a</td></tr><tr height=0 style='display:none'><td width=64></td></tr></table>"),
        "a|\n");
    EXPECT_EQ(Read("<tr style=\"color:red; DISPLAY: None\"><td colspan=3 rowspan=2>a<tr><td>b"), "b|\n");
}

TEST(CellHtmlRead, TextAroundTables_IsRowsOfOneCell)
{
    CellHtmlNotes notes;
    EXPECT_EQ(Shown(ReadCellHtml("<p>Two\n tables:</p><table><tr><td>a<td>b</table><p>&nbsp;</p>"
                                 "<table><tr><th>c<tr><td>d</table> <div><br></div>end",
                                 &notes)),
              "Two tables:|\na|b|\nc|\nd|\nend|\n");
    EXPECT_EQ(notes.tables, 2U);
    EXPECT_EQ(Read("<table><caption>Title</caption><tr><td>a</td></tr>stray</table>"),
              "Title|\nstray|\na|\n");
}

TEST(CellHtmlRead, WithoutATable_LinesAreRows)
{
    CellHtmlNotes notes;
    EXPECT_EQ(Shown(ReadCellHtml("<ul><li>one</li><li>two <b>bold</b></li></ul><br>three", &notes)),
              "one|\ntwo bold|\n|\nthree|\n");
    EXPECT_EQ(notes.tables, 0U);
    EXPECT_EQ(Read("just text"), "just text|\n");
    EXPECT_EQ(Read("<p>&nbsp;</p> <br>"), "");
}

TEST(CellHtmlRead, TablesInCells_AreText_OrTheTableWhenThereIsNothingElse)
{
    EXPECT_EQ(Read("<table><tr><td>x<table><tr><th>A<tr><td>a<td>b</table>y<td>z</table>"),
              "x\\nA\\na\\tb\\ny|z|\n");
    EXPECT_EQ(Read("<table><tr><td>\n<table><tr><td>a<td>b<tr><td>c</table>\n</td></tr></table>"),
              "a|b|\nc|\n");
    EXPECT_EQ(Read("<table><tr><td><table><tr><td><table><tr><td>a<td>b</table></table></table>"), "a|b|\n");
    EXPECT_EQ(Read("<table><tr><td><table><tr><td>a<td>b</table>more</table>"), "a\\tb\\nmore|\n");
    EXPECT_EQ(Read("<table><tr><td><table><tr><td>a<td>b</table><tr><td>c</table>"), "a\\tb|\nc|\n");
    EXPECT_EQ(Read("<table><tr><td><table><tr><td>a<td>b</table><table><tr><td>c</table></table>"),
              "a\\tb\\nc|\n");
    EXPECT_EQ(Read("<table><tr><td>a<table></table><td>b</table>"), "a|b|\n");
}

TEST(CellHtmlRead, TablesDeeperThanAnybodyNests_AreTextOfTheirCell)
{
    std::string html;
    for (int i = 0; i < 100000; ++i)
        html += "<table><tr><td>";
    const CellTable table = ReadCellHtml(html + "deep</td></tr><tr><td>next</td></tr></table>after");
    EXPECT_EQ(table.GetRowNum(), 1U);
    EXPECT_NE(table.GetText(0, 0).find(L"deep\n\tnext"), std::wstring_view::npos) << "a row is a line";
    EXPECT_NE(table.GetText(0, 0).find(L"after"), std::wstring_view::npos);
}

// ---- Text

TEST(CellHtmlRead, WhiteSpaceIsFolded)
{
    EXPECT_EQ(Cell("\r\n  a \t b<b> c </b> d\n"), "a b c d|\n");
    EXPECT_EQ(Cell("a <br> b<br/>c</br>d"), "a\\nb\\nc\\nd|\n");
    EXPECT_EQ(Cell("<span> a</span><span> </span>b"), "a b|\n");
}

TEST(CellHtmlRead, NamedBlanks_AreBlanks)
{
    EXPECT_EQ(Cell("&nbsp;a&nbsp;&nbsp; b &nbsp;"), " a   b  |\n");
    EXPECT_EQ(Cell("1&#160;2\xC2\xA0"
                   "3"),
              "1\\{A0}2\\{A0}3|\n");
}

TEST(CellHtmlRead, WhatFillsAnEmptyCell_IsNothing)
{
    EXPECT_EQ(Cell("&nbsp;"), "|\n");
    EXPECT_EQ(Cell("<br>"), "|\n");
    EXPECT_EQ(Cell("<p class=x><span>&nbsp;</span></p>\n"), "|\n");
    EXPECT_EQ(Cell("<p>&nbsp;</p><p>&nbsp;</p>"), " \\n |\n");
    EXPECT_EQ(Read("<td style='white-space:pre'>&nbsp;</td>"), " |\n");
}

TEST(CellHtmlRead, ParagraphsAreLines)
{
    EXPECT_EQ(Cell("<p>a</p>\n<p>b</p>"), "a\\nb|\n");
    EXPECT_EQ(Cell("<div>a</div><div><br></div><div>b</div>"), "a\\n\\nb|\n");
    EXPECT_EQ(Cell("a<ul><li>b<li>c</ul>d<hr>e"), "a\\nb\\nc\\nd\\ne|\n");
    EXPECT_EQ(Cell("<div><div><p>a</p></div></div>"), "a|\n");
    EXPECT_EQ(Cell("a<br>"), "a\\n|\n");
}

TEST(CellHtmlRead, StylesMayKeepWhiteSpace)
{
    EXPECT_EQ(Cell("<pre> a\r\n  b\tc</pre>d"), " a\\n  b\\tc\\nd|\n");
    EXPECT_EQ(Cell("<pre>a\nb\r\rc\n\nd</pre>"), "a\\nb\\n\\nc\\n\\nd|\n");
    EXPECT_EQ(Cell("a<span style='mso-spacerun:yes'>   </span>b  c"), "a   b c|\n");
    EXPECT_EQ(Cell("<span style=\"color:red;white-space: PRE-WRAP\"> a <span>b  </span> </span>  c"),
              " a b    c|\n");
    EXPECT_EQ(Cell("<span style=\"white-space:pre-line\"> a  b</span>"), "a b|\n");
    EXPECT_EQ(Cell("<span style=\"white-space:nowrap\"> a  b</span>"), "a b|\n");
    EXPECT_EQ(Read("<td style='white-space:break-spaces'> a </td><td> b </td>"), " a |b|\n");
}

TEST(CellHtmlRead, CharactersHaveNamesAndNumbers)
{
    EXPECT_EQ(Cell("&lt;&amp;&gt;&quot;&apos;&#65;&#x42;&#X43;"), "<&>\"'ABC|\n");
    EXPECT_EQ(Cell("&eacute;&Eacute;&euro;&ndash;&alpha;&hearts;"),
              "\\{E9}\\{C9}\\{20AC}\\{2013}\\{3B1}\\{2665}|\n");
    EXPECT_EQ(Cell("&eacutex &copy2 &amp;lt; &AMP &ampamp"), "\\{E9}x \\{A9}2 &lt; & &amp|\n");
    EXPECT_EQ(Cell("&alpha &bogus; & &; &# &#; &#x; &#xg"), "&alpha &bogus; & &; &# &#; &#x; &#xg|\n");
    EXPECT_EQ(Cell("&#128;&#150;&#159;&#129;"), "\\{20AC}\\{2013}\\{178}\\{81}|\n");
    EXPECT_EQ(Cell("&#0;&#xD800;&#x110000;&#99999999999999999999;&#65"),
              "\\{FFFD}\\{FFFD}\\{FFFD}\\{FFFD}A|\n");
    EXPECT_EQ(Cell("&#32;a&#32;&#32;b&#9;"), " a  b\\t|\n");
}

TEST(CellHtmlRead, CommentsStylesAndScripts_AreNoText)
{
    EXPECT_EQ(
        Cell("a<!-- <td>x</td> -->b<!---->c<!-->d<![if !x]>e<![endif]>f<?xml:x ?>g<!doctype y>h</>i</ p>j"),
        "abcdefghij|\n");
    EXPECT_EQ(
        Cell("<STYLE>td{a>b}</td></STYLE>a<script>if (1<2) '</td></scriptx>'</Script >b<title>t</title>"),
        "ab|\n");
    EXPECT_EQ(Cell("a < b <3 <<b>c</b> <"), "a < b <3 <c <|\n");
}

TEST(CellHtmlRead, WhatDoesNotEnd_IsNoticed)
{
    EXPECT_TRUE(NotesOf("a<!-- b").isCut);
    EXPECT_TRUE(NotesOf("a<style>b").isCut);
    EXPECT_TRUE(NotesOf("a<b").isCut);
    EXPECT_FALSE(NotesOf("a<b>c < d").isCut);
    EXPECT_EQ(Read("a<b"), "a<b|\n");
    EXPECT_EQ(Read("<table><tr><td title=\"x>a<td>b<td>c</table>"), "a|b|c|\n");
    EXPECT_TRUE(NotesOf("<table><tr><td title=\"x>a").isCut);
    EXPECT_EQ(Read("<td>a<td title='b>c"), "a|c|\n");
    EXPECT_EQ(Read("<td>a<td b"), "a<td b|\n");
}

TEST(CellHtmlRead, WrongUtf8_IsReplacedAndCounted)
{
    EXPECT_EQ(Cell("a\x80z\xE2\x82 \xC3"), "a\\{FFFD}z\\{FFFD} \\{FFFD}|\n");
    EXPECT_EQ(NotesOf("a\x80z\xE2\x82 \xC3").wrongBytes, 3U);
    EXPECT_EQ(NotesOf("\xC3\xA4").wrongBytes, 0U);
}

// ---- The fragment

std::string WithHeader(std::string_view offsets, std::string_view page)
{
    return "Version:1.0\r\n" + std::string(offsets) + "SourceURL:about:blank\r\n" + std::string(page);
}

TEST(CellHtmlRead, OnlyTheFragmentCounts)
{
    EXPECT_EQ(Read("<html><body>x<!--StartFragment--><td>a</td><!--EndFragment-->y</body></html>"), "a|\n");
    EXPECT_EQ(Read("<table><tr><!--StartFragment--><td>a</td><td>b</td><!--EndFragment--></tr></table>"),
              "a|b|\n");
    // "Version:1.0", the offsets and the source are 86 bytes.
    const std::string html =
        WithHeader("StartFragment:0000000089\r\nEndFragment:0000000099\r\n", "xxx<td>a</td>yyy");
    ASSERT_EQ(html.find("<td>"), 89U);
    CellHtmlNotes notes;
    EXPECT_EQ(Shown(ReadCellHtml(html, &notes)), "a|\n");
    EXPECT_FALSE(notes.hasWrongOffsets);
}

TEST(CellHtmlRead, WrongOffsets_DoNotHideTheFragment)
{
    const char* const offsets[] = {"StartFragment:-1\r\nEndFragment:-1\r\n",
                                   "StartFragment:0000000000\r\nEndFragment:0000000010\r\n",
                                   "StartFragment:0000000120\r\nEndFragment:0000000090\r\n",
                                   "StartFragment:0000000090\r\nEndFragment:9999999999\r\n",
                                   "StartFragment:99999999999999999999999999\r\nEndFragment:x\r\n",
                                   "StartFragment:\r\n",
                                   ""};
    for (const char* wrong : offsets)
    {
        CellHtmlNotes notes;
        EXPECT_EQ(Shown(ReadCellHtml(WithHeader(wrong, "<html><td>a</td></html>"), &notes)), "a|\n") << wrong;
        EXPECT_TRUE(notes.hasWrongOffsets) << wrong;
        EXPECT_EQ(Shown(ReadCellHtml(
                      WithHeader(wrong, "<html>x<!--StartFragment--><td>a</td><!--EndFragment-->y</html>"),
                      &notes)),
                  "a|\n")
            << wrong;
        EXPECT_TRUE(notes.hasWrongOffsets) << wrong;
    }
    EXPECT_EQ(Read("Version:0.9\r\nno page"), "");
    EXPECT_EQ(Read("Version:"), "");
}

TEST(CellHtmlRead, WhatStandsBehindTheHtmlInItsMemory_IsNotRead)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(Read("<td>a</td>\0<td>b</td>"sv), "a|\n");
    EXPECT_EQ(Read("<!--StartFragment--><td>a</td><!--EndFragment-->\0x<!--EndFragment-->"sv), "a|\n");
    CellHtmlWriter writer;
    writer.Cell(L"a");
    EXPECT_EQ(Read(writer.TakeHtml() + std::string("\0rest<td>b"sv)), "a|\n");
}

// ---- Time

void ExpectQuick(const std::string& html)
{
    const auto begin = std::chrono::steady_clock::now();
    ReadCellHtml(html);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5)) << html.substr(0, 40);
}

// Each of these takes a fraction of a second, and hours when something is looked for again and again.
TEST(CellHtmlRead, HostileRepetition_CostsNoMoreThanOther)
{
    const char* const pieces[] = {"<!--",
                                  "<",
                                  "<a ",
                                  "<a b=\"",
                                  "<a b=\">",
                                  "<style>",
                                  "</",
                                  "<![if",
                                  "<table>",
                                  "<table><tr><td>",
                                  "</table>",
                                  "<td rowspan=65534>",
                                  "<tr><td rowspan=65534 colspan=1000>",
                                  "<td rowspan=2><tr>",
                                  "&",
                                  "&#",
                                  "&#x",
                                  "&aaaaaaaaaaaaaaaaaaaaa",
                                  "<pre>",
                                  "<br>",
                                  "<p>",
                                  "a=",
                                  "\x80",
                                  "<td style='",
                                  "<td style='a;b:c;'>"};
    for (const char* piece : pieces)
    {
        std::string html;
        while (html.size() < (HasSlowMemory ? 200'000U : 1'000'000U))
            html += piece;
        ExpectQuick(html);
        ExpectQuick("<td>" + html + ">");
    }
}

} // namespace
} // namespace quor::test
