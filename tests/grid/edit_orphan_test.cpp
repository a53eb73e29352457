// Sessions and editors end together: no editor stays for a cell that goes, no session without its editor.
#include "tests/grid/EditGrid.h"

#include <utility>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class EditOrphan : public EditTest
{
protected:
    static bool ShowsEditor(EditGrid& grid)
    {
        const CWnd* editor = grid.EditorWindow();
        return editor && editor->IsWindowVisible();
    }
    // Edits a cell at the next OnCurChanged.
    static void EditAtNextChange(EditGrid& grid, long row, long col)
    {
        grid.curChanged = [&grid, row, col] {
            grid.curChanged = nullptr;
            grid.BeginEditCell(row, col);
        };
    }
    static void ExpectNoEditor(EditGrid& grid)
    {
        EXPECT_FALSE(grid.IsEditing());
        EXPECT_FALSE(ShowsEditor(grid));
        const CWnd* focus = CWnd::GetFocus();
        EXPECT_TRUE(focus == nullptr || focus != grid.EditorWindow());
    }
};

// ---- The cell goes

TEST_F(EditOrphan, RowDeletedThatAHookBeginsToEdit_TakesTheEditorAlong)
{
    EditGrid grid;
    Make(grid);
    EditAtNextChange(grid, 1, 1);
    grid.DelRow(1);
    EXPECT_EQ(2, grid.GetRowNum());
    ExpectNoEditor(grid);
}

TEST_F(EditOrphan, RowDeletedWhileAnotherGridEndsItsEdit_TakesTheEditorAlong)
{
    EditGrid first;
    Make(first);
    EditGrid grid;
    Make(grid);
    first.modifiedText = [&](TGGridCell&, CString&) {
        EditAtNextChange(grid, 1, 1);
        grid.DelRow(1);
        return true;
    };
    first.BeginEditCell(0, 0);
    first.Enter(L"typed");
    first.EndEditCell();
    EXPECT_EQ(2, grid.GetRowNum());
    ExpectNoEditor(grid);
}

TEST_F(EditOrphan, ColumnDeletedThatAHookBeginsToEdit_TakesTheEditorAlong)
{
    EditGrid grid;
    Make(grid);
    EditAtNextChange(grid, 1, 1);
    grid.DelCol(1);
    EXPECT_EQ(2, grid.GetColNum());
    ExpectNoEditor(grid);
}

TEST_F(EditOrphan, ChildDeletedThatAHookBeginsToEdit_TakesTheEditorAlong)
{
    EditGrid grid(true);
    Make(grid);
    grid.GetTreeRow(0).AppendChild(nullptr);
    grid.GetTreeRow(0).UnFold();
    EditAtNextChange(grid, 1, 1);
    grid.GetTreeRow(0).DelChild(0);
    EXPECT_EQ(3, grid.GetRowNum());
    ExpectNoEditor(grid);
}

TEST_F(EditOrphan, ChildDeletedThatAHookMoves_IsTheOneThatGoes)
{
    EditGrid grid(true);
    Make(grid);
    TGGridTreeRow& top = grid.GetTreeRow(0);
    top.AppendChild(nullptr);
    top.AppendChild(nullptr);
    top.UnFold();
    TGGridTreeRow* const doomed = &grid.GetTreeRow(1);
    grid.curChanged = [&grid, doomed] {
        grid.curChanged = nullptr;
        grid.MoveRow(doomed->GetIndex(), doomed->GetIndex() + 2);
    };
    top.DelChild(0);
    EXPECT_EQ(1, top.GetChildNum());
    EXPECT_EQ(4, grid.GetRowNum());
    EXPECT_NE(doomed, &top.GetChild(0));
}

