// Steps of grids: what they hold, what ends the history, and what the host is told.
#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGHeaderSort.h"
#include "grid/TGTreeGrid.h"
#include "grid/TGUserAction.h"
#include "module/QuorTexts.h"
#include "tests/grid/ModelGrid.h"
#include "tests/undo/GridSubject.h"
#include "tests/undo/UndoWorld.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// Counts what undoing may ask and tell.
class ToldGrid : public ModelGrid
{
public:
    using ModelGrid::ModelGrid;

    int asked = 0;
    int changed = 0;
    std::function<void()> onDataChanged;

protected:
    bool OnModified(TGGridCell&, CString&) override { return ++asked > 0; }
    bool OnBeforeDeleteRow() override { return ++asked > 0; }
    bool OnBeforeInsertRow(long, TGGridRow*&) override { return ++asked > 0; }
    void OnDataChanged() override
    {
        ++changed;
        ModelGrid::OnDataChanged();
        if (const auto act = onDataChanged)
            act();
    }
};

class GridSteps : public testing::Test
{
protected:
    GridSteps()
    {
        QuorTexts::SetLanguage(QuorLanguage::English);
        AddCols(grid, 3);
        AddRows(grid, "abcd");
        for (long row = 0; row < 4; ++row)
            grid.GetRow(row).SetExtendData(new NumberedData);
        stack.Watch(grid);
    }
    ~GridSteps() override { QuorTexts::SetLanguage(QuorLanguage::Default); }

    void Type(long row, long col, const wchar_t* text)
    {
        const TGUserAction action(grid, TGActionKind::Type);
        grid.GetCell(row, col).SetText(text);
    }
    void Select(std::initializer_list<long> rows)
    {
        grid.UnSelect();
        for (const long row : rows)
            grid.SelectRow(row, true);
    }
    // Undoes and redoes the steps since a state, which both must bring back.
    void GoBackAndForth(const std::string& before, int steps = 1)
    {
        const std::string after = SnapshotOf(grid);
        EXPECT_NE(after, before);
        for (int i = 0; i < steps; ++i)
            EXPECT_TRUE(stack.Undo());
        EXPECT_EQ(SnapshotOf(grid), before);
        for (int i = 0; i < steps; ++i)
            EXPECT_TRUE(stack.Redo());
        EXPECT_EQ(SnapshotOf(grid), after);
        for (int i = 0; i < steps; ++i)
            EXPECT_TRUE(stack.Undo());
        EXPECT_EQ(SnapshotOf(grid), before);
    }

    ToldGrid grid;
    CountingStack stack;
};

TEST_F(GridSteps, ATextComesBack)
{
    const std::string before = SnapshotOf(grid);
    Type(1, 2, L"x");
    EXPECT_EQ(stack.GetUndoName(), L"Typing");
    GoBackAndForth(before);
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_FALSE(stack.CanUndo());
    EXPECT_FALSE(stack.Undo());
}

TEST_F(GridSteps, TheSameTextAgain_IsNoStep)
{
    Type(1, 0, L"b");
    EXPECT_EQ(stack.GetUndoNum(), 0);
}

TEST_F(GridSteps, DeletedRows_AreTheSameObjects)
{
    const std::string before = SnapshotOf(grid);
    Select({1, 3});
    grid.DoDelete();
    EXPECT_EQ(stack.GetUndoName(), L"Delete 2 rows");
    QuorTexts::SetLanguage(QuorLanguage::Chinese);
    EXPECT_EQ(stack.GetUndoName(), L"删除 2 行");
    GoBackAndForth(before);
}

TEST_F(GridSteps, InsertedRowsGo)
{
    const std::string before = SnapshotOf(grid);
    Select({2});
    grid.DoInsertRow();
    EXPECT_EQ(stack.GetUndoName(), L"Insert row");
    GoBackAndForth(before);
}

TEST_F(GridSteps, AllRowsOfAClearedGridComeBack)
{
    const std::string before = SnapshotOf(grid);
    grid.Clear();
    EXPECT_EQ(stack.GetUndoName(), L"Change");
    GoBackAndForth(before);
}

