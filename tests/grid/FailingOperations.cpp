// Operations of the grid whose n-th allocation fails, and what must be true of the grid then.
#include "tests/grid/FailingOperations.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/FailingNew.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

const Operation structureOperations[] = {
    {"InsertRow", [](TGGrid& grid) { grid.InsertRow(1, nullptr); }},
    {"InsertRow of a tree",
     [](TGGrid& grid) {
         auto tree = std::make_unique<TGGridTreeRow>(grid);
         tree->AppendChild(nullptr);
         tree->GetChild(0).AppendChild(nullptr);
         grid.InsertRow(0, tree.release());
     }},
    {"AppendRow", [](TGGrid& grid) { grid.AppendRow(nullptr); }},
    {"AppendRow of a row", [](TGGrid& grid) { grid.AppendRow(new TGGridTreeRow(grid)); }},
    {"SetRowNum to more", [](TGGrid& grid) { grid.SetRowNum(30); }},
    {"SetRowNum to none", [](TGGrid& grid) { grid.SetRowNum(0); }},
    {"InsertCol", [](TGGrid& grid) { grid.InsertCol(1, L"new", 0); }},
    {"AppendCol", [](TGGrid& grid) { grid.AppendCol(L"new", 0); }},
    {"AppendCol of a column", [](TGGrid& grid) { grid.AppendCol(new TGGridCol(L"new", grid), 0); }},
    {"SetColNum to more", [](TGGrid& grid) { grid.SetColNum(7); }},
    {"SetColNum to one", [](TGGrid& grid) { grid.SetColNum(1); }},
    {"DelRow", [](TGGrid& grid) { grid.DelRow(1); }},
    {"DelRowEx", [](TGGrid& grid) { grid.DelRowEx(0); }},
    {"DelCol", [](TGGrid& grid) { grid.DelCol(1); }},
    {"MoveRow", [](TGGrid& grid) { grid.MoveRow(0, grid.GetRowNum()); }},
    {"MoveCol", [](TGGrid& grid) { grid.MoveCol(0, 3); }},
    {"Clear", [](TGGrid& grid) { grid.Clear(); }},
    {"SelectRow", [](TGGrid& grid) { grid.SelectRow(2, true); }},
    {"SelectCol", [](TGGrid& grid) { grid.SelectCol(2, true); }},
    {"SelectAll", [](TGGrid& grid) { grid.SelectAll(); }},
    {"UnSelect", [](TGGrid& grid) { grid.UnSelect(); }},
    {"AppendKey", [](TGGrid& grid) { grid.AppendKey(1); }},
    {"DoCopy", [](TGGrid& grid) { grid.DoCopy(); }},
    {"a text", [](TGGrid& grid) { grid.GetCell(0, 1).SetText(L"a text that is long enough"); }},
};

const Operation treeOperations[] = {
    {"InsertChild", [](TGGrid& grid) { grid.GetTreeRow(0).InsertChild(1, nullptr); }},
    {"AppendChild of a tree",
     [](TGGrid& grid) {
         auto tree = std::make_unique<TGGridTreeRow>(grid);
         tree->AppendChild(nullptr);
         tree->UnFold();
         grid.GetTreeRow(0).AppendChild(tree.release());
     }},
    {"DelChild", [](TGGrid& grid) { grid.GetTreeRow(0).DelChild(0); }},
    {"ClearChild", [](TGGrid& grid) { grid.GetTreeRow(0).ClearChild(); }},
    {"Fold", [](TGGrid& grid) { grid.GetTreeRow(0).Fold(); }},
    {"FoldAll", [](TGGrid& grid) { grid.GetTreeRow(0).FoldAll(); }},
    {"UnFold", [](TGGrid& grid) { grid.GetTreeRow(1).UnFold(); }},
    {"UnFoldAll", [](TGGrid& grid) { grid.GetTreeRow(0).UnFoldAll(); }},
    {"ArrangeChild", [](TGGrid& grid) { grid.GetTreeRow(0).ArrangeChild(false); }},
};