TEST_F(EditOrphan, ParentThatTheHiddenEditorTells_MayDeleteTheRowItself)
{
    class Parent : public HostWindow
    {
    public:
        EditGrid* grid = nullptr;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_COMMAND && HIWORD(wParam) == EN_KILLFOCUS && grid)
                std::exchange(grid, nullptr)->DelRow(1);
            return HostWindow::WindowProc(message, wParam, lParam);
        }
    };
    Parent parent;
    EditGrid inner;
    ASSERT_TRUE(inner.Create(CRect(10, 10, 410, 310), WS_CHILD | WS_VISIBLE, &parent));
    Fill(inner, 4, 3);
    inner.curChanged = [&] {
        inner.curChanged = nullptr;
        inner.BeginEditCell(1, 1);
        parent.grid = &inner;
    };
    inner.DelRow(1);
    EXPECT_EQ(3, inner.GetRowNum());
    EXPECT_EQ(L"2,0", inner.GetCell(1, 0).GetText());
    ExpectNoEditor(inner);
}

// ---- The editor goes

enum class Kind
{
    Edit,
    Button,
    Spin,
    Combo,
    List
};

class EditorDestroyedFromOutside : public EditOrphan, public testing::WithParamInterface<Kind>
{
protected:
    static void Choose(TGGridCol& col, Kind kind)
    {
        col.SetRightButton(kind == Kind::Button);
        col.SetRightSpin(kind == Kind::Spin);
        col.SetComboEdit(kind == Kind::Combo);
        col.SetComboSel(kind == Kind::List);
    }
};

TEST_P(EditorDestroyedFromOutside, TakesTheSessionAlong)
{
    EditGrid grid;
    Make(grid);
    Choose(grid.GetCol(1), GetParam());
    grid.BeginEditCell(1, 1);
    ASSERT_TRUE(grid.IsEditing());
    ::DestroyWindow(grid.EditorWindow()->m_hWnd);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(L"1,1", TextOf(grid, 1, 1));
    grid.BeginEditCell(2, 1);
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_TRUE(ShowsEditor(grid));
}

TEST_P(EditorDestroyedFromOutside, TakesTheSessionAlongInADisabledGridToo)
{
    EditGrid grid;
    Make(grid);
    Choose(grid.GetCol(1), GetParam());
    grid.EnableWindow(FALSE);
    grid.BeginEditCell(1, 1);
    ASSERT_TRUE(grid.IsEditing());
    ::DestroyWindow(grid.EditorWindow()->m_hWnd);
    EXPECT_FALSE(grid.IsEditing());
    grid.EndEditCell();
    grid.EnableWindow(TRUE);
    grid.BeginEditCell(2, 1);
    EXPECT_TRUE(ShowsEditor(grid));
}

TEST_P(EditorDestroyedFromOutside, LeavesKeysToTheGrid)
{
    EditGrid grid;
    Make(grid);
    Choose(grid.GetCol(1), GetParam());
    grid.EnableWindow(FALSE);
    grid.BeginEditCell(1, 1);
    ::DestroyWindow(grid.EditorWindow()->m_hWnd);
    grid.EnableWindow(TRUE);
    grid.SelectRow(2, true);
    MSG tab = {grid.m_hWnd, WM_KEYDOWN, VK_TAB, 0, 0, {}};
    grid.SetFocus();
    EXPECT_TRUE(grid.PreTranslateMessage(&tab));
    EXPECT_EQ(&host, CWnd::GetFocus());
}

INSTANTIATE_TEST_SUITE_P(AllKinds, EditorDestroyedFromOutside,
                         testing::Values(Kind::Edit, Kind::Button, Kind::Spin, Kind::Combo, Kind::List));

TEST_F(EditOrphan, EditorDestroyedByAHookOfItsCommit_StillHasItsTextStored)
{
    EditGrid grid;
    Make(grid);
    grid.modifiedText = [&](TGGridCell&, CString&) {
        ::DestroyWindow(grid.EditorWindow()->m_hWnd);
        return true;
    };
    grid.BeginEditCell(1, 1);
    grid.Enter(L"typed");
    grid.EndEditCell();
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(L"typed", TextOf(grid, 1, 1));
}

} // namespace
} // namespace quor::test
