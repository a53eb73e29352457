// Rows, children and columns that hooks supply: whose they are after a veto, and that they fit the columns of
// the moment at which they come in.
#include "grid/TGTreeGrid.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// A row, child or column that counts the objects alive.
template <class Base> struct Counted : Base
{
    template <class... Arguments>
    explicit Counted(Arguments&&... arguments) : Base(std::forward<Arguments>(arguments)...)
    {
        ++alive;
    }
    ~Counted() override { --alive; }

    inline static int alive = 0;
};

// Supplies an object in each inserting hook and vetoes it; or acts in the hook and goes on.
class SupplyingGrid : public TGTreeGrid
{
public:
    explicit SupplyingGrid(bool tree = true) : TGTreeGrid(tree) {}

    using TGTreeGrid::OnCurChanged;

    bool supplies = true;
    bool agrees = false;
    // The tree grid's own hook supplies the row.
    bool asksBase = false;
    std::function<void()> act;
    std::function<void()> onCurChanged;

protected:
    bool OnBeforeInsertCol(long, TGGridCol*& col) override
    {
        col = new Counted<TGGridCol>(L"", *this);
        return agrees;
    }
    bool OnBeforeInsertRow(long position, TGGridRow*& row) override
    {
        if (asksBase)
            TGTreeGrid::OnBeforeInsertRow(position, row);
        else if (supplies)
            row = new Counted<TGGridTreeRow>(*this);
        if (act)
            act();
        return agrees;
    }
    bool OnBeforeInsertChild(TGGridTreeRow& parent, long position, TGGridTreeRow*& child) override
    {
        if (asksBase)
            TGTreeGrid::OnBeforeInsertChild(parent, position, child);
        else if (supplies)
            child = new Counted<TGGridTreeRow>(*this);
        if (act)
            act();
        return agrees;
    }
    void OnCurChanged() override
    {
        TGTreeGrid::OnCurChanged();
        if (const auto once = std::exchange(onCurChanged, nullptr))
            once();
    }
};

using Command = bool (*)(TGGrid&);

constexpr std::pair<const char*, Command> rowCommands[] = {
    {"DoInsertRow", [](TGGrid& grid) { return grid.DoInsertRow(); }},
    {"DoInsertRowAfter", [](TGGrid& grid) { return grid.DoInsertRowAfter(); }},
    {"DoInsertTree", [](TGGrid& grid) { return grid.DoInsertTree(); }},
    {"DoInsertTreeAfter", [](TGGrid& grid) { return grid.DoInsertTreeAfter(); }},
    {"DoAppendRow", [](TGGrid& grid) { return grid.DoAppendRow(true); }},
    {"DoAppendTree", [](TGGrid& grid) { return grid.DoAppendTree(); }},
    {"DoAppendChild", [](TGGrid& grid) { return grid.DoAppendChild(); }},
};

// r(x) s with r unfolded; selects the row at `selected`.
void Fill(TGGrid& grid, long selected)
{
    AddCols(grid, 4);
    AddChild(AddRoot(grid, L"r"), L"x");
    AddRoot(grid, L"s");
    grid.GetTreeRow(0).UnFold();
    grid.SelectRow(selected, true);
}

TEST(SuppliedRows, AreDeletedAfterAVeto)
{
    for (const auto& [name, run] : rowCommands)
        for (const long selected : {0, 1})
        {
            SupplyingGrid grid;
            Fill(grid, selected);
            EXPECT_FALSE(run(grid)) << name;
            EXPECT_EQ(Counted<TGGridTreeRow>::alive, 0) << name << " at " << selected;
        }
}

TEST(SuppliedRows, OfTheTreeGridItselfAreDeletedAfterAVeto)
{
    for (const auto& [name, run] : rowCommands)
        for (const long selected : {1, 2})
        {
            SupplyingGrid grid;
            Fill(grid, selected);
            grid.asksBase = true;
            // The allocator of the checked build reports a row that is left.
            EXPECT_FALSE(run(grid)) << name;
            EXPECT_EQ(Texts(grid), "r x s");
        }
}

TEST(SuppliedCols, AreDeletedAfterAVeto)
{
    SupplyingGrid grid;
    AddCols(grid, 2);
    grid.SelectCol(1, true);
    EXPECT_FALSE(grid.DoInsertCol());
    EXPECT_FALSE(grid.DoInsertColAfter());
    EXPECT_FALSE(grid.DoAppendCol());
    EXPECT_EQ(Counted<TGGridCol>::alive, 0);
}

