// PositionIndex: remembered places in a long chain, from which positional access starts.
#pragma once

#include <cstddef>
#include <vector>

namespace QuorUiCtr::Detail
{

// Remembers the nodes at the positions 0, spacing, 2 x spacing ... of a chain, as far as they have been
// walked since the last structural change before them.
//
// Marks cost a walk of their own, so a chain sets them only when walks without them have cost as much: see
// PaysOff(). A chain whose structure keeps changing thus never pays more than twice what it pays without
// marks.
template <class Node> class PositionIndex
{
public:
    static constexpr long spacing = 256;
    // Chains of at most this many elements do without marks.
    static constexpr long smallestUse = 512;

    long GetMarkNum() const { return static_cast<long>(marks.size()); }
    // The node at position `mark` x spacing.
    Node* GetMark(long mark) const { return marks[static_cast<std::size_t>(mark)]; }
    // Adds the mark at the position GetMarkNum() x spacing.
    void AddMark(Node* node) { marks.push_back(node); }

    // Forgets the marks at and behind `position`.
    void Truncate(long position)
    {
        const auto kept = static_cast<std::size_t>((position + spacing - 1) / spacing);
        if (kept < marks.size())
            marks.resize(kept);
    }

    // Counts a walk of `distance` steps and tells whether the walks counted are worth `cost` steps of setting
    // marks; the count then starts anew.
    bool PaysOff(long distance, long cost)
    {
        walked += distance;
        if (walked < cost)
            return false;
        walked = 0;
        return true;
    }

private:
    std::vector<Node*> marks;
    long long walked = 0;
};

} // namespace QuorUiCtr::Detail
