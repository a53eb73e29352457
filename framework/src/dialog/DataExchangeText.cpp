// Data exchange with text fields.
#include "afxwin.h"
#include "FrameworkAccess.h"
#include <cerrno>
#include <cfloat>
#include <limits>

namespace
{

// Tells the user and ends the exchange.
void Refuse(CDataExchange* exchange, UINT messageId)
{
    AfxMessageBox(messageId, MB_ICONEXCLAMATION);
    exchange->Fail();
}

bool OnlySpaces(LPCTSTR text)
{
    while (*text == ' ' || *text == '\t')
        ++text;
    return *text == 0;
}

CString TextOf(HWND control)
{
    CString text;
    const int length = ::GetWindowTextLength(control);
    ::GetWindowText(control, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

// Leaves a text alone that is already shown, which avoids flicker and change notifications.
void ShowText(HWND control, const CString& text)
{
    if (TextOf(control) != text)
        ::SetWindowText(control, text);
}

// Whether the whole text is one integer of type Number; stores it then.
template <class Number> bool ParseInteger(const CString& text, Number& value)
{
    LPWSTR end = nullptr;
    errno = 0;
    if (std::numeric_limits<Number>::is_signed)
    {
        const long long number = std::wcstoll(text, &end, 10);
        value = static_cast<Number>(number);
        if (static_cast<long long>(value) != number)
            return false;
    }
    else
    {
        const unsigned long long number = std::wcstoull(text, &end, 10);
        value = static_cast<Number>(number);
        if (static_cast<unsigned long long>(value) != number || text.Find('-') >= 0)
            return false;
    }
    return errno == 0 && end != text.GetString() && OnlySpaces(end);
}

template <class Number> bool ParseReal(const CString& text, Number& value)
{
    LPWSTR end = nullptr;
    const double number = std::wcstod(text, &end);
    value = static_cast<Number>(number);
    return end != text.GetString() && OnlySpaces(end);
}

template <class Number>
void ExchangeInteger(CDataExchange* exchange, int id, Number& value, LPCTSTR format, UINT messageId)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate)
    {
        CString text;
        text.Format(format, value);
        ShowText(control, text);
        return;
    }
    Number number = 0;
    if (!ParseInteger(TextOf(control), number))
        Refuse(exchange, messageId);
    value = number;
}

template <class Number> void ExchangeReal(CDataExchange* exchange, int id, Number& value, int digits)
{
    const HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate)
    {
        CString text;
        text.Format(_T("%.*g"), digits, static_cast<double>(value));
        ShowText(control, text);
        return;
    }
    Number number = 0;
    if (!ParseReal(TextOf(control), number))
        Refuse(exchange, AFX_IDP_PARSE_REAL);
    value = number;
}

template <class Number>
void CheckRange(CDataExchange* exchange, Number value, Number lower, Number upper, LPCTSTR format,
                UINT messageId)
{
    if (value >= lower && value <= upper)
        return;
    if (!exchange->m_bSaveAndValidate)
    {
        TRACE(_T("Data exchange: the value of a member is out of range.\n"));
        return;
    }
    CString lowerText, upperText, message;
    lowerText.Format(format, lower);
    upperText.Format(format, upper);
    AfxFormatString2(message, messageId, lowerText, upperText);
    AfxMessageBox(message, MB_ICONEXCLAMATION, messageId);
    exchange->Fail();
}

// Digits that are shown of a range's ends.
LPCTSTR const realFormat = _T("%.15g");
LPCTSTR const floatFormat = _T("%.6g");

} // namespace

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value)
{
    ExchangeInteger(pDX, nIDC, value, _T("%u"), AFX_IDP_PARSE_BYTE);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value)
{
    ExchangeInteger(pDX, nIDC, value, _T("%d"), AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value)
{
    ExchangeInteger(pDX, nIDC, value, _T("%d"), AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value)
{
    ExchangeInteger(pDX, nIDC, value, _T("%u"), AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value)
{
    ExchangeInteger(pDX, nIDC, value, _T("%ld"), AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value)
{
    ExchangeInteger(pDX, nIDC, value, _T("%lu"), AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value)
{
    ExchangeInteger(pDX, nIDC, value, _T("%I64d"), AFX_IDP_PARSE_INT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value)
{
    ExchangeInteger(pDX, nIDC, value, _T("%I64u"), AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value)
{
    ExchangeReal(pDX, nIDC, value, FLT_DIG);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value)
{
    ExchangeReal(pDX, nIDC, value, DBL_DIG);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = TextOf(control);
    else
        ShowText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen)
{
    const HWND control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate)
    {
        ShowText(control, value);
        return;
    }
    if (::GetWindowTextLength(control) < nMaxLen)
    {
        ::GetWindowText(control, value, nMaxLen);
        return;
    }
    CString limit, message;
    limit.Format(_T("%d"), nMaxLen - 1);
    AfxFormatString1(message, AFX_IDP_PARSE_STRING_SIZE, limit);
    AfxMessageBox(message, MB_ICONEXCLAMATION, AFX_IDP_PARSE_STRING_SIZE);
    pDX->Fail();
}

void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("%u"), AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("%d"), AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("%d"), AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("%ld"), AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("%u"), AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD const& value, DWORD minVal, DWORD maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("%lu"), AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("%I64d"), AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal, ULONGLONG maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("%I64u"), AFX_IDP_PARSE_INT_RANGE);
}

void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, float const& value, float minVal, float maxVal)
{
    CheckRange<double>(pDX, value, minVal, maxVal, floatFormat, AFX_IDP_PARSE_REAL_RANGE);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, realFormat, AFX_IDP_PARSE_REAL_RANGE);
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars)
{
    if (pDX->m_bSaveAndValidate)
    {
        if (value.GetLength() <= nChars)
            return;
        CString limit, message;
        limit.Format(_T("%d"), nChars);
        AfxFormatString1(message, AFX_IDP_PARSE_STRING_SIZE, limit);
        AfxMessageBox(message, MB_ICONEXCLAMATION, AFX_IDP_PARSE_STRING_SIZE);
        pDX->Fail();
    }
    const HWND control =
        ::GetDlgItem(pDX->m_pDlgWnd->m_hWnd, static_cast<int>(FrameworkAccess::LastControl(*pDX)));
    if (control == nullptr)
        return;
    const UINT limitText = FrameworkAccess::IsEditLastControl(*pDX) ? EM_LIMITTEXT : CB_LIMITTEXT;
    ::SendMessage(control, limitText, static_cast<WPARAM>(nChars), 0);
}
