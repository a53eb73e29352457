// CTreeCtrl: a tree of items.
#pragma once

#include "fx/imagelist.h"
#include "fx/message.h"
#include "fx/string.h"
#include "fx/wnd.h"
#include "atltypes.h"

class CEdit;
class CToolTipCtrl;

// Wraps a tree-view window. The object has no state of its own: a pointer to any CWnd of a tree may be cast
// to it. Items are HTREEITEM handles, NULL for none; rectangles and points are in client pixels of the tree.
// Changes of the selection, expansions and edits notify the parent with TVN_ messages, whether a user or a
// call causes them.
class QFX_API CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)

public:
    CTreeCtrl() {}
    virtual ~CTreeCtrl();

    // Create the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The tree as a whole. Set functions return the value before where they return something.
    UINT GetCount() const { return quorfx::Send<UINT>(m_hWnd, TVM_GETCOUNT); }
    UINT GetIndent() const { return quorfx::Send<UINT>(m_hWnd, TVM_GETINDENT); }
    void SetIndent(UINT nIndent) { quorfx::Send(m_hWnd, TVM_SETINDENT, nIndent); }
    UINT GetVisibleCount() const { return quorfx::Send<UINT>(m_hWnd, TVM_GETVISIBLECOUNT); }
    SHORT GetItemHeight() const { return quorfx::Send<SHORT>(m_hWnd, TVM_GETITEMHEIGHT); }
    SHORT SetItemHeight(SHORT cyHeight) { return quorfx::Send<SHORT>(m_hWnd, TVM_SETITEMHEIGHT, cyHeight); }
    COLORREF GetBkColor() const { return quorfx::Send<COLORREF>(m_hWnd, TVM_GETBKCOLOR); }
    COLORREF SetBkColor(COLORREF clr) { return quorfx::Send<COLORREF>(m_hWnd, TVM_SETBKCOLOR, 0, clr); }
    COLORREF GetTextColor() const { return quorfx::Send<COLORREF>(m_hWnd, TVM_GETTEXTCOLOR); }
    COLORREF SetTextColor(COLORREF clr) { return quorfx::Send<COLORREF>(m_hWnd, TVM_SETTEXTCOLOR, 0, clr); }
    COLORREF GetLineColor() const { return quorfx::Send<COLORREF>(m_hWnd, TVM_GETLINECOLOR); }
    COLORREF SetLineColor(COLORREF clrNew = CLR_DEFAULT)
    {
        return quorfx::Send<COLORREF>(m_hWnd, TVM_SETLINECOLOR, 0, clrNew);
    }
    COLORREF GetInsertMarkColor() const { return quorfx::Send<COLORREF>(m_hWnd, TVM_GETINSERTMARKCOLOR); }
    COLORREF SetInsertMarkColor(COLORREF clrNew)
    {
        return quorfx::Send<COLORREF>(m_hWnd, TVM_SETINSERTMARKCOLOR, 0, clrNew);
    }
    // Time for one smooth scroll, in milliseconds.
    UINT GetScrollTime() const { return quorfx::Send<UINT>(m_hWnd, TVM_GETSCROLLTIME); }
    UINT SetScrollTime(UINT uScrollTime)
    {
        return quorfx::Send<UINT>(m_hWnd, TVM_SETSCROLLTIME, uScrollTime);
    }
    DWORD GetExtendedStyle() const { return quorfx::Send<DWORD>(m_hWnd, TVM_GETEXTENDEDSTYLE); }
    // Changes the TVS_EX_ bits of the mask only.
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles)
    {
        return quorfx::Send<DWORD>(m_hWnd, TVM_SETEXTENDEDSTYLE, dwExMask, dwExStyles);
    }
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);

    // Image lists: TVSIL_NORMAL or TVSIL_STATE. The tree never owns one; SetImageList returns the one before.
    CImageList* GetImageList(UINT nImageList) const;
    CImageList* SetImageList(CImageList* pImageList, int nImageList);

    // Walking the tree. The code is a TVGN_ constant.
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const
    {
        return quorfx::Send<HTREEITEM>(m_hWnd, TVM_GETNEXTITEM, nCode, hItem);
    }
    HTREEITEM GetChildItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PARENT); }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(NULL, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetLastVisibleItem() const { return GetNextItem(NULL, TVGN_LASTVISIBLE); }
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXTVISIBLE); }
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(NULL, TVGN_CARET); }
    HTREEITEM GetDropHilightItem() const { return GetNextItem(NULL, TVGN_DROPHILITE); }
    HTREEITEM GetRootItem() const { return GetNextItem(NULL, TVGN_ROOT); }
    // Whether the item has children or is marked as having some.
    BOOL ItemHasChildren(HTREEITEM hItem) const;

    // Reading items. The structure form fills what its mask names.
    BOOL GetItem(TVITEM* pItem) const { return quorfx::Send<BOOL>(m_hWnd, TVM_GETITEM, 0, pItem); }
    // The whole text, however long; empty for an item that does not exist.
    CString GetItemText(HTREEITEM hItem) const;
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    // The TVIS_ bits of the mask.
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    // Whether the item's check box (TVS_CHECKBOXES) is ticked.
    BOOL GetCheck(HTREEITEM hItem) const;
    // FALSE if the item is not visible. bTextOnly leaves out lines, button and image.
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;

    // Changing items. FALSE if there is no such item.
    BOOL SetItem(TVITEM* pItem) { return quorfx::Send<BOOL>(m_hWnd, TVM_SETITEM, 0, pItem); }
    BOOL SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE);

    // Inserting: under a parent (TVI_ROOT), after a sibling or at TVI_FIRST, TVI_LAST, TVI_SORT. NULL on
    // failure.
    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct)
    {
        return quorfx::Send<HTREEITEM>(m_hWnd, TVM_INSERTITEM, 0, lpInsertStruct);
    }
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                         UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);

    // Deletes the item with everything below it; each deleted item notifies TVN_DELETEITEM.
    BOOL DeleteItem(HTREEITEM hItem) { return quorfx::Send<BOOL>(m_hWnd, TVM_DELETEITEM, 0, hItem); }
    BOOL DeleteAllItems() { return quorfx::Send<BOOL>(m_hWnd, TVM_DELETEITEM, 0, TVI_ROOT); }

    // Expanding (a TVE_ code) and scrolling. EnsureVisible expands parents and tells whether it scrolled
    // without expanding.
    BOOL Expand(HTREEITEM hItem, UINT nCode) { return quorfx::Send<BOOL>(m_hWnd, TVM_EXPAND, nCode, hItem); }
    BOOL EnsureVisible(HTREEITEM hItem) { return quorfx::Send<BOOL>(m_hWnd, TVM_ENSUREVISIBLE, 0, hItem); }

    // Selecting: TVGN_CARET, TVGN_DROPHILITE or TVGN_FIRSTVISIBLE; NULL removes selection or highlight.
    BOOL Select(HTREEITEM hItem, UINT nCode)
    {
        return quorfx::Send<BOOL>(m_hWnd, TVM_SELECTITEM, nCode, hItem);
    }
    UINT GetSelectedCount() { return quorfx::Send<UINT>(m_hWnd, TVM_GETSELECTEDCOUNT); }
    BOOL SelectItem(HTREEITEM hItem) { return Select(hItem, TVGN_CARET); }
    BOOL SelectDropTarget(HTREEITEM hItem) { return Select(hItem, TVGN_DROPHILITE); }
    BOOL SelectSetFirstVisible(HTREEITEM hItem) { return Select(hItem, TVGN_FIRSTVISIBLE); }
    // Shows the insertion line before or after the item; NULL removes it.
    BOOL SetInsertMark(HTREEITEM hItem, BOOL fAfter = TRUE)
    {
        return quorfx::Send<BOOL>(m_hWnd, TVM_SETINSERTMARK, fAfter, hItem);
    }

    // Editing a label in place. EditLabel returns the edit, which lives until editing ends, or NULL if the
    // parent refuses; the tree must have the focus.
    CEdit* EditLabel(HTREEITEM hItem);
    CEdit* GetEditControl() const;
    BOOL EndEditLabelNow(BOOL bCancel) { return quorfx::Send<BOOL>(m_hWnd, TVM_ENDEDITLABELNOW, bCancel); }

    // The item at a client point. The flags receive TVHT_ bits.
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = NULL) const;
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const
    {
        return quorfx::Send<HTREEITEM>(m_hWnd, TVM_HITTEST, 0, pHitTestInfo);
    }
    // The rectangle of a part (TVGIPR_BUTTON) of the item.
    BOOL GetItemPartRect(HTREEITEM hItem, int nPart, LPRECT lpRect) const;
    // Shows the item's tip.
    void ShowInfoTip(HTREEITEM hItem) { quorfx::Send(m_hWnd, TVM_SHOWINFOTIP, 0, hItem); }
    // Scrolling while the mouse drags: pixels per second, and milliseconds between two steps.
    BOOL SetAutoscrollInfo(UINT uPixelsPerSec, UINT uUpdateTime)
    {
        return quorfx::Send<BOOL>(m_hWnd, TVM_SETAUTOSCROLLINFO, uPixelsPerSec, uUpdateTime);
    }

    // The extended state (TVIS_EX_ bits) of the item, and its picture while it is open.
    UINT GetItemStateEx(HTREEITEM hItem) const;
    BOOL SetItemStateEx(HTREEITEM hItem, UINT uStateEx);
    int GetItemExpandedImageIndex(HTREEITEM hItem) const;
    BOOL SetItemExpandedImageIndex(HTREEITEM hItem, int iExpandedImage);

    // Makes a picture of the item for dragging. The caller deletes the list. NULL without an image list.
    CImageList* CreateDragImage(HTREEITEM hItem);

    // Sorts the children of an item, not the levels below: by text, or by the callback.
    BOOL SortChildren(HTREEITEM hItem) { return quorfx::Send<BOOL>(m_hWnd, TVM_SORTCHILDREN, 0, hItem); }
    BOOL SortChildrenCB(LPTVSORTCB pSort) { return quorfx::Send<BOOL>(m_hWnd, TVM_SORTCHILDRENCB, 0, pSort); }

    // Conversion to and from the identifiers that accessibility uses.
    UINT MapItemToAccID(HTREEITEM hItem) const
    {
        return quorfx::Send<UINT>(m_hWnd, TVM_MAPHTREEITEMTOACCID, hItem);
    }
    HTREEITEM MapAccIdToItem(UINT uAccId) const
    {
        return quorfx::Send<HTREEITEM>(m_hWnd, TVM_MAPACCIDTOHTREEITEM, uAccId);
    }
};
