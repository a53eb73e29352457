// SmallBlocks: memory for many blocks of one small size.
#pragma once

#include "afx.h"

#include <atomic>

// Takes memory from the system in chunks and cuts them into blocks, which have nothing in front of them that
// says what they are: a general allocator spends half as much again on a block of 32 bytes, and several times
// the time. A chunk without blocks in use goes back to the system; one is kept, so that a block that comes
// and goes costs no chunk. For all threads. Everything is constant-initialized and nothing destroyed, so that
// strings may come before and after all other objects of a program.
class SmallBlocks
{
public:
    explicit constexpr SmallBlocks(DWORD size) : blockSize(size) {}
    SmallBlocks(const SmallBlocks&) = delete;
    SmallBlocks& operator=(const SmallBlocks&) = delete;

    // Throws std::bad_alloc.
    void* Take();
    void Give(void* block) noexcept;

private:
    struct Block;
    struct Chunk;

    static Chunk* ChunkOf(void* block);
    Chunk* AddChunk();
    void Enter(Chunk* chunk);
    void Leave(Chunk* chunk);

    DWORD blockSize;
    // Set while a thread is inside.
    std::atomic_flag lock;
    // The chunks that have room; the one at the front serves.
    Chunk* roomy = nullptr;
};
