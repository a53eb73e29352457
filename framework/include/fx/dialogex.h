// CDialogEx: dialogs with a background of their own.
#pragma once

#include "fx/dialog.h"
#include "fx/gdi.h"

// A dialog whose background is a colour, a picture, or the usual one. Labels and the like let it shine
// through.
class QFX_API CDialogEx : public CDialog
{
    DECLARE_DYNAMIC(CDialogEx)

public:
    CDialogEx();
    CDialogEx(UINT nIDTemplate, CWnd* pParent = NULL);
    CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    virtual ~CDialogEx();

    // Where a picture stands; the rest of the dialog has its colour.
    enum BackgroundLocation
    {
        BACKGR_TILE, // repeated all over
        BACKGR_TOPLEFT,
        BACKGR_TOPRIGHT,
        BACKGR_BOTTOMLEFT,
        BACKGR_BOTTOMRIGHT
    };

    // (COLORREF)-1 is the usual background.
    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE);
    // NULL and 0 take the picture away. With bAutoDestroy the dialog deletes the bitmap when it needs it no
    // longer; one that it has loaded itself it always deletes. FALSE when there is no such bitmap.
    void SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location = BACKGR_TILE,
                            BOOL bAutoDestroy = TRUE, BOOL bRepaint = TRUE);
    BOOL SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location = BACKGR_TILE, BOOL bRepaint = TRUE);

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnSize(UINT nType, int cx, int cy);

    DECLARE_MESSAGE_MAP()

private:
    void DropImage();
    void DrawImage(CDC* pDC, const CRect& rectClient) const;
    void Repaint(BOOL bRepaint);

    CBrush m_colorBrush;
    HBITMAP m_image;
    BOOL m_ownsImage;
    BackgroundLocation m_location;
};
