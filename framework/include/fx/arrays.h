// The ready-made arrays.
#pragma once

#include "fx/fixedarray.h"

// The operators of serialisable classes are exported with them.
#undef AFX_API
#define AFX_API QFX_API

class QFX_API CByteArray : public quorfx::FixedArray<CByteArray, BYTE, BYTE, BYTE, BYTE>
{
    DECLARE_SERIAL(CByteArray)
public:
    CByteArray() {}
    virtual void Serialize(CArchive& ar);

    // The elements in a row, NULL when there are none; valid until the array changes its size.
    const BYTE* GetData() const { return Data(); }
    BYTE* GetData() { return Data(); }
};

class QFX_API CWordArray : public quorfx::FixedArray<CWordArray, WORD, WORD, WORD, WORD>
{
    DECLARE_SERIAL(CWordArray)
public:
    CWordArray() {}
    virtual void Serialize(CArchive& ar);

    // The elements in a row, NULL when there are none; valid until the array changes its size.
    const WORD* GetData() const { return Data(); }
    WORD* GetData() { return Data(); }
};

class QFX_API CDWordArray : public quorfx::FixedArray<CDWordArray, DWORD, DWORD, DWORD, DWORD>
{
    DECLARE_SERIAL(CDWordArray)
public:
    CDWordArray() {}
    virtual void Serialize(CArchive& ar);

    // The elements in a row, NULL when there are none; valid until the array changes its size.
    const DWORD* GetData() const { return Data(); }
    DWORD* GetData() { return Data(); }
};

class QFX_API CUIntArray : public quorfx::FixedArray<CUIntArray, UINT, UINT, UINT, UINT>
{
    DECLARE_DYNAMIC(CUIntArray)
public:
    CUIntArray() {}

    // The elements in a row, NULL when there are none; valid until the array changes its size.
    const UINT* GetData() const { return Data(); }
    UINT* GetData() { return Data(); }
};

// Holds pointers without owning what they point to.
class QFX_API CPtrArray : public quorfx::FixedArray<CPtrArray, void*, void*, void*, void*>
{
    DECLARE_DYNAMIC(CPtrArray)
public:
    CPtrArray() {}

    const void** GetData() const { return const_cast<const void**>(const_cast<CPtrArray*>(this)->GetData()); }
    void** GetData() { return Data(); }
};

// Holds pointers without owning the objects.
class QFX_API CObArray : public quorfx::FixedArray<CObArray, CObject*, CObject*, CObject*, void*>
{
    DECLARE_SERIAL(CObArray)
public:
    CObArray() {}
    virtual void Serialize(CArchive& ar);

    const CObject** GetData() const
    {
        return const_cast<const CObject**>(const_cast<CObArray*>(this)->GetData());
    }
    CObject** GetData() { return reinterpret_cast<CObject**>(Data()); }
};

class QFX_API CStringArray
    : public quorfx::FixedArray<CStringArray, CString, const CString&, const CString&, CString>
{
    DECLARE_SERIAL(CStringArray)
public:
    CStringArray() {}
    virtual void Serialize(CArchive& ar);

    const CString* GetData() const { return Data(); }
    CString* GetData() { return Data(); }

    using FixedArray::Add;
    using FixedArray::InsertAt;
    using FixedArray::SetAt;
    using FixedArray::SetAtGrow;
    void SetAt(INT_PTR nIndex, LPCTSTR newElement) { SetAt(nIndex, CString(newElement)); }
    void SetAtGrow(INT_PTR nIndex, LPCTSTR newElement) { SetAtGrow(nIndex, CString(newElement)); }
    INT_PTR Add(LPCTSTR newElement) { return Add(CString(newElement)); }
    void InsertAt(INT_PTR nIndex, LPCTSTR newElement, INT_PTR nCount = 1)
    {
        InsertAt(nIndex, CString(newElement), nCount);
    }
};

#undef AFX_API
#define AFX_API
