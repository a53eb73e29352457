// The fold boxes and lines of tree rows in the first column.
#include "tests/grid/WindowGrid.h"

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

// Rows of the tree, all unfolded:
//   0 root (with box)
//   1   first (with box)
//   2     leaf
//   3     last leaf
//   4   last child
//   5 second root (with box, folded)
class GridTreePainting : public GridWindowTest
{
protected:
    void SetUp() override
    {
        Create(grid);
        grid.SetNoAppendButton(true);
        grid.AppendCol(L"Tree", 200);
        grid.AppendCol(L"Other", 100);
        grid.AppendRow(nullptr);
        TGGridTreeRow& root = grid.GetTreeRow(0);
        root.AppendChild(nullptr);
        root.AppendChild(nullptr);
        root.GetChild(0).AppendChild(nullptr);
        root.GetChild(0).AppendChild(nullptr);
        root.UnFoldAll();
        grid.AppendRow(nullptr);
        grid.GetTreeRow(5).AppendChild(nullptr);
        ASSERT_EQ(6, grid.GetRowNum());
    }

    // The pixels of a vertical or horizontal run in logical coordinates: '#' for the line colour, '.' for
    // white.
    std::string Column(long x, long top, long bottom) { return Run(x, top, x + 1, bottom); }
    std::string Line(long y, long left, long right) { return Run(left, y, right, y + 1); }

    std::string Run(long left, long top, long right, long bottom)
    {
        const Snapshot picture(grid);
        std::string run;
        for (long y = top; y < bottom; ++y)
        {
            for (long x = left; x < right; ++x)
            {
                const CPoint point = grid.ToClient(x, y);
                const COLORREF colour = picture.At(point.x, point.y);
                run += colour == lineColour ? '#' : colour == white ? '.' : '?';
            }
        }
        return run;
    }

    WindowGrid grid{true};
};

TEST_F(GridTreePainting, FoldBox_IsAFrame)
{
    // The box of the first root is (2, 2)-(19, 19).
    EXPECT_EQ(".#################.", Line(2, 1, 20));
    EXPECT_EQ(".#################.", Line(18, 1, 20));
    EXPECT_EQ("#...............#", Line(4, 2, 19));
    EXPECT_EQ(".#######", Column(2, 1, 9));
    EXPECT_EQ(".#######", Column(18, 1, 9));
}

TEST_F(GridTreePainting, UnfoldedBox_HasAMinus)
{
    EXPECT_EQ("#.#############.#", Line(10, 2, 19));
    EXPECT_EQ("#.......#.......#", Column(10, 2, 19));
}

TEST_F(GridTreePainting, FoldedBox_HasAPlus)
{
    EXPECT_EQ("#.#############.#", Line(110, 2, 19));
    EXPECT_EQ("#.#############.#", Column(10, 102, 119));
}

TEST_F(GridTreePainting, FoldedBox_GoesWithTheLastChild)
{
    EXPECT_EQ(".#################.", Line(102, 1, 20));
    grid.GetTreeRow(5).DelChild(0);
    EXPECT_EQ("...................", Line(102, 1, 20));
}

TEST_F(GridTreePainting, BelowALastChild_NoLineLeadsPastItsOffspring)
{
    TGGridTreeRow& lastChild = grid.GetTreeRow(4);
    lastChild.AppendChild(nullptr);
    lastChild.GetChild(0).AppendChild(nullptr);
    lastChild.UnFoldAll();
    // The line of the root's children leads to its last child and ends there.
    const auto rootLine = [this](long row) { return Column(10, row * 20 + 1, row * 20 + 20); };
    EXPECT_EQ("##########.........", rootLine(4));
    EXPECT_EQ("...................", rootLine(5));
    EXPECT_EQ("...................", rootLine(6));
}

TEST_F(GridTreePainting, UnfoldedRoot_IsJoinedToItsChildren)
{
    // From below the box (2, 2)-(19, 19) to the line under the row.
    EXPECT_EQ("##", Column(10, 19, 21));
    // The folded one is not.
    EXPECT_EQ(".#", Column(10, 119, 121));
}

TEST_F(GridTreePainting, ChildWithBox_HasALineToItsBox)
{
    // Its box is (19, 22)-(36, 39), its parent's middle is x = 10.
    EXPECT_EQ("#####################", Column(10, 20, 41));
    EXPECT_EQ(".#########", Line(30, 9, 19));
    EXPECT_EQ("#.#############.#", Line(30, 19, 36));
}

TEST_F(GridTreePainting, Leaf_HasALineBeyondItsParentsBox)
{
    // The parent's box is (19, 22)-(36, 39): its middle is x = 27, half a box beyond its edge is x = 44.
    EXPECT_EQ("####################", Column(27, 41, 61));
    EXPECT_EQ("." + std::string(17, '#') + ".", Line(50, 26, 45));
    // The grandparent's line passes by.
    EXPECT_EQ("####################", Column(10, 41, 61));
}

