// Assertions, traces and dumps: where their text goes, and how a failed assertion ends the process.

#include "afx.h"

#include <cstdio>

CDumpContext afxDump;

namespace
{

// Formats into a buffer of the size that is needed; the platform's own functions, because the compiler's
// run-time library reads %s in a wide format as narrow.
std::wstring FormatText(LPCWSTR format, va_list args)
{
    va_list counted;
    va_copy(counted, args);
    const int length = _vscwprintf(format, counted);
    va_end(counted);
    if (length <= 0)
        return {};
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    _vsnwprintf(text.data(), text.size(), format, args);
    text.resize(static_cast<size_t>(length));
    return text;
}

std::string FormatText(LPCSTR format, va_list args)
{
    va_list counted;
    va_copy(counted, args);
    const int length = _vscprintf(format, counted);
    va_end(counted);
    if (length <= 0)
        return {};
    std::string text(static_cast<size_t>(length) + 1, '\0');
    _vsnprintf(text.data(), text.size(), format, args);
    text.resize(static_cast<size_t>(length));
    return text;
}

bool AllPagesAllow(const void* address, UINT_PTR byteCount, bool write)
{
    constexpr DWORD kWritable =
        PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    constexpr DWORD kReadable = kWritable | PAGE_READONLY | PAGE_EXECUTE_READ;
    const char* position = static_cast<const char*>(address);
    const char* const end = position + (byteCount == 0 ? 1 : byteCount);
    while (position < end)
    {
        MEMORY_BASIC_INFORMATION info;
        if (VirtualQuery(position, &info, sizeof(info)) == 0 || info.State != MEM_COMMIT ||
            (info.Protect & (write ? kWritable : kReadable)) == 0 || (info.Protect & PAGE_GUARD) != 0)
            return false;
        position = static_cast<const char*>(info.BaseAddress) + info.RegionSize;
    }
    return true;
}

// How far a text may be read: to its terminator, but never over a page that is not there.
template <typename TChar> bool IsReadableText(const TChar* text, int length)
{
    if (text == nullptr)
        return false;
    if (length >= 0)
        return AllPagesAllow(text, static_cast<UINT_PTR>(length) * sizeof(TChar), false);
    constexpr UINT_PTR kPageSize = 4096;
    for (const TChar* position = text;; ++position)
    {
        const UINT_PTR address = reinterpret_cast<UINT_PTR>(position);
        const bool startsPage = address % kPageSize < sizeof(TChar);
        if ((position == text || startsPage) && !AllPagesAllow(position, sizeof(TChar), false))
            return false;
        if (*position == 0)
            return true;
    }
}

} // namespace

void AFXAPI AfxAssertFailed(LPCSTR lpszFileName, int nLine, LPCSTR lpszCondition)
{
    char line[1024];
    _snprintf(line, sizeof(line) - 1, "%s:%d: assertion failed: %s\n", lpszFileName, nLine, lpszCondition);
    line[sizeof(line) - 1] = '\0';
    std::fputs(line, stderr);
    std::fflush(stderr);
    OutputDebugStringA(line);
    // Not exit(): destructors must not run on a state that is known to be wrong.
    TerminateProcess(GetCurrentProcess(), AFX_ASSERT_EXIT_CODE);
    std::abort();
}

BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine)
{
    AfxAssertFailed(lpszFileName, nLine, "condition");
}

void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine)
{
    if (pOb == nullptr)
        AfxAssertFailed(lpszFileName, nLine, "the object is not NULL");
    if (!AfxIsValidAddress(pOb, sizeof(CObject), FALSE))
        AfxAssertFailed(lpszFileName, nLine, "the object is readable");
    pOb->AssertValid();
}

BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite)
{
    return lp != nullptr && AllPagesAllow(lp, nBytes, bReadWrite != FALSE);
}

BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, int nLength)
{
    return IsReadableText(lpsz, nLength);
}
BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength)
{
    return IsReadableText(lpsz, nLength);
}

void AFX_CDECL AfxTraceWorker(LPCWSTR lpszFormat, ...)
{
    va_list args;
    va_start(args, lpszFormat);
    OutputDebugStringW(FormatText(lpszFormat, args).c_str());
    va_end(args);
}

void AFX_CDECL AfxTraceWorker(LPCSTR lpszFormat, ...)
{
    va_list args;
    va_start(args, lpszFormat);
    OutputDebugStringA(FormatText(lpszFormat, args).c_str());
    va_end(args);
}

CDumpContext& CDumpContext::operator<<(LPCWSTR lpsz)
{
    OutputDebugStringW(lpsz == nullptr ? L"(nullptr)" : lpsz);
    return *this;
}

CDumpContext& CDumpContext::operator<<(LPCSTR lpsz)
{
    OutputDebugStringA(lpsz == nullptr ? "(nullptr)" : lpsz);
    return *this;
}

CDumpContext& CDumpContext::operator<<(const void* lp)
{
    AfxTraceWorker("$%p", lp);
    return *this;
}

CDumpContext& CDumpContext::operator<<(const CObject* pOb)
{
    if (pOb == nullptr)
        return *this << "NULL";
    pOb->Dump(*this);
    return *this;
}

CDumpContext& CDumpContext::operator<<(const CObject& ob)
{
    return *this << &ob;
}
CDumpContext& CDumpContext::operator<<(BYTE by)
{
    return *this << static_cast<ULONGLONG>(by);
}
CDumpContext& CDumpContext::operator<<(WORD w)
{
    return *this << static_cast<ULONGLONG>(w);
}
CDumpContext& CDumpContext::operator<<(DWORD dw)
{
    return *this << static_cast<ULONGLONG>(dw);
}
CDumpContext& CDumpContext::operator<<(int n)
{
    return *this << static_cast<LONGLONG>(n);
}
CDumpContext& CDumpContext::operator<<(UINT u)
{
    return *this << static_cast<ULONGLONG>(u);
}
CDumpContext& CDumpContext::operator<<(LONG l)
{
    return *this << static_cast<LONGLONG>(l);
}
CDumpContext& CDumpContext::operator<<(HWND h)
{
    return *this << static_cast<const void*>(h);
}
CDumpContext& CDumpContext::operator<<(HDC h)
{
    return *this << static_cast<const void*>(h);
}
CDumpContext& CDumpContext::operator<<(HMENU h)
{
    return *this << static_cast<const void*>(h);
}

CDumpContext& CDumpContext::operator<<(LONGLONG n)
{
    AfxTraceWorker(L"%I64d", n);
    return *this;
}

CDumpContext& CDumpContext::operator<<(ULONGLONG n)
{
    AfxTraceWorker(L"%I64u", n);
    return *this;
}

CDumpContext& CDumpContext::operator<<(double d)
{
    AfxTraceWorker(L"%g", d);
    return *this;
}
