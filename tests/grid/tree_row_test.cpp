// Tree rows: navigation, counts, children, copies, the plus or minus box.
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

// a(b(c d) e) f, everything folded.
class TreeRow : public testing::Test
{
protected:
    TreeRow()
    {
        AddCols(grid, 2);
        a = &AddRoot(grid, L"a");
        b = &AddChild(*a, L"b");
        c = &AddChild(*b, L"c");
        d = &AddChild(*b, L"d");
        e = &AddChild(*a, L"e");
        f = &AddRoot(grid, L"f");
    }

    ModelGrid grid{true};
    TGGridTreeRow* a;
    TGGridTreeRow* b;
    TGGridTreeRow* c;
    TGGridTreeRow* d;
    TGGridTreeRow* e;
    TGGridTreeRow* f;
};

TEST_F(TreeRow, ANewRootRowIsFoldedAndHidden)
{
    TGGridTreeRow row(grid);
    EXPECT_EQ(row.Parent(), nullptr);
    EXPECT_TRUE(row.IsRootRow());
    EXPECT_FALSE(row.IsChildRow());
    EXPECT_FALSE(row.IsParentRow());
    EXPECT_TRUE(row.IsTreeRow());
    EXPECT_TRUE(row.IsFold());
    EXPECT_FALSE(row.IsVisible());
    EXPECT_FALSE(row.IsChildVisible());
    EXPECT_EQ(Cells(grid, row), "|");
}

TEST_F(TreeRow, ARowMadeForAParentIsNotEnteredInItsChildren)
{
    TGGridTreeRow row(f);
    EXPECT_EQ(row.Parent(), f);
    EXPECT_EQ(&row.GetParent(), f);
    EXPECT_TRUE(row.IsChildRow());
    EXPECT_EQ(f->GetChildNum(), 0);
    row.SetParent(nullptr);
    EXPECT_TRUE(row.IsRootRow());
}

TEST_F(TreeRow, DepthAndRootFollowTheParents)
{
    EXPECT_EQ(a->GetParentNum(), 0);
    EXPECT_EQ(b->GetParentNum(), 1);
    EXPECT_EQ(c->GetParentNum(), 2);
    EXPECT_EQ(&c->RootRow(), a);
    EXPECT_EQ(&a->RootRow(), a);
}

TEST_F(TreeRow, ChildrenAreReachedByPositionAndCursor)
{
    EXPECT_EQ(&a->GetChild(1), e);
    EXPECT_EQ(&a->GetLastChild(), e);
    EXPECT_EQ(&a->CurChild(), e);
    a->MoveToPre();
    EXPECT_EQ(&a->CurChild(), b);
    a->MoveToNext();
    a->MoveToNext();
    EXPECT_TRUE(a->IsOut());
    a->MoveToFirst();
    EXPECT_EQ(&a->CurChild(), b);
    f->MoveToFirst();
    EXPECT_TRUE(f->IsOut());
}

TEST_F(TreeRow, CountingAndSearchingKeepTheChildCursor)
{
    a->GetChild(1);
    const auto indexOf = &OpenTreeRow::GetChildIndex;
    EXPECT_EQ((a->*indexOf)(e), 1);
    EXPECT_EQ((a->*indexOf)(c), -1);
    a->GetOffspringNum();
    a->GetRowNum();
    (a->*(&OpenTreeRow::GetGlobalChildIndex))(1);
    a->FindAndSel(L"none", 0);
    EXPECT_EQ(&a->CurChild(), e);
}

TEST_F(TreeRow, OffspringIsCountedFoldedOrNotAndRowsOnlyWhenUnfolded)
{
    EXPECT_EQ(a->GetOffspringNum(), 4);
    EXPECT_EQ(a->GetRowNum(), 1);
    b->UnFold();
    EXPECT_EQ(a->GetRowNum(), 1);
    a->UnFold();
    EXPECT_EQ(a->GetRowNum(), 5);
    b->Fold();
    EXPECT_EQ(a->GetRowNum(), 3);
    EXPECT_EQ(a->GetOffspringNum(), 4);
    EXPECT_EQ(f->GetRowNum(), 1);
    EXPECT_EQ(f->GetOffspringNum(), 0);
}

TEST_F(TreeRow, AFoldedParentOfTenDescendantsTakesUpOneRow)
{
    for (int i = 0; i < 10; ++i)
        AddChild(*f, L"x");
    EXPECT_EQ(f->GetRowNum(), 1);
    EXPECT_EQ(f->GetOffspringNum(), 10);
}

TEST_F(TreeRow, TheGridIndexOfAChildCountsTheRowsOfItsSiblingsBefore)
{
    const auto indexOf = &OpenTreeRow::GetGlobalChildIndex;
    EXPECT_EQ((a->*indexOf)(0), 1);
    EXPECT_EQ((a->*indexOf)(1), 2);
    b->SetUnFoldFlag(true);
    EXPECT_EQ((a->*indexOf)(1), 4);
    EXPECT_EQ((a->*indexOf)(2), 5);
}

// ---- Inserting and deleting children

