// CArray: a growing array of values.
#pragma once

#include "fx/elements.h"

// An array with zero-based indices. A new slot is default-constructed and a removed one destroyed; growing,
// inserting and removing move the elements bytewise, without constructors or destructors, so an element must
// not point into itself; Copy, Append and the insertion of an array use CopyElements. ARG_TYPE is how
// elements are passed. A negative index or size throws CInvalidArgException, as does an index at or above the
// size where it is not documented to grow the array.
template <class TYPE, class ARG_TYPE = const TYPE&> class CArray : public CObject
{
public:
    CArray() : m_pData(NULL), m_nSize(0), m_nMaxSize(0), m_nGrowBy(0) {}
    virtual ~CArray() { Release(); }

    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetCount() const { return m_nSize; }
    BOOL IsEmpty() const { return m_nSize == 0; }
    // The largest index, or -1.
    INT_PTR GetUpperBound() const { return m_nSize - 1; }

    // Makes the array nNewSize elements long. nGrowBy, when not -1, is the least number of slots to grow by
    // later.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1)
    {
        ENSURE_ARG(nNewSize >= 0);
        if (nGrowBy >= 0)
            m_nGrowBy = nGrowBy;
        if (nNewSize == 0)
        {
            RemoveAll();
            return;
        }
        Reserve(nNewSize);
        if (nNewSize < m_nSize)
            Destroy(nNewSize, m_nSize);
        else
            Construct(m_nSize, nNewSize);
        m_nSize = nNewSize;
    }
    // Gives unused slots back.
    void FreeExtra()
    {
        if (m_nSize == 0)
            RemoveAll();
        else if (m_nSize != m_nMaxSize)
            Relocate(m_nSize);
    }
    void RemoveAll()
    {
        Release();
        m_pData = NULL;
        m_nSize = m_nMaxSize = 0;
    }

    const TYPE& GetAt(INT_PTR nIndex) const { return m_pData[Checked(nIndex)]; }
    TYPE& GetAt(INT_PTR nIndex) { return m_pData[Checked(nIndex)]; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_pData[Checked(nIndex)] = newElement; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& ElementAt(INT_PTR nIndex) { return GetAt(nIndex); }
    const TYPE& operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return GetAt(nIndex); }

    // The elements in a row, NULL when there are none; valid until the array changes its size.
    const TYPE* GetData() const { return m_pData; }
    TYPE* GetData() { return m_pData; }

    // As SetAt, and makes the array longer when needed.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement)
    {
        ENSURE_ARG(nIndex >= 0);
        // The element may be in this array.
        const TYPE element(newElement);
        if (nIndex >= m_nSize)
            SetSize(nIndex + 1);
        m_pData[nIndex] = element;
    }
    // Adds at the end; the result is the element's index.
    INT_PTR Add(ARG_TYPE newElement)
    {
        const INT_PTR nIndex = m_nSize;
        SetAtGrow(nIndex, newElement);
        return nIndex;
    }
    // Adds copies of all elements at the end; the result is the index of the first.
    INT_PTR Append(const CArray& src)
    {
        ENSURE_ARG(this != &src);
        const INT_PTR nOldSize = m_nSize;
        SetSize(nOldSize + src.m_nSize);
        CopyElements(m_pData + nOldSize, src.m_pData, src.m_nSize);
        return nOldSize;
    }
    // Becomes a copy.
    void Copy(const CArray& src)
    {
        if (this == &src)
            return;
        SetSize(src.m_nSize);
        CopyElements(m_pData, src.m_pData, src.m_nSize);
    }

    // Inserts nCount copies before nIndex; an index above the size makes the array longer.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1)
    {
        ENSURE_ARG(nIndex >= 0 && nCount > 0);
        const TYPE element(newElement);
        OpenGap(nIndex, nCount);
        for (INT_PTR i = 0; i < nCount; ++i)
            m_pData[nIndex + i] = element;
    }
    // Inserts copies of all elements of another array.
    void InsertAt(INT_PTR nStartIndex, CArray* pNewArray)
    {
        ENSURE_ARG(nStartIndex >= 0 && pNewArray != NULL && pNewArray != this);
        if (pNewArray->m_nSize == 0)
            return;
        OpenGap(nStartIndex, pNewArray->m_nSize);
        CopyElements(m_pData + nStartIndex, pNewArray->m_pData, pNewArray->m_nSize);
    }
    // Removes nCount elements; they must all exist.
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1)
    {
        ENSURE_ARG(nIndex >= 0 && nCount >= 0 && nCount <= m_nSize && nIndex <= m_nSize - nCount);
        if (nCount == 0)
            return;
        Destroy(nIndex, nIndex + nCount);
        MoveBytes(m_pData + nIndex, m_pData + nIndex + nCount, m_nSize - nIndex - nCount);
        m_nSize -= nCount;
    }

    // Stores the elements, or replaces them by those loaded.
    virtual void Serialize(CArchive& ar)
    {
        CObject::Serialize(ar);
        if (ar.IsStoring())
            quorfx::WriteElementCount(ar, static_cast<DWORD_PTR>(m_nSize));
        else
            SetSize(static_cast<INT_PTR>(quorfx::ReadElementCount(ar)));
        SerializeElements<TYPE>(ar, m_pData, m_nSize);
    }

