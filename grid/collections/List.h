// List: the singly linked list, and the guard that brings a list's cursor back.
#pragma once

#include "grid/collections/Chain.h"
#include "grid/collections/MergeSort.h"
#include "grid/collections/Table.h"

#include <cassert>
#include <span>
#include <vector>

namespace QuorUiCtr
{

template <class T> class CursorGuard;

// A Table over a singly linked chain.
//
// Appending, inserting behind the cursor and stepping forward take constant time. Positional access starts
// from the cursor, the first or the last element or, in lists of more than 512 elements, a remembered place
// at most 64 steps away; a singly linked list walks forward only, so steps back cost positional access.
//
// Use it for sequences that grow at the end and are walked from first to last, such as keys to sort by, and
// DualList where code steps back or removes in the middle.
//
// What the operations do is said once, at Table; here stands what a list adds to it: which take constant
// time, which cost the way to a position, and what becomes of memory and references.
//
//     List<long> keys;
//     keys.Append(3);
//     keys.Insert(0, 5);                      // 5 3, and the 5 is current
//     for (keys.MoveToFirst(); !keys.IsOut(); keys.MoveToNext())
//         Use(keys.Cur());                    // moves the cursor, which ends at -1
//     for (const long key : keys)
//         Use(key);                           // leaves it alone
//     keys[3] = 8;                            // 5 3 0 8: reading and writing beyond the end grow the list
//     keys.Sort(true);                        // 0 3 5 8
//     keys.MoveToPartition([](long key) { return key < 4; });
//     keys.Insert(4);                         // 0 3 4 5 8: where it belongs
//
// A loop may add elements and remove others than the one it stands on: what enters behind it is still
// visited. A loop by position, list[i], must look at GetNum() anew in every round, or it grows the list.
//
// The costs in steps, for a list of n elements whose cursor is at c:
//     Append, InsertAfter, Cur, SetCur, MoveToNext, MoveToFirst, MoveToLast, GetNum       1
//     MoveTo(i), [i], Insert(i, ...), InsertAfter(i, ...) forward from c or the start     the way, at most 64
//                                                                                         in long lists
//     MoveToPre, Insert and Del at the cursor                                             as MoveTo(c - 1);
//                                                                                         1 in a DualList
//     Find, Grow, Clear, copying                                                          n
//     Sort                                                                                n to n log n
//
// An empty list owns no memory beyond the object. Memory of removed elements is used again and is freed when
// the list gets empty. Element destructors that reach their own list find it without them, but must not
// change it.
//
// An insertion that finds no memory throws std::bad_alloc and leaves the elements as they were. For places to
// remember memory is never insisted on: without it, positions only cost more steps.
//
// A copy has the same elements and no current element.
template <class T> class List : public Table<T>
{
public:
    // Forward iterators; the second kind of a list that is const.
    using Iterator = typename Detail::Chain<T>::Iterator;
    using ConstIterator = typename Detail::Chain<T>::ConstIterator;

    // An empty list.
    List() : List(Links::Forward) {}
    // Copies the elements, not the cursor.
    List(const List& other) : List(Links::Forward) { CopyElements(other); }
    // Replaces the elements; assigning a list to itself does nothing, also to its cursor.
    List& operator=(const List& other)
    {
        CopyElements(other);
        return *this;
    }
    ~List() override = default;

    // Takes the memory for all new elements at once. Positions and references to what is there stay valid.
    void Grow(long n) override { chain.Grow(n); }
    // Counts the elements there are as part of `n`. Worth calling before many elements are added one by one:
    // the nodes then lie side by side.
    void Reserve(long n) override { chain.Reserve(n); }
    // Constant time. The spare element is one per list: writing to it is lost at the next call.
    T& Cur() override { return chain.Cur(); }
    // Assigns in place: references to the element see the new value.
    void SetCur(const T& element) override
    {
        if (!chain.IsOut())
            chain.Cur() = element;
    }
    // Costs the way from the nearest place known before `i`; the first, the last and the current element
    // cost nothing.
    bool MoveTo(long i) override
    {
        chain.MoveTo(i);
        return !chain.IsOut();
    }
    // Constant time, but for MoveToPre: a list that is linked forward only walks up to the element before.
    void MoveToFirst() override { chain.MoveTo(0); }
    void MoveToLast() override { chain.MoveTo(chain.GetNum() - 1); }
    void MoveToNext() override { chain.MoveToNext(); }
    void MoveToPre() override { chain.MoveToPrevious(); }
    // Costs what MoveTo costs, so a loop over rising positions takes one step for each.
    T& operator[](long i) override
    {
        assert(i >= 0);
        if (i >= chain.GetNum())
            chain.Grow(i + 1);
        chain.MoveTo(i);
        return chain.Cur();
    }
    // Constant time, all four.
    long GetNum() const override { return chain.GetNum(); }
    long GetCur() const override { return chain.GetCursor(); }
    bool IsOut() const override { return chain.IsOut(); }
    bool IsEmpty() const override { return chain.GetNum() == 0; }
    // Looks at the elements one by one, with their operator==; FindPartition is the fast search of a list
    // that is in order.
    long Find(const T& element) const override
    {
        long position = 0;
        for (const T& candidate : chain)
        {
            if (candidate == element)
                return position;
            ++position;
        }
        return -1;
    }
    // Insertions take constant time once the place is reached. Before the cursor that is the cost of
    // MoveToPre, at a position the cost of MoveTo.
    void Insert(const T& element) override { chain.InsertBeforeCursor(element); }
    void Insert(long i, const T& element) override
    {
        chain.MoveTo(i);
        chain.InsertBeforeCursor(element);
    }
    void InsertAfter(long i, const T& element) override
    {
        chain.MoveTo(i);
        chain.InsertAfterCursor(element);
    }
    // Constant time, wherever the cursor stands.
    long Append(const T& element) override
    {
        chain.Append(element);
        return chain.GetCursor();
    }
    // The element is unlinked before its destructor runs. Costs the way to the element before.
    void Del() override
    {
        if (!chain.IsOut())
            chain.Remove(chain.GetCursor(), 1);
    }
    // The elements are destroyed from first to last, when the list is empty already.
    void Clear() override { chain.Clear(); }
    // Links the same node elsewhere: the element is neither copied nor destroyed, references to it stay
    // valid. Its new position is `to`, or `to` - 1 when it has moved towards the end.
    bool Move(long from, long to) override
    {
        if (!chain.IsInside(from) || to < 0 || to > chain.GetNum() || to == from || to == from + 1)
            return false;
        chain.Move(from, to);
        return true;
    }
    // Sorting links the nodes anew; elements are neither copied nor moved in memory. Both forms need room
    // for two pointers per element while they run.
    void Sort(int (*compare)(const T&, const T&)) override
    {
        SortElements([compare](const T& first, const T& second) { return compare(first, second) >= 1; });
    }
    void Sort(bool ascending) override
    {
        if constexpr (requires(T & first, T & second) { first > second ? 1 : first < second ? 2 : 3; })
            SortElements(
                [ascending](T& first, T& second) { return ascending ? first > second : first < second; });
    }
    // Constant time.
    void InsertAfter(const T& element) override { chain.InsertAfterCursor(element); }

    // Iteration from first to last that leaves the cursor alone, for range-based loops. An iterator stays
    // valid until its element is removed.
    Iterator begin() { return chain.begin(); }
    Iterator end() { return chain.end(); }
    ConstIterator begin() const { return chain.begin(); }
    ConstIterator end() const { return chain.end(); }
    // The iterator at position `i`, end() when there is no such element.
    Iterator IteratorAt(long i) { return chain.IteratorAt(i); }

    // Searches of a list in which the elements for which `precedes` holds stand before all others, in
    // O(log n) or near; `precedes` must not change the list. The first element for which it does not hold: as
    // an iterator (end() when there is none), or made current (none when there is none), so that Insert adds
    // an element where it belongs. Only the last form moves the cursor.
    template <class Precedes> Iterator FindPartition(const Precedes& precedes)
    {
        return Iterator(chain.FindPartition(precedes).node);
    }
    template <class Precedes> ConstIterator FindPartition(const Precedes& precedes) const
    {
        return chain.FindPartition(precedes);
    }
    template <class Precedes> void MoveToPartition(const Precedes& precedes)
    {
        chain.MoveToPlace(chain.FindPartition(precedes));
    }

protected:
    // For the lists that derive: how the chain is linked, and what it is made of.
    using Links = typename Detail::Chain<T>::Links;
    using Node = typename Detail::Chain<T>::Node;

    // A derived list chooses how its chain is linked, once and for all.
    explicit List(Links links) : chain(links) {}

    // Replaces the elements by those of `other`, which may be this list: then nothing happens. No element is
    // current afterwards.
    void CopyElements(const List& other)
    {
        if (this == &other)
            return;
        chain.Clear();
        chain.Reserve(other.GetNum());
        for (const T& element : other)
            chain.Append(element);
        chain.MoveTo(-1);
    }

    // What all forms of Sort come down to: `sortsAfter(a, b)` is true when `a` belongs behind `b`. The chain
    // is linked anew only when the comparisons are over, so one that throws leaves the list as it was.
    template <class SortsAfter> void SortElements(SortsAfter sortsAfter)
    {
        if (chain.GetNum() < 2)
            return;
        std::vector<Node*> nodes = chain.GetNodes();
        SortNodes(nodes, sortsAfter);
        chain.Relink(nodes);
    }

    // Sorts nodes that were taken from a chain, or a part of them; the chain itself is not changed.
    template <class SortsAfter> static void SortNodes(std::span<Node*> nodes, SortsAfter sortsAfter)
    {
        Detail::StableMergeSort(nodes, [&sortsAfter](Node* first, Node* second) {
            return sortsAfter(first->element, second->element);
        });
    }

    // The attribute lets a derived list put its flags into the chain's tail.
    [[no_unique_address]] Detail::Chain<T> chain;

    friend class CursorGuard<T>;
};

// Remembers a list's cursor and brings it back at the end of the scope: in constant time to the same element
// while no element has been inserted, removed or moved meanwhile, to the same position otherwise (-1 when the
// position is gone). The list must outlive the guard.
//
// For functions that change a list whose cursor belongs to somebody else: who is amid a loop over the rows
// with MoveToNext may unfold one of them, and goes on from the row where he was.
//
//     const CursorGuard cursor(rows);
//     for (rows.MoveToLast(); !rows.IsOut(); rows.MoveToPre()) ...
template <class T> class CursorGuard
{
public:
    // Notes where the cursor of `guarded` stands.
    explicit CursorGuard(List<T>& guarded) : list(guarded), mark(guarded.chain.MarkCursor()) {}
    CursorGuard(const CursorGuard&) = delete;
    CursorGuard& operator=(const CursorGuard&) = delete;
    ~CursorGuard() { list.chain.RestoreCursor(mark); }

private:
    List<T>& list;
    typename Detail::Chain<T>::CursorMark mark;
};

} // namespace QuorUiCtr
