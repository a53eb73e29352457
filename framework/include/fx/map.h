// CMap: values found by key.
#pragma once

#include "fx/elements.h"
#include "fx/position.h"

#include <cstddef>

// The hash of a key; specialise it for own key types.
template <class ARG_KEY> inline UINT AFXAPI HashKey(ARG_KEY key)
{
    return static_cast<UINT>(static_cast<ULONGLONG>((DWORD_PTR)key) >> 4);
}
template <> inline UINT AFXAPI HashKey<LPCWSTR>(LPCWSTR key)
{
    UINT nHash = 5381;
    while (*key != 0)
        nHash = nHash * 33 + *key++;
    return nHash;
}
template <> inline UINT AFXAPI HashKey<const CString&>(const CString& key)
{
    return HashKey<LPCWSTR>(key);
}

// A map. Keys are compared with CompareElements and hashed with HashKey. The order of the elements is not
// defined. ARG_KEY and ARG_VALUE are how keys and values are passed.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE> class CMap : public CObject
{
public:
    struct CPair
    {
        const KEY key;
        VALUE value;

    protected:
        explicit CPair(ARG_KEY keyval) : key(keyval), value() {}
    };

    CMap(INT_PTR = 10) : m_pTable(NULL), m_nTableSize(17), m_nCount(0) {}
    virtual ~CMap() { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    // Copies the value of the key to rValue; FALSE when there is none.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const
    {
        const CNode* pNode = Find(key);
        if (pNode == NULL)
            return FALSE;
        rValue = pNode->value;
        return TRUE;
    }
    // The pair of the key, or NULL.
    CPair* PLookup(ARG_KEY key) { return Find(key); }
    const CPair* PLookup(ARG_KEY key) const { return Find(key); }
    // The value of the key, which is added when missing.
    VALUE& operator[](ARG_KEY key)
    {
        CNode* pNode = Find(key);
        return (pNode != NULL ? pNode : Insert(key))->value;
    }
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }
    // FALSE when there is no such key.
    BOOL RemoveKey(ARG_KEY key)
    {
        if (m_pTable == NULL)
            return FALSE;
        for (CNode** ppLink = &m_pTable[Bucket(key)]; *ppLink != NULL; ppLink = &(*ppLink)->pNext)
        {
            if (CompareElements(&(*ppLink)->key, &key))
            {
                CNode* pNode = *ppLink;
                *ppLink = pNode->pNext;
                delete pNode;
                --m_nCount;
                return TRUE;
            }
        }
        return FALSE;
    }
    void RemoveAll()
    {
        for (UINT i = 0; m_pTable != NULL && i < m_nTableSize; ++i)
        {
            while (CNode* pNode = m_pTable[i])
            {
                m_pTable[i] = pNode->pNext;
                delete pNode;
            }
        }
        delete[] m_pTable;
        m_pTable = NULL;
        m_nCount = 0;
    }

    // A walk over all pairs; the position becomes NULL after the last.
    POSITION GetStartPosition() const { return FirstFrom(0); }
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const
    {
        ENSURE_ARG(rNextPosition != NULL);
        const CNode* pNode = static_cast<CNode*>(rNextPosition);
        rNextPosition = After(pNode);
        rKey = pNode->key;
        rValue = pNode->value;
    }

    // The same walk by pairs; NULL at the end.
    CPair* PGetFirstAssoc() { return FirstFrom(0); }
    const CPair* PGetFirstAssoc() const { return FirstFrom(0); }
    CPair* PGetNextAssoc(const CPair* pAssocRet)
    {
        ENSURE_ARG(pAssocRet != NULL);
        return After(static_cast<const CNode*>(pAssocRet));
    }
    const CPair* PGetNextAssoc(const CPair* pAssocRet) const
    {
        return const_cast<CMap*>(this)->PGetNextAssoc(pAssocRet);
    }

    UINT GetHashTableSize() const { return m_nTableSize; }
    // The number of buckets, while the map is empty.
    void InitHashTable(UINT hashSize, BOOL = TRUE)
    {
        ENSURE_ARG(m_nCount == 0 && hashSize > 0);
        RemoveAll();
        m_nTableSize = hashSize;
    }

    // Stores keys and values, or adds those loaded.
    virtual void Serialize(CArchive& ar)
    {
        CObject::Serialize(ar);
        if (ar.IsStoring())
        {
            quorfx::WriteElementCount(ar, static_cast<DWORD_PTR>(m_nCount));
            for (CPair* pPair = PGetFirstAssoc(); pPair != NULL; pPair = PGetNextAssoc(pPair))
            {
                SerializeElements<KEY>(ar, const_cast<KEY*>(&pPair->key), 1);
                SerializeElements<VALUE>(ar, &pPair->value, 1);
            }
            return;
        }
        for (DWORD_PTR nLeft = quorfx::ReadElementCount(ar); nLeft != 0; --nLeft)
        {
            KEY key = KEY();
            VALUE value = VALUE();
            SerializeElements<KEY>(ar, &key, 1);
            SerializeElements<VALUE>(ar, &value, 1);
            (*this)[key] = value;
        }
    }

private:
    struct CNode : public CPair, public __POSITION
    {
        CNode(ARG_KEY keyval, CNode* pNextNode) : CPair(keyval), pNext(pNextNode) {}
        CNode* pNext;
    };

    UINT Bucket(ARG_KEY key) const { return HashKey<ARG_KEY>(key) % m_nTableSize; }

    CNode* Find(ARG_KEY key) const
    {
        CNode* pNode = m_pTable == NULL ? NULL : m_pTable[Bucket(key)];
        while (pNode != NULL && !CompareElements(&pNode->key, &key))
            pNode = pNode->pNext;
        return pNode;
    }

    CNode* Insert(ARG_KEY key)
    {
        if (m_pTable == NULL)
            m_pTable = new CNode*[m_nTableSize]();
        CNode*& rHead = m_pTable[Bucket(key)];
        rHead = new CNode(key, rHead);
        ++m_nCount;
        return rHead;
    }

    CNode* FirstFrom(UINT nBucket) const
    {
        for (; m_pTable != NULL && nBucket < m_nTableSize; ++nBucket)
            if (m_pTable[nBucket] != NULL)
                return m_pTable[nBucket];
        return NULL;
    }

    CNode* After(const CNode* pNode) const
    {
        return pNode->pNext != NULL ? pNode->pNext : FirstFrom(Bucket(pNode->key) + 1);
    }

    CNode** m_pTable;
    UINT m_nTableSize;
    INT_PTR m_nCount;
};
