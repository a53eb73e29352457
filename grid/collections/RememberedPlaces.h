// RememberedPlaces: the position index of one chain, made when it first pays off.
#pragma once

#include "grid/collections/PositionIndex.h"

#include <memory>
#include <new>

namespace QuorUiCtr::Detail
{

// Holds the index of a chain, or nothing as long as there is none, and passes the chain's changes on to it.
// Short chains and chains that are only walked along never have one.
template <class T> class RememberedPlaces
{
public:
    using Index = PositionIndex<T>;
    using Node = typename Index::Node;

    // The index of the chain of `number` nodes from `first` on, when it is there or worth building because it
    // saves a walk of `distance` steps. Null otherwise, and when there is no memory for it.
    const Index* Find(Node* first, long number, long distance) noexcept
    {
        if (number <= Index::SmallestUse)
            return nullptr;
        if (!index)
            index.reset(new (std::nothrow) Index);
        if (!index)
            return nullptr;
        const bool usable =
            index->IsBuilt() || (index->PaysOff(distance, number) && index->Build(first, number));
        return usable ? index.get() : nullptr;
    }

    // `node` has been linked in at `position`.
    void Inserted(long position, Node* node) noexcept
    {
        if (index && index->IsBuilt())
            index->Inserted(position, 1, node);
    }

    // `number` nodes have been taken out at `position`, where `after` stands now; `left` nodes are left.
    void Removed(long position, long number, Node* after, long left) noexcept
    {
        if (left == 0)
            Forget();
        else if (index && index->IsBuilt())
            index->Removed(position, number, after);
    }

    // The chain has another order than before.
    void Forget() noexcept
    {
        if (index)
            index->Forget();
    }

    void Release() noexcept { index.reset(); }
    void Swap(RememberedPlaces& other) noexcept { index.swap(other.index); }

private:
    std::unique_ptr<Index> index;
};

} // namespace QuorUiCtr::Detail
