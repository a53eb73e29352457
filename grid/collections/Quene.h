// Quene: the interface of a first-in-first-out queue.
#pragma once

namespace QuorUiCtr
{

// Elements are taken out in the order in which they were put in. T must be default constructible and
// copyable.
template <class T> class Quene
{
public:
    virtual ~Quene() = default;
    // Puts an element at the back.
    virtual void Push(const T& element) = 0;
    // Takes the element at the front out and returns it; a default element when the queue is empty.
    virtual T Pop() = 0;
    // The elements that were put in first and last; without any, a spare element, set to its default by every
    // such call. The reference is valid until that element is taken out.
    virtual T& Front() = 0;
    virtual T& Back() = 0;
    virtual long GetNum() const = 0;
    virtual bool IsEmpty() const = 0;
    // Takes all elements out.
    virtual void Clear() = 0;
};

} // namespace QuorUiCtr
