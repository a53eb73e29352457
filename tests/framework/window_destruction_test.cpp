// The end of windows: the order of the calls, objects that delete themselves, and windows that outlive
// objects.
#include "tests/framework/WindowLog.h"
#include "tests/support/Pump.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

class DyingWindow : public CWnd
{
public:
    DyingWindow(Log& log, const char* name) : m_log(log), m_name(name) {}

protected:
    afx_msg void OnDestroy()
    {
        m_log.push_back(m_name + " OnDestroy, children " +
                        (::GetWindow(m_hWnd, GW_CHILD) ? "exist" : "gone"));
        CWnd::OnDestroy();
    }
    afx_msg void OnNcDestroy()
    {
        m_log.push_back(m_name + " OnNcDestroy");
        CWnd::OnNcDestroy();
    }
    void PostNcDestroy() override
    {
        m_log.push_back(m_name + " PostNcDestroy " + (m_hWnd == NULL ? "detached" : "attached"));
    }
    DECLARE_MESSAGE_MAP()

private:
    Log& m_log;
    std::string m_name;
};

BEGIN_MESSAGE_MAP(DyingWindow, CWnd)
    ON_WM_DESTROY()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

TEST(WindowDestruction, GoesFromTheParentToTheChildrenAndBack)
{
    ParentWindow parent;
    Log log;
    DyingWindow outer(log, "outer");
    DyingWindow inner(log, "inner");
    ASSERT_TRUE(CreateChild(outer, parent, 1));
    ASSERT_TRUE(CreateChild(inner, outer, 2));
    const HWND outerHandle = outer.m_hWnd;
    EXPECT_TRUE(outer.DestroyWindow());
    EXPECT_EQ(log,
              (Log{"outer OnDestroy, children exist", "inner OnDestroy, children gone", "inner OnNcDestroy",
                   "inner PostNcDestroy detached", "outer OnNcDestroy", "outer PostNcDestroy detached"}));
    EXPECT_EQ(CWnd::FromHandlePermanent(outerHandle), nullptr);
    EXPECT_FALSE(outer.DestroyWindow());
}

TEST(WindowDestruction, TheDestructorDestroysTheWindowWithoutTheOverrides)
{
    ParentWindow parent;
    Log log;
    HWND handle = nullptr;
    {
        DyingWindow window(log, "window");
        ASSERT_TRUE(CreateChild(window, parent, 1));
        handle = window.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(log, Log{});
}

// Destroys its window, and with it itself, while it handles a message.
class SuicidalWindow : public CWnd
{
public:
    explicit SuicidalWindow(int& alive) : m_alive(alive) { ++m_alive; }
    ~SuicidalWindow() override { --m_alive; }

protected:
    afx_msg void OnLButtonDown(UINT, CPoint) { DestroyWindow(); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint)
    {
        DestroyWindow();
        return FALSE;
    }
    afx_msg void OnCommandSeven() { DestroyWindow(); }
    afx_msg LRESULT OnUser(WPARAM, LPARAM)
    {
        DestroyWindow();
        return 42;
    }
    void PostNcDestroy() override { delete this; }
    DECLARE_MESSAGE_MAP()

private:
    int& m_alive;
};

BEGIN_MESSAGE_MAP(SuicidalWindow, CWnd)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEWHEEL()
    ON_COMMAND(7, &SuicidalWindow::OnCommandSeven)
    ON_MESSAGE(WM_USER, &SuicidalWindow::OnUser)
END_MESSAGE_MAP()

struct LastMessage
{
    UINT message;
    WPARAM wParam;
    LRESULT result;
};

class DestroyInHandler : public testing::TestWithParam<LastMessage>
{
};

TEST_P(DestroyInHandler, DeletesTheObjectAndStillAnswersTheSender)
{
    ParentWindow parent;
    int alive = 0;
    SuicidalWindow* const window = new SuicidalWindow(alive);
    ASSERT_TRUE(CreateChild(*window, parent, 1));
    const HWND handle = window->m_hWnd;
    EXPECT_EQ(::SendMessage(handle, GetParam().message, GetParam().wParam, 0), GetParam().result);
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(alive, 0);
}

INSTANTIATE_TEST_SUITE_P(Messages, DestroyInHandler,
                         testing::Values(LastMessage{WM_LBUTTONDOWN, 0, 0}, LastMessage{WM_MOUSEWHEEL, 0, 0},
                                         LastMessage{WM_COMMAND, 7, 1}, LastMessage{WM_USER, 0, 42},
                                         LastMessage{WM_CLOSE, 0, 0}));

TEST(WindowDestruction, AnObjectThatWasOnlyAttachedIsDetached)
{
    ParentWindow parent;
    const HWND handle = ::CreateWindow(L"STATIC", L"", WS_CHILD, 0, 0, 1, 1, parent.m_hWnd, NULL, NULL, NULL);
    CWnd window;
    ASSERT_TRUE(window.Attach(handle));
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(WindowDestruction, TheEndOfTheMainWindowEndsTheThread)
{
    ParentWindow main;
    CWinApp* const app = AfxGetApp();
    CWnd* const before = app->m_pMainWnd;
    app->m_pMainWnd = &main;
    main.SendMessage(WM_CLOSE);
    MSG message = {};
    bool quit = false;
    while (!quit && ::PeekMessage(&message, NULL, 0, 0, PM_REMOVE))
        quit = message.message == WM_QUIT;
    EXPECT_TRUE(quit);
    EXPECT_EQ(app->m_pMainWnd, nullptr);
    app->m_pMainWnd = before;
}

} // namespace
} // namespace quor::test
