// The exception of failed COM calls.

#include "fx/variant.h"

IMPLEMENT_DYNAMIC(COleException, CException)

BOOL COleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
    if (lpszError == nullptr || nMaxError == 0)
        return FALSE;
    return FormatMessage(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                         static_cast<DWORD>(m_sc), 0, lpszError, nMaxError, nullptr) != 0;
}

void AFXAPI AfxThrowOleException(SCODE sc)
{
    if (SUCCEEDED(sc))
        return;
    if (sc == E_OUTOFMEMORY)
        AfxThrowMemoryException();
    COleException* const exception = new COleException;
    exception->m_sc = sc;
    throw exception;
}
