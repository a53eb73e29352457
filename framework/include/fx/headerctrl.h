// CHeaderCtrl: the captions above columns.
#pragma once

#include "fx/imagelist.h"
#include "fx/message.h"
#include "fx/wnd.h"
#include "atltypes.h"

// Wraps a header window. The object has no state of its own: a pointer to any CWnd of a header may be cast to
// it. Items are zero-based indices; they keep their index when the user drags them, and their place is the
// order.
class QFX_API CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)

public:
    CHeaderCtrl() {}
    virtual ~CHeaderCtrl();

    // Create the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Items. GetItem and SetItem use what the mask names; InsertItem returns the new index or -1.
    int GetItemCount() const { return quorfx::Send<int>(m_hWnd, HDM_GETITEMCOUNT); }
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const
    {
        return quorfx::Send<BOOL>(m_hWnd, HDM_GETITEM, nPos, pHeaderItem);
    }
    BOOL SetItem(int nPos, HDITEM* pHeaderItem)
    {
        return quorfx::Send<BOOL>(m_hWnd, HDM_SETITEM, nPos, pHeaderItem);
    }
    int InsertItem(int nPos, HDITEM* phdi) { return quorfx::Send<int>(m_hWnd, HDM_INSERTITEM, nPos, phdi); }
    BOOL DeleteItem(int nPos) { return quorfx::Send<BOOL>(m_hWnd, HDM_DELETEITEM, nPos); }
    // The item's rectangle in client pixels of the header.
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const
    {
        return quorfx::Send<BOOL>(m_hWnd, HDM_GETITEMRECT, nIndex, lpRect);
    }

    // The order of the items on the screen, left to right, as an array of indices. A count of -1 stands for
    // all.
    BOOL GetOrderArray(LPINT piArray, int iCount);
    BOOL SetOrderArray(int iCount, LPINT piArray)
    {
        return quorfx::Send<BOOL>(m_hWnd, HDM_SETORDERARRAY, iCount, piArray);
    }
    int OrderToIndex(int nOrder) const { return quorfx::Send<int>(m_hWnd, HDM_ORDERTOINDEX, nOrder); }

    // The item with the keyboard focus.
    int GetFocusedItem() const { return quorfx::Send<int>(m_hWnd, HDM_GETFOCUSEDITEM); }
    BOOL SetFocusedItem(int iItem) { return quorfx::Send<BOOL>(m_hWnd, HDM_SETFOCUSEDITEM, 0, iItem); }
    // The rectangles of an HDF_SPLITBUTTON item's button and, with HDS_OVERFLOW, of the button for the items
    // that do not fit: the one in client, the other in screen pixels.
    BOOL GetItemDropDownRect(int iItem, LPRECT lpRect) const
    {
        return quorfx::Send<BOOL>(m_hWnd, HDM_GETITEMDROPDOWNRECT, iItem, lpRect);
    }
    BOOL GetOverflowRect(LPRECT lpRect) const
    {
        return quorfx::Send<BOOL>(m_hWnd, HDM_GETOVERFLOWRECT, 0, lpRect);
    }

    // Computes the header's place inside a rectangle of the parent.
    BOOL Layout(HDLAYOUT* pHeaderLayout) { return quorfx::Send<BOOL>(m_hWnd, HDM_LAYOUT, 0, pHeaderLayout); }
    // The item at phdhti->pt, -1 for none; fills flags and iItem.
    int HitTest(LPHDHITTESTINFO phdhti) { return quorfx::Send<int>(m_hWnd, HDM_HITTEST, 0, phdhti); }
    // Shows the line where a dragged item would go, at a client point or after an item; returns the item.
    int SetHotDivider(CPoint pt)
    {
        return quorfx::Send<int>(m_hWnd, HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y));
    }
    int SetHotDivider(int nIndex) { return quorfx::Send<int>(m_hWnd, HDM_SETHOTDIVIDER, FALSE, nIndex); }

    // Pictures. The header does not own the list; CreateDragImage's result is deleted by the caller.
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    CImageList* CreateDragImage(int nIndex);
    // Space on either side of a bitmap, in pixels.
    int GetBitmapMargin() const { return quorfx::Send<int>(m_hWnd, HDM_GETBITMAPMARGIN); }
    int SetBitmapMargin(int nWidth) { return quorfx::Send<int>(m_hWnd, HDM_SETBITMAPMARGIN, nWidth); }

    // Filters, with the HDS_FILTERBAR style. The timeout is in milliseconds.
    int SetFilterChangeTimeout(DWORD dwTimeOut)
    {
        return quorfx::Send<int>(m_hWnd, HDM_SETFILTERCHANGETIMEOUT, 0, dwTimeOut);
    }
    int EditFilter(int nColumn, BOOL bDiscardChanges)
    {
        return quorfx::Send<int>(m_hWnd, HDM_EDITFILTER, nColumn, MAKELPARAM(bDiscardChanges, 0));
    }
    int ClearFilter(int nColumn) { return quorfx::Send<int>(m_hWnd, HDM_CLEARFILTER, nColumn); }
    int ClearAllFilters() { return quorfx::Send<int>(m_hWnd, HDM_CLEARFILTER, -1); }

    // Called to draw an HDF_OWNERDRAW item. The base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};
