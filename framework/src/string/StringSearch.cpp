// CString: searching and cutting parts out.

#include "afx.h"

int CStringW::Find(PCXSTR pszSub, int iStart) const
{
    if (pszSub == nullptr || iStart < 0 || iStart > GetLength())
        return -1;
    // Not every run time finds an empty text at the end of another.
    const PCXSTR start = GetString() + iStart;
    const PCXSTR found = *pszSub == 0 ? start : std::wcsstr(start, pszSub);
    return found == nullptr ? -1 : static_cast<int>(found - GetString());
}

int CStringW::Find(XCHAR ch, int iStart) const
{
    if (iStart < 0 || iStart >= GetLength())
        return -1;
    const PCXSTR found = std::wmemchr(GetString() + iStart, ch, static_cast<size_t>(GetLength() - iStart));
    return found == nullptr ? -1 : static_cast<int>(found - GetString());
}

int CStringW::ReverseFind(XCHAR ch) const
{
    int position = GetLength() - 1;
    while (position >= 0 && GetString()[position] != ch)
        --position;
    return position;
}

int CStringW::FindOneOf(PCXSTR pszCharSet) const
{
    const PCXSTR found = std::wcspbrk(GetString(), pszCharSet);
    return found == nullptr ? -1 : static_cast<int>(found - GetString());
}

CStringW CStringW::Mid(int iFirst) const
{
    return Mid(iFirst, GetLength());
}

CStringW CStringW::Mid(int iFirst, int nCount) const
{
    const int first = (std::min)((std::max)(iFirst, 0), GetLength());
    const int count = (std::min)((std::max)(nCount, 0), GetLength() - first);
    return count == GetLength() ? *this : CStringW(GetString() + first, count);
}

CStringW CStringW::Left(int nCount) const
{
    return Mid(0, nCount);
}

CStringW CStringW::Right(int nCount) const
{
    const int count = (std::min)((std::max)(nCount, 0), GetLength());
    return Mid(GetLength() - count, count);
}

CStringW CStringW::SpanIncluding(PCXSTR pszCharSet) const
{
    return Left(static_cast<int>(std::wcsspn(GetString(), pszCharSet)));
}

CStringW CStringW::SpanExcluding(PCXSTR pszCharSet) const
{
    return Left(static_cast<int>(std::wcscspn(GetString(), pszCharSet)));
}

CStringW CStringW::Tokenize(PCXSTR pszTokens, int& iStart) const
{
    ENSURE_ARG(iStart >= 0);
    if (pszTokens == nullptr || *pszTokens == 0)
    {
        if (iStart < GetLength())
        {
            const int first = iStart;
            // There is no separator to stop at: the rest is the token.
            iStart = GetLength();
            return Mid(first);
        }
    }
    else if (iStart < GetLength())
    {
        const int first = iStart + static_cast<int>(std::wcsspn(GetString() + iStart, pszTokens));
        if (first < GetLength())
        {
            const int length = static_cast<int>(std::wcscspn(GetString() + first, pszTokens));
            iStart = first + length + 1;
            return Mid(first, length);
        }
    }
    iStart = -1;
    return CStringW();
}
