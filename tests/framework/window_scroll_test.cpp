// Scroll bars of windows: the window's own and the control that may stand for one.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

class ScrolledWindow : public CWnd
{
public:
    CWnd m_bar;
    bool m_usesBar = false;

    CScrollBar* GetScrollBarCtrl(int bar) const override
    {
        if (!m_usesBar || bar != SB_VERT)
            return nullptr;
        return reinterpret_cast<CScrollBar*>(const_cast<CWnd*>(&m_bar));
    }
};

class WindowScroll : public testing::Test
{
protected:
    WindowScroll()
    {
        CreateChild(m_window, m_parent, 1, nullptr, WS_HSCROLL | WS_VSCROLL);
        m_window.m_bar.Create(L"SCROLLBAR", L"", WS_VISIBLE | SBS_VERT, CRect(0, 0, 20, 50), &m_parent, 2);
    }

    ParentWindow m_parent;
    ScrolledWindow m_window;
};

TEST_F(WindowScroll, PositionAndRangeAreTheWindowsOwn)
{
    m_window.SetScrollRange(SB_VERT, 5, 90);
    EXPECT_EQ(m_window.SetScrollPos(SB_VERT, 30), 5);
    EXPECT_EQ(m_window.GetScrollPos(SB_VERT), 30);
    EXPECT_EQ(::GetScrollPos(m_window.m_hWnd, SB_VERT), 30);
    int lowest = 0;
    int highest = 0;
    m_window.GetScrollRange(SB_VERT, &lowest, &highest);
    EXPECT_EQ(lowest, 5);
    EXPECT_EQ(highest, 90);
    EXPECT_EQ(m_window.GetScrollPos(SB_HORZ), 0);
}

TEST_F(WindowScroll, AControlTakesTheBarsPlace)
{
    m_window.m_usesBar = true;
    m_window.SetScrollRange(SB_VERT, 0, 50);
    m_window.SetScrollPos(SB_VERT, 20);
    EXPECT_EQ(::GetScrollPos(m_window.m_bar.m_hWnd, SB_CTL), 20);
    EXPECT_EQ(::GetScrollPos(m_window.m_hWnd, SB_VERT), 0);
    m_window.SetScrollPos(SB_HORZ, 7);
    EXPECT_EQ(::GetScrollPos(m_window.m_hWnd, SB_HORZ), 7);

    m_window.EnableScrollBarCtrl(SB_BOTH, FALSE);
    EXPECT_FALSE(m_window.m_bar.IsWindowEnabled());
    m_window.ShowScrollBar(SB_VERT, FALSE);
    EXPECT_FALSE(m_window.m_bar.IsWindowVisible());
}

TEST_F(WindowScroll, LimitAllowsForThePage)
{
    SCROLLINFO info = {};
    info.fMask = SIF_ALL;
    info.nMin = 0;
    info.nMax = 99;
    info.nPage = 30;
    m_window.SetScrollInfo(SB_VERT, &info);
    EXPECT_EQ(m_window.GetScrollLimit(SB_VERT), 70);
    m_window.SetScrollPos(SB_VERT, 99);
    EXPECT_EQ(m_window.GetScrollPos(SB_VERT), m_window.GetScrollLimit(SB_VERT));
    info.nPage = 0;
    m_window.SetScrollInfo(SB_VERT, &info);
    EXPECT_EQ(m_window.GetScrollLimit(SB_VERT), 99);
}

TEST_F(WindowScroll, InfoIsReadAsAsked)
{
    SCROLLINFO info = {};
    info.fMask = SIF_RANGE | SIF_POS | SIF_PAGE;
    info.nMax = 100000;
    info.nPage = 10;
    info.nPos = 70000;
    m_window.SetScrollInfo(SB_HORZ, &info);
    SCROLLINFO read = {};
    EXPECT_TRUE(m_window.GetScrollInfo(SB_HORZ, &read, SIF_POS));
    EXPECT_EQ(read.nPos, 70000);
    EXPECT_EQ(read.nMax, 0);
    EXPECT_TRUE(m_window.GetScrollInfo(SB_HORZ, &read, SIF_TRACKPOS | SIF_RANGE));
    EXPECT_EQ(read.nMax, 100000);
}

TEST_F(WindowScroll, ShowScrollBarShowsAndHidesBothBars)
{
    m_window.ShowScrollBar(SB_BOTH, FALSE);
    EXPECT_EQ(m_window.GetStyle() & (WS_HSCROLL | WS_VSCROLL), 0u);
    m_window.ShowScrollBar(SB_BOTH);
    EXPECT_EQ(m_window.GetStyle() & (WS_HSCROLL | WS_VSCROLL), static_cast<DWORD>(WS_HSCROLL | WS_VSCROLL));
}

CPoint PlaceIn(CWnd& parent, CWnd& child)
{
    CRect rect;
    child.GetWindowRect(&rect);
    parent.ScreenToClient(&rect);
    return rect.TopLeft();
}

TEST_F(WindowScroll, ScrollingMovesTheChildrenAlsoOfAHiddenWindow)
{
    CWnd child;
    ASSERT_TRUE(CreateChild(child, m_window, 3));
    m_window.ScrollWindow(5, -7);
    EXPECT_EQ(PlaceIn(m_window, child), CPoint(15, 3));
    m_window.ShowWindow(SW_HIDE);
    m_window.ScrollWindow(-5, 7);
    EXPECT_EQ(PlaceIn(m_window, child), CPoint(10, 10));
}

TEST_F(WindowScroll, ScrollWindowExTellsWhatIsUncovered)
{
    m_window.ShowScrollBar(SB_BOTH, FALSE);
    CRect client;
    m_window.GetClientRect(&client);
    CRect update;
    m_window.ScrollWindowEx(0, -10, NULL, NULL, NULL, &update, SW_INVALIDATE);
    EXPECT_EQ(update, CRect(0, client.bottom - 10, client.right, client.bottom));
}

} // namespace
} // namespace quor::test
