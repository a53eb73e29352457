// CellTable: texts in rows as they travel between programs, and CellSink, which takes such rows one by one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace QuorUiCtr
{

// What a row of a tree grid is beside its texts. Formats that other programs read leave it out.
struct RowMark
{
    // 0 for a root; not negative.
    int level = 0;
    bool isFolded = false;
    // Whatever the writer recognises the row by.
    std::int64_t identifier = 0;
    bool operator==(const RowMark&) const = default;
};

// Takes a table row by row: a program walks its cells once for all formats.
//
//     sink.BeginCaptions();           // at most once and first, when there are captions
//     for (...) sink.Cell(caption);
//     sink.EndRow();
//     for (...)
//     {
//         sink.BeginRow();            // or with what a tree row is
//         for (...) sink.Cell(text);
//         sink.EndRow();
//     }
//
// Texts are taken as they are, of any length and with any characters, and may go away after the call.
class CellSink
{
public:
    virtual ~CellSink() = default;

    virtual void BeginCaptions() = 0;
    virtual void BeginRow(const RowMark& mark) = 0;
    void BeginRow() { BeginRow(RowMark()); }
    virtual void Cell(std::wstring_view text) = 0;
    virtual void EndRow() = 0;
};

// Rows of texts, each with as many cells as it was given, maybe none; in five buffers, however many cells
// there are. Indices count from 0.
class CellTable final : public CellSink
{
public:
    using CellSink::BeginRow;

    // Makes room, so that nothing is moved while the cells come in. Only a hint.
    void Reserve(std::size_t rows, std::size_t cells, std::size_t characters);

    void BeginCaptions() override;
    void BeginRow(const RowMark& mark) override;
    void Cell(std::wstring_view text) override;
    void EndRow() override;
    // Behind the last row, those of another table; its captions, if it has any, become a row.
    void Append(const CellTable& other);

    std::size_t GetRowNum() const { return rowEnds.size(); }
    bool IsEmpty() const { return rowEnds.empty() && !hasCaptions; }
    // The cells of a row; 0 for a row that there is not.
    std::size_t GetCellNum(std::size_t row) const;
    // The cells of the longest row, captions included.
    std::size_t GetColNum() const { return widest; }
    std::size_t GetAllCellNum() const { return ends.size(); }
    std::size_t GetCharacterNum() const { return characters.size(); }
    // Empty for a cell that there is not. Good until the table is changed.
    std::wstring_view GetText(std::size_t row, std::size_t col) const;
    // Level 0 and identifier 0 unless the row was given others.
    RowMark GetMark(std::size_t row) const;
    // Whether a row has a mark that is not the plain one.
    bool HasMarks() const { return !marks.empty(); }

    // A table may have captions without any cell.
    bool HasCaptions() const { return hasCaptions; }
    std::size_t GetCaptionNum() const { return captionNum; }
    std::wstring_view GetCaption(std::size_t col) const;
    // The captions become the first row, for a program that has no use for them; nothing without.
    void MakeCaptionsARow();
    // The other way: the first row becomes the captions. Nothing without a row, or with captions.
    void MakeFirstRowCaptions();

    // Hands all over to another sink.
    void WriteTo(CellSink& sink) const;

    bool operator==(const CellTable& other) const;

private:
    std::wstring_view TextAt(std::size_t cell) const;
    std::size_t FirstCell(std::size_t row) const { return row == 0 ? captionNum : rowEnds[row - 1]; }

    // All texts behind each other, those of the captions first; where each ends; the cell that each row ends
    // before. Marks only up to the last row that has one.
    std::wstring characters;
    std::vector<std::size_t> ends;
    std::vector<std::size_t> rowEnds;
    std::vector<RowMark> marks;
    std::size_t captionNum = 0;
    std::size_t widest = 0;
    bool hasCaptions = false;
    bool inCaptions = false;
};

} // namespace QuorUiCtr
