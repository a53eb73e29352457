// ListPage: the page with a report list whose cells are edited in place, and with select-all edits.
#pragma once

#include "Page.h"
#include "TableFile.h"

#include "controls/CAllSelectEdit.h"
#include "controls/CGridListCtrl.h"
#include "controls/CInPlaceEdit.h"

#include <memory>

// A list that shows its current cell.
class GalleryList : public CGridListCtrl
{
    DECLARE_MESSAGE_MAP()
};

// The chemical elements in a list. The page is the owner of the cell editors, as any host of a CGridListCtrl
// is.
class ListPage : public Page
{
public:
    explicit ListPage(LogPane& log);

    CString GetTitle() const override;
    CString GetPictureName() const override { return L"list"; }
    UINT GetSourceId() const override;
    CWnd& MainControl() override { return list; }
    bool EndEditing() override;
    Status GetStatus() override;
    // Also the page with a grown editor of one line, and of several.
    bool ShowPictureView(size_t view, CString& nameSuffix) override;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    void LayOut(int width, int height) override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnBeginEdit(NMHDR* header, LRESULT* result);
    afx_msg void OnEndEdit(NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnDestroyEditor(WPARAM wParam, LPARAM lParam);

private:
    void ShowTable(const gallery::CsvTable& table);
    void ArrangeColumns();
    void PressKey(UINT key);
    void ShowGrownEditor(bool multiLine);

    GalleryList list;
    QuorUiCtr::CAllSelectEdit selectAllEdits[3];
    CEdit plainEdit;
    CStatic banner;
    // The open editor, and the one that has reported its end and waits to be destroyed.
    std::unique_ptr<CInPlaceEdit> editor;
    std::unique_ptr<CInPlaceEdit> endedEditor;
};
