// MainDialog: the gallery's window: page list, page, log.
#pragma once

#include "LogPane.h"
#include "Page.h"

#include <memory>
#include <vector>

class MainDialog : public CDialog
{
public:
    // `tablePath` is opened in the grid page; an empty text keeps the shipped table.
    explicit MainDialog(const CString& tablePath);
    ~MainDialog() override;

    // Shows every page in turn and writes its pictures into `folder`. Returns false when one fails.
    bool WritePictures(const CString& folder);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL PreTranslateMessage(MSG* message) override;
    void OnOK() override {}
    // Closing the window ends the program.
    void OnCancel() override { DestroyWindow(); }

    DECLARE_MESSAGE_MAP()
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnPageChosen();
    afx_msg void OnOpenTable();
    afx_msg void OnQuit();
    afx_msg void OnClearLog();
    afx_msg void OnAbout();

private:
    void AddPage(std::unique_ptr<Page> page);
    void ShowPage(size_t index);
    void LayOut(int width, int height);

    CString tablePath;
    CListBox pageList;
    LogPane log;
    std::vector<std::unique_ptr<Page>> pages;
    size_t shownPage = 0;
};
