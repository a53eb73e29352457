// The recording grid for commands and drags.
#include "tests/grid/CommandGrid.h"

#include <algorithm>

namespace quor::test
{

using namespace QuorUiCtr;

std::string FirstText(TGGridRow& row)
{
    return CStringA(row[0].GetText()).GetString();
}

namespace
{

std::string Describe(TGGridRow& row, const std::function<bool(TGGridRow&)>& isSelected)
{
    std::string text = FirstText(row) + (isSelected(row) ? "*" : "");
    if (!row.IsParentRow())
        return text;
    auto& parent = static_cast<TGGridTreeRow&>(row);
    for (long i = 0; i < parent.GetChildNum(); ++i)
        text += (i == 0 ? "(" : " ") + Describe(parent.GetChild(i), isSelected);
    return text + ")";
}

} // namespace

bool CommandGrid::Note(const std::string& name, const std::string& arguments)
{
    log.push_back(arguments.empty() ? name : name + " " + arguments);
    // A copy, because the action may replace itself.
    if (const auto found = actions.find(name); found != actions.end())
    {
        const auto act = found->second;
        act();
    }
    return vetoes.count(name) == 0;
}

std::string CommandGrid::TakeText()
{
    std::string text;
    for (const std::string& line : TakeLog())
        text += (text.empty() ? "" : " | ") + line;
    return text;
}

std::string CommandGrid::Rows()
{
    std::string text;
    for (long i = 0; i < GetRowNum(); ++i)
    {
        EXPECT_EQ(i, GetRow(i).GetIndex());
        if (!GetRow(i).IsChildRow())
            text += (text.empty() ? "" : " ") + Describe(GetRow(i), [this](TGGridRow& row) {
                        return row.GetIndex() >= 0 && IsRowSelected(row.GetIndex());
                    });
    }
    return text;
}

std::string CommandGrid::Cols()
{
    std::string text;
    for (long i = 0; i < GetColNum(); ++i)
    {
        EXPECT_EQ(i, GetCol(i).GetIndex());
        text += (i == 0 ? "" : " ") + std::string(CStringA(GetCol(i).GetName()).GetString()) +
                (IsColSelected(i) ? "*" : "");
    }
    return text;
}

std::string CommandGrid::Buffer()
{
    std::string text;
    for (TGGridRow* row : GetRowPaste())
        text += (text.empty() ? "" : " ") + Describe(*row, [](TGGridRow&) { return false; });
    return text;
}

void CommandGrid::AddRows(const std::string& texts)
{
    for (const char text : texts)
    {
        AppendRow(nullptr);
        GetCell(GetRowNum() - 1, 0).SetText(CString(text));
    }
}

TGGridTreeRow& CommandGrid::AddChild(TGGridTreeRow& parent, char text)
{
    parent.AppendChild(nullptr);
    parent.GetLastChild()[0].SetText(CString(text));
    return parent.GetLastChild();
}

void CommandGrid::SelectRows(std::initializer_list<long> indices)
{
    UnSelect();
    for (const long i : indices)
        SelectRow(i, true);
    TakeLog();
}

void CommandGrid::SelectCols(std::initializer_list<long> indices)
{
    UnSelect();
    for (const long i : indices)
        SelectCol(i, true);
    TakeLog();
}

// ---- Clicks and changes -----------------------------------------------------------------------------------

void CommandGrid::OnDblClick(TGGridRow& row)
{
    Note("double click", std::to_string(row.GetIndex()));
}

void CommandGrid::OnRClickCell(TGGridCell& cell, CPoint)
{
    Note("right click cell", std::to_string(cell.GetRowIndex()) + "," + std::to_string(cell.GetColIndex()));
}

void CommandGrid::OnRClickRow(TGGridRow& row, CPoint point)
{
    Note("right click row", std::to_string(row.GetIndex()));
    if (showsMenus)
        TGGrid::OnRClickRow(row, point);
}

void CommandGrid::OnRClickCol(TGGridCol& col, CPoint point)
{
    Note("right click col", std::to_string(col.GetIndex()));
    if (showsMenus)
        TGGrid::OnRClickCol(col, point);
}

void CommandGrid::OnRClickQuad(CPoint point)
{
    Note("right click corner");
    if (showsMenus)
        TGGrid::OnRClickQuad(point);
}

void CommandGrid::OnDataChanged()
{
    Note("changed");
    TGGrid::OnDataChanged();
}

void CommandGrid::OnCurChanged()
{
    TGGrid::OnCurChanged();
    if (logsCurrent)
        Note("cur", std::to_string(GetCurRowIndex()) + "," + std::to_string(GetCurColIndex()));
    else if (const auto found = actions.find("cur"); found != actions.end())
    {
        const auto act = found->second;
        act();
    }
}

// ---- Columns ----------------------------------------------------------------------------------------------

bool CommandGrid::OnBeforeInsertCol(long position, TGGridCol*& col)
{
    if (makeCol)
        col = makeCol();
    return Note("insert col?", std::to_string(position));
}

void CommandGrid::OnInsertCol(TGGridCol& col)
{
    Note("inserted col", std::to_string(col.GetIndex()));
}

bool CommandGrid::OnBeforeDeleteCol()
{
    return Note("delete col?");
}

void CommandGrid::OnEndDeleteCol()
{
    Note("deleted col");
}

bool CommandGrid::OnBeginMoveCol()
{
    return Note("drag col?");
}

bool CommandGrid::OnMovingCol(long position)
{
    return Note("over col", std::to_string(position));
}

bool CommandGrid::OnMoveCol(long position)
{
    return Note("drop col", std::to_string(position)) && TGGrid::OnMoveCol(position);
}

void CommandGrid::OnEndMoveCol()
{
    Note("moved col");
}

// ---- Rows -------------------------------------------------------------------------------------------------

bool CommandGrid::OnBeforeInsertRow(long position, TGGridRow*& row)
{
    if (makeRow)
        row = makeRow();
    return Note("insert row?", std::to_string(position));
}

bool CommandGrid::OnBeforeInsertChild(TGGridTreeRow& parent, long position, TGGridTreeRow*& child)
{
    if (makeChild)
        child = makeChild();
    return Note("insert child?", FirstText(parent) + " " + std::to_string(position));
}

void CommandGrid::OnInsertRow(TGGridRow& row)
{
    Note("inserted row", std::to_string(row.GetIndex()));
}

bool CommandGrid::OnBeforeDeleteRow()
{
    return Note("delete row?");
}

void CommandGrid::OnEndDeleteRow()
{
    Note("deleted row");
}

bool CommandGrid::OnBeforeClip()
{
    return Note("cut?");
}

void CommandGrid::OnEndClip()
{
    Note("cut");
}

bool CommandGrid::OnBeforeCopy()
{
    return Note("copy?");
}

void CommandGrid::OnEndCopy()
{
    Note("copied");
}

bool CommandGrid::OnBeforePaste(long position)
{
    return Note("paste?", std::to_string(position));
}

bool CommandGrid::OnBeforePasteChild(TGGridTreeRow& parent)
{
    return Note("paste child?", FirstText(parent));
}

void CommandGrid::OnEndPaste()
{
    Note("pasted");
}

bool CommandGrid::OnBeginMoveRow()
{
    return Note("drag row?");
}

bool CommandGrid::OnMovingRow(long position)
{
    return Note("over row", std::to_string(position));
}

bool CommandGrid::OnMoveRow(long position)
{
    return Note("drop row", std::to_string(position)) && TGGrid::OnMoveRow(position);
}

void CommandGrid::OnEndMoveRow()
{
    Note("moved row");
}

} // namespace quor::test
