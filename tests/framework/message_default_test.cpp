// Default processing, the current message, and exceptions in handlers.
#include "tests/framework/WindowLog.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

// Calls its base with other arguments than it got.
class DefaultWindow : public CWnd
{
public:
    using CWnd::GetCurrentMessage;

    Log m_log;
    std::vector<UINT> m_current;

protected:
    afx_msg void OnChar(UINT, UINT repeat, UINT flags) { CWnd::OnChar('z', repeat, flags); }
    afx_msg LRESULT OnSetText(WPARAM, LPARAM) { return Default(); }
    afx_msg LRESULT OnOuter(WPARAM, LPARAM)
    {
        m_current.push_back(GetCurrentMessage()->message);
        SendMessage(WM_USER + 2, 5, 6);
        const MSG* const message = GetCurrentMessage();
        m_current.push_back(message->message);
        EXPECT_EQ(message->wParam, 3u);
        EXPECT_EQ(message->lParam, 4);
        EXPECT_EQ(message->hwnd, m_hWnd);
        return 0;
    }
    afx_msg LRESULT OnInner(WPARAM, LPARAM)
    {
        m_current.push_back(GetCurrentMessage()->message);
        return 0;
    }
    afx_msg LRESULT OnThrow(WPARAM kind, LPARAM)
    {
        if (kind == 0)
            AfxThrowUserException();
        throw 5;
    }
    afx_msg void OnPaint()
    {
        m_log.push_back("OnPaint");
        AfxThrowUserException();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DefaultWindow, CWnd)
    ON_WM_CHAR()
    ON_WM_PAINT()
    ON_MESSAGE(WM_SETTEXT, &DefaultWindow::OnSetText)
    ON_MESSAGE(WM_USER + 1, &DefaultWindow::OnOuter)
    ON_MESSAGE(WM_USER + 2, &DefaultWindow::OnInner)
    ON_MESSAGE(WM_USER + 3, &DefaultWindow::OnThrow)
END_MESSAGE_MAP()

TEST(MessageDefault, ABaseHandlerUsesTheOriginalParameters)
{
    ParentWindow parent;
    DefaultWindow edit;
    ASSERT_TRUE(CreateChild(edit, parent, 1, L"EDIT"));
    edit.SendMessage(WM_CHAR, 'a', 1);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(text, L"a");
}

TEST(MessageDefault, TheCurrentMessageIsRestoredAfterANestedOne)
{
    ParentWindow parent;
    DefaultWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 1));
    window.SendMessage(WM_USER + 1, 3, 4);
    EXPECT_EQ(window.m_current, (std::vector<UINT>{WM_USER + 1, WM_USER + 2, WM_USER + 1}));
    EXPECT_EQ(DefaultWindow::GetCurrentMessage()->message, 0u);
}

TEST(MessageDefault, NoExceptionLeavesAWindowProcedure)
{
    ParentWindow parent;
    DefaultWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 1));
    EXPECT_EQ(window.SendMessage(WM_USER + 3, 0), 0);
    EXPECT_EQ(window.SendMessage(WM_USER + 3, 1), 0);
    EXPECT_EQ(DefaultWindow::GetCurrentMessage()->message, 0u);
}

TEST(MessageDefault, PaintingThatThrowsDoesNotStartOver)
{
    ParentWindow parent;
    DefaultWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 1));
    window.m_log.clear();
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_EQ(window.m_log, Log{"OnPaint"});
    EXPECT_FALSE(window.GetUpdateRect(NULL));
}

