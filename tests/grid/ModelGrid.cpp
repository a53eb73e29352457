// The state of a grid's model as readable strings.
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{

std::string Narrow(const CString& text)
{
    std::string narrow;
    for (int i = 0; i < text.GetLength(); ++i)
        narrow += static_cast<char>(text[i]);
    return narrow;
}

void AddCols(TGGrid& grid, int count)
{
    for (int i = 0; i < count; ++i)
        grid.AppendCol(L"", 0);
}

void AddRows(TGGrid& grid, const std::string& texts)
{
    for (const char text : texts)
    {
        grid.AppendRow(nullptr);
        grid.GetCell(grid.GetRowNum() - 1, 0).SetText(CString(static_cast<wchar_t>(text)));
    }
}

TGGridTreeRow& AddChild(TGGridTreeRow& parent, const wchar_t* text)
{
    auto* child = new TGGridTreeRow(&parent);
    (*child)[0].SetText(text);
    parent.AppendChild(child);
    return *child;
}

TGGridTreeRow& AddRoot(TGGrid& grid, const wchar_t* text)
{
    auto* row = new TGGridTreeRow(grid);
    (*row)[0].SetText(text);
    grid.AppendRow(row);
    return *row;
}

std::string Texts(TGGrid& grid)
{
    std::string texts;
    for (long i = 0; i < grid.GetRowNum(); ++i)
    {
        grid.MoveTo(i);
        TGGridRow& row = grid.CurRow();
        EXPECT_EQ(row.GetIndex(), i);
        texts += (i > 0 ? " " : "") + Narrow(row[0].GetText());
    }
    return texts;
}

std::string Selection(TGGrid& grid)
{
    std::string state;
    for (long i = 0; i < grid.GetRowNum(); ++i)
        if (grid.IsRowSelected(i))
            state += (state.empty() ? "rows " : " ") + std::to_string(i);
    EXPECT_TRUE(state.empty() || !grid.IsColSelected());
    for (long i = 0; i < grid.GetColNum(); ++i)
        if (grid.IsColSelected(i))
            state += (state.empty() ? "cols " : " ") + std::to_string(i);
    return (state.empty() ? "none" : state) + " | cur " + std::to_string(grid.GetCurRowIndex()) + "," +
           std::to_string(grid.GetCurColIndex());
}

std::string Columns(TGGrid& grid)
{
    std::string state;
    for (long i = 0; i < grid.GetColNum(); ++i)
    {
        const TGGridCol& col = grid.GetCol(i);
        EXPECT_EQ(col.GetIndex(), i);
        state += (i > 0 ? " | " : "") + Narrow(col.GetName()) + " " +
                 std::to_string((col.*(&OpenCol::GetLeft))()) + "-" +
                 std::to_string((col.*(&OpenCol::GetRight))());
    }
    return state;
}

std::string Cells(TGGrid& grid, TGGridRow& row)
{
    std::string cells;
    for (long i = 0; i < grid.GetColNum(); ++i)
    {
        EXPECT_EQ(&row[i].GetRow(), &row);
        EXPECT_EQ(&row[i].GetCol(), &grid.GetCol(i));
        cells += (i > 0 ? "|" : "") + Narrow(row[i].GetText());
    }
    return cells;
}

} // namespace quor::test
