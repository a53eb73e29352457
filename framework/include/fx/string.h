// CString: the framework's text, of wide characters.
#pragma once

#include "fx/simplestring.h"
#include "fx/stringa.h"

#include <oaidl.h>

// A wide text; copies share their characters until one is changed. Positions are zero-based and count
// characters. The object is a single pointer, so it costs no more than one where it is empty or shared.
// Narrow text is converted with the ANSI code page.
class QFX_API CStringW : public CSimpleStringT<wchar_t>
{
public:
    typedef char YCHAR;
    typedef char* PYSTR;
    typedef const char* PCYSTR;

    CStringW() {}
    CStringW(const CStringW& strSrc) : CSimpleStringT<wchar_t>(strSrc) {}
    CStringW(CStringW&& strSrc) noexcept : CSimpleStringT<wchar_t>(std::move(strSrc)) {}
    CStringW(const CSimpleStringT<wchar_t>& strSrc) : CSimpleStringT<wchar_t>(strSrc) {}
    // A copy of a text, empty for NULL. MAKEINTRESOURCE(id) in place of a text loads that string resource.
    CStringW(PCXSTR pszSrc)
    {
        if (!LoadFromId(pszSrc))
            SetString(pszSrc);
    }
    CStringW(PCYSTR pszSrc);
    CStringW(const unsigned char* pszSrc) : CStringW(reinterpret_cast<PCYSTR>(pszSrc)) {}
    CStringW(PCXSTR pch, int nLength) { SetString(pch, nLength); }
    CStringW(PCYSTR pch, int nLength);
    // nRepeat times the character.
    explicit CStringW(XCHAR ch, int nRepeat = 1);
    explicit CStringW(YCHAR ch, int nRepeat = 1);
    // The variant converted to a text (VariantChangeType to VT_BSTR): empty for VT_EMPTY, "-1" and "0" for
    // VT_BOOL. Throws COleException when it has no text form.
    CStringW(const VARIANT& varSrc);

    CStringW& operator=(const CStringW& strSrc)
    {
        CSimpleStringT<wchar_t>::operator=(strSrc);
        return *this;
    }
    CStringW& operator=(CStringW&& strSrc) noexcept
    {
        CSimpleStringT<wchar_t>::operator=(std::move(strSrc));
        return *this;
    }
    CStringW& operator=(PCXSTR pszSrc)
    {
        SetString(pszSrc);
        return *this;
    }
    CStringW& operator=(PCYSTR pszSrc);
    CStringW& operator=(const unsigned char* pszSrc) { return *this = reinterpret_cast<PCYSTR>(pszSrc); }
    CStringW& operator=(XCHAR ch);
    CStringW& operator=(char ch);
    CStringW& operator=(const VARIANT& varSrc);

    CStringW& operator+=(const CSimpleStringT<wchar_t>& strSrc);
    CStringW& operator+=(PCXSTR pszSrc);
    CStringW& operator+=(PCYSTR pszSrc);
    CStringW& operator+=(XCHAR ch);
    CStringW& operator+=(char ch);
    CStringW& operator+=(unsigned char ch);
    CStringW& operator+=(const VARIANT& varSrc);

    // Negative, 0 or positive as this text comes before, equals or follows the other. Compare goes by
    // character codes, Collate by the language's order; the NoCase forms ignore case.
    int Compare(PCXSTR psz) const { return std::wcscmp(GetString(), psz); }
    int CompareNoCase(PCXSTR psz) const { return _wcsicmp(GetString(), psz); }
    int Collate(PCXSTR psz) const;
    int CollateNoCase(PCXSTR psz) const;

    // The position of the first match at or after iStart, or -1. An empty text is found at iStart.
    int Find(PCXSTR pszSub, int iStart = 0) const;
    int Find(XCHAR ch, int iStart = 0) const;
    // The position of the last match, or -1.
    int ReverseFind(XCHAR ch) const;
    // The position of the first character that is in pszCharSet, or -1.
    int FindOneOf(PCXSTR pszCharSet) const;

    // Parts of the text. Positions and counts out of range are clamped; negative ones count as 0.
    CStringW Mid(int iFirst) const;
    CStringW Mid(int iFirst, int nCount) const;
    CStringW Left(int nCount) const;
    CStringW Right(int nCount) const;
    // The longest beginning made only of characters in pszCharSet, or of none of them.
    CStringW SpanIncluding(PCXSTR pszCharSet) const;
    CStringW SpanExcluding(PCXSTR pszCharSet) const;
    // The next token at or after iStart between the characters in pszTokens; iStart becomes the position to
    // go on from, or -1 with an empty result when there is no further token.
    CStringW Tokenize(PCXSTR pszTokens, int& iStart) const;

