// The memory behind the lists: when they allocate, and the places a long list remembers.
#include "tests/collections/ListText.h"

#include "grid/collections/DualList.h"
#include "grid/collections/NodeStore.h"
#include "grid/collections/PDList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <random>
#include <set>
#include <vector>

using namespace QuorUiCtr;

#ifndef _DEBUG
// Every allocation of the test program is counted (kept out of line, where the compiler need not pair them);
// the checked build has the guarding allocator instead, and its lists allocate each node.
namespace
{
long allocations = 0;
long liveBlocks = 0;
bool failing = false;
} // namespace

[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    void* block = failing ? nullptr : std::malloc(size);
    allocations += block != nullptr;
    liveBlocks += block != nullptr;
    return block;
}

[[gnu::noinline]] void* operator new(std::size_t size)
{
    if (void* block = operator new(size, std::nothrow))
        return block;
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* block) noexcept
{
    liveBlocks -= block != nullptr;
    std::free(block);
}

[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept
{
    operator delete(block);
}

namespace
{

TEST(ListMemory, EmptyLists_AllocateNothing)
{
    const long before = allocations;
    PDList<long> pointers;
    List<long> list;
    list.MoveTo(3);
    list.Del();
    list.Clear();
    list.Find(3);
    pointers.Sort(true);
    EXPECT_EQ(allocations, before);
}

TEST(ListMemory, Nodes_ComeInBlocks)
{
    const long before = allocations;
    DualList<long> list;
    for (long i = 0; i < 100; ++i)
        list.Append(i);
    EXPECT_LE(allocations - before, 5);
    for (long i = 100; i < 10000; ++i)
        list.Append(i);
    EXPECT_LE(allocations - before, 30);
}

TEST(ListMemory, ReservedElements_NeedNoFurtherAllocation)
{
    DualList<long> list;
    list.Append(1);
    list.Reserve(1000);
    const long before = allocations;
    for (long i = 1; i < 1000; ++i)
        list.Append(i);
    EXPECT_EQ(allocations, before);
    list.Append(1000);
    EXPECT_EQ(allocations, before + 1);
}

TEST(ListMemory, RemovedNodes_AreUsedAgain)
{
    DualList<long> list;
    for (long i = 0; i < 1000; ++i)
        list.Append(i);
    const long before = allocations;
    for (long i = 0; i < 10000; ++i)
    {
        list.MoveTo(i * 7 % 900);
        list.Del();
        list.Insert(i * 13 % 900, i);
    }
    EXPECT_LE(allocations, before + 5); // for the remembered places
    EXPECT_EQ(list.GetNum(), 1000);
}

TEST(ListMemory, ListThatGetsEmpty_FreesItsMemory)
{
    const long before = liveBlocks;
    DualList<long> list;
    for (int way = 0; way < 3; ++way)
    {
        for (long i = 0; i < 2000; ++i)
            list.Append(i);
        list.MoveTo(1000);
        EXPECT_GT(liveBlocks, before);
        if (way == 0)
            list.Clear();
        else if (way == 1)
            list.RemoveRange(0, 2000);
        else
            for (list.MoveToLast(); !list.IsOut();)
                list.Del();
        EXPECT_EQ(liveBlocks, before) << way;
    }
}

TEST(ListMemory, DestroyedLists_FreeTheirMemory)
{
    const long before = liveBlocks;
    {
        List<long> list;
        list.Grow(5000);
        DualList<long> copy;
        copy.CopyFrom(list);
        copy.MoveTo(2500);
        copy.Reserve(9000);
    }
    EXPECT_EQ(liveBlocks, before);
}

TEST(ListMemory, FailedAllocation_LeavesTheListAsItWas)
{
    DualList<long> list;
    Fill(list, {1, 2, 3, 4});
    list.MoveTo(1);
    failing = true;
    bool insertFailed = false, growFailed = false;
    try
    {
        list.Insert(5);
    }
    catch (const std::bad_alloc&)
    {
        insertFailed = true;
    }
    try
    {
        list.Grow(9);
    }
    catch (const std::bad_alloc&)
    {
        growFailed = true;
    }
    failing = false;
    EXPECT_TRUE(insertFailed);
    EXPECT_TRUE(growFailed);
    EXPECT_EQ(Show(list), "1 2 3 4 | cur 1");
    list.Append(5);
    EXPECT_EQ(Show(list), "1 2 3 4 5 | cur 4");
}

TEST(ListMemory, FailedAllocation_OfRememberedPlaces_OnlyCostsTime)
{
    DualList<long> list;
    for (long i = 0; i < 5000; ++i)
        list.Append(i);
    failing = true;
    bool right = true;
    for (long i : {2500L, 1000L, 4000L, 700L, 3000L, 2000L})
        right = right && list[i] == i;
    failing = false;
    EXPECT_TRUE(right);
}

TEST(NodeStore, Slots_AreDistinctAlignedAndKeepWhatIsWritten)
{
    Detail::NodeStore store;
    std::vector<void*> slots;
    std::mt19937 random(5);
    for (int step = 0; step < 5000; ++step)
    {
        if (step % 1000 == 0)
            store.Reserve(slots.size() + 100, 24);
        if (slots.empty() || random() % 3 != 0)
        {
            slots.push_back(store.Take(24));
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(slots.back()) % alignof(void*), 0u);
            std::memset(slots.back(), 0xAB, 24);
        }
        else
        {
            std::swap(slots[random() % slots.size()], slots.back());
            store.Give(slots.back());
            slots.pop_back();
        }
    }
    std::set<std::uintptr_t> starts;
    for (void* slot : slots)
    {
        EXPECT_EQ(*static_cast<std::uint64_t*>(slot), 0xABABABABABABABABu);
        starts.insert(reinterpret_cast<std::uintptr_t>(slot));
    }
    ASSERT_EQ(starts.size(), slots.size());
    for (auto start = starts.begin(), next = std::next(start); next != starts.end(); ++start, ++next)
        EXPECT_GE(*next - *start, 24u);
}

} // namespace
#endif

