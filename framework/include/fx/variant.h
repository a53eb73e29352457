// COleVariant: a VARIANT that frees itself; and the exception of failed conversions.
#pragma once

#include "afx.h"

#include <oaidl.h>
#include <oleauto.h>

#ifdef QUORFX_BUILD
// comutil.h declares them without export.
namespace _com_util
{
QFX_API BSTR WINAPI ConvertStringToBSTR(const char* pSrc);
QFX_API char* WINAPI ConvertBSTRToString(BSTR pSrc);
} // namespace _com_util
#endif

typedef const VARIANT* LPCVARIANT;

// A failed COM call; m_sc is its result.
class QFX_API COleException : public CException
{
    DECLARE_DYNAMIC(COleException)
public:
    // The system's text for m_sc.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL) const;

    SCODE m_sc;

private:
    friend void AFXAPI AfxThrowOleException(SCODE sc);

    COleException() : CException(TRUE), m_sc(S_OK) {}
};

// Throws a COleException for sc, or CMemoryException when memory is what is missing. Returns when sc is a
// success.
QFX_API void AFXAPI AfxThrowOleException(SCODE sc);

// A VARIANT with the operations of a value. The destructor frees what it holds. There is no constructor for
// int or bool: write (5L) or ((short)VARIANT_TRUE, VT_BOOL). Failed conversions throw COleException.
class QFX_API COleVariant : public tagVARIANT
{
public:
    COleVariant() { ::VariantInit(this); }
    COleVariant(const VARIANT& varSrc);
    COleVariant(LPCVARIANT pSrc);
    COleVariant(const COleVariant& varSrc);
    COleVariant(COleVariant&& varSrc) noexcept;
    ~COleVariant() { ::VariantClear(this); }

    // VT_BSTR; an empty or NULL text is an empty BSTR.
    COleVariant(LPCTSTR lpszSrc);
    COleVariant(CString& strSrc);
    // A text; vtSrc must be VT_BSTR.
    COleVariant(LPCTSTR lpszSrc, VARTYPE vtSrc);
    COleVariant(BYTE nSrc);
    // vtSrc is VT_I2 or VT_BOOL; for VT_BOOL every value but 0 is VARIANT_TRUE.
    COleVariant(short nSrc, VARTYPE vtSrc = VT_I2);
    // vtSrc is VT_I4, VT_ERROR or VT_BOOL.
    COleVariant(long lSrc, VARTYPE vtSrc = VT_I4);
    COleVariant(float fltSrc);
    COleVariant(double dblSrc);

    const COleVariant& operator=(const VARIANT& varSrc);
    const COleVariant& operator=(LPCVARIANT pSrc);
    const COleVariant& operator=(const COleVariant& varSrc);
    const COleVariant& operator=(COleVariant&& varSrc) noexcept;
    const COleVariant& operator=(LPCTSTR lpszSrc);
    const COleVariant& operator=(const CString& strSrc);
    const COleVariant& operator=(BYTE nSrc);
    // A variant that holds VT_BOOL keeps that type, so does one that holds VT_ERROR for long.
    const COleVariant& operator=(short nSrc);
    const COleVariant& operator=(long lSrc);
    const COleVariant& operator=(LONGLONG nSrc);
    const COleVariant& operator=(ULONGLONG nSrc);
    const COleVariant& operator=(float fltSrc);
    const COleVariant& operator=(double dblSrc);

    // Same type and same value; texts compare by their characters.
    BOOL operator==(const VARIANT& varSrc) const;
    BOOL operator==(LPCVARIANT pSrc) const;

    operator LPVARIANT() { return this; }
    operator LPCVARIANT() const { return this; }

    // Frees the value; the type becomes VT_EMPTY.
    void Clear();
    // Converts pSrc, or the own value when that is NULL, to type `vartype`.
    void ChangeType(VARTYPE vartype, LPVARIANT pSrc = NULL);
    // Takes the value over; the source becomes VT_EMPTY.
    void Attach(VARIANT& varSrc);
    // Gives the value to the caller; this variant becomes VT_EMPTY.
    VARIANT Detach();
    // Sets the value to a text; vtSrc must be VT_BSTR.
    void SetString(LPCTSTR lpszSrc, VARTYPE vtSrc);

private:
    void SetType(VARTYPE vtNew);
    const COleVariant& SetText(BSTR bstrText);
};
