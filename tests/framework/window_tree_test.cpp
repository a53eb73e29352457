// The tree of windows: descendants, parents and owners; placement and dialog items.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

class CountingWindow : public CWnd
{
public:
    explicit CountingWindow(Log& log, const char* name) : m_log(log), m_name(name) {}

protected:
    afx_msg LRESULT OnUser(WPARAM, LPARAM)
    {
        m_log.push_back(m_name);
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    Log& m_log;
    std::string m_name;
};

BEGIN_MESSAGE_MAP(CountingWindow, CWnd)
    ON_MESSAGE(WM_USER, &CountingWindow::OnUser)
END_MESSAGE_MAP()

LRESULT CALLBACK CountingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_USER)
        reinterpret_cast<Log*>(lParam)->push_back("plain");
    return ::DefWindowProc(window, message, wParam, lParam);
}

// parent > first (1) > plain (2) > inner (3)
class WindowTree : public testing::Test
{
protected:
    WindowTree() : m_first(m_log, "first"), m_inner(m_log, "inner")
    {
        WNDCLASS info = {};
        info.lpfnWndProc = CountingProcedure;
        info.hInstance = AfxGetInstanceHandle();
        info.lpszClassName = L"QuorCountingClass";
        AfxRegisterClass(&info);
        CreateChild(m_first, m_parent, 1);
        m_plain =
            ::CreateWindow(L"QuorCountingClass", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 50, m_first.m_hWnd,
                           reinterpret_cast<HMENU>(static_cast<UINT_PTR>(2)), AfxGetInstanceHandle(), NULL);
        m_inner.CreateEx(0, NULL, L"", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, m_plain,
                         reinterpret_cast<HMENU>(static_cast<UINT_PTR>(3)));
    }

    Log Sent(BOOL deep, BOOL onlyPermanent)
    {
        m_log.clear();
        m_parent.SendMessageToDescendants(WM_USER, 0, reinterpret_cast<LPARAM>(&m_log), deep, onlyPermanent);
        return m_log;
    }

    Log m_log;
    ParentWindow m_parent;
    CountingWindow m_first;
    HWND m_plain;
    CountingWindow m_inner;
};

TEST_F(WindowTree, MessagesGoToAllDescendantsOrChildrenOrAttachedObjects)
{
    EXPECT_EQ(Sent(TRUE, FALSE), (Log{"first", "plain", "inner"}));
    EXPECT_EQ(Sent(FALSE, FALSE), Log{"first"});
    EXPECT_EQ(Sent(TRUE, TRUE), (Log{"first", "inner"})) << "the way leads through windows without an object";
}

TEST_F(WindowTree, DescendantsAreFoundByTheirId)
{
    EXPECT_EQ(m_parent.GetDescendantWindow(1), &m_first);
    EXPECT_EQ(m_parent.GetDescendantWindow(3), &m_inner);
    EXPECT_EQ(m_parent.GetDescendantWindow(3, TRUE), &m_inner);
    EXPECT_EQ(m_parent.GetDescendantWindow(2)->m_hWnd, m_plain);
    EXPECT_EQ(m_parent.GetDescendantWindow(2, TRUE), nullptr);
    EXPECT_EQ(m_parent.GetDescendantWindow(4), nullptr);
    EXPECT_EQ(m_parent.GetDlgItem(3), nullptr);
}

TEST_F(WindowTree, TopLevelParentsAndOwners)
{
    CWnd popup;
    ASSERT_TRUE(
        popup.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, m_parent.m_hWnd, NULL));
    CWnd inPopup;
    ASSERT_TRUE(CreateChild(inPopup, popup, 9));
    EXPECT_EQ(m_inner.GetTopLevelParent(), &m_parent);
    EXPECT_EQ(m_inner.GetParentOwner(), &m_parent);
    EXPECT_EQ(inPopup.GetTopLevelParent(), &m_parent) << "owners count as parents";
    EXPECT_EQ(inPopup.GetParentOwner(), &popup);
    EXPECT_EQ(popup.GetTopLevelOwner(), &m_parent);
    EXPECT_EQ(popup.GetParent(), &m_parent);
    EXPECT_TRUE(m_parent.IsChild(&m_inner));
    EXPECT_FALSE(m_parent.IsChild(&inPopup));
    popup.DestroyWindow();
}

TEST_F(WindowTree, AWindowWithoutAFrameHasNone)
{
    EXPECT_EQ(m_inner.GetParentFrame(), nullptr);
    EXPECT_EQ(m_inner.GetTopLevelFrame(), nullptr);
    const CWnd nothing;
    EXPECT_EQ(nothing.GetParentFrame(), nullptr);
}

