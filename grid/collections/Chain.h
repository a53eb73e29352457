// Chain: the circular chain of nodes with a cursor that the lists are made of.
#pragma once

#include "grid/collections/ChainNode.h"
#include "grid/collections/NodeStore.h"
#include "grid/collections/PositionIndex.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
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

    void MoveToNext()
    {
        current = current->next;
        cursor = current == &head ? -1 : cursor + 1;
    }

    void MoveToPrevious()
    {
        if (cursor < 0) {
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
        if (mark.revision != revision) {
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
        for (const T& element : elements) {
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
        Changed(first);
        if (cursor >= first + number) {
            cursor -= number;
        } else if (cursor >= first) {
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
        positions.swap(other.positions);
        if (other.count > 0) {
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
        Join(before, node->next);
        Node* newAfter = newBefore->next;
        Join(newBefore, node);
        Join(node, newAfter);
        Changed(from < to ? from : to);
        cursor = to > from ? to - 1 : to;
        current = node;
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
        for (Node* node : nodes) {
            Join(before, node);
            before = node;
            if (node == current)
                cursor = index;
            ++index;
        }
        Join(before, &head);
        Changed(0);
    }

    void Reserve(long elements)
    {
        if (elements > count)
            store.Reserve(static_cast<std::size_t>(elements), GetNodeSize());
    }

private:
    using Positions = PositionIndex<Node>;
    using Place = ChainPlace<T>;

    std::size_t GetNodeSize() const { return backLinks ? sizeof(BackNode) : sizeof(Node); }

    Node* Make(const T& element)
    {
        static_assert(alignof(BackNode) <= alignof(std::max_align_t));
        void* slot = store.Take(GetNodeSize());
        try {
            if (backLinks)
                return new (slot) BackNode{{nullptr, element}, nullptr};
            return new (slot) Node{nullptr, element};
        } catch (...) {
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
        if constexpr (!NodeStore::usesBlocks || !std::is_trivially_destructible_v<T>) {
            for (Node* node = head.next; node != &head;)
                node = Destroy(node);
        }
        ReleaseMemory();
    }

    void ReleaseMemory()
    {
        store.Release();
        positions.reset();
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
        Changed(index);
    }

    void EnterAfterCursor(Node* node)
    {
        Link(current, node, cursor + 1);
        current = node;
        ++cursor;
    }

    // The elements from `index` on have other positions than before.
    void Changed(long index)
    {
        ++revision;
        if (positions)
            positions->Truncate(index);
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
        const Place place = FindNearest(index);
        const long distance = std::abs(index - place.index);
        if (distance <= Positions::spacing || count <= Positions::smallestUse || !MarkUpTo(index, distance))
            return place.WalkTo(index);
        return FindNearest(index).WalkTo(index);
    }

    Place FindNearest(long index)
    {
        Place nearest{head.next, 0};
        const auto consider = [&](Node* node, long position) {
            if ((backLinks || position <= index) &&
                std::abs(index - position) < std::abs(index - nearest.index))
                nearest = {node, position};
        };
        consider(last, count - 1);
        if (cursor >= 0)
            consider(current, cursor);
        if (positions)
            ConsiderMarks(index, consider);
        return nearest;
    }

    // The marks on either side of `index`, or the last one before it.
    template <class Consider> void ConsiderMarks(long index, const Consider& consider)
    {
        const long marks = positions->GetMarkNum();
        const long mark = std::min(index / Positions::spacing, marks - 1);
        if (mark >= 0)
            consider(positions->GetMark(mark), mark * Positions::spacing);
        if (mark + 1 < marks)
            consider(positions->GetMark(mark + 1), (mark + 1) * Positions::spacing);
    }

    // Sets the marks up to `index`, which would otherwise be `distance` steps away, when that pays off.
    // Without memory for marks the chain does without.
    bool MarkUpTo(long index, long distance) noexcept
    try {
        if (!positions)
            positions = std::make_unique<Positions>();
        if (!positions->PaysOff(distance, index - positions->GetMarkNum() * Positions::spacing))
            return false;
        if (positions->GetMarkNum() == 0)
            positions->AddMark(head.next);
        long mark = positions->GetMarkNum() - 1;
        Place place{positions->GetMark(mark), mark * Positions::spacing};
        while (++mark * Positions::spacing <= index) {
            place = {place.WalkTo(mark * Positions::spacing), mark * Positions::spacing};
            positions->AddMark(place.node);
        }
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }

    long count = 0;
    long cursor = -1;
    Node head{&head, T()};
    Node* last = &head;
    Node* current = &head;
    NodeStore store;
    std::unique_ptr<Positions> positions;
    std::uint32_t revision = 0; // grows with every structural change
    bool backLinks;
};

} // namespace QuorUiCtr::Detail
