// NodeStore: the memory of one list's nodes, taken in blocks.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>

namespace QuorUiCtr::Detail
{

// Hands out equally sized slots for the nodes of one list. An empty store owns no memory; blocks grow with
// the list from 4 to 512 slots, slots given back are used again, and all blocks go at once with Release().
//
// With _DEBUG defined every slot is an allocation of its own, so that a guarding allocator sees each node;
// slots that are reserved wait in a list.
// All modules of a process that share lists must agree on _DEBUG. One thread only, like the lists themselves.
class NodeStore
{
public:
#ifdef _DEBUG
    static constexpr bool UsesBlocks = false;
#else
    static constexpr bool UsesBlocks = true;
#endif

    NodeStore() = default;
    NodeStore(const NodeStore&) = delete;
    NodeStore& operator=(const NodeStore&) = delete;
    ~NodeStore()
    {
        Release();
    }

    // A slot of `slotSize` bytes, which must be the same in every call. Throws std::bad_alloc.
    void* Take(std::size_t slotSize)
    {
        if constexpr (!UsesBlocks)
            return TakeSingle(slotSize);
        if (newest == nullptr || (newest->freeSlots == nullptr && newest->used == newest->capacity))
            AddBlock(NextCapacity(), slotSize);
        if (FreeSlot* slot = newest->freeSlots)
        {
            newest->freeSlots = slot->next;
            return slot;
        }
        return SlotAt(newest->used++, slotSize);
    }

    // Takes back a slot whose node has been destroyed.
    void Give(void* slot) noexcept
    {
        if constexpr (!UsesBlocks)
        {
            --newest->used;
            --newest->total;
            ::operator delete(slot);
        }
        else
            newest->freeSlots = new (slot) FreeSlot{newest->freeSlots};
    }

    // Makes room for `slots` slots in all, those in use included.
    void Reserve(std::size_t slots, std::size_t slotSize)
    {
        if constexpr (!UsesBlocks)
        {
            while (newest == nullptr || newest->total < slots)
                AddSpare(slotSize);
            return;
        }
        const std::size_t present = newest == nullptr ? 0 : newest->total;
        if (slots > present)
            AddBlock(present == 0 ? slots : (std::max)(slots - present, NextCapacity()), slotSize);
    }

    // Frees every block. Every node must have been destroyed, or need no destruction.
    void Release() noexcept
    {
        while (!UsesBlocks && newest != nullptr && newest->freeSlots != nullptr)
            ::operator delete(std::exchange(newest->freeSlots, newest->freeSlots->next));
        while (newest != nullptr)
        {
            Block* block = std::exchange(newest, newest->older);
            ::operator delete(block);
        }
    }

    void Swap(NodeStore& other) noexcept
    {
        std::swap(newest, other.newest);
    }

private:
    struct FreeSlot
    {
        FreeSlot* next;
    };

    // The head of a block; its slots follow it. Only the newest block's counters and free slots are in use.
    struct alignas(std::max_align_t) Block
    {
        Block* older;
        FreeSlot* freeSlots;
        std::uint32_t used;
        std::uint32_t capacity;
        std::uint32_t total; // slots of this and all older blocks
    };

    // Without blocks a head without slots keeps the slots that are reserved, one allocation each.
    void* TakeSingle(std::size_t slotSize)
    {
        if (newest == nullptr || newest->freeSlots == nullptr)
            AddSpare(slotSize);
        ++newest->used;
        return std::exchange(newest->freeSlots, newest->freeSlots->next);
    }

    void AddSpare(std::size_t slotSize)
    {
        void* slot = ::operator new(slotSize);
        try
        {
            if (newest == nullptr)
                newest = new (::operator new(sizeof(Block))) Block{nullptr, nullptr, 0, 0, 0};
        }
        catch (...)
        {
            ::operator delete(slot);
            throw;
        }
        newest->freeSlots = new (slot) FreeSlot{newest->freeSlots};
        ++newest->total;
    }

    std::size_t NextCapacity() const
    {
        return newest == nullptr ? 4 : std::min<std::size_t>(2 * std::size_t{newest->total}, 512);
    }

    void AddBlock(std::size_t capacity, std::size_t slotSize)
    {
        void* memory = ::operator new(sizeof(Block) + capacity * slotSize);
        const auto slots = static_cast<std::uint32_t>(capacity);
        if (newest == nullptr)
        {
            newest = new (memory) Block{nullptr, nullptr, 0, slots, slots};
            return;
        }
        while (newest->used < newest->capacity)
            Give(SlotAt(--newest->capacity, slotSize));
        newest = new (memory) Block{newest, newest->freeSlots, 0, slots, newest->total + slots};
    }

    void* SlotAt(std::uint32_t number, std::size_t slotSize)
    {
        return reinterpret_cast<std::byte*>(newest + 1) + number * slotSize;
    }

    Block* newest = nullptr;
};

} // namespace QuorUiCtr::Detail
