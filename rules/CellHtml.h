// CellHtml: tables as HTML, the way programs exchange them by the clipboard.
#pragma once

#include "rules/CellTable.h"

namespace QuorUiCtr
{

// Collects a table as HTML in UTF-8, with the header of the clipboard in front: Version, StartHTML, EndHTML,
// StartFragment and EndFragment, which are offsets in bytes from the beginning of the header.
//
// - Captions are cells of <th>, rows of <td>; a line break, of whatever kind, is <br>.
// - Blanks that a browser would fold, at the ends of a line or behind another one, are &nbsp;; a U+00A0 is
//   &#160;. A cell with other white space, or with nothing but one blank or line break, is marked to keep it.
// - The first cell of a row of a level above 0 is indented. Folds and identifiers are left out.
// - U+0000, which HTML cannot have, becomes U+2400, a half of a surrogate pair U+FFFD.
class CellHtmlWriter final : public CellSink
{
public:
    using CellSink::BeginRow;

    CellHtmlWriter();

    // Makes room for so many bytes; only a hint.
    void Reserve(std::size_t bytes) { html.reserve(bytes); }

    void BeginCaptions() override;
    void BeginRow(const RowMark& mark) override;
    void Cell(std::wstring_view text) override;
    void EndRow() override;

    // Ends the table and writes the offsets; the writer is done with. Offsets have ten digits; of a text that
    // is too long for that, the result is empty.
    std::string TakeHtml();
    // How many characters were replaced by others.
    std::size_t GetReplacedNum() const { return replacedNum; }

private:
    void AppendText(std::wstring_view text);
    // What stands at a place and may not stand there as it is; returns how much of the text that was.
    std::size_t AppendOther(std::wstring_view text, std::size_t at);
    void OpenCell(std::wstring_view text);

    std::string html;
    std::size_t replacedNum = 0;
    int indent = 0;
    bool inCaptions = false;
};

// What was noticed while HTML was read, for a report.
struct CellHtmlNotes
{
    // Tables that gave rows, those within others not counted.
    std::size_t tables = 0;
    // The offsets of the header were wrong, and the fragment was found otherwise.
    bool hasWrongOffsets = false;
    // A comment, a style, a script or a tag does not end. What follows it is left out, but for a tag, of
    // which only what looks like it is.
    bool isCut = false;
    // Wrong UTF-8 became U+FFFD so often.
    std::size_t wrongBytes = 0;
    // Cells span more cells than a table for people has; from one on, all count as single ones.
    bool hasCutSpans = false;
};

// Reads HTML in UTF-8, with the header of the clipboard or without. Whatever the bytes are, there is an
// answer, in a time that grows as they do.
//
// - The fragment is what stands between its comments, else between its offsets, else all up to the first
//   U+0000. It may begin and end within a table.
// - Rows are those of all tables, in order. A first row of nothing but <th> is the captions, unless it is the
//   only one. Rows of one cell are the lines of text that stands outside of tables; text between the cells
//   of a table comes before it, as browsers show it.
// - Cells that a colspan or rowspan covers are empty ones. Rows that are not displayed are left out.
// - A table within a cell is text of the cell: a line for each row, tabs between cells. But where a cell is
//   all that a table has, and a table all that the cell has, the inner one is taken for the outer one.
// - White space is folded as browsers do, unless a style or <pre> keeps it. &nbsp; is a blank, which others
//   write so that it is not folded, other names and numbers of U+00A0 are that character. <br> is a line
//   feed, paragraphs are divided by one. A cell with nothing but one &nbsp; or <br> is empty, unless its
//   white space is kept.
// - Names and numbers of characters are those of HTML 4, also without the semicolon where browsers take them
//   so; unknown ones are text.
// - What is left open is closed where browsers close it. Comments, styles, scripts and titles are no text.
CellTable ReadCellHtml(std::string_view html, CellHtmlNotes* notes = nullptr);

} // namespace QuorUiCtr
