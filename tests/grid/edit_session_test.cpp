// The edit session: opening, committing, dropping, the new-row line.
#include "tests/grid/EditGrid.h"

#include "grid/TGCellEdit.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class EditSessionTest : public EditTest
{
};

TEST_F(EditSessionTest, BeginEdit_RunsTheHooksInTheirOrder)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 2);
    EXPECT_EQ(grid.TakeText(),
              "OnCurChanged -1,-1 | OnBeforeEdit 1,2 | OnGetCellEdit 1,2 | OnCurChanged 1,2");
    EXPECT_TRUE(grid.IsEditing());
    long row = -1;
    long col = -1;
    EXPECT_TRUE(grid.GetCurCell(row, col));
    EXPECT_EQ(row, 1);
    EXPECT_EQ(col, 2);
}

TEST_F(EditSessionTest, BeginEdit_OnAReadOnlyColumn_HasClearedTheSelectionAndCommittedThePreviousEdit)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(2).SetReadOnly(true);
    grid.BeginEditCell(0, 0);
    grid.Enter(L"typed");
    grid.SelectRow(1, true);
    grid.BeginEditCell(0, 1);
    grid.Enter(L"more");
    grid.BeginEditCell(1, 2);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_FALSE(grid.IsRowSelected());
    EXPECT_EQ(TextOf(grid, 0, 0), L"typed");
    EXPECT_EQ(TextOf(grid, 0, 1), L"more");
    grid.SelectRow(1, true);
    grid.BeginEditCell(1, 2);
    EXPECT_FALSE(grid.IsRowSelected());
}

TEST_F(EditSessionTest, ReadOnlyInAnyWay_RefusesTheEdit)
{
    EditGrid grid;
    Make(grid);
    grid.GetCell(0, 0).SetReadOnly(true);
    grid.GetRow(1).SetReadOnly(true);
    grid.BeginEditCell(0, 0);
    EXPECT_FALSE(grid.IsEditing());
    grid.BeginEditCell(1, 1);
    EXPECT_FALSE(grid.IsEditing());
    grid.SetReadOnly(true);
    grid.BeginEditCell(2, 2);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(grid.TakeText().find("OnBeforeEdit"), std::string::npos);
}

TEST_F(EditSessionTest, EndEdit_OfAModifiedText_StoresItBetweenModifiedAndChanged)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 1);
    grid.Enter(L"new");
    grid.TakeText();
    grid.EndEditCell();
    EXPECT_EQ(grid.TakeText(),
              "OnModified 1,1 new | OnRefresh cell 1,1 | OnBeforeRefresh 1,1 | OnDataChanged");
    EXPECT_EQ(TextOf(grid, 1, 1), L"new");
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_TRUE(grid.IsModified());
}

TEST_F(EditSessionTest, EndEdit_OfAnUntouchedEditor_CallsNoHook)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 1);
    grid.TakeText();
    grid.EndEditCell();
    EXPECT_EQ(grid.TakeText(), "");
    EXPECT_FALSE(grid.IsModified());
}

TEST_F(EditSessionTest, TheModifiedMarkAloneDecides_NotTheText)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 1);
    grid.Enter(TextOf(grid, 1, 1));
    grid.TakeText();
    grid.EndEditCell();
    EXPECT_EQ(grid.TakeText(),
              "OnModified 1,1 1,1 | OnRefresh cell 1,1 | OnBeforeRefresh 1,1 | OnDataChanged");
}

TEST_F(EditSessionTest, OnModified_MayChangeOrRefuseTheText)
{
    EditGrid grid;
    Make(grid);
    grid.modifiedText = [](TGGridCell&, CString& text) {
        text += L"!";
        return true;
    };
    grid.BeginEditCell(0, 0);
    grid.Enter(L"a");
    grid.EndEditCell();
    EXPECT_EQ(TextOf(grid, 0, 0), L"a!");
    grid.modifiedText = [](TGGridCell&, CString&) { return false; };
    grid.BeginEditCell(0, 0);
    grid.Enter(L"b");
    grid.TakeText();
    grid.EndEditCell();
    EXPECT_EQ(TextOf(grid, 0, 0), L"a!");
    EXPECT_EQ(grid.TakeText(), "OnModified 0,0 b");
}

