// Tool tips of windows, as a user gets them: the mouse rests over an item, and the item's text appears.
#include "tests/framework/WindowLog.h"
#include "tests/support/Input.h"
#include "tests/support/Pump.h"

#include <gtest/gtest.h>

#include <psapi.h>

namespace quor::test
{
namespace
{

constexpr int ItemWidth = 40;

// Items side by side, 40 pixels wide, each with a tip; the area below y = 100 has none.
class TipWindow : public CWnd
{
public:
    explicit TipWindow(UINT toolFlags = 0) : m_toolFlags(toolFlags)
    {
        CreateEx(0, AfxRegisterWndClass(0, NULL, ::GetSysColorBrush(COLOR_WINDOW)), L"Tips",
                 WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 400, 300, NULL, NULL);
        EnableToolTips();
    }
    ~TipWindow() override { DestroyWindow(); }

    bool m_asksForText = false;
    int m_requests = 0;
    WPARAM m_requestParameter = 0;
    mutable int m_hitTests = 0;

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* tool) const override
    {
        ++m_hitTests;
        if (point.y >= 100 || point.x < 0 || point.y < 0)
            return -1;
        const int item = point.x / ItemWidth;
        tool->hwnd = m_hWnd;
        tool->uId = static_cast<UINT_PTR>(1000 + item);
        tool->rect = CRect(item * ItemWidth, 0, (item + 1) * ItemWidth, 100);
        tool->uFlags |= m_toolFlags;
        EXPECT_EQ(tool->lpszText, LPSTR_TEXTCALLBACK);
        EXPECT_EQ(tool->cbSize, sizeof(TOOLINFO));
        if (!m_asksForText)
            tool->lpszText = _tcsdup(TextOf(item));
        return item;
    }

