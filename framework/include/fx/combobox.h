// CComboBox: an edit or label with a list that drops down.
#pragma once

#include "fx/message.h"
#include "fx/string.h"
#include "fx/wnd.h"

// Wraps a COMBOBOX window. The object has no state of its own: a pointer to any CWnd of a combo may be cast
// to it. Items are zero-based; functions that return an index return CB_ERR (-1) for bad input.
class QFX_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

public:
    CComboBox() {}
    virtual ~CComboBox();

    // Creates the control as a child. rect is in client coordinates of the parent and includes the dropped
    // list. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // General.
    int GetCount() const { return quorfx::Send<int>(m_hWnd, CB_GETCOUNT); }
    int GetCurSel() const { return quorfx::Send<int>(m_hWnd, CB_GETCURSEL); }
    // -1 removes the selection and clears the text. No notification.
    int SetCurSel(int nSelect) { return quorfx::Send<int>(m_hWnd, CB_SETCURSEL, nSelect); }
    LCID GetLocale() const { return quorfx::Send<LCID>(m_hWnd, CB_GETLOCALE); }
    LCID SetLocale(LCID nNewLocale) { return quorfx::Send<LCID>(m_hWnd, CB_SETLOCALE, nNewLocale); }
    int GetTopIndex() const { return quorfx::Send<int>(m_hWnd, CB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return quorfx::Send<int>(m_hWnd, CB_SETTOPINDEX, nIndex); }
    int InitStorage(int nItems, UINT nBytes)
    {
        return quorfx::Send<int>(m_hWnd, CB_INITSTORAGE, nItems, nBytes);
    }
    void SetHorizontalExtent(UINT nExtent) { quorfx::Send(m_hWnd, CB_SETHORIZONTALEXTENT, nExtent); }
    UINT GetHorizontalExtent() const { return quorfx::Send<UINT>(m_hWnd, CB_GETHORIZONTALEXTENT); }
    int SetDroppedWidth(UINT nWidth) { return quorfx::Send<int>(m_hWnd, CB_SETDROPPEDWIDTH, nWidth); }
    int GetDroppedWidth() const { return quorfx::Send<int>(m_hWnd, CB_GETDROPPEDWIDTH); }
    int SetMinVisibleItems(int iMinVisible)
    {
        return quorfx::Send<int>(m_hWnd, CB_SETMINVISIBLE, iMinVisible);
    }
    int GetMinVisible() const { return quorfx::Send<int>(m_hWnd, CB_GETMINVISIBLE); }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const { return ::GetComboBoxInfo(m_hWnd, pcbi); }
    // The grey text of an empty field.
    CString GetCueBanner() const;
    BOOL GetCueBanner(LPTSTR lpszText, int cchText) const
    {
        return quorfx::Send<BOOL>(m_hWnd, CB_GETCUEBANNER, lpszText, cchText);
    }
    BOOL SetCueBanner(LPCTSTR lpszText) { return quorfx::Send<BOOL>(m_hWnd, CB_SETCUEBANNER, 0, lpszText); }

    // The edit part.
    DWORD GetEditSel() const { return quorfx::Send<DWORD>(m_hWnd, CB_GETEDITSEL); }
    BOOL SetEditSel(int nStartChar, int nEndChar)
    {
        return quorfx::Send<BOOL>(m_hWnd, CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar));
    }
    BOOL LimitText(int nMaxChars) { return quorfx::Send<BOOL>(m_hWnd, CB_LIMITTEXT, nMaxChars); }

    // The value or pointer stored with an item.
    DWORD_PTR GetItemData(int nIndex) const
    {
        return quorfx::Send<DWORD_PTR>(m_hWnd, CB_GETITEMDATA, nIndex);
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    {
        return quorfx::Send<int>(m_hWnd, CB_SETITEMDATA, nIndex, dwItemData);
    }
    void* GetItemDataPtr(int nIndex) const { return quorfx::Send<void*>(m_hWnd, CB_GETITEMDATA, nIndex); }
    int SetItemDataPtr(int nIndex, void* pData)
    {
        return quorfx::Send<int>(m_hWnd, CB_SETITEMDATA, nIndex, pData);
    }

    // Text of items. The buffer form needs room for GetLBTextLen + 1; the string is empty for a bad index.
    int GetLBText(int nIndex, LPTSTR lpszText) const
    {
        return quorfx::Send<int>(m_hWnd, CB_GETLBTEXT, nIndex, lpszText);
    }
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const { return quorfx::Send<int>(m_hWnd, CB_GETLBTEXTLEN, nIndex); }

    // Geometry, in pixels; item -1 is the selection field. The dropped rectangle is in screen coordinates.
    int SetItemHeight(int nIndex, UINT cyItemHeight)
    {
        return quorfx::Send<int>(m_hWnd, CB_SETITEMHEIGHT, nIndex, cyItemHeight);
    }
    int GetItemHeight(int nIndex) const { return quorfx::Send<int>(m_hWnd, CB_GETITEMHEIGHT, nIndex); }
    void GetDroppedControlRect(LPRECT lprect) const
    {
        quorfx::Send(m_hWnd, CB_GETDROPPEDCONTROLRECT, 0, lprect);
    }

    // The drop-down list and its user interface.
    int SetExtendedUI(BOOL bExtended = TRUE)
    {
        return quorfx::Send<int>(m_hWnd, CB_SETEXTENDEDUI, bExtended);
    }
    BOOL GetExtendedUI() const { return quorfx::Send<BOOL>(m_hWnd, CB_GETEXTENDEDUI); }
    BOOL GetDroppedState() const { return quorfx::Send<BOOL>(m_hWnd, CB_GETDROPPEDSTATE); }
    void ShowDropDown(BOOL bShowIt = TRUE) { quorfx::Send(m_hWnd, CB_SHOWDROPDOWN, bShowIt); }

    // Contents. Insertion at -1 appends without sorting; DeleteString returns the number of items left.
    int AddString(LPCTSTR lpszString) { return quorfx::Send<int>(m_hWnd, CB_ADDSTRING, 0, lpszString); }
    int InsertString(int nIndex, LPCTSTR lpszString)
    {
        return quorfx::Send<int>(m_hWnd, CB_INSERTSTRING, nIndex, lpszString);
    }
    int DeleteString(UINT nIndex) { return quorfx::Send<int>(m_hWnd, CB_DELETESTRING, nIndex); }
    void ResetContent() { quorfx::Send(m_hWnd, CB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) { return quorfx::Send<int>(m_hWnd, CB_DIR, attr, lpszWildCard); }

    // Searches begin after nStartAfter and wrap around; -1 searches everything. Case is ignored; the first
    // and last compare the beginning of the text, FindStringExact all of it.
    int FindString(int nStartAfter, LPCTSTR lpszString) const
    {
        return quorfx::Send<int>(m_hWnd, CB_FINDSTRING, nStartAfter, lpszString);
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
    {
        return quorfx::Send<int>(m_hWnd, CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
    }
    int SelectString(int nStartAfter, LPCTSTR lpszString)
    {
        return quorfx::Send<int>(m_hWnd, CB_SELECTSTRING, nStartAfter, lpszString);
    }

    // Clipboard commands on the edit part.
    void Clear() { quorfx::Send(m_hWnd, WM_CLEAR); }
    void Copy() { quorfx::Send(m_hWnd, WM_COPY); }
    void Cut() { quorfx::Send(m_hWnd, WM_CUT); }
    void Paste() { quorfx::Send(m_hWnd, WM_PASTE); }

    // Owner-drawn combos override these. By default they do nothing, and all items compare equal.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};
