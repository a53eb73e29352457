// The ready-made arrays. They are CArray with fixed element types.
#pragma once

#include "fx/array.h"

class CByteArray : public CArray<BYTE, BYTE>
{
};

class CWordArray : public CArray<WORD, WORD>
{
};

class CDWordArray : public CArray<DWORD, DWORD>
{
};

class CUIntArray : public CArray<UINT, UINT>
{
};

// Holds pointers without owning what they point to.
class CPtrArray : public CArray<void*, void*>
{
};

// Holds pointers without owning the objects.
class CObArray : public CArray<CObject*, CObject*>
{
};

class CStringArray : public CArray<CString, const CString&>
{
};
