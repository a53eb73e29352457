// CDialog: modal and modeless dialog boxes from templates.
#pragma once

#include "fx/string.h"
#include "fx/wnd.h"

// A window with controls from a dialog template, found through the chain of modules or built in memory.
//
// Modal: construct with a template and call DoModal. Modeless: call Create, override OnOK and OnCancel to
// call DestroyWindow, and usually PostNcDestroy to delete the object. The object must outlive its window.
class QFX_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog();
    // The parent is the owner of the dialog; NULL means the main window.
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    virtual ~CDialog();

    // Modeless: create the window from the template; FALSE if there is none or creation fails. The window is
    // visible if the template says WS_VISIBLE.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    // From a template in memory, followed by DLGINIT data or not. The memory is not kept.
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL,
                                void* lpDialogInit = NULL);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = NULL);

    // Modal from memory: names the template that DoModal uses. The memory must stay until DoModal returns.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL,
                           void* lpDialogInit = NULL);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = NULL);
    // Shows the dialog, disables its owner and runs until EndDialog. Returns EndDialog's value, -1 if the
    // dialog could not be created.
    virtual INT_PTR DoModal();
    // Ends a modal dialog with a result. The dialog closes after the current message has been handled.
    void EndDialog(int nResult);

    // Turns dialog units into pixels.
    void MapDialogRect(LPRECT lpRect) const;

    // Moves the focus along the tab order, or to a control whose text gets selected.
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* pWndCtrl);
    // The default push button. GetDefID has DC_HASDEFID in its high word if there is one.
    void SetDefID(UINT nID);
    DWORD GetDefID() const;

    // Called when all controls exist. The base runs the template's initial data and UpdateData(FALSE). Return
    // FALSE after having set the focus oneself. A dialog whose template gives it no place is centred over its
    // owner afterwards, unless it has been moved or shown here.
    virtual BOOL OnInitDialog();
    // Called before OnInitDialog with the font of the template.
    virtual void OnSetFont(CFont* pFont);

    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // Routes commands: the dialog, its owner (identifiers from 0x8000 on only), the application.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    // OK: UpdateData(TRUE), then EndDialog(IDOK). Cancel: EndDialog(IDCANCEL).
    virtual void OnOK();
    virtual void OnCancel();

    DECLARE_MESSAGE_MAP()

private:
    // The window classes of the framework that are made from templates as well.
    friend class CCommonDialog;
    friend class CDialogBar;
    friend class CFindReplaceDialog;
    friend class CFormView;
    friend class CPropertyPage;
    friend class CPropertySheet;

    // Called right before OnInitDialog.
    virtual void PreInitDialog();

    // The template: a name in the resources, or memory.
    LPCTSTR m_lpszTemplateName;
    HGLOBAL m_hDialogTemplate;
    LPCDLGTEMPLATE m_lpDialogTemplate;
    void* m_lpDialogInit;
    CWnd* m_pParentWnd;

    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);
    // F1: sends the main window the command ID_HELP.
    afx_msg BOOL OnHelpInfo(HELPINFO* lpHelpInfo);
    afx_msg LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);
    BOOL CreateFrom(LPCDLGTEMPLATE lpTemplate, CWnd* pParentWnd);
    void RunDialog(LPCDLGTEMPLATE lpTemplate);
    // The template is NULL for a dialog of the system, which has its place.
    INT_PTR InitDialog(LPCDLGTEMPLATE lpTemplate = NULL);
    static INT_PTR CALLBACK DialogProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
};
