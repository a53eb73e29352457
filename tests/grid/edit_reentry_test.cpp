// Hooks that edit, insert, delete or destroy in the middle of an edit must not break the grid.
#include "tests/grid/EditGrid.h"

#include "tests/support/GuiHandles.h"

#include <commctrl.h>
#include <utility>

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
    grid.modifiedText = [&](TGGridCell&, CString&) {
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
    grid.modifiedText = [&](TGGridCell&, CString&) {
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

TEST_F(EditReentryTest, DeselectionOfAClick_EditsAnotherCell)
{
    EditGrid grid;
    Make(grid);
    int commits = 0;
    grid.modifiedText = [&](TGGridCell&, CString&) { return ++commits != 0; };
    grid.curChanged = [&] {
        grid.curChanged = nullptr;
        grid.BeginEditCell(3, 0);
        grid.Enter(L"by the hook");
    };
    grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(150, 50));
    EXPECT_EQ(1, commits);
    EXPECT_EQ(grid.GetCell(3, 0).GetText(), L"by the hook");
    long row = -1;
    long col = -1;
    EXPECT_TRUE(grid.GetCurCell(row, col));
    EXPECT_EQ("1,1", std::to_string(row) + "," + std::to_string(col));
}

TEST_F(EditReentryTest, DeselectionOfAClick_AddsColumnsInsideAnUpdate)
{
    EditGrid grid;
    Make(grid);
    grid.curChanged = [&] {
        grid.curChanged = nullptr;
        grid.BeginUpdate();
        grid.SetColNum(9);
    };
    grid.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(150, 50));
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ("H 520@0", grid.Bars());
    grid.EndUpdate();
}

TEST_F(EditReentryTest, OnCurChanged_EditsARowThatIsBeingCut)
{
    EditGrid grid;
    Make(grid);
    grid.SelectRow(1, true);
    grid.SelectRow(2, true);
    grid.curChanged = [&] {
        grid.curChanged = nullptr;
        grid.BeginEditCell(1, 0);
    };
    EXPECT_TRUE(grid.DoClip());
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_TRUE(grid.EditorWindow() == nullptr || !grid.EditorWindow()->IsWindowVisible());
    EXPECT_EQ(grid.GetRowNum(), 2);
}

