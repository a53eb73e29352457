// Steps of grids with several changes, and of rows that go through the row buffer of a tree.
#include "tests/undo/GridSteps.h"

#include "grid/TGTreeGrid.h"
#include "module/QuorTexts.h"

#include <functional>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class MoreSteps : public GridSteps
{
};

TEST_F(MoreSteps, AColumnThatHasItsWidthAgain_IsNoHindrance)
{
    {
        const TGUserAction action(grid, TGActionKind::ResizeCols);
        grid.GetCell(0, 0).SetText(L"1");
        grid.GetCol(1).SetWidth(80);
        grid.GetCol(1).SetWidth(100);
    }
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(Texts(grid), "a b c d");
    EXPECT_EQ(grid.GetCol(1).GetWidth(), 100);
    EXPECT_TRUE(stack.Redo());
    EXPECT_EQ(Texts(grid), "1 b c d");
    EXPECT_EQ(stack.ended, 0);
}

TEST_F(MoreSteps, AWidthOfAProgramAndOneOfAUser_AreOneChange)
{
    {
        const TGUndoTransaction step(stack, L"both");
        grid.GetCol(1).SetWidth(80);
        const TGUserAction action(grid, TGActionKind::ResizeCols);
        grid.GetCol(1).SetWidth(90);
    }
    EXPECT_EQ(stack.GetUndoNum(), 1);
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(grid.GetCol(1).GetWidth(), 100);
    EXPECT_TRUE(stack.Redo());
    EXPECT_EQ(grid.GetCol(1).GetWidth(), 90);
}

TEST_F(MoreSteps, AHiddenColumn_ComesBackHidden)
{
    grid.GetCol(1).SetWidth(0);
    stack.Clear();
    const std::string before = SnapshotOf(grid);
    grid.DelCol(1);
    GoBackAndForth(before);
    EXPECT_EQ(grid.GetColNum(), 3);
    EXPECT_EQ(grid.GetCol(1).GetWidth(), 0);
}

TEST_F(MoreSteps, RowsSortedTwice_GoBackToTheFirstOrder)
{
    const std::string before = SnapshotOf(grid);
    {
        const TGUndoTransaction step(stack, L"sorted");
        grid.AppendKey(0);
        grid.Arrange(false);
        EXPECT_EQ(Texts(grid), "d c b a");
        grid.GetCell(0, 0).SetText(L"b2");
        grid.Arrange(true);
        grid.Arrange(false);
        EXPECT_EQ(Texts(grid), "c b2 b a");
    }
    EXPECT_EQ(stack.GetUndoNum(), 1);
    GoBackAndForth(before);
}

TEST_F(MoreSteps, RowsThatGoTogether_AndThenTheOneBeforeThem)
{
    const std::string before = SnapshotOf(grid);
    {
        const TGUndoTransaction step(stack, L"gone");
        grid.SetRowNum(2);
        grid.DelRow(1);
    }
    EXPECT_EQ(Texts(grid), "a");
    GoBackAndForth(before);
}

TEST_F(MoreSteps, NamesOfSeveralRows_CountThem)
{
    Select({0, 2});
    grid.DoClip();
    grid.UnSelect();
    grid.DoPaste();
    EXPECT_EQ(stack.GetUndoName(0), L"Paste 2 rows");
    EXPECT_EQ(stack.GetUndoName(1), L"Cut 2 rows");
}

// ---- Trees

class MoreTreeSteps : public testing::Test
{
protected:
    MoreTreeSteps() : grid(true)
    {
        AddCols(grid, 2);
        root = &AddRoot(grid, L"a");
        for (const wchar_t* text : {L"x", L"y"})
            AddChild(*root, text);
        AddChild(root->GetChild(1), L"deep");
        root->UnFold();
        root->GetChild(1).UnFold();
        stack.Watch(grid);
    }
    void ExpectRoundTrip(const std::string& before, int steps = 1)
    {
        GoBackAndForth(grid, stack, before, steps);
        for (int i = 0; i < steps; ++i)
            EXPECT_TRUE(stack.Redo());
        EXPECT_EQ(stack.ended, 0);
    }

