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

ResourceString StringIn(HINSTANCE module, HRSRC resource, UINT id)
{
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

BOOL Take(CStringW& text, const ResourceString& found)
{
    if (found.text == nullptr)
        return FALSE;
    text.SetString(found.text, found.length);
    return TRUE;
}

} // namespace

BOOL CStringW::LoadString(UINT nID)
{
    return LoadString(AfxFindResourceHandle(BlockName(nID), RT_STRING), nID);
}

BOOL CStringW::LoadString(HINSTANCE hInstance, UINT nID)
{
    return Take(*this, StringIn(hInstance, FindResource(hInstance, BlockName(nID), RT_STRING), nID));
}

BOOL CStringW::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID)
{
    const HRSRC resource = FindResourceEx(hInstance, RT_STRING, BlockName(nID), wLanguageID);
    return Take(*this, StringIn(hInstance, resource, nID));
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

void CStringW::FormatMessageV(PCXSTR pszFormat, va_list* pArgList)
{
    ENSURE_ARG(pszFormat != nullptr);
    PXSTR text = nullptr;
    const DWORD length = ::FormatMessage(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER,
                                         pszFormat, 0, 0, reinterpret_cast<LPTSTR>(&text), 0, pArgList);
    if (text == nullptr && *pszFormat != 0)
        AfxThrowMemoryException();
    SetString(text, static_cast<int>(length));
    ::LocalFree(text);
}

void AFX_CDECL CStringW::FormatMessageWorker(PCXSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    FormatMessageV(pszFormat, &args);
    va_end(args);
}

BOOL CStringW::GetEnvironmentVariable(PCXSTR pszVar)
{
    // The variable may change between the calls, so that the room is too small after all.
    CStringW value;
    DWORD room = 0;
    DWORD length = ::GetEnvironmentVariable(pszVar, nullptr, 0);
    while (length > room)
    {
        room = length;
        length = ::GetEnvironmentVariable(pszVar, value.GetBuffer(static_cast<int>(room)), room);
    }
    value.ReleaseBufferSetLength(static_cast<int>(length));
    *this = std::move(value);
    return room != 0;
}
