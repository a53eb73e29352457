// The blocks that hold the characters of strings.

#include "SmallBlocks.h"

// Unknown to the header, so that compilers do not mistake it for what every string's text points to.
struct CNilStringData : public CStringData
{
    static constexpr LONG Refs = NilRefs;
    wchar_t terminator[2];
};

CNilStringData CStringData::s_nil = {{0, 0, CNilStringData::Refs}, {0, 0}};

namespace
{

#ifdef _DEBUG
// As tight as the alignment allows, so that a write past the requested room leaves the block; and each block
// by itself, so that a guarding allocator sees it.
constexpr size_t BlockGranularity = alignof(CStringData);
constexpr size_t PooledSizes = 0;
#else
// The string may as well use what the allocator rounds up to.
constexpr size_t BlockGranularity = 16;
// So many sizes, from 16 bytes on, come from pools: wide texts of up to 25 characters.
constexpr size_t PooledSizes = 4;
#endif

SmallBlocks TextBlocks[] = {SmallBlocks(16), SmallBlocks(32), SmallBlocks(48), SmallBlocks(64)};

// The pool that serves blocks with room for so many characters, null when none does. Wide texts have room for
// 1 more than a multiple of 8 and narrow ones for 3 more, so that the room tells them apart.
SmallBlocks* PoolOf(int capacity)
{
    const auto kind = static_cast<size_t>((capacity - 1) / 8);
    return capacity % 8 == 1 && capacity >= 1 && kind < PooledSizes ? &TextBlocks[kind] : nullptr;
}

} // namespace

CStringData* CStringData::Allocate(int nChars, int nCharSize)
{
    const size_t charSize = static_cast<size_t>(nCharSize);
    const size_t needed = sizeof(CStringData) + (static_cast<size_t>(nChars) + 1) * charSize;
    const size_t size = (needed + BlockGranularity - 1) / BlockGranularity * BlockGranularity;
    const size_t fitting = (size - sizeof(CStringData)) / charSize - 1;
    const int capacity = static_cast<int>(fitting > INT_MAX ? static_cast<size_t>(nChars) : fitting);
    SmallBlocks* const pool = PoolOf(capacity);
    CStringData* const data =
        static_cast<CStringData*>(pool != nullptr ? pool->Take() : ::operator new(size));
    data->nDataLength = 0;
    data->nAllocLength = capacity;
    data->nRefs = 1;
    return data;
}

void CStringData::Free(CStringData* pData)
{
    if (SmallBlocks* const pool = PoolOf(pData->nAllocLength))
        pool->Give(pData);
    else
        ::operator delete(pData);
}