TEST_F(EditSessionTest, CancelEdit_StoresNothingAndCallsNoHook)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 1);
    grid.Enter(L"dropped");
    grid.TakeText();
    grid.CancelEditCell();
    EXPECT_EQ(grid.TakeText(), "");
    EXPECT_EQ(TextOf(grid, 1, 1), L"1,1");
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(EditSessionTest, TheNewRowLine_BecomesOneRowThatHoldsTheText)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(3, 1);
    ASSERT_TRUE(grid.IsEditing());
    grid.Enter(L"fresh");
    grid.TakeText();
    grid.EndEditCell();
    EXPECT_EQ(grid.TakeText(), "OnModified 3,1 fresh | OnBeforeInsertRow 3 | OnInsertRow 3 | OnRefresh cell "
                               "3,1 | OnBeforeRefresh 3,1 | OnDataChanged");
    ASSERT_EQ(grid.GetRowNum(), 4);
    EXPECT_EQ(TextOf(grid, 3, 1), L"fresh");
    EXPECT_EQ(grid.GetRow(3).GetIndex(), 3);
    // The line is there again below the new row.
    grid.BeginEditCell(4, 0);
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(EditSessionTest, OnModifiedRefusing_OnTheNewRowLine_InsertsNoRow)
{
    EditGrid grid;
    Make(grid);
    grid.modifiedText = [](TGGridCell&, CString&) { return false; };
    grid.BeginEditCell(3, 1);
    grid.Enter(L"no");
    grid.EndEditCell();
    EXPECT_EQ(grid.GetRowNum(), 3);
}

TEST_F(EditSessionTest, OnBeforeInsertRowRefusing_LeavesTheRowCountAndAFreshLine)
{
    EditGrid grid;
    Make(grid);
    grid.beforeInsertRow = [](long, TGGridRow*&) { return false; };
    grid.BeginEditCell(3, 1);
    grid.Enter(L"no");
    grid.EndEditCell();
    EXPECT_EQ(grid.GetRowNum(), 3);
    grid.beforeInsertRow = nullptr;
    grid.BeginEditCell(3, 1);
    ASSERT_TRUE(grid.IsEditing());
    EXPECT_TRUE(grid.editor->GetCell().GetText().IsEmpty());
}

TEST_F(EditSessionTest, TheHookMaySupplyTheNewRow)
{
    EditGrid grid;
    Make(grid);
    grid.beforeInsertRow = [&](long, TGGridRow*& row) {
        row = new TGGridRow(grid);
        (*row)[0].SetText(L"supplied");
        return true;
    };
    grid.BeginEditCell(3, 1);
    grid.Enter(L"typed");
    grid.EndEditCell();
    ASSERT_EQ(grid.GetRowNum(), 4);
    EXPECT_EQ(TextOf(grid, 3, 0), L"supplied");
    EXPECT_EQ(TextOf(grid, 3, 1), L"typed");
}

TEST_F(EditSessionTest, CommitNewRow_AddsTheNewRowWithoutAnEditor)
{
    EditGrid grid;
    Make(grid);
    grid.beforeEdit = [](TGGridCell&, bool& commitNewRow) {
        commitNewRow = true;
        return false;
    };
    grid.BeginEditCell(3, 0);
    EXPECT_EQ(grid.TakeText(),
              "OnCurChanged -1,-1 | OnBeforeEdit 3,0 | OnBeforeInsertRow 3 | OnInsertRow 3 | OnDataChanged");
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(grid.GetRowNum(), 4);
}

