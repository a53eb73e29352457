// DualList: the doubly linked list.
#pragma once

#include "grid/collections/List.h"

#include <algorithm>
#include <span>

namespace QuorUiCtr
{

// A List that is linked both ways: stepping back takes constant time too, and positional access walks in
// either direction from the nearest known place.
//
// Five virtual operations follow those of Table; the numbers go on.
template <class T> class DualList : public List<T>
{
public:
    using List<T>::Sort;

    DualList() : List<T>(Links::BothWays) {}
    DualList(const DualList& other) : List<T>(Links::BothWays) { this->CopyElements(other); }
    DualList& operator=(const DualList& other)
    {
        CopyFrom(other);
        return *this;
    }
    ~DualList() override = default;

    // 26: replaces the elements by those of `source`; no element is current afterwards.
    virtual void CopyFrom(const List<T>& source) { this->CopyElements(source); }
    // 27: sorts like Sort(compare); `context` is handed to every call of `compare`.
    virtual void Sort(int (*compare)(const T&, const T&, void* context), void* context)
    {
        this->SortElements([compare, context](const T& first, const T& second) {
            return compare(first, second, context) >= 1;
        });
    }
    // 28: inserts `elements`, which are not elements of this list, in their order before the element at `at`,
    // or at the end when there is no such element. The cursor stays on its element. Costs one positional
    // access and one step per element inserted.
    virtual void SpliceInsert(long at, std::span<const T> elements)
    {
        this->chain.InsertAt(this->chain.IsInside(at) ? at : this->GetNum(), elements);
    }
    // 29: removes up to `number` elements from position `first` on and returns how many there were; none when
    // there is no element at `first`. The cursor stays on its element; when that is removed it moves to the
    // element before `first`.
    virtual long RemoveRange(long first, long number) { return Release(first, number); }
    // 30: RemoveRange that leaves alone what the elements point to: the caller takes over the objects of an
    // owning list.
    virtual long Release(long first, long number)
    {
        const long present = CountPresent(first, number);
        if (present > 0)
            this->chain.Remove(first, present);
        return present;
    }

protected:
    using Links = typename List<T>::Links;

    // How many of the `number` positions from `first` on exist; 0 when `first` does not.
    long CountPresent(long first, long number) const
    {
        return this->chain.IsInside(first) ? std::clamp(number, 0L, this->GetNum() - first) : 0;
    }
};

} // namespace QuorUiCtr
