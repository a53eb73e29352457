// CProgressCtrl: a bar that shows how far something has come.
#pragma once

#include "fx/message.h"
#include "fx/wnd.h"

// Wraps a progress window. The object has no state of its own: a pointer to any CWnd of one may be cast to
// it. Set functions return the value before.
class QFX_API CProgressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CProgressCtrl)

public:
    CProgressCtrl() {}
    virtual ~CProgressCtrl();

    // Create the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The range is 0 to 100 at first, both ends included.
    void SetRange(short nLower, short nUpper)
    {
        quorfx::Send(m_hWnd, PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper));
    }
    void SetRange32(int nLower, int nUpper) { quorfx::Send(m_hWnd, PBM_SETRANGE32, nLower, nUpper); }
    void GetRange(int& nLower, int& nUpper);
    int GetPos() { return quorfx::Send<int>(m_hWnd, PBM_GETPOS); }
    int SetPos(int nPos) { return quorfx::Send<int>(m_hWnd, PBM_SETPOS, nPos); }
    int OffsetPos(int nPos) { return quorfx::Send<int>(m_hWnd, PBM_DELTAPOS, nPos); }
    // StepIt moves on by the step, 10 at first, and begins again at the end.
    int GetStep() const { return quorfx::Send<int>(m_hWnd, PBM_GETSTEP); }
    int SetStep(int nStep) { return quorfx::Send<int>(m_hWnd, PBM_SETSTEP, nStep); }
    int StepIt() { return quorfx::Send<int>(m_hWnd, PBM_STEPIT); }

    // PBST_NORMAL, PBST_ERROR or PBST_PAUSED.
    int GetState() const { return quorfx::Send<int>(m_hWnd, PBM_GETSTATE); }
    int SetState(int iState) { return quorfx::Send<int>(m_hWnd, PBM_SETSTATE, iState); }
    // Moves on without a position, with the style PBS_MARQUEE; the interval is in milliseconds.
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval)
    {
        return quorfx::Send<BOOL>(m_hWnd, PBM_SETMARQUEE, fMarqueeMode, nInterval);
    }

    COLORREF GetBarColor() const { return quorfx::Send<COLORREF>(m_hWnd, PBM_GETBARCOLOR); }
    COLORREF SetBarColor(COLORREF clrBar)
    {
        return quorfx::Send<COLORREF>(m_hWnd, PBM_SETBARCOLOR, 0, clrBar);
    }
    COLORREF GetBkColor() const { return quorfx::Send<COLORREF>(m_hWnd, PBM_GETBKCOLOR); }
    COLORREF SetBkColor(COLORREF clrNew) { return quorfx::Send<COLORREF>(m_hWnd, PBM_SETBKCOLOR, 0, clrNew); }
};
