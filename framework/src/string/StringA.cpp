// CStringA: conversion, searching and formatting of narrow text.

#include "afx.h"

CStringA::CStringA(char ch, int nRepeat)
{
    if (nRepeat > 0)
        std::fill_n(GetBufferSetLength(nRepeat), nRepeat, ch);
}

void CStringA::SetWide(LPCWSTR pch, int nLength)
{
    if (nLength == 0)
    {
        Empty();
        return;
    }
    ENSURE_ARG(pch != nullptr && nLength > 0);
    const int narrowLength = WideCharToMultiByte(CP_ACP, 0, pch, nLength, nullptr, 0, nullptr, nullptr);
    WideCharToMultiByte(CP_ACP, 0, pch, nLength, GetBuffer(narrowLength), narrowLength, nullptr, nullptr);
    ReleaseBufferSetLength(narrowLength);
}

int CStringA::Find(char ch, int iStart) const
{
    const char text[] = {ch, '\0'};
    return ch == '\0' ? -1 : Find(text, iStart);
}

int CStringA::Find(LPCSTR pszSub, int iStart) const
{
    if (pszSub == nullptr || iStart < 0 || iStart > GetLength())
        return -1;
    const LPCSTR found = std::strstr(GetString() + iStart, pszSub);
    return found == nullptr ? -1 : static_cast<int>(found - GetString());
}

CStringA CStringA::Mid(int iFirst, int nCount) const
{
    const int first = (std::min)((std::max)(iFirst, 0), GetLength());
    const int count = (std::min)((std::max)(nCount, 0), GetLength() - first);
    return count == GetLength() ? *this : CStringA(GetString() + first, count);
}

void CStringA::FormatV(LPCSTR pszFormat, va_list args)
{
    ENSURE_ARG(pszFormat != nullptr);
    va_list counted;
    va_copy(counted, args);
    const int length = _vscprintf(pszFormat, counted);
    va_end(counted);
    ENSURE_ARG(length >= 0);
    CStringA result;
    _vsnprintf(result.GetBuffer(length), static_cast<size_t>(length) + 1, pszFormat, args);
    result.ReleaseBufferSetLength(length);
    *this = std::move(result);
}

void AFX_CDECL CStringA::FormatWorker(LPCSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

void CStringA::AnsiToOem()
{
    const PXSTR text = GetBuffer();
    CharToOemBuffA(text, text, static_cast<DWORD>(GetLength()));
}

void CStringA::OemToAnsi()
{
    const PXSTR text = GetBuffer();
    OemToCharBuffA(text, text, static_cast<DWORD>(GetLength()));
}