    ToldGrid grid;
    CountingStack stack;
    TGGridTreeRow* root = nullptr;
};

TEST_F(MoreTreeSteps, TheLastChild_GoesBackToTheEndOfItsLevel)
{
    // At the end of the grid; before a row that is in no tree; before another tree.
    const std::vector<std::function<void()>> followers = {
        [] {},
        [this] { grid.AppendRow(new TGGridRow(grid)); },
        [this] { AddRoot(grid, L"b"); },
    };
    for (std::size_t i = 0; i < followers.size(); ++i)
    {
        SCOPED_TRACE(i);
        followers[i]();
        stack.Clear();
        const std::string before = SnapshotOf(grid);
        grid.MoveRow(2, 1);
        ASSERT_EQ(Texts(grid).substr(0, 10), "a y deep x");
        ExpectRoundTrip(before);
        EXPECT_TRUE(stack.Undo());
    }
}

TEST_F(MoreTreeSteps, APlainRowThatIsPastedIntoATree_ComesBackFromThere)
{
    auto* const plain = new TGGridRow(grid);
    grid.InsertRow(0, plain);
    grid.GetCell(0, 0).SetText(L"plain");
    plain->SetExtendData(new NumberedData);
    stack.Clear();
    const std::string before = SnapshotOf(grid);
    grid.SelectRow(0, true);
    grid.DoClip();
    grid.UnSelect();
    grid.SelectRow(0, true);
    ASSERT_TRUE(grid.DoPasteChild());
    EXPECT_EQ(Texts(grid), "a x y deep plain");
    ExpectRoundTrip(before, 2);
    EXPECT_TRUE(stack.Undo());
    EXPECT_TRUE(stack.Undo());
    EXPECT_EQ(&grid.GetRow(0), plain);
    EXPECT_NE(plain->GetExtendData(), nullptr);
}

TEST_F(MoreTreeSteps, ATreeAndAPlainRowInTheBuffer_ComeBackBoth)
{
    grid.AppendRow(new TGGridRow(grid));
    grid.GetCell(4, 0).SetText(L"plain");
    root->Fold();
    stack.Clear();
    const std::string before = SnapshotOf(grid);
    grid.SelectRow(0, true);
    grid.SelectRow(1, true);
    grid.DoClip();
    EXPECT_EQ(Texts(grid), "");
    ASSERT_EQ(grid.GetRowPaste().GetNum(), 2);
    ExpectRoundTrip(before);
}

TEST_F(MoreTreeSteps, ATreeThatIsCutInAPause_IsNoStep)
{
    {
        const TGUndoPause pause(stack);
        grid.SelectRow(0, true);
        grid.DoClip();
        EXPECT_EQ(Texts(grid), "");
        grid.DoPaste();
    }
    EXPECT_EQ(Texts(grid), "a");
    EXPECT_EQ(grid.GetTreeRow(0).GetChildNum(), 2);
    EXPECT_EQ(stack.GetUndoNum(), 0);
    EXPECT_FALSE(stack.CanUndo());
    EXPECT_EQ(stack.ended, 0);
}

TEST_F(MoreTreeSteps, ARowThatIsUnfoldedTwice_BecauseAPauseHasFoldedIt_IsFoldedInTheEnd)
{
    root->Fold();
    grid.GetCell(0, 1).SetText(L"typed");
    stack.Clear();
    grid.GetCell(0, 1).SetText(L"again");
    root->UnFold();
    {
        const TGUndoPause pause(stack);
        root->Fold();
    }
    root->UnFold();
    EXPECT_TRUE(stack.Undo());
    EXPECT_TRUE(root->IsFold());
    EXPECT_EQ((*root)[1].GetText(), L"typed");
}

} // namespace
} // namespace quor::test
