// Folding and unfolding: what the grid shows, what is remembered, what happens to selection and cursor.
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// a(b(c d) e) f(g), everything folded.
class TreeFold : public testing::Test
{
protected:
    TreeFold()
    {
        AddCols(grid, 1);
        a = &AddRoot(grid, L"a");
        b = &AddChild(*a, L"b");
        c = &AddChild(*b, L"c");
        d = &AddChild(*b, L"d");
        e = &AddChild(*a, L"e");
        f = &AddRoot(grid, L"f");
        g = &AddChild(*f, L"g");
    }

    ModelGrid grid{true};
    TGGridTreeRow* a;
    TGGridTreeRow* b;
    TGGridTreeRow* c;
    TGGridTreeRow* d;
    TGGridTreeRow* e;
    TGGridTreeRow* f;
    TGGridTreeRow* g;
};

TEST_F(TreeFold, UnFoldShowsTheChildrenBelowTheRow)
{
    a->UnFold();
    EXPECT_EQ(Texts(grid), "a b e f");
    EXPECT_FALSE(a->IsFold());
    EXPECT_TRUE(a->IsChildVisible());
    EXPECT_TRUE(b->IsVisible());
    EXPECT_FALSE(c->IsVisible());
}

TEST_F(TreeFold, UnFoldOfAHiddenRowOnlyMarksItForWhenItsParentUnfolds)
{
    b->UnFold();
    EXPECT_FALSE(b->IsFold());
    EXPECT_EQ(Texts(grid), "a f");
    a->UnFold();
    EXPECT_EQ(Texts(grid), "a b c d e f");
}

TEST_F(TreeFold, UnFoldTwiceShowsTheChildrenOnce)
{
    a->UnFold();
    a->UnFold();
    EXPECT_EQ(Texts(grid), "a b e f");
}

TEST_F(TreeFold, FoldHidesTheWholeOffspringAndRemembersItsFlags)
{
    a->UnFold();
    b->UnFold();
    EXPECT_EQ(Texts(grid), "a b c d e f");
    a->Fold();
    EXPECT_EQ(Texts(grid), "a f");
    EXPECT_FALSE(b->IsFold());
    for (TGGridTreeRow* hidden : {b, c, d, e})
        EXPECT_EQ(hidden->GetIndex(), -1);
    a->UnFold();
    EXPECT_EQ(Texts(grid), "a b c d e f");
}

TEST_F(TreeFold, FoldOfAHiddenParentClearsItsFlag)
{
    b->UnFold();
    b->Fold();
    EXPECT_TRUE(b->IsFold());
    a->UnFold();
    EXPECT_EQ(Texts(grid), "a b e f");
}

TEST_F(TreeFold, FoldOfALeafClearsTheFlagAndChangesNothingElse)
{
    a->UnFold();
    grid.SelectRow(3, true);
    grid.curChanges = 0;
    e->UnFold();
    EXPECT_FALSE(e->IsFold());
    e->Fold();
    EXPECT_TRUE(e->IsFold());
    EXPECT_EQ(Texts(grid), "a b e f");
    EXPECT_EQ(Selection(grid), "rows 3 | cur 3,-1");
    EXPECT_EQ(grid.curChanges, 0);
}

TEST_F(TreeFold, FoldAllAndUnFoldAllReachEveryDescendant)
{
    a->UnFoldAll();
    EXPECT_EQ(Texts(grid), "a b c d e f");
    for (TGGridTreeRow* row : {a, b, c, d, e})
        EXPECT_FALSE(row->IsFold());
    a->FoldAll();
    EXPECT_EQ(Texts(grid), "a f");
    for (TGGridTreeRow* row : {a, b, c, d, e})
        EXPECT_TRUE(row->IsFold());
}

TEST_F(TreeFold, UnFoldAllOfAHiddenRowOnlyMarks)
{
    b->UnFoldAll();
    EXPECT_EQ(Texts(grid), "a f");
    a->UnFold();
    EXPECT_EQ(Texts(grid), "a b c d e f");
}

