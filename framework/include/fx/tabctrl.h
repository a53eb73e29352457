// CTabCtrl: a row of tabs above pages.
#pragma once

#include "fx/imagelist.h"
#include "fx/message.h"
#include "fx/wnd.h"
#include "atltypes.h"

class CToolTipCtrl;

// Wraps a tab window. The object has no state of its own: a pointer to any CWnd of one may be cast to it.
// Tabs are zero-based; the host shows and hides the pages itself when TCN_SELCHANGE arrives.
class QFX_API CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)

public:
    CTabCtrl() {}
    virtual ~CTabCtrl();

    // Create the control as a child. rect is in client coordinates of the parent. FALSE if that fails.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Tabs. The structure forms use what the mask names; InsertItem returns the index or -1.
    int GetItemCount() const { return quorfx::Send<int>(m_hWnd, TCM_GETITEMCOUNT); }
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const
    {
        return quorfx::Send<BOOL>(m_hWnd, TCM_GETITEM, nItem, pTabCtrlItem);
    }
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem)
    {
        return quorfx::Send<BOOL>(m_hWnd, TCM_SETITEM, nItem, pTabCtrlItem);
    }
    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem)
    {
        return quorfx::Send<LONG>(m_hWnd, TCM_INSERTITEM, nItem, pTabCtrlItem);
    }
    LONG InsertItem(int nItem, LPCTSTR lpszItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, DWORD dwState,
                    DWORD dwStateMask);
    BOOL DeleteItem(int nItem) { return quorfx::Send<BOOL>(m_hWnd, TCM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return quorfx::Send<BOOL>(m_hWnd, TCM_DELETEALLITEMS); }
    BOOL SetItemExtra(int nBytes) { return quorfx::Send<BOOL>(m_hWnd, TCM_SETITEMEXTRA, nBytes); }
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE)
    {
        return quorfx::Send<BOOL>(m_hWnd, TCM_HIGHLIGHTITEM, idItem, MAKELPARAM(fHighlight, 0));
    }

    // Selection and focus. SetCurSel returns the tab selected before and sends no notification.
    int GetCurSel() const { return quorfx::Send<int>(m_hWnd, TCM_GETCURSEL); }
    int SetCurSel(int nItem) { return quorfx::Send<int>(m_hWnd, TCM_SETCURSEL, nItem); }
    int GetCurFocus() const { return quorfx::Send<int>(m_hWnd, TCM_GETCURFOCUS); }
    void SetCurFocus(int nItem) { quorfx::Send(m_hWnd, TCM_SETCURFOCUS, nItem); }
    void DeselectAll(BOOL fExcludeFocus) { quorfx::Send(m_hWnd, TCM_DESELECTALL, fExcludeFocus); }

    // Geometry in client pixels. AdjustRect turns the control's rectangle into the page's, or the reverse.
    BOOL GetItemRect(int nItem, LPRECT lpRect) const
    {
        return quorfx::Send<BOOL>(m_hWnd, TCM_GETITEMRECT, nItem, lpRect);
    }
    void AdjustRect(BOOL bLarger, LPRECT lpRect) { quorfx::Send(m_hWnd, TCM_ADJUSTRECT, bLarger, lpRect); }
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size) { quorfx::Send(m_hWnd, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy)); }
    int SetMinTabWidth(int cx) { return quorfx::Send<int>(m_hWnd, TCM_SETMINTABWIDTH, 0, cx); }
    int GetRowCount() const { return quorfx::Send<int>(m_hWnd, TCM_GETROWCOUNT); }
    int HitTest(TCHITTESTINFO* pHitTestInfo) const
    {
        return quorfx::Send<int>(m_hWnd, TCM_HITTEST, 0, pHitTestInfo);
    }
    DWORD GetExtendedStyle() { return quorfx::Send<DWORD>(m_hWnd, TCM_GETEXTENDEDSTYLE); }
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0)
    {
        return quorfx::Send<DWORD>(m_hWnd, TCM_SETEXTENDEDSTYLE, dwExMask, dwNewStyle);
    }

    // Pictures and tips. The control owns neither; the set functions return what was set before.
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    void RemoveImage(int nImage) { quorfx::Send(m_hWnd, TCM_REMOVEIMAGE, nImage); }
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);

    // Called to draw a tab with TCS_OWNERDRAWFIXED. The base draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};
