// The ready-made collections: run-time classes, and the keys of maps from texts.
#include "afxcoll.h"

// Stores and loads a collection with its run-time class's version 0.
#define SERIALISE_COLLECTION(class_name)                                                                     \
    IMPLEMENT_SERIAL(class_name, CObject, 0)                                                                 \
    void class_name::Serialize(CArchive& ar)                                                                 \
    {                                                                                                        \
        CObject::Serialize(ar);                                                                              \
        SerializeAll(ar);                                                                                    \
    }

SERIALISE_COLLECTION(CByteArray)
SERIALISE_COLLECTION(CWordArray)
SERIALISE_COLLECTION(CDWordArray)
IMPLEMENT_DYNAMIC(CUIntArray, CObject)
IMPLEMENT_DYNAMIC(CPtrArray, CObject)
SERIALISE_COLLECTION(CObArray)
SERIALISE_COLLECTION(CStringArray)

IMPLEMENT_DYNAMIC(CPtrList, CObject)
SERIALISE_COLLECTION(CObList)
SERIALISE_COLLECTION(CStringList)

IMPLEMENT_DYNAMIC(CMapWordToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToWord, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToPtr, CObject)
SERIALISE_COLLECTION(CMapWordToOb)
IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)
SERIALISE_COLLECTION(CMapStringToOb)
SERIALISE_COLLECTION(CMapStringToString)

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
