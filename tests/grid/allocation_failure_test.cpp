// Operations of the model whose n-th allocation fails, for every n.
#include "tests/grid/FailingOperations.h"
#include "tests/grid/ModelGrid.h"
#include "tests/support/FailingNew.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

bool RunOnModel(const Operation& operation, bool tree, long n, bool strict)
{
    ModelGrid grid(tree);
    FillModel(grid);
    const std::string before = Describe(grid);
    bool thrown = false;
    const bool failed = RunFailing(operation, grid, n, thrown);
    if (thrown && strict)
    {
        EXPECT_EQ(Describe(grid), before);
    }
    ExpectUsable(grid);
    return failed;
}

void FailEach(std::span<const Operation> operations, bool tree, bool strict)
{
    for (const Operation& operation : operations)
    {
        SCOPED_TRACE(operation.name);
        for (long n = 1;; ++n)
        {
            SCOPED_TRACE(n);
            const long live = FailingNew::LiveBlocks();
            const bool failed = RunOnModel(operation, tree, n, strict);
            EXPECT_EQ(FailingNew::LiveBlocks(), live);
            EXPECT_EQ(CountedData::alive, 0);
            if (!failed || testing::Test::HasFailure())
                break;
        }
        if (testing::Test::HasFailure())
            return;
    }
}

TEST(AllocationFailure, ReachesTheLibrary)
{
    ModelGrid grid;
    bool thrown = false;
    EXPECT_TRUE(RunFailing({"", [](TGGrid& g) { g.SetColNum(1); }}, grid, 1, thrown));
    EXPECT_TRUE(thrown);
    EXPECT_EQ(grid.GetColNum(), 0);
}

TEST(AllocationFailure, AStructureOperationOfAPlainGridChangesNothing)
{
    FailEach(StructureOperations, false, true);
}

TEST(AllocationFailure, AStructureOperationOfATreeGridChangesNothing)
{
    FailEach(StructureOperations, true, true);
    FailEach(TreeOperations, true, true);
}

TEST(AllocationFailure, ACommandLosesNothing)
{
    FailEach(Commands, false, false);
    FailEach(Commands, true, false);
}

// Each row is in the grid or in the buffer, whichever step was the last.
void ExpectEveryRow(TGGrid& grid)
{
    const std::string state = Describe(grid);
    for (const char text : std::string(grid.IsTreeGrid() ? "abcdefgh" : "abcd"))
    {
        EXPECT_NE(state.find(std::string("[0") + text + "]"), std::string::npos) << text << " in " << state;
    }
}

TEST(AllocationFailure, ACommandThatStopsBetweenTwoStepsKeepsEveryRow)
{
    for (const Operation& operation : Commands)
    {
        const std::string name = operation.name;
        const bool removes = name.starts_with("DoDelete") || name == "assignment" || name == "transfer";
        for (const bool tree : {false, true})
            for (long n = 1; !removes; ++n)
            {
                SCOPED_TRACE(name + " " + std::to_string(n));
                ModelGrid grid(tree);
                FillModel(grid);
                bool thrown = false;
                const bool failed = RunFailing(operation, grid, n, thrown);
                ExpectEveryRow(grid);
                if (!failed || testing::Test::HasFailure())
                    break;
            }
    }
}

} // namespace
} // namespace quor::test
