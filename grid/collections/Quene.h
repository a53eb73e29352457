// Quene: the interface of a first-in-first-out queue.
#pragma once

namespace QuorUiCtr
{

// Elements leave in the order in which they came. The only implementation here is ListQuene; the interface
// stands apart so that code which fills or drains a queue need not know how it keeps its elements.
//
// A queue of pointers does not own the objects. T must be default constructible and copyable. Asking an empty
// queue for an element is allowed and gives a default one (0, null), so a loop may also end on that where the
// queue holds no such element.
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
    // How many elements wait.
    virtual long GetNum() const = 0;
    virtual bool IsEmpty() const = 0;
    // Takes all elements out.
    virtual void Clear() = 0;
};

} // namespace QuorUiCtr
