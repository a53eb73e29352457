// Moving rows of a tree: a row goes with its shown offspring, and stays among its siblings.
#include "tests/grid/ModelGrid.h"
#include "tests/grid/WindowGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// a(b(c d) e) f(g) h, all of it shown: rows 0 to 7.
class TreeMove : public testing::Test
{
protected:
    TreeMove()
    {
        AddCols(grid, 1);
        a = &AddRoot(grid, L"a");
        TGGridTreeRow& b = AddChild(*a, L"b");
        AddChild(b, L"c");
        AddChild(b, L"d");
        AddChild(*a, L"e");
        f = &AddRoot(grid, L"f");
        AddChild(*f, L"g");
        AddRoot(grid, L"h");
        a->UnFoldAll();
        f->UnFoldAll();
        EXPECT_EQ("a b c d e f g h", Texts(grid));
    }

    // The rows as the tree has them, not the grid's row list.
    static void AppendTree(TGGridTreeRow& row, std::string& texts)
    {
        texts += (texts.empty() ? "" : " ") + Narrow(row[0].GetText());
        for (long child = 0; child < row.GetChildNum(); ++child)
            AppendTree(row.GetChild(child), texts);
    }
    std::string Tree()
    {
        std::string texts;
        for (long row = 0; row < grid.GetRowNum(); ++row)
            if (TGGridTreeRow& treeRow = grid.GetTreeRow(row); treeRow.IsRootRow())
                AppendTree(treeRow, texts);
        return texts;
    }
    // What the move makes of the rows, with the tree as it is.
    std::string Move(long from, long to)
    {
        grid.MoveRow(from, to);
        const std::string shown = Texts(grid);
        EXPECT_EQ(shown, Tree());
        return shown;
    }

    ModelGrid grid{true};
    TGGridTreeRow* a;
    TGGridTreeRow* f;
};

TEST_F(TreeMove, RootRow_TakesItsShownOffspringAlong)
{
    EXPECT_EQ("f g a b c d e h", Move(0, 7));
    EXPECT_EQ("a b c d e f g h", Move(2, 0));
    EXPECT_EQ("f g h a b c d e", Move(0, 8));
    EXPECT_EQ("h f g a b c d e", Move(2, 0));
}

TEST_F(TreeMove, ChildRow_MovesAmongItsSiblings)
{
    EXPECT_EQ("a e b c d f g h", Move(1, 5));
    EXPECT_EQ("a b c d e f g h", Move(2, 1));
    EXPECT_EQ("a b d c e f g h", Move(2, 4));
    EXPECT_EQ("a e b d c f g h", Move(4, 1));
}

TEST_F(TreeMove, PlaceThatIsNotBetweenSiblings_IsRefused)
{
    for (const auto& [from, to] : {std::pair{1L, 8L},
                                   {1L, 6L},
                                   {1L, 0L},
                                   {2L, 1L},
                                   {2L, 5L},
                                   {2L, 8L},
                                   {0L, 6L},
                                   {7L, 1L},
                                   {7L, 6L},
                                   {5L, 3L},
                                   {6L, 1L}})
        EXPECT_EQ("a b c d e f g h", Move(from, to)) << from << " to " << to;
}

TEST_F(TreeMove, PlaceInsideTheRowsOwnOffspringOrBehindIt_ChangesNothing)
{
    for (long to = 0; to <= 5; ++to)
        EXPECT_EQ("a b c d e f g h", Move(0, to)) << to;
    for (long to = 1; to <= 4; ++to)
        EXPECT_EQ("a b c d e f g h", Move(1, to)) << to;
}

TEST_F(TreeMove, FoldedRow_KeepsItsHiddenChildren)
{
    a->Fold();
    EXPECT_EQ("a f g h", Texts(grid));
    grid.MoveRow(0, 4);
    EXPECT_EQ("f g h a", Texts(grid));
    a->UnFold();
    EXPECT_EQ("f g h a b c d e", Texts(grid));
}

TEST_F(TreeMove, MovedChild_StaysWhereItIsWhenItsParentIsFoldedAndUnfolded)
{
    grid.MoveRow(4, 1);
    EXPECT_EQ("a e b c d f g h", Texts(grid));
    a->Fold();
    a->UnFold();
    EXPECT_EQ("a e b c d f g h", Texts(grid));
}

TEST_F(TreeMove, Selection_KeepsItsNumbers)
{
    grid.SelectRow(0, true);
    EXPECT_EQ("f g a b c d e h", Move(0, 7));
    EXPECT_EQ("rows 0 | cur 0,-1", Selection(grid));
}

TEST_F(TreeMove, RandomMoves_KeepViewAndTreeTheSame)
{
    unsigned state = 12345;
    const auto below = [&state](unsigned bound) {
        state = state * 1103515245u + 12345u;
        return static_cast<long>((state >> 16) % bound);
    };
    int changes = 0;
    std::string shown = Texts(grid);
    for (int step = 0; step < 500; ++step)
    {
        const std::string moved = Move(below(8), below(9));
        changes += moved != shown ? 1 : 0;
        shown = moved;
        ASSERT_EQ(8, grid.GetRowNum());
        ASSERT_FALSE(HasFailure()) << "step " << step;
    }
    EXPECT_GT(changes, 50);
}

} // namespace
} // namespace quor::test
