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
// SetCur and assignment through Cur() or operator[] replace a pointer and delete nothing. A slot is removed
// without its object by Detach or Release, or by setting it to null first.
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

    PDList() = default;
    PDList(const PDList& other) : DualList<T*>(other), owning(false) {}
    PDList& operator=(const PDList& other)
    {
        CopyFrom(other);
        return *this;
    }
    ~PDList() override
    {
        while (!this->IsEmpty())
            PDList::Clear();
    }

    // The list deletes its objects; false for a copy.
    bool IsOwning() const { return owning; }

    // Removes the slot at position `i` and returns its object, which the caller owns from now on; null when
    // there is no such slot. The cursor moves as with Release.
    T* Detach(long i)
    {
        const auto slot = this->IteratorAt(i);
        T* object = slot == this->end() ? nullptr : *slot;
        this->Release(i, 1);
        return object;
    }

    // Deletes the object under the cursor with its slot.
    void Del() override
    {
        T* object = this->IsOut() ? nullptr : this->Cur();
        DualList<T*>::Del();
        Delete(object);
    }

    // Deletes all objects, first to last.
    void Clear() override
    {
        Detail::Chain<T*> removed(DualList<T*>::Links::BothWays);
        removed.TakeAll(this->chain);
        for (T* object : removed)
            Delete(object);
        owning = true;
    }

    // Sorts by the objects' operator> (ascending) or operator<; null slots end up last.
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

    // Deletes the objects held and borrows those of `source`.
    void CopyFrom(const List<T*>& source) override
    {
        if (&source == this)
            return;
        PDList::Clear();
        DualList<T*>::CopyFrom(source);
        owning = false;
    }

    // Deletes the objects, first to last, after their slots have been removed together.
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
    void Delete(T* object) const
    {
        if (owning)
            delete object;
    }

    bool owning = true;
};

} // namespace QuorUiCtr
