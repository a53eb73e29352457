// What the clipboard extension does to a grid is one step each.
#include "grid/extras/TGCellCursor.h"
#include "grid/extras/TGClipboard.h"
#include "grid/TGTreeGrid.h"
#include "tests/undo/GridSteps.h"

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class ClipboardSteps : public GridSteps
{
protected:
    // Takes the only step back and makes it again.
    void ExpectStep(const std::string& before, const wchar_t* name)
    {
        EXPECT_EQ(stack.GetUndoNum(), 1);
        EXPECT_EQ(stack.GetUndoName(), name);
        GoBackAndForth(before);
        EXPECT_EQ(stack.ended, 0);
        stack.Clear();
    }
    void Select(long top, long left, long bottom, long right)
    {
        grid.UnSelect();
        cursor.SelectRange({top, left, bottom, right});
    }

    TGCellCursor cursor{grid};
    TGClipboard clipboard{grid};
    const std::string first = SnapshotOf(grid);
};

TEST_F(ClipboardSteps, APaste_WithTheRowsThatItAdds)
{
    Select(3, 0, 3, 0);
    EXPECT_EQ(clipboard.PasteText(L"1\t2\n3\t4\n5\t6").GetRowsInserted(), 2);
    EXPECT_EQ(grid.GetRowNum(), 6);
    ExpectStep(first, L"Paste");
}

TEST_F(ClipboardSteps, APaste_WithWhatHooksWriteMeanwhile)
{
    grid.onDataChanged = [this] { grid.GetCell(0, 2).SetText(L"total"); };
    grid.GetRow(1)[1].SetReadOnly(true);
    Select(0, 0, 0, 0);
    EXPECT_EQ(clipboard.PasteText(L"1\t2\n3\t4").GetDone(), 3);
    grid.onDataChanged = nullptr;
    EXPECT_EQ(Cells(grid, grid.GetRow(0)), "1|2|total");
    ExpectStep(first, L"Paste");
}

TEST_F(ClipboardSteps, APasteOfTheSameTexts_IsNone)
{
    Select(0, 0, 0, 0);
    EXPECT_EQ(clipboard.PasteText(L"a\nb").GetDone(), 2);
    EXPECT_EQ(stack.GetUndoNum(), 0);
}

TEST_F(ClipboardSteps, Fillings)
{
    Select(0, 0, 3, 0);
    clipboard.FillDown();
    ExpectStep(first, L"Fill");
    Select(0, 0, 3, 2);
    clipboard.FillWith(L"x");
    ExpectStep(first, L"Fill");
    grid.GetCell(0, 1).SetText(L"Item 1");
    stack.Clear();
    const std::string before = SnapshotOf(grid);
    Select(0, 1, 3, 1);
    EXPECT_EQ(clipboard.FillSeries(TGClipboard::Direction::Down).GetDone(), 3);
    ExpectStep(before, L"Fill");
}

TEST_F(ClipboardSteps, EmptyAndCutCells)
{
    Select(1, 0, 2, 0);
    clipboard.Empty();
    ExpectStep(first, L"Empty 2 cells");
    Select(1, 0, 2, 0);
    clipboard.Cut();
    ExpectStep(first, L"Cut");
}

TEST_F(ClipboardSteps, CutRows_WithTheirHostData)
{
    GridSteps::Select({0, 2});
    EXPECT_EQ(clipboard.Cut().GetRowsRemoved(), 2);
    EXPECT_EQ(Texts(grid), "b d");
    ExpectStep(first, L"Cut");
}

TEST(ClipboardTreeSteps, PastedRows_WithTheirStructureAndIdentifiers)
{
    TGTreeGrid grid(true);
    AddCols(grid, 2);
    AddChild(AddRoot(grid, L"a"), L"x");
    AddRoot(grid, L"b");
    grid.GetCell(0, 1).SetText(L"1");
    grid.GetTreeRow(0).GetChild(0)[1].SetText(L"2");
    grid.GetCell(1, 1).SetText(L"3");
    TGClipboard clipboard(grid);
    CountingStack stack;
    stack.Watch(grid);
    const std::string before = SnapshotOf(grid);
    grid.SelectRow(0, true);
    clipboard.Copy();
    grid.UnSelect();
    EXPECT_EQ(clipboard.Paste().GetRowsInserted(), 2);
    const std::string after = SnapshotOf(grid);
    EXPECT_NE(after, before);
    EXPECT_EQ(stack.GetUndoNum(), 1);
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_TRUE(stack.Undo());
        EXPECT_EQ(SnapshotOf(grid), before);
        EXPECT_TRUE(stack.Redo());
        EXPECT_EQ(SnapshotOf(grid), after);
    }
    EXPECT_EQ(stack.ended, 0);
}

} // namespace
} // namespace quor::test
