// The blocks of the guard allocator: where they lie, who made and deleted them, whether their surroundings
// are intact.
#pragma once

#include "GuardStack.h"

#include <cstddef>
#include <cstdint>

namespace quor::guard
{

// Which form of new made a block.
enum class Form : std::uint8_t
{
    Scalar,
    Array
};

// One allocation. Records are kept for ever, so that a use after the delete can be explained.
struct Block
{
    char* base;       // first byte of the block's pages, or of its piece of a chunk
    std::size_t span; // bytes from base on that belong to the block
    char* user;       // what new returned
    std::size_t size; // what new was asked for
    DWORD thread;
    Form form;
    bool live;
    bool ownPages;      // false: packed into a chunk with padding on both sides
    bool mayStayBehind; // not a leak when it lives at the end
    StackTrace allocatedAt;
    StackTrace deletedAt;

    // Whether the bytes around the block still hold the padding.
    bool IntactBefore() const;
    bool IntactAfter() const;
};

struct HeapOptions
{
    std::size_t ownPagesLimit = 30000;
    std::size_t minimumAlignment = 1;
    std::size_t frames = 8;
    bool underflow = false;
};

// Reserves the address space. Called once, before the first allocation.
void StartHeap(const HeapOptions& options);

// Returns null when memory is exhausted or the failure asked for by FailAt is due.
void* Allocate(std::size_t size, std::size_t alignment, Form form);

// Gives a live block back. Returns false when another thread has deleted it meanwhile.
bool Release(Block& block);

// The last block that starts at or before the address (null: none) and the one after it (null: none).
Block* FindBlock(const void* address);
Block* NextBlock(const Block& block);

// Whether the address lies in the part of the address space that the heap has used so far.
bool IsOurs(const void* address);

std::size_t BlockCount();
Block& BlockAt(std::size_t index);
std::size_t LiveBlockCount();
std::size_t LiveByteCount();
const HeapOptions& Options();
void FailAt(long n);
void IgnoreLeaks(bool ignore);

} // namespace quor::guard
