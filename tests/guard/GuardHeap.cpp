// Places blocks at the end of pages, with an inaccessible page behind each, in an address range that only
// grows.
#include "GuardHeap.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace quor::guard
{

namespace
{

constexpr std::size_t Page = 4096;
constexpr std::size_t ArenaSize = std::size_t{256} << 30;
constexpr std::size_t MaxBlocks = std::size_t{32} << 20;
constexpr std::size_t RecordsPerCommit = 1024;
constexpr std::size_t ChunkSize = 256 << 10;
constexpr std::size_t ChunkPadding = 32;
constexpr unsigned char FreshByte = 0xCD;
constexpr unsigned char PaddingByte = 0xFD;
constexpr unsigned char DeletedByte = 0xDD;

HeapOptions options;
SRWLOCK lock = SRWLOCK_INIT;
char* arena;
char* arenaNext; // the first byte never used
char* chunkNext; // the free rest of the newest chunk
char* chunkEnd;
Block* blocks; // sorted by address, because the arena only grows
std::size_t blockCount;
std::size_t committedRecords;
std::size_t liveBlocks;
std::size_t liveBytes;
std::size_t blocksWithPages;
bool packing;
bool ignoringLeaks;
volatile LONG failAt;

class Locked
{
public:
    Locked() { AcquireSRWLockExclusive(&lock); }
    ~Locked() { ReleaseSRWLockExclusive(&lock); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
};

constexpr std::size_t RoundUp(std::size_t value, std::size_t unit)
{
    return (value + unit - 1) / unit * unit;
}

char* AlignDown(char* address, std::size_t alignment)
{
    return reinterpret_cast<char*>(reinterpret_cast<std::uintptr_t>(address) & ~(alignment - 1));
}

bool Commit(void* start, std::size_t size)
{
    return VirtualAlloc(start, size, MEM_COMMIT, PAGE_READWRITE) != nullptr;
}

bool ArenaHas(std::size_t size)
{
    return size < ArenaSize && static_cast<std::size_t>(arena + ArenaSize - arenaNext) >= size + Page;
}

// No type needs more alignment than the lowest set bit of its size, so a tight fit finds an overflow by one
// byte.
std::size_t EffectiveAlignment(std::size_t size, std::size_t wanted)
{
    const std::size_t lowestBit = size != 0 ? size & (~size + 1) : 1;
    const std::size_t natural = std::min<std::size_t>(lowestBit, __STDCPP_DEFAULT_NEW_ALIGNMENT__);
    return (std::max)({wanted, natural, options.minimumAlignment});
}

bool PlaceInChunk(Block& block, std::size_t size)
{
    const std::size_t need = RoundUp(size + 2 * ChunkPadding, ChunkPadding);
    if (static_cast<std::size_t>(chunkEnd - chunkNext) < need)
    {
        if (!ArenaHas(ChunkSize) || !Commit(arenaNext, ChunkSize))
            return false;
        chunkNext = arenaNext;
        chunkEnd = chunkNext + ChunkSize;
        arenaNext = chunkEnd + Page;
    }
    block.base = chunkNext;
    block.span = need;
    block.user = block.base + ChunkPadding;
    block.ownPages = false;
    chunkNext += need;
    return true;
}

bool PlaceOnPages(Block& block, std::size_t size, std::size_t alignment)
{
    const std::size_t slack = alignment > Page ? alignment : 0;
    const std::size_t span = (std::max)(RoundUp(size + slack, Page), Page);
    if (size >= ArenaSize / 2 || !ArenaHas(span) || !Commit(arenaNext, span))
        return false;
    block.base = arenaNext;
    block.span = span;
    block.user = options.underflow ? AlignDown(block.base + alignment - 1, alignment)
                                   : AlignDown(block.base + span - size, alignment);
    block.ownPages = true;
    ++blocksWithPages;
    arenaNext += span + Page;
    // Only the newest chunk may be filled further: records are sorted by address.
    chunkNext = chunkEnd = nullptr;
    return true;
}

// With too many live blocks, packing goes on until half of them are gone.
bool Place(Block& block, std::size_t size, std::size_t alignment)
{
    packing = blocksWithPages >= (packing ? options.ownPagesLimit / 2 : options.ownPagesLimit);
    if (packing && size <= ChunkSize / 4 && alignment <= ChunkPadding)
        return PlaceInChunk(block, size);
    return PlaceOnPages(block, size, alignment);
}

Block* NewRecord()
{
    if (blockCount == committedRecords && blockCount < MaxBlocks &&
        Commit(blocks + blockCount, RecordsPerCommit * sizeof(Block)))
        committedRecords += RecordsPerCommit;
    return blockCount < committedRecords ? &blocks[blockCount] : nullptr;
}

Block* Record(std::size_t size, std::size_t alignment, Form form, const StackTrace& trace)
{
    const Locked locked;
    Block* block = NewRecord();
    if (block == nullptr || !Place(*block, size, alignment))
        return nullptr;
    block->size = size;
    block->form = form;
    block->live = true;
    block->mayStayBehind = ignoringLeaks;
    block->thread = GetCurrentThreadId();
    block->allocatedAt = trace;
    ++blockCount;
    ++liveBlocks;
    liveBytes += size;
    return block;
}

void FillFresh(const Block& block)
{
    char* const end = block.user + block.size;
    std::memset(block.base, PaddingByte, static_cast<std::size_t>(block.user - block.base));
    std::memset(block.user, FreshByte, block.size);
    std::memset(end, PaddingByte, static_cast<std::size_t>(block.base + block.span - end));
}

bool IsPadding(const char* first, const char* last)
{
    return std::all_of(first, last,
                       [](char byte) { return static_cast<unsigned char>(byte) == PaddingByte; });
}

} // namespace

bool Block::IntactBefore() const
{
    return IsPadding(base, user);
}

bool Block::IntactAfter() const
{
    return IsPadding(user + size, base + span);
}

void StartHeap(const HeapOptions& chosen)
{
    options = chosen;
    options.frames = (std::min)(options.frames, MaxFrames);
    arena = static_cast<char*>(VirtualAlloc(nullptr, ArenaSize, MEM_RESERVE, PAGE_NOACCESS));
    blocks =
        static_cast<Block*>(VirtualAlloc(nullptr, MaxBlocks * sizeof(Block), MEM_RESERVE, PAGE_NOACCESS));
    arenaNext = arena + Page;
}

void* Allocate(std::size_t size, std::size_t alignment, Form form)
{
    if (failAt > 0 && InterlockedDecrement(&failAt) == 0)
        return nullptr;
    StackTrace trace;
    CaptureHere(trace, options.frames, 2);
    const Block* block = Record(size, EffectiveAlignment(size, alignment), form, trace);
    if (block == nullptr)
        return nullptr;
    FillFresh(*block);
    return block->user;
}

bool Release(Block& block)
{
    StackTrace trace;
    CaptureHere(trace, options.frames, 2);
    {
        const Locked locked;
        if (!block.live)
            return false;
        block.live = false;
        block.deletedAt = trace;
        --liveBlocks;
        liveBytes -= block.size;
        blocksWithPages -= block.ownPages ? 1 : 0;
    }
    if (block.ownPages)
        VirtualFree(block.base, block.span, MEM_DECOMMIT);
    else
        std::memset(block.user, DeletedByte, block.size);
    return true;
}

Block* FindBlock(const void* address)
{
    Block* const end = blocks + blockCount;
    Block* const after = std::upper_bound(blocks, end, address, [](const void* wanted, const Block& block) {
        return wanted < static_cast<const void*>(block.base);
    });
    return after == blocks ? nullptr : after - 1;
}

Block* NextBlock(const Block& block)
{
    const std::size_t next = static_cast<std::size_t>(&block - blocks) + 1;
    return next < blockCount ? &blocks[next] : nullptr;
}

bool IsOurs(const void* address)
{
    return address >= arena && address < arenaNext;
}

std::size_t BlockCount()
{
    return blockCount;
}

Block& BlockAt(std::size_t index)
{
    return blocks[index];
}

std::size_t LiveBlockCount()
{
    return liveBlocks;
}

std::size_t LiveByteCount()
{
    return liveBytes;
}

const HeapOptions& Options()
{
    return options;
}

void FailAt(long n)
{
    InterlockedExchange(&failAt, n);
}

void IgnoreLeaks(bool ignore)
{
    ignoringLeaks = ignore;
}

} // namespace quor::guard
