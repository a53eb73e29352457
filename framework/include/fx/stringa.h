// CStringA: a narrow text in the ANSI code page, for the borders where narrow text is needed.
#pragma once

#include "fx/simplestring.h"

// A narrow text; copies share their characters until one is changed. Wide text is converted with the ANSI
// code page.
class QFX_API CStringA : public CSimpleStringT<char>
{
public:
    CStringA() {}
    CStringA(const CStringA& strSrc) : CSimpleStringT<char>(strSrc) {}
    CStringA(CStringA&& strSrc) noexcept : CSimpleStringT<char>(std::move(strSrc)) {}
    // A copy of a text; empty for NULL.
    CStringA(LPCSTR pszSrc) { SetString(pszSrc); }
    CStringA(LPCSTR pch, int nLength) { SetString(pch, nLength); }
    CStringA(LPCWSTR pszSrc) { SetWide(pszSrc, CSimpleStringT<wchar_t>::StringLength(pszSrc)); }
    CStringA(LPCWSTR pch, int nLength) { SetWide(pch, nLength); }
    // nRepeat times the character.
    explicit CStringA(char ch, int nRepeat = 1);

    CStringA& operator=(const CStringA& strSrc)
    {
        CSimpleStringT<char>::operator=(strSrc);
        return *this;
    }
    CStringA& operator=(CStringA&& strSrc) noexcept
    {
        CSimpleStringT<char>::operator=(std::move(strSrc));
        return *this;
    }
    CStringA& operator=(LPCSTR pszSrc)
    {
        SetString(pszSrc);
        return *this;
    }
    CStringA& operator=(LPCWSTR pszSrc) { return *this = CStringA(pszSrc); }

    CStringA& operator+=(const CSimpleStringT<char>& strSrc)
    {
        Append(strSrc);
        return *this;
    }
    CStringA& operator+=(LPCSTR pszSrc)
    {
        Append(pszSrc);
        return *this;
    }
    CStringA& operator+=(char ch)
    {
        AppendChar(ch);
        return *this;
    }

    // Comparison by character codes; the NoCase form ignores case.
    int Compare(LPCSTR psz) const { return std::strcmp(GetString(), psz); }
    int CompareNoCase(LPCSTR psz) const { return _stricmp(GetString(), psz); }
    // The position of the first match at or after iStart, or -1.
    int Find(char ch, int iStart = 0) const;
    int Find(LPCSTR pszSub, int iStart = 0) const;
    // Parts of the text; positions and counts are clamped.
    CStringA Mid(int iFirst) const { return Mid(iFirst, GetLength()); }
    CStringA Mid(int iFirst, int nCount) const;
    CStringA Left(int nCount) const { return Mid(0, nCount); }

    // Replaces the text by formatted arguments, as printf does.
    template <typename... TArgs> void AFX_CDECL Format(LPCSTR pszFormat, TArgs... args)
    {
        FormatWorker(pszFormat, AfxFormatArgument(args)...);
    }
    void FormatV(LPCSTR pszFormat, va_list args);

    // Convert the text between the ANSI and the OEM code page.
    void AnsiToOem();
    void OemToAnsi();

private:
    void AFX_CDECL FormatWorker(LPCSTR pszFormat, ...);
    void SetWide(LPCWSTR pch, int nLength);
};

inline CStringA operator+(CStringA str1, const CStringA& str2)
{
    return str1 += str2;
}
inline CStringA operator+(CStringA str1, LPCSTR psz2)
{
    return str1 += psz2;
}
inline CStringA operator+(LPCSTR psz1, const CStringA& str2)
{
    return CStringA(psz1) += str2;
}

inline bool operator==(const CStringA& str1, const CStringA& str2)
{
    return str1.Compare(str2) == 0;
}
inline bool operator==(const CStringA& str1, LPCSTR psz2)
{
    return str1.Compare(psz2) == 0;
}
inline bool operator==(LPCSTR psz1, const CStringA& str2)
{
    return str2.Compare(psz1) == 0;
}
inline bool operator!=(const CStringA& str1, const CStringA& str2)
{
    return !(str1 == str2);
}
inline bool operator!=(const CStringA& str1, LPCSTR psz2)
{
    return !(str1 == psz2);
}
inline bool operator!=(LPCSTR psz1, const CStringA& str2)
{
    return !(str2 == psz1);
}
inline bool operator<(const CStringA& str1, const CStringA& str2)
{
    return str1.Compare(str2) < 0;
}

inline LPCSTR AfxFormatArgument(const CStringA& text)
{
    return text.GetString();
}