TEST_F(EditSessionTest, CommitNewRow_OnAnOrdinaryRow_DoesNothing)
{
    EditGrid grid;
    Make(grid);
    grid.beforeEdit = [](TGGridCell&, bool& commitNewRow) {
        commitNewRow = true;
        return false;
    };
    grid.BeginEditCell(1, 0);
    EXPECT_EQ(grid.TakeText(), "OnCurChanged -1,-1 | OnBeforeEdit 1,0");
    EXPECT_EQ(grid.GetRowNum(), 3);
}

TEST_F(EditSessionTest, CommitNewRow_RefusedByOnBeforeInsertRow_LeavesAFreshLine)
{
    EditGrid grid;
    Make(grid);
    grid.beforeEdit = [](TGGridCell&, bool& commitNewRow) {
        EXPECT_FALSE(commitNewRow);
        commitNewRow = true;
        return false;
    };
    grid.beforeInsertRow = [](long, TGGridRow*& row) {
        (*row)[0].SetText(L"dropped");
        return false;
    };
    grid.BeginEditCell(3, 0);
    EXPECT_EQ(grid.TakeText(), "OnCurChanged -1,-1 | OnBeforeEdit 3,0 | OnBeforeInsertRow 3");
    EXPECT_EQ(grid.GetRowNum(), 3);
    grid.beforeEdit = nullptr;
    grid.BeginEditCell(3, 0);
    EXPECT_TRUE(grid.editor->GetCell().GetText().IsEmpty());
}

TEST_F(EditSessionTest, CommitNewRow_CountsOnlyWhenTheHookRefusesTheEdit)
{
    EditGrid grid;
    Make(grid);
    grid.beforeEdit = [](TGGridCell&, bool& commitNewRow) {
        commitNewRow = true;
        return true;
    };
    grid.BeginEditCell(3, 0);
    EXPECT_TRUE(grid.IsEditing());
    EXPECT_EQ(grid.GetRowNum(), 3);
    grid.EndEditCell();
    EXPECT_EQ(grid.GetRowNum(), 3);
}

TEST_F(EditSessionTest, CommitNewRow_SurvivesAHookThatLaysOutAnew)
{
    EditGrid grid;
    Make(grid);
    grid.beforeEdit = [](TGGridCell&, bool& commitNewRow) {
        commitNewRow = true;
        return false;
    };
    // The insertion makes the new-row line anew.
    grid.beforeInsertRow = [&](long, TGGridRow*&) {
        grid.InsertRow(0, nullptr);
        return true;
    };
    grid.BeginEditCell(3, 0);
    EXPECT_EQ(grid.GetRowNum(), 5);
    for (long row = 0; row < 5; ++row)
        EXPECT_EQ(grid.GetRow(row).GetIndex(), row);
}

TEST_F(EditSessionTest, OnBeforeEditRefusing_HasClearedTheSelectionAndCommittedThePreviousEdit)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(0, 0);
    grid.Enter(L"typed");
    grid.beforeEdit = [](TGGridCell&, bool&) { return false; };
    grid.TakeText();
    grid.BeginEditCell(1, 1);
    EXPECT_EQ(grid.TakeEditText(),
              "OnCurChanged 0,0 | OnModified 0,0 typed | OnDataChanged | OnBeforeEdit 1,1");
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(TextOf(grid, 0, 0), L"typed");
}

TEST_F(EditSessionTest, EditorsOfEveryKind_AreFilledBetweenTheirMakingAndOnCurChanged)
{
    EditGrid grid;
    Make(grid);
    grid.GetCol(0).SetComboSel(true);
    grid.GetCol(1).SetRightSpin(true);
    grid.GetCol(2).SetRightButton(true);
    grid.BeginEditCell(0, 0);
    EXPECT_EQ(grid.TakeEditText(), "OnCurChanged -1,-1 | OnBeforeEdit 0,0 | OnGetCellEdit 0,0 | "
                                   "OnCellComboString 0,0 | OnCurChanged 0,0");
    grid.BeginEditCell(0, 1);
    EXPECT_EQ(
        grid.TakeEditText(),
        "OnCurChanged 0,0 | OnBeforeEdit 0,1 | OnGetCellEdit 0,1 | OnCellSpinInit 0,1 | OnCurChanged 0,1");
    grid.BeginEditCell(0, 2);
    EXPECT_EQ(grid.TakeEditText(),
              "OnCurChanged 0,1 | OnBeforeEdit 0,2 | OnGetCellEdit 0,2 | OnCurChanged 0,2");
}

