// CListCtrl: a list of items as icons, as a list, or as a report with columns.
#pragma once

#include "fx/imagelist.h"
#include "fx/message.h"
#include "fx/position.h"
#include "fx/string.h"
#include "fx/wnd.h"
#include "atltypes.h"

class CEdit;
class CHeaderCtrl;
class CToolTipCtrl;

// Wraps a list-view window. The object has no state of its own: a pointer to any CWnd of a list view may be
// cast to it. Items, sub-items and columns are zero-based, sub-item 0 is the item itself; functions that
// return an index return -1 for none. Points and rectangles are in client pixels unless a comment says
// otherwise. Changes notify the parent with LVN_ messages, whether a user or a call causes them.
class QFX_API CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)

public:
    CListCtrl() {}
    virtual ~CListCtrl();

    // Create the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Colours. CLR_NONE as the background lets the parent shine through.
    COLORREF GetBkColor() const { return quorfx::Send<COLORREF>(m_hWnd, LVM_GETBKCOLOR); }
    BOOL SetBkColor(COLORREF cr) { return quorfx::Send<BOOL>(m_hWnd, LVM_SETBKCOLOR, 0, cr); }
    COLORREF GetTextColor() const { return quorfx::Send<COLORREF>(m_hWnd, LVM_GETTEXTCOLOR); }
    BOOL SetTextColor(COLORREF cr) { return quorfx::Send<BOOL>(m_hWnd, LVM_SETTEXTCOLOR, 0, cr); }
    COLORREF GetTextBkColor() const { return quorfx::Send<COLORREF>(m_hWnd, LVM_GETTEXTBKCOLOR); }
    BOOL SetTextBkColor(COLORREF cr) { return quorfx::Send<BOOL>(m_hWnd, LVM_SETTEXTBKCOLOR, 0, cr); }
    BOOL GetBkImage(LVBKIMAGE* plvbkImage) const
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_GETBKIMAGE, 0, plvbkImage);
    }
    BOOL SetBkImage(LVBKIMAGE* plvbkImage)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SETBKIMAGE, 0, plvbkImage);
    }

    // The border of selected items, with LVS_EX_BORDERSELECT.
    COLORREF GetOutlineColor() const { return quorfx::Send<COLORREF>(m_hWnd, LVM_GETOUTLINECOLOR); }
    COLORREF SetOutlineColor(COLORREF color)
    {
        return quorfx::Send<COLORREF>(m_hWnd, LVM_SETOUTLINECOLOR, 0, color);
    }

    // Styles of the control: LVS_EX_ bits. SetExtendedStyle replaces them all and returns those before.
    DWORD GetExtendedStyle() { return quorfx::Send<DWORD>(m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE); }
    DWORD SetExtendedStyle(DWORD dwNewStyle)
    {
        return quorfx::Send<DWORD>(m_hWnd, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle);
    }
    DWORD GetView() const { return quorfx::Send<DWORD>(m_hWnd, LVM_GETVIEW); }
    DWORD SetView(int iView) { return quorfx::Send<DWORD>(m_hWnd, LVM_SETVIEW, iView); }

    // Image lists: LVSIL_NORMAL, LVSIL_SMALL or LVSIL_STATE. SetImageList
    // returns the list before. A list that belongs to a CImageList object stays when the control goes; others
    // it deletes, unless it has LVS_SHAREIMAGELISTS.
    CImageList* GetImageList(int nImageList) const;
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);

    // Items. The structure forms use what the mask names and report FALSE or -1 on failure.
    int GetItemCount() const { return quorfx::Send<int>(m_hWnd, LVM_GETITEMCOUNT); }
    // Reserves room, or sets the number of items of a LVS_OWNERDATA list.
    void SetItemCount(int nItems) { quorfx::Send(m_hWnd, LVM_SETITEMCOUNT, nItems, 0); }
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SETITEMCOUNT, iCount, dwFlags);
    }
    BOOL GetItem(LVITEM* pItem) const { return quorfx::Send<BOOL>(m_hWnd, LVM_GETITEM, 0, pItem); }
    BOOL SetItem(const LVITEM* pItem) { return quorfx::Send<BOOL>(m_hWnd, LVM_SETITEM, 0, pItem); }
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam, int nIndent);
    int InsertItem(const LVITEM* pItem) { return quorfx::Send<int>(m_hWnd, LVM_INSERTITEM, 0, pItem); }
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                   LPARAM lParam);
    BOOL DeleteItem(int nItem) { return quorfx::Send<BOOL>(m_hWnd, LVM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return quorfx::Send<BOOL>(m_hWnd, LVM_DELETEALLITEMS); }

    // State bits (LVIS_), data and check box of an item.
    UINT GetItemState(int nItem, UINT nMask) const
    {
        return quorfx::Send<UINT>(m_hWnd, LVM_GETITEMSTATE, nItem, nMask);
    }
    BOOL SetItemState(int nItem, LVITEM* pItem)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SETITEMSTATE, nItem, pItem);
    }
    // An item of -1 stands for all items.
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    // The state bits that the parent keeps in place of the control.
    UINT GetCallbackMask() const { return quorfx::Send<UINT>(m_hWnd, LVM_GETCALLBACKMASK); }
    BOOL SetCallbackMask(UINT nMask) { return quorfx::Send<BOOL>(m_hWnd, LVM_SETCALLBACKMASK, nMask); }
    // The state of an item named by item and group.
    BOOL SetItemIndexState(PLVITEMINDEX pItemIndex, DWORD dwState, DWORD dwMask) const;
    // Identifiers that stay with an item when others come and go.
    UINT MapIndexToID(UINT index) const { return quorfx::Send<UINT>(m_hWnd, LVM_MAPINDEXTOID, index); }
    UINT MapIDToIndex(UINT id) const { return quorfx::Send<UINT>(m_hWnd, LVM_MAPIDTOINDEX, id); }
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    BOOL GetCheck(int nItem) const;
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);

    // Text. The string form returns the whole text, however long; the buffer form returns the length copied.
    CString GetItemText(int nItem, int nSubItem) const;
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);

    // The text shown in place of items when there are none.
    CString GetEmptyText() const;

    // Searching and walking. GetNextItem takes LVNI_ flags and -1 to begin; FindItem searches after nStart.
    int GetNextItem(int nItem, int nFlags) const
    {
        return quorfx::Send<int>(m_hWnd, LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0));
    }
    BOOL GetNextItemIndex(PLVITEMINDEX pItemIndex, int nFlags) const
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_GETNEXTITEMINDEX, pItemIndex, MAKELPARAM(nFlags, 0));
    }
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const
    {
        return quorfx::Send<int>(m_hWnd, LVM_FINDITEM, nStart, pFindInfo);
    }
    // Walks the selected items: NULL when there is none, GetNextSelectedItem returns the item and moves on.
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& pos) const;
    UINT GetSelectedCount() const { return quorfx::Send<UINT>(m_hWnd, LVM_GETSELECTEDCOUNT); }
    int GetSelectionMark() { return quorfx::Send<int>(m_hWnd, LVM_GETSELECTIONMARK); }
    int SetSelectionMark(int iIndex) { return quorfx::Send<int>(m_hWnd, LVM_SETSELECTIONMARK, 0, iIndex); }
    int GetHotItem() { return quorfx::Send<int>(m_hWnd, LVM_GETHOTITEM); }
    int SetHotItem(int iIndex) { return quorfx::Send<int>(m_hWnd, LVM_SETHOTITEM, iIndex); }
    HCURSOR GetHotCursor() { return quorfx::Send<HCURSOR>(m_hWnd, LVM_GETHOTCURSOR); }
    HCURSOR SetHotCursor(HCURSOR hc) { return quorfx::Send<HCURSOR>(m_hWnd, LVM_SETHOTCURSOR, 0, hc); }
    // In milliseconds.
    DWORD GetHoverTime() const { return quorfx::Send<DWORD>(m_hWnd, LVM_GETHOVERTIME); }
    DWORD SetHoverTime(DWORD dwHoverTime = (DWORD)-1)
    {
        return quorfx::Send<DWORD>(m_hWnd, LVM_SETHOVERTIME, 0, dwHoverTime);
    }

    // Hit tests: the item at a client point, flags receive LVHT_ bits; SubItemHitTest also finds the
    // sub-item.
    int HitTest(LVHITTESTINFO* pHitTestInfo) const
    {
        return quorfx::Send<int>(m_hWnd, LVM_HITTEST, 0, pHitTestInfo);
    }
    int HitTest(CPoint pt, UINT* pFlags = NULL) const;
    int SubItemHitTest(LPLVHITTESTINFO pInfo)
    {
        return quorfx::Send<int>(m_hWnd, LVM_SUBITEMHITTEST, 0, pInfo);
    }

    // Geometry. The code of GetItemRect is LVIR_BOUNDS, LVIR_ICON or LVIR_LABEL, of GetSubItemRect also an
    // area.
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref);
    // The part rectType (LVIR_) of column iColumn of an item named by item and group.
    BOOL GetItemIndexRect(PLVITEMINDEX pItemIndex, int iColumn, int rectType, LPRECT pRect) const;
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_GETITEMPOSITION, nItem, lpPoint);
    }
    BOOL SetItemPosition(int nItem, POINT pt)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SETITEMPOSITION32, nItem, &pt);
    }
    BOOL GetOrigin(LPPOINT lpPoint) const { return quorfx::Send<BOOL>(m_hWnd, LVM_GETORIGIN, 0, lpPoint); }
    BOOL GetViewRect(LPRECT lpRect) const { return quorfx::Send<BOOL>(m_hWnd, LVM_GETVIEWRECT, 0, lpRect); }
    // The width in pixels of a string in the list's font.
    int GetStringWidth(LPCTSTR lpsz) const { return quorfx::Send<int>(m_hWnd, LVM_GETSTRINGWIDTH, 0, lpsz); }
    // The distance between items in the small or the normal icon view.
    BOOL GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const;
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size);
    // The size that would show nCount items without scrolling.
    CSize ApproximateViewRect(CSize sz = CSize(-1, -1), int iCount = -1) const;
    void SetWorkAreas(int nWorkAreas, LPRECT lpRect)
    {
        quorfx::Send(m_hWnd, LVM_SETWORKAREAS, nWorkAreas, lpRect);
    }
    void GetWorkAreas(int nWorkAreas, LPRECT prc) const
    {
        quorfx::Send(m_hWnd, LVM_GETWORKAREAS, nWorkAreas, prc);
    }
    UINT GetNumberOfWorkAreas() const;

    // Scrolling and what is visible. The size of Scroll is in pixels; GetCountPerPage counts whole items.
    BOOL EnsureVisible(int nItem, BOOL bPartialOK)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_ENSUREVISIBLE, nItem, MAKELPARAM(bPartialOK, 0));
    }
    BOOL IsItemVisible(int index) const { return quorfx::Send<BOOL>(m_hWnd, LVM_ISITEMVISIBLE, index); }
    BOOL Scroll(CSize size) { return quorfx::Send<BOOL>(m_hWnd, LVM_SCROLL, size.cx, size.cy); }
    int GetTopIndex() const { return quorfx::Send<int>(m_hWnd, LVM_GETTOPINDEX); }
    int GetCountPerPage() const { return quorfx::Send<int>(m_hWnd, LVM_GETCOUNTPERPAGE); }
    BOOL RedrawItems(int nFirst, int nLast)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_REDRAWITEMS, nFirst, nLast);
    }
    BOOL Update(int nItem) { return quorfx::Send<BOOL>(m_hWnd, LVM_UPDATE, nItem); }
    BOOL Arrange(UINT nCode) { return quorfx::Send<BOOL>(m_hWnd, LVM_ARRANGE, nCode); }

    // Columns of the report view. Widths are in pixels or LVSCW_AUTOSIZE; nSubItem -1 leaves the sub-item
    // unset.
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_GETCOLUMN, nCol, pColumn);
    }
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SETCOLUMN, nCol, pColumn);
    }
    int InsertColumn(int nCol, const LVCOLUMN* pColumn)
    {
        return quorfx::Send<int>(m_hWnd, LVM_INSERTCOLUMN, nCol, pColumn);
    }
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    BOOL DeleteColumn(int nCol) { return quorfx::Send<BOOL>(m_hWnd, LVM_DELETECOLUMN, nCol); }
    int GetColumnWidth(int nCol) const { return quorfx::Send<int>(m_hWnd, LVM_GETCOLUMNWIDTH, nCol); }
    BOOL SetColumnWidth(int nCol, int cx)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SETCOLUMNWIDTH, nCol, MAKELPARAM(cx, 0));
    }
    // The order of the columns on the screen, left to right; a count of -1 stands for all.
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SETCOLUMNORDERARRAY, iCount, piArray);
    }
    UINT GetSelectedColumn() const { return quorfx::Send<UINT>(m_hWnd, LVM_GETSELECTEDCOLUMN); }
    LRESULT SetSelectedColumn(int iCol) { return quorfx::Send<LRESULT>(m_hWnd, LVM_SETSELECTEDCOLUMN, iCol); }
    // The header of the report view, NULL in other views.
    CHeaderCtrl* GetHeaderCtrl();

    // Groups of items, with EnableGroupView. The structures have cbSize set by the caller; groups are named
    // by the identifiers that the program gave them. InsertGroup and MoveGroup take zero-based places and
    // return -1 on failure, as does GetGroupInfo.
    LRESULT EnableGroupView(BOOL fEnable)
    {
        return quorfx::Send<LRESULT>(m_hWnd, LVM_ENABLEGROUPVIEW, fEnable);
    }
    BOOL IsGroupViewEnabled() const { return quorfx::Send<BOOL>(m_hWnd, LVM_ISGROUPVIEWENABLED); }
    LRESULT InsertGroup(int index, PLVGROUP pgrp)
    {
        return quorfx::Send<LRESULT>(m_hWnd, LVM_INSERTGROUP, index, pgrp);
    }
    LRESULT InsertGroupSorted(PLVINSERTGROUPSORTED pStructInsert)
    {
        return quorfx::Send<LRESULT>(m_hWnd, LVM_INSERTGROUPSORTED, pStructInsert);
    }
    LRESULT MoveGroup(int iGroupId, int toIndex)
    {
        return quorfx::Send<LRESULT>(m_hWnd, LVM_MOVEGROUP, iGroupId, toIndex);
    }
    void MoveItemToGroup(int idItemFrom, int idGroupTo)
    {
        quorfx::Send(m_hWnd, LVM_MOVEITEMTOGROUP, idItemFrom, idGroupTo);
    }
    LRESULT RemoveGroup(int iGroupId) { return quorfx::Send<LRESULT>(m_hWnd, LVM_REMOVEGROUP, iGroupId); }
    void RemoveAllGroups() { quorfx::Send(m_hWnd, LVM_REMOVEALLGROUPS); }
    BOOL HasGroup(int iGroupId) const { return quorfx::Send<BOOL>(m_hWnd, LVM_HASGROUP, iGroupId); }
    int GetGroupCount() const { return quorfx::Send<int>(m_hWnd, LVM_GETGROUPCOUNT); }
    int GetFocusedGroup() const { return quorfx::Send<int>(m_hWnd, LVM_GETFOCUSEDGROUP); }
    int GetGroupInfo(int iGroupId, PLVGROUP pgrp) const
    {
        return quorfx::Send<int>(m_hWnd, LVM_GETGROUPINFO, iGroupId, pgrp);
    }
    int SetGroupInfo(int iGroupId, PLVGROUP pgrp)
    {
        return quorfx::Send<int>(m_hWnd, LVM_SETGROUPINFO, iGroupId, pgrp);
    }
    BOOL GetGroupInfoByIndex(int iIndex, PLVGROUP pGroup) const
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_GETGROUPINFOBYINDEX, iIndex, pGroup);
    }
    void GetGroupMetrics(PLVGROUPMETRICS pGroupMetrics) const
    {
        quorfx::Send(m_hWnd, LVM_GETGROUPMETRICS, 0, pGroupMetrics);
    }
    void SetGroupMetrics(PLVGROUPMETRICS pGroupMetrics)
    {
        quorfx::Send(m_hWnd, LVM_SETGROUPMETRICS, 0, pGroupMetrics);
    }
    // iCoords is an LVGGR_ value.
    BOOL GetGroupRect(int iGroupId, LPRECT lpRect, int iCoords = LVGGR_GROUP) const;
    UINT GetGroupState(int iGroupId, DWORD dwMask) const
    {
        return quorfx::Send<UINT>(m_hWnd, LVM_GETGROUPSTATE, iGroupId, dwMask);
    }
    BOOL SortGroups(PFNLVGROUPCOMPARE _pfnGroupCompare, LPVOID _plv)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SORTGROUPS, _pfnGroupCompare, _plv);
    }

    // The tile view. The structures have cbSize set by the caller.
    BOOL GetTileInfo(PLVTILEINFO plvti) const
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_GETTILEINFO, 0, plvti);
    }
    BOOL SetTileInfo(PLVTILEINFO pTileInfo)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SETTILEINFO, 0, pTileInfo);
    }
    BOOL GetTileViewInfo(PLVTILEVIEWINFO ptvi) const
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_GETTILEVIEWINFO, 0, ptvi);
    }
    BOOL SetTileViewInfo(PLVTILEVIEWINFO ptvi)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SETTILEVIEWINFO, 0, ptvi);
    }

    // The insertion mark. The structures have cbSize set by the caller.
    BOOL GetInsertMark(LPLVINSERTMARK plvim) const
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_GETINSERTMARK, 0, plvim);
    }
    BOOL SetInsertMark(LPLVINSERTMARK plvim)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SETINSERTMARK, 0, plvim);
    }
    int GetInsertMarkRect(LPRECT pRect) const
    {
        return quorfx::Send<int>(m_hWnd, LVM_GETINSERTMARKRECT, 0, pRect);
    }
    int InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK plvim) const
    {
        return quorfx::Send<int>(m_hWnd, LVM_INSERTMARKHITTEST, pPoint, plvim);
    }
    COLORREF GetInsertMarkColor() const { return quorfx::Send<COLORREF>(m_hWnd, LVM_GETINSERTMARKCOLOR); }
    COLORREF SetInsertMarkColor(COLORREF color)
    {
        return quorfx::Send<COLORREF>(m_hWnd, LVM_SETINSERTMARKCOLOR, 0, color);
    }

    // Sorting by a callback: it gets the data of both items, or their indices in SortItemsEx, and dwData.
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SORTITEMS, dwData, pfnCompare);
    }
    BOOL SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SORTITEMSEX, dwData, pfnCompare);
    }

    // Editing a label in place. EditLabel returns the edit, which lives until editing ends, or NULL if the
    // parent refuses; the list must have the focus.
    CEdit* EditLabel(int nItem);
    CEdit* GetEditControl() const;
    void CancelEditLabel() { quorfx::Send(m_hWnd, LVM_CANCELEDITLABEL); }

    // Makes a picture of the item for dragging and stores its top left corner. The caller deletes the list.
    CImageList* CreateDragImage(int nItem, LPPOINT lpPoint);
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    BOOL SetInfoTip(PLVSETINFOTIP plvInfoTip)
    {
        return quorfx::Send<BOOL>(m_hWnd, LVM_SETINFOTIP, 0, plvInfoTip);
    }

    // Called to draw an item with LVS_OWNERDRAWFIXED. The base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // Takes the image lists that belong to CImageList objects out, so that the control does not delete them.
    afx_msg void OnNcDestroy();

    DECLARE_MESSAGE_MAP()
};
