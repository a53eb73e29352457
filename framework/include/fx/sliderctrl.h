// CSliderCtrl: a thumb that the user moves along a scale.
#pragma once

#include "fx/message.h"
#include "fx/wnd.h"

class CToolTipCtrl;

// Wraps a track-bar window. The object has no state of its own: a pointer to any CWnd of one may be cast to
// it. The slider tells its parent about moves with WM_HSCROLL or WM_VSCROLL. Rectangles are in client pixels.
class QFX_API CSliderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSliderCtrl)

public:
    CSliderCtrl() {}
    virtual ~CSliderCtrl();

    // Create the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Position, range (both ends included), and how far the arrow keys and the page keys move. The set
    // functions of the sizes return the size before.
    int GetPos() const { return quorfx::Send<int>(m_hWnd, TBM_GETPOS); }
    void SetPos(int nPos) { quorfx::Send(m_hWnd, TBM_SETPOS, TRUE, nPos); }
    int GetRangeMin() const { return quorfx::Send<int>(m_hWnd, TBM_GETRANGEMIN); }
    int GetRangeMax() const { return quorfx::Send<int>(m_hWnd, TBM_GETRANGEMAX); }
    void GetRange(int& nMin, int& nMax) const;
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE) { quorfx::Send(m_hWnd, TBM_SETRANGEMIN, bRedraw, nMin); }
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE) { quorfx::Send(m_hWnd, TBM_SETRANGEMAX, bRedraw, nMax); }
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE);
    int GetLineSize() const { return quorfx::Send<int>(m_hWnd, TBM_GETLINESIZE); }
    int SetLineSize(int nSize) { return quorfx::Send<int>(m_hWnd, TBM_SETLINESIZE, 0, nSize); }
    int GetPageSize() const { return quorfx::Send<int>(m_hWnd, TBM_GETPAGESIZE); }
    int SetPageSize(int nSize) { return quorfx::Send<int>(m_hWnd, TBM_SETPAGESIZE, 0, nSize); }

    // The marked part of the scale, with the style TBS_ENABLESELRANGE.
    void GetSelection(int& nMin, int& nMax) const;
    void SetSelection(int nMin, int nMax);
    void ClearSel(BOOL bRedraw = FALSE) { quorfx::Send(m_hWnd, TBM_CLEARSEL, bRedraw); }

    // Tick marks. The count includes both ends; GetTic and GetTicPos take an index that does not: the value
    // of a mark, and its place in client pixels, -1 for none. SetTic marks a value, SetTicFreq every so many
    // with TBS_AUTOTICKS.
    UINT GetNumTics() const { return quorfx::Send<UINT>(m_hWnd, TBM_GETNUMTICS); }
    DWORD* GetTicArray() const { return quorfx::Send<DWORD*>(m_hWnd, TBM_GETPTICS); }
    int GetTic(int nTic) const { return quorfx::Send<int>(m_hWnd, TBM_GETTIC, nTic); }
    int GetTicPos(int nTic) const { return quorfx::Send<int>(m_hWnd, TBM_GETTICPOS, nTic); }
    BOOL SetTic(int nTic) { return quorfx::Send<BOOL>(m_hWnd, TBM_SETTIC, 0, nTic); }
    void SetTicFreq(int nFreq) { quorfx::Send(m_hWnd, TBM_SETTICFREQ, nFreq); }
    void ClearTics(BOOL bRedraw = FALSE) { quorfx::Send(m_hWnd, TBM_CLEARTICS, bRedraw); }

    // Geometry. The length of the thumb needs the style TBS_FIXEDLENGTH.
    void GetChannelRect(LPRECT lprc) const { quorfx::Send(m_hWnd, TBM_GETCHANNELRECT, 0, lprc); }
    void GetThumbRect(LPRECT lprc) const { quorfx::Send(m_hWnd, TBM_GETTHUMBRECT, 0, lprc); }
    int GetThumbLength() const { return quorfx::Send<int>(m_hWnd, TBM_GETTHUMBLENGTH); }
    void SetThumbLength(int nLength) { quorfx::Send(m_hWnd, TBM_SETTHUMBLENGTH, nLength); }

    // The windows at the ends: TRUE is left or above. SetBuddy returns the one before.
    CWnd* GetBuddy(BOOL fLocation = TRUE) const;
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE);

    // The tip that shows the position, with the style TBS_TOOLTIPS. The side is a TBTS_ value.
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    int SetTipSide(int nLocation) { return quorfx::Send<int>(m_hWnd, TBM_SETTIPSIDE, nLocation); }
};
