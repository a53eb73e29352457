// CSpinButtonCtrl: a pair of arrows that steps a number.
#pragma once

#include "fx/message.h"
#include "fx/wnd.h"

// Wraps an up-down window. The object has no state of its own: a pointer to any CWnd of a spin may be cast to
// it. The spin tells its parent about clicks with UDN_DELTAPOS and WM_VSCROLL.
class QFX_API CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)

public:
    CSpinButtonCtrl() {}
    virtual ~CSpinButtonCtrl();

    // Create the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // How the step grows while a button is held down.
    BOOL SetAccel(int nAccel, UDACCEL* pAccel)
    {
        return quorfx::Send<BOOL>(m_hWnd, UDM_SETACCEL, nAccel, pAccel);
    }
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const
    {
        return quorfx::Send<UINT>(m_hWnd, UDM_GETACCEL, nAccel, pAccel);
    }

    // Radix of the number in the buddy: 10 or 16.
    int SetBase(int nBase) { return quorfx::Send<int>(m_hWnd, UDM_SETBASE, nBase); }
    UINT GetBase() const { return quorfx::Send<UINT>(m_hWnd, UDM_GETBASE); }

    // The window whose text shows the number; SetBuddy returns the one before.
    CWnd* SetBuddy(CWnd* pWndBuddy);
    CWnd* GetBuddy() const;

    // The position, 16 bits in the short forms. SetPos returns the position before. GetPos has an error flag
    // in its high word, GetPos32 stores it in *lpbError.
    int SetPos(int nPos) { return quorfx::Send<short>(m_hWnd, UDM_SETPOS, 0, MAKELPARAM(nPos, 0)); }
    int GetPos() const { return quorfx::Send<int>(m_hWnd, UDM_GETPOS); }
    int SetPos32(int nPos) { return quorfx::Send<int>(m_hWnd, UDM_SETPOS32, 0, nPos); }
    int GetPos32(LPBOOL lpbError = NULL) const
    {
        return quorfx::Send<int>(m_hWnd, UDM_GETPOS32, 0, lpbError);
    }

    // The range, both ends inclusive. An upper end below the lower one reverses the arrows. GetRange() has
    // the upper end in its low word.
    void SetRange(short nLower, short nUpper)
    {
        quorfx::Send(m_hWnd, UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower));
    }
    DWORD GetRange() const { return quorfx::Send<DWORD>(m_hWnd, UDM_GETRANGE); }
    void GetRange(int& lower, int& upper) const;
    void SetRange32(int nLower, int nUpper) { quorfx::Send(m_hWnd, UDM_SETRANGE32, nLower, nUpper); }
    void GetRange32(int& lower, int& upper) const { quorfx::Send(m_hWnd, UDM_GETRANGE32, &lower, &upper); }
};
