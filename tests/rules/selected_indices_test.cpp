// The index lists behind the selections.
#include "rules/SelectedIndices.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <set>
#include <string>

namespace
{

using namespace QuorUiCtr;

std::string Text(DualList<long>& entries)
{
    std::string text;
    for (const long entry : entries)
        text += (text.empty() ? "" : " ") + std::to_string(entry);
    return text;
}

TEST(SelectedIndices, AreAscendingAndThereOnce)
{
    DualList<long> entries;
    for (const long index : {5L, 2L, 9L})
        EXPECT_TRUE(SelectedIndices::Add(entries, index));
    EXPECT_FALSE(SelectedIndices::Add(entries, 5));
    EXPECT_EQ("2 5 9", Text(entries));
    EXPECT_TRUE(SelectedIndices::Remove(entries, 5));
    EXPECT_FALSE(SelectedIndices::Remove(entries, 5));
    EXPECT_EQ("2 9", Text(entries));
}

TEST(SelectedIndices, LowerBound_IsThePositionOfTheFirstThatIsNotBelow)
{
    DualList<long> entries;
    for (const long index : {2L, 5L, 9L})
        SelectedIndices::Add(entries, index);
    EXPECT_EQ(0, SelectedIndices::LowerBound(entries, 0));
    EXPECT_EQ(1, SelectedIndices::LowerBound(entries, 5));
    EXPECT_EQ(2, SelectedIndices::LowerBound(entries, 6));
    EXPECT_EQ(3, SelectedIndices::LowerBound(entries, 10));
    EXPECT_EQ(9, *SelectedIndices::FindNotBelow(entries, 6));
    EXPECT_EQ(entries.end(), SelectedIndices::FindNotBelow(entries, 10));
}

TEST(SelectedIndices, Shift_MovesTheEntriesFromAnIndexOn)
{
    DualList<long> entries;
    for (const long index : {2L, 5L, 9L})
        SelectedIndices::Add(entries, index);
    SelectedIndices::Shift(entries, entries, 5, 3);
    EXPECT_EQ("2 8 12", Text(entries));
    SelectedIndices::Shift(entries, entries, 8, -1);
    EXPECT_EQ("2 7 11", Text(entries));
}

TEST(SelectedIndices, DoWhatASetDoes)
{
    const unsigned seed = 7;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    DualList<long> entries;
    std::set<long> reference;
    for (int i = 0; i < 5000; ++i)
    {
        const long index = static_cast<long>(random() % 60);
        if (random() % 2 == 0)
            ASSERT_EQ(reference.insert(index).second, SelectedIndices::Add(entries, index)) << i;
        else
            ASSERT_EQ(reference.erase(index) != 0, SelectedIndices::Remove(entries, index)) << i;
        const long asked = static_cast<long>(random() % 60);
        ASSERT_EQ(reference.count(asked) != 0, SelectedIndices::Contains(entries, asked)) << i;
        ASSERT_EQ(std::distance(reference.begin(), reference.lower_bound(asked)),
                  SelectedIndices::LowerBound(entries, asked))
            << i;
    }
    std::string expected;
    for (const long index : reference)
        expected += (expected.empty() ? "" : " ") + std::to_string(index);
    EXPECT_EQ(expected, Text(entries));
}

} // namespace
