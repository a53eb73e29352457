// CMonthCalCtrl: what is more than one message.
#include "afxdtctl.h"
#include "controls/CommonControls.h"
#include "controls/SystemTimes.h"

IMPLEMENT_DYNAMIC(CMonthCalCtrl, CWnd)

namespace
{

template <class Time> BOOL GetTimeOf(HWND window, UINT message, Time& time)
{
    SYSTEMTIME found = {};
    const BOOL result = quorfx::Send<BOOL>(window, message, 0, &found);
    if (result)
        time = Time(found);
    return result;
}

template <class Time> BOOL SetTimeOf(HWND window, UINT message, const Time& time)
{
    SYSTEMTIME parts = {};
    return quorfx::ToSystemTime(time, parts) && quorfx::Send<BOOL>(window, message, 0, &parts);
}

// Both ends, whatever the first parameter and the result of the message mean.
template <class Time> int GetEndsOf(HWND window, UINT message, DWORD first, Time& lower, Time& upper)
{
    quorfx::SystemTimeRange range;
    const int result = quorfx::Send<int>(window, message, first, range.times);
    if (result != 0)
    {
        range.flags = GDTR_MIN | GDTR_MAX;
        range.Store(&lower, &upper);
    }
    return result;
}

template <class Time> BOOL SetSelectionOf(HWND window, const Time& lower, const Time& upper)
{
    const quorfx::SystemTimeRange range(&lower, &upper);
    return range.flags == (GDTR_MIN | GDTR_MAX) &&
           quorfx::Send<BOOL>(window, MCM_SETSELRANGE, 0, range.times);
}

void StoreTime(LPSYSTEMTIME target, const SYSTEMTIME& time)
{
    if (target != nullptr)
        *target = time;
}

} // namespace

CMonthCalCtrl::~CMonthCalCtrl()
{
    DestroyWindow();
}

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::Create(MONTHCAL_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID)
{
    return Create(dwStyle, CRect(pt, CSize(0, 0)), pParentWnd, nID) && SizeMinReq();
}

BOOL CMonthCalCtrl::GetCurSel(COleDateTime& refDateTime) const
{
    return GetTimeOf(m_hWnd, MCM_GETCURSEL, refDateTime);
}

BOOL CMonthCalCtrl::GetCurSel(CTime& refDateTime) const
{
    return GetTimeOf(m_hWnd, MCM_GETCURSEL, refDateTime);
}

BOOL CMonthCalCtrl::SetCurSel(const COleDateTime& refDateTime)
{
    return SetTimeOf(m_hWnd, MCM_SETCURSEL, refDateTime);
}

BOOL CMonthCalCtrl::SetCurSel(const CTime& refDateTime)
{
    return SetTimeOf(m_hWnd, MCM_SETCURSEL, refDateTime);
}

BOOL CMonthCalCtrl::GetSelRange(COleDateTime& refMinRange, COleDateTime& refMaxRange) const
{
    return GetEndsOf(m_hWnd, MCM_GETSELRANGE, 0, refMinRange, refMaxRange);
}

BOOL CMonthCalCtrl::GetSelRange(CTime& refMinRange, CTime& refMaxRange) const
{
    return GetEndsOf(m_hWnd, MCM_GETSELRANGE, 0, refMinRange, refMaxRange);
}

BOOL CMonthCalCtrl::GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const
{
    SYSTEMTIME times[2] = {};
    const BOOL result = quorfx::Send<BOOL>(m_hWnd, MCM_GETSELRANGE, 0, times);
    StoreTime(pMinRange, times[0]);
    StoreTime(pMaxRange, times[1]);
    return result;
}

BOOL CMonthCalCtrl::SetSelRange(const COleDateTime& pMinRange, const COleDateTime& pMaxRange)
{
    return SetSelectionOf(m_hWnd, pMinRange, pMaxRange);
}

BOOL CMonthCalCtrl::SetSelRange(const CTime& pMinRange, const CTime& pMaxRange)
{
    return SetSelectionOf(m_hWnd, pMinRange, pMaxRange);
}

BOOL CMonthCalCtrl::SetSelRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange)
{
    const SYSTEMTIME times[] = {*pMinRange, *pMaxRange};
    return quorfx::Send<BOOL>(m_hWnd, MCM_SETSELRANGE, 0, times);
}

