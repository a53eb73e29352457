// CString: formatting, and loading of string resources.

#include "afxwin.h"

namespace
{

// String resources are stored in blocks of sixteen counted texts; block n holds the ids from (n - 1) * 16 on.
struct ResourceString
{
    const wchar_t* text = nullptr;
    int length = 0;
};

LPCTSTR BlockName(UINT id)
{
    return MAKEINTRESOURCE((id >> 4) + 1);
}

ResourceString FindString(HINSTANCE module, UINT id)
{
    const HRSRC resource = FindResource(module, BlockName(id), RT_STRING);
    if (resource == nullptr)
        return {};
    const HGLOBAL loaded = LoadResource(module, resource);
    const WORD* position = static_cast<const WORD*>(loaded == nullptr ? nullptr : LockResource(loaded));
    if (position == nullptr)
        return {};
    const WORD* const end = position + SizeofResource(module, resource) / sizeof(WORD);
    for (UINT i = 0; i < (id & 15) && position < end; ++i)
        position += 1 + *position;
    if (position >= end || *position == 0)
        return {};
    return {reinterpret_cast<const wchar_t*>(position + 1), *position};
}

} // namespace

BOOL CStringW::LoadString(UINT nID)
{
    return LoadString(AfxFindResourceHandle(BlockName(nID), RT_STRING), nID);
}

BOOL CStringW::LoadString(HINSTANCE hInstance, UINT nID)
{
    const ResourceString found = FindString(hInstance, nID);
    if (found.text == nullptr)
        return FALSE;
    SetString(found.text, found.length);
    return TRUE;
}

CStringW CStringW::FormatResource(UINT nFormatID)
{
    CStringW format;
    ENSURE_ARG(format.LoadString(nFormatID));
    return format;
}

void CStringW::FormatV(PCXSTR pszFormat, va_list args)
{
    ENSURE_ARG(pszFormat != nullptr);
    // The platform's functions read %s in a wide format as wide text; those of the C++ library here read it
    // as narrow.
    va_list counted;
    va_copy(counted, args);
    const int length = _vscwprintf(pszFormat, counted);
    va_end(counted);
    ENSURE_ARG(length >= 0);
    // A new block, because the format may be this string's own text.
    CStringW result;
    _vsnwprintf(result.GetBuffer(length), static_cast<size_t>(length) + 1, pszFormat, args);
    result.ReleaseBufferSetLength(length);
    *this = std::move(result);
}

void CStringW::AppendFormatV(PCXSTR pszFormat, va_list args)
{
    CStringW addition;
    addition.FormatV(pszFormat, args);
    Append(addition);
}

void AFX_CDECL CStringW::FormatWorker(PCXSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

void AFX_CDECL CStringW::AppendFormatWorker(PCXSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    AppendFormatV(pszFormat, args);
    va_end(args);
}
