// CPropertySheet: a dialog of pages with tabs, or a wizard.
#pragma once

#include "fx/propertypage.h"

class CTabCtrl;

// Add pages, then call DoModal, or Create for a modeless sheet, which has no buttons of its own. The pages
// belong to the caller and must outlive the sheet's window.
class QFX_API CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)

public:
    CPropertySheet();
    // iSelectPage: the page that is shown first.
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    // With pictures for wizards in the style of 1997.
    CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = NULL, HBITMAP hbmHeader = NULL);
    CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = NULL, HBITMAP hbmHeader = NULL);
    virtual ~CPropertySheet();

    // For sheets made by the default constructor.
    void Construct(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);
    void Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = NULL, HBITMAP hbmHeader = NULL);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = NULL, HBITMAP hbmHeader = NULL);

    // The parameters of the sheet; change them before DoModal or Create.
    PROPSHEETHEADER m_psh;

    // IDOK or IDCANCEL; ID_WIZFINISH or IDCANCEL for a wizard; -1 if there is no sheet.
    virtual INT_PTR DoModal();
    // Modeless. dwStyle -1: a popup with a caption and a system menu.
    virtual BOOL Create(CWnd* pParentWnd = NULL, DWORD dwStyle = (DWORD)-1, DWORD dwExStyle = 0);
    // Ends DoModal with a result, or destroys a modeless sheet.
    void EndDialog(int nEndID);
    // Presses a button: PSBTN_OK, PSBTN_NEXT ...
    void PressButton(int nButton);

    // Pages, by their position. They may come and go while the sheet is open.
    void AddPage(CPropertyPage* pPage);
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    int GetPageCount() const;
    CPropertyPage* GetPage(int nPage) const;
    // -1: not in the sheet.
    int GetPageIndex(CPropertyPage* pPage);
    // The page that is shown, or will be first.
    int GetActiveIndex() const;
    CPropertyPage* GetActivePage() const;
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage);

    // The caption; nStyle PSH_PROPTITLE adds what the system adds to property sheets.
    void SetTitle(LPCTSTR lpszText, UINT nStyle = 0);
    // FALSE, before the sheet is made: tabs in one row that scrolls.
    void EnableStackedTabs(BOOL bStacked);
    CTabCtrl* GetTabControl() const;

    // Wizards: the pages are steps. Buttons are PSWIZB_ flags; SetFinishText shows a button of this text in
    // place of Next and hides Back.
    void SetWizardMode();
    void SetWizardButtons(DWORD dwFlags);
    void SetFinishText(LPCTSTR lpszText);

    // Turns dialog units into pixels.
    void MapDialogRect(LPRECT lpRect) const;

    // The sheet and its first page exist. Call the base first.
    virtual BOOL OnInitDialog();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // Routes commands as dialogs do.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);

    afx_msg void OnClose();

    DECLARE_MESSAGE_MAP()

private:
    struct Pages;

    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    LRESULT HandlePressButton(WPARAM wParam, LPARAM lParam);
    void Prepare(const CString& caption, CWnd* pParentWnd, UINT iSelectPage);
    void PreparePictures(HBITMAP hbmWatermark, HPALETTE hpalWatermark, HBITMAP hbmHeader);
    BOOL CreateSheet(CWnd* pOwner);
    BOOL IsWizard() const;
    void RunModal();
    void FinishIfEnded(int nEndID);
    void HideButtons();
    void ShowTabsInOneRow();
    static int CALLBACK SheetCallback(HWND hWnd, UINT message, LPARAM lParam);

    CWnd* m_pParentWnd;
    CString m_strCaption;
    Pages* m_pPages;
    bool m_bStacked;
    bool m_bModeless;
    DWORD m_dwModelessStyle;
    DWORD m_dwModelessExStyle;
};
