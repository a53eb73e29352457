// Commands of trees whose parent goes while the hooks are asked, and what an update holds back.
#include "grid/TGGridUpdate.h"
#include "tests/grid/CommandGrid.h"
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class ParentGone : public GridWindowTest
{
protected:
    // a with x and y, b.
    void Make()
    {
        Create(grid);
        AddCols(grid, 2);
        TGGridTreeRow& root = AddRoot(grid, L"a");
        grid.AddChild(root, 'x');
        grid.AddChild(root, 'y');
        AddRoot(grid, L"b");
        root.UnFold();
    }
    // Deletes what stands at a row the next time that a hook is asked.
    void DeleteIn(const char* hook, long row)
    {
        grid.actions[hook] = [this, row] {
            grid.actions.clear();
            grid.DelRow(row);
        };
    }

    CommandGrid grid{true};
};

TEST_F(ParentGone, ASiblingOfARowThatGoes_IsNotInserted)
{
    for (const long doomed : {0L, 1L})
    {
        Make();
        grid.SelectRows({1});
        DeleteIn("OnBeforeInsertChild", doomed);
        EXPECT_FALSE(grid.DoInsertRow());
        EXPECT_EQ(grid.Rows(), doomed == 0 ? "b" : "a(y) b");
        grid.DestroyWindow();
        grid.Clear();
        grid.SetColNum(0);
    }
}

TEST_F(ParentGone, ASiblingAfterARowWhoseFoldingDeletesTheParent_IsNotInserted)
{
    Make();
    grid.AddChild(grid.GetTreeRow(1), 'd');
    grid.GetTreeRow(1).UnFold();
    grid.SelectRows({1});
    DeleteIn("OnFold", 0);
    DeleteIn("OnBeforeFold", 0);
    grid.DoInsertRowAfter();
    EXPECT_GE(grid.GetRowNum(), 1);
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(ParentGone, AChildOfARowThatGoes_IsNotAppended)
{
    Make();
    grid.SelectRows({0});
    DeleteIn("OnBeforeInsertChild", 0);
    EXPECT_FALSE(grid.DoAppendChild());
    EXPECT_EQ(grid.Rows(), "b");
}

TEST_F(ParentGone, AChildThatGoesWhenItIsTold_IsNotSelected)
{
    Make();
    grid.SelectRows({3});
    DeleteIn("OnCurChanged", 3);
    grid.DoAppendChild();
    EXPECT_EQ(grid.Rows().substr(0, 7), "a(x y) ");
    EXPECT_FALSE(grid.IsUpdating());
}

// ---- Updates

TEST_F(ParentGone, InAnUpdate_ShowingAndDrawingWaitForItsEnd)
{
    Create(grid);
    AddCols(grid, 2);
    {
        const TGGridUpdate update(grid);
        grid.SetRowNum(100);
        grid.Refresh();
        grid.ShowRect(CRect(0, 90 * rowHeight, 10, 91 * rowHeight));
        grid.SelectRow(90, true);
        EXPECT_EQ(grid.VScroll(), 0);
    }
    EXPECT_GT(grid.VScroll(), 0);
    const CRect cell = grid.InsideOf(90, 0);
    EXPECT_EQ(Snapshot(grid).At(cell.CenterPoint().x, cell.CenterPoint().y), black);
    grid.DestroyWindow();
    grid.ShowRect(CRect(0, 0, 10, 10));
    grid.Refresh();
    EXPECT_EQ(grid.GetRowNum(), 100);
}

#ifndef _DEBUG
TEST_F(ParentGone, RowsAndColumnsThatThereAreNot_AreNotSelected)
{
    Make();
    for (const long index : {-1L, 99L})
    {
        grid.SelectRow(index, true);
        grid.SelectCol(index, true);
        grid.SelectRow(index, false);
    }
    EXPECT_FALSE(grid.IsRowSelected());
    EXPECT_FALSE(grid.IsColSelected());
}
#endif

} // namespace
} // namespace quor::test
