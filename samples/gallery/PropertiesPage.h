// PropertiesPage: the page with a property grid, and a panel that reads and writes properties by title.
#pragma once

#include "Page.h"

#include "propgrid/CMFCPropertyGridCtrlEx.h"

// The grid of the page, whose open editor the page may close.
class PropertiesPageGrid : public CMFCPropertyGridCtrlEx
{
public:
    using CMFCPropertyGridCtrlEx::EndEditItem;
};

class PropertiesPage : public Page
{
public:
    explicit PropertiesPage(LogPane& log);

    CString GetTitle() const override;
    CString GetPictureName() const override { return L"properties"; }
    UINT GetSourceId() const override;
    CWnd& MainControl() override { return grid; }
    bool EndEditing() override;
    Status GetStatus() override;
    // Unfolded with the description, folded, with an open list, in alphabetic order.
    bool ShowPictureView(size_t view, CString& nameSuffix) override;

protected:
    BOOL OnInitDialog() override;
    void LayOut(int width, int height) override;

    DECLARE_MESSAGE_MAP()
    afx_msg LRESULT OnPropertyChanged(WPARAM id, LPARAM property);
    afx_msg void OnRead();
    afx_msg void OnWriteText();
    afx_msg void OnWriteInteger();
    afx_msg void OnWriteReal();
    afx_msg void OnWriteFlag();
    afx_msg void OnSetOption();
    afx_msg void OnAlphabetic();
    afx_msg void OnDescription();
    afx_msg void OnMarkModified();
    afx_msg void OnFoldAll();
    afx_msg void OnUnfoldAll();

private:
    CString TextOf(int controlId) const;
    // Shows what an operation returned, and what the property holds now.
    void ShowResult(const CString& call, int result);

    CFont font;
    PropertiesPageGrid grid;
};
