// CFileDialog: choosing files to open or a name to save under.
#pragma once

#include "fx/commondialog.h"
#include "fx/position.h"

// The system's dialog in its Explorer style. Set up m_ofn between construction and DoModal; ask for the
// choice after DoModal has returned IDOK, or while the dialog is open in the handlers below. m_hWnd is then a
// child of the dialog, which is GetParent().
class QFX_API CFileDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFileDialog)

public:
    // bOpenFileDialog: TRUE to open, FALSE to save. lpszDefExt is added to names without an extension.
    // lpszFilter: pairs of text and pattern as "Text (*.txt)|*.txt|All (*.*)|*.*||". The style is the
    // Explorer's whatever bVistaStyle says.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = NULL, LPCTSTR lpszFileName = NULL,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = NULL,
                         CWnd* pParentWnd = NULL, DWORD dwSize = 0, BOOL bVistaStyle = TRUE);
    virtual ~CFileDialog();

    // The parameters of the dialog. For OFN_ALLOWMULTISELECT set lpstrFile and nMaxFile to a larger buffer.
    OPENFILENAME m_ofn;
    const OPENFILENAME& GetOFN() const { return m_ofn; }
    OPENFILENAME& GetOFN() { return m_ofn; }

    // IDOK or IDCANCEL; when it is IDCANCEL, CommDlgExtendedError tells whether an error occurred.
    virtual INT_PTR DoModal();

    // The choice: "C:\DIR\NAME.EXT", "NAME.EXT", "EXT", "NAME". With several files chosen see
    // GetNextPathName.
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;
    CString GetFileTitle() const;
    // The folder that an open dialog shows.
    CString GetFolderPath() const;
    // Whether the read-only box was checked.
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }
    // A walk over all files chosen; the position becomes NULL after the last.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;

    // A dialog template of one's own for the area below: before DoModal. The first is for old-style dialogs.
    void SetTemplate(UINT nWin3ID, UINT nWin4ID);
    void SetTemplate(LPCTSTR lpWin3ID, LPCTSTR lpWin4ID);
    // While the dialog is open: the text of a control, hiding one, the default extension.
    void SetControlText(int nID, LPCSTR lpsz);
    void SetControlText(int nID, const wchar_t* lpsz);
    void HideControl(int nID);
    void SetDefExt(LPCSTR lpsz);

protected:
    // Return nonzero to refuse the chosen name and leave the dialog open.
    virtual BOOL OnFileNameOK();
    // After a sharing violation: OFN_SHAREFALLTHROUGH, OFN_SHARENOWARN or OFN_SHAREWARN.
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    // Old-style dialogs: the selection of a list changed.
    virtual void OnLBSelChangedNotify(UINT nIDBox, UINT iCurSel, UINT nCode);
    // The dialog is complete; another file, folder or type was selected.
    virtual void OnInitDone();
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();

    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);

private:
    virtual BOOL HandleDialogMessage(UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR& result);
    CString AskDialog(UINT message) const;

    BOOL m_bOpenFileDialog;
    CString m_strFilter;
    TCHAR m_szFileTitle[64];
    TCHAR m_szFileName[_MAX_PATH];
};