TEST_F(GridSteps, CutRows_ComeBackFromTheBuffer_AndCanBePastedStill)
{
    const std::string before = SnapshotOf(grid);
    Select({1, 2});
    grid.DoClip();
    EXPECT_EQ(stack.GetUndoName(), L"Cut 2 rows");
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(SnapshotOf(grid), before);
    grid.UnSelect();
    grid.DoPaste();
    EXPECT_EQ(grid.GetRowNum(), 6);
}

TEST_F(GridSteps, CutAndPastedRows_ComeBack_WhateverTheBufferHoldsSince)
{
    const std::string before = SnapshotOf(grid);
    Select({0});
    grid.DoClip();
    Select({2});
    grid.DoPaste();
    EXPECT_EQ(Texts(grid), "b c a d");
    Select({0});
    grid.DoCopy();
    GoBackAndForth(before, 2);
}

TEST_F(GridSteps, ADroppedRedo_LeavesARowToTheCutThatNeedsIt)
{
    const std::string before = SnapshotOf(grid);
    Select({0});
    grid.DoClip();
    grid.UnSelect();
    grid.DoPaste();
    stack.Undo();
    Type(0, 0, L"x");
    stack.Undo();
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(SnapshotOf(grid), before);
    EXPECT_EQ(stack.ended, 0);
}

TEST_F(GridSteps, MovedAndSortedRowsGoBack)
{
    std::string before = SnapshotOf(grid);
    {
        const TGUserAction action(grid, TGActionKind::MoveRows);
        grid.MoveRow(0, 3);
    }
    EXPECT_EQ(stack.GetUndoName(), L"Move row");
    GoBackAndForth(before);
    grid.AppendKey(0);
    grid.Arrange(false);
    EXPECT_EQ(Texts(grid), "d c b a");
    EXPECT_EQ(stack.GetUndoName(), L"Sort");
    GoBackAndForth(before);
    TGHeaderSort sorting(grid);
    sorting.Sort({{0, false}});
    EXPECT_EQ(Texts(grid), "d c b a");
    GoBackAndForth(before);
}

TEST_F(GridSteps, ColumnsComeBackWithTextsAndReadOnlyCells)
{
    grid.GetCell(2, 1).SetText(L"text");
    grid.GetCell(3, 1).SetReadOnly(true);
    stack.Clear();
    std::string before = SnapshotOf(grid);
    grid.SelectCol(1, true);
    grid.DoDelete();
    EXPECT_EQ(stack.GetUndoName(), L"Delete column");
    GoBackAndForth(before);
    EXPECT_TRUE(grid.GetCell(3, 1).IsReadOnly());
    grid.UnSelect();
    grid.DoAppendCol();
    EXPECT_EQ(stack.GetUndoName(), L"Insert column");
    GoBackAndForth(before);
    {
        const TGUserAction action(grid, TGActionKind::MoveCols);
        grid.MoveCol(2, 0);
    }
    GoBackAndForth(before);
    {
        const TGUserAction action(grid, TGActionKind::ResizeCols);
        grid.GetCol(1).SetWidth(33);
    }
    EXPECT_EQ(stack.GetUndoName(), L"Column width");
    GoBackAndForth(before);
}

TEST_F(GridSteps, ACutRow_KeepsTheTextOfAColumnThatGoesAndComesBack)
{
    grid.GetCell(0, 1).SetText(L"kept");
    stack.Clear();
    const std::string before = SnapshotOf(grid);
    Select({0});
    grid.DoClip();
    grid.SelectCol(1, true);
    grid.DoDelete();
    Select({0});
    grid.DoCopy();
    GoBackAndForth(before, 2);
}

// ---- Grouping

TEST_F(GridSteps, ATransactionIsOneStep_WithTheWordsOfTheHost)
{
    const std::string before = SnapshotOf(grid);
    {
        const TGUndoTransaction import(stack, L"Import");
        grid.AppendRow(nullptr);
        Type(0, 0, L"1");
        Select({1});
        grid.DoDelete();
        EXPECT_FALSE(stack.CanUndo());
        EXPECT_FALSE(stack.Undo());
    }
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_EQ(stack.GetUndoName(), L"Import");
    GoBackAndForth(before);
}

