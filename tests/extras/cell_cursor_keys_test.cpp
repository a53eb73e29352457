// The keys of the cell cursor where there is little or nothing to go to, in editors, and what hooks do in
// them.
#include "tests/extras/CursorGrid.h"
#include "tests/grid/HeldKeys.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// ---- Without cells

TEST_F(CellCursor, WithoutColumns_ThereIsNoCell_AndKeysDoNothing)
{
    Make(2, 2);
    grid.SetColNum(0);
    EXPECT_EQ(State(), "-1,-1");
    EXPECT_FALSE(cursor.SelectRange({0, 0, 1, 1}));
    EXPECT_FALSE(cursor.SelectAllCells());
    EXPECT_FALSE(cursor.Edit(false));
    EXPECT_EQ(After(VK_DOWN), "-1,-1");
    EXPECT_EQ(After(VK_RETURN), "-1,-1");
    EXPECT_EQ(AfterTyping(L"x"), "-1,-1");
    EXPECT_FALSE(grid.IsEditing());
    grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    AddCols(grid, 1);
    EXPECT_EQ(State(), "0,0");
}

TEST_F(CellCursor, WithoutRows_TheNewRowLineHasTheCell_WhereItIsShown)
{
    Make(0, 2);
    EXPECT_EQ(State(), "0,0");
    grid.SetNoAppendButton(true);
    EXPECT_EQ(After(VK_RIGHT), "-1,-1");
    EXPECT_FALSE(cursor.SelectAllCells());
    grid.SetNoAppendButton(false);
    EXPECT_EQ(After(VK_RIGHT), "0,1");
}

TEST_F(CellCursor, ControlCharacters_OpenNoEditor)
{
    Make();
    for (const wchar_t character : {L'\b', L'\x1B', L'\x7F'})
        grid.SendMessage(WM_CHAR, character);
    EXPECT_FALSE(grid.IsEditing());
    grid.SendMessage(WM_CHAR, L'\x80');
    EXPECT_TRUE(grid.IsEditing());
}

TEST_F(CellCursor, TypingIntoAReadOnlyCell_DoesNothing)
{
    Make();
    grid.GetCell(0, 0).SetReadOnly(true);
    EXPECT_EQ(AfterTyping(L"x"), "0,0");
    EXPECT_EQ(After(VK_F2), "0,0");
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
}

// ---- In editors

TEST_F(CellCursor, InTheEditor_UpAndDownCommit_ButNotPages)
{
    Make();
    cursor.MoveTo(2, 1);
    After(VK_F2);
    EXPECT_EQ(After(VK_PRIOR), "2,1 edit 2,1");
    EXPECT_EQ(After(VK_NEXT), "2,1 edit 2,1");
    EXPECT_EQ(After(VK_LEFT), "2,1 edit 2,1");
    EXPECT_EQ(AfterTyping(L"!"), "2,1 edit 2,!1");
    EXPECT_EQ(After(VK_UP), "1,1");
    EXPECT_EQ(TextOf(grid, 2, 1), L"2,!1");
    After(VK_F2);
    EXPECT_EQ(After(VK_DOWN), "2,1");
    AfterTyping(L"z");
    EXPECT_EQ(After(VK_LEFT), "2,0");
    EXPECT_EQ(TextOf(grid, 2, 1), L"z");
}

TEST_F(CellCursor, InAComboBox_UpAndDownAreTheLists)
{
    Make();
    grid.GetCol(1).SetComboEdit(true);
    grid.comboStrings = [](TGGridCell&, CComboBox& combo) { combo.AddString(L"item"); };
    cursor.MoveTo(1, 1);
    AfterTyping(L"i");
    EXPECT_EQ(After(VK_DOWN).substr(0, 8), "1,1 edit");
    EXPECT_EQ(After(VK_RIGHT), "1,2");
    cursor.MoveTo(1, 1);
    EXPECT_EQ(AfterTyping(L"i").substr(0, 8), "1,1 edit");
    EXPECT_EQ(After(VK_LEFT), "1,0");
    cursor.MoveTo(1, 1);
    After(VK_F2);
    EXPECT_EQ(After(VK_LEFT).substr(0, 8), "1,1 edit");
}

TEST_F(CellCursor, AltDown_WithoutAList_Edits)
{
    Make();
    EXPECT_EQ(After(VK_DOWN, Modifiers::Alt), "0,0 edit 0,0");
    After(VK_ESCAPE);
    grid.GetCell(0, 0).SetReadOnly(true);
    EXPECT_EQ(After(VK_DOWN, Modifiers::Alt), "0,0");
}

