// CWnd's modal loop: how it ends, what it does while the queue is empty, and nesting.
#include "tests/framework/WindowLog.h"
#include "tests/support/Pump.h"

#include <afxpriv.h>

#include <functional>

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

// Runs a script step at each WM_KICKIDLE or user message.
class ModalWindow : public CWnd
{
public:
    std::function<LRESULT(LPARAM)> m_onKick = [](LPARAM) { return 0; };
    std::function<void()> m_onUser = [] {};
    int m_enterIdle = 0;

protected:
    afx_msg LRESULT OnKickIdle(WPARAM code, LPARAM count)
    {
        EXPECT_EQ(code, static_cast<WPARAM>(MSGF_DIALOGBOX));
        return m_onKick(count);
    }
    afx_msg LRESULT OnUser(WPARAM, LPARAM)
    {
        m_onUser();
        return 0;
    }
    afx_msg void OnEnterIdle(UINT why, CWnd*) { m_enterIdle += why == MSGF_DIALOGBOX; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ModalWindow, CWnd)
    ON_MESSAGE(WM_KICKIDLE, &ModalWindow::OnKickIdle)
    ON_MESSAGE(WM_USER, &ModalWindow::OnUser)
    ON_WM_ENTERIDLE()
END_MESSAGE_MAP()

class ModalLoop : public testing::Test
{
protected:
    ModalLoop()
    {
        m_owner.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 200,
                         NULL, NULL);
        m_window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 100, 100, m_owner.m_hWnd, NULL);
        PumpPending();
    }
    ~ModalLoop() override
    {
        m_window.DestroyWindow();
        m_owner.DestroyWindow();
    }

    ModalWindow m_owner;
    ModalWindow m_window;
};

TEST_F(ModalLoop, ReturnsTheResultItWasEndedWith)
{
    m_window.m_onUser = [&] { m_window.EndModalLoop(17); };
    m_window.PostMessage(WM_USER);
    EXPECT_FALSE(m_window.ContinueModal());
    EXPECT_EQ(m_window.RunModalLoop(), 17);
    EXPECT_FALSE(m_window.ContinueModal());
}

TEST_F(ModalLoop, ContinuesInsideTheHandlerThatEndsIt)
{
    Log log;
    m_window.m_onUser = [&] {
        log.push_back(m_window.ContinueModal() ? "runs" : "ended");
        m_window.EndModalLoop(1);
        log.push_back(m_window.ContinueModal() ? "runs" : "ended");
    };
    m_window.PostMessage(WM_USER);
    m_window.RunModalLoop();
    EXPECT_EQ(log, (Log{"runs", "ended"}));
}

TEST_F(ModalLoop, KicksWhileTheQueueIsEmptyAndTellsTheOwnerOnce)
{
    std::vector<LPARAM> counts;
    m_window.m_onKick = [&](LPARAM count) -> LRESULT {
        counts.push_back(count);
        if (count == 2)
            m_window.EndModalLoop(3);
        return count < 2;
    };
    EXPECT_EQ(m_window.RunModalLoop(), 3);
    EXPECT_EQ(counts, (std::vector<LPARAM>{0, 1, 2}));
    EXPECT_EQ(m_owner.m_enterIdle, 1);
}

TEST_F(ModalLoop, IdleMessagesCanBeTurnedOff)
{
    int kicks = 0;
    m_window.m_onKick = [&](LPARAM) -> LRESULT { return ++kicks, 0; };
    m_window.m_onUser = [&] { m_window.EndModalLoop(0); };
    m_window.SetTimer(1, 10, [](HWND window, UINT, UINT_PTR id, DWORD) {
        ::KillTimer(window, id), ::PostMessage(window, WM_USER, 0, 0);
    });
    m_window.RunModalLoop(MLF_NOIDLEMSG | MLF_NOKICKIDLE);
    EXPECT_EQ(kicks, 0);
    EXPECT_EQ(m_owner.m_enterIdle, 0);
}

TEST_F(ModalLoop, ShowsTheWindowWhenTheQueueIsEmpty)
{
    bool visible = false;
    m_window.m_onKick = [&](LPARAM) -> LRESULT {
        visible = m_window.IsWindowVisible() != FALSE;
        m_window.EndModalLoop(0);
        return 0;
    };
    EXPECT_FALSE(m_window.IsWindowVisible());
    m_window.RunModalLoop(MLF_SHOWONIDLE);
    EXPECT_TRUE(visible);
}

TEST_F(ModalLoop, EndsWhenItsWindowDies)
{
    m_window.m_onUser = [&] { m_window.DestroyWindow(); };
    m_window.PostMessage(WM_USER);
    EXPECT_EQ(m_window.RunModalLoop(), -1);
    EXPECT_EQ(m_window.m_hWnd, nullptr);
}

// An object on the heap that is deleted with its window.
class SelfDeletingModal : public ModalWindow
{
protected:
    void PostNcDestroy() override { delete this; }
};

TEST_F(ModalLoop, EndsWhenItsObjectDies)
{
    SelfDeletingModal* const window = new SelfDeletingModal;
    window->CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, m_owner.m_hWnd, NULL);
    window->m_onUser = [window] { window->DestroyWindow(); };
    window->PostMessage(WM_USER);
    EXPECT_EQ(window->RunModalLoop(), -1);
}

TEST_F(ModalLoop, QuitEndsItAndIsLeftForTheOuterLoop)
{
    m_window.m_onUser = [] { ::PostQuitMessage(5); };
    m_window.PostMessage(WM_USER);
    EXPECT_EQ(m_window.RunModalLoop(), -1);
    MSG message = {};
    bool quit = false;
    while (!quit && ::PeekMessage(&message, NULL, 0, 0, PM_REMOVE))
        quit = message.message == WM_QUIT;
    EXPECT_TRUE(quit);
}

TEST_F(ModalLoop, Nests)
{
    ModalWindow inner;
    inner.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, m_window.m_hWnd, NULL);
    inner.m_onUser = [&] { inner.EndModalLoop(2); };
    int innerResult = 0;
    m_window.m_onUser = [&] {
        inner.PostMessage(WM_USER);
        innerResult = inner.RunModalLoop();
        m_window.EndModalLoop(1);
    };
    m_window.PostMessage(WM_USER);
    EXPECT_EQ(m_window.RunModalLoop(), 1);
    EXPECT_EQ(innerResult, 2);
    inner.DestroyWindow();
}

TEST_F(ModalLoop, EndingTheOuterLoopFirstWaitsForTheInnerOne)
{
    ModalWindow inner;
    inner.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, m_window.m_hWnd, NULL);
    int innerResult = 0;
    inner.m_onUser = [&] {
        m_window.EndModalLoop(8);
        inner.EndModalLoop(9);
    };
    m_window.m_onUser = [&] {
        inner.PostMessage(WM_USER);
        innerResult = inner.RunModalLoop();
    };
    m_window.PostMessage(WM_USER);
    EXPECT_EQ(m_window.RunModalLoop(), 8);
    EXPECT_EQ(innerResult, 9);
    inner.DestroyWindow();
}

} // namespace
} // namespace quor::test
