// Operations on tree rows.
#include "tests/fuzz/GridCalls.h"
#include "tests/fuzz/Step.h"
#include "tests/fuzz/Texts.h"

namespace quor::fuzz
{

using namespace QuorUiCtr;

namespace
{

constexpr long MostOffspring = 12;
constexpr long MostRows = 40;

// A row of the grid, or one below it that may be hidden.
TGGridTreeRow& AnyTreeRow(TGGrid& grid)
{
    TGGridTreeRow* row = &grid.GetTreeRow(AnyRow(grid));
    while (row->IsParentRow() && Dice().OneIn(2))
        row = &row->GetChild(Dice().Below(row->GetChildNum()));
    return *row;
}

void AddChild(TGGrid& grid)
{
    TGGridTreeRow& row = AnyTreeRow(grid);
    if (row.RootRow().GetOffspringNum() >= MostOffspring || grid.GetRowNum() >= MostRows)
        return;
    TGGridTreeRow* child = nullptr;
    if (Dice().OneIn(2))
    {
        child = Dice().OneIn(2) ? new TGGridTreeRow(&row) : new TGGridTreeRow(grid);
        if (Dice().OneIn(3))
        {
            child->AppendChild(nullptr);
            child->UnFold();
        }
    }
    if (Dice().OneIn(2))
        row.AppendChild(child);
    else
        row.InsertChild(Dice().Below(row.GetChildNum() + 1), child);
}

void RemoveChildren(TGGrid& grid)
{
    TGGridTreeRow& row = AnyTreeRow(grid);
    if (Dice().OneIn(4))
        row.ClearChild();
    else if (row.IsParentRow())
        row.DelChild(Dice().Below(row.GetChildNum()));
}

void FoldOrUnfold(TGGrid& grid)
{
    TGGridTreeRow& row = AnyTreeRow(grid);
    switch (Dice().Below(4))
    {
    case 0:
        return row.Fold();
    case 1:
        return row.FoldAll();
    case 2:
        return grid.GetRowNum() < MostRows ? row.UnFoldAll() : row.FoldAll();
    default:
        return grid.GetRowNum() < MostRows ? row.UnFold() : row.Fold();
    }
}

// The children are sorted hidden: sorting leaves the rows shown where they are.
void Arrange(TGGrid& grid)
{
    TGGridTreeRow& row = AnyTreeRow(grid);
    row.FoldAll();
    row.ArrangeChild(Dice().OneIn(2));
}

void Ask(TGGrid& grid)
{
    TGGridTreeRow& row = AnyTreeRow(grid);
    row.GetRowNum();
    row.GetParentNum();
    row.IsLastChild();
    row.IsChildVisible();
    CPoint point(Dice().Below(40), Dice().Below(200));
    row.IsPtInTreeQuad(point);
    row.FindAndSel(AnyText(2), Dice().Below(grid.GetColNum() + 1));
}

void RunCommand(TGGrid& grid)
{
    if (grid.GetRowNum() >= MostRows)
        return;
    constexpr bool (TGGrid::*commands[])() = {&TGGrid::DoInsertTree, &TGGrid::DoInsertTreeAfter,
                                              &TGGrid::DoAppendTree, &TGGrid::DoAppendChild,
                                              &TGGrid::DoPasteChild};
    (grid.*Dice().Pick(commands))();
}

} // namespace

void CallTreeRows(TGGrid& grid)
{
    if (!grid.IsTreeGrid() || grid.IsEmpty())
        return;
    struct Call
    {
        const char* name;
        void (*run)(TGGrid&);
    };
    constexpr Call calls[] = {{"add a child", AddChild},        {"remove children", RemoveChildren},
                              {"fold or unfold", FoldOrUnfold}, {"fold or unfold", FoldOrUnfold},
                              {"arrange children", Arrange},    {"ask a tree row", Ask},
                              {"a tree command", RunCommand},   {"a tree command", RunCommand}};
    const Call& call = Dice().Pick(calls);
    Say("%s", call.name);
    call.run(grid);
}

} // namespace quor::fuzz
