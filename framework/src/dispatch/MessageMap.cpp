// Search in message maps.
#include "dispatch/MessageMap.h"

namespace
{

// Registered messages share this number in the maps; the entry's signature field points to the real one.
constexpr UINT RegisteredMessage = 0xC000;

struct CacheSlot
{
    const AFX_MSGMAP* map;
    UINT message;
    const AFX_MSGMAP_ENTRY* entry; // NULL when the map has none
};

constexpr size_t CacheSize = 512;

CacheSlot& SlotOf(const AFX_MSGMAP* map, UINT message)
{
    static thread_local CacheSlot cache[CacheSize];
    const size_t mapBits = reinterpret_cast<UINT_PTR>(map) >> 4;
    return cache[(mapBits ^ (mapBits >> 9) ^ message) % CacheSize];
}

bool IsEntryOf(const AFX_MSGMAP_ENTRY& entry, UINT message)
{
    if (message < RegisteredMessage)
        return entry.nMessage == message && entry.nCode == 0;
    return entry.nMessage == RegisteredMessage && *reinterpret_cast<const UINT*>(entry.nSig) == message;
}

const AFX_MSGMAP_ENTRY* SearchMessageEntry(const AFX_MSGMAP* map, UINT message)
{
    for (; map != nullptr; map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr)
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry)
        {
            if (IsEntryOf(*entry, message))
                return entry;
        }
    }
    return nullptr;
}

} // namespace

const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP* map, UINT message)
{
    if (message >= RegisteredMessage)
        return SearchMessageEntry(map, message);
    CacheSlot& slot = SlotOf(map, message);
    if (slot.map != map || slot.message != message)
        slot = {map, message, SearchMessageEntry(map, message)};
    return slot.entry;
}

const AFX_MSGMAP_ENTRY* FindCommandEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id)
{
    for (; map != nullptr; map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr)
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry)
        {
            if (entry->nMessage == message && LOWORD(entry->nCode) == LOWORD(code) && id >= entry->nID &&
                id <= entry->nLastID)
                return entry;
        }
    }
    return nullptr;
}