TEST(SuppliedCols, AreTheGridsAfterConsent)
{
    {
        SupplyingGrid grid;
        grid.agrees = true;
        EXPECT_TRUE(grid.DoAppendCol());
        EXPECT_EQ(Counted<TGGridCol>::alive, 1);
    }
    EXPECT_EQ(Counted<TGGridCol>::alive, 0);
}

class SuppliedOnTheNewRowLine : public EditTest
{
};

TEST_F(SuppliedOnTheNewRowLine, ARowIsDeletedAfterAVeto)
{
    EditGrid grid;
    Make(grid, 1, 1);
    grid.beforeInsertRow = [&grid](long, TGGridRow*& row) {
        row = new Counted<TGGridRow>(grid);
        return false;
    };
    grid.BeginEditCell(1, 0);
    grid.Enter(L"n");
    grid.EndEditCell();
    EXPECT_EQ(grid.GetRowNum(), 1);
    EXPECT_EQ(Counted<TGGridRow>::alive, 0);
}

TEST_F(SuppliedOnTheNewRowLine, ARowFitsTheColumnsThatTheHookLeaves)
{
    EditGrid grid;
    Make(grid, 1, 3);
    grid.beforeInsertRow = [&grid](long, TGGridRow*& row) {
        row = new TGGridRow(grid);
        (*row)[2].SetText(L"c");
        grid.SetColNum(2);
        grid.InsertCol(0, L"", 0);
        return true;
    };
    grid.BeginEditCell(1, 1);
    grid.Enter(L"n");
    grid.EndEditCell();
    ASSERT_EQ(grid.GetRowNum(), 2);
    EXPECT_EQ(Cells(grid, grid.GetRow(1)), "|n|");
}

// ---- Columns that change between the making of a row and its insertion

void ExpectCellsFit(TGGrid& grid)
{
    for (long i = 0; i < grid.GetRowNum(); ++i)
        Cells(grid, grid.GetRow(i));
}

TEST(RowsMadeBeforeTheColumnsChange, FitTheColumnsWithTheirOffspringInEveryCommand)
{
    const std::function<void(TGGrid&)> changes[] = {
        [](TGGrid& grid) { grid.SetColNum(2); },
        [](TGGrid& grid) { grid.InsertCol(0, L"new", 0); },
        [](TGGrid& grid) { grid.MoveCol(0, 3); },
        [](TGGrid& grid) { grid.DelCol(1); },
    };
    for (const auto& change : changes)
        for (const auto& [name, run] : rowCommands)
            for (const long selected : {0, 1})
                for (const bool supplies : {false, true})
                {
                    SupplyingGrid grid;
                    Fill(grid, selected);
                    grid.supplies = supplies;
                    grid.agrees = true;
                    grid.act = [&] { change(grid); };
                    EXPECT_TRUE(run(grid)) << name;
                    for (long i = grid.GetRowNum(); i-- > 0;)
                        grid.GetTreeRow(i).UnFoldAll();
                    SCOPED_TRACE(name);
                    ExpectCellsFit(grid);
                }
}

TEST(RowsMadeBeforeTheColumnsChange, KeepTheTextsOfTheColumnsThatAreLeft)
{
    ModelGrid grid;
    AddCols(grid, 3);
    auto* row = new TGGridRow(grid);
    for (long col = 0; col < 3; ++col)
        (*row)[col].SetText(CString(static_cast<wchar_t>(L'a' + col)));
    grid.DelCol(0);
    grid.InsertCol(1, L"", 0);
    grid.MoveCol(2, 0);
    grid.AppendRow(row);
    EXPECT_EQ(Cells(grid, grid.GetRow(0)), "c|b|");
}

TEST(RowsMadeBeforeTheColumnsChange, FitWhenTheSelectionHookOfAppendingChangesTheColumns)
{
    SupplyingGrid grid;
    Fill(grid, 0);
    grid.agrees = true;
    grid.onCurChanged = [&grid] { grid.SetColNum(1); };
    EXPECT_TRUE(grid.DoAppendRow(true));
    ExpectCellsFit(grid);
}

TEST(RowsMadeBeforeTheColumnsChange, FitWhereTheHostInsertsThemItself)
{
    ModelGrid grid{true};
    Fill(grid, 0);
    auto* tree = new TGGridTreeRow(grid);
    tree->AppendChild(nullptr);
    tree->GetChild(0).AppendChild(nullptr);
    auto* inserted = new TGGridTreeRow(grid);
    auto* child = new TGGridTreeRow(grid);
    grid.DelCol(2);
    grid.AppendRow(tree);
    grid.InsertRow(0, inserted);
    inserted->InsertChild(0, child);
    tree->UnFoldAll();
    inserted->UnFoldAll();
    ExpectCellsFit(grid);
}

} // namespace
} // namespace quor::test
