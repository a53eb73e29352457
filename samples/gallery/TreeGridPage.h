// TreeGridPage: the page with a tree grid: the countries of the world by continent and region.
#pragma once

#include "CountryGrid.h"
#include "TablePage.h"
#include "UndoPanel.h"

class TreeGridPage : public TablePage
{
public:
    explicit TreeGridPage(LogPane& log);

    CString GetTitle() const override;
    CString GetPictureName() const override { return L"tree-grid"; }
    UINT GetSourceId() const override;
    QuorUiCtr::TGUndoStack* FindUndo() override { return &undo.GetStack(); }
    // Unfolded to the third level, then folded, then with a copied item pasted beside itself.
    bool ShowPictureView(size_t view, CString& nameSuffix) override;

protected:
    int WidthForGrid(int width, int height) override;
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnGridCommand(UINT id);
    afx_msg void OnSortAscending() { Sort(true); }
    afx_msg void OnSortDescending() { Sort(false); }
    afx_msg void OnFoldAll() { ForEachRoot(&QuorUiCtr::TGGridTreeRow::FoldAll); }
    afx_msg void OnUnfoldAll() { ForEachRoot(&QuorUiCtr::TGGridTreeRow::UnFoldAll); }
    afx_msg void OnFind();
    // Shows what the services say of the typed number and the typed text.
    afx_msg void OnQuery();

private:
    // By the selected column, else by the label.
    void Sort(bool ascending);
    void ForEachRoot(void (QuorUiCtr::TGGridTreeRow::*operation)());
    bool RunKey(UINT key);
    CString TextOf(int id) const;

    CountryGrid grid;
    UndoPanel undo;
};
