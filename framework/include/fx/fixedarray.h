// The common part of the ready-made arrays.
#pragma once

#include "fx/array.h"

namespace quorfx
{

// An array class SELF with the behaviour of CArray. TYPE is the element, ARG_TYPE how one is passed in and
// RESULT how one is returned by value. STORED is the type in memory: pointers to objects are kept as void*,
// which compilers let alias the pointers to derived classes that the typed arrays hand out references to.
template <class SELF, class TYPE, class ARG_TYPE, class RESULT, class STORED>
class FixedArray : public CObject
{
public:
    INT_PTR GetSize() const { return m_array.GetSize(); }
    INT_PTR GetCount() const { return m_array.GetSize(); }
    BOOL IsEmpty() const { return m_array.IsEmpty(); }
    // The largest index, or -1.
    INT_PTR GetUpperBound() const { return m_array.GetUpperBound(); }
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1) { m_array.SetSize(nNewSize, nGrowBy); }
    void FreeExtra() { m_array.FreeExtra(); }
    void RemoveAll() { m_array.RemoveAll(); }

    RESULT GetAt(INT_PTR nIndex) const { return static_cast<RESULT>(m_array[nIndex]); }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_array.SetAt(nIndex, newElement); }
    TYPE& ElementAt(INT_PTR nIndex) { return reinterpret_cast<TYPE&>(m_array[nIndex]); }
    RESULT operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }

    // As SetAt, and makes the array longer when needed.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) { m_array.SetAtGrow(nIndex, newElement); }
    // Add at the end; the result is the index of the first new element.
    INT_PTR Add(ARG_TYPE newElement) { return m_array.Add(newElement); }
    INT_PTR Append(const SELF& src) { return m_array.Append(src.m_array); }
    // Becomes a copy.
    void Copy(const SELF& src) { m_array.Copy(src.m_array); }
    // Insert nCount times an element, or another array; an index above the size makes the array longer.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1)
    {
        m_array.InsertAt(nIndex, newElement, nCount);
    }
    void InsertAt(INT_PTR nStartIndex, SELF* pNewArray)
    {
        ENSURE_ARG(pNewArray != NULL);
        m_array.InsertAt(nStartIndex, &pNewArray->m_array);
    }
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1) { m_array.RemoveAt(nIndex, nCount); }

protected:
    FixedArray() {}
    // Stores the elements, or replaces them by those loaded.
    void SerializeAll(CArchive& ar)
    {
        if (ar.IsStoring())
            WriteElementCount(ar, static_cast<DWORD_PTR>(GetSize()));
        else
            SetSize(static_cast<INT_PTR>(ReadElementCount(ar)));
        SerializeStored(ar, Data(), GetSize());
    }
    // The elements in a row, NULL when there are none; valid until the array changes its size.
    STORED* Data() { return m_array.GetData(); }
    const STORED* Data() const { return m_array.GetData(); }

private:
    CArray<STORED, const STORED&> m_array;
};

} // namespace quorfx
