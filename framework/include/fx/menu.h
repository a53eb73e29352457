// CMenu: the wrapper of a menu.
#pragma once

#include "afx.h"
#include "fx/gdi.h"

class CWnd;

// A menu. The destructor destroys the menu that was created, loaded or attached; temporary wrappers (from
// FromHandle, GetSubMenu and CWnd::GetSystemMenu) leave theirs alone. An item is given by its zero-based
// position with MF_BYPOSITION, else by its command id. Functions without a comment are the menu functions of
// the same name.
class QFX_API CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)
public:
    CMenu() : m_hMenu(NULL) {}
    virtual ~CMenu() { DestroyMenu(); }

    // The object of the handle in this thread: the attached one, or a temporary one that lives until the
    // message loop is idle. NULL for a NULL handle.
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    static void PASCAL DeleteTempMap();

    // Takes ownership of the handle. FALSE for NULL.
    BOOL Attach(HMENU hMenu);
    // Gives the handle to the caller.
    HMENU Detach();
    // The handle; NULL when empty or when called on a null pointer.
    HMENU GetSafeHmenu() const { return this == NULL ? NULL : m_hMenu; }
    operator HMENU() const { return m_hMenu; }
    BOOL operator==(const CMenu& menu) const { return m_hMenu == menu.m_hMenu; }
    BOOL operator!=(const CMenu& menu) const { return m_hMenu != menu.m_hMenu; }

    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    // A menu resource, found through the module chain.
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCE(nIDResource)); }
    BOOL LoadMenuIndirect(const void* lpMenuTemplate) { return Attach(::LoadMenuIndirect(lpMenuTemplate)); }
    // Destroys the menu and empties the wrapper.
    BOOL DestroyMenu();

    // With MF_POPUP the id is the handle of a sub-menu, which the menu then owns.
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = NULL)
    {
        return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = NULL)
    {
        return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = NULL)
    {
        return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }

    // The previous state (MF_CHECKED or MF_UNCHECKED), or (UINT)-1 when there is no such item.
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck)
    {
        return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
    }
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable)
    {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
    }
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags)
    {
        return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
    }
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE)
    {
        return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
    }
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE)
    {
        return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(fByPos), gmdiFlags);
    }
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                            const CBitmap* pBmpChecked);

    UINT GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }
    // (UINT)-1 for a sub-menu.
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const
    {
        return ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
    }
    // The result is the text's length.
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE)
    {
        return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE)
    {
        return ::InsertMenuItem(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    // A temporary wrapper of the sub-menu at a position, or NULL.
    CMenu* GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }
    BOOL GetMenuInfo(LPMENUINFO lpcmi) const { return ::GetMenuInfo(m_hMenu, lpcmi); }
    BOOL SetMenuInfo(LPCMENUINFO lpcmi) { return ::SetMenuInfo(m_hMenu, lpcmi); }
    BOOL SetMenuContextHelpId(DWORD dwContextHelpId)
    {
        return ::SetMenuContextHelpId(m_hMenu, dwContextHelpId);
    }
    DWORD GetMenuContextHelpId() const { return ::GetMenuContextHelpId(m_hMenu); }

    // Shows the menu at a screen position; commands go to pWnd. With TPM_RETURNCMD the result is the chosen
    // id or 0. lpRect is ignored.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = 0);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);

    // Called by the framework for owner-drawn items of a menu object; the bases do nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);

    HMENU m_hMenu;

private:
    friend struct FrameworkAccess;

    // The object that is attached to the handle, or NULL.
    static CMenu* PASCAL FromHandlePermanent(HMENU hMenu);
};