private:
    INT_PTR Checked(INT_PTR nIndex) const
    {
        ENSURE_ARG(nIndex >= 0 && nIndex < m_nSize);
        return nIndex;
    }

    static size_t ByteCount(INT_PTR nCount) { return static_cast<size_t>(nCount) * sizeof(TYPE); }

    static void MoveBytes(TYPE* pTo, const TYPE* pFrom, INT_PTR nCount)
    {
        if (nCount > 0)
            std::memmove(static_cast<void*>(pTo), static_cast<const void*>(pFrom), ByteCount(nCount));
    }

    // Moves the elements to a larger block. A program may specialise it for elements that point into
    // themselves.
    void RelocateElements(TYPE* pNewData, const TYPE* pData, INT_PTR nCount)
    {
        MoveBytes(pNewData, pData, nCount);
    }

    void Construct(INT_PTR nFirst, INT_PTR nLast)
    {
        for (INT_PTR i = nFirst; i < nLast; ++i)
            ::new (static_cast<void*>(m_pData + i)) TYPE();
    }

    void Destroy(INT_PTR nFirst, INT_PTR nLast)
    {
        for (INT_PTR i = nFirst; i < nLast; ++i)
            m_pData[i].~TYPE();
    }

    void Release()
    {
        Destroy(0, m_nSize);
        ::operator delete(static_cast<void*>(m_pData));
    }

    void Relocate(INT_PTR nMaxSize)
    {
        if (static_cast<size_t>(nMaxSize) > static_cast<size_t>(PTRDIFF_MAX) / sizeof(TYPE))
            AfxThrowMemoryException();
        TYPE* pNew = static_cast<TYPE*>(::operator new(ByteCount(nMaxSize)));
        RelocateElements(pNew, m_pData, m_nSize);
        ::operator delete(static_cast<void*>(m_pData));
        m_pData = pNew;
        m_nMaxSize = nMaxSize;
    }

    // Room for nSize elements. Repeated adding costs a constant time per element.
    void Reserve(INT_PTR nSize)
    {
        if (nSize <= m_nMaxSize)
            return;
        const INT_PTR nGrowBy = m_nGrowBy > 0 ? m_nGrowBy : (std::max)(m_nSize / 2, static_cast<INT_PTR>(4));
        Relocate(m_pData == NULL ? (std::max)(nSize, m_nGrowBy) : (std::max)(nSize, m_nMaxSize + nGrowBy));
    }

    // New default-constructed slots before nIndex, which may be above the size.
    void OpenGap(INT_PTR nIndex, INT_PTR nCount)
    {
        if (nIndex >= m_nSize)
        {
            SetSize(nIndex + nCount);
            return;
        }
        Reserve(m_nSize + nCount);
        MoveBytes(m_pData + nIndex + nCount, m_pData + nIndex, m_nSize - nIndex);
        Construct(nIndex, nIndex + nCount);
        m_nSize += nCount;
    }

    TYPE* m_pData;
    INT_PTR m_nSize;
    INT_PTR m_nMaxSize;
    INT_PTR m_nGrowBy;
};