TEST_F(GridTreePainting, LastLeaf_EndsItsParentsLine)
{
    EXPECT_EQ("##########.........#", Column(27, 61, 81));
    EXPECT_EQ("####################", Column(10, 61, 81));
}

TEST_F(GridTreePainting, LastChild_EndsTheLine)
{
    EXPECT_EQ("##########.........#", Column(10, 81, 101));
    EXPECT_EQ("." + std::string(17, '#') + ".", Line(90, 9, 28));
}

TEST_F(GridTreePainting, WithoutTreeLines_OnlyTheBoxesShow)
{
    grid.SetTreeLine(false);
    EXPECT_EQ("#.#############.#", Line(10, 2, 19));
    EXPECT_EQ("#.#############.#", Line(110, 2, 19));
    EXPECT_EQ("#.#############.#", Line(30, 19, 36));
    EXPECT_EQ(".#", Column(10, 19, 21));
    EXPECT_EQ(std::string(19, '.'), Column(10, 21, 40));
    EXPECT_EQ(std::string(19, '.'), Column(27, 41, 60));
    EXPECT_EQ(std::string(100, '.'), Line(50, 5, 105));
}

TEST_F(GridTreePainting, SetTreeLine_RepaintsByItself)
{
    EXPECT_EQ("##", Column(10, 19, 21));
    grid.SetTreeLine(false);
    EXPECT_EQ(".#", Column(10, 19, 21));
    grid.SetTreeLine(true);
    EXPECT_EQ("##", Column(10, 19, 21));
}

TEST_F(GridTreePainting, OtherColumns_HaveNoDecoration)
{
    EXPECT_TRUE(Snapshot(grid).IsAll(grid.InsideOf(0, 1), white));
    EXPECT_TRUE(Snapshot(grid).IsAll(grid.InsideOf(2, 1), white));
}

TEST_F(GridTreePainting, Text_StartsRightOfTheDecoration)
{
    const auto firstInk = [this](long row) {
        const Snapshot picture(grid);
        const CRect inside = grid.InsideOf(row, 0);
        for (int x = inside.left; x < inside.right; ++x)
        {
            if (!picture.IsAll(CRect(x, inside.top, x + 1, inside.bottom), white))
                return x - grid.ToClient(0, 0).x;
        }
        return 0L;
    };
    grid.SetTreeLine(false);
    for (long row = 0; row < 6; ++row)
        grid.GetCell(row, 0).SetText(L"H");
    grid.Invalidate(1);
    // Leaves under the box (19, ..)-(36, ..) start one box further right, at 53 + 2.
    EXPECT_NEAR(56, firstInk(2), 1);
    EXPECT_NEAR(56, firstInk(3), 1);
    EXPECT_NEAR(39, firstInk(4), 1);
    // Rows with a box start at the right edge of their own.
    grid.GetCell(0, 0).SetText(L"");
    const CRect inside = grid.InsideOf(1, 0);
    grid.Invalidate(1);
    const Snapshot picture(grid);
    const int boxEnd = grid.ToClient(36, 0).x;
    EXPECT_TRUE(picture.IsAll(CRect(boxEnd, inside.top, boxEnd + 2, inside.bottom), white));
    EXPECT_FALSE(picture.IsAll(CRect(boxEnd + 2, inside.top, boxEnd + 5, inside.bottom), white));
}

TEST_F(GridTreePainting, ChildCursors_AreLeftAlone)
{
    TGGridTreeRow& root = grid.GetTreeRow(0);
    root.MoveToFirst();
    grid.Invalidate(1);
    grid.UpdateWindow();
    EXPECT_EQ(&root.CurChild(), &grid.GetTreeRow(1));
}

TEST_F(GridTreePainting, FirstChildOfAFoldedRow_MakesTheBoxShow)
{
    grid.AppendRow(nullptr);
    grid.UpdateWindow();
    EXPECT_EQ(std::string(17, '.'), Line(130, 2, 19));
    grid.GetTreeRow(6).AppendChild(nullptr);
    EXPECT_EQ("#.#############.#", Line(130, 2, 19));
}

TEST_F(GridTreePainting, DeletingTheRowThatIsDrawnWithItsFirstChild_IsSurvived)
{
    grid.AppendRow(nullptr);
    ASSERT_EQ(7, grid.GetRowNum());
    grid.actions["OnRefresh row"] = [this] {
        grid.actions.clear();
        grid.DelRow(6);
    };
    grid.GetTreeRow(6).AppendChild(nullptr);
    EXPECT_EQ(6, grid.GetRowNum());
}

} // namespace
