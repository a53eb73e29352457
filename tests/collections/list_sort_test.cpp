// The sorts: the order of a stable insertion sort, with the comparisons of a merge sort.
#include "tests/collections/ListText.h"

#include "grid/collections/DualList.h"
#include "grid/collections/List.h"
#include "grid/collections/PDList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <stdexcept>
#include <vector>

using namespace QuorUiCtr;

namespace
{

// A key to sort by and the place the element had at first.
struct Keyed
{
    long key = 0;
    long number = 0;
    bool operator==(const Keyed&) const = default;
};

long comparisons = 0;

int CompareKeys(const Keyed& first, const Keyed& second)
{
    ++comparisons;
    return first.key > second.key ? 1 : first.key < second.key ? -1 : 0;
}

int CompareLongs(const long& first, const long& second)
{
    ++comparisons;
    return first > second ? 1 : 0;
}

// The plain form of the rule: each element steps back while the element before it sorts after it.
void InsertionSort(std::vector<Keyed>& elements)
{
    for (std::size_t i = 1; i < elements.size(); ++i)
        for (std::size_t k = i; k > 0 && elements[k - 1].key > elements[k].key; --k)
            std::swap(elements[k - 1], elements[k]);
}

std::vector<Keyed> RandomElements(std::mt19937& random, std::size_t number, long keys)
{
    std::vector<Keyed> elements(number);
    long place = 0;
    for (Keyed& element : elements)
        element = {static_cast<long>(random() % static_cast<unsigned long>(keys)), place++};
    return elements;
}

template <class Elements> std::vector<long> NumbersOf(const Elements& elements)
{
    std::vector<long> numbers;
    for (const Keyed& element : elements)
        numbers.push_back(element.number);
    return numbers;
}

double MostComparisons(std::size_t number)
{
    const auto n = static_cast<double>(number);
    return n * std::log2((std::max)(n, 1.0));
}

template <class AnyList> class ListSort : public testing::Test
{
};
using BothLists = testing::Types<List<Keyed>, DualList<Keyed>>;
TYPED_TEST_SUITE(ListSort, BothLists);

TYPED_TEST(ListSort, RandomElements_EndInTheOrderOfAStableInsertionSort)
{
    const unsigned seed = 83;
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    for (std::size_t number : {0u, 1u, 2u, 3u, 5u, 16u, 33u, 100u, 257u, 1000u})
    {
        for (long keys : {1L, 2L, 7L, 1000L})
        {
            std::vector<Keyed> expected = RandomElements(random, number, keys);
            TypeParam list;
            for (const Keyed& element : expected)
                list.Append(element);
            comparisons = 0;
            list.Sort(CompareKeys);
            EXPECT_LE(static_cast<double>(comparisons), MostComparisons(number)) << number << " of " << keys;
            InsertionSort(expected);
            EXPECT_EQ(NumbersOf(list), NumbersOf(expected)) << number << " of " << keys;
        }
    }
}

TYPED_TEST(ListSort, SortedList_BackwardLinksAndEndsAreRight)
{
    std::mt19937 random(7);
    TypeParam list;
    for (const Keyed& element : RandomElements(random, 50, 1000))
        list.Append(element);
    list.Sort(CompareKeys);
    std::vector<long> backward;
    for (list.MoveToLast(); !list.IsOut(); list.MoveToPre())
        backward.push_back(list.Cur().number);
    std::reverse(backward.begin(), backward.end());
    EXPECT_EQ(backward, NumbersOf(list));
    list.Append({-1, 999});
    list.MoveToLast();
    EXPECT_EQ(list.Cur().number, 999);
}

TEST(ListSortCost, ElementsInOrderOrInOppositeOrder_TakeOneComparisonEach)
{
    List<long> ascending, descending, equal;
    for (long i = 0; i < 1000; ++i)
    {
        ascending.Append(i);
        descending.Append(-i);
        equal.Append(3);
    }
    for (List<long>* list : {&ascending, &descending, &equal})
    {
        comparisons = 0;
        list->Sort(CompareLongs);
        EXPECT_EQ(comparisons, 999);
    }
    EXPECT_EQ(descending[0], -999);
    EXPECT_EQ(descending[999], 0);
}

TEST(ListSortCost, FewerThanTwoElements_AreNotCompared)
{
    List<long> list;
    comparisons = 0;
    list.Sort(CompareLongs);
    list.Append(1);
    list.Sort(CompareLongs);
    EXPECT_EQ(comparisons, 0);
    EXPECT_EQ(Show(list), "1 | cur 0");
}

TEST(ListSortRule, OnlyResultsOfAtLeastOne_MoveAnElementBack)
{
    List<long> list;
    Fill(list, {3, 1, 2});
    list.Sort([](const long&, const long&) { return 0; });
    EXPECT_EQ(Show(list), "3 1 2 | cur 2");
    list.Sort([](const long&, const long&) { return -1; });
    EXPECT_EQ(Show(list), "3 1 2 | cur 2");
    list.Sort([](const long& first, const long& second) { return first > second ? 5 : 0; });
    EXPECT_EQ(Show(list), "1 2 3 | cur 1");
}

TEST(ListSortRule, Cursor_StaysOnItsElementOrOut)
{
    DualList<long> list;
    Fill(list, {3, 1, 2});
    list.MoveTo(0);
    list.Sort(CompareLongs);
    EXPECT_EQ(Show(list), "1 2 3 | cur 2");
    EXPECT_EQ(list.Cur(), 3);
    list.MoveTo(-1);
    list.Sort(false);
    EXPECT_EQ(Show(list), "3 2 1 | cur -1");
}

TEST(ListSortRule, SortByDirection_UsesTheElementsOwnOrder)
{
    DualList<long> list;
    Fill(list, {2, 5, 1, 5});
    list.Sort(true);
    EXPECT_EQ(Show(list), "1 2 5 5 | cur 3");
    list.Sort(false);
    EXPECT_EQ(Show(list), "5 5 2 1 | cur 1");
}

TEST(ListSortRule, SortByDirection_WithoutAnOrder_ChangesNothing)
{
    List<Keyed> list;
    list.Append({2, 0});
    list.Append({1, 1});
    list.Sort(true);
    EXPECT_EQ(NumbersOf(list), (std::vector<long>{0, 1}));
}

TEST(ListSortRule, SecondSort_HandsTheContextToTheComparison)
{
    DualList<long> list;
    Fill(list, {15, 3, 27, 8});
    long modulus = 10;
    list.Sort(
        [](const long& first, const long& second, void* context) {
            const long divisor = *static_cast<long*>(context);
            return first % divisor > second % divisor ? 1 : 0;
        },
        &modulus);
    EXPECT_EQ(Show(list), "3 15 27 8 | cur 3");
}

TEST(ListSortRule, ThrowingComparison_LeavesTheListAsItWas)
{
    DualList<long> list;
    Fill(list, {4, 3, 2, 1, 9, 5});
    list.MoveTo(2);
    EXPECT_THROW(list.Sort([](const long& first, const long& second) -> int {
        if (second == 5)
            throw std::runtime_error("no order");
        return first > second ? 1 : 0;
    }),
                 std::runtime_error);
    EXPECT_EQ(Show(list), "4 3 2 1 9 5 | cur 2");
}

TEST(ListSortRule, ContradictoryComparison_KeepsEveryElement)
{
    DualList<long> list;
    for (long i = 0; i < 500; ++i)
        list.Append(i);
    list.Sort([](const long&, const long&) { return 1; });
    list.Sort([](const long&, const long&) {
        static std::mt19937 random(3);
        return static_cast<int>(random() % 2);
    });
    EXPECT_EQ(list.GetNum(), 500);
    list.Sort(true);
    for (long i = 0; i < 500; ++i)
        EXPECT_EQ(list[i], i);
}

// Compares as rows do: with operators that are not const.
struct Row
{
    long key;
    long number;
    bool operator<(Row& other) { return key < other.key; }
    bool operator>(Row& other) { return key > other.key; }
};

TEST(PDListSort, NullSlots_EndUpLastInBothDirections)
{
    PDList<Row> list;
    const std::vector<Row*> slots{nullptr,       new Row{2, 0}, nullptr, new Row{1, 1},
                                  new Row{2, 2}, new Row{1, 3}, nullptr};
    for (Row* row : slots)
        list.Append(row);
    list.MoveTo(3);
    list.Sort(true);
    EXPECT_EQ(ShowObjects(list), "1 3 0 2 - - - | cur 0");
    list.Sort(false);
    EXPECT_EQ(ShowObjects(list), "0 2 1 3 - - - | cur 2");
    list.MoveToPre();
    EXPECT_EQ(list.Cur()->number, 2);
    EXPECT_EQ(list.Append(nullptr), 7);
}

TEST(PDListSort, OnlyNullSlotsOrOneElement_Stay)
{
    PDList<Row> list;
    list.Append(nullptr);
    list.Sort(true);
    list.Append(nullptr);
    list.Sort(false);
    EXPECT_EQ(ShowObjects(list), "- - | cur 1");
}

TEST(PDListSort, RandomRows_EndInTheOrderOfAStableInsertionSortThatSkipsNulls)
{
    const unsigned seed = 83;
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    std::vector<Keyed> elements = RandomElements(random, 700, 40);
    PDList<Row> list;
    for (const Keyed& element : elements)
    {
        list.Append(new Row{element.key, element.number});
        if (random() % 5 == 0)
            list.Append(nullptr);
    }
    const long slots = list.GetNum();
    list.Sort(true);
    InsertionSort(elements);
    std::vector<long> numbers;
    for (Row* row : list)
        if (row != nullptr)
            numbers.push_back(row->number);
    EXPECT_EQ(numbers, NumbersOf(elements));
    EXPECT_EQ(list.GetNum(), slots);
    EXPECT_EQ(list[700], nullptr);
    EXPECT_NE(list[699], nullptr);
}

// Runs whose number is one more than a power of two: the odd one must not take part in every merge.
TEST(DualListSort, RunsOfAnyNumberTakeNoMoreComparisonsThanASortOfSingleElements)
{
    for (const long runs : {2L, 3L, 5L, 9L, 17L, 33L, 129L, 1025L})
    {
        DualList<long> list;
        for (long run = 0; run < runs; ++run)
            for (long i = 0; i < 3; ++i)
                list.Append(i * runs + (runs - run));
        comparisons = 0;
        list.Sort(CompareLongs);
        EXPECT_LE(static_cast<double>(comparisons), MostComparisons(static_cast<std::size_t>(list.GetNum())))
            << runs;
        EXPECT_TRUE(std::is_sorted(list.begin(), list.end()));
    }
}

} // namespace
