// The common part of the ready-made maps.
#pragma once

#include "fx/map.h"

namespace quorfx
{

// A map class with the behaviour of CMap. KEY and VALUE are what is found and how it is found, ARG_KEY and
// ARG_VALUE how they are passed in. STORED is the type of values in memory; see FixedArray.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE, class STORED>
class FixedMap : public CObject
{
public:
    typedef KEY BASE_KEY;
    typedef ARG_KEY BASE_ARG_KEY;
    typedef VALUE BASE_VALUE;
    typedef ARG_VALUE BASE_ARG_VALUE;

    INT_PTR GetCount() const { return m_map.GetCount(); }
    INT_PTR GetSize() const { return m_map.GetCount(); }
    BOOL IsEmpty() const { return m_map.IsEmpty(); }

    // Copies the value of the key to rValue; FALSE when there is none.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const
    {
        const typename Map::CPair* pPair = m_map.PLookup(key);
        if (pPair == NULL)
            return FALSE;
        rValue = static_cast<VALUE>(pPair->value);
        return TRUE;
    }
    // The value of the key, which is added when missing.
    VALUE& operator[](ARG_KEY key) { return reinterpret_cast<VALUE&>(m_map[key]); }
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { m_map[key] = newValue; }
    // FALSE when there is no such key.
    BOOL RemoveKey(ARG_KEY key) { return m_map.RemoveKey(key); }
    void RemoveAll() { m_map.RemoveAll(); }

    // A walk over all pairs, in no defined order; the position becomes NULL after the last.
    POSITION GetStartPosition() const { return m_map.GetStartPosition(); }
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const
    {
        STORED value = STORED();
        m_map.GetNextAssoc(rNextPosition, rKey, value);
        rValue = static_cast<VALUE>(value);
    }

    UINT GetHashTableSize() const { return m_map.GetHashTableSize(); }
    // The number of buckets, while the map is empty.
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE) { m_map.InitHashTable(hashSize, bAllocNow); }
    UINT HashKey(ARG_KEY key) const { return ::HashKey<ARG_KEY>(key); }

protected:
    typedef CMap<KEY, ARG_KEY, STORED, ARG_VALUE> Map;

    FixedMap() {}
    // Stores keys and values, or adds those loaded.
    void SerializeAll(CArchive& ar)
    {
        if (ar.IsStoring())
        {
            WriteElementCount(ar, static_cast<DWORD_PTR>(GetCount()));
            for (typename Map::CPair* pPair = m_map.PGetFirstAssoc(); pPair != NULL;
                 pPair = m_map.PGetNextAssoc(pPair))
            {
                SerializeStored(ar, const_cast<KEY*>(&pPair->key), 1);
                SerializeStored(ar, &pPair->value, 1);
            }
            return;
        }
        for (DWORD_PTR nLeft = ReadElementCount(ar); nLeft != 0; --nLeft)
        {
            KEY key = KEY();
            STORED value = STORED();
            SerializeStored(ar, &key, 1);
            SerializeStored(ar, &value, 1);
            m_map[key] = value;
        }
    }
    Map& Pairs() { return m_map; }
    const Map& Pairs() const { return m_map; }
    // The map's own copy of a key, NULL when there is none.
    const KEY* FindKey(ARG_KEY key) const
    {
        const typename Map::CPair* pPair = m_map.PLookup(key);
        return pPair == NULL ? NULL : &pPair->key;
    }

private:
    Map m_map;
};

} // namespace quorfx
