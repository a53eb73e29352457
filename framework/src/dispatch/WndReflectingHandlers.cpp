// The message map of CWnd, and its default handlers that offer the message to the child it is about.
#include "afxwin.h"
#include "FrameworkAccess.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_COMPAREITEM()
    ON_WM_DELETEITEM()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_PARENTNOTIFY()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SETTINGCHANGE()
END_MESSAGE_MAP()

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT)
{
    LRESULT brush = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&brush))
        return reinterpret_cast<HBRUSH>(brush);
    return reinterpret_cast<HBRUSH>(Default());
}

namespace
{

// Owner-drawn items of a menu object are drawn and measured by that object.
CMenu* OwnerDrawnMenu(UINT controlType, HMENU menu)
{
    return controlType == ODT_MENU ? FrameworkAccess::PermanentMenu(menu) : nullptr;
}

} // namespace

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    const HWND control = lpDrawItemStruct->hwndItem;
    if (CMenu* const menu = OwnerDrawnMenu(lpDrawItemStruct->CtlType, reinterpret_cast<HMENU>(control)))
        menu->DrawItem(lpDrawItemStruct);
    else if (lpDrawItemStruct->CtlType == ODT_MENU || !ReflectLastMsg(control))
        Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    if (lpMeasureItemStruct->CtlType == ODT_MENU)
    {
        Default();
        return;
    }
    CWnd* const child = GetDlgItem(static_cast<int>(lpMeasureItemStruct->CtlID));
    if (child == nullptr || !child->SendChildNotifyLastMsg())
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct)
{
    LRESULT order = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &order))
        return static_cast<int>(order);
    return static_cast<int>(Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
        Default();
}

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT)
{
    LRESULT position = 0;
    if (pListBox != nullptr && reinterpret_cast<CWnd*>(pListBox)->SendChildNotifyLastMsg(&position))
        return static_cast<int>(position);
    return static_cast<int>(Default());
}

int CWnd::OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex)
{
    return CWnd::OnCharToItem(nKey, pListBox, nIndex);
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    if (pScrollBar == nullptr || !reinterpret_cast<CWnd*>(pScrollBar)->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    CWnd::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    const bool isAboutChild = LOWORD(message) == WM_CREATE || LOWORD(message) == WM_DESTROY;
    if (!isAboutChild || !ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        Default();
}

// Windows tells top-level windows only; the common controls need to know too.
void CWnd::OnSysColorChange()
{
    if (!(GetStyle() & WS_CHILD))
        SendMessageToDescendants(WM_SYSCOLORCHANGE, 0, 0, TRUE, FALSE);
    Default();
}

void CWnd::OnSettingChange(UINT uFlags, LPCTSTR lpszSection)
{
    if (!(GetStyle() & WS_CHILD))
        SendMessageToDescendants(WM_SETTINGCHANGE, uFlags, reinterpret_cast<LPARAM>(lpszSection), TRUE,
                                 FALSE);
    Default();
}