TEST_F(TreeFold, UnFoldAllKeepsTheRowsThatAreShownSelected)
{
    a->UnFold();
    grid.SelectRow(2, true);
    grid.SelectRow(3, true);
    a->UnFoldAll();
    EXPECT_EQ(Texts(grid), "a b c d e f");
    EXPECT_EQ(Selection(grid), "rows 4 5 | cur -1,-1");
}

TEST_F(TreeFold, TheRowCursorKeepsItsIndex)
{
    grid.MoveTo(1);
    a->UnFold();
    EXPECT_EQ(grid.GetCur(), 1);
    a->Fold();
    EXPECT_EQ(grid.GetCur(), 1);
    grid.MoveTo(-1);
    a->UnFoldAll();
    EXPECT_EQ(grid.GetCur(), -1);
    grid.MoveTo(5);
    a->FoldAll();
    EXPECT_EQ(grid.GetCur(), -1);
}

TEST_F(TreeFold, EveryRowCanBeFoldedInALoopOverTheRows)
{
    a->UnFoldAll();
    f->UnFoldAll();
    EXPECT_EQ(Texts(grid), "a b c d e f g");
    for (grid.MoveToFirst(); !grid.IsOut(); grid.MoveToNext())
        if (grid.CurRow().IsParentRow())
            grid.CurTreeRow().Fold();
    EXPECT_EQ(Texts(grid), "a f");
}

TEST_F(TreeFold, UnFoldShiftsTheSelectionBelow)
{
    grid.SelectRow(0, true);
    grid.SelectRow(1, true);
    grid.curChanges = 0;
    a->UnFold();
    EXPECT_EQ(Selection(grid), "rows 0 3 | cur -1,-1");
    EXPECT_EQ(grid.curChanges, 0);
}

TEST_F(TreeFold, FoldDeselectsEachHiddenRowAndShiftsTheSelectionBelow)
{
    a->UnFoldAll();
    for (const long i : {0L, 2L, 4L, 5L})
        grid.SelectRow(i, true);
    grid.curChanges = 0;
    a->Fold();
    EXPECT_EQ(Selection(grid), "rows 0 1 | cur -1,-1");
    EXPECT_EQ(grid.curChanges, 4);
}

TEST_F(TreeFold, ClearOfATreeDeletesEveryRowOnce)
{
    a->UnFoldAll();
    for (TGGridTreeRow* row : {a, c, e, g})
        row->SetExtendData(new CountedData);
    grid.SelectRow(3, true);
    grid.curChanges = 0;
    grid.Clear();
    EXPECT_EQ(Texts(grid), "");
    EXPECT_EQ(CountedData::alive, 0);
    EXPECT_EQ(grid.curChanges, 0);
    EXPECT_EQ(Selection(grid), "none | cur 3,-1");
}

TEST_F(TreeFold, AnUnfoldedTreeDiesWithItsGrid)
{
    {
        ModelGrid tree(true);
        AddCols(tree, 1);
        TGGridTreeRow& root = AddRoot(tree, L"r");
        AddChild(AddChild(root, L"s"), L"t").SetExtendData(new CountedData);
        root.UnFoldAll();
        EXPECT_EQ(Texts(tree), "r s t");
    }
    EXPECT_EQ(CountedData::alive, 0);
}

TEST_F(TreeFold, DelRowOfAShownParentTakesItsShownOffspringAlong)
{
    a->UnFoldAll();
    d->SetExtendData(new CountedData);
    grid.SelectRow(5, true);
    grid.DelRow(0);
    EXPECT_EQ(Texts(grid), "f");
    EXPECT_EQ(Selection(grid), "rows 0 | cur 0,-1");
    EXPECT_EQ(CountedData::alive, 0);
}