    // Remove white space, one character, or any of the given characters from both ends or one.
    CStringW& Trim() { return TrimRight().TrimLeft(); }
    CStringW& Trim(XCHAR chTarget) { return TrimRight(chTarget).TrimLeft(chTarget); }
    CStringW& Trim(PCXSTR pszTargets) { return TrimRight(pszTargets).TrimLeft(pszTargets); }
    CStringW& TrimLeft();
    CStringW& TrimLeft(XCHAR chTarget);
    CStringW& TrimLeft(PCXSTR pszTargets);
    CStringW& TrimRight();
    CStringW& TrimRight(XCHAR chTarget);
    CStringW& TrimRight(PCXSTR pszTargets);

    CStringW& MakeUpper();
    CStringW& MakeLower();
    CStringW& MakeReverse();

    // Replace every match; the result is their number. An empty pszOld matches nothing; a NULL pszNew
    // removes.
    int Replace(XCHAR chOld, XCHAR chNew);
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    // Removes every `chRemove`; the result is their number.
    int Remove(XCHAR chRemove);
    // Insert before position iIndex, which is clamped to the text; the result is the new length.
    int Insert(int iIndex, XCHAR ch);
    int Insert(int iIndex, PCXSTR psz);
    // Removes up to nCount characters from iIndex on; the result is the new length.
    int Delete(int iIndex, int nCount = 1);

    // Replace the text by formatted arguments, as printf does: %s and %c are wide here, %S and %hs narrow.
    // CString arguments pass as their text. The format may be a string resource. The target must not be an
    // argument.
    template <typename... TArgs> void AFX_CDECL Format(PCXSTR pszFormat, TArgs... args)
    {
        FormatWorker(pszFormat, AfxFormatArgument(args)...);
    }
    template <typename... TArgs> void AFX_CDECL Format(UINT nFormatID, TArgs... args)
    {
        FormatWorker(FormatResource(nFormatID), AfxFormatArgument(args)...);
    }
    // As Format, at the end of the text.
    template <typename... TArgs> void AFX_CDECL AppendFormat(PCXSTR pszFormat, TArgs... args)
    {
        AppendFormatWorker(pszFormat, AfxFormatArgument(args)...);
    }
    template <typename... TArgs> void AFX_CDECL AppendFormat(UINT nFormatID, TArgs... args)
    {
        AppendFormatWorker(FormatResource(nFormatID), AfxFormatArgument(args)...);
    }
    void FormatV(PCXSTR pszFormat, va_list args);

    // Replace the text by a message in the format of the system's function: %1 is the first argument as a
    // wide text, %1!d! as printf's %d. CString arguments pass as their text. The format may be a string
    // resource.
    template <typename... TArgs> void AFX_CDECL FormatMessage(PCXSTR pszFormat, TArgs... args)
    {
        FormatMessageWorker(pszFormat, AfxFormatArgument(args)...);
    }
    template <typename... TArgs> void AFX_CDECL FormatMessage(UINT nFormatID, TArgs... args)
    {
        FormatMessageWorker(FormatResource(nFormatID), AfxFormatArgument(args)...);
    }
    void FormatMessageV(PCXSTR pszFormat, va_list* pArgList);

    // Becomes the value of an environment variable; FALSE, and empty, when there is none.
    BOOL GetEnvironmentVariable(PCXSTR pszVar);

    // Loads a string resource, from the first module of the resource chain that has it or from hInstance,
    // there also in a given language. FALSE leaves the text as it was.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID);

    // A copy as BSTR, which the caller frees. SetSysString puts it in place of the one at pbstr.
    BSTR AllocSysString() const;
    BSTR SetSysString(BSTR* pbstr) const;

private:
    bool LoadFromId(PCXSTR pszSrc)
    {
        return pszSrc != NULL && IS_INTRESOURCE(pszSrc) &&
               (LoadString(LOWORD(reinterpret_cast<ULONG_PTR>(pszSrc))), true);
    }
    static CStringW FormatResource(UINT nFormatID);
    void AppendFormatV(PCXSTR pszFormat, va_list args);
    void AFX_CDECL FormatWorker(PCXSTR pszFormat, ...);
    void AFX_CDECL AppendFormatWorker(PCXSTR pszFormat, ...);
    void AFX_CDECL FormatMessageWorker(PCXSTR pszFormat, ...);
    void SetNarrow(PCYSTR pch, int nLength);
    int InsertText(int iIndex, PCXSTR pch, int nLength);
    void RemoveFirst(int nCount);
    void RemoveLast(int nCount);
};