TEST_F(GridSteps, WhatHooksWrite_BelongsToTheStep)
{
    grid.onDataChanged = [this] {
        CString total;
        total.Format(L"%d", static_cast<int>(grid.GetRowNum()));
        grid.GetCell(0, 2).SetText(total);
    };
    const std::string before = SnapshotOf(grid);
    grid.DoAppendRow(false);
    EXPECT_EQ(stack.GetUndoNum(), 1);
    grid.onDataChanged = nullptr;
    GoBackAndForth(before);
}

TEST_F(GridSteps, CallsOfTheProgram_AreAStepEach)
{
    grid.GetCell(0, 0).SetText(L"1");
    grid.GetCell(0, 0).SetText(L"2");
    EXPECT_EQ(stack.GetUndoNum(), 2);
    stack.Undo();
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"1");
}

TEST_F(GridSteps, FoldingAndWidthsOfAProgram_AreNoSteps_AndComeBackWithTheStepBefore)
{
    Type(0, 0, L"x");
    grid.GetCol(0).SetWidth(10);
    EXPECT_EQ(stack.GetUndoNum(), 1);
    stack.Undo();
    EXPECT_EQ(grid.GetCol(0).GetWidth(), 100);
    stack.Redo();
    EXPECT_EQ(grid.GetCol(0).GetWidth(), 10);
}

// ---- Changes past the stack

TEST_F(GridSteps, ATextWrittenPastTheStack_EndsTheHistoryThere)
{
    Type(0, 0, L"1");
    Type(1, 0, L"2");
    Type(2, 0, L"3");
    grid.GetCell(1, 0).GetText() = L"host";
    EXPECT_TRUE(stack.Undo());
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(Texts(grid), "1 host c d");
    EXPECT_EQ(stack.ended, 1);
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_TRUE(stack.Redo());
    EXPECT_EQ(Texts(grid), "1 host 3 d");
}

TEST_F(GridSteps, AStepThatFitsInPart_ChangesNothing)
{
    {
        const TGUndoTransaction group(stack, L"two");
        grid.GetCell(0, 0).SetText(L"1");
        grid.GetCell(1, 0).SetText(L"2");
    }
    grid.GetCell(0, 0).GetText() = L"host";
    const std::string before = SnapshotOf(grid);
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(SnapshotOf(grid), before);
}

TEST_F(GridSteps, LeftOutChanges_EndTheHistoryOnlyWhereTheyTouch)
{
    Type(0, 0, L"1");
    {
        const TGUndoPause pause(stack);
        grid.AppendRow(nullptr);
        grid.GetCell(2, 2).SetText(L"log");
    }
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), "a b c d ");
    stack.Redo();
    {
        const TGUndoPause pause(stack);
        grid.DelRow(0);
    }
    EXPECT_FALSE(stack.CanUndo());
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(stack.ended, 1);
}

TEST_F(GridSteps, ReplacedColumns_EndTheHistory)
{
    Type(0, 1, L"1");
    {
        const TGUndoPause pause(stack);
        grid.SetColNum(1);
        grid.SetColNum(3);
    }
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(grid.GetCell(0, 1).GetText(), L"");
}

TEST_F(GridSteps, ARowOfARowBufferThatTheHostClears_EndsTheHistory)
{
    Select({1});
    grid.DoClip();
    grid.GetRowPaste().Clear();
    EXPECT_FALSE(stack.CanUndo());
    EXPECT_FALSE(stack.Undo());
    EXPECT_EQ(Texts(grid), "a c d");
}

// ---- What the host is told

TEST_F(GridSteps, Undoing_AsksNoHooks_AndTellsOnce)
{
    Select({0, 2});
    grid.DoDelete();
    grid.asked = grid.changed = grid.curChanges = 0;
    stack.Undo();
    EXPECT_EQ(grid.asked, 0);
    EXPECT_EQ(grid.changed, 1);
    EXPECT_EQ(grid.curChanges, 1);
    stack.Redo();
    EXPECT_EQ(grid.changed, 2);
    EXPECT_EQ(grid.curChanges, 2);
}

