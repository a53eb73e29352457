// COleVariant: construction, assignment, conversion and comparison.

#include "fx/variant.h"

namespace
{

BSTR NewText(LPCWSTR text, int length)
{
    // A missing text is an empty one, so that the variant always has characters.
    const BSTR copy = SysAllocStringLen(text == nullptr ? L"" : text, static_cast<UINT>(length));
    if (copy == nullptr)
        AfxThrowMemoryException();
    return copy;
}

VARIANT_BOOL ToVariantBool(bool value)
{
    return value ? VARIANT_TRUE : VARIANT_FALSE;
}

bool SameText(BSTR left, BSTR right)
{
    const UINT byteCount = SysStringByteLen(left);
    return byteCount == SysStringByteLen(right) &&
           (byteCount == 0 || std::memcmp(left, right, byteCount) == 0);
}

// Pointers and arrays are the same when they are the same object; what is pointed to is not compared.
bool SamePointer(const VARIANT& left, const VARIANT& right)
{
    return left.byref == right.byref;
}

bool SameValue(const VARIANT& left, const VARIANT& right)
{
    if ((left.vt & (VT_BYREF | VT_ARRAY)) != 0)
        return SamePointer(left, right);
    switch (left.vt)
    {
    case VT_EMPTY:
    case VT_NULL:
        return true;
    case VT_BOOL:
        return left.boolVal == right.boolVal;
    case VT_I1:
    case VT_UI1:
        return left.bVal == right.bVal;
    case VT_I2:
    case VT_UI2:
        return left.iVal == right.iVal;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_ERROR:
        return left.lVal == right.lVal;
    case VT_I8:
    case VT_UI8:
        return left.llVal == right.llVal;
    case VT_CY:
        return left.cyVal.int64 == right.cyVal.int64;
    case VT_R4:
        return left.fltVal == right.fltVal;
    case VT_R8:
        return left.dblVal == right.dblVal;
    case VT_DATE:
        return left.date == right.date;
    case VT_DECIMAL:
        return VarDecCmp(const_cast<DECIMAL*>(&left.decVal), const_cast<DECIMAL*>(&right.decVal)) ==
               VARCMP_EQ;
    case VT_BSTR:
        return SameText(left.bstrVal, right.bstrVal);
    case VT_UNKNOWN:
    case VT_DISPATCH:
        return SamePointer(left, right);
    default:
        return false;
    }
}

} // namespace

COleVariant::COleVariant(const VARIANT& varSrc) : COleVariant()
{
    *this = varSrc;
}
COleVariant::COleVariant(LPCVARIANT pSrc) : COleVariant(*pSrc) {}
COleVariant::COleVariant(const COleVariant& varSrc) : COleVariant(static_cast<const VARIANT&>(varSrc)) {}
COleVariant::COleVariant(COleVariant&& varSrc) noexcept : COleVariant()
{
    std::swap<VARIANT>(*this, varSrc);
}
COleVariant::COleVariant(LPCTSTR lpszSrc) : COleVariant()
{
    *this = lpszSrc;
}
COleVariant::COleVariant(CString& strSrc) : COleVariant()
{
    *this = strSrc;
}
COleVariant::COleVariant(LPCTSTR lpszSrc, VARTYPE vtSrc) : COleVariant()
{
    SetString(lpszSrc, vtSrc);
}
COleVariant::COleVariant(BYTE nSrc) : COleVariant()
{
    *this = nSrc;
}
COleVariant::COleVariant(float fltSrc) : COleVariant()
{
    *this = fltSrc;
}
COleVariant::COleVariant(double dblSrc) : COleVariant()
{
    *this = dblSrc;
}

COleVariant::COleVariant(short nSrc, VARTYPE vtSrc) : COleVariant()
{
    ASSERT(vtSrc == VT_I2 || vtSrc == VT_BOOL);
    vt = vtSrc == VT_BOOL ? VT_BOOL : VT_I2;
    *this = nSrc;
}

COleVariant::COleVariant(long lSrc, VARTYPE vtSrc) : COleVariant()
{
    ASSERT(vtSrc == VT_I4 || vtSrc == VT_ERROR || vtSrc == VT_BOOL);
    vt = vtSrc == VT_ERROR || vtSrc == VT_BOOL ? vtSrc : static_cast<VARTYPE>(VT_I4);
    *this = lSrc;
}

