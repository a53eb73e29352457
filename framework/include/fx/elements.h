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
