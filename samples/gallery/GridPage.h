// GridPage: the page with a plain grid, showing the chemical elements or a file of the user's.
#pragma once

#include "GalleryGrid.h"
#include "GridStylePanel.h"
#include "Page.h"
#include "TableFile.h"

class GridPage : public Page
{
public:
    explicit GridPage(LogPane& log);

    CString GetTitle() const override;
    CString GetPictureName() const override { return L"grid"; }
    CWnd& MainControl() override { return grid; }
    bool IsChanged() override { return grid.IsModified(); }
    // The page, then an open editor of each kind.
    bool ShowPictureView(size_t view, CString& nameSuffix) override;
    bool CanOpenFiles() const override { return true; }
    // Shows the table of a CSV file; the log names every line that was left out.
    CString OpenFile(const CString& path) override;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void LayOut(int width, int height) override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnLogPainting();
    afx_msg void OnFitLast();

private:
    void ShowTable(const gallery::CsvTable& table);

    CFont font;
    GalleryGrid grid;
    GridStylePanel styles;
    CStatic banner;
};
