// The history of grids: what is a step, what ends it, what the host is told, and the saved point.
#include "tests/undo/GridSteps.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

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

// There is nothing to undo any more, which menus show.
TEST_F(GridSteps, AHistoryThatEnds_HasChanged)
{
    class NotedStack : public TGUndoStack
    {
    public:
        int changes = 0;

    protected:
        void OnHistoryChanged() override { ++changes; }
    } noted;
    stack.Unwatch(grid);
    noted.Watch(grid);
    Type(0, 0, L"1");
    grid.GetCell(0, 0).GetText() = L"host";
    noted.changes = 0;
    EXPECT_FALSE(noted.Undo());
    EXPECT_FALSE(noted.CanUndo());
    EXPECT_EQ(noted.changes, 1);
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

TEST_F(GridSteps, WhatComesBackWithAStep_CountsWithIt)
{
    Type(0, 0, L"x");
    stack.Undo();
    const std::size_t alone = stack.GetBytes();
    stack.Redo();
    grid.GetCol(0).SetWidth(10);
    stack.Undo();
    EXPECT_GT(stack.GetBytes(), alone);
}

TEST_F(GridSteps, AColumnThatIsKept_Counts)
{
    grid.SetRowNum(0);
    stack.Clear();
    grid.MoveCol(0, 2);
    const std::size_t moved = stack.GetBytes();
    stack.Clear();
    grid.DelCol(0);
    EXPECT_GE(stack.GetBytes(), moved + sizeof(TGGridCol));
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

} // namespace
} // namespace quor::test
