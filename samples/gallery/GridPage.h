// GridPage: the page with a plain grid, showing the chemical elements or a file of the user's.
#pragma once

#include "ProgressBox.h"
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
    CString SaveFile(const CString& path) override;
    UINT GetSourceId() const override;

protected:
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnFitLast();

private:
    // Returns how many rows it has shown before the user stopped it.
    size_t ShowTable(const gallery::CsvTable& table, ProgressBox& progress);
    CString Summary(const CString& path, size_t shown, const gallery::CsvTable& table) const;
};
