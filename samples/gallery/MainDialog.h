// MainDialog: the gallery's window: page list, page, log.
#pragma once

#include "Language.h"
#include "LogPane.h"
#include "Page.h"

#include <memory>
#include <vector>

class MainDialog : public CDialog
{
public:
    MainDialog();
    ~MainDialog() override;

    // Shows a table file in the page that is shown or, where that shows no files, in the first one. Returns
    // an empty text, or one sentence that names the file and what is wrong with it.
    CString OpenTable(const CString& path);
    // Runs the command of a key that works in all panes: Ctrl+O, F6. Returns false for other messages. Called
    // before any window sees the message, because the pages, dialogs of their own, would take it.
    bool RunKey(const MSG& message);
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
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnPageChosen();
    afx_msg void OnOpenTable();
    afx_msg void OnQuit();
    afx_msg void OnClearLog();
    afx_msg void OnLanguage(UINT command);
    afx_msg void OnAbout();

private:
    void MakePages();
    void AddPage(std::unique_ptr<Page> page);
    void ShowPage(size_t index);
    void ShowTexts();
    void ChangeLanguage(Language language);
    void LayOut(int width, int height);
    void FocusNextPane(bool backwards);

    CListBox pageList;
    LogPane log;
    std::vector<std::unique_ptr<Page>> pages;
    size_t shownPage = 0;
    CMenu menu;
};
