// CButton: push buttons, check boxes, radio buttons and group boxes.
#pragma once

#include "fx/message.h"
#include "fx/wnd.h"

class CImageList;

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

    // Pictures of all states, the room round the text, and the size that fits both. FALSE where the control
    // cannot.
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
    {
        return quorfx::Send<BOOL>(m_hWnd, BCM_GETIMAGELIST, 0, pbuttonImagelist);
    }
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
    {
        return quorfx::Send<BOOL>(m_hWnd, BCM_SETIMAGELIST, 0, pbuttonImagelist);
    }
    BOOL GetTextMargin(RECT* pmargin) { return quorfx::Send<BOOL>(m_hWnd, BCM_GETTEXTMARGIN, 0, pmargin); }
    BOOL SetTextMargin(RECT* pmargin) { return quorfx::Send<BOOL>(m_hWnd, BCM_SETTEXTMARGIN, 0, pmargin); }
    BOOL GetIdealSize(SIZE* psize) { return quorfx::Send<BOOL>(m_hWnd, BCM_GETIDEALSIZE, 0, psize); }
    // The sign that the command asks for an administrator.
    BOOL SetElevationRequired(BOOL fElevationRequired)
    {
        return quorfx::Send<BOOL>(m_hWnd, BCM_SETSHIELD, 0, fElevationRequired);
    }

    // The second line of a command link. The count is the size of the buffer and then the length.
    CString GetNote() const;
    BOOL GetNote(LPTSTR lpszNote, UINT* cchNote) const
    {
        return quorfx::Send<BOOL>(m_hWnd, BCM_GETNOTE, cchNote, lpszNote);
    }
    BOOL SetNote(LPCTSTR lpszNote) { return quorfx::Send<BOOL>(m_hWnd, BCM_SETNOTE, 0, lpszNote); }
    UINT GetNoteLength() const { return quorfx::Send<UINT>(m_hWnd, BCM_GETNOTELENGTH); }

    // The part of a split button that opens its menu.
    BOOL SetDropDownState(BOOL fDropDown)
    {
        return quorfx::Send<BOOL>(m_hWnd, BCM_SETDROPDOWNSTATE, fDropDown);
    }
    BOOL GetSplitInfo(PBUTTON_SPLITINFO pInfo) const
    {
        return quorfx::Send<BOOL>(m_hWnd, BCM_GETSPLITINFO, 0, pInfo);
    }
    BOOL SetSplitInfo(PBUTTON_SPLITINFO pInfo)
    {
        return quorfx::Send<BOOL>(m_hWnd, BCM_SETSPLITINFO, 0, pInfo);
    }
    UINT GetSplitStyle() const;
    BOOL SetSplitStyle(UINT uSplitStyle);
    BOOL GetSplitSize(LPSIZE pSize) const;
    BOOL SetSplitSize(LPSIZE pSize);
    TCHAR GetSplitGlyph() const;
    BOOL SetSplitGlyph(TCHAR chGlyph);
    CImageList* GetSplitImageList() const;
    BOOL SetSplitImageList(CImageList* pSplitImageList);

    // Called to draw a BS_OWNERDRAW button. The base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};