TEST_F(GridSteps, WhatHooksChangeOnUndo_IsTakenBackBeforeTheNextStep)
{
    const std::string before = SnapshotOf(grid);
    Type(0, 0, L"1");
    Type(1, 0, L"2");
    grid.onDataChanged = [this] {
        const auto act = std::exchange(grid.onDataChanged, nullptr);
        grid.AppendRow(nullptr);
        grid.GetCell(0, 0).SetText(L"hook");
    };
    stack.Undo();
    EXPECT_EQ(Texts(grid), "hook b c d ");
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_EQ(stack.GetRedoNum(), 1);
    stack.Undo();
    EXPECT_EQ(SnapshotOf(grid), before);
    stack.Redo();
    EXPECT_EQ(Texts(grid), "1 b c d");
    stack.Redo();
    EXPECT_EQ(Texts(grid), "1 2 c d");
    EXPECT_EQ(stack.ended, 0);
}

class AskingStack : public TGUndoStack
{
public:
    std::string log;
    bool agrees = true;

protected:
    bool OnUndoing(const CString& name) override
    {
        log += "undo? " + Narrow(name) + "; ";
        return agrees;
    }
    bool OnRedoing(const CString& name) override
    {
        log += "redo? " + Narrow(name) + "; ";
        return agrees;
    }
    void OnUndone(const CString&) override { log += IsSaved() ? "undone, saved; " : "undone; "; }
    void OnRedone(const CString&) override { log += IsSaved() ? "redone, saved; " : "redone; "; }
};

TEST_F(GridSteps, TheStack_AsksAndTells)
{
    AskingStack asking;
    asking.Watch(grid);
    Type(0, 0, L"1");
    asking.agrees = false;
    EXPECT_FALSE(asking.Undo());
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"1");
    asking.agrees = true;
    EXPECT_TRUE(asking.Undo());
    EXPECT_TRUE(asking.Redo());
    EXPECT_EQ(asking.log, "undo? Typing; undo? Typing; undone, saved; redo? Typing; redone; ");
}

// ---- Saving and limits

TEST_F(GridSteps, TheSavedPoint_ClearsTheFlag)
{
    Type(0, 0, L"1");
    EXPECT_FALSE(stack.IsSaved());
    grid.SetModify(true);
    stack.SetSaved();
    EXPECT_FALSE(grid.IsModified());
    Select({0});
    grid.DoDelete();
    EXPECT_TRUE(grid.IsModified());
    stack.Undo();
    EXPECT_TRUE(stack.IsSaved());
    EXPECT_FALSE(grid.IsModified());
    stack.Undo();
    EXPECT_TRUE(grid.IsModified());
    stack.Redo();
    EXPECT_FALSE(grid.IsModified());
    stack.Undo();
    Type(1, 0, L"other");
    stack.Undo();
    EXPECT_FALSE(stack.IsSaved());
}

TEST_F(GridSteps, BeyondTheLimits_TheOldestGo)
{
    stack.SetLimits(2, 0);
    for (const wchar_t* text : {L"1", L"2", L"3"})
        Type(0, 0, text);
    EXPECT_EQ(stack.GetUndoNum(), 2);
    while (stack.Undo())
        continue;
    EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"1");
    stack.SetLimits(0, 0);
    Select({0, 1, 2});
    grid.DoDelete();
    EXPECT_EQ(NumberedData::alive, 4);
    stack.SetLimits(0, 1);
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_EQ(NumberedData::alive, 1);
    EXPECT_EQ(stack.GetBytes(), 0U);
}

TEST_F(GridSteps, DeletedRows_AreKeptWithoutTheirTexts)
{
    grid.SetRowNum(1000);
    const CString text(L'x', 10000);
    for (long row = 0; row < 1000; ++row)
        grid.GetCell(row, 1).GetText() = text;
    stack.Clear();
    const TGGridRow* const row = &grid.GetRow(500);
    grid.SelectAll();
    grid.DoDelete();
    EXPECT_LT(stack.GetBytes(), 1000U * 1000U);
    stack.Undo();
    EXPECT_EQ(&grid.GetRow(500), row);
    EXPECT_EQ(grid.GetCell(500, 1).GetText().GetLength(), 10000);
}

// ---- Several controls

