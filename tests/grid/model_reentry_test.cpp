// Hooks that change the structure in the middle of an operation of the model.
//
// What counts is that nothing deleted is used: the checked build's allocator ends the program when it is.
#include "tests/grid/ModelGrid.h"

#include <gtest/gtest.h>

#include <iostream>
#include <random>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

class ModelReentry : public testing::Test
{
protected:
    ModelReentry() { AddCols(grid, 2); }

    // Lets the next report of a changed selection act, once.
    void Once(std::function<void()> act)
    {
        grid.onCurChanged = [this, act = std::move(act)] {
            grid.onCurChanged = nullptr;
            act();
        };
    }

    ModelGrid grid{true};
};

TEST_F(ModelReentry, DelRowOfARowThatTheHookDeletesDeletesItOnce)
{
    AddRows(grid, "abc");
    Once([this] { grid.DelRow(1); });
    grid.DelRow(1);
    EXPECT_EQ(Texts(grid), "a c");
}

TEST_F(ModelReentry, DelRowFollowsItsRowWhenTheHookInsertsAbove)
{
    AddRows(grid, "abc");
    Once([this] { grid.InsertRow(0, nullptr); });
    grid.DelRow(1);
    EXPECT_EQ(Texts(grid), " a c");
}

TEST_F(ModelReentry, ARowThatTheHookSelectsAgainIsNotSelectedAfterItsDeletion)
{
    AddRows(grid, "abc");
    grid.SelectRow(2, true);
    Once([this] { grid.SelectRow(2, true); });
    grid.DelRow(2);
    EXPECT_EQ(Selection(grid), "none | cur -1,-1");
    EXPECT_EQ(grid.GetRowSelNum(), 0);
}

TEST_F(ModelReentry, ClearInsideDelRowEndsIt)
{
    AddRows(grid, "abc");
    Once([this] { grid.Clear(); });
    grid.DelRow(1);
    EXPECT_TRUE(grid.IsEmpty());
}

TEST_F(ModelReentry, DelColLooksAgainAtTheColumnsThatTheHookLeft)
{
    AddRows(grid, "ab");
    Once([this] { grid.SetColNum(1); });
    grid.DelCol(1);
    EXPECT_EQ(grid.GetColNum(), 1);
}

TEST_F(ModelReentry, FoldOfARowThatTheHookDeletesEnds)
{
    TGGridTreeRow& root = AddRoot(grid, L"r");
    AddChild(root, L"x");
    AddChild(root, L"y");
    root.UnFold();
    Once([this] { grid.DelRow(0); });
    root.Fold();
    EXPECT_TRUE(grid.IsEmpty());
}

TEST_F(ModelReentry, FoldGoesOnWithTheRowsThatTheHookLeft)
{
    TGGridTreeRow& root = AddRoot(grid, L"r");
    AddChild(root, L"x");
    AddChild(root, L"y");
    AddRoot(grid, L"s");
    root.UnFold();
    Once([&root, this] {
        root.DelChild(0);
        grid.InsertRow(0, nullptr);
    });
    root.Fold();
    EXPECT_EQ(Texts(grid), " r s");
}

TEST_F(ModelReentry, DelChildOfAChildThatTheHookDeletesDeletesItOnce)
{
    TGGridTreeRow& root = AddRoot(grid, L"r");
    AddChild(root, L"x");
    AddChild(root, L"y");
    root.UnFold();
    Once([&root] { root.DelChild(0); });
    root.DelChild(0);
    EXPECT_EQ(Texts(grid), "r y");
}

TEST_F(ModelReentry, DelChildWhoseParentTheHookDeletesEnds)
{
    TGGridTreeRow& root = AddRoot(grid, L"r");
    AddChild(root, L"x");
    root.UnFold();
    Once([this] { grid.Clear(); });
    root.DelChild(0);
    EXPECT_TRUE(grid.IsEmpty());
}

TEST_F(ModelReentry, DelRowExOfARowThatTheHookDeletesEnds)
{
    TGGridTreeRow& root = AddRoot(grid, L"r");
    AddChild(root, L"x");
    root.UnFold();
    Once([this] { grid.Clear(); });
    grid.DelRowEx(0);
    EXPECT_TRUE(grid.IsEmpty());
}

TEST_F(ModelReentry, ClearChildOfARowThatTheHookDeletesEnds)
{
    TGGridTreeRow& root = AddRoot(grid, L"r");
    AddChild(root, L"x");
    root.UnFold();
    Once([this] { grid.Clear(); });
    root.ClearChild();
    EXPECT_TRUE(grid.IsEmpty());
}

TEST_F(ModelReentry, FindAndSelOfARowThatTheHookDeletesStillAnswers)
{
    AddRows(grid, "abc");
    Once([this] { grid.DelRow(1); });
    EXPECT_TRUE(grid.FindAndSel(L"b", 0));
    EXPECT_EQ(Texts(grid), "a c");
    EXPECT_FALSE(grid.IsRowSelected());
}

