// The identifier services of the tree grid.
#include "tests/grid/ItemGrid.h"
#include "tests/support/Rounds.h"

#include <gtest/gtest.h>

#include <climits>
#include <queue>
#include <random>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

TEST(TreeIdentifiers, EmptyGridWithEmptyRowBuffer)
{
    ItemGrid grid;
    EXPECT_EQ(grid.GetAutoId(0), 1);
    EXPECT_EQ(grid.GetAutoId(7), 7);
    EXPECT_EQ(grid.GetAutoId(-3), -3);
    EXPECT_TRUE(grid.IsRightLabel(L"5"));
}

TEST(TreeIdentifiers, AutoId_OfOneHolder_IsKept)
{
    ItemGrid grid;
    grid.Root(L"a", L"4");
    grid.Root(L"b", L"9");
    EXPECT_EQ(grid.GetAutoId(4), 4);
    EXPECT_EQ(grid.GetAutoId(5), 5);
}

TEST(TreeIdentifiers, AutoId_OfTwoHolders_IsOneAboveTheLargest)
{
    ItemGrid grid;
    grid.Root(L"a", L"4");
    grid.Root(L"b", L"9");
    grid.Root(L"c", L"4");
    EXPECT_EQ(grid.GetAutoId(4), 10);
}

TEST(TreeIdentifiers, AutoId_OfZero_IsOneAboveTheLargest)
{
    ItemGrid grid;
    grid.Root(L"a", L"9");
    EXPECT_EQ(grid.GetAutoId(0), 10);
}

TEST(TreeIdentifiers, TextsThatAreNoNumbersCountAsZero)
{
    ItemGrid grid;
    grid.Root(L"a", L"abc");
    grid.Root(L"b", L"-8");
    grid.Root(L"c", L"12 pieces");
    EXPECT_EQ(grid.GetAutoId(0), 13);
    EXPECT_EQ(grid.GetAutoId(-8), -8);
}

TEST(TreeIdentifiers, AutoId_IgnoresGroups)
{
    ItemGrid grid;
    TGGridTreeRow& group = grid.Root(L"g", L"100");
    grid.Child(group, L"a", L"3");
    EXPECT_EQ(grid.GetAutoId(0), 4);
    EXPECT_EQ(grid.GetAutoId(100), 100);
}

TEST(TreeIdentifiers, AutoId_SeesFoldedChildrenAndTheRowBuffer)
{
    ItemGrid grid;
    TGGridTreeRow& group = grid.Root(L"g");
    grid.Child(group, L"a", L"3");
    ASSERT_TRUE(group.IsFold());
    EXPECT_EQ(grid.GetAutoId(0), 4);
    grid.Root(L"b", L"8");
    grid.Select({1});
    ASSERT_TRUE(grid.DoCopy());
    EXPECT_EQ(grid.GetAutoId(8), 9) << "the copy in the buffer holds 8, too";
}

TEST(TreeIdentifiers, AutoId_AboveTheLargestNumberThereIs_IsTheSmallestUnused)
{
    ItemGrid grid;
    grid.Root(L"a", L"2147483647");
    grid.Root(L"b", L"1");
    EXPECT_EQ(grid.GetAutoId(0), 2);
    EXPECT_EQ(grid.GetAutoId(INT_MAX), INT_MAX);
}

TEST(TreeIdentifiers, Services_WithoutAnIdentifierColumn_FindNoIdentifiers)
{
    TGTreeGrid grid(true);
    AddCols(grid, 1);
    grid.AppendRow(nullptr);
    EXPECT_EQ(grid.GetAutoId(0), 1);
    EXPECT_TRUE(grid.IsRightLabel(L"1"));
}

TEST(TreeIdentifiers, RightLabel_RefusesEmptyAndZero)
{
    ItemGrid grid;
    EXPECT_FALSE(grid.IsRightLabel(L""));
    EXPECT_FALSE(grid.IsRightLabel(nullptr));
    EXPECT_FALSE(grid.IsRightLabel(L"0"));
    EXPECT_TRUE(grid.IsRightLabel(L"00"));
}

TEST(TreeIdentifiers, RightLabel_RefusesTheTextOfAnyLeaf)
{
    ItemGrid grid;
    TGGridTreeRow& group = grid.Root(L"g", L"77");
    grid.Child(group, L"a", L"12");
    grid.Root(L"b", L"13x");
    EXPECT_FALSE(grid.IsRightLabel(L"12")) << "a folded child has it";
    EXPECT_FALSE(grid.IsRightLabel(L"13x"));
    EXPECT_TRUE(grid.IsRightLabel(L"13X")) << "case counts";
    EXPECT_TRUE(grid.IsRightLabel(L"012"));
    EXPECT_TRUE(grid.IsRightLabel(L"77")) << "a group's text is no identifier";
}