namespace
{

// Positions far from all others, before and behind changes of the structure.
template <class AnyList> void CheckEveryWhere(AnyList& list, const std::vector<long>& expected)
{
    ASSERT_EQ(list.GetNum(), static_cast<long>(expected.size()));
    const long n = list.GetNum();
    for (long step = 0, i = n / 2; step < 300; ++step, i = (i * 31 + 17) % n)
        ASSERT_EQ(list[i], expected[static_cast<std::size_t>(i)]) << i;
}

template <class AnyList> class LongList : public testing::Test
{
};
using BothLists = testing::Types<List<long>, DualList<long>>;
TYPED_TEST_SUITE(LongList, BothLists);

TYPED_TEST(LongList, ChangesOfTheStructure_NeverLeaveAWrongPlaceBehind)
{
    TypeParam list;
    std::vector<long> expected;
    for (long i = 0; i < 5000; ++i)
    {
        list.Append(i);
        expected.push_back(i);
    }
    CheckEveryWhere(list, expected);
    for (long at : {0L, 31L, 32L, 33L, 255L, 256L, 2560L, 4990L})
    {
        list.Insert(at, -at);
        expected.insert(expected.begin() + at, -at);
        CheckEveryWhere(list, expected);
        list.MoveTo(at + 1);
        list.Del();
        expected.erase(expected.begin() + at + 1);
        CheckEveryWhere(list, expected);
        list.Move(at, 4000);
        expected.insert(expected.begin() + 4000, expected[static_cast<std::size_t>(at)]);
        expected.erase(expected.begin() + (at < 4000 ? at : at + 1));
        CheckEveryWhere(list, expected);
    }
    list.Sort(false);
    std::sort(expected.rbegin(), expected.rend());
    CheckEveryWhere(list, expected);
    list.Clear();
    list.Append(1);
    CheckEveryWhere(list, {1});
}

} // namespace
