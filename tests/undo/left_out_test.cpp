// Changes of grids that a pause leaves out, rows that go for good below steps that know them, and what a bare
// stack does with keys and commands.
#include "grid/TGGridUpdate.h"
#include "grid/TGTreeGrid.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/HeldKeys.h"
#include "tests/support/Input.h"
#include "tests/undo/GridSteps.h"

#include <functional>
#include <memory>
#include <vector>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// ---- Pauses

class LeftOut : public GridSteps
{
protected:
    void InPause(const std::function<void()>& change)
    {
        const TGUndoPause pause(stack);
        change();
    }
};

TEST_F(LeftOut, ChangesOfEveryKind_AreNoSteps)
{
    const std::vector<std::function<void()>> changes = {
        [this] { grid.GetCell(0, 1).SetText(L"text"); },
        [this] { grid.MoveRow(0, 3); },
        [this] {
            grid.AppendKey(0);
            grid.Arrange(false);
            grid.ClearKey();
        },
        [this] { grid.AppendCol(L"new", 50); },
        [this] { grid.MoveCol(0, 2); },
        [this] { grid.GetCol(0).SetWidth(123); },
        [this] { grid.DelCol(0); },
        [this] {
            Select({1});
            grid.DoCopy();
            grid.DoClip();
        },
        [this] {
            grid.UnSelect();
            grid.DoPaste();
        },
        [this] { grid.AppendRow(nullptr); },
        [this] { grid.DelRow(0); },
        [this] { grid.SetRowNum(9); },
        [this] { grid.Clear(); },
    };
    for (const auto& change : changes)
    {
        const std::string before = SnapshotOf(grid);
        InPause(change);
        EXPECT_NE(SnapshotOf(grid), before);
        EXPECT_EQ(stack.GetUndoNum(), 0);
        EXPECT_FALSE(stack.CanUndo());
    }
    EXPECT_EQ(stack.ended, 0);
}

// What a step knows and what becomes of it in a pause: the step cannot be taken back, and changes nothing.
TEST_F(LeftOut, RowsThatGoForGood_EndTheHistoryThatKnowsThem)
{
    const std::vector<std::function<void()>> steps = {
        [this] { grid.MoveRow(0, 3); },
        [this] {
            grid.AppendKey(0);
            grid.Arrange(false);
            grid.ClearKey();
        },
        [this] { grid.AppendRow(nullptr); },
        [this] {
            Select({0});
            grid.DoClip();
            grid.UnSelect();
            grid.DoPaste();
        },
        [this] { Type(2, 0, L"typed"); },
    };
    for (const auto& step : steps)
    {
        InPause([this] {
            grid.Clear();
            AddRows(grid, "abcd");
        });
        stack.Clear();
        step();
        ASSERT_TRUE(stack.CanUndo());
        InPause([this] {
            while (grid.GetRowNum() > 0)
                grid.DelRow(0);
        });
        while (stack.CanUndo() && stack.Undo())
            ;
        EXPECT_FALSE(stack.CanUndo());
        EXPECT_EQ(grid.GetRowNum(), 0);
    }
}

TEST_F(LeftOut, RowsThatAreReplaced_AreNotTakenForThoseOfAStep)
{
    grid.MoveRow(0, 3);
    InPause([this] {
        grid.DelRow(0);
        grid.InsertRow(0, nullptr);
    });
    const std::string before = SnapshotOf(grid);
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(SnapshotOf(grid), before);
    EXPECT_EQ(stack.ended, 1);
}

TEST_F(LeftOut, AWidthThatIsChangedInAPause_EndsTheHistoryOfTheColumn)
{
    const auto resize = [this](long width) {
        const TGUserAction action(grid, TGActionKind::ResizeCols);
        grid.GetCol(1).SetWidth(width);
    };
    resize(120);
    InPause([this] { grid.GetCol(1).SetWidth(77); });
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(grid.GetCol(1).GetWidth(), 77);
    // Several in one step are one change, back to where the first began.
    stack.Clear();
    {
        const TGUserAction action(grid, TGActionKind::ResizeCols);
        for (const long width : {80L, 90L, 100L})
            grid.GetCol(1).SetWidth(width);
        grid.GetCol(0).SetWidth(50);
        grid.GetCol(0).SetWidth(60);
    }
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(grid.GetCol(1).GetWidth(), 77);
    EXPECT_EQ(grid.GetCol(0).GetWidth(), 100);
}

