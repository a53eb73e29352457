// CPropertyPage: one page of a property sheet.
#pragma once

#include "fx/dialog.h"

#include <prsht.h>

class CPropertySheet;

// A dialog from a template that a CPropertySheet shows behind a tab, or as a step of a wizard. Its window is
// made when the page is first shown. The handlers below are called for what the user does with the sheet.
class QFX_API CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)

public:
    CPropertyPage();
    // The caption of the page's tab is that of the template, or the string nIDCaption. Header title and
    // subtitle are for wizards in the style of 1997.
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0,
                           DWORD dwSize = sizeof(PROPSHEETPAGE));
    CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGE));
    CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGE));
    virtual ~CPropertyPage();

    // For pages made by the default constructor.
    void Construct(UINT nIDTemplate, UINT nIDCaption = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);
    void Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                   UINT nIDHeaderSubTitle = 0);

    // The parameters of the page; change them before the page is added.
    PROPSHEETPAGE m_psp;
    const PROPSHEETPAGE& GetPSP() const { return m_psp; }
    PROPSHEETPAGE& GetPSP() { return m_psp; }

    // Turns OK into Close and greys Cancel, after a change that cannot be taken back.
    void CancelToClose();
    // Whether the page has changes that Apply would take over; the button is enabled accordingly.
    void SetModified(BOOL bChanged = TRUE);
    // Sends PSM_QUERYSIBLINGS to the pages; the result is the first that is not 0.
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);

    // The page is shown: FALSE passes on to the next one. Shows the members, from the second time on.
    virtual BOOL OnSetActive();
    // The page is left, or OK or Apply was pressed: FALSE stays. Reads and checks the controls.
    virtual BOOL OnKillActive();
    // OK or Apply was pressed, and all pages agreed: FALSE keeps the sheet open. Calls OnOK.
    virtual BOOL OnApply();
    // Cancel was pressed. Calls OnCancel.
    virtual void OnReset();
    virtual void OnOK();
    virtual void OnCancel();
    // Cancel was pressed and nothing has happened yet: FALSE prevents it.
    virtual BOOL OnQueryCancel();
    // Wizards: 0 goes on, -1 stays, another value is the template id of the page to go to.
    virtual LRESULT OnWizardBack();
    virtual LRESULT OnWizardNext();
    // Wizards: FALSE stays.
    virtual BOOL OnWizardFinish();

    virtual BOOL PreTranslateMessage(MSG* pMsg);

protected:
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);

private:
    class Creation;

    void Prepare(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle);
    HPROPSHEETPAGE MakeHandle();
    BOOL AnswerSheet(UINT code, LRESULT& result);
    static UINT CALLBACK PageCallback(HWND hWnd, UINT message, LPPROPSHEETPAGE pPage);
    static INT_PTR CALLBACK PageProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    CString m_strCaption;
    CString m_strHeaderTitle;
    CString m_strHeaderSubTitle;
    Creation* m_pCreation;
    bool m_bShownBefore;

    friend class CPropertySheet;
};
