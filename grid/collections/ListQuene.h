// ListQuene: the queue over a singly linked chain.
#pragma once

#include "grid/collections/Chain.h"
#include "grid/collections/Quene.h"

namespace QuorUiCtr
{

// A queue whose operations take constant time (Clear: one step per element). It does not own what its
// elements point to, and it cannot be copied.
//
// For walks through a tree level by level, where every element taken out may put others in:
//
//     ListQuene<TGGridTreeRow*> waiting;
//     waiting.Push(&root);
//     while (!waiting.IsEmpty())
//         PushChildren(*waiting.Pop(), waiting);
//
// An empty queue holds no memory beyond the object, and one that has been emptied frees what it had.
template <class T> class ListQuene : public Quene<T>
{
public:
    // An empty queue. Links forward are enough, for nobody steps back.
    ListQuene() : chain(Detail::Chain<T>::Links::Forward) {}
    ListQuene(const ListQuene&) = delete;
    ListQuene& operator=(const ListQuene&) = delete;
    ~ListQuene() override = default;

    // When there is no memory for the element, std::bad_alloc is thrown and the queue is as it was.
    void Push(const T& element) override { chain.Append(element); }
    // Returns a copy, for the element itself is gone by then.
    T Pop() override
    {
        T element = Front();
        if (!IsEmpty())
            chain.Remove(0, 1);
        return element;
    }
    // Writing through the reference changes the element that waits. The spare element of an empty queue is
    // one for both ends.
    T& Front() override { return At(0); }
    T& Back() override { return At(chain.GetNum() - 1); }
    // Counted, not walked; asking in a loop costs nothing.
    long GetNum() const override { return chain.GetNum(); }
    bool IsEmpty() const override { return chain.GetNum() == 0; }
    // Frees the memory of the elements too.
    void Clear() override { chain.Clear(); }

private:
    // The cursor of the chain serves only to reach its two ends.
    T& At(long position)
    {
        chain.MoveTo(position);
        return chain.Cur();
    }

    // Its first node is the front: elements are linked in at the end, where a chain knows its last node.
    Detail::Chain<T> chain;
};

} // namespace QuorUiCtr
