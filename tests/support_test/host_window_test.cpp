// Tests of the recording host window.
#include "tests/support/HostWindow.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

using Lines = std::vector<std::string>;

TEST(HostWindow, New_IsVisibleActiveAndHasTheClientSize)
{
    HostWindow host(300, 200);
    RECT client{};
    host.GetClientRect(&client);
    EXPECT_EQ(client.right, 300);
    EXPECT_EQ(client.bottom, 200);
    EXPECT_TRUE(host.IsWindowVisible());
    EXPECT_EQ(GetForegroundWindow(), host.m_hWnd);
    EXPECT_EQ(host.TakeLog(), Lines{});
}

TEST(HostWindow, Messages_AreRecordedInOrder)
{
    HostWindow host;
    NMHDR header{nullptr, 9, static_cast<UINT>(NM_CLICK)};
    host.SendMessage(WM_COMMAND, MAKEWPARAM(7, EN_CHANGE), 0);
    host.SendMessage(WM_NOTIFY, 9, reinterpret_cast<LPARAM>(&header));
    host.SendMessage(WM_USER + 3, 1, -2);
    host.SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"not recorded"));
    EXPECT_EQ(host.TakeLog(), (Lines{"command 7 code 768", "notify 9 code -2", "user+3 w=1 l=-2"}));
    EXPECT_EQ(host.TakeLog(), Lines{});
}

TEST(HostWindow, IgnoredNotification_IsNotRecorded)
{
    HostWindow host;
    host.IgnoreNotification(static_cast<UINT>(NM_CLICK));
    NMHDR header{nullptr, 9, static_cast<UINT>(NM_CLICK)};
    host.SendMessage(WM_NOTIFY, 9, reinterpret_cast<LPARAM>(&header));
    EXPECT_EQ(host.TakeLog(), Lines{});
}

TEST(HostWindow, EditControl_ReportsItsChange)
{
    HostWindow host;
    CWnd edit;
    ASSERT_TRUE(edit.Create(L"EDIT", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 20), &host, 12));
    edit.SetWindowText(L"x");
    EXPECT_EQ(host.TakeLog(), (Lines{"command 12 code 1024", "command 12 code 768"})); // EN_UPDATE, EN_CHANGE
}

} // namespace
} // namespace quor::test
