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
// An empty list owns no memory beyond the object. Memory of removed elements is used again and is freed when
// the list gets empty. Element destructors that reach their own list find it without them, but must not
// change it.
//
// A copy has the same elements and no current element.
template <class T> class List : public Table<T>
{
public:
    using Iterator = typename Detail::Chain<T>::Iterator;
    using ConstIterator = typename Detail::Chain<T>::ConstIterator;

    List() : List(Links::Forward) {}
    List(const List& other) : List(Links::Forward) { CopyElements(other); }
    List& operator=(const List& other)
    {
        CopyElements(other);
        return *this;
    }
    ~List() override = default;

    void Grow(long n) override { chain.Grow(n); }
    void Reserve(long n) override { chain.Reserve(n); }
    T& Cur() override { return chain.Cur(); }
    void SetCur(const T& element) override
    {
        if (!chain.IsOut())
            chain.Cur() = element;
    }
    bool MoveTo(long i) override
    {
        chain.MoveTo(i);
        return !chain.IsOut();
    }
    void MoveToFirst() override { chain.MoveTo(0); }
    void MoveToLast() override { chain.MoveTo(chain.GetNum() - 1); }
    void MoveToNext() override { chain.MoveToNext(); }
    void MoveToPre() override { chain.MoveToPrevious(); }
    T& operator[](long i) override
    {
        assert(i >= 0);
        if (i >= chain.GetNum())
            chain.Grow(i + 1);
        chain.MoveTo(i);
        return chain.Cur();
    }
    long GetNum() const override { return chain.GetNum(); }
    long GetCur() const override { return chain.GetCursor(); }
    bool IsOut() const override { return chain.IsOut(); }
    bool IsEmpty() const override { return chain.GetNum() == 0; }
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
    long Append(const T& element) override
    {
        chain.Append(element);
        return chain.GetCursor();
    }
    void Del() override
    {
        if (!chain.IsOut())
            chain.Remove(chain.GetCursor(), 1);
    }
    void Clear() override { chain.Clear(); }
    bool Move(long from, long to) override
    {
        if (!chain.IsInside(from) || to < 0 || to > chain.GetNum() || to == from || to == from + 1)
            return false;
        chain.Move(from, to);
        return true;
    }
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
    // an element where it belongs. Only the second form moves the cursor.
    template <class Precedes> Iterator FindPartition(const Precedes& precedes)
    {
        return Iterator(chain.FindPartition(precedes).node);
    }
    template <class Precedes> void MoveToPartition(const Precedes& precedes)
    {
        chain.MoveToPlace(chain.FindPartition(precedes));
    }

protected:
    using Links = typename Detail::Chain<T>::Links;
    using Node = typename Detail::Chain<T>::Node;

    explicit List(Links links) : chain(links) {}

    // Replaces the elements by those of `other`, which may be this list.
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

    template <class SortsAfter> void SortElements(SortsAfter sortsAfter)
    {
        if (chain.GetNum() < 2)
            return;
        std::vector<Node*> nodes = chain.GetNodes();
        SortNodes(nodes, sortsAfter);
        chain.Relink(nodes);
    }

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
template <class T> class CursorGuard
{
public:
    explicit CursorGuard(List<T>& guarded) : list(guarded), mark(guarded.chain.MarkCursor()) {}
    CursorGuard(const CursorGuard&) = delete;
    CursorGuard& operator=(const CursorGuard&) = delete;
    ~CursorGuard() { list.chain.RestoreCursor(mark); }

private:
    List<T>& list;
    typename Detail::Chain<T>::CursorMark mark;
};

} // namespace QuorUiCtr
