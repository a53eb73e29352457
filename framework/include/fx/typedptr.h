// CTypedPtrArray, CTypedPtrList, CTypedPtrMap: the ready-made collections of pointers with the pointers' own
// types.
#pragma once

#include "afxcoll.h"

// BASE_CLASS is CPtrArray or CObArray, TYPE a pointer. References to elements need a TYPE that points to the
// same address as the pointer of the base.
template <class BASE_CLASS, class TYPE> class CTypedPtrArray : public BASE_CLASS
{
public:
    TYPE GetAt(INT_PTR nIndex) const { return static_cast<TYPE>(BASE_CLASS::GetAt(nIndex)); }
    TYPE& ElementAt(INT_PTR nIndex) { return reinterpret_cast<TYPE&>(BASE_CLASS::ElementAt(nIndex)); }
    TYPE operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
    void SetAt(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAt(nIndex, ptr); }
    void SetAtGrow(INT_PTR nIndex, TYPE newElement) { BASE_CLASS::SetAtGrow(nIndex, newElement); }
    INT_PTR Add(TYPE newElement) { return BASE_CLASS::Add(newElement); }
    INT_PTR Append(const CTypedPtrArray<BASE_CLASS, TYPE>& src) { return BASE_CLASS::Append(src); }
    void Copy(const CTypedPtrArray<BASE_CLASS, TYPE>& src) { BASE_CLASS::Copy(src); }
    void InsertAt(INT_PTR nIndex, TYPE newElement, INT_PTR nCount = 1)
    {
        BASE_CLASS::InsertAt(nIndex, newElement, nCount);
    }
    void InsertAt(INT_PTR nStartIndex, CTypedPtrArray<BASE_CLASS, TYPE>* pNewArray)
    {
        BASE_CLASS::InsertAt(nStartIndex, static_cast<BASE_CLASS*>(pNewArray));
    }
};

// BASE_CLASS is CPtrList or CObList, TYPE a pointer; as with CTypedPtrArray.
template <class BASE_CLASS, class TYPE> class CTypedPtrList : public BASE_CLASS
{
public:
    CTypedPtrList(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    TYPE& GetHead() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetHead()); }
    TYPE GetHead() const { return (TYPE)BASE_CLASS::GetHead(); }
    TYPE& GetTail() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetTail()); }
    TYPE GetTail() const { return (TYPE)BASE_CLASS::GetTail(); }
    TYPE RemoveHead() { return static_cast<TYPE>(BASE_CLASS::RemoveHead()); }
    TYPE RemoveTail() { return static_cast<TYPE>(BASE_CLASS::RemoveTail()); }
    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(newElement); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(newElement); }
    void AddHead(CTypedPtrList<BASE_CLASS, TYPE>* pNewList)
    {
        BASE_CLASS::AddHead(static_cast<BASE_CLASS*>(pNewList));
    }
    void AddTail(CTypedPtrList<BASE_CLASS, TYPE>* pNewList)
    {
        BASE_CLASS::AddTail(static_cast<BASE_CLASS*>(pNewList));
    }

    TYPE& GetNext(POSITION& rPosition) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetNext(rPosition)); }
    TYPE GetNext(POSITION& rPosition) const { return (TYPE)BASE_CLASS::GetNext(rPosition); }
    TYPE& GetPrev(POSITION& rPosition) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetPrev(rPosition)); }
    TYPE GetPrev(POSITION& rPosition) const { return (TYPE)BASE_CLASS::GetPrev(rPosition); }
    TYPE& GetAt(POSITION position) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetAt(position)); }
    TYPE GetAt(POSITION position) const { return (TYPE)BASE_CLASS::GetAt(position); }
    void SetAt(POSITION pos, TYPE newElement) { BASE_CLASS::SetAt(pos, newElement); }
};

// BASE_CLASS is one of the ready-made maps with a pointer as key or value; KEY and VALUE are the exact types.
template <class BASE_CLASS, class KEY, class VALUE> class CTypedPtrMap : public BASE_CLASS
{
public:
    CTypedPtrMap(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    BOOL Lookup(typename BASE_CLASS::BASE_ARG_KEY key, VALUE& rValue) const
    {
        typename BASE_CLASS::BASE_VALUE value;
        if (!BASE_CLASS::Lookup(key, value))
            return FALSE;
        rValue = static_cast<VALUE>(value);
        return TRUE;
    }
    VALUE& operator[](typename BASE_CLASS::BASE_ARG_KEY key)
    {
        return reinterpret_cast<VALUE&>(BASE_CLASS::operator[](key));
    }
    void SetAt(KEY key, VALUE newValue) { BASE_CLASS::SetAt(key, newValue); }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey(key); }
    void GetNextAssoc(POSITION& rPosition, KEY& rKey, VALUE& rValue) const
    {
        typename BASE_CLASS::BASE_KEY key;
        typename BASE_CLASS::BASE_VALUE value;
        BASE_CLASS::GetNextAssoc(rPosition, key, value);
        rKey = static_cast<KEY>(key);
        rValue = static_cast<VALUE>(value);
    }
};
