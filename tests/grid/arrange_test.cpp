// What sorting does to the current row.
#include "grid/TGGridExtension.h"
#include "grid/TGRowSelector.h"
#include "tests/grid/ModelGrid.h"
#include "tests/grid/WindowGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

TEST(Arrange, CurrentRow_GoesWithItsRow)
{
    ModelGrid grid;
    AddCols(grid, 1);
    AddRows(grid, "cabd");
    grid.AppendKey(0);
    grid.SetCurRowIndex(0);
    grid.Arrange(true);
    EXPECT_EQ("a b c d", Texts(grid));
    EXPECT_EQ(2, grid.GetCurRowIndex());
    grid.Arrange(false);
    EXPECT_EQ("d c b a", Texts(grid));
    EXPECT_EQ(1, grid.GetCurRowIndex());
}

TEST(Arrange, WithoutACurrentRow_ThereIsNoneAfterwards)
{
    ModelGrid grid;
    AddCols(grid, 1);
    AddRows(grid, "cab");
    grid.AppendKey(0);
    grid.Arrange(true);
    EXPECT_EQ(-1, grid.GetCurRowIndex());
}

TEST(Arrange, SelectedCurrentRow_StaysBoth)
{
    ModelGrid grid;
    AddCols(grid, 1);
    AddRows(grid, "cab");
    grid.AppendKey(0);
    grid.SelectRow(0, true);
    grid.Arrange(true);
    EXPECT_EQ("rows 2 | cur 2,-1", Selection(grid));
}

TEST(Arrange, CurrentChildRow_GoesWithItsRowThroughFoldingAndUnfolding)
{
    ModelGrid grid(true);
    AddCols(grid, 1);
    TGGridTreeRow& b = AddRoot(grid, L"b");
    AddChild(b, L"z");
    AddChild(b, L"y");
    AddRoot(grid, L"a");
    b.UnFold();
    ASSERT_EQ("b z y a", Texts(grid));
    grid.AppendKey(0);
    grid.SelectRow(1, true);
    grid.Arrange(true);
    EXPECT_EQ("a b y z", Texts(grid));
    EXPECT_EQ(3, grid.GetCurRowIndex());
}

TEST(Arrange, CurrentRowThatAHookDeletes_LeavesNone)
{
    ModelGrid grid(true);
    AddCols(grid, 1);
    TGGridTreeRow& b = AddRoot(grid, L"b");
    AddChild(b, L"z");
    AddRoot(grid, L"a");
    b.UnFold();
    grid.AppendKey(0);
    grid.SelectRow(1, true);
    grid.SetCurRowIndex(2);
    grid.onCurChanged = [&] {
        grid.onCurChanged = nullptr;
        grid.DelRow(grid.GetRowNum() - 1);
        grid.SetCurRowIndex(2);
    };
    grid.Arrange(true);
    EXPECT_EQ("b z", Texts(grid));
    EXPECT_EQ(-1, grid.GetCurRowIndex());
}

class ArrangeWindow : public GridWindowTest
{
};

TEST_F(ArrangeWindow, Marker_StandsBesideTheRowThatWasEdited)
{
    WindowGrid grid;
    grid.SetFlatButton(true);
    grid.SetNoAppendButton(true);
    Create(grid);
    AddCols(grid, 1);
    AddRows(grid, "cab");
    grid.AppendKey(0);
    grid.BeginEditCell(0, 0);
    grid.Arrange(true);
    PumpPending();
    const Snapshot picture(grid);
    std::string marked;
    for (int row = 0; row < 3; ++row)
        marked += picture.IsUniform(CRect(1, 21 + row * 20, 19, 39 + row * 20)) ? '-' : '*';
    EXPECT_EQ("--*", marked);
}

