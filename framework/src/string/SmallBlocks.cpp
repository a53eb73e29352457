// Memory for many blocks of one small size.
#include "SmallBlocks.h"

#include <atomic>
#include <new>

namespace
{

// What the system hands out at least, and at a multiple of which it begins: a block's address tells its
// chunk.
constexpr DWORD ChunkSize = 0x10000;

// The system's locks cost more than all that is done while this one is held. Who finds it taken lets others
// run, in the end those of lower priority as well.
class SmallBlocksLock
{
public:
    explicit SmallBlocksLock(std::atomic_flag& heldFlag) : flag(heldFlag)
    {
        for (int attempts = 0; flag.test_and_set(std::memory_order_acquire); ++attempts)
            Sleep(attempts < 16 ? 0 : 1);
    }
    ~SmallBlocksLock() { flag.clear(std::memory_order_release); }
    SmallBlocksLock(const SmallBlocksLock&) = delete;
    SmallBlocksLock& operator=(const SmallBlocksLock&) = delete;

private:
    std::atomic_flag& flag;
};

} // namespace

struct SmallBlocks::Block
{
    Block* next;
};

// Blocks follow the head. Those from `untouched` on have never been used.
struct alignas(16) SmallBlocks::Chunk
{
    Chunk* previous;
    Chunk* next;
    Block* free;
    DWORD untouched;
    DWORD used;
    bool HasRoom(DWORD blockSize) const { return free != nullptr || untouched + blockSize <= ChunkSize; }
};

SmallBlocks::Chunk* SmallBlocks::ChunkOf(void* block)
{
    return reinterpret_cast<Chunk*>(reinterpret_cast<UINT_PTR>(block) & ~UINT_PTR{ChunkSize - 1});
}

void SmallBlocks::Enter(Chunk* chunk)
{
    chunk->previous = nullptr;
    chunk->next = roomy;
    if (roomy != nullptr)
        roomy->previous = chunk;
    roomy = chunk;
}

void SmallBlocks::Leave(Chunk* chunk)
{
    if (chunk->next != nullptr)
        chunk->next->previous = chunk->previous;
    if (chunk->previous != nullptr)
        chunk->previous->next = chunk->next;
    else
        roomy = chunk->next;
}

SmallBlocks::Chunk* SmallBlocks::AddChunk()
{
    void* memory = VirtualAlloc(nullptr, ChunkSize, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
    if (memory == nullptr)
        throw std::bad_alloc();
    Chunk* chunk = new (memory) Chunk{nullptr, nullptr, nullptr, sizeof(Chunk), 0};
    Enter(chunk);
    return chunk;
}

void* SmallBlocks::Take()
{
    const SmallBlocksLock guard(lock);
    Chunk* chunk = roomy != nullptr ? roomy : AddChunk();
    void* block = chunk->free;
    if (block != nullptr)
    {
        chunk->free = chunk->free->next;
    }
    else
    {
        block = reinterpret_cast<BYTE*>(chunk) + chunk->untouched;
        chunk->untouched += blockSize;
    }
    ++chunk->used;
    if (!chunk->HasRoom(blockSize))
        Leave(chunk);
    return block;
}

void SmallBlocks::Give(void* block) noexcept
{
    Chunk* chunk = ChunkOf(block);
    const SmallBlocksLock guard(lock);
    if (!chunk->HasRoom(blockSize))
        Enter(chunk);
    chunk->free = new (block) Block{chunk->free};
    --chunk->used;
    if (chunk->used == 0 && (chunk->previous != nullptr || chunk->next != nullptr))
    {
        Leave(chunk);
        VirtualFree(chunk, 0, MEM_RELEASE);
    }
}
