// Table: the interface that all lists share.
#pragma once

namespace QuorUiCtr
{

// A sequence of elements with a cursor.
//
// Positions are zero-based. The cursor is the position of the current element, or -1 when there is none
// ("out"). Positional operations move the cursor, and the cursor's neighbours are reached in one step, so a
// loop with MoveToFirst, MoveToNext and IsOut takes one step per element. The walk is circular through the
// place outside: from -1, MoveToNext reaches the first element and MoveToPre the last.
//
// References to elements stay valid until the element is removed. An element that is removed, by the loop
// itself or by what the loop calls, must not be the one a saved reference or iterator stands on.
//
// Lists belong to one thread. T must be default constructible, copyable and comparable with ==.
//
// The virtual operations keep this order; the numbers are their places in it. Hosts are handed lists of the
// grid and hand in their own, and a compiled host calls each operation by its place: a new one goes behind
// the last.
template <class T> class Table
{
public:
    // 0: appends default elements (0, null) until there are `n`; never shrinks. The cursor is kept.
    virtual void Grow(long n) = 0;
    // 1: removes all elements.
    virtual ~Table() = default;
    // 2: makes room for `n` elements in all, so that they can be added without further allocation. The
    // content and the cursor are kept; a hint that never removes anything.
    virtual void Reserve(long n) = 0;
    // 3: the element under the cursor. Without one, a spare element, set to its default by every such call.
    virtual T& Cur() = 0;
    // 4: replaces the element under the cursor; without one, does nothing.
    virtual void SetCur(const T& element) = 0;
    // 5: moves the cursor to position `i` and returns true; outside 0 to GetNum() - 1 the cursor becomes -1
    // and the result is false.
    virtual bool MoveTo(long i) = 0;
    // 6, 7: move the cursor to the first or last element; -1 when the table is empty.
    virtual void MoveToFirst() = 0;
    virtual void MoveToLast() = 0;
    // 8, 9: move the cursor by one; from the last or first element it moves out, to -1, and from there on to
    // the first or last one.
    virtual void MoveToNext() = 0;
    virtual void MoveToPre() = 0;
    // 10: the element at position `i`, to which the cursor moves. When `i` is not below GetNum(), the table
    // first grows to i + 1 elements. A negative `i` is the caller's error (asserted): the cursor becomes -1
    // and the result is the spare element of Cur().
    virtual T& operator[](long i) = 0;
    // 11: the number of elements.
    virtual long GetNum() const = 0;
    // 12: the cursor's position, -1 when there is no current element.
    virtual long GetCur() const = 0;
    // 13: there is no current element.
    virtual bool IsOut() const = 0;
    // 14: there are no elements.
    virtual bool IsEmpty() const = 0;
    // 15: the position of the first element equal to `element`, -1 when there is none. The cursor is kept.
    virtual long Find(const T& element) const = 0;
    // 16: inserts before the current element, or at the end when there is none. The new element is current.
    virtual void Insert(const T& element) = 0;
    // 17: inserts before the element at position `i`, or at the end when there is none. The new element is
    // current.
    virtual void Insert(long i, const T& element) = 0;
    // 18: inserts behind the element at position `i`, or at the front when there is none. The new element is
    // current.
    virtual void InsertAfter(long i, const T& element) = 0;
    // 19: adds at the end and returns the new element's position. The new element is current.
    virtual long Append(const T& element) = 0;
    // 20: removes the current element; the cursor moves to the one before it (-1 from the first). Does
    // nothing without a current element.
    virtual void Del() = 0;
    // 21: removes all elements; the cursor becomes -1. Frees the memory taken by Reserve too.
    virtual void Clear() = 0;
    // 22: moves the element at `from` before the element that stands at `to` (GetNum(): to the end), makes it
    // current and returns true. Does nothing and returns false when `to` is `from` or `from` + 1, and when a
    // position lies outside.
    virtual bool Move(long from, long to) = 0;
    // 23: sorts by `compare`, which returns a value of at least 1 when its first argument sorts after its
    // second. Stable: elements of which neither sorts after the other keep their order. Takes n - 1
    // comparisons when the elements are in order already, O(n log n) at worst. The cursor stays on its
    // element. Nothing changes when `compare` throws.
    virtual void Sort(int (*compare)(const T&, const T&)) = 0;
    // 24: sorts by the element's operator> (ascending) or operator< (descending), as above; a type without
    // them keeps its order. Tables of pointers other than PDList order by address.
    virtual void Sort(bool ascending) = 0;
    // 25: inserts behind the current element, or at the front when there is none. The new element is current.
    virtual void InsertAfter(const T& element) = 0;
};

} // namespace QuorUiCtr