// The order of the rows is that of their operator>, whatever the texts have in common.
TEST(Arrange, TextsOfAllKinds_ComeIntoTheOrderOfTheRows)
{
    std::mt19937 random(7);
    const std::vector<CString> starts = {L"", L"a", L"0000", L"common start ", L"\xFFFF\xFFFF", L"12345678"};
    for (int round = 0; round < 60; ++round)
    {
        ModelGrid grid;
        AddCols(grid, 2);
        std::vector<TGGridRow*> rows;
        for (int i = 0; i < 80; ++i)
        {
            CString text = starts[round % 3 == 0 ? random() % starts.size() : round % starts.size()];
            for (unsigned chars = random() % 12; chars > 0; --chars)
                text += static_cast<wchar_t>(random() % 5 == 0 ? 0x4E00 + random() % 3 : L'a' + random() % 2);
            grid.AppendRow(nullptr);
            grid.GetCell(i, 0).SetText(text);
            grid.GetCell(i, 1).SetText(random() % 2 == 0 ? L"x" : L"y");
            rows.push_back(&grid.GetRow(i));
        }
        if (round % 2 == 0)
            grid.AppendKey(round % 4 == 0 ? 1 : 5);
        grid.AppendKey(0);
        const bool ascending = round % 5 != 0;
        std::stable_sort(rows.begin(), rows.end(), [ascending](TGGridRow* first, TGGridRow* second) {
            return ascending ? *second > *first : *second < *first;
        });
        grid.Arrange(ascending);
        for (int i = 0; i < 80; ++i)
            ASSERT_EQ(rows[static_cast<std::size_t>(i)], &grid.GetRow(i))
                << "round " << round << " row " << i;
        EXPECT_EQ(79, grid.GetRow(79).GetIndex());
    }
}

// What follows a null character counts for nothing.
TEST(Arrange, TextsWithANullCharacter_AreComparedUpToIt)
{
    ModelGrid grid;
    AddCols(grid, 1);
    AddRows(grid, "cab");
    grid.GetCell(0, 0).GetText() = CString(L"b\0z", 3);
    grid.GetCell(1, 0).GetText() = CString(L"b\0a", 3);
    grid.GetCell(2, 0).GetText() = L"a";
    const TGGridRow* const first = &grid.GetRow(0);
    grid.AppendKey(0);
    grid.Arrange(true);
    EXPECT_EQ(first, &grid.GetRow(1));
}

// ---- Hooks that folding runs

// b(y x) a(z) c, all unfolded, with a key.
void FillWithTrees(ModelGrid& grid)
{
    AddCols(grid, 1);
    TGGridTreeRow& b = AddRoot(grid, L"b");
    AddChild(b, L"y");
    AddChild(b, L"x");
    TGGridTreeRow& a = AddRoot(grid, L"a");
    AddChild(a, L"z");
    AddRoot(grid, L"c");
    grid.AppendKey(0);
    b.UnFold();
    a.UnFold();
}

TEST(ArrangeWithHooks, ThatDeleteRootsBeforeTheyAreFolded_SortsTheOthers)
{
    ModelGrid grid(true);
    FillWithTrees(grid);
    grid.onCurChanged = [&grid] {
        grid.onCurChanged = nullptr;
        grid.DelRowEx(grid.GetRowNum() - 3);
    };
    grid.Arrange(true);
    EXPECT_EQ("b x y c", Texts(grid));
}

TEST(ArrangeWithHooks, ThatDeleteARootAfterItWasFolded_SortsTheOthers)
{
    ModelGrid grid(true);
    FillWithTrees(grid);
    int calls = 0;
    grid.onCurChanged = [&] {
        // The third row that is hidden is the child of a, when b is folded.
        if (++calls == 3)
            grid.DelRowEx(0);
    };
    grid.Arrange(true);
    EXPECT_EQ("a z c", Texts(grid));
}

TEST(ArrangeWithHooks, ThatDeleteSelectedRows_SelectsTheOthersAgain)
{
    ModelGrid grid(true);
    FillWithTrees(grid);
    grid.SelectRow(3, true);
    grid.SelectRow(5, true);
    grid.onCurChanged = [&grid] {
        grid.onCurChanged = nullptr;
        grid.DelRow(grid.GetRowNum() - 1);
    };
    grid.Arrange(true);
    EXPECT_EQ("a z b x y", Texts(grid));
    EXPECT_EQ(1, grid.GetRowSelNum());
    EXPECT_TRUE(grid.IsRowSelected(0));
}

TEST(ArrangeWithHooks, ThatUnfoldARootAgain_KeepsItsChildrenBelowIt)
{
    for (const bool extended : {false, true})
    {
        ModelGrid grid(true);
        FillWithTrees(grid);
        TGGridExtension extension;
        if (extended)
            extension.AttachTo(grid);
        int calls = 0;
        grid.onCurChanged = [&] {
            if (++calls == 3)
                grid.GetTreeRow(0).UnFold();
        };
        grid.Arrange(true);
        EXPECT_EQ("a z b x y c", Texts(grid)) << extended;
        EXPECT_EQ(6, grid.GetRowNum());
    }
}

} // namespace
} // namespace quor::test
