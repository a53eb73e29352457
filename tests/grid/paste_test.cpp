// Copy, cut and paste through the row buffer.
#include "tests/grid/CommandGrid.h"
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class Paste : public testing::Test
{
protected:
    Paste() : tree(true)
    {
        for (CommandGrid* grid : {&plain, &tree})
            grid->SetColNum(2);
        plain.AddRows("abcdef");
        // a b(c(x) d) e with b unfolded and c folded.
        tree.AddRows("abe");
        TGGridTreeRow& c = tree.AddChild(tree.GetTreeRow(1), 'c');
        tree.AddChild(c, 'x');
        tree.AddChild(tree.GetTreeRow(1), 'd');
        tree.GetTreeRow(1).UnFold();
    }

    CommandGrid plain;
    CommandGrid tree;
};

TEST_F(Paste, CopyInAReadOnlyGrid_FillsTheBufferThatPasteLeavesAlone)
{
    plain.SetReadOnly(true);
    plain.SelectRows({1, 3});
    EXPECT_TRUE(plain.DoCopy());
    EXPECT_EQ(plain.Buffer(), "b d");
    plain.UnSelect();
    EXPECT_FALSE(plain.DoPaste());
    EXPECT_EQ(plain.Buffer(), "b d");
    EXPECT_EQ(plain.TakeText(), "OnBeforeCopy | OnEndCopy");
}

TEST_F(Paste, CutRows_KeepTheirOrderOnTheWay)
{
    plain.SelectRows({2, 5});
    EXPECT_TRUE(plain.DoClip());
    EXPECT_EQ(plain.Buffer(), "c f");
    EXPECT_EQ(plain.Rows(), "a b d e");
    plain.SelectRows({0});
    EXPECT_TRUE(plain.DoPaste());
    EXPECT_EQ(plain.Rows(), "c* f* a b d e");
}

TEST_F(Paste, CutPlainRows_AreTheRowsThemselves)
{
    TGGridRow* const row = &plain.GetRow(2);
    row->SetExtendData(new TGRowData);
    plain.SelectRows({2});
    plain.DoClip();
    EXPECT_EQ(plain.GetRowPaste()[0], row);
    plain.DoPaste();
    EXPECT_EQ(&plain.GetRow(5), row);
    EXPECT_NE(row->GetExtendData(), nullptr);
}

TEST_F(Paste, AtTheEnd_TurnsTheOrderAround)
{
    plain.SelectRows({0, 2, 4});
    plain.DoClip();
    EXPECT_TRUE(plain.DoPaste());
    EXPECT_EQ(plain.Rows(), "b d f e* c* a*");
}

TEST_F(Paste, ASecondTime_FindsTheBufferEmpty)
{
    plain.SelectRows({0});
    plain.DoCopy();
    EXPECT_TRUE(plain.DoPaste());
    EXPECT_EQ(plain.Buffer(), "");
    plain.TakeLog();
    EXPECT_FALSE(plain.DoPaste());
    EXPECT_EQ(plain.TakeText(), "");
}

TEST_F(Paste, RepeatedCopies_ReplaceTheBuffer)
{
    plain.SelectRows({0, 1});
    plain.DoCopy();
    plain.SelectRows({4});
    plain.DoCopy();
    EXPECT_EQ(plain.Buffer(), "e");
    plain.UnSelect();
    EXPECT_TRUE(plain.DoCopy());
    EXPECT_EQ(plain.Buffer(), "");
}

TEST_F(Paste, RefusedCopy_KeepsTheBuffer)
{
    plain.SelectRows({0, 1});
    plain.DoCopy();
    plain.vetoes = {"OnBeforeCopy"};
    plain.SelectRows({4});
    EXPECT_FALSE(plain.DoCopy());
    EXPECT_EQ(plain.Buffer(), "a b");
}

// A plain row tells twice: when it enters the buffer and when its slot goes.
TEST_F(Paste, CutRows_TellOfTheChangedSelectionEachTime)
{
    plain.SelectRows({1, 2});
    plain.logsCurrent = true;
    plain.DoClip();
    EXPECT_EQ(plain.TakeText(), "OnBeforeClip | OnCurChanged -1,-1 | OnCurChanged -1,-1 | OnCurChanged -1,-1 "
                                "| OnCurChanged -1,-1 | OnEndClip | OnDataChanged");
    tree.SelectRows({0, 4});
    tree.logsCurrent = true;
    tree.DoClip();
    EXPECT_EQ(tree.TakeText(),
              "OnBeforeClip | OnCurChanged -1,-1 | OnCurChanged -1,-1 | OnEndClip | OnDataChanged");
}

TEST_F(Paste, RowsThatAHookSelectsDuringACut_StaySelected)
{
    plain.SelectRows({1, 2});
    plain.actions["OnCurChanged"] = [&] {
        plain.actions.clear();
        plain.SelectRow(3, true);
        plain.SelectRow(2, true);
    };
    plain.DoClip();
    EXPECT_EQ(plain.Rows(), "a d* e f");
    EXPECT_EQ(plain.GetRowSelNum(), 1);
}

TEST_F(Paste, CopyOfAFoldedParent_TakesTheChildrenAlong)
{
    tree.SelectRows({2});
    tree.DoCopy();
    EXPECT_EQ(tree.Buffer(), "c(x)");
    tree.GetTreeRow(1).Fold();
    tree.SelectRows({1});
    tree.DoCopy();
    EXPECT_EQ(tree.Buffer(), "b(c(x) d)");
    EXPECT_TRUE(static_cast<TGGridTreeRow*>(tree.GetRowPaste()[0])->IsFold());
}

