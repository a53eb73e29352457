// CListView and CTreeView: views that are a common control.
#pragma once

#include "fx/ctrlview.h"
#include "fx/listctrl.h"
#include "fx/treectrl.h"

// A view that is a list control. Its styles are set in PreCreateWindow, its columns and items in
// OnInitialUpdate.
class QFX_API CListView : public CCtrlView
{
    DECLARE_DYNCREATE(CListView)

public:
    CListView();
    virtual ~CListView();

    CListCtrl& GetListCtrl() const;

protected:
    // Takes the image list of this kind (LVSIL_) out if it belongs to a CImageList object.
    void RemoveImageList(int nImageList);
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    afx_msg void OnNcDestroy();

    DECLARE_MESSAGE_MAP()

private:
    // Called to draw an item with LVS_OWNERDRAWFIXED. The base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
};

// A view that is a tree control.
class QFX_API CTreeView : public CCtrlView
{
    DECLARE_DYNCREATE(CTreeView)

public:
    CTreeView();
    virtual ~CTreeView();

    CTreeCtrl& GetTreeCtrl() const;
};
