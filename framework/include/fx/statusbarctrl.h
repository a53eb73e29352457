// CStatusBarCtrl: the platform's status bar.
#pragma once

#include "fx/message.h"
#include "fx/string.h"
#include "fx/wnd.h"
#include "atltypes.h"

// Wraps a status bar window. The object has no state of its own: a pointer to any CWnd of a status bar may be
// cast to it. Panes are zero-based; nType is 0 or a sum of SBT_ values.
class QFX_API CStatusBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CStatusBarCtrl)

public:
    CStatusBarCtrl() {}
    ~CStatusBarCtrl() override;

    // Create the control as a child; rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The text of a pane and how it is drawn. GetText copies into a buffer that is large enough.
    BOOL SetText(LPCTSTR lpszText, int nPane, int nType)
    {
        return quorfx::Send<BOOL>(m_hWnd, SB_SETTEXT, nPane | nType, lpszText);
    }
    int GetText(LPCTSTR lpszText, int nPane, int* pType = NULL) const;
    CString GetText(int nPane, int* pType = NULL) const;
    int GetTextLength(int nPane, int* pType = NULL) const;
    // The right edges of the panes in client pixels; -1 stands for the bar's. GetParts returns their number.
    BOOL SetParts(int nParts, int* pWidths)
    {
        return quorfx::Send<BOOL>(m_hWnd, SB_SETPARTS, nParts, pWidths);
    }
    int GetParts(int nParts, int* pParts) const
    {
        return quorfx::Send<int>(m_hWnd, SB_GETPARTS, nParts, pParts);
    }
    // The width of the horizontal and the vertical border, and the space between panes.
    BOOL GetBorders(int* pBorders) const { return quorfx::Send<BOOL>(m_hWnd, SB_GETBORDERS, 0, pBorders); }
    BOOL GetBorders(int& nHorz, int& nVert, int& nSpacing) const;
    void SetMinHeight(int nMin) { quorfx::Send(m_hWnd, SB_SETMINHEIGHT, nMin); }
    BOOL GetRect(int nPane, LPRECT lpRect) const
    {
        return quorfx::Send<BOOL>(m_hWnd, SB_GETRECT, nPane, lpRect);
    }
    // Simple mode: one pane over the whole width.
    BOOL SetSimple(BOOL bSimple = TRUE) { return quorfx::Send<BOOL>(m_hWnd, SB_SIMPLE, bSimple); }
    BOOL IsSimple() const { return quorfx::Send<BOOL>(m_hWnd, SB_ISSIMPLE); }
    COLORREF SetBkColor(COLORREF cr) { return quorfx::Send<COLORREF>(m_hWnd, SB_SETBKCOLOR, 0, cr); }
    BOOL SetIcon(int nPane, HICON hIcon) { return quorfx::Send<BOOL>(m_hWnd, SB_SETICON, nPane, hIcon); }
    HICON GetIcon(int iPart) const { return quorfx::Send<HICON>(m_hWnd, SB_GETICON, iPart); }
    CString GetTipText(int nPane) const;
    void SetTipText(int nPane, LPCTSTR pszTipText) { quorfx::Send(m_hWnd, SB_SETTIPTEXT, nPane, pszTipText); }

    // Called to draw a pane of the type SBT_OWNERDRAW. The base asserts: whoever uses the type overrides it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
