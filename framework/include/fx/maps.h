// The ready-made maps. Those of objects and pointers own neither.
#pragma once

#include "fx/fixedmap.h"

// The operators of serialisable classes are exported with them.
#undef AFX_API
#define AFX_API QFX_API

class QFX_API CMapWordToPtr : public quorfx::FixedMap<WORD, WORD, void*, void*, void*>
{
    DECLARE_DYNAMIC(CMapWordToPtr)
public:
    CMapWordToPtr(INT_PTR = 10) {}
};

class QFX_API CMapPtrToWord : public quorfx::FixedMap<void*, void*, WORD, WORD, WORD>
{
    DECLARE_DYNAMIC(CMapPtrToWord)
public:
    CMapPtrToWord(INT_PTR = 10) {}
};

class QFX_API CMapPtrToPtr : public quorfx::FixedMap<void*, void*, void*, void*, void*>
{
    DECLARE_DYNAMIC(CMapPtrToPtr)
public:
    CMapPtrToPtr(INT_PTR = 10) {}
};

class QFX_API CMapWordToOb : public quorfx::FixedMap<WORD, WORD, CObject*, CObject*, void*>
{
    DECLARE_SERIAL(CMapWordToOb)
public:
    CMapWordToOb(INT_PTR = 10) {}
    virtual void Serialize(CArchive& ar);
};

class QFX_API CMapStringToPtr : public quorfx::FixedMap<CString, LPCTSTR, void*, void*, void*>
{
    DECLARE_DYNAMIC(CMapStringToPtr)
public:
    CMapStringToPtr(INT_PTR = 10) {}

    // Stores the map's own text of the key, which lives as long as the key; FALSE when there is none.
    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const;
};

class QFX_API CMapStringToOb : public quorfx::FixedMap<CString, LPCTSTR, CObject*, CObject*, void*>
{
    DECLARE_SERIAL(CMapStringToOb)
public:
    CMapStringToOb(INT_PTR = 10) {}
    virtual void Serialize(CArchive& ar);

    // Stores the map's own text of the key, which lives as long as the key; FALSE when there is none.
    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const;
};

class QFX_API CMapStringToString : public quorfx::FixedMap<CString, LPCTSTR, CString, LPCTSTR, CString>
{
    DECLARE_SERIAL(CMapStringToString)
public:
    // A key with its value.
    typedef Map::CPair CPair;

    CMapStringToString(INT_PTR = 10) {}
    virtual void Serialize(CArchive& ar);

    // Stores the map's own text of the key, which lives as long as the key; FALSE when there is none.
    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const;
    // The pair of the key, or NULL.
    CPair* PLookup(LPCTSTR key) { return Pairs().PLookup(key); }
    const CPair* PLookup(LPCTSTR key) const { return Pairs().PLookup(key); }
    // A walk over all pairs, in no defined order; NULL at the end.
    CPair* PGetFirstAssoc() { return Pairs().PGetFirstAssoc(); }
    const CPair* PGetFirstAssoc() const { return Pairs().PGetFirstAssoc(); }
    CPair* PGetNextAssoc(const CPair* pAssoc) { return Pairs().PGetNextAssoc(pAssoc); }
    const CPair* PGetNextAssoc(const CPair* pAssoc) const { return Pairs().PGetNextAssoc(pAssoc); }
};

#undef AFX_API
#define AFX_API