TEST_F(CellCursor, EnterWithoutAStep_CommitsAndStays)
{
    Make();
    cursor.SetEnterStep(TGCellCursor::Step::None);
    cursor.SetTabStep(TGCellCursor::Step::None);
    AfterTyping(L"a");
    EXPECT_EQ(After(VK_RETURN), "0,0");
    EXPECT_EQ(TextOf(grid, 0, 0), L"a");
    // Nothing else takes the focus.
    EXPECT_EQ(After(VK_TAB), "0,0");
    EXPECT_EQ(After(VK_TAB, control), "0,0");
    EXPECT_EQ(::GetFocus(), grid.m_hWnd);
}

TEST_F(CellCursor, WithoutWrapping_TabLeavesTheRow_OrStays)
{
    Make(2, 2);
    cursor.SetWrapping(false);
    cursor.MoveTo(0, 1);
    // Leaves for a window of the host that takes no focus here.
    EXPECT_EQ(After(VK_TAB), "0,1");
    cursor.SetLeaving(false);
    EXPECT_EQ(After(VK_TAB), "0,1");
    EXPECT_EQ(After(VK_TAB, shift), "0,0");
    EXPECT_EQ(After(VK_TAB, shift), "0,0");
}

TEST_F(CellCursor, StepsBack_BeginAnewAtTheEnd)
{
    Make(2, 2);
    grid.SetNoAppendButton(true);
    cursor.SetLeaving(false);
    EXPECT_EQ(After(VK_TAB, shift), "1,1");
    cursor.MoveTo(0, 0);
    EXPECT_EQ(After(VK_RETURN, shift), "1,1");
    EXPECT_EQ(After(VK_RETURN), "0,0");
}

// ---- Commands

TEST_F(CellCursor, ControlN_GoesByWhatIsSelected)
{
    Make(2, 2);
    grid.SelectRow(0, true);
    After('N', control);
    EXPECT_EQ(Texts(grid), "0,0  1,0");
    grid.UnSelect();
    grid.SelectCol(0, true);
    After('N', control);
    EXPECT_EQ(grid.GetColNum(), 3);
    EXPECT_EQ(TextOf(grid, 0, 2), L"0,1");
}

TEST_F(CellCursor, SortingCanBeOff)
{
    Make(2, 2);
    grid.AppendKey(0);
    grid.SetSortEnable(false);
    After('U', control);
    EXPECT_EQ(Texts(grid), "0,0 1,0");
    grid.SetSortEnable(true);
    After('U', control);
    EXPECT_EQ(Texts(grid), "1,0 0,0");
}

TEST_F(CellCursor, ShiftSpace_OverAllRows_SelectsAll_OrOneWhereOnlyOneCanBe)
{
    Make(3, 2);
    cursor.SelectRange({0, 1, 2, 1});
    After(VK_SPACE, shift);
    EXPECT_EQ(grid.GetRowSelNum(), 3);
    grid.UnSelect();
    grid.SetSingleSelRow(true);
    cursor.SelectRange({0, 1, 2, 1});
    After(VK_SPACE, shift);
    EXPECT_EQ(Selection(grid).substr(0, 6), "rows 2");
}

TEST_F(CellCursor, ControlSpace_SelectsTheColumnsOfTheRange)
{
    Make(3, 3);
    cursor.SelectRange({0, 1, 1, 2});
    After(VK_SPACE, control);
    EXPECT_EQ(Selection(grid).substr(0, 8), "cols 1 2");
    EXPECT_TRUE(cursor.IsInRanges(2, 1));
    EXPECT_FALSE(cursor.IsInRanges(0, 0));
}

TEST_F(TreeCursor, CommandsOfTrees_NeedControl)
{
    MakeTree();
    After('N', control | shift);
    EXPECT_EQ(Texts(grid), "a b ");
    grid.UnSelect();
    grid.SelectRow(0, true);
    After('N', control | shift);
    EXPECT_EQ(Texts(grid), "a  b ");
    grid.UnSelect();
    grid.SelectRow(2, true);
    After('T', control);
    EXPECT_EQ(grid.GetTreeRow(2).GetChildNum(), 1);
    grid.UnSelect();
    grid.SelectRow(0, true);
    After('C', control);
    grid.UnSelect();
    grid.SelectRow(1, true);
    After('V', control | shift);
    // Behind the child that it came with.
    ASSERT_EQ(grid.GetTreeRow(1).GetChildNum(), 2);
    EXPECT_EQ(FirstText(grid.GetTreeRow(1).GetChild(1)), "a");
}

