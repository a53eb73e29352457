// TreePage: the page with a tree whose items are dragged: the countries by continent and region.
#pragma once

#include "Page.h"
#include "TableFile.h"
#include "UndoPanel.h"
#include "treedrag/CTreeCtrlDrag.h"

class TreePage : public Page
{
public:
    explicit TreePage(LogPane& log);

    CString GetTitle() const override;
    CString GetPictureName() const override { return L"tree"; }
    UINT GetSourceId() const override;
    CWnd& MainControl() override { return tree; }
    bool EndEditing() override;
    Status GetStatus() override;
    QuorUiCtr::TGUndoStack* FindUndo() override { return &undo.GetStack(); }
    // Also the page in the middle of a drag, to a country and to an empty folder, and after moves with a step
    // undone.
    bool ShowPictureView(size_t view, CString& nameSuffix) override;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    void LayOut(int width, int height) override;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnNewFolder();
    afx_msg void OnDelete();
    afx_msg void OnRename();
    afx_msg void OnUp();
    afx_msg void OnDown();
    afx_msg void OnUniqueNames();
    afx_msg void OnSelectionChanged(NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnItemInserted(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnItemDeleted(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnBeginLabelEdit(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnItemRenamed(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDropQuery(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnUpdateButtons(WPARAM wParam, LPARAM lParam);

private:
    void ShowCountries(const gallery::CsvTable& table);
    // The folder with that name, appended when there is none yet.
    HTREEITEM Folder(const CString& name, HTREEITEM parent);
    HTREEITEM FindChild(const CString& name, HTREEITEM parent) const;
    // The item's text for the log.
    CString NameOf(HTREEITEM item) const;
    void AddToLog(const CString& message, HTREEITEM item, HTREEITEM place);
    void UndoMoves(HTREEITEM item);
    void BeginDragTo(HTREEITEM item, HTREEITEM target);

    CImageList images;
    QuorUiCtr::CTreeCtrlDrag tree;
    CStatic banner;
    UndoPanel undo;
};