DWORD CMonthCalCtrl::GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const
{
    return quorfx::GetRangeOf(m_hWnd, MCM_GETRANGE, pMinRange, pMaxRange);
}

DWORD CMonthCalCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const
{
    return quorfx::GetRangeOf(m_hWnd, MCM_GETRANGE, pMinRange, pMaxRange);
}

DWORD CMonthCalCtrl::GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const
{
    SYSTEMTIME times[2] = {};
    const DWORD flags = quorfx::Send<DWORD>(m_hWnd, MCM_GETRANGE, 0, times);
    StoreTime(pMinRange, times[0]);
    StoreTime(pMaxRange, times[1]);
    return flags;
}

BOOL CMonthCalCtrl::SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange)
{
    return quorfx::SetRangeOf(m_hWnd, MCM_SETRANGE, pMinRange, pMaxRange);
}

BOOL CMonthCalCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange)
{
    return quorfx::SetRangeOf(m_hWnd, MCM_SETRANGE, pMinRange, pMaxRange);
}

BOOL CMonthCalCtrl::SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange)
{
    const SYSTEMTIME none = {};
    const SYSTEMTIME times[] = {pMinRange == nullptr ? none : *pMinRange,
                                pMaxRange == nullptr ? none : *pMaxRange};
    const DWORD flags = (pMinRange == nullptr ? 0u : GDTR_MIN) | (pMaxRange == nullptr ? 0u : GDTR_MAX);
    return quorfx::Send<BOOL>(m_hWnd, MCM_SETRANGE, flags, times);
}

int CMonthCalCtrl::GetMonthRange(COleDateTime& refMinRange, COleDateTime& refMaxRange, DWORD dwFlags) const
{
    return GetEndsOf(m_hWnd, MCM_GETMONTHRANGE, dwFlags, refMinRange, refMaxRange);
}

int CMonthCalCtrl::GetMonthRange(CTime& refMinRange, CTime& refMaxRange, DWORD dwFlags) const
{
    return GetEndsOf(m_hWnd, MCM_GETMONTHRANGE, dwFlags, refMinRange, refMaxRange);
}

int CMonthCalCtrl::GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const
{
    SYSTEMTIME times[2] = {};
    const int months = quorfx::Send<int>(m_hWnd, MCM_GETMONTHRANGE, dwFlags, times);
    StoreTime(pMinRange, times[0]);
    StoreTime(pMaxRange, times[1]);
    return months;
}

BOOL CMonthCalCtrl::GetToday(COleDateTime& refDateTime) const
{
    return GetTimeOf(m_hWnd, MCM_GETTODAY, refDateTime);
}

void CMonthCalCtrl::SetToday(const COleDateTime& refDateTime)
{
    SetTimeOf(m_hWnd, MCM_SETTODAY, refDateTime);
}

void CMonthCalCtrl::SetToday(const CTime* pDateTime)
{
    SYSTEMTIME time = {};
    quorfx::Send(m_hWnd, MCM_SETTODAY, 0,
                 pDateTime != nullptr && quorfx::ToSystemTime(*pDateTime, time) ? &time : nullptr);
}

int CMonthCalCtrl::GetFirstDayOfWeek(BOOL* pbLocal) const
{
    const DWORD answer = quorfx::Send<DWORD>(m_hWnd, MCM_GETFIRSTDAYOFWEEK);
    if (pbLocal != nullptr)
        *pbLocal = HIWORD(answer);
    return LOWORD(answer);
}

BOOL CMonthCalCtrl::SetFirstDayOfWeek(int iDay, int* lpnOld)
{
    const DWORD answer = quorfx::Send<DWORD>(m_hWnd, MCM_SETFIRSTDAYOFWEEK, 0, iDay);
    if (lpnOld != nullptr)
        *lpnOld = LOWORD(answer);
    return HIWORD(answer);
}

BOOL CMonthCalCtrl::SizeMinReq(BOOL bRepaint)
{
    CRect rect;
    if (!GetMinReqRect(&rect))
        return FALSE;
    // The border is not part of the size that the control asks for.
    AdjustWindowRectEx(&rect, GetStyle(), FALSE, GetExStyle());
    return SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(),
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | (bRepaint ? 0u : SWP_NOREDRAW));
}
