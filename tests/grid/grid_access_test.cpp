// A grid's initial state, counts, cursor, keys and plain accessors.
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

TEST(GridAccess, ANewGridIsAnEmptyPlainGridWithoutAWindow)
{
    TGGrid grid;
    EXPECT_FALSE(grid.IsTreeGrid());
    EXPECT_EQ(grid.GetDefaultWidth(), 100);
    EXPECT_EQ(grid.GetRowSpace(), 3);
    EXPECT_TRUE(grid.IsEmpty());
    EXPECT_TRUE(grid.IsColEmpty());
    EXPECT_EQ(grid.GetRowNum(), 0);
    EXPECT_EQ(grid.GetColNum(), 0);
    EXPECT_EQ(grid.GetCurRowIndex(), -1);
    EXPECT_EQ(grid.GetCurColIndex(), -1);
    EXPECT_EQ(grid.GetMainKey(), -1);
    EXPECT_FALSE(grid.IsModified());
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_FALSE(grid.IsCellLocking());
    EXPECT_FALSE(grid.IsRowSelected());
    EXPECT_FALSE(grid.IsColSelected());
    EXPECT_TRUE(grid.GetRowPaste().IsEmpty());
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
    EXPECT_EQ(grid.GetFont()->GetSafeHandle(), nullptr);
}

TEST(GridAccess, TheConstructorTakesTreeFlagAndColumnWidth)
{
    TGGrid grid(true, 40);
    EXPECT_TRUE(grid.IsTreeGrid());
    EXPECT_EQ(grid.GetDefaultWidth(), 40);
}

TEST(GridAccess, TheBackgroundBrushIsSolidWhite)
{
    TGGrid grid;
    LOGBRUSH brush{};
    ASSERT_NE(grid.GetBrush().GetLogBrush(&brush), 0);
    EXPECT_EQ(brush.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(brush.lbColor, RGB(255, 255, 255));
}

TEST(GridAccess, IndicesAreValidBelowTheCountAndTheCountNamesTheNewRowLine)
{
    ModelGrid grid;
    AddCols(grid, 2);
    AddRows(grid, "abc");
    EXPECT_FALSE(grid.IsValidRow(-1));
    EXPECT_TRUE(grid.IsValidRow(0));
    EXPECT_TRUE(grid.IsValidRow(2));
    EXPECT_FALSE(grid.IsValidRow(3));
    EXPECT_FALSE(grid.IsValidCol(-1));
    EXPECT_TRUE(grid.IsValidCol(1));
    EXPECT_FALSE(grid.IsValidCol(2));
    EXPECT_TRUE(grid.IsNewRow(3));
    EXPECT_FALSE(grid.IsNewRow(2));
    EXPECT_FALSE(grid.IsEmpty());
    EXPECT_FALSE(grid.IsColEmpty());
}

TEST(GridAccess, RowsAndCellsAreReachedByIndex)
{
    ModelGrid grid(true);
    AddCols(grid, 2);
    AddRows(grid, "ab");
    EXPECT_EQ(&grid[1], &grid.GetRow(1));
    EXPECT_EQ(&grid.GetTreeRow(1), &grid.GetRow(1));
    EXPECT_EQ(&grid.GetCell(1, 1), &grid.GetRow(1)[1]);
    EXPECT_EQ(&grid.GetCell(1, 1).GetCol(), &grid.GetCol(1));
}

TEST(GridAccess, ThereIsNoCurrentCellWithoutAnEditorEvenWithACurrentRow)
{
    ModelGrid grid;
    AddCols(grid, 1);
    AddRows(grid, "ab");
    grid.SetCurRowIndex(1);
    long row = 77;
    long col = 78;
    EXPECT_FALSE(grid.GetCurCell(row, col));
    EXPECT_EQ(row, 77);
    EXPECT_EQ(col, 78);
    EXPECT_EQ(grid.GetCurRowIndex(), 1);
}

TEST(GridAccess, SetModifyStoresTheFlagOnly)
{
    TGGrid grid;
    grid.SetModify(true);
    EXPECT_TRUE(grid.IsModified());
    grid.SetModify(false);
    EXPECT_FALSE(grid.IsModified());
}

TEST(GridAccess, RowHeightIsTextHeightPlusRowSpace)
{
    TGGrid grid;
    const long height = grid.GetRowHeight();
    grid.SetRowSpace(10);
    EXPECT_EQ(grid.GetRowSpace(), 10);
    EXPECT_EQ(grid.GetRowHeight(), height + 7);
}

TEST(GridAccess, KeysAreKeptInOrderAndTheFirstIsTheMainKey)
{
    TGGrid grid;
    grid.AppendKey(3);
    grid.AppendKey(1);
    EXPECT_EQ(grid.GetMainKey(), 3);
    grid.ClearKey();
    EXPECT_EQ(grid.GetMainKey(), -1);
}

TEST(GridCursor, WalksTheRowsAndIsOutBehindTheLast)
{
    ModelGrid grid;
    AddCols(grid, 1);
    AddRows(grid, "abc");
    std::string walked;
    for (grid.MoveToFirst(); !grid.IsOut(); grid.MoveToNext())
        walked += Narrow(grid.CurRow()[0].GetText()) + std::to_string(grid.GetCur());
    EXPECT_EQ(walked, "a0b1c2");
    EXPECT_EQ(grid.GetCur(), -1);
    grid.MoveToPre();
    EXPECT_EQ(grid.GetCur(), 2);
    grid.MoveTo(1);
    grid.MoveToPre();
    EXPECT_EQ(grid.GetCur(), 0);
    grid.MoveToPre();
    EXPECT_TRUE(grid.IsOut());
    grid.MoveTo(3);
    EXPECT_TRUE(grid.IsOut());
}

TEST(GridCursor, IsOutInAnEmptyGrid)
{
    TGGrid grid;
    EXPECT_TRUE(grid.IsOut());
    grid.MoveToFirst();
    EXPECT_TRUE(grid.IsOut());
}

TEST(GridCursor, CurTreeRowIsTheRowUnderTheCursor)
{
    ModelGrid grid(true);
    AddCols(grid, 1);
    AddRows(grid, "ab");
    grid.MoveTo(1);
    EXPECT_EQ(&grid.CurTreeRow(), &grid.GetTreeRow(1));
}

TEST(GridCursor, SelectingAndSearchingLeaveItAlone)
{
    ModelGrid grid;
    AddCols(grid, 2);
    AddRows(grid, "abcd");
    grid.MoveTo(2);
    grid.SelectRow(0, true);
    grid.SelectRow(0, false);
    grid.SelectAll();
    grid.UnSelect();
    grid.SelectCol(1, true);
    grid.FindAndSel(L"d", 0);
    EXPECT_EQ(grid.GetCur(), 2);
}

TEST(GridAccess, HostDataAndRowsDieWithTheGrid)
{
    {
        ModelGrid grid;
        AddCols(grid, 1);
        AddRows(grid, "ab");
        grid.GetRow(0).SetExtendData(new CountedData);
        auto* pasted = new TGGridRow(grid);
        pasted->SetExtendData(new CountedData);
        grid.GetRowPaste().Append(pasted);
        EXPECT_EQ(CountedData::alive, 2);
    }
    EXPECT_EQ(CountedData::alive, 0);
}

} // namespace
} // namespace quor::test
