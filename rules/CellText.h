// CellText: tables as text with a separator between cells and a line for each row, as spreadsheets exchange
// it.
//
// A cell stands in quotes when it has the separator, a line break or a quote, and a quote in it stands twice.
// All characters are kept, blanks and control characters included.
//
// What is read may be quoted in other ways, or not at all, and loses nothing:
// - Rows end with a carriage return, a line feed, or both; the last one also without. An empty text has no
//   row, an empty line has one empty cell.
// - A cell counts as quoted when it begins with a quote, and the quote that closes it stands before a
//   separator, a line break or the end. In all other cells quotes are characters like any other: 5" pipe,
//   "so" they said, and a quote at the beginning that none closes, which therefore swallows no cells.
// - In quotes line breaks stay as they are.
// - U+0000 is a character like any other. What of a block of memory is text, TextOfBlock says.
// - One U+FEFF at the beginning is the mark of a file and no character of the cell.
#pragma once

#include "rules/CellTable.h"

namespace QuorUiCtr
{

// Collects the text; the captions are its first row. Levels, folds and identifiers are left out.
class CellTextWriter final : public CellSink
{
public:
    using CellSink::BeginRow;

    // `separator` is anything but a quote, CR, LF or U+0000.
    explicit CellTextWriter(wchar_t separator = L'\t', std::wstring_view lineBreak = L"\r\n");

    // Makes room for so many characters; only a hint.
    void Reserve(std::size_t characters) { text.reserve(characters); }
    // U+0000 ends the text for most programs that take it from the clipboard, and what follows would be lost
    // without a word. With this, U+2400, its picture, is written instead.
    void ReplaceNuls() { replacesNuls = true; }

    void BeginCaptions() override;
    void BeginRow(const RowMark& mark) override;
    void Cell(std::wstring_view cell) override;
    void EndRow() override;

    // The text up to now, without a terminating U+0000.
    const std::wstring& GetText() const { return text; }
    std::wstring TakeText();
    // How many U+0000 came in, replaced or not.
    std::size_t GetNulNum() const { return nulNum; }

private:
    void AppendQuoted(std::wstring_view cell);
    void CountNuls(std::size_t first);

    std::wstring text;
    std::wstring lineBreak;
    wchar_t separator;
    bool isFirstCell = true;
    bool replacesNuls = false;
    std::size_t nulNum = 0;
};

// What was noticed while a text was read, for a report.
struct CellTextNotes
{
    wchar_t separator = L'\t';
    // Cells that begin with a quote and are not quoted.
    std::size_t strayQuotes = 0;
    // U+0000, which are kept.
    std::size_t nuls = 0;
};

// Reads a text of any length, in a time that grows as it does.
CellTable ReadCellText(std::wstring_view text, wchar_t separator = L'\t', CellTextNotes* notes = nullptr);
// The same, row by row, for programs that need no table.
void ReadCellText(std::wstring_view text, wchar_t separator, CellSink& sink, CellTextNotes* notes = nullptr);

// Reads a text with the separator that RecognizeSeparator finds. A first line "sep=;", which spreadsheets
// understand, names the separator and is no row.
CellTable ReadCsv(std::wstring_view text, CellTextNotes* notes = nullptr);

// The separator of a text: of tab, semicolon, comma and bar the first one that divides all lines into the
// same number of cells, at least two; else the one that divides most lines; the comma when none divides any.
// Only the first 64 K characters are looked at.
wchar_t RecognizeSeparator(std::wstring_view text);

// A block of memory from the clipboard is longer than its text.
struct BlockText
{
    // Up to the first U+0000.
    std::wstring_view text;
    // Behind it stands more than U+0000: the text of a program that writes this character, or what was in the
    // memory before.
    bool hasMore = false;
};
BlockText TextOfBlock(std::wstring_view block);

} // namespace QuorUiCtr
