// CBitmapButton: a push button that shows a picture for each of its states.
#pragma once

#include "fx/button.h"
#include "fx/gdi.h"

// The window must have the style BS_OWNERDRAW. Pictures are found through the chain of modules.
class QFX_API CBitmapButton : public CButton
{
    DECLARE_DYNAMIC(CBitmapButton)

public:
    CBitmapButton();
    virtual ~CBitmapButton();

    // The pictures: normal, pressed, with the focus, disabled. Where one is missing the normal one stands.
    // FALSE when one that is named does not exist.
    BOOL LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = NULL,
                     LPCTSTR lpszBitmapResourceFocus = NULL, LPCTSTR lpszBitmapResourceDisabled = NULL);
    BOOL LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel = 0, UINT nIDBitmapResourceFocus = 0,
                     UINT nIDBitmapResourceDisabled = 0);
    // Becomes the button of the dialog with this id, loads the pictures that are named by its text and U, D,
    // F or X, of which only the first has to exist, and takes their size.
    BOOL AutoLoad(UINT nID, CWnd* pParent);
    // Takes the size of the normal picture.
    void SizeToContent();

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

private:
    CBitmap& BitmapFor(UINT nState);

    CBitmap m_normal;
    CBitmap m_pressed;
    CBitmap m_focused;
    CBitmap m_disabled;
};