TEST_F(TreeRow, AChildInsertedIntoAFoldedRowStaysHidden)
{
    auto* x = new TGGridTreeRow(grid);
    (*x)[0].SetText(L"x");
    a->InsertChild(1, x);
    EXPECT_EQ(x->Parent(), a);
    EXPECT_EQ(x->GetIndex(), -1);
    EXPECT_EQ(Texts(grid), "a f");
    a->UnFold();
    EXPECT_EQ(Texts(grid), "a b x e f");
}

TEST_F(TreeRow, AChildInsertedIntoAShownUnfoldedRowIsShownAtItsPlace)
{
    b->UnFold();
    a->UnFold();
    auto* x = new TGGridTreeRow(grid);
    (*x)[0].SetText(L"x");
    a->InsertChild(1, x);
    EXPECT_EQ(Texts(grid), "a b c d x e f");
    a->AppendChild(nullptr);
    EXPECT_EQ(Texts(grid), "a b c d x e  f");
    EXPECT_EQ(Cells(grid, a->GetLastChild()), "|");
    a->InsertChild(0, nullptr);
    EXPECT_EQ(Texts(grid), "a  b c d x e  f");
}

TEST_F(TreeRow, AnUnfoldedChildIsInsertedWithItsOffspring)
{
    a->UnFold();
    auto* x = new TGGridTreeRow(grid);
    (*x)[0].SetText(L"x");
    AddChild(*x, L"y");
    x->SetUnFoldFlag(true);
    a->InsertChild(1, x);
    EXPECT_EQ(Texts(grid), "a b x y e f");
}

TEST_F(TreeRow, InsertingAChildShiftsTheSelectionBelow)
{
    a->UnFold();
    grid.SelectRow(1, true);
    grid.SelectRow(3, true);
    AddChild(*b, L"hidden");
    EXPECT_EQ(Selection(grid), "rows 1 3 | cur -1,-1");
    a->InsertChild(1, nullptr);
    EXPECT_EQ(Selection(grid), "rows 1 4 | cur -1,-1");
}

TEST_F(TreeRow, TheFirstChildOfARowMarkedUnfoldedIsShown)
{
    f->SetUnFoldFlag(true);
    AddChild(*f, L"x");
    AddChild(*f, L"y");
    EXPECT_EQ(Texts(grid), "a f x y");
}

TEST_F(TreeRow, DelChildRemovesAShownChildWithItsOffspring)
{
    a->UnFoldAll();
    d->SetExtendData(new CountedData);
    a->DelChild(0);
    EXPECT_EQ(Texts(grid), "a e f");
    EXPECT_EQ(a->GetChildNum(), 1);
    EXPECT_EQ(CountedData::alive, 0);
    EXPECT_FALSE(a->IsFold());
    a->DelChild(0);
    EXPECT_EQ(Texts(grid), "a f");
    EXPECT_FALSE(a->IsParentRow());
}

TEST_F(TreeRow, DelChildRemovesAHiddenChild)
{
    a->DelChild(0);
    EXPECT_EQ(Texts(grid), "a f");
    a->UnFold();
    EXPECT_EQ(Texts(grid), "a e f");
}

TEST_F(TreeRow, DelChildDeselectsWhatItRemovesAndShiftsTheRest)
{
    a->UnFoldAll();
    for (const long i : {1L, 3L, 4L, 5L})
        grid.SelectRow(i, true);
    a->DelChild(0);
    EXPECT_EQ(Selection(grid), "rows 1 2 | cur -1,-1");
}

TEST_F(TreeRow, ClearChildHidesAndDeletesAllChildren)
{
    a->UnFoldAll();
    c->SetExtendData(new CountedData);
    a->ClearChild();
    EXPECT_EQ(Texts(grid), "a f");
    EXPECT_EQ(a->GetChildNum(), 0);
    EXPECT_EQ(CountedData::alive, 0);
    EXPECT_TRUE(a->IsFold());
    f->SetUnFoldFlag(true);
    f->ClearChild();
    EXPECT_FALSE(f->IsFold());
}

TEST_F(TreeRow, DelRowExRemovesChildrenThroughTheirParentAndParentsFolded)
{
    a->UnFoldAll();
    grid.DelRowEx(1);
    EXPECT_EQ(Texts(grid), "a e f");
    grid.DelRowEx(0);
    EXPECT_EQ(Texts(grid), "f");
    grid.DelRowEx(0);
    EXPECT_EQ(Texts(grid), "");
}

// ---- Columns

TEST_F(TreeRow, ColumnsReachEveryRowOfTheTreeOnce)
{
    b->UnFold();
    a->UnFold();
    (*d)[1].SetText(L"1");
    grid.InsertCol(1, L"", 0);
    EXPECT_EQ(Cells(grid, *d), "d||1");
    grid.AppendCol(L"", 0);
    grid.MoveCol(0, 3);
    EXPECT_EQ(Cells(grid, *d), "|1|d|");
    grid.DelCol(0);
    EXPECT_EQ(Cells(grid, *d), "1|d|");
    a->Fold();
    grid.DelCol(2);
    EXPECT_EQ(Cells(grid, *c), "|c");
    EXPECT_EQ(Cells(grid, *a), "|a");
}

