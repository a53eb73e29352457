// CMonthCalCtrl: a calendar to choose days from.
#pragma once

#include "fx/message.h"
#include "fx/oledatetime.h"
#include "fx/wnd.h"

// Wraps a month-calendar window. The object has no state of its own: a pointer to any CWnd of one may be cast
// to it. Only the days of times count. The pointer to a structure of a range may be NULL for an end that is
// not asked for or not limited; a null COleDateTime and a CTime of 0 mean no limit as well.
class QFX_API CMonthCalCtrl : public CWnd
{
    DECLARE_DYNAMIC(CMonthCalCtrl)

public:
    CMonthCalCtrl() {}
    virtual ~CMonthCalCtrl();

    // Create the control as a child. rect and pt are in client coordinates of the parent; with a point the
    // size is that of one month. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID);

    // The selected day; FALSE with the style MCS_MULTISELECT.
    BOOL GetCurSel(COleDateTime& refDateTime) const;
    BOOL GetCurSel(CTime& refDateTime) const;
    BOOL GetCurSel(LPSYSTEMTIME pDateTime) const
    {
        return quorfx::Send<BOOL>(m_hWnd, MCM_GETCURSEL, 0, pDateTime);
    }
    BOOL SetCurSel(const COleDateTime& refDateTime);
    BOOL SetCurSel(const CTime& refDateTime);
    BOOL SetCurSel(const LPSYSTEMTIME pDateTime)
    {
        return quorfx::Send<BOOL>(m_hWnd, MCM_SETCURSEL, 0, pDateTime);
    }

