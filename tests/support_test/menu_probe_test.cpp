// Tests of the probe for popup menus.
#include "tests/support/HostWindow.h"
#include "tests/support/MenuProbe.h"
#include "tests/support/Pump.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

// A popup with a submenu: Cut, Copy (grey), a separator, More {Paste (checked), Delete}.
class TestMenu
{
public:
    TestMenu() : m_menu(CreatePopupMenu())
    {
        const HMENU more = CreatePopupMenu();
        AppendMenuW(more, MF_STRING | MF_CHECKED, 3, L"Paste");
        AppendMenuW(more, MF_STRING, 4, L"Delete");
        AppendMenuW(m_menu, MF_STRING, 1, L"Cut");
        AppendMenuW(m_menu, MF_STRING | MF_GRAYED, 2, L"Copy");
        AppendMenuW(m_menu, MF_SEPARATOR, 0, nullptr);
        AppendMenuW(m_menu, MF_POPUP, reinterpret_cast<UINT_PTR>(more), L"More");
    }
    ~TestMenu() { DestroyMenu(m_menu); }
    TestMenu(const TestMenu&) = delete;
    TestMenu& operator=(const TestMenu&) = delete;

    HMENU Handle() const { return m_menu; }

    int Track(HWND owner, UINT flags = 0) const
    {
        return TrackPopupMenu(m_menu, TPM_RETURNCMD | flags, 100, 100, 0, owner, nullptr);
    }

private:
    HMENU m_menu;
};

TEST(MenuProbe, Describe_ShowsStatesAndSubmenus)
{
    const TestMenu menu;
    EXPECT_EQ(Describe(ReadMenu(menu.Handle())),
              L"1 Cut, 2 Copy (grey), -, More {3 Paste (checked), 4 Delete}");
}

TEST(MenuProbe, NoWantedItem_ReadsAndCloses)
{
    HostWindow host;
    const TestMenu menu;
    const MenuProbe probe;
    EXPECT_FALSE(probe.Opened());
    EXPECT_EQ(menu.Track(host), 0);
    EXPECT_TRUE(probe.Opened());
    EXPECT_FALSE(probe.Chosen());
    EXPECT_EQ(probe.Description(), L"1 Cut, 2 Copy (grey), -, More {3 Paste (checked), 4 Delete}");
}

TEST(MenuProbe, WantedItem_IsClicked)
{
    HostWindow host;
    const TestMenu menu;
    const MenuProbe probe(1);
    EXPECT_EQ(menu.Track(host), 1);
    EXPECT_TRUE(probe.Chosen());
}

TEST(MenuProbe, WantedItemInSubmenu_IsClicked)
{
    HostWindow host;
    const TestMenu menu;
    const MenuProbe probe(4);
    EXPECT_EQ(menu.Track(host), 4);
    EXPECT_TRUE(probe.Chosen());
}

TEST(MenuProbe, MenuWithoutNotifications_Works)
{
    HostWindow host;
    const TestMenu menu;
    const MenuProbe probe(4);
    EXPECT_EQ(menu.Track(host, TPM_NONOTIFY), 4);
}

TEST(MenuProbe, CommandOfAMenu_ReachesTheOwner)
{
    HostWindow host;
    const TestMenu menu;
    const MenuProbe probe(1);
    TrackPopupMenu(menu.Handle(), 0, 100, 100, 0, host, nullptr);
    PumpPending();
    EXPECT_EQ(host.TakeLog(), std::vector<std::string>{"command 1 code 0"});
}

TEST(MenuProbe, GreyOrMissingItem_ClosesTheMenu)
{
    HostWindow host;
    const TestMenu menu;
    for (const UINT id : {2u, 99u})
    {
        const MenuProbe probe(id);
        EXPECT_EQ(menu.Track(host), 0);
        EXPECT_TRUE(probe.Opened());
        EXPECT_FALSE(probe.Chosen());
    }
}

} // namespace
} // namespace quor::test
