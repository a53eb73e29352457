// A tree grid of groups and items for tests: opens the hooks and reads the tree as text.
#pragma once

#include "grid/TGTreeGrid.h"
#include "tests/grid/ModelGrid.h"

#include <string>

namespace quor::test
{

class ItemGrid : public QuorUiCtr::TGTreeGrid
{
public:
    explicit ItemGrid(bool tree = true) : TGTreeGrid(tree) { AddCols(*this, 2); }

    using TGTreeGrid::OnBeforeClip;
    using TGTreeGrid::OnBeforeDeleteRow;
    using TGTreeGrid::OnBeforeInsertChild;
    using TGTreeGrid::OnBeforeInsertRow;
    using TGTreeGrid::OnDataChanged;
    using TGTreeGrid::OnEndClip;
    using TGTreeGrid::OnEndDeleteRow;
    using TGTreeGrid::OnEndMoveRow;
    using TGTreeGrid::OnEndPaste;
    using TGTreeGrid::OnInsertRow;
    using TGTreeGrid::OnMenuCommand;
    using TGTreeGrid::OnModified;
    using TGTreeGrid::OnMoveRow;

    // Appends a root row with label and identifier text and returns it.
    QuorUiCtr::TGGridTreeRow& Root(const wchar_t* label, const wchar_t* id = L"")
    {
        AppendRow(nullptr);
        QuorUiCtr::TGGridTreeRow& row = GetTreeRow(GetRowNum() - 1);
        return Name(row, label, id);
    }
    QuorUiCtr::TGGridTreeRow& Child(QuorUiCtr::TGGridTreeRow& parent, const wchar_t* label,
                                    const wchar_t* id = L"")
    {
        parent.AppendChild(nullptr);
        return Name(parent.GetLastChild(), label, id);
    }

    // Selects these rows and no others.
    void Select(std::initializer_list<long> indices)
    {
        UnSelect();
        for (const long i : indices)
            SelectRow(i, true);
    }

    // The whole tree, "a:1 g(b:2 c:3)": of groups the label, of items label and identifier text.
    std::string Tree()
    {
        std::string text;
        for (long i = 0; i < GetRowNum(); ++i)
            if (!GetRow(i).IsChildRow())
                text += (text.empty() ? "" : " ") + Describe(GetRow(i));
        return text;
    }

    static std::string Describe(QuorUiCtr::TGGridRow& row)
    {
        std::string text = Narrow(row[0].GetText());
        if (!row.IsParentRow())
            return text + ":" + Narrow(row[1].GetText());
        auto& group = static_cast<QuorUiCtr::TGGridTreeRow&>(row);
        for (long i = 0; i < group.GetChildNum(); ++i)
            text += (i == 0 ? "(" : " ") + Describe(group.GetChild(i));
        return text + ")";
    }

private:
    static QuorUiCtr::TGGridTreeRow& Name(QuorUiCtr::TGGridTreeRow& row, const wchar_t* label,
                                          const wchar_t* id)
    {
        row[0].SetText(label);
        row[1].SetText(id);
        return row;
    }
};

} // namespace quor::test
