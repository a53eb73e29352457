// CCommonDialog: the base of the system's common dialog boxes.
#pragma once

#include "fx/dialog.h"

#include <commdlg.h>

// A dialog that the system creates and runs. While it is open the object is attached to it, so that message
// maps and overrides see its messages; OnOK and OnCancel end in the system's own handling.
class QFX_API CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)

public:
    explicit CCommonDialog(CWnd* pParentWnd);

protected:
    virtual void OnOK();
    virtual void OnCancel();

private:
    class HookScope;

    // Takes a registered message of the system's dialogs. FALSE: not one for this dialog.
    virtual BOOL HandleDialogMessage(UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR& result);
    HWND FindOwner() const;
    INT_PTR RunHooked(BOOL(WINAPI* run)(void*), void* data);
    static UINT_PTR CALLBACK HookProcedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    friend class CFileDialog;
    friend class CColorDialog;
    friend class CFontDialog;
    friend class CFindReplaceDialog;
    friend class CPrintDialog;
    friend class CPageSetupDialog;
};
