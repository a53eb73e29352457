// MainDialog: the gallery's window: page list, page, log, status line.
#pragma once

#include "Language.h"
#include "LogPane.h"
#include "Page.h"
#include "ScrolledArea.h"

#include <afxwin.h>
#include <afxcmn.h>

#include <memory>
#include <vector>

class MainDialog : public CDialog
{
public:
    MainDialog();
    ~MainDialog() override;

    // Brings the window to where it was when it was closed last, and shows the page of that time.
    void Restore();
    // Shows a table file in the page that is shown or, where that shows no files, in the first one. Returns
    // an empty text, or one sentence that names the file and what is wrong with it.
    CString OpenTable(const CString& path);
    // Runs the command of a key that works in all panes: Ctrl+O, Ctrl+S, F6, Ctrl+1 ... Returns false for
    // other messages. Called before any window sees the message, because the pages, dialogs of their own,
    // would take it.
    bool RunKey(const MSG& message);
    // Brings the status line up to date; called whenever there is nothing else to do.
    void ShowStatus();
    // Shows every page in turn and writes its pictures into `folder`. Returns false when one fails.
    bool WritePictures(const CString& folder);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    // Enter and Esc leave the window alone.
    void OnOK() override {}
    void OnCancel() override {}

    DECLARE_MESSAGE_MAP()
    afx_msg void OnClose();
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnInitMenuPopup(CMenu* popup, UINT index, BOOL isSystemMenu);
    afx_msg void OnPageChosen();
    afx_msg void OnOpenTable();
    afx_msg void OnSaveTable();
    afx_msg void OnQuit();
    afx_msg void OnEditCommand(UINT id);
    afx_msg void OnClearLog();
    afx_msg void OnShowSource();
    afx_msg void OnLanguage(UINT command);
    afx_msg void OnAbout();

private:
    void MakePages();
    void AddPage(std::unique_ptr<Page> page);
    void ShowPage(size_t index);
    void ShowTexts();
    void ChangeLanguage(Language language);
    // Commits open editors and asks the user where something would be lost; false when the user wants to
    // stay.
    bool MayClose();
    // The titles of the pages with changes, one on a line.
    CString ChangedPages() const;
    void LayOut();
    void ShowFocus();
    void FocusNextPane(bool backwards);
    // What the page that is shown can do of the commands of the menu "Edit".
    bool IsEditEnabled(UINT id) const;
    void ShowEditEntries(CMenu& popup) const;

    CListBox pageList;
    LogPane log;
    CStatusBarCtrl statusBar;
    CString shownStatus;
    std::vector<std::unique_ptr<Page>> pages;
    size_t shownPage = 0;
    CMenu menu;
    ScrolledArea area;
    HWND lastFocus = nullptr;
};