TEST_F(LeftOut, AColumnBesideWhichOthersCome_DoesNotComeBackThere)
{
    const auto insert = [this] {
        const TGUserAction action(grid, TGActionKind::InsertCols);
        grid.InsertCol(1, L"new", 50);
    };
    insert();
    InPause([this] { grid.InsertCol(0, L"left", 50); });
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(grid.GetColNum(), 5);
    stack.Clear();
    {
        const TGUserAction action(grid, TGActionKind::MoveCols);
        grid.MoveCol(0, 3);
    }
    InPause([this] { grid.DelCol(0); });
    const std::string before = SnapshotOf(grid);
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(SnapshotOf(grid), before);
}

// ---- Trees

class LeftOutTree : public testing::Test
{
protected:
    LeftOutTree() : grid(true)
    {
        AddCols(grid, 2);
        root = &AddRoot(grid, L"a");
        for (const wchar_t* text : {L"x", L"z", L"y"})
            AddChild(*root, text);
        AddRoot(grid, L"b");
        stack.Watch(grid);
    }
    void Fold(bool folded)
    {
        const TGUserAction action(grid, TGActionKind::Fold);
        folded ? root->Fold() : root->UnFold();
    }

    ToldGrid grid;
    CountingStack stack;
    TGGridTreeRow* root = nullptr;
};

TEST_F(LeftOutTree, FoldingInAPause_IsNoHindrance)
{
    Fold(false);
    EXPECT_EQ(stack.GetUndoNum(), 0) << "views are no steps";
    {
        const TGUserAction action(grid, TGActionKind::Type);
        grid.GetCell(0, 1).SetText(L"typed");
        root->Fold();
    }
    ASSERT_EQ(stack.GetUndoNum(), 1);
    {
        const TGUndoPause pause(stack);
        root->UnFold();
        root->ArrangeChild(true);
        grid.AppendKey(0);
        grid.Arrange(false);
    }
    // It is a matter of the view: the row is already as it was before the step.
    EXPECT_TRUE(stack.Undo());
    EXPECT_NE((*root)[1].GetText(), L"typed");
    EXPECT_FALSE(root->IsFold());
    EXPECT_TRUE(stack.Redo());
    EXPECT_EQ((*root)[1].GetText(), L"typed");
    EXPECT_TRUE(root->IsFold());
}

TEST_F(LeftOutTree, ViewsAfterAnUndo_DriftAndGoWithTheNextStep)
{
    {
        const TGUserAction action(grid, TGActionKind::Type);
        grid.GetCell(0, 1).SetText(L"typed");
    }
    EXPECT_TRUE(stack.Undo());
    Fold(false);
    root->Fold();
    root->UnFold();
    EXPECT_TRUE(stack.CanRedo());
    EXPECT_TRUE(stack.Redo());
    EXPECT_EQ(grid.GetCell(0, 1).GetText(), L"typed");
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(grid.GetCell(0, 1).GetText(), L"");
}

TEST_F(LeftOutTree, ParentsThatGoForGood_EndTheHistoryOfTheirChildren)
{
    Fold(false);
    const std::vector<std::function<void()>> steps = {
        [this] { AddChild(*root, L"new"); },
        [this] { root->DelChild(0); },
        [this] { grid.MoveRow(1, 3); },
        [this] {
            grid.AppendKey(0);
            grid.Arrange(true);
            grid.Arrange(false);
            grid.ClearKey();
        },
        [this] {
            const TGUserAction action(grid, TGActionKind::Type);
            grid.GetCell(grid.GetRowNum() - 1, 1).SetText(L"typed");
            root->Fold();
        },
    };
    for (const auto& step : steps)
    {
        step();
        ASSERT_TRUE(stack.CanUndo());
        {
            const TGUndoPause pause(stack);
            grid.Clear();
            root = &AddRoot(grid, L"a");
            for (const wchar_t* text : {L"x", L"z", L"y"})
                AddChild(*root, text);
            AddRoot(grid, L"b");
            root->UnFold();
        }
        const std::string before = SnapshotOf(grid);
        while (stack.CanUndo() && stack.Undo())
            ;
        EXPECT_EQ(SnapshotOf(grid), before);
        stack.Clear();
    }
}

TEST_F(LeftOutTree, RowsOfAPlainAndOfATreeKind_ComeBackAsTheyWere)
{
    grid.InsertRow(0, new TGGridRow(grid));
    stack.Clear();
    const std::string before = SnapshotOf(grid);
    {
        const TGUserAction action(grid, TGActionKind::DeleteRows);
        grid.Clear();
    }
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(SnapshotOf(grid), before);
}

