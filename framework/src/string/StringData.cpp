// The blocks that hold the characters of strings.

#include "afx.h"

// Unknown to the header, so that compilers do not mistake it for what every string's text points to.
struct CNilStringData : public CStringData
{
    static constexpr LONG Refs = NilRefs;
    wchar_t terminator[2];
};

CNilStringData CStringData::s_nil = {{0, 0, CNilStringData::Refs}, {0, 0}};

CStringData* CStringData::Allocate(int nChars, int nCharSize)
{
    const size_t charSize = static_cast<size_t>(nCharSize);
    const size_t needed = sizeof(CStringData) + (static_cast<size_t>(nChars) + 1) * charSize;
#ifdef _DEBUG
    // As tight as the alignment allows, so that a write past the requested room leaves the block.
    constexpr size_t kGranularity = alignof(CStringData);
#else
    // The allocator rounds up to this anyway; the string may as well use it.
    constexpr size_t kGranularity = 16;
#endif
    const size_t size = (needed + kGranularity - 1) / kGranularity * kGranularity;
    const size_t capacity = (size - sizeof(CStringData)) / charSize - 1;
    CStringData* const data = static_cast<CStringData*>(::operator new(size));
    data->nDataLength = 0;
    data->nAllocLength = static_cast<int>(capacity > INT_MAX ? static_cast<size_t>(nChars) : capacity);
    data->nRefs = 1;
    return data;
}

void CStringData::Free(CStringData* pData)
{
    ::operator delete(pData);
}
