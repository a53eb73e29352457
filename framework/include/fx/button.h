// CButton: push buttons, check boxes, radio buttons and group boxes.
#pragma once

#include "fx/message.h"
#include "fx/wnd.h"

// Wraps a BUTTON window. The object has no state of its own: a pointer to any CWnd of a button may be cast to
// it.
class QFX_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

public:
    CButton() {}
    virtual ~CButton();

    // Creates the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The BST_ bits: check state, pushed, focused.
    UINT GetState() const { return quorfx::Send<UINT>(m_hWnd, BM_GETSTATE); }
    // Sets the pushed look only; sends no notification.
    void SetState(BOOL bHighlight) { quorfx::Send(m_hWnd, BM_SETSTATE, bHighlight); }
    // BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
    int GetCheck() const { return quorfx::Send<int>(m_hWnd, BM_GETCHECK); }
    void SetCheck(int nCheck) { quorfx::Send(m_hWnd, BM_SETCHECK, nCheck); }

    // The low word of the window style: the BS_ bits.
    UINT GetButtonStyle() const { return static_cast<UINT>(::GetWindowLong(m_hWnd, GWL_STYLE)) & 0xffff; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE)
    {
        quorfx::Send(m_hWnd, BM_SETSTYLE, nStyle, bRedraw);
    }

    // The picture on the face. The set functions return the one before; the control never owns a picture.
    HICON SetIcon(HICON hIcon) { return quorfx::Send<HICON>(m_hWnd, BM_SETIMAGE, IMAGE_ICON, hIcon); }
    HICON GetIcon() const { return quorfx::Send<HICON>(m_hWnd, BM_GETIMAGE, IMAGE_ICON); }
    HBITMAP SetBitmap(HBITMAP hBitmap)
    {
        return quorfx::Send<HBITMAP>(m_hWnd, BM_SETIMAGE, IMAGE_BITMAP, hBitmap);
    }
    HBITMAP GetBitmap() const { return quorfx::Send<HBITMAP>(m_hWnd, BM_GETIMAGE, IMAGE_BITMAP); }
    HCURSOR SetCursor(HCURSOR hCursor)
    {
        return quorfx::Send<HCURSOR>(m_hWnd, BM_SETIMAGE, IMAGE_CURSOR, hCursor);
    }
    HCURSOR GetCursor() { return quorfx::Send<HCURSOR>(m_hWnd, BM_GETIMAGE, IMAGE_CURSOR); }

    // Called to draw a BS_OWNERDRAW button. The base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};