// ---- Limits and names

TEST_F(LeftOut, LimitsCount_AlsoForWhatIsUndone)
{
    for (const wchar_t* text : {L"1", L"2", L"3"})
        Type(0, 0, text);
    while (stack.CanUndo())
        stack.Undo();
    ASSERT_EQ(stack.GetRedoNum(), 3);
    stack.SetLimits(0, 1);
    EXPECT_EQ(stack.GetRedoNum(), 0);
    EXPECT_EQ(stack.GetBytes(), 0u);
    Type(0, 0, L"4");
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(Texts(grid), "4 b c d");
}

TEST_F(LeftOut, NamesOfStepsThatThereAreNot_AreEmpty)
{
    Type(0, 0, L"1");
    for (const long i : {-1L, 1L, 100L})
        EXPECT_EQ(stack.GetUndoName(i), L"");
    EXPECT_EQ(stack.GetRedoName(0), L"");
    EXPECT_NE(stack.GetUndoName(0), L"");
}

TEST_F(LeftOut, ASavedStep_WhoseControlLeaves_IsSavedStill)
{
    ToldGrid other;
    AddCols(other, 1);
    AddRows(other, "p");
    stack.Watch(other);
    Type(0, 0, L"1");
    {
        const TGUserAction action(other, TGActionKind::Type);
        other.GetCell(0, 0).SetText(L"2");
    }
    stack.SetSaved();
    EXPECT_TRUE(stack.IsSaved());
    EXPECT_TRUE(stack.Unwatch(other));
    EXPECT_TRUE(stack.IsSaved());
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_FALSE(stack.Unwatch(other));
    stack.Undo();
    EXPECT_FALSE(stack.IsSaved());
    EXPECT_TRUE(stack.Unwatch(grid));
    EXPECT_EQ(stack.GetRedoNum(), 0);
}

TEST_F(LeftOut, AGridThatLeavesWithinAnAction_EndsTheStep)
{
    {
        const TGUserAction action(grid, TGActionKind::Type);
        grid.GetCell(0, 0).SetText(L"1");
        EXPECT_TRUE(stack.Unwatch(grid));
        grid.GetCell(1, 0).SetText(L"2");
    }
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_TRUE(stack.Watch(grid));
    EXPECT_FALSE(stack.Watch(grid));
    Type(2, 0, L"3");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), "1 2 c d");
}

TEST_F(LeftOut, WithinAStep_NothingIsUndone)
{
    Type(0, 0, L"1");
    {
        const TGUndoTransaction group(stack, L"group");
        grid.GetCell(1, 0).SetText(L"2");
        EXPECT_FALSE(stack.Undo());
        EXPECT_FALSE(stack.Redo());
    }
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), "1 b c d");
}

class ClearingStack : public TGUndoStack
{
protected:
    bool OnUndoing(const CString&) override
    {
        Clear();
        return true;
    }
};

TEST_F(LeftOut, AStackThatIsClearedWhenAsked_UndoesNothing)
{
    stack.Unwatch(grid);
    ClearingStack clearing;
    clearing.Watch(grid);
    Type(0, 0, L"1");
    EXPECT_FALSE(clearing.Undo());
    EXPECT_EQ(Texts(grid), "1 b c d");
}

// ---- A bare stack in a window

class BareStack : public EditTest
{
protected:
    BareStack() { EditTest::Make(grid, 3, 2); }
    ~BareStack() override { stack.Clear(); }

    void Type(const wchar_t* text)
    {
        const TGUserAction action(grid, TGActionKind::Type);
        grid.GetCell(0, 0).SetText(text);
    }
    bool Run(UINT message, WPARAM key)
    {
        const MSG made = {grid.m_hWnd, message, key, 0, 0, {}};
        return stack.RunKey(made);
    }

    EditGrid grid;
    TGUndoStack stack;
};

TEST_F(BareStack, ItsOwnHooks_AgreeAndSayNothing)
{
    stack.Watch(grid);
    Type(L"1");
    EXPECT_TRUE(stack.Undo());
    EXPECT_TRUE(stack.Redo());
    grid.GetCell(0, 0).GetText() = L"past the stack";
    EXPECT_FALSE(stack.Undo());
    EXPECT_FALSE(stack.CanUndo());
    EXPECT_EQ(TextOf(grid, 0, 0), L"past the stack");
}

