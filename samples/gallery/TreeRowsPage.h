// TreeRowsPage: the page with a grid of tree rows: the chemical elements by state and category.
#pragma once

#include "TableFile.h"
#include "TablePage.h"

class TreeRowsPage : public StyledTablePage
{
public:
    explicit TreeRowsPage(LogPane& log);

    CString GetTitle() const override;
    CString GetPictureName() const override { return L"tree-rows"; }
    UINT GetSourceId() const override;
    // The page, then an editor in the column of the tree.
    bool ShowPictureView(size_t view, CString& nameSuffix) override;

protected:
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnFoldAll();
    afx_msg void OnUnfoldAll();

private:
    void ShowTable(const gallery::CsvTable& table);
    // The root row with this label, appended when there is none yet.
    QuorUiCtr::TGGridTreeRow& RootRow(const std::wstring& label);
    // The child of `parent` with this label, appended when there is none yet.
    QuorUiCtr::TGGridTreeRow& ChildRow(QuorUiCtr::TGGridTreeRow& parent, const std::wstring& label);
    void ForEachRoot(void (QuorUiCtr::TGGridTreeRow::*operation)());
};