const Operation commands[] = {
    {"DoInsertRow", [](TGGrid& grid) { grid.DoInsertRow(); }},
    {"DoInsertRowAfter", [](TGGrid& grid) { grid.DoInsertRowAfter(); }},
    {"DoInsertTree", [](TGGrid& grid) { grid.DoInsertTree(); }},
    {"DoAppendRow", [](TGGrid& grid) { grid.DoAppendRow(true); }},
    {"DoAppendTree", [](TGGrid& grid) { grid.DoAppendTree(); }},
    {"DoAppendChild", [](TGGrid& grid) { grid.DoAppendChild(); }},
    {"DoAppendCol", [](TGGrid& grid) { grid.DoAppendCol(); }},
    {"DoInsertCol",
     [](TGGrid& grid) {
         grid.SelectCol(1, true);
         grid.DoInsertCol();
     }},
    {"DoDelete", [](TGGrid& grid) { grid.DoDelete(); }},
    {"DoDelete of all",
     [](TGGrid& grid) {
         grid.SelectAll();
         grid.DoDelete();
     }},
    {"DoClip", [](TGGrid& grid) { grid.DoClip(); }},
    {"DoClip of all",
     [](TGGrid& grid) {
         grid.SelectAll();
         grid.DoClip();
     }},
    {"DoPaste", [](TGGrid& grid) { grid.DoPaste(); }},
    {"DoPaste at the end",
     [](TGGrid& grid) {
         grid.UnSelect();
         grid.DoPaste();
     }},
    {"DoPasteChild", [](TGGrid& grid) { grid.DoPasteChild(); }},
    {"Arrange", [](TGGrid& grid) { grid.Arrange(false); }},
    {"assignment",
     [](TGGrid& grid) {
         if (grid.IsTreeGrid())
             grid.GetTreeRow(3) = grid.GetTreeRow(0);
     }},
    {"transfer",
     [](TGGrid& grid) {
         if (grid.IsTreeGrid())
             grid.GetTreeRow(3) << grid.GetTreeRow(0);
     }},
    {"FindAndSel", [](TGGrid& grid) { grid.FindAndSel(L"d", 0); }},
};

// Everything that a host can see of a row and what is below it.
std::string Describe(TGGridRow& row)
{
    std::string text = std::to_string(row.GetIndex()) + ":" + std::to_string(row.GetStyle()) + ":";
    for (long col = 0; col < 20; ++col)
    {
        TGGridCell* cell = (row.*&OpenRow::FindCell)(col);
        if (cell != nullptr)
            text += "[" + std::to_string(cell->GetCol().GetIndex()) + Narrow(cell->GetText()) + "]";
    }
    text += row.GetExtendData() != nullptr ? "+" : "";
    if (!row.IsParentRow())
        return text;
    text += "(";
    TGGridTreeRow& parent = static_cast<TGGridTreeRow&>(row);
    for (long k = 0; k < parent.GetChildNum(); ++k)
        text += Describe(parent.GetChild(k)) + " ";
    return text + ")";
}

} // namespace

const std::span<const Operation> StructureOperations = structureOperations;
const std::span<const Operation> TreeOperations = treeOperations;
const std::span<const Operation> Commands = commands;

std::string Describe(TGGrid& grid)
{
    std::string text = Columns(grid) + "\n";
    for (long i = 0; i < grid.GetRowNum(); ++i)
        text += Describe(grid.GetRow(i)) + " ";
    text += "\n" + Selection(grid) + " key " + std::to_string(grid.GetMainKey()) + "\nbuffer ";
    for (TGGridRow* row : grid.GetRowPaste())
        text += Describe(*row) + " ";
    return text;
}

void FillModel(TGGrid& grid)
{
    AddCols(grid, 3);
    if (!grid.IsTreeGrid())
        AddRows(grid, "abcd");
    else
    {
        TGGridTreeRow& a = AddRoot(grid, L"a");
        a.SetExtendData(new CountedData);
        TGGridTreeRow& b = AddChild(a, L"b");
        b.SetExtendData(new CountedData);
        AddChild(b, L"c").SetExtendData(new CountedData);
        AddChild(a, L"d");
        AddChild(AddRoot(grid, L"e"), L"f");
        AddRoot(grid, L"g");
        AddRoot(grid, L"h");
        grid.SelectRow(3, true);
        grid.DoCopy();
        a.UnFold();
    }
    if (!grid.IsTreeGrid())
    {
        grid.SelectRow(3, true);
        grid.DoCopy();
    }
    grid.UnSelect();
    grid.SelectRow(1, true);
}

bool RunFailing(const Operation& operation, TGGrid& grid, long n, bool& thrown)
{
    thrown = false;
    FailingNew::FailAt(n);
    try
    {
        operation.run(grid);
    }
    catch (const std::bad_alloc&)
    {
        thrown = true;
    }
    const bool failed = FailingNew::HasFailed();
    FailingNew::FailAt(0);
    return failed;
}

void ExpectUsable(TGGrid& grid)
{
    Describe(grid);
    for (long i = 0; i < grid.GetRowNum(); ++i)
        Cells(grid, grid.GetRow(i));
    grid.SetRowNum(0);
    EXPECT_TRUE(grid.IsEmpty());
    grid.SetColNum(2);
    grid.SetRowNum(3);
    EXPECT_EQ(grid.GetRowNum(), 3);
}

} // namespace quor::test
