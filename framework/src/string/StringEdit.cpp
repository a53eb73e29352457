// CString: changing the text in place.

#include <cwctype>

#include "afx.h"

namespace
{

bool IsIn(LPCWSTR set, wchar_t ch)
{
    return ch != 0 && std::wcschr(set, ch) != nullptr;
}

// How many characters at the end, or at the beginning, match.
template <typename TMatches> int CountAtEnd(const CStringW& text, TMatches matches)
{
    int count = 0;
    while (count < text.GetLength() && matches(text[text.GetLength() - 1 - count]))
        ++count;
    return count;
}

template <typename TMatches> int CountAtBegin(const CStringW& text, TMatches matches)
{
    int count = 0;
    while (count < text.GetLength() && matches(text[count]))
        ++count;
    return count;
}

bool IsSpace(wchar_t ch)
{
    return std::iswspace(ch) != 0;
}

} // namespace

void CStringW::RemoveFirst(int nCount)
{
    if (nCount > 0)
        Delete(0, nCount);
}

CStringW& CStringW::TrimLeft()
{
    RemoveFirst(CountAtBegin(*this, IsSpace));
    return *this;
}

CStringW& CStringW::TrimLeft(XCHAR chTarget)
{
    RemoveFirst(CountAtBegin(*this, [=](wchar_t ch) { return ch == chTarget; }));
    return *this;
}

CStringW& CStringW::TrimLeft(PCXSTR pszTargets)
{
    if (pszTargets != nullptr)
        RemoveFirst(CountAtBegin(*this, [=](wchar_t ch) { return IsIn(pszTargets, ch); }));
    return *this;
}

CStringW& CStringW::TrimRight()
{
    RemoveLast(CountAtEnd(*this, IsSpace));
    return *this;
}

CStringW& CStringW::TrimRight(XCHAR chTarget)
{
    RemoveLast(CountAtEnd(*this, [=](wchar_t ch) { return ch == chTarget; }));
    return *this;
}

CStringW& CStringW::TrimRight(PCXSTR pszTargets)
{
    if (pszTargets != nullptr)
        RemoveLast(CountAtEnd(*this, [=](wchar_t ch) { return IsIn(pszTargets, ch); }));
    return *this;
}

void CStringW::RemoveLast(int nCount)
{
    if (nCount > 0)
        Truncate(GetLength() - nCount);
}

CStringW& CStringW::MakeUpper()
{
    CharUpperBuffW(GetBuffer(), static_cast<DWORD>(GetLength()));
    return *this;
}

CStringW& CStringW::MakeLower()
{
    CharLowerBuffW(GetBuffer(), static_cast<DWORD>(GetLength()));
    return *this;
}

CStringW& CStringW::MakeReverse()
{
    const PXSTR text = GetBuffer();
    std::reverse(text, text + GetLength());
    return *this;
}

int CStringW::Replace(XCHAR chOld, XCHAR chNew)
{
    if (chOld == chNew || Find(chOld) < 0)
        return 0;
    const PXSTR text = GetBuffer();
    int count = 0;
    for (int i = 0; i < GetLength(); ++i)
    {
        if (text[i] == chOld)
        {
            text[i] = chNew;
            ++count;
        }
    }
    return count;
}

int CStringW::Replace(PCXSTR pszOld, PCXSTR pszNew)
{
    const int oldLength = StringLength(pszOld);
    if (oldLength == 0 || Find(pszOld) < 0)
        return 0;
    CStringW result;
    result.Preallocate(GetLength());
    int count = 0;
    int position = 0;
    for (int match = Find(pszOld); match >= 0; match = Find(pszOld, position))
    {
        result.Append(GetString() + position, match - position);
        result.Append(pszNew);
        position = match + oldLength;
        ++count;
    }
    result.Append(GetString() + position, GetLength() - position);
    *this = std::move(result);
    return count;
}

int CStringW::Remove(XCHAR chRemove)
{
    if (Find(chRemove) < 0)
        return 0;
    const PXSTR text = GetBuffer();
    const PXSTR end = std::remove(text, text + GetLength(), chRemove);
    const int removed = static_cast<int>(text + GetLength() - end);
    ReleaseBufferSetLength(GetLength() - removed);
    return removed;
}

int CStringW::Insert(int iIndex, XCHAR ch)
{
    const XCHAR text[] = {ch, 0};
    return InsertText(iIndex, text, 1);
}

int CStringW::Insert(int iIndex, PCXSTR psz)
{
    return InsertText(iIndex, psz, StringLength(psz));
}

int CStringW::InsertText(int iIndex, PCXSTR pch, int nLength)
{
    const int index = (std::min)((std::max)(iIndex, 0), GetLength());
    if (nLength == 0)
        return GetLength();
    const CStringW inserted(pch, nLength);
    const int oldLength = GetLength();
    const PXSTR text = GetBuffer(oldLength + nLength);
    CopyCharsOverlapped(text + index + nLength, text + index, oldLength - index);
    CopyChars(text + index, inserted, nLength);
    ReleaseBufferSetLength(oldLength + nLength);
    return GetLength();
}

int CStringW::Delete(int iIndex, int nCount)
{
    const int index = (std::max)(iIndex, 0);
    if (nCount <= 0 || index >= GetLength())
        return GetLength();
    const int count = (std::min)(nCount, GetLength() - index);
    const int newLength = GetLength() - count;
    const PXSTR text = GetBuffer();
    CopyCharsOverlapped(text + index, text + index + count, newLength - index);
    ReleaseBufferSetLength(newLength);
    return newLength;
}