TEST_F(BareStack, Keys_CountWithControlAlone)
{
    stack.Watch(grid);
    Type(L"1");
    EXPECT_FALSE(Run(WM_KEYDOWN, 'Z'));
    EXPECT_FALSE(Run(WM_KEYUP, 'Z'));
    {
        const HeldKeys held({VK_CONTROL, VK_MENU});
        EXPECT_FALSE(Run(WM_KEYDOWN, 'Z'));
    }
    EXPECT_EQ(TextOf(grid, 0, 0), L"1");
    {
        const HeldKeys held({VK_CONTROL});
        EXPECT_FALSE(Run(WM_KEYDOWN, 'X'));
        EXPECT_TRUE(Run(WM_KEYDOWN, 'Z'));
        EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
        EXPECT_TRUE(Run(WM_KEYDOWN, 'Y'));
        EXPECT_EQ(TextOf(grid, 0, 0), L"1");
        stack.Undo();
    }
    const HeldKeys held({VK_CONTROL, VK_SHIFT});
    EXPECT_FALSE(Run(WM_KEYDOWN, 'Y'));
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
    EXPECT_TRUE(Run(WM_KEYDOWN, 'Z'));
    EXPECT_EQ(TextOf(grid, 0, 0), L"1");
}

TEST_F(BareStack, EditsOfOtherWindows_AreNotServed)
{
    CWnd other;
    other.CreateEx(0, L"EDIT", L"other", WS_CHILD | WS_VISIBLE, CRect(500, 400, 600, 420), &host, 7);
    ASSERT_TRUE(Activate(host));
    other.SetFocus();
    stack.Watch(grid);
    Type(L"1");
    host.SendMessage(WM_NULL);
    stack.OnCmdMsg(ID_EDIT_UNDO, CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
    stack.OnCmdMsg(ID_EDIT_REDO, CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ(TextOf(grid, 0, 0), L"1");
    // Without a focus, too.
    ::SetFocus(nullptr);
    stack.OnCmdMsg(ID_EDIT_UNDO, CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
    // With nothing that is watched.
    stack.Unwatch(grid);
    other.SetFocus();
    stack.OnCmdMsg(ID_EDIT_UNDO, CN_COMMAND, nullptr, nullptr);
    CString text;
    other.GetWindowText(text);
    EXPECT_EQ(text, L"other");
}

TEST_F(BareStack, AnOpenEditor_IsServedFirst_AndHasNoRedo)
{
    stack.Watch(grid);
    Type(L"1");
    ASSERT_TRUE(Activate(host));
    grid.BeginEditCell(1, 1);
    ASSERT_NE(grid.EditorWindow(), nullptr);
    grid.EditorWindow()->SetFocus();
    // Nothing typed yet: the stack's.
    stack.OnCmdMsg(ID_EDIT_UNDO, CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
    grid.BeginEditCell(1, 1);
    grid.EditorWindow()->SetFocus();
    TypeText(L"typed");
    PumpPending();
    stack.OnCmdMsg(ID_EDIT_REDO, CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
    CCmdUI entry;
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_EDIT_UNDO, L"Undo");
    menu.AppendMenu(MF_STRING, ID_EDIT_REDO, L"Redo");
    entry.m_pMenu = &menu;
    entry.m_nIndexMax = 2;
    entry.m_nID = ID_EDIT_UNDO;
    entry.m_nIndex = 0;
    entry.DoUpdate(&stack, FALSE);
    entry.m_nID = ID_EDIT_REDO;
    entry.m_nIndex = 1;
    entry.DoUpdate(&stack, FALSE);
    EXPECT_EQ(menu.GetMenuState(ID_EDIT_UNDO, MF_BYCOMMAND) & MF_GRAYED, 0u);
    EXPECT_NE(menu.GetMenuState(ID_EDIT_REDO, MF_BYCOMMAND) & MF_GRAYED, 0u);
    grid.CancelEditCell();
    grid.SetFocus();
    entry.DoUpdate(&stack, FALSE);
    EXPECT_EQ(menu.GetMenuState(ID_EDIT_REDO, MF_BYCOMMAND) & MF_GRAYED, 0u);
}

TEST_F(BareStack, AStepWithinAnUpdate_ComesBackWithoutAScrollPosition)
{
    stack.Watch(grid);
    {
        const TGGridUpdate update(grid);
        Type(L"1");
    }
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
    grid.DestroyWindow();
    EXPECT_TRUE(stack.Redo());
    EXPECT_EQ(TextOf(grid, 0, 0), L"1");
}

} // namespace
} // namespace quor::test
