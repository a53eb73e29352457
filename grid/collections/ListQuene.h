// ListQuene: the queue over a singly linked chain.
#pragma once

#include "grid/collections/Chain.h"
#include "grid/collections/Quene.h"

namespace QuorUiCtr
{

// A queue whose operations take constant time. It does not own what its elements point to.
template <class T> class ListQuene : public Quene<T>
{
public:
    ListQuene() : chain(Detail::Chain<T>::Links::Forward) {}
    ListQuene(const ListQuene&) = delete;
    ListQuene& operator=(const ListQuene&) = delete;
    ~ListQuene() override = default;

    void Push(const T& element) override { chain.Append(element); }
    T Pop() override
    {
        T element = Front();
        if (!IsEmpty())
            chain.Remove(0, 1);
        return element;
    }
    T& Front() override { return At(0); }
    T& Back() override { return At(chain.GetNum() - 1); }
    long GetNum() const override { return chain.GetNum(); }
    bool IsEmpty() const override { return chain.GetNum() == 0; }
    void Clear() override { chain.Clear(); }

private:
    T& At(long position)
    {
        chain.MoveTo(position);
        return chain.Cur();
    }

    Detail::Chain<T> chain;
};

} // namespace QuorUiCtr
