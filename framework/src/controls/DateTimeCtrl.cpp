// CDateTimeCtrl: what is more than one message.
#include "afxdtctl.h"
#include "controls/CommonControls.h"
#include "controls/SystemTimes.h"

IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

CDateTimeCtrl::~CDateTimeCtrl()
{
    DestroyWindow();
}

BOOL CDateTimeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::Create(DATETIMEPICK_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CDateTimeCtrl::GetTime(COleDateTime& timeDest) const
{
    SYSTEMTIME time = {};
    const DWORD result = GetTime(&time);
    if (result == GDT_VALID)
        timeDest = time;
    else
        timeDest.SetStatus(result == GDT_NONE ? COleDateTime::null : COleDateTime::invalid);
    return result == GDT_VALID || result == GDT_NONE;
}

DWORD CDateTimeCtrl::GetTime(CTime& timeDest) const
{
    SYSTEMTIME time = {};
    const DWORD result = GetTime(&time);
    if (result == GDT_VALID)
        timeDest = CTime(time);
    return result;
}

BOOL CDateTimeCtrl::SetTime(const COleDateTime& timeNew)
{
    SYSTEMTIME time = {};
    return SetTime(quorfx::ToSystemTime(timeNew, time) ? &time : nullptr);
}

BOOL CDateTimeCtrl::SetTime(const CTime* pTimeNew)
{
    SYSTEMTIME time = {};
    return SetTime(pTimeNew != nullptr && pTimeNew->GetAsSystemTime(time) ? &time : nullptr);
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME pTimeNew)
{
    // Some versions of the control want a structure even where it means nothing.
    SYSTEMTIME unused = {};
    if (pTimeNew == nullptr)
        return quorfx::Send<BOOL>(m_hWnd, DTM_SETSYSTEMTIME, GDT_NONE, &unused);
    return quorfx::Send<BOOL>(m_hWnd, DTM_SETSYSTEMTIME, GDT_VALID, pTimeNew);
}

DWORD CDateTimeCtrl::GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const
{
    return quorfx::GetRangeOf(m_hWnd, DTM_GETRANGE, pMinRange, pMaxRange);
}

DWORD CDateTimeCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const
{
    return quorfx::GetRangeOf(m_hWnd, DTM_GETRANGE, pMinRange, pMaxRange);
}

BOOL CDateTimeCtrl::SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange)
{
    return quorfx::SetRangeOf(m_hWnd, DTM_SETRANGE, pMinRange, pMaxRange);
}

BOOL CDateTimeCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange)
{
    return quorfx::SetRangeOf(m_hWnd, DTM_SETRANGE, pMinRange, pMaxRange);
}

CMonthCalCtrl* CDateTimeCtrl::GetMonthCalCtrl() const
{
    return static_cast<CMonthCalCtrl*>(CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, DTM_GETMONTHCAL)));
}

BOOL CDateTimeCtrl::GetDateTimePickerInfo(LPDATETIMEPICKERINFO pDateTimePickerInfo) const
{
    pDateTimePickerInfo->cbSize = sizeof(DATETIMEPICKERINFO);
    quorfx::Send(m_hWnd, DTM_GETDATETIMEPICKERINFO, 0, pDateTimePickerInfo);
    return TRUE;
}
