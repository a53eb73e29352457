// GridPage: the page with a plain grid, showing the chemical elements or a file of the user's.
#pragma once

#include "TableFile.h"
#include "TablePage.h"

class GridPage : public StyledTablePage
{
public:
    explicit GridPage(LogPane& log);

    CString GetTitle() const override;
    CString GetPictureName() const override { return L"grid"; }
    // The page, then an open editor of each kind.
    bool ShowPictureView(size_t view, CString& nameSuffix) override;
    bool CanOpenFiles() const override { return true; }
    // Shows the table of a CSV file; the log names every line that was left out.
    CString OpenFile(const CString& path) override;

protected:
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnFitLast();

private:
    void ShowTable(const gallery::CsvTable& table);
};
