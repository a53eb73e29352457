// The ready-made lists.
#pragma once

#include "fx/fixedlist.h"

// The operators of serialisable classes are exported with them.
#undef AFX_API
#define AFX_API QFX_API

// Holds pointers without owning what they point to.
class QFX_API CPtrList : public quorfx::FixedList<CPtrList, void*, void*, const void*, const void*, void*>
{
    DECLARE_DYNAMIC(CPtrList)
public:
    CPtrList(INT_PTR = 10) {}
};

// Holds pointers without owning the objects.
class QFX_API CObList
    : public quorfx::FixedList<CObList, CObject*, CObject*, const CObject*, const CObject*, void*>
{
    DECLARE_SERIAL(CObList)
public:
    CObList(INT_PTR = 10) {}
    virtual void Serialize(CArchive& ar);
};

class QFX_API CStringList
    : public quorfx::FixedList<CStringList, CString, const CString&, const CString, const CString&, CString>
{
    DECLARE_SERIAL(CStringList)
public:
    CStringList(INT_PTR = 10) {}
    virtual void Serialize(CArchive& ar);

    using FixedList::AddHead;
    using FixedList::AddTail;
    using FixedList::InsertAfter;
    using FixedList::InsertBefore;
    using FixedList::SetAt;
    POSITION AddHead(LPCTSTR newElement) { return AddHead(CString(newElement)); }
    POSITION AddTail(LPCTSTR newElement) { return AddTail(CString(newElement)); }
    void SetAt(POSITION pos, LPCTSTR newElement) { SetAt(pos, CString(newElement)); }
    POSITION InsertBefore(POSITION position, LPCTSTR newElement)
    {
        return InsertBefore(position, CString(newElement));
    }
    POSITION InsertAfter(POSITION position, LPCTSTR newElement)
    {
        return InsertAfter(position, CString(newElement));
    }
    POSITION Find(LPCTSTR searchValue, POSITION startAfter = NULL) const
    {
        return FixedList::Find(CString(searchValue), startAfter);
    }
};

#undef AFX_API
#define AFX_API
