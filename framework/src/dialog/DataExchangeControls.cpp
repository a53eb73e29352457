// Dialog data exchange of the common controls.
#include "afxcmn.h"
#include "afxdtctl.h"

namespace
{

template <class Control> Control& ControlOf(HWND window)
{
    return *static_cast<Control*>(CWnd::FromHandle(window));
}

} // namespace

void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value)
{
    CSliderCtrl& slider = ControlOf<CSliderCtrl>(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        value = slider.GetPos();
    else
        slider.SetPos(value);
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value)
{
    CDateTimeCtrl& picker = ControlOf<CDateTimeCtrl>(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        picker.GetTime(value);
    else
        picker.SetTime(&value);
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value)
{
    CDateTimeCtrl& picker = ControlOf<CDateTimeCtrl>(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        picker.GetTime(value);
    else
        picker.SetTime(value);
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value)
{
    const CWnd& picker = ControlOf<CWnd>(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
    {
        picker.GetWindowText(value);
        return;
    }
    COleDateTime time;
    if (time.ParseDateTime(value))
        DDX_DateTimeCtrl(pDX, nIDC, time);
}

void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value)
{
    CMonthCalCtrl& calendar = ControlOf<CMonthCalCtrl>(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        calendar.GetCurSel(value);
    else
        calendar.SetCurSel(value);
}

void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value)
{
    CMonthCalCtrl& calendar = ControlOf<CMonthCalCtrl>(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        calendar.GetCurSel(value);
    else
        calendar.SetCurSel(value);
}
