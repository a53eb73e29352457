// Rows as separated text, quoted as spreadsheets do: a field with a separator, a quote or a line break stands
// in quotes, and a quote in it stands twice.
#pragma once

#include "grid/TGGrid.h"

// Lines end with a line feed. All rows, or those that are selected.
inline CString ToText(QuorUiCtr::TGGrid& grid, wchar_t separator, bool selectedOnly)
{
    CString text;
    for (long row = 0; row < grid.GetRowNum(); ++row)
        for (long col = 0; col < grid.GetColNum() && (!selectedOnly || grid.IsRowSelected(row)); ++col)
        {
            CString field = grid.GetCell(row, col).GetText();
            const bool isQuoted = field.FindOneOf(CString(L"\"\r\n") + separator) >= 0;
            field.Replace(L"\"", L"\"\"");
            text += isQuoted ? L"\"" + field + L"\"" : field;
            text += col + 1 < grid.GetColNum() ? separator : L'\n';
        }
    return text;
}

// Appends a row for each line. Fields beyond the columns of the grid are left out; carriage returns, which
// stand before line feeds, are, too.
inline void AppendText(QuorUiCtr::TGGrid& grid, CString text, wchar_t separator)
{
    const QuorUiCtr::TGGridUpdate update(grid);
    text.Remove(L'\r');
    if (!text.IsEmpty() && text[text.GetLength() - 1] != L'\n')
        text += L'\n';
    CString field;
    bool isQuoted = false;
    long col = 0;
    for (const wchar_t* at = text; *at != L'\0'; ++at)
    {
        const bool isLast = at[1] == L'\0'; // also ends a field whose quotes are left open
        if (*at == L'"' && isQuoted && at[1] == L'"')
            field += *++at;
        else if (*at == L'"' && (isQuoted || field.IsEmpty()))
            isQuoted = !isQuoted;
        else if (!isLast && (isQuoted || (*at != separator && *at != L'\n')))
            field += *at;
        else
        {
            if (col == 0)
                grid.AppendRow(nullptr);
            if (col < grid.GetColNum())
                grid.GetCell(grid.GetRowNum() - 1, col).SetText(field);
            field.Empty();
            col = *at == separator ? col + 1 : 0;
        }
    }
}
