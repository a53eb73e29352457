// PDList: the doubly linked list of pointers that owns the objects.
#pragma once

#include "grid/collections/DualList.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace QuorUiCtr
{

// A DualList<T*> that owns the objects its slots point to: removing an element, removing all and destroying
// the list delete them (through a virtual destructor, where T has one). Slots may be null.
//
// It is how one object belongs to another here: the grid owns its columns and its rows through such a list, a
// row its cells, a tree row its children. Who takes an object into his own hands, to enter it elsewhere or to
// delete it later, detaches it:
//
//     PDList<TGGridRow> waiting;
//     waiting.Append(row);                    // the list owns the row from now on
//     TGGridRow* taken = waiting.Detach(0);   // the caller owns it again
//     waiting.Append(taken);
//     waiting.MoveToFirst();
//     waiting.Del();                          // deletes the row
//
// What each operation does to the objects:
//     Append, Insert, InsertAfter, SpliceInsert   the list owns them; the same object twice is deleted twice
//     Del, Clear, RemoveRange, the destructor     deletes them
//     Detach, Release                             hands them to the caller
//     Move, Sort, MoveTo...                       nothing
//     CopyFrom, assignment                        deletes those held, borrows the new ones
//     SetCur, Cur() = ..., [i] = ...              nothing: the former object is the caller's
//     Grow, [i] beyond the end                    enters null slots
//
// Setting a slot to null and deleting it then removes the slot without its object, as Detach does. The
// operations are virtual, so code that knows the list only as a Table<T*> deletes and keeps objects by the
// same rules.
//
// Whoever looks at the objects of a list that others fill must expect null: Cur() without a current element
// and slots that grew give it, and a comparison function for Sort is handed null slots like any other.
//
// An object is taken out of the list before it is deleted, so a destructor that looks at the list finds it
// without the object; it may add and remove elements.
//
// A copy borrows: it holds the same pointers and deletes none, and what is put into it is borrowed too.
// Clear() ends that: an emptied copy owns what it gets from then on. The source must outlive the use of its
// objects.
template <class T> class PDList : public DualList<T*>
{
public:
    using DualList<T*>::Sort;

    // An empty list that owns what it gets.
    PDList() = default;
    // A borrowing copy with the same pointers in the same order.
    PDList(const PDList& other) : DualList<T*>(other), owning(false) {}
    // As CopyFrom.
    PDList& operator=(const PDList& other)
    {
        CopyFrom(other);
        return *this;
    }
    // Deletes the objects, first to last, and those that their destructors add to the list meanwhile.
    ~PDList() override
    {
        while (!this->IsEmpty())
            PDList::Clear();
    }

    // The list deletes its objects; false for a copy until it is cleared.
    bool IsOwning() const { return owning; }

    // Removes the slot at position `i` and returns its object, which the caller owns from now on; null when
    // there is no such slot or the slot is null. The cursor moves as with Release. A copy gives the object
    // out as well, but the source goes on owning it.
    T* Detach(long i)
    {
        const auto slot = this->IteratorAt(i);
        T* object = slot == this->end() ? nullptr : *slot;
        this->Release(i, 1);
        return object;
    }

    // Deletes the object under the cursor with its slot; the cursor moves to the slot before. Deleting in a
    // loop from the last object to the first therefore needs no positions.
    void Del() override
    {
        T* object = this->IsOut() ? nullptr : this->Cur();
        DualList<T*>::Del();
        Delete(object);
    }

    // Deletes all objects, first to last. The list is empty before the first destructor runs; what
    // destructors add to it stays.
    void Clear() override
    {
        Detail::Chain<T*> removed(DualList<T*>::Links::BothWays);
        removed.TakeAll(this->chain);
        for (T* object : removed)
            Delete(object);
        owning = true;
    }

    // Sorts by the objects' operator> (ascending) or operator<, not by their addresses; null slots end up
    // last. Objects without these operators keep their order.
    void Sort(bool ascending) override
    {
        if (this->GetNum() < 2)
            return;
        auto nodes = this->chain.GetNodes();
        const auto nulls = std::stable_partition(nodes.begin(), nodes.end(),
                                                 [](const auto* node) { return node->element != nullptr; });
        const auto objects = static_cast<std::size_t>(nulls - nodes.begin());
        if constexpr (requires(T & first, T & second) { first > second ? 1 : first < second ? 2 : 3; })
        {
            this->SortNodes(std::span(nodes).first(objects), [ascending](T* first, T* second) {
                return ascending ? *first > *second : *first < *second;
            });
        }
        this->chain.Relink(nodes);
    }

    // Deletes the objects held, unless they were borrowed, and borrows those of `source`. Copying the list
    // onto itself does nothing and leaves it owning.
    void CopyFrom(const List<T*>& source) override
    {
        if (&source == this)
            return;
        PDList::Clear();
        DualList<T*>::CopyFrom(source);
        owning = false;
    }

    // Deletes the objects, first to last, after their slots have been removed together: a destructor finds
    // the list without any of them. Returns the number of slots, null ones included.
    long RemoveRange(long first, long number) override
    {
        std::vector<T*> objects;
        const long present = this->CountPresent(first, number);
        objects.reserve(static_cast<std::size_t>(present));
        auto slot = this->IteratorAt(first);
        for (long i = 0; i < present; ++i)
            objects.push_back(*slot++);
        this->Release(first, present);
        for (T* object : objects)
            Delete(object);
        return present;
    }

private:
    // What a borrowing copy must not do happens in one place.
    void Delete(T* object) const
    {
        if (owning)
            delete object;
    }

    bool owning = true;
};

} // namespace QuorUiCtr
