// The ready-made collections: run-time classes, and the keys of maps from texts.
#include "afxcoll.h"

IMPLEMENT_DYNCREATE(CByteArray, CObject)
IMPLEMENT_DYNCREATE(CWordArray, CObject)
IMPLEMENT_DYNCREATE(CDWordArray, CObject)
IMPLEMENT_DYNAMIC(CUIntArray, CObject)
IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_DYNCREATE(CObArray, CObject)
IMPLEMENT_DYNCREATE(CStringArray, CObject)

IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_DYNCREATE(CObList, CObject)
IMPLEMENT_DYNCREATE(CStringList, CObject)

IMPLEMENT_DYNAMIC(CMapWordToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToWord, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToPtr, CObject)
IMPLEMENT_DYNCREATE(CMapWordToOb, CObject)
IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)
IMPLEMENT_DYNCREATE(CMapStringToOb, CObject)
IMPLEMENT_DYNCREATE(CMapStringToString, CObject)

namespace
{

BOOL StoreKey(const CString* found, LPCTSTR& key)
{
    if (found == nullptr)
        return FALSE;
    key = *found;
    return TRUE;
}

} // namespace

BOOL CMapStringToPtr::LookupKey(LPCTSTR key, LPCTSTR& rKey) const
{
    return StoreKey(FindKey(key), rKey);
}

BOOL CMapStringToOb::LookupKey(LPCTSTR key, LPCTSTR& rKey) const
{
    return StoreKey(FindKey(key), rKey);
}

BOOL CMapStringToString::LookupKey(LPCTSTR key, LPCTSTR& rKey) const
{
    return StoreKey(FindKey(key), rKey);
}
