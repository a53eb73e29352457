// Positions beyond the end, which the plain variant forgives: children and cells that nobody has made stand
// in empty slots then, and all that goes through them steps over.
#include "grid/TGGridExtension.h"
#include "tests/grid/CommandGrid.h"
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

#ifndef _DEBUG

class EmptySlots : public GridWindowTest
{
protected:
    // a with b, which has c, and behind it two slots; d.
    void Make()
    {
        Create(grid);
        AddCols(grid, 3);
        root = &AddRoot(grid, L"a");
        TGGridTreeRow& child = quor::test::AddChild(*root, L"b");
        quor::test::AddChild(child, L"c");
        AddRoot(grid, L"d");
        static_cast<void>(root->GetChild(2));
        ASSERT_EQ(root->GetChildNum(), 3);
    }
    // The first texts below a row, "-" for an empty slot.
    static std::string Below(TGGridTreeRow& row)
    {
        std::string texts;
        for (long i = 0; i < row.GetChildNum(); ++i)
        {
            TGGridTreeRow* const child = &row.GetChild(i);
            texts += (i > 0 ? " " : "") + (child != nullptr ? FirstText(*child) : std::string("-"));
        }
        return texts;
    }

    CommandGrid grid{true};
    TGGridTreeRow* root = nullptr;
};

TEST_F(EmptySlots, OfChildren_AreNotShown)
{
    Make();
    EXPECT_EQ(Below(*root), "b - -");
    root->UnFoldAll();
    EXPECT_EQ(Texts(grid), "a b c d");
    EXPECT_EQ(root->GetOffspringNum(), 4);
    EXPECT_EQ(root->GetRowNum(), 3);
    grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    root->FoldAll();
    EXPECT_EQ(Texts(grid), "a d");
    root->UnFold();
    EXPECT_EQ(Texts(grid), "a b d");
    root->Fold();
    EXPECT_EQ(Texts(grid), "a d");
    EXPECT_TRUE(root->FindAndSel(L"c", 0));
    EXPECT_EQ(Texts(grid), "a b c d");
    EXPECT_FALSE(root->FindAndSel(L"none", 0));
}

TEST_F(EmptySlots, OfChildren_GetNoCells)
{
    Make();
    root->UnFoldAll();
    grid.AppendCol(L"new", 50);
    grid.InsertCol(0, L"first", 50);
    EXPECT_EQ(grid.GetColNum(), 5);
    grid.MoveCol(0, 2);
    grid.DelCol(1);
    EXPECT_EQ(grid.GetColNum(), 4);
    EXPECT_EQ(Texts(grid), "a b c d");
    EXPECT_EQ(Below(*root), "b - -");
}

TEST_F(EmptySlots, OfChildren_AreKeptWhereChildrenComeAndGo)
{
    Make();
    root->UnFoldAll();
    quor::test::AddChild(*root, L"e");
    EXPECT_EQ(Below(*root), "b - - e");
    EXPECT_EQ(Texts(grid), "a b c e d");
    root->InsertChild(2, nullptr);
    EXPECT_EQ(Texts(grid), "a b c  e d");
    root->DelChild(1);
    EXPECT_EQ(Below(*root), "b  - e");
    root->DelChild(0);
    EXPECT_EQ(Texts(grid), "a  e d");
    root->DelChild(0);
    root->DelChild(1);
    // Only a slot is left, which is no child that is seen.
    EXPECT_EQ(Below(*root), "-");
    EXPECT_FALSE(root->IsChildVisible());
    EXPECT_EQ(Texts(grid), "a d");
    root->ClearChild();
    EXPECT_EQ(root->GetChildNum(), 0);
}

TEST_F(EmptySlots, OfChildren_AreNotCopied)
{
    Make();
    root->SetExtendData(new CountedData);
    auto copy = std::make_unique<TGGridTreeRow>(grid);
    *copy = *root;
    EXPECT_EQ(Below(*copy), "b");
    // What is taken over instead of copied goes to the right ones.
    static_cast<void>(copy->GetChild(1));
    quor::test::AddChild(*copy, L"f");
    copy->GetChild(0).SetExtendData(new CountedData);
    copy->GetChild(2).SetExtendData(new CountedData);
    auto target = std::make_unique<TGGridTreeRow>(grid);
    *target << *copy;
    EXPECT_EQ(Below(*target), "b f");
    EXPECT_NE(target->GetChild(0).GetExtendData(), nullptr);
    EXPECT_NE(target->GetChild(1).GetExtendData(), nullptr);
    EXPECT_EQ(copy->GetChild(2).GetExtendData(), nullptr);
    grid.SelectRows({0});
    grid.DoCopy();
    grid.UnSelect();
    grid.DoPaste();
    EXPECT_EQ(Texts(grid), "a d a");
    EXPECT_EQ(Below(grid.GetTreeRow(2)), "b");
}

TEST_F(EmptySlots, OfChildren_StandStillWhenRowsAreSorted)
{
    Make();
    quor::test::AddChild(*root, L"0");
    root->UnFoldAll();
    grid.AppendKey(0);
    grid.Arrange(true);
    EXPECT_EQ(Texts(grid), "a 0 b c d");
    grid.Arrange(false);
    EXPECT_EQ(Texts(grid), "d a b c 0");
    root->ArrangeChild(true);
    EXPECT_EQ(root->GetOffspringNum(), 5);
}

TEST_F(EmptySlots, OfChildren_GoWithTheGrid)
{
    Make();
    root->UnFoldAll();
    grid.SelectAll();
    EXPECT_EQ(grid.GetRowSelNum(), 4);
    grid.UnSelect();
    grid.MoveRow(0, 4);
    EXPECT_EQ(Texts(grid), "d a b c");
    grid.DelRow(1);
    EXPECT_EQ(Texts(grid), "d");
    grid.Clear();
    EXPECT_EQ(grid.GetRowNum(), 0);
}

TEST_F(EmptySlots, OfChildren_InAnExtendedGrid)
{
    class Bare : public TGGridExtension
    {
    } bare;
    Make();
    bare.AttachTo(grid);
    root->UnFoldAll();
    EXPECT_EQ(Texts(grid), "a b c d");
    root->DelChild(2);
    root->DelChild(1);
    EXPECT_EQ(Below(*root), "b");
    static_cast<void>(root->GetChild(1));
    grid.AppendKey(0);
    grid.Arrange(true);
    grid.SelectRows({0});
    grid.DoClip();
    EXPECT_EQ(Texts(grid), "d");
    grid.UnSelect();
    grid.DoPaste();
    EXPECT_EQ(Texts(grid), "d a");
    root = &grid.GetTreeRow(1);
    static_cast<void>(root->GetChild(root->GetChildNum()));
    root->ClearChild();
    EXPECT_EQ(root->GetChildNum(), 0);
}

TEST_F(EmptySlots, OfCells_AreNotDrawnNorCopied)
{
    Create(grid);
    AddCols(grid, 2);
    TGGridTreeRow& first = AddRoot(grid, L"a");
    TGGridTreeRow& second = AddRoot(grid, L"b");
    static_cast<void>(first[3]);
    first.Refresh();
    grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    second = first;
    EXPECT_EQ(FirstText(second), "a");
    static_cast<void>(second[3]);
    first = second;
    grid.AppendKey(0);
    grid.Arrange(false);
    EXPECT_EQ(grid.GetRowNum(), 2);
    EXPECT_EQ(grid.GetColNum(), 2);
    grid.DelRow(0);
    grid.DelRow(0);
    EXPECT_EQ(grid.GetRowNum(), 0);
}

#endif

} // namespace
} // namespace quor::test
