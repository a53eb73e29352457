// Hooks that edit, insert, delete or destroy in the middle of an edit must not break the grid.
#include "EditGrid.h"

#include "tests/support/GuiHandles.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class EditReentryTest : public GridWindowTest
{
protected:
    void Make(EditGrid& grid, long rows = 4, long cols = 3)
    {
        Create(grid);
        Fill(grid, rows, cols);
    }
    // Edits a cell, types and commits.
    static void EditOnce(EditGrid& grid, long row, long col)
    {
        grid.BeginEditCell(row, col);
        if (grid.IsEditing())
            grid.Enter(L"typed");
        grid.EndEditCell();
    }
};

TEST_F(EditReentryTest, OnModified_DeletesTheRowUnderEdit)
{
    EditGrid grid;
    Make(grid);
    grid.modifiedText = [&](TGGridCell&, CString&)
    {
        grid.DelRow(1);
        return true;
    };
    EditOnce(grid, 1, 1);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(grid.GetRowNum(), 3);
}

TEST_F(EditReentryTest, OnModified_DeletesTheColumnUnderEdit)
{
    EditGrid grid;
    Make(grid);
    grid.modifiedText = [&](TGGridCell&, CString&)
    {
        grid.DelCol(1);
        return true;
    };
    EditOnce(grid, 1, 1);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(grid.GetColNum(), 2);
}

TEST_F(EditReentryTest, OnDataChanged_ClearsTheGrid)
{
    EditGrid grid;
    Make(grid);
    grid.dataChanged = [&] { grid.Clear(); };
    EditOnce(grid, 1, 1);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_TRUE(grid.IsEmpty());
}

TEST_F(EditReentryTest, OnCurChanged_EndsTheEdit)
{
    EditGrid grid;
    Make(grid);
    grid.curChanged = [&] { grid.EndEditCell(); };
    grid.BeginEditCell(1, 1);
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(EditReentryTest, OnBeforeEdit_DeletesTheRow)
{
    EditGrid grid;
    Make(grid);
    grid.beforeEdit = [&](TGGridCell&, bool&)
    {
        grid.DelRow(1);
        return true;
    };
    grid.BeginEditCell(1, 1);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(grid.GetRowNum(), 3);
}

TEST_F(EditReentryTest, OnBeforeEdit_EditsAnotherCell)
{
    EditGrid grid;
    Make(grid);
    bool nested = false;
    grid.beforeEdit = [&](TGGridCell&, bool&)
    {
        if (!std::exchange(nested, true))
            grid.BeginEditCell(3, 2);
        return true;
    };
    grid.BeginEditCell(1, 1);
    long row = -1;
    long col = -1;
    ASSERT_TRUE(grid.GetCurCell(row, col));
    EXPECT_EQ(row, 1);
    EXPECT_EQ(col, 1);
}

TEST_F(EditReentryTest, OnModified_OpensAnotherCell_WhichIsClosedWithTheCommit)
{
    EditGrid grid;
    Make(grid);
    bool nested = false;
    grid.modifiedText = [&](TGGridCell&, CString&)
    {
        if (!std::exchange(nested, true))
            grid.BeginEditCell(3, 2);
        return true;
    };
    EditOnce(grid, 1, 1);
    EXPECT_EQ(grid.GetCell(1, 1).GetText(), L"typed");
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_FALSE(grid.EditorWindow()->IsWindowVisible());
}

TEST_F(EditReentryTest, OnCellComboString_OpensAnotherCell)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetComboEdit(true);
    grid.comboStrings = [&](TGGridCell&, CComboBox&) { grid.BeginEditCell(2, 0); };
    grid.BeginEditCell(1, 1);
    EXPECT_TRUE(grid.IsEditing());
    grid.EndEditCell();
}

TEST_F(EditReentryTest, OnCellComboString_DestroysTheWindow)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetComboEdit(true);
    grid.comboStrings = [&](TGGridCell&, CComboBox&) { grid.DestroyWindow(); };
    grid.BeginEditCell(1, 1);
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
}

TEST_F(EditReentryTest, OnCellSpinInit_DestroysTheWindow)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetRightSpin(true);
    grid.spinInit = [&](TGGridCell&, CSpinButtonCtrl&) { grid.DestroyWindow(); };
    grid.BeginEditCell(1, 1);
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
}

TEST_F(EditReentryTest, OnCellButtonDown_DestroysTheWindow)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetRightButton(true);
    grid.buttonDown = [&](TGGridCell&, CString&)
    {
        grid.DestroyWindow();
        return true;
    };
    grid.BeginEditCell(1, 1);
    CWnd* button = grid.EditorWindow()->GetDlgItem(105);
    ASSERT_NE(button, nullptr);
    button->SendMessage(BM_CLICK);
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
}

TEST_F(EditReentryTest, OnCellButtonDown_EndsTheEditAndDeletesTheRow)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetRightButton(true);
    grid.buttonDown = [&](TGGridCell&, CString& text)
    {
        grid.DelRow(1);
        text = L"late";
        return true;
    };
    grid.BeginEditCell(1, 1);
    grid.EditorWindow()->GetDlgItem(105)->SendMessage(BM_CLICK);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(grid.GetRowNum(), 3);
    grid.BeginEditCell(0, 0);
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(EditReentryTest, OnBeforeInsertRow_InsertsRowsOfItsOwn)
{
    EditGrid grid;
    Make(grid);
    bool nested = false;
    grid.beforeInsertRow = [&](long, TGGridRow*&)
    {
        if (!std::exchange(nested, true))
            grid.InsertRow(0, nullptr);
        return true;
    };
    EditOnce(grid, 4, 1);
    EXPECT_EQ(grid.GetRowNum(), 6);
    EXPECT_EQ(grid.GetCell(5, 1).GetText(), L"typed");
}

TEST_F(EditReentryTest, OnInsertRow_DeletesTheInsertedRow)
{
    EditGrid grid;
    Make(grid);
    grid.insertedRow = [&](TGGridRow& row) { grid.DelRow(row.GetIndex()); };
    EditOnce(grid, 4, 1);
    EXPECT_EQ(grid.GetRowNum(), 4);
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(EditReentryTest, TheParentDestroysTheGrid_WhenTheEditorLosesTheFocus)
{
    EditGrid grid;
    Make(grid);
    grid.modifiedText = [&](TGGridCell&, CString&)
    {
        grid.DestroyWindow();
        return true;
    };
    grid.BeginEditCell(1, 1);
    grid.Enter(L"typed");
    host.SetFocus();
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
}

} // namespace
} // namespace quor::test
