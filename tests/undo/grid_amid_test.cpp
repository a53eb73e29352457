// Grids whose watch begins or ends amid an action or an undo, extensions that act there, and what else holds
// the mouse or the focus.
#include "grid/TGGridExtension.h"
#include "module/QuorTexts.h"
#include "tests/grid/EditGrid.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/Input.h"
#include "tests/undo/ActingEdit.h"
#include "tests/undo/GridSteps.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <utility>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// A stack whose hooks a test scripts.
class ScriptedStack : public TGUndoStack
{
public:
    std::function<void()> undoing;
    std::function<void()> changed;
    int undone = 0;
    int ended = 0;

protected:
    bool OnUndoing(const CString&) override
    {
        if (const auto act = undoing)
            act();
        return true;
    }
    void OnUndone(const CString&) override { ++undone; }
    void OnHistoryEnded() override { ++ended; }
    void OnHistoryChanged() override
    {
        if (const auto act = changed)
            act();
    }
};

// An extension that does something, once, at one notice.
class ActingExtension : public TGGridExtension
{
public:
    explicit ActingExtension(TGGrid& grid) { AttachTo(grid); }
    ~ActingExtension() override { Detach(); }
    std::function<void()> onText;
    std::function<void()> onColInserted;
    std::function<void()> onLaidOut;
    std::function<void()> onFolded;
    std::function<void(TGGrid&)> onDetach;

protected:
    void OnTextChanged(TGGridCell&, const CString&) override { Run(onText); }
    void OnColInserted(TGGridCol&) override { Run(onColInserted); }
    void OnLaidOut() override { Run(onLaidOut); }
    void OnRowsFolded(std::span<TGGridTreeRow* const>) override { Run(onFolded); }
    void OnDetach(TGGrid& oldGrid) override
    {
        if (const auto act = std::exchange(onDetach, nullptr))
            act(oldGrid);
    }

private:
    static void Run(std::function<void()>& stored)
    {
        if (const auto act = std::exchange(stored, nullptr))
            act();
    }
};

// ---- Without windows

class GridsAmid : public testing::Test
{
protected:
    GridsAmid()
    {
        QuorTexts::SetLanguage(QuorLanguage::English);
        AddCols(grid, 3);
        AddRows(grid, "abcd");
        AddCols(other, 1);
        AddRows(other, "x");
    }
    ~GridsAmid() override { QuorTexts::SetLanguage(QuorLanguage::Default); }

    ModelGrid grid;
    ModelGrid other;
    ScriptedStack stack;
};

TEST_F(GridsAmid, AWatchThatBeginsWithinAnAction_RecordsWhatFollowsAsSteps)
{
    {
        const TGUserAction action(grid, TGActionKind::Type);
        grid.GetCell(0, 0).SetText(L"before");
        ActingExtension present(other);
        stack.Watch(grid);
        grid.GetCell(1, 0).SetText(L"1");
    }
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_EQ(stack.GetUndoName(), L"Change");
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), "before b c d");
}

TEST_F(GridsAmid, AWatchThatBeginsWithinAnActionThatIsTold_RecordsWhatFollowsAsSteps)
{
    ActingExtension present(grid);
    {
        const TGUserAction action(grid, TGActionKind::Type);
        stack.Watch(grid);
        grid.GetCell(1, 0).SetText(L"1");
        grid.GetCell(2, 0).SetText(L"2");
    }
    EXPECT_EQ(stack.GetUndoNum(), 2);
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), "a 1 c d");
}

