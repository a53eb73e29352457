// How ranges of cells go together in a copy, and what a table is pasted to.
#include "rules/CellBlocks.h"

#include <gtest/gtest.h>

using namespace QuorUiCtr;

namespace quor::test
{
namespace
{

using Parts = std::vector<CellPart>;
using Blocks = std::vector<CellArea>;

TEST(JoinRanges, OneRange_IsItself)
{
    EXPECT_EQ(JoinRanges({{2, 1, 4, 3}}), (Parts{{{{2, 4}}, {{1, 3}}}}));
    EXPECT_TRUE(JoinRanges({}).empty());
    EXPECT_TRUE(JoinRanges({{0, 2, -1, 2}}).empty()) << "a column of a grid without rows";
}

TEST(JoinRanges, SameColumns_AreJoinedByTheirRows_InTheOrderOfTheGrid)
{
    EXPECT_EQ(JoinRanges({{7, 0, 7, 2}, {0, 0, 1, 2}, {2, 0, 3, 2}}), (Parts{{{{0, 3}, {7, 7}}, {{0, 2}}}}));
    EXPECT_EQ(JoinRanges({{0, 1, 5, 1}, {3, 1, 8, 1}}), (Parts{{{{0, 8}}, {{1, 1}}}}))
        << "no cell comes twice";
}

TEST(JoinRanges, SameRows_AreJoinedByTheirColumns)
{
    EXPECT_EQ(JoinRanges({{1, 4, 2, 5}, {1, 0, 2, 0}}), (Parts{{{{1, 2}}, {{0, 0}, {4, 5}}}}));
}

TEST(JoinRanges, SameSize_StandBelowEachOther_UnlessTheyOverlap)
{
    EXPECT_EQ(JoinRanges({{5, 3, 5, 4}, {0, 0, 0, 1}}), (Parts{{{{0, 0}}, {{0, 1}}}, {{{5, 5}}, {{3, 4}}}}));
    EXPECT_TRUE(JoinRanges({{0, 0, 1, 1}, {1, 1, 2, 2}}).empty());
    EXPECT_TRUE(JoinRanges({{0, 0, 0, 1}, {2, 1, 2, 3}}).empty()) << "other widths in other columns";
    EXPECT_TRUE(JoinRanges({{0, 0, 0, 0}, {2, 1, 3, 1}}).empty()) << "other heights in other rows";
}

TEST(JoinRanges, Counting)
{
    EXPECT_EQ(CountOf({{0, 3}, {7, 7}}), 5);
    EXPECT_EQ(CountOf({}), 0);
}

TEST(PasteBlocks, ARangeThatIsAMultiple_IsFilled)
{
    EXPECT_EQ(PasteBlocks(1, 1, {{2, 2, 5, 3}}), (Blocks{{2, 2, 5, 3}}));
    EXPECT_EQ(PasteBlocks(2, 1, {{0, 0, 3, 2}}), (Blocks{{0, 0, 3, 2}}));
}

TEST(PasteBlocks, OtherRanges_AreTheCorner)
{
    EXPECT_EQ(PasteBlocks(3, 2, {{4, 1, 4, 1}}), (Blocks{{4, 1, 6, 2}}));
    EXPECT_EQ(PasteBlocks(2, 3, {{0, 0, 4, 1}}), (Blocks{{0, 0, 1, 2}}));
    EXPECT_EQ(PasteBlocks(1, 3, {{0, 0, 4, 0}}), (Blocks{{0, 0, 4, 2}})) << "each direction for itself";
}

TEST(PasteBlocks, SeveralRanges_AreAllFilled_OrNone)
{
    EXPECT_EQ(PasteBlocks(1, 2, {{0, 0, 1, 1}, {5, 2, 5, 5}}), (Blocks{{0, 0, 1, 1}, {5, 2, 5, 5}}));
    EXPECT_TRUE(PasteBlocks(1, 2, {{0, 0, 1, 1}, {5, 2, 5, 4}}).empty());
}

} // namespace
} // namespace quor::test
