// The common part of the ready-made lists.
#pragma once

#include "fx/list.h"

namespace quorfx
{

// A list class SELF with the behaviour of CList. TYPE is the element, ARG_TYPE how one is passed in,
// CONST_TYPE what a constant list refers to, and CONST_NEXT what its walks return. STORED is the type in
// memory; see FixedArray.
template <class SELF, class TYPE, class ARG_TYPE, class CONST_TYPE, class CONST_NEXT, class STORED>
class FixedList : public CObject
{
public:
    INT_PTR GetCount() const { return m_list.GetCount(); }
    INT_PTR GetSize() const { return m_list.GetCount(); }
    BOOL IsEmpty() const { return m_list.IsEmpty(); }

    TYPE& GetHead() { return Element(m_list.GetHead()); }
    CONST_TYPE& GetHead() const { return Element(m_list.GetHead()); }
    TYPE& GetTail() { return Element(m_list.GetTail()); }
    CONST_TYPE& GetTail() const { return Element(m_list.GetTail()); }

    // Add or remove at an end. Remove returns the element; a list that is added is copied in its order.
    POSITION AddHead(ARG_TYPE newElement) { return m_list.AddHead(newElement); }
    POSITION AddTail(ARG_TYPE newElement) { return m_list.AddTail(newElement); }
    void AddHead(SELF* pNewList)
    {
        ENSURE_ARG(pNewList != NULL);
        m_list.AddHead(&pNewList->m_list);
    }
    void AddTail(SELF* pNewList)
    {
        ENSURE_ARG(pNewList != NULL);
        m_list.AddTail(&pNewList->m_list);
    }
    TYPE RemoveHead() { return static_cast<TYPE>(m_list.RemoveHead()); }
    TYPE RemoveTail() { return static_cast<TYPE>(m_list.RemoveTail()); }
    void RemoveAll() { m_list.RemoveAll(); }

    // Walks: the element at the position, which moves on and becomes NULL at the end.
    POSITION GetHeadPosition() const { return m_list.GetHeadPosition(); }
    POSITION GetTailPosition() const { return m_list.GetTailPosition(); }
    TYPE& GetNext(POSITION& rPosition) { return Element(m_list.GetNext(rPosition)); }
    CONST_NEXT GetNext(POSITION& rPosition) const { return Element(m_list.GetNext(rPosition)); }
    TYPE& GetPrev(POSITION& rPosition) { return Element(m_list.GetPrev(rPosition)); }
    CONST_NEXT GetPrev(POSITION& rPosition) const { return Element(m_list.GetPrev(rPosition)); }

    TYPE& GetAt(POSITION position) { return Element(m_list.GetAt(position)); }
    CONST_TYPE& GetAt(POSITION position) const { return Element(m_list.GetAt(position)); }
    void SetAt(POSITION pos, ARG_TYPE newElement) { m_list.SetAt(pos, newElement); }
    void RemoveAt(POSITION position) { m_list.RemoveAt(position); }
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement)
    {
        return m_list.InsertBefore(position, newElement);
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement)
    {
        return m_list.InsertAfter(position, newElement);
    }

    // The first equal element after startAfter (NULL: from the head), or NULL.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = NULL) const
    {
        return m_list.Find(searchValue, startAfter);
    }
    // The position of the element with a zero-based index, or NULL.
    POSITION FindIndex(INT_PTR nIndex) const { return m_list.FindIndex(nIndex); }

protected:
    FixedList() {}
    // Stores the elements, or adds those loaded at the tail.
    void SerializeAll(CArchive& ar)
    {
        if (ar.IsStoring())
        {
            WriteElementCount(ar, static_cast<DWORD_PTR>(GetCount()));
            for (POSITION pos = GetHeadPosition(); pos != NULL;)
                SerializeStored(ar, &m_list.GetNext(pos), 1);
            return;
        }
        for (DWORD_PTR nLeft = ReadElementCount(ar); nLeft != 0; --nLeft)
        {
            STORED element = STORED();
            SerializeStored(ar, &element, 1);
            m_list.AddTail(element);
        }
    }

private:
    static TYPE& Element(STORED& stored) { return reinterpret_cast<TYPE&>(stored); }
    static CONST_TYPE& Element(const STORED& stored) { return (CONST_TYPE&)stored; }

    CList<STORED, const STORED&> m_list;
};

} // namespace quorfx
