// Assertions, traces and dumps. They are active where _DEBUG is defined and cost nothing elsewhere.
#pragma once

#include "fx/config.h"
#include "fx/object.h"
#include "fx/formatargument.h"

// Exit code of a process that a failed assertion ended.
#define AFX_ASSERT_EXIT_CODE 87

// Reports a failed assertion on stderr and to the debugger, and ends the process with AFX_ASSERT_EXIT_CODE.
// Shows no dialog. Never returns.
[[noreturn]] QFX_API void AFXAPI AfxAssertFailed(LPCSTR lpszFileName, int nLine, LPCSTR lpszCondition);
// Documented form: as AfxAssertFailed, without the condition's text.
[[noreturn]] QFX_API BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);
// Asserts that the object can be read and calls its AssertValid.
QFX_API void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine);
// Whether `nBytes` bytes at `lp` are not NULL and can be read, and written when bReadWrite.
QFX_API BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite = TRUE);
// Whether `lpsz` is a readable text, of `nLength` characters when that is not -1.
QFX_API BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, int nLength = -1);
QFX_API BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength = -1);

// Formats the arguments and passes them to the debugger. Workers of TRACE.
QFX_API void AFX_CDECL AfxTraceWorker(LPCWSTR lpszFormat, ...);
QFX_API void AFX_CDECL AfxTraceWorker(LPCSTR lpszFormat, ...);

template <typename TChar, typename... TArgs>
inline void AfxTrace(const TChar* lpszFormat, const TArgs&... args)
{
    AfxTraceWorker(lpszFormat, AfxFormatArgument(args)...);
}

// ASSERT(f): f must hold; not evaluated without _DEBUG. VERIFY(f): as ASSERT, but f is always evaluated.
// TRACE(format, ...): a line for the debugger. DEBUG_ONLY(f): f only with _DEBUG.
#ifdef _DEBUG
#define ASSERT(f)                                                                                            \
    do                                                                                                       \
    {                                                                                                        \
        if (!(f))                                                                                            \
            AfxAssertFailed(__FILE__, __LINE__, #f);                                                         \
    } while (0)
#define VERIFY(f) ASSERT(f)
#define ASSERT_VALID(pOb) (::AfxAssertValidObject(pOb, __FILE__, __LINE__))
#define DEBUG_ONLY(f) (f)
#define TRACE(...) ::AfxTrace(__VA_ARGS__)
#else
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define ASSERT_VALID(pOb) ((void)0)
#define DEBUG_ONLY(f) ((void)0)
#define TRACE(...) ((void)0)
#endif

#define TRACE0(sz) TRACE(sz)
#define TRACE1(sz, p1) TRACE(sz, p1)
#define TRACE2(sz, p1, p2) TRACE(sz, p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(sz, p1, p2, p3)

// Asserts that the object is valid and of the class, or one derived from it.
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#define ASSERT_POINTER(p, type) ASSERT(((p) != NULL) && AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type) ASSERT(((p) == NULL) || AfxIsValidAddress((p), sizeof(type), FALSE))

// Checked in every build: throws CInvalidArgException (see fx/exception.h) when the condition does not hold.
#define ENSURE_THROW(cond, exception)                                                                        \
    do                                                                                                       \
    {                                                                                                        \
        const int _afx_holds = !!(cond);                                                                     \
        ASSERT(_afx_holds);                                                                                  \
        if (!_afx_holds)                                                                                     \
        {                                                                                                    \
            exception;                                                                                       \
        }                                                                                                    \
    } while (0)
#define ENSURE(cond) ENSURE_THROW(cond, ::AfxThrowInvalidArgException())
#define ENSURE_ARG(cond) ENSURE(cond)
#define ENSURE_VALID(pOb) ENSURE((pOb) != NULL)

// Allocation is not tracked here: the checked build replaces operator new as a whole.
#define DEBUG_NEW new

// Where CObject::Dump writes: each item goes to the debugger as text.
class QFX_API CDumpContext
{
public:
    CDumpContext() : m_nDepth(0) {}

    // How far a dump follows pointers: 0 = the object alone.
    int GetDepth() const { return m_nDepth; }
    void SetDepth(int nNewDepth) { m_nDepth = nNewDepth; }

    CDumpContext& operator<<(LPCWSTR lpsz);
    CDumpContext& operator<<(LPCSTR lpsz);
    CDumpContext& operator<<(const void* lp);
    // The object's own Dump; "NULL" for a null pointer.
    CDumpContext& operator<<(const CObject* pOb);
    CDumpContext& operator<<(const CObject& ob);
    CDumpContext& operator<<(BYTE by);
    CDumpContext& operator<<(WORD w);
    CDumpContext& operator<<(DWORD dw);
    CDumpContext& operator<<(int n);
    CDumpContext& operator<<(UINT u);
    CDumpContext& operator<<(LONG l);
    CDumpContext& operator<<(LONGLONG n);
    CDumpContext& operator<<(ULONGLONG n);
    CDumpContext& operator<<(double d);
    CDumpContext& operator<<(HWND h);
    CDumpContext& operator<<(HDC h);
    CDumpContext& operator<<(HMENU h);

private:
    int m_nDepth;
};

extern QFX_API CDumpContext afxDump;
