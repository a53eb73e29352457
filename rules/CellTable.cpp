// Tables of texts in few buffers.
#include "rules/CellTable.h"

#include <algorithm>
#include <utility>

namespace QuorUiCtr
{

void CellTable::Reserve(std::size_t rows, std::size_t cells, std::size_t characterNum)
{
    rowEnds.reserve(rows);
    ends.reserve(cells);
    characters.reserve(characterNum);
}

void CellTable::BeginCaptions()
{
    inCaptions = true;
}

void CellTable::BeginRow(const RowMark& mark)
{
    if (mark == RowMark())
        return;
    marks.resize(rowEnds.size());
    marks.push_back(mark);
}

void CellTable::Cell(std::wstring_view text)
{
    characters.append(text);
    ends.push_back(characters.size());
}

void CellTable::EndRow()
{
    const std::size_t first = inCaptions ? 0 : FirstCell(rowEnds.size());
    widest = (std::max)(widest, ends.size() - first);
    if (inCaptions)
    {
        captionNum = ends.size();
        hasCaptions = true;
        inCaptions = false;
    }
    else
        rowEnds.push_back(ends.size());
}

void CellTable::Append(const CellTable& other)
{
    const std::size_t characterNum = characters.size();
    const std::size_t cellNum = ends.size();
    characters.append(other.characters);
    for (const std::size_t end : other.ends)
        ends.push_back(characterNum + end);
    const std::size_t captionRows = other.hasCaptions ? 1 : 0;
    if (!other.marks.empty())
        marks.resize(rowEnds.size() + captionRows);
    marks.insert(marks.end(), other.marks.begin(), other.marks.end());
    if (other.hasCaptions)
        rowEnds.push_back(cellNum + other.captionNum);
    for (const std::size_t end : other.rowEnds)
        rowEnds.push_back(cellNum + end);
    widest = (std::max)(widest, other.widest);
}

std::size_t CellTable::GetCellNum(std::size_t row) const
{
    return row < rowEnds.size() ? rowEnds[row] - FirstCell(row) : 0;
}

std::wstring_view CellTable::TextAt(std::size_t cell) const
{
    const std::size_t first = cell == 0 ? 0 : ends[cell - 1];
    return std::wstring_view(characters).substr(first, ends[cell] - first);
}

std::wstring_view CellTable::GetText(std::size_t row, std::size_t col) const
{
    return col < GetCellNum(row) ? TextAt(FirstCell(row) + col) : std::wstring_view();
}

RowMark CellTable::GetMark(std::size_t row) const
{
    return row < marks.size() ? marks[row] : RowMark();
}

std::wstring_view CellTable::GetCaption(std::size_t col) const
{
    return col < captionNum ? TextAt(col) : std::wstring_view();
}

void CellTable::MakeCaptionsARow()
{
    if (!hasCaptions)
        return;
    rowEnds.insert(rowEnds.begin(), captionNum);
    if (!marks.empty())
        marks.insert(marks.begin(), RowMark());
    captionNum = 0;
    hasCaptions = false;
}

void CellTable::MakeFirstRowCaptions()
{
    if (hasCaptions || rowEnds.empty())
        return;
    captionNum = rowEnds.front();
    hasCaptions = true;
    rowEnds.erase(rowEnds.begin());
    if (!marks.empty())
        marks.erase(marks.begin());
}

void CellTable::WriteTo(CellSink& sink) const
{
    if (hasCaptions)
    {
        sink.BeginCaptions();
        for (std::size_t col = 0; col < captionNum; ++col)
            sink.Cell(TextAt(col));
        sink.EndRow();
    }
    std::size_t cell = captionNum;
    for (std::size_t row = 0; row < rowEnds.size(); ++row)
    {
        sink.BeginRow(GetMark(row));
        for (; cell < rowEnds[row]; ++cell)
            sink.Cell(TextAt(cell));
        sink.EndRow();
    }
}

bool CellTable::operator==(const CellTable& other) const
{
    return hasCaptions == other.hasCaptions && captionNum == other.captionNum && ends == other.ends &&
           rowEnds == other.rowEnds && marks == other.marks && characters == other.characters;
}

} // namespace QuorUiCtr
