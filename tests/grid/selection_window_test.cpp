// The selection of a grid with a window: what scrolls, what ends an edit, what is inverted when.
#include "tests/grid/WindowGrid.h"

#include <functional>
#include <utility>

using namespace QuorUiCtr;
using namespace quor::test;

namespace
{

const COLORREF inverseLineColour = ~lineColour & 0xFFFFFF;

// Runs `inPaint` once, when row `paintedRow` is asked whether it draws itself.
class PaintHookGrid : public WindowGrid
{
public:
    using TGGrid::ClearSel;

    std::function<void()> inPaint;
    long paintedRow = 2;

protected:
    bool OnRefresh(TGGridRow& row) override
    {
        if (row.GetIndex() == paintedRow && inPaint)
            std::exchange(inPaint, nullptr)();
        return WindowGrid::OnRefresh(row);
    }
};

class GridSelectionWindow : public GridWindowTest
{
protected:
    void SetUp() override { Create(grid); }

    COLORREF At(long x, long y)
    {
        const CPoint point = grid.ToClient(x, y);
        return Snapshot(grid).At(point.x, point.y);
    }

    // The same without painting what is due.
    COLORREF OnScreen(long x, long y) { return CClientDC(&grid).GetPixel(grid.ToClient(x, y)); }

    PaintHookGrid grid;
};

TEST_F(GridSelectionWindow, Selecting_EndsAnEditAndUnselectingDoesNot)
{
    Fill(grid, 5, 2);
    grid.BeginEditCell(1, 1);
    grid.SelectRow(2, false);
    grid.SelectCol(0, false);
    grid.UnSelect();
    EXPECT_TRUE(grid.IsEditing());
    grid.SelectRow(2, true);
    EXPECT_FALSE(grid.IsEditing());
    grid.BeginEditCell(1, 1);
    EXPECT_FALSE(grid.IsRowSelected());
    grid.SelectCol(0, true);
    EXPECT_FALSE(grid.IsEditing());
    grid.BeginEditCell(1, 1);
    grid.SelectAll();
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(GridSelectionWindow, SelectingASelectedRowOrColumnAgain_DoesNotScroll)
{
    Fill(grid, 100, 10);
    grid.SelectRow(60, true);
    EXPECT_NE(0, grid.VScroll());
    grid.MoveView(0, -100000);
    grid.SelectRow(60, true);
    EXPECT_EQ(0, grid.VScroll());
    grid.SelectCol(9, true);
    EXPECT_NE(0, grid.HScroll());
    grid.MoveView(-100000, 0);
    grid.SelectCol(9, true);
    EXPECT_EQ(0, grid.HScroll());
}

TEST_F(GridSelectionWindow, SelectCol_ShowsTheColumnAndDoesNotScrollDown)
{
    Fill(grid, 100, 10);
    grid.MoveView(0, 333);
    grid.SelectCol(7, true);
    EXPECT_EQ(333, grid.VScroll());
    const CRect area = grid.Area();
    EXPECT_LE(grid.ToClient(800, 0).x, area.right);
    EXPECT_GE(grid.ToClient(700, 0).x, area.left);
    EXPECT_EQ(black, At(702, 342));
    EXPECT_EQ(white, At(698, 342));
}

TEST_F(GridSelectionWindow, FindAndSel_ShowsTheRow)
{
    Fill(grid, 100, 2);
    EXPECT_TRUE(grid.FindAndSel(L"77,1", 1));
    EXPECT_TRUE(grid.Area().PtInRect(grid.ToClient(99, 77 * 20 + 2)));
    EXPECT_EQ(black, At(99, 77 * 20 + 2));
}

TEST_F(GridSelectionWindow, UnSelect_RestoresTheBandsAtOnce)
{
    Fill(grid, 5, 2);
    grid.SelectRow(1, true);
    grid.SelectRow(3, true);
    EXPECT_EQ(black, At(99, 22));
    grid.UnSelect();
    EXPECT_EQ(white, OnScreen(99, 22));
    EXPECT_EQ(white, OnScreen(99, 62));
    grid.SelectCol(1, true);
    EXPECT_EQ(black, At(199, 22));
    grid.SelectRow(0, true);
    EXPECT_EQ(white, OnScreen(199, 22));
    EXPECT_EQ(black, OnScreen(199, 2));
}

TEST_F(GridSelectionWindow, ClearSel_LeavesTheBandsUntilTheNextPaint)
{
    Fill(grid, 5, 2);
    grid.SelectRow(1, true);
    EXPECT_EQ(black, At(99, 22));
    grid.ClearSel();
    EXPECT_EQ(black, At(99, 22));
    grid.Invalidate(1);
    EXPECT_EQ(white, At(99, 22));
}

TEST_F(GridSelectionWindow, SelectAll_LeavesThePictureToARepaintOfEverything)
{
    Fill(grid, 5, 2);
    Snapshot{grid};
    for (const int id : {102, 103, 104})
        EXPECT_FALSE(::GetUpdateRect(::GetDlgItem(grid, id), nullptr, FALSE)) << id;
    grid.SelectAll();
    EXPECT_EQ(white, OnScreen(99, 22));
    EXPECT_TRUE(grid.GetUpdateRect(nullptr));
    for (const int id : {102, 103, 104})
        EXPECT_TRUE(::GetUpdateRect(::GetDlgItem(grid, id), nullptr, FALSE)) << id;
    EXPECT_EQ(black, At(99, 22));
}

// ---- Postponed painting

TEST_F(GridSelectionWindow, SelectingInsideAnUpdate_ShowsAtItsEnd)
{
    Fill(grid, 100, 2);
    Snapshot{grid};
    grid.BeginUpdate();
    grid.SelectRow(1, true);
    grid.SelectRow(60, true);
    EXPECT_EQ(0, grid.VScroll());
    EXPECT_EQ(white, OnScreen(99, 22));
    grid.EndUpdate();
    EXPECT_TRUE(grid.Area().PtInRect(grid.ToClient(99, 60 * 20 + 2)));
    EXPECT_EQ(black, At(99, 60 * 20 + 2));
    grid.MoveView(0, -100000);
    EXPECT_EQ(black, At(99, 22));
    grid.BeginUpdate();
    grid.UnSelect();
    EXPECT_EQ(black, OnScreen(99, 22));
    grid.EndUpdate();
    EXPECT_EQ(white, At(99, 22));
}

// Half of the rows have been drawn then, and none of the bands.
TEST_F(GridSelectionWindow, SelectionChangedWhilePainting_IsShownAsItIs)
{
    Fill(grid, 8, 2);
    grid.SelectRow(0, true);
    grid.SelectRow(5, true);
    Snapshot{grid};
    grid.inPaint = [this] {
        grid.SelectRow(0, false);
        grid.SelectRow(1, true);
        grid.SelectRow(6, true);
    };
    grid.InvalidateRect(CRect(grid.ToClient(50, 45), grid.ToClient(60, 55)), TRUE);
    Snapshot{grid};
    ASSERT_FALSE(grid.inPaint);
    for (long row = 0; row < 8; ++row)
        EXPECT_EQ(row == 1 || row == 5 || row == 6 ? black : white, At(99, row * 20 + 2)) << row;
    grid.inPaint = [this] { grid.UnSelect(); };
    grid.Invalidate(1);
    Snapshot{grid};
    for (long row = 0; row < 8; ++row)
        EXPECT_EQ(white, At(99, row * 20 + 2)) << row;
}

// ---- Cells drawn by themselves

TEST_F(GridSelectionWindow, CellDrawnInASelectedRow_StaysInverted)
{
    Fill(grid, 5, 2);
    grid.SelectRow(1, true);
    grid.SelectRow(2, true);
    Snapshot{grid};
    grid.GetCell(1, 1).Refresh();
    EXPECT_EQ(black, OnScreen(199, 22));
    EXPECT_EQ(inverseLineColour, OnScreen(150, 20));
    EXPECT_EQ(inverseLineColour, OnScreen(150, 40));
    EXPECT_EQ(inverseLineColour, OnScreen(100, 30));
    EXPECT_EQ(lineColour, OnScreen(200, 30));
    grid.GetRow(3).Refresh();
    EXPECT_EQ(white, OnScreen(199, 62));
    EXPECT_EQ(lineColour, OnScreen(150, 60));
    EXPECT_EQ(black, OnScreen(199, 42));
}

TEST_F(GridSelectionWindow, CellDrawnInASelectedColumn_StaysInverted)
{
    Fill(grid, 5, 3);
    grid.SelectCol(1, true);
    Snapshot{grid};
    grid.GetCell(2, 1).Refresh();
    grid.GetCell(2, 0).Refresh();
    EXPECT_EQ(black, OnScreen(199, 42));
    EXPECT_EQ(inverseLineColour, OnScreen(100, 50));
    EXPECT_EQ(lineColour, OnScreen(200, 50));
    EXPECT_EQ(white, OnScreen(99, 42));
}

// A child added below a folded, selected row gives the row a box.
TEST_F(GridSelectionWindow, SelectedTreeRowThatBecomesAParent_StaysInverted)
{
    WindowGrid tree(true);
    Create(tree);
    tree.AppendCol(L"Tree", 200);
    tree.AppendRow(nullptr);
    tree.SelectRow(0, true);
    Snapshot{tree};
    tree.GetTreeRow(0).AppendChild(nullptr);
    const CPoint point = tree.ToClient(199, 2);
    EXPECT_EQ(black, Snapshot(tree).At(point.x, point.y));
}

} // namespace
