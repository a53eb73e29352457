// CellBlock: the memory of the cells that a row is made with.
#pragma once

#include "grid/TGGridCell.h"
#include "grid/collections/NodeStore.h"

#include <cstddef>
#include <cstdint>
#include <new>

namespace QuorUiCtr
{

// One allocation for the cells of a row: an allocation for each costs more time than making the cell, and a
// third more memory. Places are counted from 1; a cell knows its own, 0 without a block, and gives it back
// when it is deleted. The memory goes with the last one.
class CellBlock
{
public:
    // With _DEBUG defined each cell is an allocation of its own, so that a guarding allocator sees it.
    static constexpr bool IsUsed = Detail::NodeStore::UsesBlocks;

    // `cells` places, at least one, all of them in use. Throws std::bad_alloc.
    static CellBlock* Make(std::uint32_t cells)
    {
        return new (::operator new(sizeof(CellBlock) + cells * sizeof(TGGridCell))) CellBlock(cells);
    }
    // The block of the cell at `memory`.
    static CellBlock* Of(void* memory, std::uint32_t place)
    {
        return reinterpret_cast<CellBlock*>(static_cast<std::byte*>(memory) -
                                            (place - 1) * sizeof(TGGridCell)) -
               1;
    }

    void* MemoryAt(std::uint32_t place)
    {
        return reinterpret_cast<std::byte*>(this + 1) + (place - 1) * sizeof(TGGridCell);
    }
    // A place is not in use any more. Deletes the block with the last one.
    void GiveBack()
    {
        if (--used == 0)
            ::operator delete(this);
    }

private:
    explicit CellBlock(std::uint32_t cells) : used(cells) {}

    alignas(TGGridCell) std::uint32_t used;
};

} // namespace QuorUiCtr
