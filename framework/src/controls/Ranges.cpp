// CProgressCtrl and CSliderCtrl: what is more than one message.
#include "controls/CommonControls.h"

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)

CProgressCtrl::~CProgressCtrl()
{
    DestroyWindow();
}

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CProgressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, PROGRESS_CLASS, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper)
{
    PBRANGE range = {};
    quorfx::Send(m_hWnd, PBM_GETRANGE, TRUE, &range);
    nLower = range.iLow;
    nUpper = range.iHigh;
}

CSliderCtrl::~CSliderCtrl()
{
    DestroyWindow();
}

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CSliderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    quorfx::EnsureCommonControls();
    return CWnd::CreateEx(dwExStyle, TRACKBAR_CLASS, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

void CSliderCtrl::GetRange(int& nMin, int& nMax) const
{
    nMin = GetRangeMin();
    nMax = GetRangeMax();
}

void CSliderCtrl::SetRange(int nMin, int nMax, BOOL bRedraw)
{
    SetRangeMin(nMin, FALSE);
    SetRangeMax(nMax, bRedraw);
}

void CSliderCtrl::GetSelection(int& nMin, int& nMax) const
{
    nMin = quorfx::Send<int>(m_hWnd, TBM_GETSELSTART);
    nMax = quorfx::Send<int>(m_hWnd, TBM_GETSELEND);
}

void CSliderCtrl::SetSelection(int nMin, int nMax)
{
    quorfx::Send(m_hWnd, TBM_SETSELSTART, FALSE, nMin);
    quorfx::Send(m_hWnd, TBM_SETSELEND, TRUE, nMax);
}

CWnd* CSliderCtrl::GetBuddy(BOOL fLocation) const
{
    return CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, TBM_GETBUDDY, fLocation));
}

CWnd* CSliderCtrl::SetBuddy(CWnd* pWndBuddy, BOOL fLocation)
{
    return CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, TBM_SETBUDDY, fLocation, pWndBuddy->GetSafeHwnd()));
}

CToolTipCtrl* CSliderCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(quorfx::Send<HWND>(m_hWnd, TBM_GETTOOLTIPS)));
}

void CSliderCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    quorfx::Send(m_hWnd, TBM_SETTOOLTIPS, pWndTip->GetSafeHwnd());
}