// A wheel message is offered to the parent once when the child declines it, in either way.
class WheelWindow : public CWnd
{
public:
    int m_seen = 0;
    bool m_callsBase = false;

protected:
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point)
    {
        ++m_seen;
        return m_callsBase ? CWnd::OnMouseWheel(flags, delta, point) : FALSE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(WheelWindow, CWnd)
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

TEST(MessageDefault, ADeclinedWheelReachesTheParentOnce)
{
    ParentWindow top;
    WheelWindow outer;
    WheelWindow inner;
    ASSERT_TRUE(CreateChild(outer, top, 1));
    ASSERT_TRUE(CreateChild(inner, outer, 2));
    inner.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120));
    EXPECT_EQ(outer.m_seen, 1);
    inner.m_callsBase = true;
    inner.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120));
    EXPECT_EQ(outer.m_seen, 2);
    EXPECT_EQ(inner.m_seen, 2);
}

// The maps of a class and its bases.
class BaseMapWindow : public CWnd
{
public:
    Log m_log;

protected:
    afx_msg LRESULT OnBoth(WPARAM, LPARAM)
    {
        m_log.push_back("base both");
        return 0;
    }
    afx_msg LRESULT OnBase(WPARAM, LPARAM)
    {
        m_log.push_back("base only");
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BaseMapWindow, CWnd)
    ON_MESSAGE(WM_USER + 1, &BaseMapWindow::OnBoth)
    ON_MESSAGE(WM_USER + 2, &BaseMapWindow::OnBase)
END_MESSAGE_MAP()

template <typename TValue> class TemplateMapWindow : public BaseMapWindow
{
protected:
    afx_msg LRESULT OnTemplate(WPARAM, LPARAM) { return sizeof(TValue); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_TEMPLATE_MESSAGE_MAP(TemplateMapWindow, TValue, BaseMapWindow)
ON_MESSAGE(WM_USER + 1, &ThisClass::OnTemplate)
END_MESSAGE_MAP
()

    TEST(MessageMap, TheClassComesBeforeItsBase)
{
    ParentWindow parent;
    TemplateMapWindow<double> window;
    ASSERT_TRUE(CreateChild(window, parent, 1));
    EXPECT_EQ(window.SendMessage(WM_USER + 1), static_cast<LRESULT>(sizeof(double)));
    EXPECT_EQ(window.SendMessage(WM_USER + 2), 0);
    EXPECT_EQ(window.m_log, Log{"base only"});
}

TEST(MessageMap, ClassesWithoutAHandlerDoNotSeeThoseOfOthers)
{
    ParentWindow parent;
    TemplateMapWindow<char> first;
    BaseMapWindow second;
    CWnd third;
    ASSERT_TRUE(CreateChild(first, parent, 1));
    ASSERT_TRUE(CreateChild(second, parent, 2));
    ASSERT_TRUE(CreateChild(third, parent, 3));
    for (int round = 0; round < 3; ++round)
    {
        EXPECT_EQ(first.SendMessage(WM_USER + 1), 1);
        EXPECT_EQ(second.SendMessage(WM_USER + 1), 0);
        EXPECT_EQ(third.SendMessage(WM_USER + 1), 0);
    }
    EXPECT_EQ(second.m_log, (Log{"base both", "base both", "base both"}));
}

UINT lateRegisteredMessage = 0;

class LateRegisteredWindow : public CWnd
{
protected:
    afx_msg LRESULT OnRegistered(WPARAM, LPARAM) { return 77; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(LateRegisteredWindow, CWnd)
    ON_REGISTERED_MESSAGE(lateRegisteredMessage, &LateRegisteredWindow::OnRegistered)
END_MESSAGE_MAP()

TEST(MessageMap, ARegisteredMessageMayGetItsNumberLater)
{
    ParentWindow parent;
    LateRegisteredWindow window;
    ASSERT_TRUE(CreateChild(window, parent, 1));
    const UINT number = ::RegisterWindowMessage(L"QuorLateRegisteredMessage");
    lateRegisteredMessage = 0;
    EXPECT_EQ(window.SendMessage(number), 0);
    lateRegisteredMessage = number;
    EXPECT_EQ(window.SendMessage(number), 77);
}

} // namespace
} // namespace quor::test