// The grid is not watched any more, whatever the host does when it hears of the history.
TEST_F(GridsAmid, AWatchThatEndsWithinAnAction_LeavesTheStepsOfOthers)
{
    stack.Watch(grid);
    stack.Watch(other);
    other.GetCell(0, 0).SetText(L"y");
    {
        const TGUserAction action(grid, TGActionKind::Type);
        grid.GetCell(0, 0).SetText(L"1");
        other.GetCell(0, 0).SetText(L"z");
        stack.changed = [this] {
            stack.changed = nullptr;
            EXPECT_FALSE(stack.IsWatching(grid));
            stack.Undo();
        };
        EXPECT_TRUE(stack.Unwatch(grid));
    }
    while (stack.Undo())
        continue;
    EXPECT_EQ(Texts(grid), "1 b c d");
    EXPECT_EQ(Texts(other), "x");
    EXPECT_EQ(stack.ended, 0);
}

TEST_F(GridsAmid, AGridThatIsBeingDeleted_CannotBeWatched)
{
    ActingExtension last(other);
    bool isWatched = true;
    {
        auto deleted = std::make_unique<ModelGrid>();
        ActingExtension extension(*deleted);
        extension.onDetach = [&](TGGrid& oldGrid) { isWatched = stack.Watch(oldGrid); };
        deleted.reset();
    }
    EXPECT_FALSE(isWatched);
}

TEST_F(GridsAmid, AnExtensionThatEndsTheWatchAmidAnUndo_TakesTheStepAlong)
{
    stack.Watch(grid);
    stack.Watch(other);
    other.GetCell(0, 0).SetText(L"y");
    ActingExtension extension(grid);
    grid.GetCell(1, 1).SetText(L"text");
    grid.DelCol(1);
    extension.onColInserted = [this] { stack.Unwatch(grid); };
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(grid.GetColNum(), 3);
    EXPECT_FALSE(grid.IsUpdating());
    EXPECT_EQ(stack.GetRedoNum(), 0);
    EXPECT_TRUE(stack.Undo()) << "the other grid's step";
    EXPECT_EQ(Texts(other), "x");
}

TEST_F(GridsAmid, AnExtensionThatEndsTheWatchAtAText_TakesTheStepAlong)
{
    stack.Watch(grid);
    ActingExtension extension(grid);
    {
        const TGUndoTransaction step(stack, L"step");
        grid.GetCell(0, 0).SetText(L"1");
        grid.GetCell(1, 0).SetText(L"2");
    }
    extension.onText = [this] { stack.Unwatch(grid); };
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(Texts(grid), "1 b c d");
    EXPECT_FALSE(grid.IsUpdating());
    EXPECT_EQ(stack.GetUndoNum() + stack.GetRedoNum(), 0);
    EXPECT_EQ(stack.undone, 0);
}

TEST_F(GridsAmid, AnExtensionThatEndsTheWatchAsRowsAreFoldedAgain_LeavesTheOthersAsTheyAre)
{
    ModelGrid tree(true);
    AddCols(tree, 1);
    for (const wchar_t* text : {L"a", L"b"})
        AddChild(AddRoot(tree, text), L"child");
    stack.Watch(tree);
    tree.GetCell(0, 0).SetText(L"typed");
    tree.GetTreeRow(0).UnFold();
    tree.GetTreeRow(2).UnFold();
    ActingExtension extension(tree);
    extension.onFolded = [&] { stack.Unwatch(tree); };
    stack.Undo();
    EXPECT_EQ(Texts(tree), "typed child b");
    EXPECT_FALSE(stack.IsWatching(tree));
    EXPECT_FALSE(tree.IsUpdating());
    EXPECT_EQ(stack.GetUndoNum() + stack.GetRedoNum(), 0);
}

TEST_F(GridsAmid, ASavedStepWhoseControlLeavesAmidTheUndo_IsSavedStill)
{
    stack.Watch(grid);
    stack.Watch(other);
    other.GetCell(0, 0).SetText(L"y");
    grid.GetCell(0, 0).SetText(L"1");
    stack.SetSaved();
    ActingExtension extension(grid);
    extension.onText = [this] { stack.Unwatch(grid); };
    EXPECT_FALSE(stack.Undo());
    EXPECT_TRUE(stack.IsSaved());
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_TRUE(stack.Undo());
    EXPECT_FALSE(stack.IsSaved());
}