TEST_F(ModelReentry, FoldAllAndAssignmentOfARowThatTheHookDeletesEnd)
{
    TGGridTreeRow source(grid);
    AddChild(source, L"s");
    TGGridTreeRow& root = AddRoot(grid, L"r");
    AddChild(root, L"x");
    root.UnFoldAll();
    Once([this] { grid.Clear(); });
    root.FoldAll();
    EXPECT_TRUE(grid.IsEmpty());

    TGGridTreeRow& other = AddRoot(grid, L"o");
    AddChild(other, L"x");
    other.UnFold();
    Once([this] { grid.Clear(); });
    other = source;
    EXPECT_TRUE(grid.IsEmpty());
}

// The parent of a row that is still shown has been hidden by then.
TEST_F(ModelReentry, UnFoldInsideAFold_ShowsEachRowOnce)
{
    TGGridTreeRow& root = AddRoot(grid, L"r");
    AddChild(AddChild(root, L"x"), L"g");
    root.UnFoldAll();
    int calls = 0;
    std::string inside;
    grid.onCurChanged = [&] {
        if (++calls != 2)
            return;
        root.UnFold();
        inside = Texts(grid);
    };
    root.Fold();
    EXPECT_EQ("r x g", inside);
    EXPECT_EQ("r", Texts(grid));
}

// ---- Random operations inside random operations

class ReentryFuzzer
{
public:
    explicit ReentryFuzzer(unsigned seed) : random(seed)
    {
        AddCols(grid, 3);
        grid.onCurChanged = [this] {
            if (depth < 3 && Below(4) == 0)
                Step();
        };
    }

    ~ReentryFuzzer() { grid.onCurChanged = nullptr; }

    void Step()
    {
        ++depth;
        const long dice = Below(20);
        if (grid.IsEmpty() || dice < 4)
            grid.InsertRow(Below(grid.GetRowNum() + 1), nullptr);
        else if (dice < 12)
            TreeStep();
        else
            OtherStep();
        --depth;
    }

    // The row list holds every shown row once, at its index.
    void Check()
    {
        for (long i = 0; i < grid.GetRowNum(); ++i)
        {
            TGGridTreeRow& row = grid.GetTreeRow(i);
            ASSERT_EQ(row.GetIndex(), i);
            ASSERT_EQ(Narrow(row[0].GetText()), "");
            if (row.IsChildRow())
            {
                ASSERT_TRUE(row.GetParent().IsParentRow());
            }
        }
        List<TGGridRow*> selected;
        grid.GetSel(selected);
        ASSERT_EQ(selected.GetNum(), grid.GetRowSelNum());
    }

private:
    long Below(long limit) { return std::uniform_int_distribution<long>(0, limit - 1)(random); }

    void TreeStep()
    {
        TGGridTreeRow* row = &grid.GetTreeRow(Below(grid.GetRowNum()));
        if (row->IsParentRow() && Below(3) == 0)
            row = &row->GetChild(Below(row->GetChildNum()));
        const long dice = Below(12);
        if (dice < 4 && row->RootRow().GetOffspringNum() < 12)
            row->InsertChild(Below(row->GetChildNum() + 1), nullptr);
        else if (dice < 6)
            row->UnFold();
        else if (dice < 8)
            row->Fold();
        else if (dice == 8)
            row->UnFoldAll();
        else if (dice == 9)
            row->FoldAll();
        else if (dice == 10 && row->IsParentRow())
            row->DelChild(Below(row->GetChildNum()));
        else
            row->FindAndSel(Below(2) == 0 ? L"" : L"none", 0);
    }

    void OtherStep()
    {
        const long row = Below(grid.GetRowNum());
        switch (Below(12))
        {
        case 0:
            return grid.DelRow(row);
        case 1:
            return grid.DelRowEx(row);
        case 2:
            return grid.GetTreeRow(row).ClearChild();
        case 3:
            return Below(10) == 0 ? grid.Clear() : grid.UnSelect();
        case 4:
            return grid.SetRowNum(Below(20));
        case 5:
            return grid.SelectAll();
        case 6:
            return grid.SelectCol(Below(3), true);
        case 7:
            grid.InsertCol(Below(3), L"", 0);
            return grid.DelCol(Below(3));
        case 8:
            return Below(2) == 0 ? grid.MoveRow(row, Below(grid.GetRowNum() + 1)) : grid.UnSelect();
        default:
            return grid.SelectRow(row, Below(3) != 0);
        }
    }

    std::mt19937 random;
    ModelGrid grid{true};
    int depth = 0;
};

TEST(ModelReentryFuzz, RandomOperationsInsideOperationsKeepTheRowsConsistent)
{
#ifdef _DEBUG
    const int steps = 5000;
#else
    const int steps = 200000;
#endif
    const char* wanted = std::getenv("QUOR_SEED");
    const unsigned seed =
        wanted != nullptr ? static_cast<unsigned>(std::atol(wanted)) : std::random_device{}();
    std::cout << "seed " << seed << '\n';
    ReentryFuzzer fuzzer(seed);
    for (int step = 0; step < steps; ++step)
    {
        fuzzer.Step();
        fuzzer.Check();
        if (testing::Test::HasFailure())
            return;
    }
}

} // namespace
} // namespace quor::test
