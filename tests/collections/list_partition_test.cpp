// Searches of ordered lists, with and without the cursor, and inserting where an element belongs.
#include "tests/collections/ListText.h"

#include "grid/collections/DualList.h"
#include "grid/collections/List.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

using namespace QuorUiCtr;

namespace
{

auto Below(long limit)
{
    return [limit](long element) { return element < limit; };
}

template <class AnyList> class ListPartition : public testing::Test
{
protected:
    AnyList list;
};
using BothLists = testing::Types<List<long>, DualList<long>>;
TYPED_TEST_SUITE(ListPartition, BothLists);

TYPED_TEST(ListPartition, MoveToPartition_StopsAtTheFirstElementThatDoesNotPrecede)
{
    Fill(this->list, {10, 20, 20, 30});
    const std::vector<std::vector<long>> cases{{5, 0}, {10, 0}, {11, 1}, {20, 1}, {21, 3}, {30, 3}, {31, -1}};
    for (const std::vector<long>& each : cases)
    {
        this->list.MoveToPartition(Below(each[0]));
        EXPECT_EQ(this->list.GetCur(), each[1]) << each[0];
    }
    this->list.Clear();
    this->list.MoveToPartition(Below(5));
    EXPECT_TRUE(this->list.IsOut());
}

TYPED_TEST(ListPartition, FindPartition_LeavesTheCursor)
{
    Fill(this->list, {10, 20, 30});
    this->list.MoveTo(2);
    EXPECT_EQ(*this->list.FindPartition(Below(15)), 20);
    EXPECT_TRUE(this->list.FindPartition(Below(31)) == this->list.end());
    EXPECT_EQ(this->list.GetCur(), 2);
}

TYPED_TEST(ListPartition, ElementsInsertedWhereTheyBelong_AreInOrderInAnyOrderOfInserting)
{
    const long count = 5000;
    std::vector<long> order(count);
    std::generate(order.begin(), order.end(), [i = 0L]() mutable { return i++; });
    std::shuffle(order.begin(), order.end(), std::mt19937(11));
    std::vector<long> inserted;
    for (const long element : order)
    {
        this->list.MoveToPartition(Below(element));
        this->list.Insert(element);
        inserted.insert(std::lower_bound(inserted.begin(), inserted.end(), element), element);
        const long position =
            static_cast<long>(std::lower_bound(inserted.begin(), inserted.end(), element) - inserted.begin());
        ASSERT_EQ(this->list.GetCur(), position);
    }
    EXPECT_TRUE(std::equal(this->list.begin(), this->list.end(), inserted.begin(), inserted.end()));
}

TYPED_TEST(ListPartition, SearchesBetweenChanges_AgreeWithAnOrderedVector)
{
    std::mt19937 random(12);
    std::vector<long> expected;
    for (int step = 0; step < 6000; ++step)
    {
        const long element = static_cast<long>(random() % 4000);
        const auto place = std::lower_bound(expected.begin(), expected.end(), element);
        this->list.MoveToPartition(Below(element));
        ASSERT_EQ(this->list.GetCur(),
                  place == expected.end() ? -1 : static_cast<long>(place - expected.begin()));
        // Elements that are there are removed one time in four, so that the list first grows, then changes.
        if (place != expected.end() && *place == element && random() % 4 == 0)
        {
            expected.erase(place);
            this->list.Del();
        }
        else
        {
            expected.insert(place, element);
            this->list.Insert(element);
        }
    }
    EXPECT_TRUE(std::equal(this->list.begin(), this->list.end(), expected.begin(), expected.end()));
}

} // namespace