// ---- Copies

TEST_F(TreeRow, AssigningATreeRowAddsCopiesOfTheChildrenBehindThoseOfTheTarget)
{
    (*b)[1].SetText(L"1");
    b->SetUnFoldFlag(true);
    AddChild(*f, L"x");
    *f = *a;
    EXPECT_EQ(Narrow((*f)[0].GetText()), "a");
    f->UnFold();
    EXPECT_EQ(Texts(grid), "a a x b c d e");
    EXPECT_EQ(Cells(grid, f->GetChild(1)), "b|1");
    EXPECT_NE(&f->GetChild(1), b);
    EXPECT_EQ(&f->GetChild(1).GetChild(0).GetParent(), &f->GetChild(1));
    EXPECT_EQ(a->GetOffspringNum(), 4);
}

TEST_F(TreeRow, AssigningAnUnfoldedRowShowsTheChildrenOfAShownTarget)
{
    AddChild(*f, L"x");
    a->UnFold();
    *f = *a;
    EXPECT_EQ(Texts(grid), "a b e a x b e");
    a->Fold();
    *f = *a;
    EXPECT_EQ(Texts(grid), "a a");
    EXPECT_EQ(f->GetChildNum(), 5);
}

TEST_F(TreeRow, AssigningARowToItselfDoublesItsChildren)
{
    *b = *b;
    b->SetUnFoldFlag(true);
    a->UnFold();
    EXPECT_EQ(Texts(grid), "a b c d c d e f");
}

TEST_F(TreeRow, AssigningARowToItsOwnDescendantEnds)
{
    *c = *a;
    EXPECT_EQ(c->GetOffspringNum(), 4);
    EXPECT_EQ(a->GetOffspringNum(), 8);
}

TEST_F(TreeRow, AssigningLeavesHostDataAndTransferMovesItAtEveryLevel)
{
    a->SetExtendData(new CountedData);
    auto* deep = new CountedData;
    d->SetExtendData(deep);
    TGGridTreeRow copy(grid);
    copy = *a;
    EXPECT_EQ(copy.GetExtendData(), nullptr);
    EXPECT_EQ(CountedData::alive, 2);

    f->SetExtendData(new CountedData);
    *f << *a;
    EXPECT_EQ(CountedData::alive, 2);
    EXPECT_EQ(a->GetExtendData(), nullptr);
    EXPECT_EQ(d->GetExtendData(), nullptr);
    EXPECT_NE(f->GetExtendData(), nullptr);
    EXPECT_EQ(f->GetChild(0).GetChild(1).GetExtendData(), deep);
    EXPECT_EQ(a->GetOffspringNum(), 4);
    EXPECT_EQ(Narrow((*a)[0].GetText()), "a");
}

TEST_F(TreeRow, TransferringARowToItselfKeepsItsHostData)
{
    auto* data = new CountedData;
    f->SetExtendData(data);
    *f << *f;
    EXPECT_EQ(f->GetExtendData(), data);
    EXPECT_EQ(CountedData::alive, 1);
}

// ---- The plus or minus box

TEST_F(TreeRow, TheBoxOfARootRowIsInsetByTwoAndChildrenAreIndented)
{
    grid.SetRowSpace(static_cast<int>(20 - grid.GetRowHeight() + grid.GetRowSpace()));
    ASSERT_EQ(grid.GetRowHeight(), 20);
    grid.InsertRow(0, nullptr);
    grid.InsertRow(0, nullptr);
    grid.InsertRow(0, nullptr);
    a->UnFold();
    const auto quadOf = &OpenTreeRow::GetTreeQuad;
    CRect box;
    (a->*quadOf)(box);
    EXPECT_EQ(box, CRect(2, 62, 19, 79));
    (b->*quadOf)(box);
    EXPECT_EQ(box, CRect(19, 82, 36, 99));
    (f->*quadOf)(box);
    EXPECT_EQ(box, CRect(19, 82, 36, 99));

    CPoint inside(2, 62);
    CPoint right(19, 62);
    CPoint below(2, 79);
    CPoint last(18, 78);
    EXPECT_TRUE(a->IsPtInTreeQuad(inside));
    EXPECT_TRUE(a->IsPtInTreeQuad(last));
    EXPECT_FALSE(a->IsPtInTreeQuad(right));
    EXPECT_FALSE(a->IsPtInTreeQuad(below));
    CPoint origin(0, 0);
    EXPECT_FALSE(f->IsPtInTreeQuad(origin));
}

TEST_F(TreeRow, TheBoxStandsInTheFirstColumn)
{
    grid.GetCol(0);
    const auto quadOf = &OpenTreeRow::GetTreeQuad;
    CRect before;
    (a->*quadOf)(before);
    TGGridCol& first = grid.GetCol(0);
    (first.*(&OpenCol::Move))(5);
    CRect after;
    (a->*quadOf)(after);
    EXPECT_EQ(after, before + CPoint(5, 0));
}

} // namespace
} // namespace quor::test