TEST_F(EditSessionTest, EndInsideACommit_HasNoEffect)
{
    EditGrid grid;
    Make(grid);
    grid.modifiedText = [&](TGGridCell&, CString&) {
        grid.EndEditCell();
        EXPECT_TRUE(grid.IsEditing());
        return true;
    };
    grid.dataChanged = [&] { grid.EndEditCell(); };
    grid.BeginEditCell(1, 1);
    grid.Enter(L"once");
    grid.TakeText();
    grid.EndEditCell();
    EXPECT_EQ(grid.TakeEditText(), "OnModified 1,1 once | OnDataChanged");
    EXPECT_FALSE(grid.IsEditing());
    // The guard is lifted again.
    grid.BeginEditCell(1, 2);
    grid.Enter(L"again");
    grid.EndEditCell();
    EXPECT_EQ(TextOf(grid, 1, 2), L"again");
}

TEST_F(EditSessionTest, EditorOpenedInsideACommit_IsClosedWithIt)
{
    EditGrid grid;
    Make(grid);
    grid.dataChanged = [&] {
        grid.BeginEditCell(2, 2);
        EXPECT_TRUE(grid.IsEditing());
    };
    grid.BeginEditCell(1, 1);
    grid.Enter(L"text");
    grid.TakeText();
    grid.EndEditCell();
    EXPECT_EQ(grid.TakeEditText(), "OnModified 1,1 text | OnDataChanged | OnCurChanged 1,1 | OnBeforeEdit "
                                   "2,2 | OnGetCellEdit 2,2 | OnCurChanged 2,2");
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_FALSE(grid.EditorWindow()->IsWindowVisible());
    EXPECT_EQ(TextOf(grid, 1, 1), L"text");
}

TEST_F(EditSessionTest, CellsThatAreNotThere_AreNotEdited)
{
    EditGrid grid;
    Make(grid);
    for (const auto& [row, col] : {std::pair(-1L, 0L), {0L, -1L}, {4L, 0L}, {0L, 3L}, {3L, 3L}})
    {
        grid.BeginEditCell(row, col);
        EXPECT_FALSE(grid.IsEditing()) << row << "," << col;
    }
    EXPECT_EQ(grid.TakeEditText().find("OnBeforeEdit"), std::string::npos);
}

TEST_F(EditSessionTest, WithoutAWindow_NothingHappens)
{
    EditGrid grid;
    grid.AppendCol(L"", 0);
    grid.AppendRow(nullptr);
    grid.recording = true;
    grid.BeginEditCell(0, 0);
    grid.EndEditCell();
    grid.CancelEditCell();
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(grid.TakeText(), "");
}

TEST_F(EditSessionTest, NewRowLineOfATree_BecomesATreeRow)
{
    EditGrid grid(true);
    Make(grid);
    grid.BeginEditCell(3, 1);
    grid.Enter(L"fresh");
    grid.EndEditCell();
    ASSERT_EQ(grid.GetRowNum(), 4);
    EXPECT_TRUE(grid.GetRow(3).IsTreeRow());
    EXPECT_TRUE(grid.GetTreeRow(3).IsRootRow());
}