    // The selected days, with the style MCS_MULTISELECT, and how many there may be.
    BOOL GetSelRange(COleDateTime& refMinRange, COleDateTime& refMaxRange) const;
    BOOL GetSelRange(CTime& refMinRange, CTime& refMaxRange) const;
    BOOL GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    BOOL SetSelRange(const COleDateTime& pMinRange, const COleDateTime& pMaxRange);
    BOOL SetSelRange(const CTime& pMinRange, const CTime& pMaxRange);
    BOOL SetSelRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);
    int GetMaxSelCount() const { return quorfx::Send<int>(m_hWnd, MCM_GETMAXSELCOUNT); }
    BOOL SetMaxSelCount(int nMax) { return quorfx::Send<BOOL>(m_hWnd, MCM_SETMAXSELCOUNT, nMax); }

    // The days that can be chosen. The result of GetRange has GDTR_MIN and GDTR_MAX for the limits set.
    DWORD GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const;
    DWORD GetRange(CTime* pMinRange, CTime* pMaxRange) const;
    DWORD GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    BOOL SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange);
    BOOL SetRange(const CTime* pMinRange, const CTime* pMaxRange);
    BOOL SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);

    // The days shown: GMR_VISIBLE the whole months, GMR_DAYSTATE also parts. The result counts months.
    int GetMonthRange(COleDateTime& refMinRange, COleDateTime& refMaxRange, DWORD dwFlags) const;
    int GetMonthRange(CTime& refMinRange, CTime& refMaxRange, DWORD dwFlags) const;
    int GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const;
    // How many months a click on an arrow moves; SetMonthDelta returns the number before.
    int GetMonthDelta() const { return quorfx::Send<int>(m_hWnd, MCM_GETMONTHDELTA); }
    int SetMonthDelta(int iDelta) { return quorfx::Send<int>(m_hWnd, MCM_SETMONTHDELTA, iDelta); }
    // Which days are bold, a bit field for each month shown.
    BOOL SetDayState(int nMonths, LPMONTHDAYSTATE pStates)
    {
        return quorfx::Send<BOOL>(m_hWnd, MCM_SETDAYSTATE, nMonths, pStates);
    }

    BOOL GetToday(COleDateTime& refDateTime) const;
    BOOL GetToday(LPSYSTEMTIME pDateTime) const
    {
        return quorfx::Send<BOOL>(m_hWnd, MCM_GETTODAY, 0, pDateTime);
    }
    void SetToday(const COleDateTime& refDateTime);
    void SetToday(const CTime* pDateTime);
    void SetToday(const LPSYSTEMTIME pDateTime) { quorfx::Send(m_hWnd, MCM_SETTODAY, 0, pDateTime); }

    // 0 is Monday. *pbLocal tells whether the day is another one than the system's.
    int GetFirstDayOfWeek(BOOL* pbLocal = NULL) const;
    BOOL SetFirstDayOfWeek(int iDay, int* lpnOld = NULL);

    // Look and size. A region is an MCSC_ value; SetColor returns the colour before. Rectangles are in
    // client pixels. SizeMinReq makes the window as large as one month.
    COLORREF GetColor(int nRegion) const { return quorfx::Send<COLORREF>(m_hWnd, MCM_GETCOLOR, nRegion); }
    COLORREF SetColor(int nRegion, COLORREF ref)
    {
        return quorfx::Send<COLORREF>(m_hWnd, MCM_SETCOLOR, nRegion, ref);
    }
    BOOL GetMinReqRect(RECT* pRect) const { return quorfx::Send<BOOL>(m_hWnd, MCM_GETMINREQRECT, 0, pRect); }
    BOOL SizeMinReq(BOOL bRepaint = TRUE);
    LPRECT SizeRectToMin(LPRECT lpRect)
    {
        quorfx::Send(m_hWnd, MCM_SIZERECTTOMIN, 0, lpRect);
        return lpRect;
    }
    DWORD GetMaxTodayWidth() const { return quorfx::Send<DWORD>(m_hWnd, MCM_GETMAXTODAYWIDTH); }
    int GetCalendarBorder() const { return quorfx::Send<int>(m_hWnd, MCM_GETCALENDARBORDER); }
    void SetCalendarBorder(int cxyBorder) { quorfx::Send(m_hWnd, MCM_SETCALENDARBORDER, TRUE, cxyBorder); }
    void SetCalendarBorderDefault() { quorfx::Send(m_hWnd, MCM_SETCALENDARBORDER); }
    int GetCalendarCount() const { return quorfx::Send<int>(m_hWnd, MCM_GETCALENDARCOUNT); }
    BOOL GetCalendarGridInfo(PMCGRIDINFO pmcGridInfo) const
    {
        return quorfx::Send<BOOL>(m_hWnd, MCM_GETCALENDARGRIDINFO, 0, pmcGridInfo);
    }
    CALID GetCalID() const { return quorfx::Send<CALID>(m_hWnd, MCM_GETCALID); }
    BOOL SetCalID(CALID calid) { return quorfx::Send<BOOL>(m_hWnd, MCM_SETCALID, calid); }
    // The part at pMCHitTest->pt, an MCHT_ value.
    DWORD HitTest(PMCHITTESTINFO pMCHitTest)
    {
        return quorfx::Send<DWORD>(m_hWnd, MCM_HITTEST, 0, pMCHitTest);
    }

    // What is shown: days, months, years or decades (MCMV_ values).
    DWORD GetCurrentView() const { return quorfx::Send<DWORD>(m_hWnd, MCM_GETCURRENTVIEW); }
    BOOL SetCurrentView(DWORD dwNewView)
    {
        return quorfx::Send<BOOL>(m_hWnd, MCM_SETCURRENTVIEW, 0, dwNewView);
    }
    BOOL IsMonthView() const { return GetCurrentView() == MCMV_MONTH; }
    BOOL IsYearView() const { return GetCurrentView() == MCMV_YEAR; }
    BOOL IsDecadeView() const { return GetCurrentView() == MCMV_DECADE; }
    BOOL IsCenturyView() const { return GetCurrentView() == MCMV_CENTURY; }
    BOOL SetMonthView() { return SetCurrentView(MCMV_MONTH); }
    BOOL SetYearView() { return SetCurrentView(MCMV_YEAR); }
    BOOL SetDecadeView() { return SetCurrentView(MCMV_DECADE); }
    BOOL SetCenturyView() { return SetCurrentView(MCMV_CENTURY); }
};
