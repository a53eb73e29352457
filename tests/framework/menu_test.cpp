// CMenu: ownership, temporary wrappers and items.
#include <afxwin.h>

#include <gtest/gtest.h>

TEST(Menu, Destructor_DestroysItsMenuWithTheSubMenus)
{
    HMENU handle = nullptr;
    HMENU subHandle = nullptr;
    {
        CMenu menu;
        CMenu sub;
        ASSERT_TRUE(menu.CreatePopupMenu());
        ASSERT_TRUE(sub.CreatePopupMenu());
        handle = menu;
        subHandle = sub.Detach();
        EXPECT_TRUE(menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(subHandle), L"&Sub"));
    }
    EXPECT_FALSE(::IsMenu(handle));
    EXPECT_FALSE(::IsMenu(subHandle));
}

TEST(Menu, TemporaryMenus_DoNotDestroyTheirs)
{
    CMenu menu;
    menu.CreatePopupMenu();
    const HMENU subHandle = ::CreatePopupMenu();
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(subHandle), L"Sub");
    CMenu* const sub = menu.GetSubMenu(0);
    EXPECT_EQ(subHandle, sub->GetSafeHmenu());
    EXPECT_EQ(sub, menu.GetSubMenu(0));
    EXPECT_EQ(nullptr, menu.GetSubMenu(1));
    EXPECT_EQ(&menu, CMenu::FromHandle(menu));
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsMenu(subHandle));
}

TEST(Menu, ADetachedMenuIsNoLongerTheObjects)
{
    CMenu menu;
    menu.CreatePopupMenu();
    const HMENU handle = menu.Detach();
    EXPECT_EQ(nullptr, menu.GetSafeHmenu());
    EXPECT_NE(&menu, CMenu::FromHandle(handle));
    EXPECT_EQ(handle, CMenu::FromHandle(handle)->GetSafeHmenu());
    EXPECT_EQ(nullptr, menu.Detach());
    CMenu::DeleteTempMap();
    ::DestroyMenu(handle);
}

TEST(Menu, Items)
{
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 100, L"First");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, 102, CString(L"Third"));
    menu.InsertMenu(1, MF_BYPOSITION | MF_STRING, 101, L"Second");
    EXPECT_EQ(4, menu.GetMenuItemCount());
    EXPECT_EQ(101u, menu.GetMenuItemID(1));
    CString text;
    EXPECT_EQ(6, menu.GetMenuString(101, text, MF_BYCOMMAND));
    EXPECT_STREQ(L"Second", text);
    EXPECT_EQ(5, menu.GetMenuString(3, text, MF_BYPOSITION));
    EXPECT_STREQ(L"Third", text);
    menu.GetMenuString(2, text, MF_BYPOSITION);
    EXPECT_TRUE(text.IsEmpty());
    menu.ModifyMenu(101, MF_BYCOMMAND | MF_STRING, 201, L"Changed");
    EXPECT_EQ(201u, menu.GetMenuItemID(1));
    menu.DeleteMenu(0, MF_BYPOSITION);
    menu.RemoveMenu(201, MF_BYCOMMAND);
    EXPECT_EQ(2, menu.GetMenuItemCount());
}

TEST(Menu, ItemStates)
{
    CMenu menu;
    menu.CreatePopupMenu();
    for (UINT id = 1; id <= 3; ++id)
        menu.AppendMenu(MF_STRING, id, L"Item");
    EXPECT_EQ(static_cast<UINT>(MF_UNCHECKED), menu.CheckMenuItem(1, MF_CHECKED));
    EXPECT_TRUE(menu.GetMenuState(1, MF_BYCOMMAND) & MF_CHECKED);
    menu.EnableMenuItem(2, MF_GRAYED);
    EXPECT_TRUE(menu.GetMenuState(2, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_TRUE(menu.CheckMenuRadioItem(1, 3, 3, MF_BYCOMMAND));
    EXPECT_FALSE(menu.GetMenuState(1, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_TRUE(menu.GetMenuState(3, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_TRUE(menu.SetDefaultItem(2));
    EXPECT_EQ(2u, menu.GetDefaultItem(GMDI_USEDISABLED));
    MENUITEMINFO info = {};
    info.fMask = MIIM_ID;
    EXPECT_TRUE(menu.GetMenuItemInfo(2, &info, TRUE));
    EXPECT_EQ(3u, info.wID);
    EXPECT_EQ(static_cast<UINT>(-1), menu.CheckMenuItem(99, MF_CHECKED));
}

TEST(Menu, MissingResource_LeavesTheWrapperEmpty)
{
    CMenu menu;
    EXPECT_FALSE(menu.LoadMenu(L"NoSuchMenu"));
    EXPECT_EQ(nullptr, menu.GetSafeHmenu());
}

TEST(Menu, HelpContext_IsKept)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_TRUE(menu.SetMenuContextHelpId(4711));
    EXPECT_EQ(4711u, menu.GetMenuContextHelpId());
}