TEST_F(GridSteps, TwoGrids_HaveOneOrder_AndOneOfThemMayGo)
{
    const std::string before = SnapshotOf(grid);
    {
        ModelGrid other;
        AddCols(other, 1);
        AddRows(other, "xy");
        stack.Watch(other);
        EXPECT_FALSE(stack.Watch(other));
        Type(0, 0, L"1");
        other.GetCell(0, 0).SetText(L"2");
        Type(1, 0, L"3");
        stack.Undo();
        stack.Undo();
        EXPECT_EQ(other.GetCell(0, 0).GetText(), L"x");
        EXPECT_EQ(grid.GetCell(0, 0).GetText(), L"1");
        stack.Redo();
        other.DelRow(1);
        EXPECT_EQ(stack.GetUndoNum(), 3);
    }
    EXPECT_EQ(stack.GetUndoNum(), 1);
    stack.Undo();
    EXPECT_EQ(SnapshotOf(grid), before);
    EXPECT_TRUE(stack.Unwatch(grid));
    EXPECT_FALSE(stack.IsWatching(grid));
    EXPECT_EQ(stack.GetRedoNum(), 0);
}

TEST(UndoLives, TheStackGoesBeforeTheGrid_WithTheRowsItKeeps)
{
    ModelGrid grid;
    AddCols(grid, 1);
    AddRows(grid, "ab");
    grid.GetRow(0).SetExtendData(new NumberedData);
    {
        TGUndoStack stack;
        stack.Watch(grid);
        grid.DelRow(0);
        EXPECT_EQ(NumberedData::alive, 1);
    }
    EXPECT_EQ(NumberedData::alive, 0);
    grid.AppendRow(nullptr);
}

// ---- Trees

TEST(TreeGridSteps, IdentifiersAreTheSameAgain)
{
    TGTreeGrid grid(true);
    AddCols(grid, 2);
    AddRows(grid, "ab");
    grid.GetCell(0, 1).SetText(L"1");
    grid.GetCell(1, 1).SetText(L"2");
    grid.SetModified(false);
    TGUndoStack stack;
    stack.Watch(grid);
    const std::string before = SnapshotOf(grid);
    grid.SelectRow(0, true);
    grid.DoCopy();
    grid.UnSelect();
    grid.DoPaste();
    EXPECT_EQ(grid.GetCell(2, 1).GetText(), L"3");
    const std::string after = SnapshotOf(grid);
    stack.Undo();
    EXPECT_EQ(SnapshotOf(grid), before);
    EXPECT_FALSE(grid.IsModified());
    stack.Redo();
    EXPECT_EQ(SnapshotOf(grid), after);
    EXPECT_TRUE(grid.IsModified());
}

TEST(TreeGridSteps, ACutTree_ComesBackAsTheSameRows_WithItsData)
{
    ModelGrid grid(true);
    AddCols(grid, 1);
    AddRows(grid, "ab");
    AddChild(grid.GetTreeRow(0), L"x").SetExtendData(new NumberedData);
    grid.GetRow(0).SetExtendData(new NumberedData);
    grid.GetTreeRow(0).UnFold();
    TGUndoStack stack;
    stack.Watch(grid);
    const std::string before = SnapshotOf(grid);
    grid.SelectRow(0, true);
    grid.DoClip();
    grid.UnSelect();
    grid.DoPaste();
    const std::string after = SnapshotOf(grid);
    stack.Undo();
    stack.Undo();
    EXPECT_EQ(SnapshotOf(grid), before);
    stack.Redo();
    stack.Redo();
    EXPECT_EQ(SnapshotOf(grid), after);
}

// The stack keeps the parent, and its child is no business of the call that a hook has interrupted.
TEST(TreeGridSteps, AChildThatIsBeingDeleted_GoesWithAParentThatAHookDeletes)
{
    ModelGrid grid(true);
    AddCols(grid, 1);
    AddRows(grid, "ab");
    AddChild(grid.GetTreeRow(0), L"x").SetExtendData(new NumberedData);
    grid.GetTreeRow(0).UnFold();
    TGUndoStack stack;
    stack.Watch(grid);
    const std::string before = SnapshotOf(grid);
    grid.SelectRow(1, true);
    grid.onCurChanged = [&] {
        grid.onCurChanged = nullptr;
        grid.DelRowEx(0);
    };
    {
        const TGUserAction action(grid, TGActionKind::DeleteRows);
        grid.DelRowEx(1);
    }
    EXPECT_EQ(grid.GetRowNum(), 1);
    while (stack.CanUndo())
        EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(SnapshotOf(grid), before);
}

} // namespace
} // namespace quor::test
