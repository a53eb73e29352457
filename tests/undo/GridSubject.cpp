// What a random user does to a grid.
#include "tests/undo/GridSubject.h"

#include "tests/grid/ModelGrid.h"

#include <algorithm>
#include <functional>
#include <sstream>

namespace quor::test
{

using namespace QuorUiCtr;
using fuzz::Random;

namespace
{

constexpr long MostRows = 30;
constexpr long MostCols = 6;

void WriteRow(std::ostringstream& out, TGGridRow& row, int depth, TGGrid& grid)
{
    const auto* const data = static_cast<NumberedData*>(row.GetExtendData());
    out << std::string(static_cast<std::size_t>(depth), ' ') << &row << " #"
        << (data != nullptr ? data->number : 0);
    for (long col = 0; col < grid.GetColNum(); ++col)
        out << '|' << Narrow(row[col].GetText());
    if (row.IsParentRow())
        out << (static_cast<TGGridTreeRow&>(row).IsFold() ? " +" : " -");
    out << '\n';
    if (!row.IsParentRow())
        return;
    auto& parent = static_cast<TGGridTreeRow&>(row);
    for (long i = 0; i < parent.GetChildNum(); ++i)
        WriteRow(out, parent.GetChild(i), depth + 1, grid);
}

CString RandomText(Random& random)
{
    CString text;
    text.Format(L"%d", static_cast<int>(random.Below(1000)));
    return random.OneIn(5) ? CString() : text;
}

// A row of the grid, shown or below a folded one; null without rows.
TGGridRow* AnyRow(TGGrid& grid, Random& random)
{
    if (grid.IsEmpty())
        return nullptr;
    TGGridRow* row = &grid.GetRow(random.Below(grid.GetRowNum()));
    while (row->IsParentRow() && random.OneIn(2))
    {
        auto& parent = static_cast<TGGridTreeRow&>(*row);
        row = &parent.GetChild(random.Below(parent.GetChildNum()));
    }
    return row;
}

TGGridTreeRow* AnyTreeRow(TGGrid& grid, Random& random)
{
    TGGridRow* const row = AnyRow(grid, random);
    return row != nullptr && row->IsTreeRow() ? static_cast<TGGridTreeRow*>(row) : nullptr;
}

void WriteText(TGGrid& grid, Random& random)
{
    TGGridRow* const row = AnyRow(grid, random);
    if (row != nullptr && !grid.IsColEmpty())
        (*row)[random.Below(grid.GetColNum())].SetText(RandomText(random));
}

// What a hook, or a program by itself, does to a grid.
void ChangeAsProgram(TGGrid& grid, Random& random)
{
    const bool isFull = grid.GetRowNum() >= MostRows;
    switch (random.Below(isFull ? 6 : 9))
    {
    case 0:
        if (TGGridTreeRow* row = AnyTreeRow(grid, random))
            row->IsFold() ? row->UnFold() : row->Fold();
        break;
    case 1:
        if (!grid.IsColEmpty())
            grid.GetCol(random.Below(grid.GetColNum())).SetWidth(random.Between(0, 200));
        break;
    case 2:
        if (!grid.IsEmpty())
            grid.DelRowEx(random.Below(grid.GetRowNum()));
        break;
    case 3:
        if (!grid.IsEmpty())
            grid.MoveRow(random.Below(grid.GetRowNum()), random.Below(grid.GetRowNum() + 1));
        break;
    case 6:
        grid.AppendRow(nullptr);
        break;
    case 7:
        if (!grid.IsTreeGrid())
            grid.InsertRow(random.Below(grid.GetRowNum() + 1), nullptr);
        break;
    case 8:
        if (TGGridTreeRow* row = AnyTreeRow(grid, random))
            row->InsertChild(random.Below(row->GetChildNum() + 1), nullptr);
        break;
    default:
        WriteText(grid, random);
        break;
    }
}

template <class Grid> class GridSubject : public UndoSubject
{
public:
    explicit GridSubject(bool tree) : grid(tree)
    {
        AddCols(grid, 3);
        AddRows(grid, "abcdef");
        for (long row = 0; row < grid.GetRowNum(); ++row)
            grid.GetRow(row).SetExtendData(new NumberedData);
        if (tree)
            for (const wchar_t* text : {L"x", L"y", L"z"})
                AddChild(grid.GetTreeRow(1), text).SetExtendData(new NumberedData);
    }

    void Watch(TGUndoStack& watching) override
    {
        stack = &watching;
        stack->Watch(grid);
    }
    std::string Snapshot() override { return SnapshotOf(grid); }
    void SetMutating(Random* random) override { grid.mutating = random; }

    void Step(Random& random) override
    {
        grid.vetoing = &random;
        const long number = static_cast<long>(std::size(Operations));
        (this->*Operations[random.Below(grid.GetRowNum() >= MostRows ? number - Growing : number)])(random);
        grid.vetoing = nullptr;
    }

private:
    using Operation = void (GridSubject::*)(Random&);
    static constexpr long Growing = 7;
    static const Operation Operations[25];

    void SelectRows(Random& random, long most)
    {
        grid.UnSelect();
        for (long i = random.Between(1, most); i > 0 && !grid.IsEmpty(); --i)
            grid.SelectRow(random.Below(grid.GetRowNum()), true);
    }
    void SelectCol(Random& random)
    {
        grid.UnSelect();
        if (!grid.IsColEmpty())
            grid.SelectCol(random.Below(grid.GetColNum()), true);
    }

    void Type(Random& random)
    {
        const TGUserAction action(grid, TGActionKind::Type);
        WriteText(grid, random);
    }
    void Fill(Random& random)
    {
        const TGUserAction action(grid, TGActionKind::Fill);
        for (long i = random.Between(1, 20); i > 0; --i)
            WriteText(grid, random);
    }
    void Delete(Random& random)
    {
        SelectRows(random, 5);
        grid.DoDelete();
    }
    void Copy(Random& random)
    {
        SelectRows(random, 3);
        grid.DoCopy();
    }
    void Cut(Random& random)
    {
        SelectRows(random, 4);
        grid.DoClip();
    }
    void Sort(Random& random)
    {
        grid.ClearKey();
        if (!grid.IsColEmpty())
            grid.AppendKey(random.Below(grid.GetColNum()));
        grid.Arrange(random.OneIn(2));
    }
    void Move(Random& random)
    {
        const TGUserAction action(grid, TGActionKind::MoveRows);
        if (!grid.IsEmpty())
            grid.MoveRow(random.Below(grid.GetRowNum()), random.Below(grid.GetRowNum() + 1));
    }
    // As the row header does it.
    void Drag(Random& random)
    {
        const TGUserAction action(grid, TGActionKind::MoveRows);
        SelectRows(random, 3);
        grid.ClipSelect();
        long to = random.Below(grid.GetRowNum() + 1);
        grid.Paste(to);
    }
    void Fold(Random& random)
    {
        const TGUserAction action(grid, TGActionKind::Fold);
        TGGridTreeRow* const row = AnyTreeRow(grid, random);
        if (row == nullptr)
            return;
        switch (random.Below(4))
        {
        case 0:
            row->FoldAll();
            break;
        case 1:
            row->UnFoldAll();
            break;
        case 2:
            row->Fold();
            break;
        default:
            row->UnFold();
            break;
        }
    }
    void InsertCol(Random& random)
    {
        SelectCol(random);
        if (grid.GetColNum() < MostCols)
            random.OneIn(2) ? grid.DoInsertCol() : grid.DoAppendCol();
    }
    void DeleteCol(Random& random)
    {
        SelectCol(random);
        if (grid.GetColNum() > 1)
            grid.DoDelete();
    }
    void MoveCol(Random& random)
    {
        const TGUserAction action(grid, TGActionKind::MoveCols);
        if (!grid.IsColEmpty())
            grid.MoveCol(random.Below(grid.GetColNum()), random.Below(grid.GetColNum() + 1));
    }
    void ResizeCol(Random& random)
    {
        const TGUserAction action(grid, TGActionKind::ResizeCols);
        if (!grid.IsColEmpty())
            grid.GetCol(random.Below(grid.GetColNum())).SetWidth(random.Between(0, 300));
    }
    void ProgramCalls(Random& random) { ChangeAsProgram(grid, random); }
    void Group(Random& random)
    {
        const TGUndoTransaction group(*stack, L"group");
        for (long i = random.Between(1, 6); i > 0; --i)
            ChangeAsProgram(grid, random);
    }
    void Clear(Random& random)
    {
        if (random.OneIn(10))
            grid.Clear();
        else if (random.OneIn(10))
            grid.SetRowNum(random.Below(10));
        else if (random.OneIn(4) && grid.IsTreeGrid() && !grid.IsEmpty())
            grid.GetTreeRow(random.Below(grid.GetRowNum())).ClearChild();
    }
    void Append(Random& random) { grid.DoAppendRow(random.OneIn(2)); }
    void Insert(Random& random)
    {
        SelectRows(random, 1);
        random.OneIn(2) ? grid.DoInsertRow() : grid.DoInsertRowAfter();
    }
    void InsertTree(Random& random)
    {
        SelectRows(random, 1);
        switch (random.Below(4))
        {
        case 0:
            grid.DoInsertTree();
            break;
        case 1:
            grid.DoInsertTreeAfter();
            break;
        case 2:
            grid.DoAppendTree();
            break;
        default:
            grid.DoAppendChild();
            break;
        }
    }
    void Paste(Random& random)
    {
        SelectRows(random, 1);
        random.OneIn(3) ? grid.DoPasteChild() : grid.DoPaste();
    }

    RandomGrid<Grid> grid;
    TGUndoStack* stack = nullptr;
};

// Those that make a grid larger come last.
template <class Grid>
const typename GridSubject<Grid>::Operation GridSubject<Grid>::Operations[25] = {
    &GridSubject::Type,      &GridSubject::Type,      &GridSubject::Fill,         &GridSubject::Delete,
    &GridSubject::Delete,    &GridSubject::Copy,      &GridSubject::Cut,          &GridSubject::Cut,
    &GridSubject::Sort,      &GridSubject::Move,      &GridSubject::Drag,         &GridSubject::Fold,
    &GridSubject::InsertCol, &GridSubject::DeleteCol, &GridSubject::MoveCol,      &GridSubject::ResizeCol,
    &GridSubject::Clear,     &GridSubject::Fold,      &GridSubject::ProgramCalls, &GridSubject::Group,
    &GridSubject::Append,    &GridSubject::Insert,    &GridSubject::InsertTree,   &GridSubject::Paste,
    &GridSubject::Paste,
};

} // namespace

// Not within itself: what a hook does calls hooks.
template <class Grid> void RandomGrid<Grid>::Mutate()
{
    if (mutating == nullptr || !mutating->OneIn(40))
        return;
    Random* const random = std::exchange(mutating, nullptr);
    ChangeAsProgram(*this, *random);
    mutating = random;
}

template class RandomGrid<TGGrid>;
template class RandomGrid<TGTreeGrid>;

std::string SnapshotOf(TGGrid& grid)
{
    std::ostringstream out;
    for (long col = 0; col < grid.GetColNum(); ++col)
        out << &grid.GetCol(col) << ' ' << Narrow(grid.GetCol(col).GetName()) << ' '
            << grid.GetCol(col).GetWidth() << '\n';
    for (long row = 0; row < grid.GetRowNum(); ++row)
        if (!grid.GetRow(row).IsChildRow())
            WriteRow(out, grid.GetRow(row), 0, grid);
    out << grid.GetRowNum() << " shown\n";
    return out.str();
}

void AddGrids(UndoWorld& world)
{
    world.subjects.push_back(std::make_unique<GridSubject<TGGrid>>(false));
    world.subjects.push_back(std::make_unique<GridSubject<TGGrid>>(true));
    world.subjects.push_back(std::make_unique<GridSubject<TGTreeGrid>>(true));
}

} // namespace quor::test