const COleVariant& COleVariant::operator=(const VARIANT& varSrc)
{
    const HRESULT result = VariantCopy(this, const_cast<VARIANT*>(&varSrc));
    AfxThrowOleException(result);
    return *this;
}

const COleVariant& COleVariant::operator=(LPCVARIANT pSrc)
{
    return *this = *pSrc;
}
const COleVariant& COleVariant::operator=(const COleVariant& varSrc)
{
    return *this = static_cast<const VARIANT&>(varSrc);
}

const COleVariant& COleVariant::operator=(COleVariant&& varSrc) noexcept
{
    std::swap<VARIANT>(*this, varSrc);
    return *this;
}

const COleVariant& COleVariant::operator=(LPCTSTR lpszSrc)
{
    return SetText(NewText(lpszSrc, CString::StringLength(lpszSrc)));
}

const COleVariant& COleVariant::operator=(const CString& strSrc)
{
    return SetText(NewText(strSrc, strSrc.GetLength()));
}

// The text is made before the old value goes, because it may come from that value.
const COleVariant& COleVariant::SetText(BSTR bstrText)
{
    SetType(VT_BSTR);
    bstrVal = bstrText;
    return *this;
}

const COleVariant& COleVariant::operator=(BYTE nSrc)
{
    SetType(VT_UI1);
    bVal = nSrc;
    return *this;
}

const COleVariant& COleVariant::operator=(short nSrc)
{
    if (vt == VT_BOOL)
    {
        boolVal = ToVariantBool(nSrc != 0);
        return *this;
    }
    SetType(VT_I2);
    iVal = nSrc;
    return *this;
}

const COleVariant& COleVariant::operator=(long lSrc)
{
    if (vt == VT_BOOL)
    {
        boolVal = ToVariantBool(lSrc != 0);
        return *this;
    }
    SetType(vt == VT_ERROR ? VT_ERROR : VT_I4);
    lVal = lSrc;
    return *this;
}

const COleVariant& COleVariant::operator=(LONGLONG nSrc)
{
    SetType(VT_I8);
    llVal = nSrc;
    return *this;
}

const COleVariant& COleVariant::operator=(ULONGLONG nSrc)
{
    SetType(VT_UI8);
    ullVal = nSrc;
    return *this;
}

const COleVariant& COleVariant::operator=(float fltSrc)
{
    SetType(VT_R4);
    fltVal = fltSrc;
    return *this;
}

const COleVariant& COleVariant::operator=(double dblSrc)
{
    SetType(VT_R8);
    dblVal = dblSrc;
    return *this;
}

BOOL COleVariant::operator==(const VARIANT& varSrc) const
{
    return vt == varSrc.vt && SameValue(*this, varSrc);
}
BOOL COleVariant::operator==(LPCVARIANT pSrc) const
{
    return operator==(*pSrc);
}

void COleVariant::Clear()
{
    AfxThrowOleException(VariantClear(this));
}

void COleVariant::ChangeType(VARTYPE vartype, LPVARIANT pSrc)
{
    if (pSrc == nullptr)
        pSrc = this;
    if (pSrc != this || vartype != vt)
        AfxThrowOleException(VariantChangeType(this, pSrc, 0, vartype));
}

void COleVariant::Attach(VARIANT& varSrc)
{
    if (&varSrc == this)
        return;
    Clear();
    static_cast<VARIANT&>(*this) = varSrc;
    varSrc.vt = VT_EMPTY;
}

VARIANT COleVariant::Detach()
{
    const VARIANT value = *this;
    vt = VT_EMPTY;
    return value;
}

void COleVariant::SetString(LPCTSTR lpszSrc, VARTYPE vtSrc)
{
    ASSERT(vtSrc == VT_BSTR);
    UNUSED(vtSrc);
    *this = lpszSrc;
}

void COleVariant::SetType(VARTYPE vtNew)
{
    if (vt != vtNew)
        Clear();
    else if (vt == VT_BSTR)
        VariantClear(this);
    vt = vtNew;
}