TEST(TreeIdentifiers, RightLabel_SeesTheRowBuffer)
{
    ItemGrid grid;
    grid.Root(L"a", L"12");
    grid.Select({0});
    ASSERT_TRUE(grid.DoClip());
    ASSERT_TRUE(grid.IsEmpty());
    EXPECT_FALSE(grid.IsRightLabel(L"12"));
}

TEST(TreeIdentifiers, Services_LeaveTheRowCursorPastTheLastRow)
{
    ItemGrid grid;
    grid.Root(L"a", L"1");
    grid.MoveToFirst();
    grid.GetAutoId(1);
    EXPECT_TRUE(grid.IsOut());
}

// ---- The rule for many rows, against the rule step by step

void CollectLeaves(TGGridRow& row, std::vector<TGGridRow*>& leaves)
{
    if (!row.IsParentRow())
    {
        leaves.push_back(&row);
        return;
    }
    auto& group = static_cast<TGGridTreeRow&>(row);
    for (long i = 0; i < group.GetChildNum(); ++i)
        CollectLeaves(group.GetChild(i), leaves);
}

int ValidIdStepByStep(const std::vector<TGGridRow*>& leaves, int id)
{
    int maximum = 0;
    int holders = 0;
    for (TGGridRow* leaf : leaves)
    {
        const int value = _wtoi((*leaf)[1].GetText());
        maximum = (std::max)(maximum, value);
        holders += value == id;
    }
    return holders >= 2 || id == 0 ? maximum + 1 : id;
}

class RandomTree
{
public:
    explicit RandomTree(unsigned seed) : random(seed) {}

    long Below(long limit) { return static_cast<long>(random() % static_cast<unsigned long>(limit)); }

    void Grow(ItemGrid& grid, TGGridTreeRow& parent, int depth)
    {
        for (long number = Below(4); number > 0; --number)
        {
            parent.AppendChild(nullptr);
            TGGridTreeRow& child = parent.GetLastChild();
            child[1].GetText().Format(L"%d", static_cast<int>(Below(8)));
            if (depth > 0)
                Grow(grid, child, depth - 1);
        }
    }

private:
    std::mt19937 random;
};

std::vector<std::string> IdTexts(const std::vector<TGGridRow*>& leaves)
{
    std::vector<std::string> texts;
    for (TGGridRow* leaf : leaves)
        texts.push_back(Narrow((*leaf)[1].GetText()));
    return texts;
}

TEST(TreeIdentifiers, PastedLeavesGetWhatTheRuleGivesStepByStep)
{
    for (unsigned seed = 1; seed <= static_cast<unsigned>(Rounds(300)); ++seed)
    {
        RandomTree tree(seed);
        ItemGrid grid;
        std::vector<TGGridRow*> all;
        for (long roots = 2 + tree.Below(5); roots > 0; --roots)
            tree.Grow(grid, grid.Root(L"r", L"0"), 2);
        for (long i = 0; i < grid.GetRowNum(); ++i)
            CollectLeaves(grid.GetRow(i), all);

        const long selected = 1 + tree.Below(grid.GetRowNum() - 1);
        grid.UnSelect();
        std::queue<TGGridRow*> pasted;
        for (long i = 0; i < selected; ++i)
        {
            grid.SelectRow(i, true);
            pasted.push(&grid.GetRow(i));
        }
        std::vector<std::string> expected;
        const std::vector<std::string> before = IdTexts(all);
        while (!pasted.empty())
        {
            TGGridRow* row = pasted.front();
            pasted.pop();
            if (!row->IsParentRow())
            {
                (*row)[1].GetText().Format(L"%d", ValidIdStepByStep(all, _wtoi((*row)[1].GetText())));
                continue;
            }
            auto* group = static_cast<TGGridTreeRow*>(row);
            for (long i = 0; i < group->GetChildNum(); ++i)
                pasted.push(&group->GetChild(i));
        }
        expected = IdTexts(all);
        for (size_t i = 0; i < all.size(); ++i)
            (*all[i])[1].SetText(CString(before[i].c_str()));
        grid.OnEndPaste();
        ASSERT_EQ(IdTexts(all), expected) << "seed " << seed;
    }
}

} // namespace
} // namespace quor::test
