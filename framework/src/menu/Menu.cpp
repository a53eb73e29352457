// CMenu: ownership, the handle map, and the functions that are more than one menu call.

#include "afxwin.h"
#include "handlemap/HandleMap.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

template <> struct HandleTraits<CMenu>
{
    static CMenu* Wrap(HMENU handle)
    {
        CMenu* const menu = new CMenu;
        menu->m_hMenu = handle;
        return menu;
    }
    static void Unwrap(CMenu& menu) { menu.m_hMenu = nullptr; }
};

namespace
{

using Menus = HandleMap<HMENU, CMenu>;

LPCTSTR BitmapItem(const CBitmap* bitmap)
{
    return static_cast<LPCTSTR>(bitmap->GetSafeHandle());
}

} // namespace

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu)
{
    return Menus::OfThisThread().FromHandle(hMenu);
}
CMenu* PASCAL CMenu::FromHandlePermanent(HMENU hMenu)
{
    return Menus::OfThisThread().FindPermanent(hMenu);
}
void PASCAL CMenu::DeleteTempMap()
{
    Menus::OfThisThread().DeleteTemporaries();
}

BOOL CMenu::Attach(HMENU hMenu)
{
    ASSERT(m_hMenu == nullptr);
    if (hMenu == nullptr)
        return FALSE;
    m_hMenu = hMenu;
    Menus::OfThisThread().Attach(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach()
{
    if (m_hMenu != nullptr)
        Menus::OfThisThread().Detach(m_hMenu, this);
    return std::exchange(m_hMenu, nullptr);
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName)
{
    return Attach(::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::DestroyMenu()
{
    const HMENU handle = Detach();
    return handle != nullptr && ::DestroyMenu(handle);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::AppendMenu(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, BitmapItem(pBmp));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::InsertMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, BitmapItem(pBmp));
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                               const CBitmap* pBmpChecked)
{
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags,
                                static_cast<HBITMAP>(pBmpUnchecked->GetSafeHandle()),
                                static_cast<HBITMAP>(pBmpChecked->GetSafeHandle()));
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const
{
    const int length = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (length <= 0)
    {
        rString.Empty();
        return length;
    }
    ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(length), length + 1, nFlags);
    rString.ReleaseBuffer();
    return rString.GetLength();
}

BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    lpMenuItemInfo->cbSize = sizeof(MENUITEMINFO);
    return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect)
{
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm)
{
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, pWnd->GetSafeHwnd(), lptpm);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}
void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}
