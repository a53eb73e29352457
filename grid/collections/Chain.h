// Chain: the circular chain of nodes with a cursor that the lists are made of.
#pragma once

#include "grid/collections/ChainNode.h"
#include "grid/collections/NodeStore.h"
#include "grid/collections/RememberedPlaces.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

namespace QuorUiCtr::Detail
{

// A chain of nodes, circular through a head node that holds no element, with a cursor. Nodes are linked
// forward, and backward too when the chain was made so. The cursor index is -1, and the current node the
// head, when there is no current element. The node before the first and after the last is the head.
template <class T> class Chain
{
public:
    using Node = ChainNode<T>;
    using CursorMark = ChainCursorMark<T>;
    using BackNode = BackLinkedNode<T>;
    using Iterator = ChainIterator<T, T>;
    using ConstIterator = ChainIterator<T, const T>;
    using Place = ChainPlace<T>;

    enum class Links
    {
        Forward,
        BothWays
    };

    explicit Chain(Links kind) : backLinks(kind == Links::BothWays) {}
    Chain(const Chain&) = delete;
    Chain& operator=(const Chain&) = delete;
    ~Chain() { DestroyAll(); }

    long GetNum() const { return count; }
    long GetCursor() const { return cursor; }
    bool IsOut() const { return cursor < 0 || cursor >= count; }
    bool IsInside(long index) const { return index >= 0 && index < count; }

    Iterator begin() { return Iterator(head.next); }
    Iterator end() { return Iterator(&head); }
    ConstIterator begin() const { return ConstIterator(head.next); }
    ConstIterator end() const { return ConstIterator(&head); }
    // The end when `index` lies outside.
    Iterator IteratorAt(long index) { return Iterator(IsInside(index) ? NodeAt(index) : &head); }

    // The element under the cursor; without one, the head's element, set to its default.
    T& Cur()
    {
        if (current == &head)
            head.element = T();
        return current->element;
    }

    void MoveTo(long index)
    {
        current = IsInside(index) ? NodeAt(index) : &head;
        cursor = current == &head ? -1 : index;
    }

    // In a chain whose elements for which `precedes` holds come first: the place of the first element for
    // which it does not hold; the head, at the count, when there is none.
    template <class Precedes> Place FindPartition(const Precedes& precedes)
    {
        if (count == 0 || precedes(last->element))
            return {&head, count};
        Place place{head.next, 0};
        if (const auto* index = places.Find(head.next, count, count))
            place = index->FindPartition(precedes);
        for (; precedes(place.node->element); ++place.index)
            place.node = place.node->next;
        return place;
    }

    // Remembering places is no change.
    template <class Precedes> ConstIterator FindPartition(const Precedes& precedes) const
    {
        return ConstIterator(const_cast<Chain*>(this)->FindPartition(precedes).node);
    }

    void MoveToPlace(const Place& place)
    {
        current = place.node;
        cursor = current == &head ? -1 : place.index;
    }

    void MoveToNext()
    {
        current = current->next;
        cursor = current == &head ? -1 : cursor + 1;
    }

    void MoveToPrevious()
    {
        if (cursor < 0)
        {
            MoveTo(count - 1);
            return;
        }
        current = NodeBefore(cursor);
        --cursor;
    }

    CursorMark MarkCursor() const { return {cursor, current, revision}; }

    // In constant time while the structure has not changed since the mark was made; by index otherwise.
    void RestoreCursor(const CursorMark& mark)
    {
        if (mark.revision != revision)
        {
            MoveTo(mark.index);
            return;
        }
        cursor = mark.index;
        current = mark.node;
    }

    // Inserts behind the current node (without one, at the front); the new element becomes current.
    void InsertAfterCursor(const T& element) { EnterAfterCursor(Make(element)); }

    // Inserts before the current node (without one, at the end); the new element becomes current.
    void InsertBeforeCursor(const T& element)
    {
        Node* node = Make(element);
        MoveToPrevious();
        EnterAfterCursor(node);
    }

    // The new element becomes current.
    void Append(const T& element)
    {
        Node* node = Make(element);
        Link(last, node, count);
        current = node;
        cursor = count - 1;
    }

    // Inserts before the element at `index` (count: at the end). The cursor stays on its element.
    void InsertAt(long index, std::span<const T> elements)
    {
        Reserve(count + static_cast<long>(elements.size()));
        Node* before = NodeBefore(index);
        for (const T& element : elements)
        {
            Node* node = Make(element);
            Link(before, node, index++);
            before = node;
        }
    }

    // Appends default elements until there are `newCount`. The cursor stays on its element.
    void Grow(long newCount)
    {
        Reserve(newCount);
        while (count < newCount)
            Link(last, Make(T()), count);
    }

    // Removes `number` elements from `first` on, all of which exist. A cursor on one of them moves to the
    // element before them.
    void Remove(long first, long number)
    {
        Node* before = NodeBefore(first);
        Node* node = before->next;
        Node* after = node;
        for (long i = 0; i < number; ++i)
            after = after->next;
        Join(before, after);
        count -= number;
        Removed(first, number, after);
        if (cursor >= first + number)
        {
            cursor -= number;
        }
        else if (cursor >= first)
        {
            cursor = first - 1;
            current = before;
        }
        while (node != after)
            node = Destroy(node);
        if (count == 0)
            ReleaseMemory();
    }

    void Clear()
    {
        Chain doomed(backLinks ? Links::BothWays : Links::Forward);
        doomed.TakeAll(*this);
    }

    // Takes the nodes of `other`, which ends up empty. This chain must be empty and linked the same way.
    void TakeAll(Chain& other)
    {
        store.Swap(other.store);
        places.Swap(other.places);
        if (other.count > 0)
        {
            Join(&head, other.head.next);
            Join(other.last, &head);
        }
        count = std::exchange(other.count, 0);
        ++revision;
        other.Join(&other.head, &other.head);
        other.current = &other.head;
        other.cursor = -1;
        ++other.revision;
    }

    // Moves the element at `from` before the element at `to` (count: to the end) and makes it current. Both
    // positions exist and `to` is neither `from` nor `from` + 1.
    void Move(long from, long to)
    {
        Node* before = NodeBefore(from);
        Node* node = before->next;
        Node* newBefore = NodeBefore(to);
        Node* after = node->next;
        Join(before, after);
        Removed(from, 1, after);
        Node* newAfter = newBefore->next;
        Join(newBefore, node);
        Join(node, newAfter);
        cursor = to > from ? to - 1 : to;
        current = node;
        Inserted(cursor, node);
    }

    // All nodes in order, for sorting; and the way back: `nodes` holds the same nodes in another order. The
    // cursor stays on its element.
    std::vector<Node*> GetNodes()
    {
        std::vector<Node*> nodes;
        nodes.reserve(static_cast<std::size_t>(count));
        for (Node* node = head.next; node != &head; node = node->next)
            nodes.push_back(node);
        return nodes;
    }

    void Relink(const std::vector<Node*>& nodes)
    {
        Node* before = &head;
        long index = 0;
        for (Node* node : nodes)
        {
            Join(before, node);
            before = node;
            if (node == current)
                cursor = index;
            ++index;
        }
        Join(before, &head);
        ++revision;
        places.Forget();
    }

    void Reserve(long elements)
    {
        if (elements > count)
            store.Reserve(static_cast<std::size_t>(elements), GetNodeSize());
    }

private:
    std::size_t GetNodeSize() const { return backLinks ? sizeof(BackNode) : sizeof(Node); }

    Node* Make(const T& element)
    {
        static_assert(alignof(BackNode) <= alignof(std::max_align_t));
        void* slot = store.Take(GetNodeSize());
        try
        {
            if (backLinks)
                return new (slot) BackNode{{nullptr, element}, nullptr};
            return new (slot) Node{nullptr, element};
        }
        catch (...)
        {
            store.Give(slot);
            throw;
        }
    }

    // Returns the node's successor.
    Node* Destroy(Node* node)
    {
        Node* next = node->next;
        node->element.~T();
        store.Give(node);
        return next;
    }

    void DestroyAll()
    {
        if constexpr (!NodeStore::UsesBlocks || !std::is_trivially_destructible_v<T>)
        {
            for (Node* node = head.next; node != &head;)
                node = Destroy(node);
        }
        ReleaseMemory();
    }

    void ReleaseMemory()
    {
        store.Release();
        places.Release();
    }

    // Makes `after` the successor of `before`. Either may be the head.
    void Join(Node* before, Node* after)
    {
        before->next = after;
        if (after == &head)
            last = before;
        else if (backLinks)
            static_cast<BackNode*>(after)->previous = before;
    }

    // Enters `node` behind `before` as the element number `index`.
    void Link(Node* before, Node* node, long index)
    {
        Node* after = before->next;
        Join(before, node);
        Join(node, after);
        ++count;
        if (cursor >= index)
            ++cursor;
        Inserted(index, node);
    }

    void EnterAfterCursor(Node* node)
    {
        Link(current, node, cursor + 1);
        current = node;
        ++cursor;
    }

    // The element number `index` is `node`, which has just been linked in.
    void Inserted(long index, Node* node)
    {
        ++revision;
        places.Inserted(index, node);
    }

    // `number` elements have been taken out in front of `after`, which is the element number `index` now.
    void Removed(long index, long number, Node* after)
    {
        ++revision;
        places.Removed(index, number, after, count);
    }

    // The node before position `index`, which may be the count.
    Node* NodeBefore(long index)
    {
        if (index == 0)
            return &head;
        if (backLinks && index == cursor)
            return static_cast<BackNode*>(current)->previous;
        return NodeAt(index - 1);
    }

    // The node at `index`, which exists, reached on the shortest way known.
    Node* NodeAt(long index)
    {
        if (index == count - 1)
            return last;
        Place nearest = NearestOf({head.next, 0}, {last, count - 1}, index);
        if (cursor >= 0)
            nearest = NearestOf(nearest, {current, cursor}, index);
        const long distance = std::abs(index - nearest.index);
        if (distance > ShortWalk)
            if (const auto* known = places.Find(head.next, count, distance))
                nearest = NearestOf(nearest, known->FindNearest(index, backLinks), index);
        return nearest.WalkTo(index);
    }

    // The place from which `index` is reached in fewer steps; it can be reached from `first`.
    Place NearestOf(const Place& first, const Place& second, long index) const
    {
        const bool reaches = backLinks || second.index <= index;
        return reaches && std::abs(index - second.index) < std::abs(index - first.index) ? second : first;
    }

    // Walks of at most this many steps are not worth looking for a better one.
    static constexpr long ShortWalk = 8;

    long count = 0;
    long cursor = -1;
    Node head{&head, T()};
    Node* last = &head;
    Node* current = &head;
    NodeStore store;
    RememberedPlaces<T> places;
    std::uint32_t revision = 0; // grows with every structural change
    bool backLinks;
};

} // namespace QuorUiCtr::Detail
