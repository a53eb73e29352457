// ChainNode: the nodes of a chain, places among them and the iterator over them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <type_traits>

namespace QuorUiCtr::Detail
{

template <class T> struct ChainNode
{
    ChainNode* next;
    T element;
};

template <class T> struct BackLinkedNode : ChainNode<T>
{
    ChainNode<T>* previous;
};

// A node and its position.
template <class T> struct ChainPlace
{
    ChainNode<T>* node;
    long index;

    // The node at `position`, step by step; an earlier position needs nodes that are linked both ways.
    ChainNode<T>* WalkTo(long position) const
    {
        ChainNode<T>* reached = node;
        for (long i = index; i < position; ++i)
            reached = reached->next;
        for (long i = index; i > position; --i)
            reached = static_cast<BackLinkedNode<T>*>(reached)->previous;
        return reached;
    }
};

// What brings a cursor back to where it was; `revision` is that of the chain's structure.
template <class T> struct ChainCursorMark
{
    long index;
    ChainNode<T>* node;
    std::uint32_t revision;
};

// Walks the elements of a chain from first to last without touching its cursor.
template <class T, class Element> class ChainIterator
{
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = Element*;
    using reference = Element&;
    using Node = std::conditional_t<std::is_const_v<Element>, const ChainNode<T>, ChainNode<T>>;

    ChainIterator() = default;
    explicit ChainIterator(Node* position) : node(position) {}

    Element& operator*() const { return node->element; }
    Element* operator->() const { return &node->element; }
    ChainIterator& operator++()
    {
        node = node->next;
        return *this;
    }
    ChainIterator operator++(int)
    {
        ChainIterator before = *this;
        ++*this;
        return before;
    }
    bool operator==(const ChainIterator&) const = default;

private:
    Node* node = nullptr;
};

} // namespace QuorUiCtr::Detail
