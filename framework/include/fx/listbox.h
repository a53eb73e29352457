// CListBox: a list of lines to choose from.
#pragma once

#include "fx/message.h"
#include "fx/string.h"
#include "fx/wnd.h"
#include "atltypes.h"

// Wraps a LISTBOX window. The object has no state of its own: a pointer to any CWnd of a list box may be cast
// to it. Items are zero-based; functions that return an index return LB_ERR (-1) for bad input.
class QFX_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)

public:
    CListBox() {}
    virtual ~CListBox();

    // Creates the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // General.
    int GetCount() const { return quorfx::Send<int>(m_hWnd, LB_GETCOUNT); }
    int GetHorizontalExtent() const { return quorfx::Send<int>(m_hWnd, LB_GETHORIZONTALEXTENT); }
    void SetHorizontalExtent(int cxExtent) { quorfx::Send(m_hWnd, LB_SETHORIZONTALEXTENT, cxExtent); }
    int GetTopIndex() const { return quorfx::Send<int>(m_hWnd, LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return quorfx::Send<int>(m_hWnd, LB_SETTOPINDEX, nIndex); }
    LCID GetLocale() const { return quorfx::Send<LCID>(m_hWnd, LB_GETLOCALE); }
    LCID SetLocale(LCID nNewLocale) { return quorfx::Send<LCID>(m_hWnd, LB_SETLOCALE, nNewLocale); }
    int InitStorage(int nItems, UINT nBytes)
    {
        return quorfx::Send<int>(m_hWnd, LB_INITSTORAGE, nItems, nBytes);
    }
    // The item nearest to the client point; bOutside tells that the point lies outside the client area.
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;

    // Items per column.
    DWORD GetListBoxInfo() const { return quorfx::Send<DWORD>(m_hWnd, LB_GETLISTBOXINFO); }

    // Single selection; GetCurSel is LB_ERR without one, SetCurSel(-1) removes it. No notification.
    int GetCurSel() const { return quorfx::Send<int>(m_hWnd, LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return quorfx::Send<int>(m_hWnd, LB_SETCURSEL, nSelect); }

    // Multiple selection. The range is inclusive; GetSelItems returns the number of indices stored.
    int GetSel(int nIndex) const { return quorfx::Send<int>(m_hWnd, LB_GETSEL, nIndex); }
    int SetSel(int nIndex, BOOL bSelect = TRUE)
    {
        return quorfx::Send<int>(m_hWnd, LB_SETSEL, bSelect, nIndex);
    }
    int GetSelCount() const { return quorfx::Send<int>(m_hWnd, LB_GETSELCOUNT); }
    int GetSelItems(int nMaxItems, LPINT rgIndex) const
    {
        return quorfx::Send<int>(m_hWnd, LB_GETSELITEMS, nMaxItems, rgIndex);
    }
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);
    void SetAnchorIndex(int nIndex) { quorfx::Send(m_hWnd, LB_SETANCHORINDEX, nIndex); }
    int GetAnchorIndex() const { return quorfx::Send<int>(m_hWnd, LB_GETANCHORINDEX); }
    int GetCaretIndex() const { return quorfx::Send<int>(m_hWnd, LB_GETCARETINDEX); }
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE)
    {
        return quorfx::Send<int>(m_hWnd, LB_SETCARETINDEX, nIndex, MAKELONG(bScroll, 0));
    }

    // The value or pointer stored with an item.
    DWORD_PTR GetItemData(int nIndex) const
    {
        return quorfx::Send<DWORD_PTR>(m_hWnd, LB_GETITEMDATA, nIndex);
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    {
        return quorfx::Send<int>(m_hWnd, LB_SETITEMDATA, nIndex, dwItemData);
    }
    void* GetItemDataPtr(int nIndex) const { return quorfx::Send<void*>(m_hWnd, LB_GETITEMDATA, nIndex); }
    int SetItemDataPtr(int nIndex, void* pData)
    {
        return quorfx::Send<int>(m_hWnd, LB_SETITEMDATA, nIndex, pData);
    }

    // Geometry of items, in client pixels.
    int GetItemRect(int nIndex, LPRECT lpRect) const
    {
        return quorfx::Send<int>(m_hWnd, LB_GETITEMRECT, nIndex, lpRect);
    }
    int GetItemHeight(int nIndex) const { return quorfx::Send<int>(m_hWnd, LB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight)
    {
        return quorfx::Send<int>(m_hWnd, LB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
    }
    void SetColumnWidth(int cxWidth) { quorfx::Send(m_hWnd, LB_SETCOLUMNWIDTH, cxWidth); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops)
    {
        return quorfx::Send<BOOL>(m_hWnd, LB_SETTABSTOPS, nTabStops, rgTabStops);
    }
    BOOL SetTabStops(const int& cxEachStop)
    {
        return quorfx::Send<BOOL>(m_hWnd, LB_SETTABSTOPS, 1, &cxEachStop);
    }
    void SetTabStops() { quorfx::Send(m_hWnd, LB_SETTABSTOPS); }

    // Text of items. The buffer form needs room for GetTextLen + 1; the string is empty for a bad index.
    int GetText(int nIndex, LPTSTR lpszBuffer) const
    {
        return quorfx::Send<int>(m_hWnd, LB_GETTEXT, nIndex, lpszBuffer);
    }
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const { return quorfx::Send<int>(m_hWnd, LB_GETTEXTLEN, nIndex); }

    // Contents. Insertion at -1 appends without sorting; DeleteString returns the number of items left.
    int AddString(LPCTSTR lpszItem) { return quorfx::Send<int>(m_hWnd, LB_ADDSTRING, 0, lpszItem); }
    int InsertString(int nIndex, LPCTSTR lpszItem)
    {
        return quorfx::Send<int>(m_hWnd, LB_INSERTSTRING, nIndex, lpszItem);
    }
    int DeleteString(UINT nIndex) { return quorfx::Send<int>(m_hWnd, LB_DELETESTRING, nIndex); }
    void ResetContent() { quorfx::Send(m_hWnd, LB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) { return quorfx::Send<int>(m_hWnd, LB_DIR, attr, lpszWildCard); }

    // Searches begin after nStartAfter and wrap around; -1 searches everything. Case is ignored; the first
    // and last compare the beginning of the text, FindStringExact all of it.
    int FindString(int nStartAfter, LPCTSTR lpszItem) const
    {
        return quorfx::Send<int>(m_hWnd, LB_FINDSTRING, nStartAfter, lpszItem);
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
    {
        return quorfx::Send<int>(m_hWnd, LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
    }
    int SelectString(int nStartAfter, LPCTSTR lpszItem)
    {
        return quorfx::Send<int>(m_hWnd, LB_SELECTSTRING, nStartAfter, lpszItem);
    }

    // Owner-drawn lists override these; DrawItem, MeasureItem and DeleteItem do nothing by default, and
    // CompareItem finds all items equal. The key functions return what the messages document: -1 default
    // action, -2 handled, otherwise an index.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    virtual int CharToItem(UINT nKey, UINT nIndex);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};