typedef CStringW CString;
typedef CStringW CAtlStringW;
typedef CStringA CAtlStringA;
typedef CAtlStringW CAtlString;

QFX_API CStringW AFXAPI operator+(const CStringW& str1, const CStringW& str2);
QFX_API CStringW AFXAPI operator+(const CStringW& str1, LPCWSTR psz2);
QFX_API CStringW AFXAPI operator+(LPCWSTR psz1, const CStringW& str2);
QFX_API CStringW AFXAPI operator+(const CStringW& str1, LPCSTR psz2);
QFX_API CStringW AFXAPI operator+(LPCSTR psz1, const CStringW& str2);
QFX_API CStringW AFXAPI operator+(const CStringW& str1, wchar_t ch2);
QFX_API CStringW AFXAPI operator+(wchar_t ch1, const CStringW& str2);
QFX_API CStringW AFXAPI operator+(const CStringW& str1, char ch2);
QFX_API CStringW AFXAPI operator+(char ch1, const CStringW& str2);

// Comparison by character codes.
inline bool operator==(const CStringW& str1, const CStringW& str2) throw()
{
    return str1.GetLength() == str2.GetLength() &&
           std::wmemcmp(str1, str2, static_cast<size_t>(str1.GetLength())) == 0;
}
inline bool operator==(const CStringW& str1, LPCWSTR psz2)
{
    return str1.Compare(psz2 == NULL ? L"" : psz2) == 0;
}
inline bool operator==(LPCWSTR psz1, const CStringW& str2)
{
    return str2 == psz1;
}
inline bool operator==(const CStringW& str1, LPCSTR psz2)
{
    return str1 == CStringW(psz2);
}
inline bool operator==(LPCSTR psz1, const CStringW& str2)
{
    return str2 == CStringW(psz1);
}
inline bool operator==(const CStringW& str1, wchar_t ch2)
{
    return str1.GetLength() == 1 && str1[0] == ch2;
}
inline bool operator==(wchar_t ch1, const CStringW& str2)
{
    return str2 == ch1;
}
inline bool operator!=(const CStringW& str1, const CStringW& str2) throw()
{
    return !(str1 == str2);
}
inline bool operator!=(const CStringW& str1, LPCWSTR psz2)
{
    return !(str1 == psz2);
}
inline bool operator!=(LPCWSTR psz1, const CStringW& str2)
{
    return !(str2 == psz1);
}
inline bool operator!=(const CStringW& str1, LPCSTR psz2)
{
    return !(str1 == psz2);
}
inline bool operator!=(LPCSTR psz1, const CStringW& str2)
{
    return !(str2 == psz1);
}
inline bool operator!=(const CStringW& str1, wchar_t ch2)
{
    return !(str1 == ch2);
}
inline bool operator!=(wchar_t ch1, const CStringW& str2)
{
    return !(str2 == ch1);
}
inline bool operator<(const CStringW& str1, const CStringW& str2)
{
    return str1.Compare(str2) < 0;
}
inline bool operator<(const CStringW& str1, LPCWSTR psz2)
{
    return str1.Compare(psz2) < 0;
}
inline bool operator<(LPCWSTR psz1, const CStringW& str2)
{
    return str2.Compare(psz1) > 0;
}
inline bool operator>(const CStringW& str1, const CStringW& str2)
{
    return str1.Compare(str2) > 0;
}
inline bool operator>(const CStringW& str1, LPCWSTR psz2)
{
    return str1.Compare(psz2) > 0;
}
inline bool operator>(LPCWSTR psz1, const CStringW& str2)
{
    return str2.Compare(psz1) < 0;
}
inline bool operator<=(const CStringW& str1, const CStringW& str2)
{
    return str1.Compare(str2) <= 0;
}
inline bool operator<=(const CStringW& str1, LPCWSTR psz2)
{
    return str1.Compare(psz2) <= 0;
}
inline bool operator<=(LPCWSTR psz1, const CStringW& str2)
{
    return str2.Compare(psz1) >= 0;
}
inline bool operator>=(const CStringW& str1, const CStringW& str2)
{
    return str1.Compare(str2) >= 0;
}
inline bool operator>=(const CStringW& str1, LPCWSTR psz2)
{
    return str1.Compare(psz2) >= 0;
}
inline bool operator>=(LPCWSTR psz1, const CStringW& str2)
{
    return str2.Compare(psz1) <= 0;
}

inline LPCWSTR AfxFormatArgument(const CStringW& text)
{
    return text.GetString();
}
