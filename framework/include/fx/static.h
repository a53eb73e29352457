// CStatic: a label, icon, picture or frame.
#pragma once

#include "fx/message.h"
#include "fx/wnd.h"

// Wraps a STATIC window. The object has no state of its own: a pointer to any CWnd of a static may be cast to
// it.
class QFX_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

public:
    CStatic() {}
    virtual ~CStatic();

    // Creates the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xffff);

    // The picture shown, for the matching SS_ style. The set functions return the picture shown before; the
    // control never owns a picture.
    HICON SetIcon(HICON hIcon) { return quorfx::Send<HICON>(m_hWnd, STM_SETICON, hIcon); }
    HICON GetIcon() const { return quorfx::Send<HICON>(m_hWnd, STM_GETICON); }
    HBITMAP SetBitmap(HBITMAP hBitmap)
    {
        return quorfx::Send<HBITMAP>(m_hWnd, STM_SETIMAGE, IMAGE_BITMAP, hBitmap);
    }
    HBITMAP GetBitmap() const { return quorfx::Send<HBITMAP>(m_hWnd, STM_GETIMAGE, IMAGE_BITMAP); }
    HCURSOR SetCursor(HCURSOR hCursor)
    {
        return quorfx::Send<HCURSOR>(m_hWnd, STM_SETIMAGE, IMAGE_CURSOR, hCursor);
    }
    HCURSOR GetCursor() { return quorfx::Send<HCURSOR>(m_hWnd, STM_GETIMAGE, IMAGE_CURSOR); }
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile)
    {
        return quorfx::Send<HENHMETAFILE>(m_hWnd, STM_SETIMAGE, IMAGE_ENHMETAFILE, hMetaFile);
    }
    HENHMETAFILE GetEnhMetaFile() const
    {
        return quorfx::Send<HENHMETAFILE>(m_hWnd, STM_GETIMAGE, IMAGE_ENHMETAFILE);
    }

    // Called to draw an SS_OWNERDRAW control. The base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};
