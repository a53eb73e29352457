// DualList: the doubly linked list.
#pragma once

#include "grid/collections/List.h"

#include <algorithm>
#include <span>

namespace QuorUiCtr
{

// A List that is linked both ways: stepping back takes constant time too, and positional access walks in
// either direction from the nearest known place. Each element costs one more pointer than in a List. The
// grid keeps its selections and, through PDList, its columns, rows and cells in lists of this kind.
//
// Five virtual operations follow those of Table; the numbers go on, and hosts rely on them likewise. They
// are what the grid needs to treat many neighbours as one: a row that is unfolded enters a thousand children
// with a single splice instead of a thousand insertions, and a cursor that a host has placed outlives it.
//
//     std::array<long, 2> added{7, 8};
//     list.SpliceInsert(0, added);            // 7 8 and what was there
//     list.RemoveRange(1, 2);                 // without the 8 and what followed it
template <class T> class DualList : public List<T>
{
public:
    using List<T>::Sort;

    // An empty list, linked both ways whatever it is copied from or assigned.
    DualList() : List<T>(Links::BothWays) {}
    // The elements in the same order; no element of the copy is current.
    DualList(const DualList& other) : List<T>(Links::BothWays) { this->CopyElements(other); }
    // Through CopyFrom, so that an owning list deletes what it held.
    DualList& operator=(const DualList& other)
    {
        CopyFrom(other);
        return *this;
    }
    ~DualList() override = default;

    // 26: replaces the elements by those of `source`, which may be linked one way only; no element is current
    // afterwards. Copying a list onto itself does nothing.
    virtual void CopyFrom(const List<T>& source) { this->CopyElements(source); }
    // 27: sorts like Sort(compare), equally stable; `context` is handed to every call of `compare` and not
    // looked at, so that a comparison may know its column or its direction without a global variable.
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
    // element before `first`, or to -1.
    virtual long RemoveRange(long first, long number) { return Release(first, number); }
    // 30: RemoveRange that leaves alone what the elements point to: the caller takes over the objects of an
    // owning list. A negative `number` counts as 0, one that reaches beyond the end as far as the end.
    virtual long Release(long first, long number)
    {
        const long present = CountPresent(first, number);
        if (present > 0)
            this->chain.Remove(first, present);
        return present;
    }

protected:
    // How a chain can be linked; a base that is constructed forward only can never step back cheaply.
    using Links = typename List<T>::Links;

    // For RemoveRange in lists that derive, which must know what Release is going to take out.
    // How many of the `number` positions from `first` on exist; 0 when `first` does not.
    long CountPresent(long first, long number) const
    {
        return this->chain.IsInside(first) ? std::clamp(number, 0L, this->GetNum() - first) : 0;
    }
};

} // namespace QuorUiCtr
