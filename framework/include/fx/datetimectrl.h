// CDateTimeCtrl: a field for a date or a time.
#pragma once

#include "fx/gdi.h"
#include "fx/message.h"
#include "fx/oledatetime.h"
#include "fx/wnd.h"

class CMonthCalCtrl;

// Wraps a date-time picker. The object has no state of its own: a pointer to any CWnd of one may be cast to
// it. With the style DTS_SHOWNONE the field may be unset.
class QFX_API CDateTimeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CDateTimeCtrl)

public:
    CDateTimeCtrl() {}
    virtual ~CDateTimeCtrl();

    // Creates the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The time. The first form returns TRUE with the date's status valid, or null for an unset field; the
    // others return GDT_VALID or GDT_NONE and store nothing for an unset field.
    BOOL GetTime(COleDateTime& timeDest) const;
    DWORD GetTime(CTime& timeDest) const;
    DWORD GetTime(LPSYSTEMTIME pTimeDest) const
    {
        return quorfx::Send<DWORD>(m_hWnd, DTM_GETSYSTEMTIME, 0, pTimeDest);
    }
    // A null date, or a NULL pointer, makes the field unset.
    BOOL SetTime(const COleDateTime& timeNew);
    BOOL SetTime(const CTime* pTimeNew);
    BOOL SetTime(LPSYSTEMTIME pTimeNew = NULL);

    // The times that can be chosen. The result of GetRange has GDTR_MIN and GDTR_MAX for the limits set; a
    // limit that is not becomes null or 0. In SetRange a NULL pointer or a null date means no limit.
    DWORD GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const;
    DWORD GetRange(CTime* pMinRange, CTime* pMaxRange) const;
    BOOL SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange);
    BOOL SetRange(const CTime* pMinRange, const CTime* pMaxRange);

    // How the field shows the time; NULL stands for the format of the style.
    BOOL SetFormat(LPCTSTR pstrFormat) { return quorfx::Send<BOOL>(m_hWnd, DTM_SETFORMAT, 0, pstrFormat); }

    // The calendar that drops down, of use while it does; its colours (MCSC_ values), font and style, which
    // can be set at any time.
    CMonthCalCtrl* GetMonthCalCtrl() const;
    void CloseMonthCal() const { quorfx::Send(m_hWnd, DTM_CLOSEMONTHCAL); }
    COLORREF GetMonthCalColor(int iColor) const
    {
        return quorfx::Send<COLORREF>(m_hWnd, DTM_GETMCCOLOR, iColor);
    }
    COLORREF SetMonthCalColor(int iColor, COLORREF ref)
    {
        return quorfx::Send<COLORREF>(m_hWnd, DTM_SETMCCOLOR, iColor, ref);
    }
    CFont* GetMonthCalFont() const { return CFont::FromHandle(quorfx::Send<HFONT>(m_hWnd, DTM_GETMCFONT)); }
    void SetMonthCalFont(HFONT hFont, BOOL bRedraw = TRUE)
    {
        quorfx::Send(m_hWnd, DTM_SETMCFONT, hFont, MAKELPARAM(bRedraw, 0));
    }
    DWORD GetMonthCalStyle() const { return quorfx::Send<DWORD>(m_hWnd, DTM_GETMCSTYLE); }
    DWORD SetMonthCalStyle(DWORD dwStyle) { return quorfx::Send<DWORD>(m_hWnd, DTM_SETMCSTYLE, 0, dwStyle); }

    BOOL GetIdealSize(LPSIZE psize) const { return quorfx::Send<BOOL>(m_hWnd, DTM_GETIDEALSIZE, 0, psize); }
    // Sets cbSize itself.
    BOOL GetDateTimePickerInfo(LPDATETIMEPICKERINFO pDateTimePickerInfo) const;
};