TEST_F(EditReentryTest, OnBeforeEdit_DeletesTheRow)
{
    EditGrid grid;
    Make(grid);
    grid.beforeEdit = [&](TGGridCell&, bool&) {
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
    grid.beforeEdit = [&](TGGridCell&, bool&) {
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

TEST_F(EditReentryTest, OnBeforeEdit_LaysOutTheNewRowLineAnew)
{
    EditGrid grid;
    Make(grid);
    grid.beforeEdit = [&](TGGridCell&, bool&) {
        grid.RecalcLayout(1);
        return true;
    };
    grid.BeginEditCell(4, 1);
    ASSERT_TRUE(grid.IsEditing());
    grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_TRUE(grid.IsEditing());
    grid.Enter(L"typed");
    grid.EndEditCell();
    ASSERT_EQ(grid.GetRowNum(), 5);
    EXPECT_STREQ(grid.GetCell(4, 1).GetText(), L"typed");
}

TEST_F(EditReentryTest, OnModified_OpensAnotherCell_WhichIsClosedWithTheCommit)
{
    EditGrid grid;
    Make(grid);
    bool nested = false;
    grid.modifiedText = [&](TGGridCell&, CString&) {
        if (!std::exchange(nested, true))
            grid.BeginEditCell(3, 2);
        return true;
    };
    EditOnce(grid, 1, 1);
    EXPECT_EQ(grid.GetCell(1, 1).GetText(), L"typed");
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_FALSE(grid.EditorWindow()->IsWindowVisible());
}

// Stands between a drop-down list and what the editor puts around it: writes down whether the list is still
// there when it has handled a key.
LRESULT CALLBACK SeeWhetherItLives(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                   DWORD_PTR lives)
{
    const LRESULT result = DefSubclassProc(list, message, wParam, lParam);
    if (message == WM_KEYDOWN)
        *reinterpret_cast<bool*>(lives) = ::IsWindow(list) != FALSE;
    if (message == WM_NCDESTROY)
        RemoveWindowSubclass(list, SeeWhetherItLives, id);
    return result;
}

TEST_F(EditReentryTest, OnCmbSelchange_EditsAnotherCell_WhichTheListOutlivesAsLongAsItRuns)
{
    struct ClosingGrid : EditGrid
    {
        // The next edit is the end of the editor of the one before.
        void OnCmbSelchange(TGGridCell&, CComboBox*) override
        {
            CancelEditCell();
            BeginEditCell(1, 2);
        }
    };
    ClosingGrid grid;
    Make(grid);
    grid.GetCol(1).SetComboSel(true);
    HWND list = nullptr;
    bool lives = false;
    grid.comboStrings = [&](TGGridCell&, CComboBox& combo) {
        combo.AddString(L"first");
        combo.AddString(L"second");
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        ASSERT_TRUE(GetComboBoxInfo(combo, &info));
        list = info.hwndList;
        ASSERT_TRUE(SetWindowSubclass(list, SeeWhetherItLives, 1, reinterpret_cast<DWORD_PTR>(&lives)));
    };
    grid.BeginEditCell(1, 1);
    ASSERT_TRUE(grid.IsEditing());
    ::SendMessage(list, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_TRUE(lives);
    EXPECT_FALSE(::IsWindow(list));
}

TEST_F(EditReentryTest, OnCellComboString_OpensAnotherCell)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(1).SetComboEdit(true);
    grid.comboStrings = [&](TGGridCell&, CComboBox&) { grid.BeginEditCell(2, 0); };
    grid.BeginEditCell(1, 1);
    long row = -1;
    long col = -1;
    ASSERT_TRUE(grid.GetCurCell(row, col));
    EXPECT_EQ(row, 2);
    EXPECT_EQ(col, 0);
    EXPECT_TRUE(grid.EditorWindow()->IsWindowVisible());
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
    grid.buttonDown = [&](TGGridCell&, CString&) {
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
    grid.buttonDown = [&](TGGridCell&, CString& text) {
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
    grid.beforeInsertRow = [&](long, TGGridRow*&) {
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

// Does something when an editor of a grid in it has lost the focus.
class KillFocusHost : public HostWindow
{
public:
    std::function<void()> lostFocus;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (HIWORD(wParam) == EN_KILLFOCUS && lostFocus)
            std::exchange(lostFocus, nullptr)();
        return HostWindow::OnCommand(wParam, lParam);
    }
};

// Hiding the editor moves the focus, and the parent hears of that while the editor is being hidden.
TEST_F(EditReentryTest, TheParentDestroysTheGridOrEditsAnotherCell_WhenTheHiddenEditorLosesTheFocus)
{
    for (const bool commits : {true, false})
        for (const bool destroys : {true, false})
        {
            KillFocusHost parent;
            EditGrid grid;
            ASSERT_TRUE(grid.Create(CRect(0, 0, 300, 200), WS_CHILD | WS_VISIBLE, &parent));
            Fill(grid, 4, 3);
            grid.BeginEditCell(1, 1);
            parent.lostFocus = [&] {
                if (destroys)
                    grid.DestroyWindow();
                else
                    grid.BeginEditCell(2, 2);
            };
            if (commits)
                grid.EndEditCell();
            else
                grid.CancelEditCell();
            EXPECT_FALSE(parent.lostFocus);
            EXPECT_EQ(grid.GetSafeHwnd() == nullptr, destroys);
        }
}

// The focus that an editor takes ends the edit of another grid.
TEST_F(EditReentryTest, TheHookOfAnotherGrid_DeletesTheRowOrTheGridThatIsToBeEdited)
{
    for (const long col : {0, 1, 2})
        for (const bool destroys : {true, false})
        {
            EditGrid first;
            Make(first);
            EditGrid second;
            ASSERT_TRUE(second.Create(CRect(0, 310, 300, 500), WS_CHILD | WS_VISIBLE, &host));
            Fill(second, 4, 3);
            second.GetCol(1).SetRightButton(true);
            second.GetCol(2).SetRightSpin(true);
            first.BeginEditCell(0, 0);
            first.Enter(L"typed");
            first.dataChanged = [&] {
                if (destroys)
                    second.DestroyWindow();
                else
                    second.DelRow(1);
            };
            second.BeginEditCell(1, col);
            EXPECT_EQ(first.GetCell(0, 0).GetText(), L"typed");
            EXPECT_FALSE(second.IsEditing());
            if (destroys)
                continue;
            second.BeginEditCell(1, col);
            EXPECT_TRUE(second.IsEditing());
        }
}

TEST_F(EditReentryTest, OnModified_DuringALayout_EditsInANewGrid)
{
    EditGrid grid;
    Make(grid);
    EditGrid inner;
    grid.modifiedText = [&](TGGridCell&, CString&) {
        EXPECT_TRUE(inner.Create(CRect(0, 310, 300, 500), WS_CHILD | WS_VISIBLE, &host));
        Fill(inner, 2, 2);
        inner.BeginEditCell(0, 0);
        return true;
    };
    grid.BeginEditCell(1, 1);
    grid.Enter(L"typed");
    grid.RecalcLayout(1);
    EXPECT_NE(inner.GetSafeHwnd(), nullptr);
    EXPECT_EQ(grid.GetCell(1, 1).GetText(), L"typed");
}

TEST_F(EditReentryTest, EditorOfTheHost_DestroysTheGridWhileItIsCreated)
{
    class HostEditor : public CEdit, public TGCellCtrl
    {
    public:
        using TGCellCtrl::TGCellCtrl;
        CWnd* GetWnd() override { return this; }
        void Create(CRect& rect) override
        {
            CWnd& grid = GetCell().GetGrid();
            CEdit::Create(WS_CHILD | WS_VISIBLE, rect, &grid, 101);
            grid.DestroyWindow();
        }
        bool IsModified() override { return false; }
        void GetNewText(CString&) override {}
        bool IsLeftEnd() override { return true; }
        bool IsRightEnd() override { return true; }
        bool IsUpEnd() override { return true; }
        bool IsDownEnd() override { return true; }

    protected:
        void PostNcDestroy() override { delete this; }
    };
    EditGrid grid;
    Make(grid);
    grid.makeEditor = [](TGGridCell& cell) -> TGCellCtrl* { return new HostEditor(cell); };
    grid.BeginEditCell(1, 1);
    EXPECT_EQ(grid.GetSafeHwnd(), nullptr);
    EXPECT_FALSE(grid.IsEditing());
    Create(grid);
    grid.makeEditor = nullptr;
    EditOnce(grid, 1, 1);
    EXPECT_EQ(grid.GetCell(1, 1).GetText(), L"typed");
}

TEST_F(EditReentryTest, TheParentDestroysTheGrid_WhenTheEditorLosesTheFocus)
{
    EditGrid grid;
    Make(grid);
    grid.modifiedText = [&](TGGridCell&, CString&) {
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
