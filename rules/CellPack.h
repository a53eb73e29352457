// CellPack: tables as bytes that lose nothing, for the clipboard between programs of this library.
//
// A pack has a version and the length of all that follows, and is read only when every count, length and flag
// in it is one that the writer writes: any other bytes are refused with a reason, and nothing of them is
// used. What was read and is written again gives the same bytes.
//
// All numbers stand with their lowest byte first:
//
//     offset  bytes
//          0      8  "QCELPACK"
//          8      4  version: 1
//         12      4  flags: 1 there are captions
//         16      8  bytes of the whole pack, this header included
//         24      8  rows
//         32      8  cells, captions included
//         40      8  UTF-16 units of all texts
//         48      8  captions
//         56      8  sum of the bytes behind the header, each eight of them as one number; missing ones are 0
//         64         for each row 8 identifier, 4 level, 4 cells, 4 flags (1 folded), 4 nothing (0)
//                    for each cell 4 UTF-16 units of its text
//                    the texts, captions first
//
// Bytes behind the pack are none of its own: blocks of memory are often longer than what was asked for.
#pragma once

#include "rules/CellTable.h"

namespace QuorUiCtr
{

// Collects a table; where the bytes go is up to the caller, so that they are written but once.
class CellPackWriter final : public CellSink
{
public:
    using CellSink::BeginRow;

    void Reserve(std::size_t rows, std::size_t cells, std::size_t characters);

    void BeginCaptions() override;
    void BeginRow(const RowMark& mark) override;
    // A text has at most 4,294,967,295 characters, a row as many cells; what is beyond is left out, and
    // IsComplete says so.
    void Cell(std::wstring_view text) override;
    void EndRow() override;

    bool IsComplete() const { return isComplete; }
    // How many bytes Write writes.
    std::size_t GetSize() const;
    void Write(unsigned char* bytes) const;
    std::string GetBytes() const;

private:
    struct Row
    {
        RowMark mark;
        std::uint32_t cells;
    };

    std::vector<Row> rows;
    std::vector<std::uint32_t> lengths;
    std::u16string characters;
    std::size_t rowBegin = 0;
    std::size_t captionNum = 0;
    bool hasCaptions = false;
    bool inCaptions = false;
    bool isComplete = true;
};

enum class CellPackError
{
    None,
    // The bytes begin otherwise.
    NoPack,
    // Of a version that this one does not know.
    OtherVersion,
    // There are fewer bytes than the pack has.
    Cut,
    // Counts, lengths, flags or the sum contradict each other.
    Damaged
};

// Makes `table`, which is empty, what the bytes say. It stays empty when they are refused.
CellPackError ReadCellPack(std::string_view bytes, CellTable& table);

} // namespace QuorUiCtr
