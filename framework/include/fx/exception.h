// The exception classes and what throws them. Exceptions are thrown as pointers; who catches one calls
// Delete().
#pragma once

#include "fx/config.h"
#include "fx/object.h"
#include "fx/diagnostics.h"

// The base of all framework exceptions.
class QFX_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)
public:
    // bAutoDelete: whether the object is on the heap, so that Delete() frees it.
    explicit CException(BOOL bAutoDelete);

    // Frees the object when it is on the heap; otherwise does nothing. Call it in place of delete.
    void Delete();
    // Copies a text for a person into lpszError (at most nMaxError characters with the terminator). FALSE
    // when there is none; the buffer then holds an empty text. pnHelpContext receives 0.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL) const;
    // Shows the message in a message box: nType its style, nMessageID the string resource shown when the
    // exception has no text of its own (0: a general text). Returns the button pressed.
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

protected:
    virtual ~CException();

private:
    BOOL m_bAutoDelete;
};

// The base of the exceptions whose text is a fixed string.
class QFX_API CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException();
    explicit CSimpleException(BOOL bAutoDelete);

    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL) const;

private:
    // The fixed text of the class; NULL when it has none.
    virtual LPCTSTR GetDefaultMessage() const;
};

// Out of memory.
class QFX_API CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException() {}

private:
    friend struct ThrownException;
    explicit CMemoryException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

    virtual LPCTSTR GetDefaultMessage() const;
};

// A resource (string, window class, device context, image ...) cannot be found or made.
class QFX_API CResourceException : public CSimpleException
{
    DECLARE_DYNAMIC(CResourceException)
public:
    CResourceException() {}

private:
    friend struct ThrownException;
    explicit CResourceException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

    virtual LPCTSTR GetDefaultMessage() const;
};

// Ends an operation of which the user has already been told.
class QFX_API CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException() {}

private:
    friend struct ThrownException;
    explicit CUserException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
};

// A feature that is not supported was asked for.
class QFX_API CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    CNotSupportedException() {}

private:
    friend struct ThrownException;
    explicit CNotSupportedException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

    virtual LPCTSTR GetDefaultMessage() const;
};

// An argument has no meaning.
class QFX_API CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    CInvalidArgException() {}

private:
    friend struct ThrownException;
    explicit CInvalidArgException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}

    virtual LPCTSTR GetDefaultMessage() const;
};

// Each throws a pointer to an exception object that needs no memory of its own.
[[noreturn]] QFX_API void AFXAPI AfxThrowMemoryException();
[[noreturn]] QFX_API void AFXAPI AfxThrowResourceException();
[[noreturn]] QFX_API void AFXAPI AfxThrowUserException();
[[noreturn]] QFX_API void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] QFX_API void AFXAPI AfxThrowInvalidArgException();

// Holds the exception that a CATCH block of the TRY macros handles, and deletes it after the block.
struct AFX_EXCEPTION_LINK
{
    AFX_EXCEPTION_LINK() : m_pException(NULL) {}
    ~AFX_EXCEPTION_LINK()
    {
        if (m_pException != NULL)
            m_pException->Delete();
    }
    AFX_EXCEPTION_LINK(const AFX_EXCEPTION_LINK&) = delete;
    AFX_EXCEPTION_LINK& operator=(const AFX_EXCEPTION_LINK&) = delete;

    CException* m_pException;
};

// TRY { } CATCH(class, e) { } AND_CATCH(class, e) { } END_CATCH, and TRY { } CATCH_ALL(e) { } END_CATCH_ALL:
// the exception is deleted after the block. THROW_LAST() in a block passes it on.
#define TRY                                                                                                  \
    {                                                                                                        \
        AFX_EXCEPTION_LINK _afxExceptionLink;                                                                \
        try                                                                                                  \
        {
#define CATCH(class_name, e)                                                                                 \
    }                                                                                                        \
    catch (class_name * e)                                                                                   \
    {                                                                                                        \
        _afxExceptionLink.m_pException = e;
#define AND_CATCH(class_name, e) CATCH(class_name, e)
#define END_CATCH                                                                                            \
    }                                                                                                        \
    }
#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) CATCH(CException, e)
#define END_CATCH_ALL END_CATCH
#define END_TRY                                                                                              \
    }                                                                                                        \
    catch (CException * e)                                                                                   \
    {                                                                                                        \
        _afxExceptionLink.m_pException = e;                                                                  \
    }                                                                                                        \
    }
#define THROW(e) throw e
#define THROW_LAST()                                                                                         \
    do                                                                                                       \
    {                                                                                                        \
        _afxExceptionLink.m_pException = NULL;                                                               \
        throw;                                                                                               \
    } while (0)
