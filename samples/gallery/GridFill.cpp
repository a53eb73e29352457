// Filling a grid with a table's columns and rows.
#include "GridFill.h"

#include <algorithm>

namespace
{

constexpr int MinColumnWidth = 44;
constexpr int MaxColumnWidth = 220;
constexpr size_t MeasuredRows = 200;

// Cells show one line: line breaks become blanks.
CString OnOneLine(const std::wstring& text)
{
    CString line(text.c_str());
    line.Replace(L"\r\n", L" ");
    line.Replace(L'\n', L' ');
    return line;
}

int MeasureColumn(CDC& context, const gallery::CsvTable& table, size_t column)
{
    long width = context.GetTextExtent(CString(table.header[column].c_str())).cx;
    for (size_t row = 0; row < (std::min)(table.rows.size(), MeasuredRows); ++row)
        width = std::max<long>(width, context.GetTextExtent(OnOneLine(table.rows[row][column])).cx);
    return std::clamp(static_cast<int>(width) + 12, MinColumnWidth, MaxColumnWidth);
}

bool HoldsOnlyNumbers(const gallery::CsvTable& table, size_t column)
{
    const auto isNumber = [&](const std::vector<std::wstring>& row) {
        return row[column].find_first_not_of(L"0123456789.,-+[] ") == std::wstring::npos;
    };
    return !table.rows.empty() && std::all_of(table.rows.begin(), table.rows.end(), isNumber);
}

} // namespace

void MakeColumns(QuorUiCtr::TGGrid& grid, const gallery::CsvTable& table)
{
    QuorUiCtr::TGGridUpdate update(grid);
    CClientDC context(&grid);
    CFont* previous = context.SelectObject(grid.GetFont());
    grid.SetColNum(0);
    for (size_t column = 0; column < table.header.size(); ++column)
    {
        grid.AppendCol(table.header[column].c_str(), MeasureColumn(context, table, column));
        grid.GetCol(grid.GetColNum() - 1).SetCenterAlign(HoldsOnlyNumbers(table, column));
    }
    context.SelectObject(previous);
}

void FillRow(QuorUiCtr::TGGridRow& row, const std::vector<std::wstring>& texts)
{
    for (size_t column = 0; column < texts.size(); ++column)
        row[static_cast<long>(column)].SetText(OnOneLine(texts[column]));
}
