// What rows that come and go one by one do to the layout, and how tall the contents can be.
#include "rules/GridGeometry.h"
#include "tests/grid/WindowGrid.h"

#include <string>

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

class RowLayout : public GridWindowTest
{
protected:
    void SetUp() override { Create(grid); }

    // The data area is 380 x 280 pixels without bars.
    WindowGrid grid;
};

// The rows that are added before the next paint cost no layout of their own, but nobody can tell.
TEST_F(RowLayout, RowsOneByOne_MoveTheBarAtOnce)
{
    Fill(grid, 1, 1);
    PumpPending();
    for (long rows = 2; rows <= 40; ++rows)
    {
        grid.AppendRow(nullptr);
        const long hidden = (rows + 1) * 20 - 280;
        EXPECT_EQ(hidden > 0 ? "V " + std::to_string(hidden) + "@0" : "", grid.Bars()) << rows;
    }
    grid.MoveView(0, 10000);
    const int bottom = grid.VScroll();
    EXPECT_EQ(41 * 20 - 280, bottom);
    for (long rows = 39; rows >= 30; --rows)
    {
        grid.DelRow(rows);
        EXPECT_EQ((rows + 1) * 20 - 280, grid.VScroll()) << rows;
    }
    while (grid.GetRowNum() > 5)
        grid.DelRow(0);
    EXPECT_EQ("", grid.Bars());
}

TEST_F(RowLayout, RowsThatAreCut_TakeTheBarAway)
{
    Fill(grid, 40, 1);
    for (long row = 2; row < 40; ++row)
        grid.SelectRow(row, true);
    grid.DoClip();
    EXPECT_EQ("", grid.Bars());
}

TEST_F(RowLayout, ChildrenThatAreFoldedAway_TakeTheBarAway)
{
    WindowGrid tree(true);
    Create(tree);
    Fill(tree, 2, 1);
    for (int i = 0; i < 40; ++i)
        tree.GetTreeRow(0).AppendChild(nullptr);
    tree.GetTreeRow(0).UnFold();
    EXPECT_NE("", tree.Bars());
    tree.GetTreeRow(0).Fold();
    EXPECT_EQ("", tree.Bars());
}

TEST_F(RowLayout, RowsBehindAPaint_InvalidateAgain)
{
    Fill(grid, 3, 1);
    grid.AppendRow(nullptr);
    grid.AppendRow(nullptr);
    for (int round = 0; round < 3; ++round)
    {
        grid.UpdateWindow();
        EXPECT_FALSE(grid.GetUpdateRect(nullptr));
        grid.AppendRow(nullptr);
        EXPECT_TRUE(grid.GetUpdateRect(nullptr));
        grid.InsertRow(0, nullptr);
        EXPECT_TRUE(grid.GetUpdateRect(nullptr));
    }
}

TEST_F(RowLayout, RowsAfterRedrawWasOff_InvalidateAgain)
{
    Fill(grid, 3, 1);
    grid.AppendRow(nullptr);
    grid.SetRedraw(FALSE);
    grid.AppendRow(nullptr);
    grid.SetRedraw(TRUE);
    EXPECT_FALSE(grid.GetUpdateRect(nullptr));
    grid.AppendRow(nullptr);
    EXPECT_TRUE(grid.GetUpdateRect(nullptr));
}

TEST_F(RowLayout, NewRowLine_IsFreshAfterEveryChangeOfTheRows)
{
    Fill(grid, 3, 1);
    grid.AppendRow(nullptr);
    grid.MoveTo(-1);
    for (int round = 0; round < 3; ++round)
    {
        const std::string log = "rows " + std::to_string(grid.GetRowNum());
        grid.BeginEditCell(grid.GetRowNum(), 0);
        long row = -1;
        long col = -1;
        ASSERT_TRUE(grid.GetCurCell(row, col)) << log;
        EXPECT_EQ(grid.GetRowNum(), row);
        grid.AppendRow(nullptr);
        EXPECT_FALSE(grid.IsEditing());
    }
}

// ---- Rows without end

// Rows of 16,384 pixels stand for the many that it takes otherwise.
class TallRows : public RowLayout
{
protected:
    static constexpr long Height = 1 << 14;

    void SetUp() override
    {
        // Headers that exist would cover rows of this height.
        grid.SetRowSel(false);
        grid.SetColSel(false);
        RowLayout::SetUp();
        Fill(grid, 1, 1);
        grid.SetRowSpace(static_cast<int>(Height - (grid.GetRowHeight() - grid.GetRowSpace())));
        grid.SetNoAppendButton(true);
        ASSERT_EQ(Height, grid.GetRowHeight());
    }
};

TEST_F(TallRows, LastRowOfTheHeightThatContextsCountExactly_IsPaintedAndHit)
{
    constexpr long Last = ExactContentHeight / Height - 1;
    grid.SetRowNum(Last + 1);
    EXPECT_EQ(ExactContentHeight, grid.GetBottom());
    grid.GetCol(0).SetBackColor(RGB(255, 0, 0));
    for (int i = 0; i < 3; ++i)
        grid.MoveView(0, 1 << 24);
    const int height = grid.Area().Height();
    EXPECT_EQ(ExactContentHeight - height, grid.VScroll());
    long row = -1;
    long col = -1;
    grid.PtToCell(CPoint(10, height - 2), row, col);
    EXPECT_EQ(Last, row);
    EXPECT_EQ(0, col);
    grid.PtToCell(CPoint(10, height - 1), row, col);
    EXPECT_EQ(Last + 1, row);
    const Snapshot picture(grid);
    EXPECT_EQ(RGB(255, 0, 0), picture.At(10, height - 2));
    EXPECT_EQ(lineColour, picture.At(10, height - 1));
}

TEST_F(TallRows, BeyondTheHeightThatCanBeCounted_HaveNoExtent)
{
    constexpr long Last = MaxContentHeight / Height - 1;
    grid.SetRowNum(Last + 1);
    EXPECT_EQ(MaxContentHeight, grid.GetBottom());
    grid.SetRowNum(Last + 5000);
    EXPECT_EQ(MaxContentHeight, grid.GetBottom());
    CRect rect;
    grid.GetCell(Last, 0).GetRect(rect);
    EXPECT_EQ(MaxContentHeight - Height, rect.top);
    EXPECT_EQ(MaxContentHeight, rect.bottom);
    grid.GetCell(Last + 4999, 0).GetRect(rect);
    EXPECT_EQ(0, rect.Height());
    EXPECT_EQ(MaxContentHeight, rect.top);
    for (int i = 0; i < 20; ++i)
        grid.MoveView(0, 1 << 24);
    EXPECT_EQ(MaxContentHeight - grid.Area().Height(), grid.VScroll());
    grid.UpdateWindow();
    grid.SelectRow(Last + 4999, true);
    EXPECT_TRUE(grid.IsRowSelected(Last + 4999));
}

} // namespace