TEST_F(GridsAmid, WhatAnExtensionWritesAmidAnUndo_IsTakenBackBeforeTheNextStep)
{
    stack.Watch(grid);
    ActingExtension extension(grid);
    grid.GetCell(0, 0).SetText(L"1");
    grid.GetCell(1, 0).SetText(L"2");
    extension.onText = [this] { grid.GetCell(3, 0).SetText(L"too"); };
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), "1 b c too");
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), "a b c d");
}

TEST_F(GridsAmid, WhatAnExtensionWritesAmidAnUndoInAPause_Stays)
{
    stack.Watch(grid);
    ActingExtension extension(grid);
    grid.GetCell(0, 0).SetText(L"1");
    grid.GetCell(1, 0).SetText(L"2");
    extension.onText = [this] {
        const TGUndoPause pause(stack);
        grid.GetCell(3, 0).SetText(L"log");
    };
    EXPECT_TRUE(stack.Undo());
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), "a b c log");
    EXPECT_EQ(stack.ended, 0);
}

TEST_F(GridsAmid, AStepThatTheQuestionAdds_IsNotTheOneThatWasAskedFor)
{
    stack.Watch(grid);
    grid.GetCell(0, 0).SetText(L"1");
    stack.undoing = [this] { grid.GetCell(1, 0).SetText(L"2"); };
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(Texts(grid), "1 2 c d");
    EXPECT_EQ(stack.GetUndoNum(), 2);
}

TEST_F(GridsAmid, ATransactionThatTheQuestionBegins_RefusesTheStep)
{
    stack.Watch(grid);
    grid.GetCell(0, 0).SetText(L"1");
    std::optional<TGUndoTransaction> group;
    stack.undoing = [&] { group.emplace(stack, L"group"); };
    EXPECT_FALSE(stack.Undo());
    stack.undoing = nullptr;
    group.reset();
    EXPECT_EQ(Texts(grid), "1 b c d");
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), "a b c d");
}

// ---- In windows

class GridWindowsAmid : public EditTest
{
protected:
    GridWindowsAmid()
    {
        EditTest::Make(grid, 3, 3);
        grid.recording = false;
        AddCols(other, 1);
        AddRows(other, "x");
        stack.Watch(grid);
    }
    void Type(long row, const wchar_t* text)
    {
        const TGUserAction action(grid, TGActionKind::Type);
        grid.GetCell(row, 0).SetText(text);
    }

    EditGrid grid;
    ModelGrid other;
    ScriptedStack stack;
};

TEST_F(GridWindowsAmid, AGridThatLeavesAsItIsAboutToBeReverted_TakesTheStepAlong)
{
    ASSERT_TRUE(Activate(host));
    Type(0, L"1");
    grid.makeEditor = [&](TGGridCell& cell) -> TGCellCtrl* {
        auto* const made = new ActingEdit(cell);
        made->act = [&] { stack.Unwatch(grid); };
        return made;
    };
    stack.undoing = [this] { grid.BeginEditCell(1, 1); };
    EXPECT_FALSE(stack.Undo());
    EXPECT_FALSE(stack.IsWatching(grid));
    EXPECT_EQ(TextOf(grid, 0, 0), L"1");
    EXPECT_FALSE(grid.IsUpdating());
    EXPECT_EQ(stack.GetUndoNum() + stack.GetRedoNum(), 0);
    EXPECT_EQ(stack.undone, 0);
}

TEST_F(GridWindowsAmid, AnotherGridThatLeavesAsAnEditIsCommitted_IsLeftOut)
{
    stack.Watch(other);
    other.GetCell(0, 0).SetText(L"y");
    grid.BeginEditCell(1, 1);
    grid.Enter(L"typed");
    grid.modifiedText = [this](TGGridCell&, CString&) {
        stack.Unwatch(other);
        return true;
    };
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(TextOf(grid, 1, 1), L"1,1");
    EXPECT_EQ(Texts(other), "y");
    EXPECT_FALSE(stack.CanUndo());
}

