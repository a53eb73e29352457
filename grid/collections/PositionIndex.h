// PositionIndex: remembered places in a long chain, from which positional access and searches start.
#pragma once

#include "grid/collections/ChainNode.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <span>
#include <vector>

namespace QuorUiCtr::Detail
{

// Divides a chain into chunks of about 32 to 64 nodes and knows the first node of each and its position.
//
// The chain tells each change of its structure, so that the places stay right under any of them. A change
// costs a search in O(log n) and moves the positions of the chunks between this change and the one before
// (they are kept as a difference from one chunk on), which is next to nothing for changes near each other.
//
// Building walks the whole chain, so a chain has its index built only when walks without it have cost as
// much: see PaysOff().
template <class T> class PositionIndex
{
public:
    using Node = ChainNode<T>;
    using Place = ChainPlace<T>;

    static constexpr long LargestChunk = 64;
    // Chains of at most this many elements do without.
    static constexpr long SmallestUse = 512;

    bool IsBuilt() const { return !starts.empty(); }
    long GetChunkNum() const { return static_cast<long>(starts.size()); }

    // Counts a walk of `distance` steps and tells whether the walks counted are worth the `cost` of building;
    // the count then starts anew.
    bool PaysOff(long distance, long cost)
    {
        walked += distance;
        if (walked < cost)
            return false;
        walked = 0;
        return true;
    }

    // Takes in a chain of `number` nodes, at least one. False when there is no memory for it.
    bool Build(Node* first, long number) noexcept
    {
        Forget();
        total = number;
        if (!Reserve(static_cast<std::size_t>(number / (LargestChunk / 2)) + 1) || !MakeRoom(0, 1))
            return false;
        SetChunk(0, {first, 0});
        SplitIfLarge(0);
        return true;
    }

    void Forget() noexcept
    {
        starts.clear();
        nodes.clear();
        shift = 0;
        shiftedFrom = 0;
    }

    // The last place at or before `position`, which exists, or the next one when that is nearer and asked
    // for.
    Place FindNearest(long position, bool alsoBehind) const
    {
        const std::size_t chunk = FindChunk(position);
        const Place before = PlaceOf(chunk);
        if (!alsoBehind || chunk + 1 == starts.size())
            return before;
        const Place behind = PlaceOf(chunk + 1);
        return behind.index - position < position - before.index ? behind : before;
    }

    // In a chain whose elements for which `precedes` holds come first: a place less than a chunk before the
    // first one for which it does not hold.
    template <class Precedes> Place FindPartition(const Precedes& precedes) const
    {
        const auto behind = std::partition_point(
            nodes.begin(), nodes.end(), [&precedes](const Node* node) { return precedes(node->element); });
        return PlaceOf(static_cast<std::size_t>(std::max<std::ptrdiff_t>(behind - nodes.begin() - 1, 0)));
    }

    // `number` nodes have been linked in, the first of them, `node`, at `position`.
    void Inserted(long position, long number, Node* node) noexcept
    {
        total += number;
        std::size_t chunk = 0;
        if (position == 0)
            nodes[0] = node;
        else
            chunk = FindChunk(position - 1);
        ShiftFrom(chunk + 1, number);
        SplitIfLarge(chunk);
    }

    // `number` nodes have been taken out at `position`, where `after` stands now (nothing but the chain's
    // head when they were the last ones). Some nodes are left.
    void Removed(long position, long number, Node* after) noexcept
    {
        const std::size_t first = position == 0 ? 0 : FindChunk(position - 1) + 1;
        std::size_t end = FindChunk(position + number - 1) + 1;
        const bool leavesRest = first < end && StartOf(end) > position + number;
        total -= number;
        ShiftFrom(end, -number);
        // What is left of a chunk that has lost its first node begins behind the gap.
        if (leavesRest)
            SetChunk(--end, {after, position});
        Erase(first, end);
        for (std::size_t chunk = first + 1; chunk-- > 0 && chunk + 2 >= first;)
            MergeIfSmall(chunk);
    }

private:
    Place PlaceOf(std::size_t chunk) const { return {nodes[chunk], StartOf(chunk)}; }

    // The position of a chunk's first node; the number of nodes for the chunk behind the last one.
    long StartOf(std::size_t chunk) const
    {
        if (chunk == starts.size())
            return total;
        return starts[chunk] + (chunk >= shiftedFrom ? shift : 0);
    }

    long SizeOf(std::size_t chunk) const { return StartOf(chunk + 1) - StartOf(chunk); }

    void SetChunk(std::size_t chunk, const Place& place)
    {
        starts[chunk] = place.index - (chunk >= shiftedFrom ? shift : 0);
        nodes[chunk] = place.node;
    }

    // The last chunk that begins at or before `position`. Chains mostly grow and shrink at their ends.
    std::size_t FindChunk(long position) const
    {
        std::size_t first = 0;
        std::size_t end = starts.size() - 1;
        if (StartOf(end) <= position)
            return end;
        while (end - first > 1)
        {
            const std::size_t middle = first + (end - first) / 2;
            (StartOf(middle) <= position ? first : end) = middle;
        }
        return first;
    }

    // The chunks from `chunk` on begin `step` positions later.
    void ShiftFrom(std::size_t chunk, long step)
    {
        if (shiftedFrom < chunk)
            AddTo(shiftedFrom, chunk, shift);
        else
            AddTo(chunk, shiftedFrom, -shift);
        shiftedFrom = chunk;
        shift += step;
    }

    // A plain loop, which compilers turn into one over several numbers at once.
    void AddTo(std::size_t first, std::size_t end, long step)
    {
        for (long& position : std::span(starts).subspan(first, end - first))
            position += step;
    }

    // New chunks before `chunk`, whose places are to be set.
    bool MakeRoom(std::size_t chunk, std::size_t number) noexcept
    {
        const std::size_t needed = starts.size() + number;
        if (needed > starts.capacity() && !Reserve((std::max)(needed, 2 * starts.size())))
            return false;
        ShiftFrom(chunk, 0);
        starts.insert(starts.begin() + static_cast<std::ptrdiff_t>(chunk), number, 0);
        nodes.insert(nodes.begin() + static_cast<std::ptrdiff_t>(chunk), number, nullptr);
        shiftedFrom += number;
        return true;
    }

    // Nodes first: where `starts` has room, `nodes` has.
    bool Reserve(std::size_t chunks) noexcept
    try
    {
        nodes.reserve(chunks);
        starts.reserve(chunks);
        return true;
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }

    void Erase(std::size_t first, std::size_t end)
    {
        ShiftFrom(end, 0);
        starts.erase(starts.begin() + static_cast<std::ptrdiff_t>(first),
                     starts.begin() + static_cast<std::ptrdiff_t>(end));
        nodes.erase(nodes.begin() + static_cast<std::ptrdiff_t>(first),
                    nodes.begin() + static_cast<std::ptrdiff_t>(end));
        shiftedFrom = first;
    }

    // Without memory for it the chunk stays too large, which only costs time.
    void SplitIfLarge(std::size_t chunk) noexcept
    {
        constexpr long Half = LargestChunk / 2;
        const long size = SizeOf(chunk);
        if (size <= LargestChunk)
            return;
        const auto added = static_cast<std::size_t>(size / Half - 1);
        if (!MakeRoom(chunk + 1, added))
            return;
        Place place = PlaceOf(chunk);
        for (std::size_t i = chunk + 1; i <= chunk + added; ++i)
        {
            place = {place.WalkTo(place.index + Half), place.index + Half};
            SetChunk(i, place);
        }
    }

    // Joins a chunk and the one behind it.
    void MergeIfSmall(std::size_t chunk)
    {
        if (chunk + 1 < starts.size() && SizeOf(chunk) + SizeOf(chunk + 1) <= LargestChunk / 2)
            Erase(chunk + 1, chunk + 2);
    }

    // The positions from `shiftedFrom` on are `shift` less than they should be.
    std::vector<long> starts;
    std::vector<Node*> nodes;
    std::size_t shiftedFrom = 0;
    long shift = 0;
    long total = 0;
    long long walked = 0;
};

} // namespace QuorUiCtr::Detail