TEST_F(TreeFold, DelRowOfAShownChildTakesItFromItsParent)
{
    a->UnFold();
    grid.DelRow(1);
    EXPECT_EQ(Texts(grid), "a e f");
    EXPECT_EQ(a->GetChildNum(), 1);
}

TEST_F(TreeFold, SetRowNumDeletesShownRowsOfTheTreeFromTheEnd)
{
    a->UnFoldAll();
    grid.SetRowNum(3);
    EXPECT_EQ(Texts(grid), "a b c");
    EXPECT_EQ(b->GetChildNum(), 1);
}

// ---- Rows whose flag does not tell what is shown

TEST_F(TreeFold, FoldHidesChildrenThatAreShownWhateverTheFlagSays)
{
    a->UnFold();
    a->SetUnFoldFlag(false);
    a->Fold();
    EXPECT_EQ(Texts(grid), "a f");
}

TEST_F(TreeFold, AChildAddedToARowMarkedUnfoldedWithHiddenChildrenCanBeFoldedAndUnfolded)
{
    a->SetUnFoldFlag(true);
    AddChild(*a, L"x");
    EXPECT_EQ(Texts(grid), "a x f");
    a->UnFold();
    EXPECT_EQ(Texts(grid), "a b e x f");
    a->Fold();
    EXPECT_EQ(Texts(grid), "a f");
}

// ---- Sorting children

TEST_F(TreeFold, ArrangeChildSortsEveryLevelAndLeavesTheGridUntilItIsShownAgain)
{
    grid.AppendKey(0);
    a->UnFoldAll();
    a->ArrangeChild(false);
    EXPECT_EQ(Texts(grid), "a b c d e f");
    a->Fold();
    a->UnFold();
    EXPECT_EQ(Texts(grid), "a e b d c f");
    a->ArrangeChild(true);
    a->Fold();
    a->UnFold();
    EXPECT_EQ(Texts(grid), "a b c d e f");
}

TEST_F(TreeFold, ArrangeChildOfALeafDoesNothing)
{
    grid.AppendKey(0);
    g->ArrangeChild(true);
    EXPECT_EQ(g->GetChildNum(), 0);
}

// ---- Search

TEST_F(TreeFold, FindAndSelOfARowSearchesItsDescendantsOnlyAndUnfoldsTheWay)
{
    EXPECT_FALSE(a->FindAndSel(L"a", 0));
    EXPECT_FALSE(a->FindAndSel(L"D", 0));
    EXPECT_EQ(Texts(grid), "a f");
    grid.SelectRow(1, true);
    EXPECT_TRUE(a->FindAndSel(L"d", 0));
    EXPECT_EQ(Texts(grid), "a b c d e f");
    EXPECT_EQ(Selection(grid), "rows 3 | cur 3,-1");
    EXPECT_FALSE(a->IsFold());
    EXPECT_FALSE(b->IsFold());
}

TEST_F(TreeFold, FindAndSelOfARowFindsTheFirstInDepthFirstOrder)
{
    (*e)[0].SetText(L"d");
    EXPECT_TRUE(a->FindAndSel(L"d", 0));
    EXPECT_EQ(Selection(grid), "rows 3 | cur 3,-1");
}

TEST_F(TreeFold, FindAndSelOfTheGridSearchesRootRowsAndTheirDescendants)
{
    EXPECT_TRUE(grid.FindAndSel(L"g", 0));
    EXPECT_EQ(Texts(grid), "a f g");
    EXPECT_EQ(Selection(grid), "rows 2 | cur 2,-1");
    EXPECT_TRUE(grid.FindAndSel(L"f", 0));
    EXPECT_EQ(Selection(grid), "rows 1 | cur 1,-1");
    EXPECT_FALSE(grid.FindAndSel(L"h", 0));
    EXPECT_EQ(Selection(grid), "rows 1 | cur 1,-1");
}

} // namespace
} // namespace quor::test
