// The recording grid for commands and drags.
#include "tests/grid/CommandGrid.h"

namespace quor::test
{

using namespace QuorUiCtr;
using samples::HookCall;
using samples::HookGroup;

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

// ---- Hooks

bool CommandGrid::Note(const HookCall& call) const
{
    const bool goesOn = WindowGrid::Note(call);
    if (call.group == HookGroup::Mouse)
        return goesOn && showsMenus;
    return goesOn && !call.Is("OnInsertRow") && !call.Is("OnInsertCol");
}

bool CommandGrid::Records(const HookCall& call) const
{
    if (call.Is("OnCurChanged"))
        return logsCurrent;
    return WindowGrid::Records(call) || call.group == HookGroup::Mouse || call.group == HookGroup::Change ||
           call.group == HookGroup::Col || call.group == HookGroup::Row;
}

bool CommandGrid::OnBeforeInsertCol(long position, Col*& col)
{
    if (makeCol)
        col = makeCol();
    return WindowGrid::OnBeforeInsertCol(position, col);
}

bool CommandGrid::OnBeforeInsertRow(long position, Row*& row)
{
    if (makeRow)
        row = makeRow();
    return WindowGrid::OnBeforeInsertRow(position, row);
}

bool CommandGrid::OnBeforeInsertChild(TreeRow& parent, long position, TreeRow*& child)
{
    if (makeChild)
        child = makeChild();
    return WindowGrid::OnBeforeInsertChild(parent, position, child);
}

} // namespace quor::test