TEST_F(Paste, CopyOfAnUnfoldedParent_TakesTheRowAlone)
{
    tree.SelectRows({1});
    tree.DoCopy();
    EXPECT_EQ(tree.Buffer(), "b");
    tree.SelectRows({1, 3});
    tree.DoCopy();
    EXPECT_EQ(tree.Buffer(), "b d");
}

TEST_F(Paste, CutOfAnUnfoldedParent_FoldsItAndTakesTheOffspring)
{
    tree.SelectRows({0, 1, 3});
    tree.DoClip();
    EXPECT_EQ(tree.Buffer(), "a b(c(x) d)");
    EXPECT_EQ(tree.Rows(), "e");
}

TEST_F(Paste, CutOfAChild_LeavesItsParentAndBringsItsHostDataAlong)
{
    CountedData::alive = 0;
    tree.GetTreeRow(2).SetExtendData(new CountedData);
    tree.GetTreeRow(2).GetChild(0).SetExtendData(new CountedData);
    tree.SelectRows({2});
    tree.DoClip();
    EXPECT_EQ(tree.Rows(), "a b(d) e");
    EXPECT_EQ(CountedData::alive, 2);
    tree.SelectRows({0});
    tree.DoPaste();
    EXPECT_EQ(tree.Rows(), "c*(x) a b(d) e");
    EXPECT_EQ(CountedData::alive, 2);
    EXPECT_NE(tree.GetTreeRow(0).GetChild(0).GetExtendData(), nullptr);
    tree.Clear();
    EXPECT_EQ(CountedData::alive, 0);
}

TEST_F(Paste, BeforeAChild_MakesSiblings)
{
    tree.SelectRows({0, 4});
    tree.DoCopy();
    tree.SelectRows({3});
    EXPECT_TRUE(tree.DoPaste());
    EXPECT_EQ(tree.Rows(), "a b(c(x) a* e* d) e");
    EXPECT_EQ(tree.GetTreeRow(3).Parent(), &tree.GetTreeRow(1));
}

TEST_F(Paste, AsChildren_UnfoldsTheParentAndKeepsTheOrder)
{
    tree.SelectRows({0, 4});
    tree.DoCopy();
    tree.SelectRows({2});
    EXPECT_TRUE(tree.DoPasteChild());
    EXPECT_EQ(tree.Rows(), "a b(c(x a* e*) d) e");
    EXPECT_FALSE(tree.GetTreeRow(2).IsFold());
    EXPECT_EQ(tree.Buffer(), "");
    EXPECT_FALSE(tree.DoPasteChild());
}

TEST_F(Paste, AsChildren_NeedsExactlyOneSelectedRow)
{
    tree.SelectRows({0});
    tree.DoCopy();
    tree.UnSelect();
    EXPECT_FALSE(tree.DoPasteChild());
    tree.SelectRows({0, 4});
    EXPECT_FALSE(tree.DoPasteChild());
    EXPECT_EQ(tree.Buffer(), "a");
}

TEST_F(Paste, Buffer_IsDeletedWithTheGrid)
{
    CountedData::alive = 0;
    {
        CommandGrid grid;
        grid.SetColNum(1);
        grid.AddRows("ab");
        grid.GetRow(1).SetExtendData(new CountedData);
        grid.SelectRows({1});
        grid.DoClip();
        EXPECT_EQ(CountedData::alive, 1);
    }
    EXPECT_EQ(CountedData::alive, 0);
}

TEST_F(Paste, ManyRows_ScrollsToTheFirstAndThenToTheLast)
{
    HostWindow host;
    CommandGrid grid;
    ASSERT_TRUE(grid.Create(CRect(0, 0, 300, 200), WS_CHILD | WS_VISIBLE, &host));
    grid.SetColNum(1);
    grid.SetRowNum(200);
    grid.SelectRows({100, 101, 102});
    grid.DoCopy();
    grid.SelectRows({3});
    grid.MoveView(0, 100000);
    ASSERT_TRUE(grid.DoPaste());
    EXPECT_EQ(Selection(grid), "rows 3 4 5 | cur -1,-1");
    EXPECT_EQ(grid.VScroll(), 3 * grid.GetRowHeight());
}

// A host that forbids everything but looks on must find valid rows at every step.
TEST_F(Paste, HooksSeeValidIndicesAtEveryStep)
{
    const auto check = [](CommandGrid& grid) {
        return [&grid] {
            grid.Rows();
            for (long k = 0; k < grid.GetRowSelNum(); ++k)
                EXPECT_LT(grid.GetSelRow(k).GetIndex(), grid.GetRowNum());
        };
    };
    plain.actions["OnCurChanged"] = check(plain);
    plain.SelectRows({1, 2, 4});
    plain.DoClip();
    plain.SelectRows({0});
    plain.DoPaste();
    EXPECT_EQ(plain.Rows(), "b* c* e* a d f");
    tree.actions["OnCurChanged"] = check(tree);
    tree.SelectRows({2, 3});
    tree.DoClip();
    tree.SelectRows({1});
    tree.DoPasteChild();
    EXPECT_EQ(tree.Rows(), "a b(c*(x) d*) e");
}

} // namespace
} // namespace quor::test