TEST_F(TreeCursor, OtherCharactersOnAParent_AreTyped)
{
    MakeTree();
    EXPECT_EQ(AfterTyping(L"/"), "0,0 edit /");
    After(VK_ESCAPE);
    // The signs of the tree count in its column only.
    cursor.MoveTo(0, 1);
    EXPECT_EQ(AfterTyping(L"+"), "0,1 edit +");
}

// ---- Messages without pre-translation

TEST_F(CellCursor, SentKeys_AreHandled_AndTheirCharactersDropped)
{
    Make(3, 2);
    {
        const HeldKeys held({VK_SHIFT});
        grid.SendMessage(WM_KEYDOWN, VK_SPACE);
        EXPECT_EQ(grid.GetRowSelNum(), 1);
        grid.SendMessage(WM_CHAR, L' ');
    }
    EXPECT_FALSE(grid.IsEditing());
    grid.SendMessage(WM_CHAR, L' ');
    EXPECT_EQ(State(), "0,0 edit  ");
}

TEST_F(CellCursor, SentLetters_AreCommandsWithControlAlone)
{
    Make(3, 2);
    grid.SendMessage(WM_KEYDOWN, 'N');
    EXPECT_EQ(grid.GetRowNum(), 3);
    {
        // AltGr, which writes characters.
        const HeldKeys held({VK_CONTROL, VK_MENU});
        grid.SendMessage(WM_SYSKEYDOWN, 'N');
        EXPECT_EQ(grid.GetRowNum(), 3);
    }
    const HeldKeys held({VK_CONTROL});
    grid.SendMessage(WM_KEYDOWN, 'N');
    EXPECT_EQ(grid.GetRowNum(), 4);
    // Nobody's: the grid sees it.
    grid.SendMessage(WM_KEYDOWN, VK_F12);
    EXPECT_EQ(grid.GetRowNum(), 4);
}

TEST_F(CellCursor, KeysOfOtherWindows_AreNotTheCursors)
{
    Make(3, 2);
    CWnd* const header = grid.GetDlgItem(104);
    PostKey(*header, VK_DOWN);
    PumpPending();
    EXPECT_EQ(State(), "0,0");
    After(VK_F2);
    PostKey(*header, VK_RETURN);
    PumpPending();
    // The grid's, which opens the next editor.
    EXPECT_EQ(State(), "0,0 edit 1,0");
}

// ---- Hooks that take away what the keys are about

TEST_F(CellCursor, ACommitThatEmptiesTheGrid_EndsTheStep)
{
    Make();
    grid.SetNoAppendButton(true);
    AfterTyping(L"a");
    grid.dataChanged = [this] {
        grid.dataChanged = nullptr;
        grid.Clear();
    };
    EXPECT_EQ(After(VK_RETURN), "-1,-1");
}

TEST_F(CellCursor, ACommitThatDetaches_EndsTheKey)
{
    for (const int key : {VK_RETURN, VK_TAB, VK_UP})
    {
        SCOPED_TRACE(key);
        if (grid.m_hWnd == nullptr)
            Make();
        else
            cursor.AttachTo(grid);
        cursor.MoveTo(2, 0);
        After(VK_F2);
        AfterTyping(L"a");
        grid.dataChanged = [this] {
            grid.dataChanged = nullptr;
            cursor.Detach();
        };
        EXPECT_EQ(After(static_cast<WORD>(key)), "-1,-1");
        EXPECT_FALSE(grid.IsEditing());
    }
}

class CursorOfAWindowThatGoes : public CellCursor, public testing::WithParamInterface<WORD>
{
};

TEST_P(CursorOfAWindowThatGoes, TheKeyEnds)
{
    Make();
    cursor.MoveTo(1, 0);
    After(VK_F2);
    AfterTyping(L"a");
    grid.dataChanged = [this] {
        grid.dataChanged = nullptr;
        grid.DestroyWindow();
    };
    KeyPress(GetParam());
    PumpPending();
    EXPECT_EQ(grid.m_hWnd, nullptr);
    EXPECT_EQ(cursor.GetRow(), 1);
    EXPECT_EQ(TextOf(grid, 1, 0), L"1,0a");
}

INSTANTIATE_TEST_SUITE_P(Keys, CursorOfAWindowThatGoes,
                         testing::Values(WORD{VK_RETURN}, WORD{VK_TAB}, WORD{VK_UP}));

TEST_F(CellCursor, EmptyingThatDetaches_StopsThere)
{
    Make();
    cursor.SelectRange({0, 0, 2, 0});
    grid.modifiedText = [this](TGGridCell&, CString&) {
        cursor.Detach();
        return true;
    };
    EXPECT_EQ(cursor.EmptyRanges(), 1);
    EXPECT_EQ(TextOf(grid, 1, 0), L"1,0");
}

} // namespace
} // namespace quor::test