TEST_F(WindowTree, TheSafeOwnerOfAChildIsItsTopLevelWindow)
{
    HWND top = m_inner.m_hWnd;
    EXPECT_EQ(CWnd::GetSafeOwner(&m_inner, &top), &m_parent);
    EXPECT_EQ(top, nullptr) << "the owner itself is not disabled here";
}

TEST_F(WindowTree, RectanglesAreMappedLikePoints)
{
    CRect rect(1, 2, 11, 22);
    CPoint corner(1, 2);
    m_inner.ClientToScreen(&rect);
    m_inner.ClientToScreen(&corner);
    EXPECT_EQ(rect.TopLeft(), corner);
    EXPECT_EQ(rect.Size(), CSize(10, 20));
    m_inner.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(1, 2, 11, 22));
}

TEST_F(WindowTree, AChildIsCentredInItsParent)
{
    m_first.SetWindowPos(NULL, 0, 0, 100, 50, SWP_NOZORDER);
    m_first.CenterWindow();
    CRect client;
    m_parent.GetClientRect(&client);
    CRect rect;
    m_first.GetWindowRect(&rect);
    m_parent.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(CPoint((client.right - 100) / 2, (client.bottom - 50) / 2), CSize(100, 50)));
}

TEST_F(WindowTree, APopupIsCentredOverItsOwnerAndStaysOnTheScreen)
{
    CWnd popup;
    ASSERT_TRUE(
        popup.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 100, 60, m_parent.m_hWnd, NULL));
    m_parent.SetWindowPos(NULL, 200, 150, 300, 200, SWP_NOZORDER);
    popup.CenterWindow();
    CRect rect;
    popup.GetWindowRect(&rect);
    EXPECT_EQ(rect.TopLeft(), CPoint(300, 220));

    m_parent.SetWindowPos(NULL, -250, -150, 300, 200, SWP_NOZORDER);
    popup.CenterWindow();
    popup.GetWindowRect(&rect);
    EXPECT_EQ(rect.TopLeft(), CPoint(0, 0));
    popup.DestroyWindow();
}

TEST_F(WindowTree, StylesAreModifiedOnlyWhenTheyChange)
{
    EXPECT_TRUE(m_first.ModifyStyle(0, WS_TABSTOP));
    EXPECT_TRUE(m_first.GetStyle() & WS_TABSTOP);
    EXPECT_FALSE(m_first.ModifyStyle(0, WS_TABSTOP));
    EXPECT_TRUE(m_first.ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED));
    EXPECT_TRUE(m_first.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_TRUE(m_first.ModifyStyle(WS_TABSTOP, 0));
    EXPECT_FALSE(m_first.GetStyle() & WS_TABSTOP);
}

// The contents of a DLGINIT resource: two entries of a combo box, one of a list box, and the end.
TEST_F(WindowTree, DialogInitDataFillsTheLists)
{
    CWnd combo;
    CWnd list;
    ASSERT_TRUE(combo.Create(L"COMBOBOX", L"", CBS_DROPDOWNLIST, CRect(0, 0, 50, 50), &m_parent, 40));
    ASSERT_TRUE(list.Create(L"LISTBOX", L"", 0, CRect(0, 0, 50, 50), &m_parent, 41));
    static BYTE data[] = {40, 0, 0x03, 0x04, 4,   0, 0,  0, 'o',  'n',  'e', 0, 40, 0, 0x03, 0x04, 4, 0,
                          0,  0, 't',  'w',  'o', 0, 41, 0, 0x01, 0x04, 2,   0, 0,  0, 'x',  0,    0, 0};
    EXPECT_TRUE(m_parent.ExecuteDlgInit(static_cast<LPVOID>(data)));
    EXPECT_EQ(combo.SendMessage(CB_GETCOUNT), 2);
    TCHAR text[8] = {};
    combo.SendMessage(CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, L"two");
    EXPECT_EQ(list.SendMessage(LB_GETCOUNT), 1);

    static BYTE wrongControl[] = {41, 0, 0x03, 0x04, 2, 0, 0, 0, 'x', 0, 0, 0};
    EXPECT_TRUE(m_parent.ExecuteDlgInit(static_cast<LPVOID>(wrongControl)));
    EXPECT_TRUE(m_parent.ExecuteDlgInit(static_cast<LPCTSTR>(nullptr)));
}

TEST_F(WindowTree, TheCheckedRadioButtonIsFound)
{
    for (UINT id = 50; id < 53; ++id)
    {
        ::CreateWindow(L"BUTTON", L"", WS_CHILD | BS_AUTORADIOBUTTON, 0, 0, 10, 10, m_parent.m_hWnd,
                       reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), NULL, NULL);
    }
    EXPECT_EQ(m_parent.GetCheckedRadioButton(50, 52), 0);
    m_parent.CheckRadioButton(50, 52, 51);
    EXPECT_EQ(m_parent.GetCheckedRadioButton(50, 52), 51);
}

} // namespace
} // namespace quor::test
