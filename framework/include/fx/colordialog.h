// CColorDialog: choosing a colour.
#pragma once

#include "fx/commondialog.h"

class QFX_API CColorDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CColorDialog)

public:
    CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = NULL);

    // The parameters of the dialog.
    CHOOSECOLOR m_cc;

    // IDOK or IDCANCEL.
    virtual INT_PTR DoModal();
    // The colour chosen.
    COLORREF GetColor() const { return m_cc.rgbResult; }
    // While the dialog is open: selects a colour.
    void SetCurrentColor(COLORREF clr);
    // The 16 colours that users made, shared by all dialogs of the program.
    static COLORREF* PASCAL GetSavedCustomColors();

protected:
    // Return nonzero to refuse the colour, which GetColor has, and leave the dialog open.
    virtual BOOL OnColorOK();

private:
    virtual BOOL HandleDialogMessage(UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR& result);
};
