// Texts from string resources: parts of them, and values put into them.
#include "afxwin.h"

BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, TCHAR chSep)
{
    LPCTSTR part = lpszFullString;
    for (int index = 0; part != nullptr && index < iSubString; ++index)
    {
        part = std::wcschr(part, chSep);
        if (part != nullptr)
            ++part;
    }
    if (part == nullptr)
    {
        rString.Empty();
        return FALSE;
    }
    LPCTSTR end = std::wcschr(part, chSep);
    const size_t length = end != nullptr ? static_cast<size_t>(end - part) : std::wcslen(part);
    rString = CString(part, static_cast<int>(length));
    return TRUE;
}

void AFXAPI AfxFormatStrings(CString& rString, UINT nIDS, LPCTSTR const* rglpsz, int nString)
{
    CString pattern;
    pattern.LoadString(nIDS);
    CString result;
    for (int i = 0; i < pattern.GetLength(); ++i)
    {
        const int index = pattern[i] == '%' && i + 1 < pattern.GetLength() ? pattern[i + 1] - '1' : -1;
        if (index < 0 || index > 8)
        {
            result += pattern[i];
            continue;
        }
        ++i;
        if (index < nString && rglpsz[index] != nullptr)
            result += rglpsz[index];
    }
    rString = result;
}

void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1)
{
    AfxFormatStrings(rString, nIDS, &lpsz1, 1);
}

void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2)
{
    const LPCTSTR texts[] = {lpsz1, lpsz2};
    AfxFormatStrings(rString, nIDS, texts, 2);
}
