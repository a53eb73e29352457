// What the collection templates do with elements; programs specialise these functions for own element types.
#pragma once

#include "afx.h"

// Whether two elements are equal, by ==.
template <class TYPE, class ARG_TYPE>
inline BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2)
{
    return *pElement1 == *pElement2;
}

// Assigns nCount elements in turn.
template <class TYPE> inline void AFXAPI CopyElements(TYPE* pDest, const TYPE* pSrc, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; ++i)
        pDest[i] = pSrc[i];
}

// Stores or loads nCount elements, by their bytes: right for plain values only.
template <class TYPE> inline void AFXAPI SerializeElements(CArchive& ar, TYPE* pElements, INT_PTR nCount)
{
    BYTE* pBytes = reinterpret_cast<BYTE*>(pElements);
    ULONGLONG nLeft = static_cast<ULONGLONG>(nCount) * sizeof(TYPE);
    while (nLeft != 0)
    {
        const UINT nPart = static_cast<UINT>((std::min)(nLeft, static_cast<ULONGLONG>(INT_MAX)));
        if (ar.IsStoring())
            ar.Write(pBytes, static_cast<INT>(nPart));
        else if (ar.Read(pBytes, nPart) != nPart)
            AfxThrowArchiveException(CArchiveException::endOfFile);
        pBytes += nPart;
        nLeft -= nPart;
    }
}
template <> inline void AFXAPI SerializeElements<CString>(CArchive& ar, CString* pElements, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; ++i)
    {
        if (ar.IsStoring())
            ar << pElements[i];
        else
            ar >> pElements[i];
    }
}

namespace quorfx
{

// The elements of the ready-made collections as they are in memory: objects are untyped pointers there.
template <class STORED> inline void SerializeStored(CArchive& ar, STORED* pElements, INT_PTR nCount)
{
    SerializeElements<STORED>(ar, pElements, nCount);
}
inline void SerializeStored(CArchive& ar, void** ppObjects, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; ++i)
    {
        CObject* pObject = static_cast<CObject*>(ppObjects[i]);
        if (ar.IsStoring())
            ar << pObject;
        else
            ar >> pObject;
        ppObjects[i] = pObject;
    }
}

} // namespace quorfx
