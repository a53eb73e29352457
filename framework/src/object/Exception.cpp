// The exception classes: their texts, their deletion, and the functions that throw them.

#include "afxwin.h"

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

// The one exception object of a class that is thrown without memory of its own. It has no destructor to run
// at exit, so a throw from a late destructor still finds it.
struct ThrownException
{
    template <typename TException> static TException* Shared()
    {
        alignas(TException) static char storage[sizeof(TException)];
        static TException* const exception = ::new (storage) TException(FALSE);
        return exception;
    }
};

namespace
{

template <typename TException> TException* SharedException()
{
    return ThrownException::Shared<TException>();
}

} // namespace

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}
CException::~CException() = default;

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    if (lpszError != nullptr && nMaxError > 0)
        lpszError[0] = 0;
    return FALSE;
}

int CException::ReportError(UINT nType, UINT nMessageID)
{
    TCHAR message[512];
    UINT helpContext = 0;
    if (GetErrorMessage(message, _countof(message), &helpContext))
        return AfxMessageBox(message, nType, helpContext);
    CString text;
    if (nMessageID == 0 || !text.LoadString(nMessageID))
        text = _T("An operation failed.");
    return AfxMessageBox(text, nType, helpContext);
}

CSimpleException::CSimpleException() : CException(TRUE) {}
CSimpleException::CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete) {}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
    const LPCTSTR text = GetDefaultMessage();
    if (text == nullptr || lpszError == nullptr || nMaxError == 0)
        return FALSE;
    lstrcpyn(lpszError, text, static_cast<int>(nMaxError));
    return TRUE;
}

LPCTSTR CSimpleException::GetDefaultMessage() const
{
    return nullptr;
}
LPCTSTR CMemoryException::GetDefaultMessage() const
{
    return _T("Out of memory.");
}
LPCTSTR CResourceException::GetDefaultMessage() const
{
    return _T("A required resource was unavailable.");
}
LPCTSTR CNotSupportedException::GetDefaultMessage() const
{
    return _T("An attempt was made to use a feature that is not supported.");
}
LPCTSTR CInvalidArgException::GetDefaultMessage() const
{
    return _T("Encountered an improper argument.");
}

void AFXAPI AfxThrowMemoryException()
{
    throw SharedException<CMemoryException>();
}
void AFXAPI AfxThrowResourceException()
{
    throw SharedException<CResourceException>();
}
void AFXAPI AfxThrowUserException()
{
    throw SharedException<CUserException>();
}
void AFXAPI AfxThrowNotSupportedException()
{
    throw SharedException<CNotSupportedException>();
}
void AFXAPI AfxThrowInvalidArgException()
{
    throw SharedException<CInvalidArgException>();
}
