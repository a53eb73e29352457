// CString: construction, assignment, joining and conversion.

#include "afx.h"
#include "fx/variant.h"

#include <iterator>

namespace
{

// The variant as a text of type VT_BSTR.
class TextVariant
{
public:
    explicit TextVariant(const VARIANT& source)
    {
        VariantInit(&m_value);
        const HRESULT result =
            VariantChangeType(&m_value, const_cast<VARIANT*>(&source), VARIANT_NOVALUEPROP, VT_BSTR);
        if (FAILED(result))
            AfxThrowOleException(result);
    }
    ~TextVariant() { VariantClear(&m_value); }
    TextVariant(const TextVariant&) = delete;
    TextVariant& operator=(const TextVariant&) = delete;

    LPCWSTR Text() const { return m_value.bstrVal; }
    int Length() const { return static_cast<int>(SysStringLen(m_value.bstrVal)); }

private:
    VARIANT m_value;
};

int NarrowLength(LPCSTR text)
{
    return CSimpleStringT<char>::StringLength(text);
}

wchar_t Widened(char ch)
{
    wchar_t wide = 0;
    MultiByteToWideChar(CP_ACP, 0, &ch, 1, &wide, 1);
    return wide;
}

CStringW Joined(LPCWSTR first, int firstLength, LPCWSTR second, int secondLength)
{
    CStringW result;
    result.Preallocate(firstLength + secondLength);
    result.Append(first, firstLength);
    result.Append(second, secondLength);
    return result;
}

} // namespace

CStringW::CStringW(PCYSTR pszSrc)
{
    if (pszSrc != nullptr && IS_INTRESOURCE(pszSrc))
        LoadString(LOWORD(reinterpret_cast<ULONG_PTR>(pszSrc)));
    else
        SetNarrow(pszSrc, NarrowLength(pszSrc));
}

CStringW::CStringW(PCYSTR pch, int nLength)
{
    SetNarrow(pch, nLength);
}

CStringW::CStringW(XCHAR ch, int nRepeat)
{
    if (nRepeat > 0)
        std::fill_n(GetBufferSetLength(nRepeat), nRepeat, ch);
}

CStringW::CStringW(YCHAR ch, int nRepeat) : CStringW(Widened(ch), nRepeat) {}

CStringW::CStringW(const VARIANT& varSrc)
{
    const TextVariant text(varSrc);
    SetString(text.Text(), text.Length());
}

CStringW& CStringW::operator=(PCYSTR pszSrc)
{
    SetNarrow(pszSrc, NarrowLength(pszSrc));
    return *this;
}

CStringW& CStringW::operator=(XCHAR ch)
{
    SetString(&ch, 1);
    return *this;
}

CStringW& CStringW::operator=(char ch)
{
    return *this = Widened(ch);
}
CStringW& CStringW::operator=(const VARIANT& varSrc)
{
    return *this = CStringW(varSrc);
}

CStringW& CStringW::operator+=(const CSimpleStringT<wchar_t>& strSrc)
{
    Append(strSrc);
    return *this;
}

CStringW& CStringW::operator+=(PCXSTR pszSrc)
{
    Append(pszSrc);
    return *this;
}

CStringW& CStringW::operator+=(PCYSTR pszSrc)
{
    return *this += CStringW(pszSrc);
}

CStringW& CStringW::operator+=(XCHAR ch)
{
    AppendChar(ch);
    return *this;
}

CStringW& CStringW::operator+=(char ch)
{
    return *this += Widened(ch);
}
CStringW& CStringW::operator+=(unsigned char ch)
{
    return *this += Widened(static_cast<char>(ch));
}
CStringW& CStringW::operator+=(const VARIANT& varSrc)
{
    return *this += CStringW(varSrc);
}

void CStringW::SetNarrow(PCYSTR pch, int nLength)
{
    if (nLength == 0)
    {
        Empty();
        return;
    }
    ENSURE_ARG(pch != nullptr && nLength > 0);
    const int wideLength = MultiByteToWideChar(CP_ACP, 0, pch, nLength, nullptr, 0);
    MultiByteToWideChar(CP_ACP, 0, pch, nLength, GetBuffer(wideLength), wideLength);
    ReleaseBufferSetLength(wideLength);
}

CStringW AFXAPI operator+(const CStringW& str1, const CStringW& str2)
{
    return Joined(str1, str1.GetLength(), str2, str2.GetLength());
}

CStringW AFXAPI operator+(const CStringW& str1, LPCWSTR psz2)
{
    return Joined(str1, str1.GetLength(), psz2, CStringW::StringLength(psz2));
}

CStringW AFXAPI operator+(LPCWSTR psz1, const CStringW& str2)
{
    return Joined(psz1, CStringW::StringLength(psz1), str2, str2.GetLength());
}

CStringW AFXAPI operator+(const CStringW& str1, LPCSTR psz2)
{
    return str1 + CStringW(psz2);
}
CStringW AFXAPI operator+(LPCSTR psz1, const CStringW& str2)
{
    return CStringW(psz1) + str2;
}
CStringW AFXAPI operator+(const CStringW& str1, wchar_t ch2)
{
    return Joined(str1, str1.GetLength(), &ch2, 1);
}
CStringW AFXAPI operator+(wchar_t ch1, const CStringW& str2)
{
    return Joined(&ch1, 1, str2, str2.GetLength());
}
CStringW AFXAPI operator+(const CStringW& str1, char ch2)
{
    return str1 + Widened(ch2);
}
CStringW AFXAPI operator+(char ch1, const CStringW& str2)
{
    return Widened(ch1) + str2;
}

int CStringW::Collate(PCXSTR psz) const
{
    return wcscoll(GetString(), psz);
}
int CStringW::CollateNoCase(PCXSTR psz) const
{
    return _wcsicoll(GetString(), psz);
}

BSTR CStringW::AllocSysString() const
{
    const BSTR copy = SysAllocStringLen(GetString(), static_cast<UINT>(GetLength()));
    if (copy == nullptr)
        AfxThrowMemoryException();
    return copy;
}

BSTR CStringW::SetSysString(BSTR* pbstr) const
{
    ENSURE_ARG(pbstr != nullptr);
    if (!SysReAllocStringLen(pbstr, GetString(), static_cast<UINT>(GetLength())))
        AfxThrowMemoryException();
    return *pbstr;
}
