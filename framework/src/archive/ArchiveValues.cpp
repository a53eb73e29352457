// Values in archives that have operators of their own, the counts of collections, and the exception.
#include "afx.h"

IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace
{

// By cause: what is said of the file.
const LPCTSTR kMessages[] = {
    _T("has no error"),
    _T("could not be read or written"),
    _T("is being read and cannot be written"),
    _T("ended unexpectedly"),
    _T("is being written and cannot be read"),
    _T("has a format that is not valid"),
    _T("has an object of an unexpected kind"),
    _T("was written by another version of this program"),
};
static_assert(_countof(kMessages) == CArchiveException::badSchema + 1, "one message for each cause");

// The length of a string is a byte, behind 0xFF a WORD, behind 0xFFFF a DWORD. The WORD 0xFFFE says that the
// characters are wide and that the length follows after it, as a byte again.
constexpr BYTE kLongerThanByte = 0xFF;
constexpr WORD kLongerThanWord = 0xFFFF;
constexpr WORD kWideText = 0xFFFE;

void WriteLength(CArchive& ar, int length, bool wide)
{
    if (wide)
        ar << kLongerThanByte << kWideText;
    if (length < kLongerThanByte)
        ar << static_cast<BYTE>(length);
    else if (length < kWideText)
        ar << kLongerThanByte << static_cast<WORD>(length);
    else
        ar << kLongerThanByte << kLongerThanWord << static_cast<DWORD>(length);
}

int ReadLength(CArchive& ar, bool& wide)
{
    wide = false;
    for (;;)
    {
        BYTE byteLength = 0;
        ar >> byteLength;
        if (byteLength != kLongerThanByte)
            return byteLength;
        WORD wordLength = 0;
        ar >> wordLength;
        if (wordLength == kWideText && !wide)
        {
            wide = true;
            continue;
        }
        if (wordLength != kLongerThanWord)
            return wordLength;
        DWORD length = 0;
        ar >> length;
        if (length > INT_MAX / sizeof(WCHAR))
            AfxThrowArchiveException(CArchiveException::genericException);
        return static_cast<int>(length);
    }
}

// Reads piece by piece, so that a wrong length in the file ends with the file and not with the memory.
template <class TString> void ReadCharacters(CArchive& ar, TString& string, int length)
{
    typename TString::XCHAR piece[512];
    string.Empty();
    while (length > 0)
    {
        const int count = (std::min)(length, static_cast<int>(_countof(piece)));
        const UINT bytes = static_cast<UINT>(count) * sizeof(piece[0]);
        if (ar.Read(piece, bytes) != bytes)
            AfxThrowArchiveException(CArchiveException::endOfFile, ar.GetFile()->GetFilePath());
        string.Append(piece, count);
        length -= count;
    }
}

template <class TSame, class TOther> void ReadText(CArchive& ar, TSame& string, bool sameIsWide)
{
    bool wide = false;
    const int length = ReadLength(ar, wide);
    if (wide == sameIsWide)
    {
        ReadCharacters(ar, string, length);
        return;
    }
    TOther other;
    ReadCharacters(ar, other, length);
    string = TSame(other.GetString());
}

} // namespace

CArchiveException::CArchiveException(int cause, LPCTSTR lpszArchiveName)
    : CException(TRUE), m_cause(cause), m_strFileName(lpszArchiveName)
{
}

BOOL CArchiveException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
    if (lpszError == nullptr || nMaxError == 0)
        return FALSE;
    const bool known = m_cause >= 0 && m_cause < static_cast<int>(_countof(kMessages));
    CString message = _T("The file ");
    if (!m_strFileName.IsEmpty())
        message += _T("\"") + m_strFileName + _T("\" ");
    message += kMessages[known ? m_cause : genericException];
    message += _T(".");
    lstrcpyn(lpszError, message, static_cast<int>(nMaxError));
    return TRUE;
}

void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName)
{
    throw new CArchiveException(cause, lpszArchiveName);
}

CArchive& AFXAPI operator<<(CArchive& ar, const CString& string)
{
    WriteLength(ar, string.GetLength(), true);
    ar.Write(string.GetString(), string.GetLength() * static_cast<int>(sizeof(WCHAR)));
    return ar;
}

CArchive& AFXAPI operator<<(CArchive& ar, const CStringA& string)
{
    WriteLength(ar, string.GetLength(), false);
    ar.Write(string.GetString(), string.GetLength());
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CString& string)
{
    ReadText<CString, CStringA>(ar, string, true);
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CStringA& string)
{
    ReadText<CStringA, CString>(ar, string, false);
    return ar;
}

CArchive& AFXAPI operator<<(CArchive& ar, SIZE size)
{
    return ar << size.cx << size.cy;
}

CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size)
{
    return ar >> size.cx >> size.cy;
}

CArchive& AFXAPI operator<<(CArchive& ar, POINT point)
{
    return ar << point.x << point.y;
}

CArchive& AFXAPI operator>>(CArchive& ar, POINT& point)
{
    return ar >> point.x >> point.y;
}

CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect)
{
    return ar << rect.left << rect.top << rect.right << rect.bottom;
}

CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect)
{
    return ar >> rect.left >> rect.top >> rect.right >> rect.bottom;
}

namespace quorfx
{

void WriteElementCount(CArchive& ar, DWORD_PTR count)
{
    if (count < kLongerThanWord)
        ar << static_cast<WORD>(count);
    else if (count < MAXDWORD)
        ar << kLongerThanWord << static_cast<DWORD>(count);
    else
        ar << kLongerThanWord << static_cast<DWORD>(MAXDWORD) << static_cast<ULONGLONG>(count);
}

DWORD_PTR ReadElementCount(CArchive& ar)
{
    WORD wordCount = 0;
    ar >> wordCount;
    if (wordCount != kLongerThanWord)
        return wordCount;
    DWORD count = 0;
    ar >> count;
    if (count != MAXDWORD)
        return count;
    ULONGLONG longCount = 0;
    ar >> longCount;
    return static_cast<DWORD_PTR>(longCount);
}

} // namespace quorfx
