// Changes of grids that happen, and that there is no memory to note.
#include "tests/support/FailingNew.h"
#include "tests/undo/GridSteps.h"

#include <functional>
#include <new>
#include <vector>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

struct WatchedGrid
{
    WatchedGrid()
    {
        AddCols(grid, 3);
        AddRows(grid, "abcd");
        for (long row = 0; row < 4; ++row)
            grid.GetRow(row).SetExtendData(new NumberedData);
        stack.Watch(grid);
        grid.GetCell(3, 1).SetText(L"first");
    }
    ~WatchedGrid() { stack.Clear(); }

    ToldGrid grid;
    CountingStack stack;
};

using GridChanging = std::function<void(ToldGrid&)>;

const std::vector<GridChanging> changes = {
    [](ToldGrid& grid) { grid.GetCell(0, 0).SetText(L"a text that is longer than what needs no memory"); },
    [](ToldGrid& grid) { grid.MoveRow(0, 3); },
    [](ToldGrid& grid) { grid.AppendRow(nullptr); },
    [](ToldGrid& grid) { grid.DelCol(0); },
    [](ToldGrid& grid) { grid.MoveCol(0, 2); },
    [](ToldGrid& grid) {
        const TGUserAction action(grid, TGActionKind::Fill);
        grid.GetCell(0, 0).SetText(L"a text that is longer than what needs no memory");
    },
};

struct Failure
{
    // There were as many allocations.
    bool hasFailed = false;
    // The grid has not carried the change out, or not in full.
    bool isGrids = false;
};

// The n-th allocation of the change fails.
Failure FailAt(WatchedGrid& watched, const GridChanging& change, long n)
{
    Failure failure;
    FailingNew::FailAt(n);
    try
    {
        change(watched.grid);
    }
    catch (const std::bad_alloc&)
    {
        failure.isGrids = true;
    }
    failure.hasFailed = FailingNew::HasFailed();
    FailingNew::FailAt(0);
    return failure;
}

// Either a change is a step, or the history has ended with it: what was before is not taken back past it.
TEST(UndoMemory, AChangeThatCannotBeNoted_EndsTheHistory)
{
    long ends = 0;
    for (std::size_t i = 0; i < changes.size(); ++i)
        for (long n = 1;; ++n)
        {
            SCOPED_TRACE(std::to_string(i) + " at " + std::to_string(n));
            WatchedGrid watched;
            const std::string before = SnapshotOf(watched.grid);
            const Failure failure = FailAt(watched, changes[i], n);
            if (failure.isGrids)
            {
                EXPECT_EQ(SnapshotOf(watched.grid), before);
            }
            const std::string after = SnapshotOf(watched.grid);
            const bool ended = watched.stack.ended > 0;
            ends += ended ? 1 : 0;
            if (ended)
            {
                EXPECT_LE(watched.stack.GetUndoNum(), 1) << "at most what came after";
                EXPECT_FALSE(watched.stack.IsSaved());
            }
            else if (after != before)
            {
                EXPECT_TRUE(watched.stack.Undo());
                EXPECT_EQ(SnapshotOf(watched.grid), before);
                EXPECT_TRUE(watched.stack.Redo());
                EXPECT_EQ(SnapshotOf(watched.grid), after);
                EXPECT_EQ(watched.stack.GetUndoNum(), 2);
            }
            // It goes on with what follows.
            const std::string last = SnapshotOf(watched.grid);
            watched.grid.GetCell(0, 1).SetText(L"next");
            EXPECT_TRUE(watched.stack.Undo());
            EXPECT_EQ(SnapshotOf(watched.grid), last);
            if (!failure.hasFailed || testing::Test::HasFailure())
                break;
        }
    EXPECT_GT(ends, 0) << "some allocation was the stack's";
    EXPECT_EQ(NumberedData::alive, 0);
}

// Which rows are gone cannot be noted either: nothing is known any more.
TEST(UndoMemory, ARowThatGoesForGood_WithoutMemoryToNoteIt_EndsTheHistory)
{
    long ends = 0;
    for (long n = 1;; ++n)
    {
        SCOPED_TRACE(n);
        WatchedGrid watched;
        watched.grid.SelectRow(1, true);
        watched.grid.DoClip();
        const Failure failure = FailAt(
            watched, [](ToldGrid& grid) { grid.GetRowPaste().Clear(); }, n);
        if (!failure.isGrids)
        {
            EXPECT_FALSE(watched.stack.CanUndo());
            // Asking for steps has ended them all; else the next one would.
            ends += watched.stack.ended;
            EXPECT_EQ(watched.stack.GetUndoNum(), watched.stack.ended > 0 ? 0 : 2);
            EXPECT_FALSE(watched.stack.Undo());
            EXPECT_EQ(Texts(watched.grid), "a c d");
        }
        if (!failure.hasFailed || testing::Test::HasFailure())
            break;
    }
    EXPECT_GT(ends, 0) << "some allocation was the note's";
}

} // namespace
} // namespace quor::test
