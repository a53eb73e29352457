// The places of a long chain that its position index remembers.
#include "grid/collections/PositionIndex.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <deque>
#include <random>
#include <vector>

using namespace QuorUiCtr;

namespace
{

using Index = Detail::PositionIndex<long>;

// The nodes of a chain without the chain, and what the index must know about them.
class IndexedNodes
{
public:
    explicit IndexedNodes(long number)
    {
        for (long i = 0; i < number; ++i)
            order.push_back(NewNode());
        Link();
        built = index.Build(order.front(), number);
    }

    void Insert(long position, long number)
    {
        const auto at = order.begin() + position;
        std::vector<Index::Node*> added;
        for (long i = 0; i < number; ++i)
            added.push_back(NewNode());
        order.insert(at, added.begin(), added.end());
        Link();
        index.Inserted(position, number, added.front());
    }

    void Remove(long position, long number)
    {
        order.erase(order.begin() + position, order.begin() + position + number);
        Link();
        index.Removed(position, number, position < GetNum() ? At(position) : nullptr);
    }

    // Every place is right and none is further from a position than it may be.
    bool IsRight() const
    {
        bool right = built;
        for (long position = 0; position < GetNum(); ++position)
        {
            const auto before = index.FindNearest(position, false);
            const auto nearest = index.FindNearest(position, true);
            right = right && before.index <= position && before.node == At(before.index) &&
                    nearest.node == At(nearest.index) && position - before.index < Index::LargestChunk &&
                    std::abs(nearest.index - position) <= position - before.index;
        }
        return right;
    }

    long GetNum() const { return static_cast<long>(order.size()); }
    Index::Node* At(long position) const { return order[static_cast<std::size_t>(position)]; }

    Index index;

private:
    Index::Node* NewNode() { return &nodes.emplace_back(Index::Node{nullptr, 0}); }

    // The elements are the positions.
    void Link()
    {
        for (std::size_t i = 0; i < order.size(); ++i)
        {
            order[i]->next = i + 1 < order.size() ? order[i + 1] : nullptr;
            order[i]->element = static_cast<long>(i);
        }
    }

    std::deque<Index::Node> nodes;
    std::vector<Index::Node*> order;
    bool built = false;
};

TEST(PositionIndex, Build_SetsPlacesAllAlong)
{
    for (long number : {1L, 2L, 64L, 65L, 127L, 128L, 129L, 5000L})
    {
        const IndexedNodes nodes(number);
        EXPECT_TRUE(nodes.IsRight()) << number;
        EXPECT_LE(nodes.index.GetChunkNum(), number / 32 + 1);
    }
}

TEST(PositionIndex, ChangesAnywhere_LeaveEveryPlaceRight)
{
    const unsigned seed = 4711;
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    const auto below = [&random](long limit) {
        return static_cast<long>(random() % static_cast<unsigned long>(limit));
    };
    IndexedNodes nodes(600);
    for (int step = 0; step < 3000; ++step)
    {
        // The list grows and shrinks in turns, down to a few elements.
        const bool grows = step / 250 % 2 == 0;
        const long number = 1 + (below(20) == 0 ? below(300) : 0);
        if (grows || number >= nodes.GetNum())
            nodes.Insert(below(nodes.GetNum() + 1), number);
        else
            nodes.Remove(below(nodes.GetNum() - number + 1), number);
        ASSERT_TRUE(step % 5 != 0 || nodes.IsRight()) << step;
    }
    EXPECT_TRUE(nodes.IsRight());
}

TEST(PositionIndex, Shrinking_JoinsTheChunks)
{
    IndexedNodes nodes(5000);
    std::mt19937 random(3);
    while (nodes.GetNum() > 100)
        nodes.Remove(static_cast<long>(random() % static_cast<unsigned long>(nodes.GetNum())), 1);
    EXPECT_TRUE(nodes.IsRight());
    EXPECT_LE(nodes.index.GetChunkNum(), 100 / 16 + 2);
}

TEST(PositionIndex, FindPartition_StandsLessThanAChunkBeforeIt)
{
    const IndexedNodes nodes(1000);
    for (long first : {0L, 1L, 31L, 32L, 33L, 500L, 999L, 1000L})
    {
        const auto place = nodes.index.FindPartition([first](long element) { return element < first; });
        EXPECT_LE(place.index, first);
        EXPECT_LE(first - place.index, Index::LargestChunk) << first;
        EXPECT_EQ(place.node, nodes.At(place.index));
    }
}

TEST(PositionIndex, PaysOff_WhenTheWalksHaveCostAsMuchAsBuilding)
{
    Index index;
    EXPECT_FALSE(index.PaysOff(400, 1000));
    EXPECT_FALSE(index.PaysOff(400, 1000));
    EXPECT_TRUE(index.PaysOff(400, 1000));
    EXPECT_FALSE(index.PaysOff(400, 1000));
}

} // namespace