TEST_F(GridWindowsAmid, AGridThatLeavesAsItIsLaidOut_HasItsStepTakenBack)
{
    ActingExtension extension(grid);
    grid.AppendRow(nullptr);
    stack.undoing = [&] { extension.onLaidOut = [this] { stack.Unwatch(grid); }; };
    stack.Undo();
    EXPECT_FALSE(stack.IsWatching(grid));
    EXPECT_EQ(grid.GetRowNum(), 3);
    EXPECT_FALSE(grid.IsUpdating());
    EXPECT_EQ(stack.GetUndoNum() + stack.GetRedoNum(), 0);
}

TEST_F(GridWindowsAmid, AGridThatHoldsTheMouse_LetsItGo_OthersKeepIt)
{
    Type(0, L"1");
    Type(1, L"2");
    grid.SetCapture();
    ASSERT_EQ(::GetCapture(), grid.m_hWnd);
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(::GetCapture(), nullptr);
    host.SetCapture();
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(::GetCapture(), host.m_hWnd);
    ::ReleaseCapture();
}

// A grid that does something when it loses the mouse.
struct MouselessGrid : EditGrid
{
    std::function<void()> act;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_CAPTURECHANGED && act)
            act();
        return EditGrid::WindowProc(message, wParam, lParam);
    }
};

TEST_F(GridWindowsAmid, AGridThatLeavesAsItLosesTheMouse_IsNotServed)
{
    MouselessGrid second;
    EditTest::Make(second, 2, 2);
    second.recording = false;
    stack.Watch(second);
    Type(0, L"1");
    second.GetCell(0, 0).SetText(L"2");
    second.SetCapture();
    second.act = [&] { stack.Unwatch(second); };
    EXPECT_TRUE(stack.Undo()) << "the first grid's step";
    EXPECT_EQ(TextOf(second, 0, 0), L"2");
    EXPECT_EQ(TextOf(grid, 0, 0), L"0,0");
    EXPECT_EQ(stack.GetUndoNum(), 0);
}

TEST_F(GridWindowsAmid, TypingAfterAnUndoneOne_IsUndoneAnew)
{
    ASSERT_TRUE(Activate(host));
    grid.BeginEditCell(1, 1);
    PumpPending();
    const auto typed = [this] {
        CString text;
        grid.EditorWindow()->GetWindowText(text);
        return text;
    };
    const auto undo = [this] { stack.OnCmdMsg(ID_EDIT_UNDO, CN_COMMAND, nullptr, nullptr); };
    TypeText(L"x");
    PumpPending();
    undo();
    ASSERT_EQ(typed(), L"1,1");
    TypeText(L"y");
    PumpPending();
    const CString second = typed();
    ASSERT_NE(second, L"1,1");
    undo();
    ASSERT_TRUE(grid.IsEditing()) << "the typing is undone, not the step";
    EXPECT_NE(typed(), second);
}

// A grid without a window has no editor.
TEST_F(GridWindowsAmid, AnEditElsewhere_IsNotServed_WithAGridWithoutAWindow)
{
    stack.Unwatch(grid);
    stack.Watch(other);
    other.GetCell(0, 0).SetText(L"y");
    CWnd edit;
    edit.CreateEx(0, L"EDIT", L"edit", WS_CHILD | WS_VISIBLE, CRect(500, 400, 600, 420), &host, 7);
    ASSERT_TRUE(Activate(host));
    edit.SetFocus();
    TypeText(L"x");
    PumpPending();
    CString text;
    edit.GetWindowText(text);
    stack.OnCmdMsg(ID_EDIT_UNDO, CN_COMMAND, nullptr, nullptr);
    CString after;
    edit.GetWindowText(after);
    EXPECT_EQ(after, text);
    EXPECT_EQ(Texts(other), "x");
}

} // namespace
} // namespace quor::test