TEST_F(EditSessionTest, ChildThatIsFoldedAway_IsStillShownWhenItsTextIsStored)
{
    EditGrid grid(true);
    Make(grid);
    TGGridTreeRow& parent = grid.GetTreeRow(0);
    parent.AppendChild(nullptr);
    parent.UnFold();
    grid.BeginEditCell(1, 0);
    ASSERT_TRUE(grid.IsEditing());
    grid.Enter(L"child");
    bool wasShown = false;
    grid.modifiedText = [&](TGGridCell& cell, CString&) {
        wasShown = cell.GetRowIndex() == 1 && grid.GetRowNum() == 4;
        return true;
    };
    parent.Fold();
    EXPECT_TRUE(wasShown);
    EXPECT_EQ(parent.GetChild(0)[0].GetText(), L"child");
}

TEST_F(EditSessionTest, SecondChildThatIsFoldedAway_IsStoredWhileTheFirstIsStillShown)
{
    EditGrid grid(true);
    Make(grid);
    TGGridTreeRow& parent = grid.GetTreeRow(0);
    parent.AppendChild(nullptr);
    parent.AppendChild(nullptr);
    parent.UnFold();
    grid.BeginEditCell(2, 0);
    ASSERT_TRUE(grid.IsEditing());
    grid.Enter(L"child");
    long shown = 0;
    grid.modifiedText = [&](TGGridCell&, CString&) {
        shown = grid.GetRowNum();
        return true;
    };
    parent.Fold();
    EXPECT_EQ(shown, 5);
    EXPECT_EQ(parent.GetChild(1)[0].GetText(), L"child");
}

TEST_F(EditSessionTest, WithoutAnEditor_TheGridStaysIdle)
{
    EditGrid grid;
    Make(grid);
    grid.makeEditor = [](TGGridCell&) -> TGCellCtrl* { return nullptr; };
    grid.BeginEditCell(1, 1);
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_EQ(grid.TakeText(), "OnCurChanged -1,-1 | OnBeforeEdit 1,1 | OnGetCellEdit 1,1");
}

TEST_F(EditSessionTest, EditorsOfFinishedSessions_AreDestroyed)
{
    EditGrid grid;
    Make(grid);
    grid.recording = false;
    for (int i = 0; i < 200; ++i)
        grid.BeginEditCell(i % 3, i % 2);
    grid.EndEditCell();
    int children = 0;
    for (CWnd* child = grid.GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT))
        children += child->GetDlgCtrlID() == 101;
    EXPECT_EQ(children, 1);
}

TEST_F(EditSessionTest, TheEditorCoversTheCellInsideItsLines)
{
    EditGrid grid;
    Make(grid);
    grid.BeginEditCell(1, 1);
    // Two pixels right of the cell's inside, where the text begins.
    CRect expected = grid.InsideOf(1, 1);
    expected.left += 2;
    EXPECT_EQ(Text(PlaceOf(*grid.EditorWindow())), Text(expected));
}

TEST_F(EditSessionTest, BeginEdit_ScrollsTheCellIntoView)
{
    EditGrid grid;
    Make(grid, 100, 20);
    grid.BeginEditCell(90, 15);
    CRect area = grid.Area();
    CRect place = PlaceOf(*grid.EditorWindow());
    EXPECT_TRUE(area.left <= place.left && place.right <= area.right);
    EXPECT_TRUE(area.top <= place.top && place.bottom <= area.bottom);
}

TEST_F(EditSessionTest, InTheTreeColumn_TheEditorBeginsRightOfTheBox)
{
    EditGrid grid(true);
    Create(grid);
    grid.AppendCol(L"", 200);
    grid.AppendRow(nullptr);
    grid.GetTreeRow(0).AppendChild(nullptr);
    grid.GetTreeRow(0).UnFold();
    grid.BeginEditCell(0, 0);
    const long parentLeft = PlaceOf(*grid.EditorWindow()).left;
    grid.BeginEditCell(1, 0);
    const long childLeft = PlaceOf(*grid.EditorWindow()).left;
    // The parent's box is 17 wide from x = 2; the child begins one box width further right.
    EXPECT_EQ(parentLeft, grid.ToClient(19, 0).x + 2);
    EXPECT_EQ(childLeft - parentLeft, 17);
}

} // namespace
} // namespace quor::test