    static CString TextOf(int item)
    {
        CString text;
        text.Format(L"Item %d", item);
        return text;
    }

protected:
    afx_msg BOOL OnNeedText(UINT id, NMHDR* header, LRESULT*)
    {
        EXPECT_EQ(id, 0u) << "the map knows tool tips by the id 0";
        ++m_requests;
        m_requestParameter = GetCurrentMessage()->wParam;
        EXPECT_EQ(header->idFrom, m_requestParameter);
        reinterpret_cast<NMTTDISPINFO*>(header)->lpszText = m_text;
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()

private:
    UINT m_toolFlags;
    TCHAR m_text[16] = L"Requested";
};

BEGIN_MESSAGE_MAP(TipWindow, CWnd)
    ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &TipWindow::OnNeedText)
END_MESSAGE_MAP()

// The tip control that the window owns, or NULL.
HWND TipControl(HWND owner)
{
    struct Search
    {
        HWND owner;
        HWND found;
    } search = {owner, nullptr};
    const auto look = [](HWND window, LPARAM data) -> BOOL {
        Search& wanted = *reinterpret_cast<Search*>(data);
        TCHAR name[64] = {};
        ::GetClassName(window, name, 64);
        if (::lstrcmpi(name, TOOLTIPS_CLASS) == 0 && ::GetWindow(window, GW_OWNER) == wanted.owner)
            wanted.found = window;
        return wanted.found == nullptr;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

bool ShowsTip(HWND owner)
{
    const HWND tip = TipControl(owner);
    return tip != nullptr && ::IsWindowVisible(tip);
}

int ToolCount(HWND owner)
{
    const HWND tip = TipControl(owner);
    return tip == nullptr ? 0 : static_cast<int>(::SendMessage(tip, TTM_GETTOOLCOUNT, 0, 0));
}

// The one tool that the control knows.
TOOLINFO OnlyTool(HWND owner, CString* text = nullptr)
{
    TCHAR buffer[256] = {};
    TOOLINFO tool = {};
    tool.cbSize = sizeof(tool);
    tool.lpszText = buffer;
    ::SendMessage(TipControl(owner), TTM_ENUMTOOLS, 0, reinterpret_cast<LPARAM>(&tool));
    if (text != nullptr)
    {
        tool.lpszText = buffer;
        ::SendMessage(TipControl(owner), TTM_GETTEXT, 256, reinterpret_cast<LPARAM>(&tool));
        *text = buffer;
    }
    return tool;
}

CString TextOfTip(HWND owner)
{
    CString text;
    OnlyTool(owner, &text);
    return text;
}

POINT InItem(int item)
{
    return {item * ItemWidth + ItemWidth / 2, 50};
}

TEST(ToolTips, AppearWhereTheMouseRestsAndDisappearWhereThereIsNothing)
{
    TipWindow window;
    ASSERT_TRUE(Activate(window));
    MoveMouse(window, InItem(1));
    ASSERT_TRUE(PumpUntil([&] { return ShowsTip(window); }));
    EXPECT_STREQ(TextOfTip(window), L"Item 1");
    MoveMouse(window, {50, 150});
    EXPECT_TRUE(PumpUntil([&] { return !ShowsTip(window); }));
    EXPECT_EQ(ToolCount(window), 0);
}

TEST(ToolTips, ANewHitReplacesTheTip)
{
    TipWindow window;
    ASSERT_TRUE(Activate(window));
    MoveMouse(window, InItem(1));
    ASSERT_TRUE(PumpUntil([&] { return ShowsTip(window); }));
    MoveMouse(window, InItem(2));
    EXPECT_EQ(ToolCount(window), 1);
    EXPECT_STREQ(TextOfTip(window), L"Item 2");
    EXPECT_TRUE(PumpUntil([&] { return ShowsTip(window); }));
}

TEST(ToolTips, TheSameHitKeepsTheTip)
{
    TipWindow window;
    ASSERT_TRUE(Activate(window));
    MoveMouse(window, InItem(1));
    ASSERT_TRUE(PumpUntil([&] { return ShowsTip(window); }));
    const int hitTests = window.m_hitTests;
    MoveMouse(window, {InItem(1).x + 3, 52});
    EXPECT_GT(window.m_hitTests, hitTests);
    EXPECT_TRUE(ShowsTip(window));
}

TEST(ToolTips, TextIsRequestedWithTheToolsIdFromTheMapEntryOfIdZero)
{
    TipWindow window;
    window.m_asksForText = true;
    ASSERT_TRUE(Activate(window));
    MoveMouse(window, InItem(3));
    ASSERT_TRUE(PumpUntil([&] { return ShowsTip(window); }));
    EXPECT_GT(window.m_requests, 0);
    EXPECT_EQ(window.m_requestParameter, 1003u);
    EXPECT_STREQ(TextOfTip(window), L"Requested");
}

TEST(ToolTips, FlagsOfTheFrameworkDoNotReachTheControl)
{
    TipWindow window(static_cast<UINT>(TTF_NOTBUTTON) | static_cast<UINT>(TTF_ALWAYSTIP) | TTF_TRANSPARENT);
    ASSERT_TRUE(Activate(window));
    MoveMouse(window, InItem(1));
    ASSERT_EQ(ToolCount(window), 1);
    const UINT flags = OnlyTool(window).uFlags;
    EXPECT_EQ(flags & (static_cast<UINT>(TTF_NOTBUTTON) | static_cast<UINT>(TTF_ALWAYSTIP)), 0u);
    EXPECT_NE(flags & TTF_TRANSPARENT, 0u);
}

TEST(ToolTips, AnInactiveWindowShowsOnlyTipsThatAreAlwaysShown)
{
    TipWindow usual;
    TipWindow always(static_cast<UINT>(TTF_ALWAYSTIP));
    CWnd active;
    active.CreateEx(0, AfxRegisterWndClass(0), L"Active", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 500, 20, 100, 100,
                    NULL, NULL);
    always.SetWindowPos(NULL, 20, 350, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ASSERT_TRUE(Activate(active));
    MoveMouse(usual, InItem(1));
    EXPECT_GT(usual.m_hitTests, 0);
    EXPECT_EQ(ToolCount(usual), 0);
    MoveMouse(always, InItem(1));
    EXPECT_EQ(ToolCount(always), 1);
    active.DestroyWindow();
}

TEST(ToolTips, CanBeTurnedOff)
{
    TipWindow window;
    ASSERT_TRUE(Activate(window));
    MoveMouse(window, InItem(1));
    ASSERT_EQ(ToolCount(window), 1);
    window.EnableToolTips(FALSE);
    EXPECT_EQ(ToolCount(window), 0);
    const int hitTests = window.m_hitTests;
    MoveMouse(window, InItem(2));
    EXPECT_EQ(window.m_hitTests, hitTests);
}

TEST(ToolTips, CancelHidesTheTip)
{
    TipWindow window;
    ASSERT_TRUE(Activate(window));
    MoveMouse(window, InItem(1));
    ASSERT_TRUE(PumpUntil([&] { return ShowsTip(window); }));
    CWnd::CancelToolTips();
    EXPECT_FALSE(ShowsTip(window));
}

TEST(ToolTips, AKeyHidesTheTip)
{
    TipWindow window;
    ASSERT_TRUE(Activate(window));
    MoveMouse(window, InItem(1));
    ASSERT_TRUE(PumpUntil([&] { return ShowsTip(window); }));
    PostKey(window, VK_DOWN);
    EXPECT_TRUE(PumpUntil([&] { return !ShowsTip(window); }));
}

TEST(ToolTips, EndWithTheirWindow)
{
    TipWindow window;
    ASSERT_TRUE(Activate(window));
    MoveMouse(window, InItem(1));
    ASSERT_EQ(ToolCount(window), 1);
    window.DestroyWindow();

    TipWindow next;
    ASSERT_TRUE(Activate(next));
    MoveMouse(next, InItem(1));
    EXPECT_EQ(ToolCount(next), 1);
}

TEST(ToolTips, TheInnermostWindowWithToolTipsIsAsked)
{
    TipWindow window;
    CWnd child;
    ASSERT_TRUE(child.Create(NULL, L"", WS_VISIBLE, CRect(0, 0, 80, 80), &window, 5));
    ASSERT_TRUE(Activate(window));
    MoveMouse(child, {20, 20});
    const int asked = window.m_hitTests;
    EXPECT_GT(asked, 0) << "a child without tool tips leaves them to the parent";
    child.EnableToolTips();
    MoveMouse(child, {30, 30});
    EXPECT_EQ(window.m_hitTests, asked);
}

// Describes tools with texts of a megabyte.
class LargeTextWindow : public TipWindow
{
public:
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* tool) const override
    {
        const INT_PTR hit = TipWindow::OnToolHitTest(point, tool);
        free(tool->lpszText);
        constexpr size_t size = 1 << 20;
        tool->lpszText = static_cast<LPTSTR>(malloc(size));
        memset(tool->lpszText, 'x', size);
        tool->lpszText[5] = 0;
        return hit;
    }
};

size_t CommittedBytes()
{
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof(counters);
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
    return counters.PagefileUsage;
}

TEST(ToolTips, TheTextOfEveryHitIsFreed)
{
    LargeTextWindow window;
    ASSERT_TRUE(Activate(window));
    const size_t before = CommittedBytes();
    for (int move = 0; move < 300; ++move)
    {
        MSG message = {};
        message.hwnd = window;
        message.message = WM_MOUSEMOVE;
        message.lParam = MAKELPARAM(InItem(move / 2 % 2).x, 50);
        window.FilterToolTipMessage(&message);
    }
    EXPECT_EQ(window.m_hitTests, 300);
    EXPECT_LT(CommittedBytes(), before + (50u << 20)) << "300 MB of texts were made";
}

// The default test: the child under the point.
class PanelWindow : public TipWindow
{
public:
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* tool) const override
    {
        return CWnd::OnToolHitTest(point, tool);
    }
};

TEST(ToolTipHitTest, FindsTheChildUnderThePoint)
{
    PanelWindow window;
    CWnd button;
    CWnd edit;
    ASSERT_TRUE(button.Create(L"BUTTON", L"", WS_VISIBLE, CRect(0, 0, 50, 50), &window, 31));
    ASSERT_TRUE(edit.Create(L"EDIT", L"", WS_VISIBLE, CRect(50, 0, 100, 50), &window, 32));

    TOOLINFO tool = {};
    tool.cbSize = sizeof(tool);
    EXPECT_EQ(window.OnToolHitTest(CPoint(10, 10), &tool), 31);
    EXPECT_EQ(tool.hwnd, window.m_hWnd);
    EXPECT_EQ(tool.uId, reinterpret_cast<UINT_PTR>(button.m_hWnd));
    EXPECT_EQ(tool.uFlags, static_cast<UINT>(TTF_IDISHWND));
    EXPECT_EQ(tool.lpszText, LPSTR_TEXTCALLBACK);

    tool.uFlags = 0;
    EXPECT_EQ(window.OnToolHitTest(CPoint(60, 10), &tool), 32);
    EXPECT_EQ(tool.uFlags, TTF_IDISHWND | TTF_CENTERTIP | static_cast<UINT>(TTF_NOTBUTTON));

    EXPECT_EQ(window.OnToolHitTest(CPoint(150, 10), &tool), -1);
    edit.ShowWindow(SW_HIDE);
    EXPECT_EQ(window.OnToolHitTest(CPoint(60, 10), &tool), -1);
}

TEST(ToolTipHitTest, AsksForTheTextOfTheChildWithItsHandle)
{
    PanelWindow window;
    CWnd button;
    ASSERT_TRUE(button.Create(L"BUTTON", L"", WS_VISIBLE, CRect(0, 0, 50, 50), &window, 31));
    ASSERT_TRUE(Activate(window));
    MoveMouse(button, {20, 20});
    ASSERT_TRUE(PumpUntil([&] { return ShowsTip(window); }));
    EXPECT_EQ(window.m_requestParameter, reinterpret_cast<WPARAM>(button.m_hWnd));
}

} // namespace
} // namespace quor::test
