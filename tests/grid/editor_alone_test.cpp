// Editors that hosts make, move or answer for without the grid.
#include "grid/TGCellButtonEdit.h"
#include "grid/TGCellCombo.h"
#include "grid/TGCellEdit.h"
#include "grid/TGCellSpinEdit.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"

#include <string>
#include <vector>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class EditorAlone : public EditTest
{
protected:
    void Make()
    {
        EditTest::Make(grid);
        grid.comboStrings = [](TGGridCell&, CComboBox& combo) { combo.AddString(L"item"); };
        grid.GetCol(0).SetComboEdit(true);
        grid.GetCol(1).SetRightButton(true);
    }
    CWnd* Open(long col)
    {
        grid.BeginEditCell(0, col);
        return grid.EditorWindow();
    }

    EditGrid grid;
};

class CountedEdit : public TGCellEdit
{
public:
    CountedEdit(TGGridCell& edited, int& deletions) : TGCellEdit(edited), deleted(deletions) {}
    ~CountedEdit() override { ++deleted; }

private:
    int& deleted;
};

TEST_F(EditorAlone, AnEditorThatAHostMakesItself_IsDeletedWithItsWindow)
{
    Make();
    int deleted = 0;
    auto* const editor = new CountedEdit(grid.GetCell(1, 2), deleted);
    CRect place(10, 10, 60, 30);
    editor->Create(place);
    ASSERT_NE(editor->GetWnd()->GetSafeHwnd(), nullptr);
    EXPECT_FALSE(grid.IsEditing());
    editor->Destroy();
    EXPECT_EQ(deleted, 1);
}

TEST_F(EditorAlone, AListInAnotherWindow_TellsTheGridNothing)
{
    Make();
    HostWindow other;
    CWnd* const window = Open(0);
    ASSERT_NE(window, nullptr);
    window->SetParent(&other);
    grid.recording = true;
    grid.TakeText();
    for (const int code : {CBN_SETFOCUS, CBN_SELCHANGE, CBN_EDITCHANGE, CBN_KILLFOCUS})
        other.SendMessage(WM_COMMAND, MAKEWPARAM(101, code), reinterpret_cast<LPARAM>(window->m_hWnd));
    EXPECT_TRUE(grid.IsEditing()) << "the session goes on";
    EXPECT_EQ(grid.TakeEditText(), "");
    window->SetParent(&grid);
    grid.CancelEditCell();
    EXPECT_FALSE(grid.IsEditing());
}

TEST_F(EditorAlone, NoticesOfAListWithoutAnEdit_DoNothing)
{
    Make();
    grid.recording = true;
    grid.TakeText();
    CWnd list;
    list.CreateEx(0, L"COMBOBOX", L"", WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 50, 50), &grid, 101);
    for (const int code : {CBN_SELCHANGE, CBN_EDITCHANGE})
        grid.SendMessage(WM_COMMAND, MAKEWPARAM(101, code), reinterpret_cast<LPARAM>(list.m_hWnd));
    const std::string told = grid.TakeEditText();
    EXPECT_EQ(told.find("OnDataChanged"), std::string::npos) << told;
    list.DestroyWindow();
}

TEST_F(EditorAlone, AHookThatMakesNoEditor_OpensNone)
{
    Make();
    grid.makeEditor = [](TGGridCell&) -> TGCellCtrl* { return nullptr; };
    EXPECT_EQ(Open(2), nullptr);
    EXPECT_FALSE(grid.IsEditing());
    // One that has begun another edit meanwhile keeps that.
    grid.makeEditor = [this](TGGridCell&) -> TGCellCtrl* {
        grid.makeEditor = nullptr;
        grid.BeginEditCell(1, 2);
        return nullptr;
    };
    grid.BeginEditCell(0, 2);
    EXPECT_TRUE(grid.IsEditing());
    long row = -1;
    long col = -1;
    EXPECT_TRUE(grid.GetCurCell(row, col));
    EXPECT_EQ(row, 1);
}

TEST_F(EditorAlone, AHookThatTakesTheCellAway_OpensNone)
{
    for (const bool closes : {false, true})
    {
        EditGrid own;
        EditTest::Make(own);
        own.makeEditor = [&](TGGridCell& cell) -> TGCellCtrl* {
            own.makeEditor = nullptr;
            auto* const made = new TGCellEdit(cell);
            closes ? static_cast<void>(own.DestroyWindow()) : own.DelRow(0);
            return made;
        };
        own.BeginEditCell(0, 2);
        EXPECT_FALSE(own.IsEditing());
        EXPECT_EQ(own.GetSafeHwnd() == nullptr, closes);
    }
}

TEST_F(EditorAlone, ALineThatTheHookMakesAnew_TakesTheEdit)
{
    Make();
    grid.beforeInsertRow = [this](long, TGGridRow*&) {
        grid.beforeInsertRow = nullptr;
        grid.SetNoAppendButton(true);
        grid.SetNoAppendButton(false);
        grid.RecalcLayout(1);
        return true;
    };
    const long rows = grid.GetRowNum();
    grid.BeginEditCell(rows, 2);
    grid.Enter(L"typed");
    grid.EndEditCell();
    EXPECT_FALSE(grid.IsEditing());
    EXPECT_GE(grid.GetRowNum(), rows);
    EXPECT_LE(grid.GetRowNum(), rows + 1);
}

} // namespace
} // namespace quor::test
