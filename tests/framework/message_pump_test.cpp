// The way of posted messages: pre-translation from the window up to the main window, idle time, thread
// messages.
#include "tests/framework/WindowLog.h"
#include "tests/support/Pump.h"

#include <gtest/gtest.h>

namespace quor::test
{
namespace
{

class TranslatingWindow : public CWnd
{
public:
    TranslatingWindow(Log& log, const char* name) : m_log(log), m_name(name) {}
    BOOL m_eats = FALSE;
    bool m_throws = false;

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message != WM_KEYDOWN)
            return CWnd::PreTranslateMessage(message);
        m_log.push_back(m_name);
        if (m_throws)
            AfxThrowUserException();
        return m_eats;
    }

protected:
    afx_msg void OnKeyDown(UINT, UINT, UINT) { m_log.push_back(m_name + " OnKeyDown"); }
    DECLARE_MESSAGE_MAP()

private:
    Log& m_log;
    std::string m_name;
};

BEGIN_MESSAGE_MAP(TranslatingWindow, CWnd)
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

// A chain top > outer > a window without an object > inner.
class PreTranslation : public testing::Test
{
protected:
    PreTranslation() : m_top(m_log, "top"), m_outer(m_log, "outer"), m_inner(m_log, "inner")
    {
        m_top.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 200, NULL,
                       NULL);
        CreateChild(m_outer, m_top, 1);
        const HWND plain =
            ::CreateWindow(L"STATIC", L"", WS_CHILD, 0, 0, 100, 100, m_outer.m_hWnd, NULL, NULL, NULL);
        CWnd::FromHandle(plain);
        m_inner.CreateEx(0, NULL, L"", WS_CHILD, 0, 0, 50, 50, plain, NULL);
        m_mainBefore = AfxGetApp()->m_pMainWnd;
        AfxGetApp()->m_pMainWnd = nullptr;
        PumpPending();
        m_log.clear();
    }
    ~PreTranslation() override
    {
        AfxGetApp()->m_pMainWnd = m_mainBefore;
        m_top.DestroyWindow();
    }

    Log PostKey()
    {
        m_inner.PostMessage(WM_KEYDOWN, VK_F5, 0);
        PumpPending();
        return m_log;
    }

    Log m_log;
    TranslatingWindow m_top;
    TranslatingWindow m_outer;
    TranslatingWindow m_inner;
    CWnd* m_mainBefore;
};

TEST_F(PreTranslation, WalksFromTheWindowThroughItsParents)
{
    EXPECT_EQ(PostKey(), (Log{"inner", "outer", "top", "inner OnKeyDown"}));
}

TEST_F(PreTranslation, AnEatenMessageIsNotDispatched)
{
    m_outer.m_eats = TRUE;
    EXPECT_EQ(PostKey(), (Log{"inner", "outer"}));
}

TEST_F(PreTranslation, EndsAtTheMainWindow)
{
    AfxGetApp()->m_pMainWnd = &m_outer;
    // The main window of this walk is no top-level window: it gets the last chance a second time.
    EXPECT_EQ(PostKey(), (Log{"inner", "outer", "outer", "inner OnKeyDown"}));
}

TEST_F(PreTranslation, AMainWindowAtTheEndOfTheChainIsAskedOnce)
{
    AfxGetApp()->m_pMainWnd = &m_top;
    EXPECT_EQ(PostKey(), (Log{"inner", "outer", "top", "inner OnKeyDown"}));
}

TEST_F(PreTranslation, AMainWindowOutsideTheChainGetsALastChance)
{
    TranslatingWindow main(m_log, "main");
    ASSERT_TRUE(main.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 50, 50, NULL, NULL));
    AfxGetApp()->m_pMainWnd = &main;
    EXPECT_EQ(PostKey(), (Log{"inner", "outer", "top", "main", "inner OnKeyDown"}));
    AfxGetApp()->m_pMainWnd = nullptr;
    main.DestroyWindow();
}

TEST_F(PreTranslation, SentMessagesDoNotTakePart)
{
    m_inner.SendMessage(WM_KEYDOWN, VK_F5, 0);
    EXPECT_EQ(m_log, Log{"inner OnKeyDown"});
}

TEST_F(PreTranslation, AnExceptionEatsTheMessage)
{
    m_outer.m_throws = true;
    EXPECT_EQ(PostKey(), (Log{"inner", "outer"}));
}

// A thread object that is not the application's: its virtual functions are called directly.
class ScriptedThread : public CWinThread
{
public:
    Log m_log;
    int m_idleTurns = 2;

    BOOL OnIdle(LONG count) override
    {
        m_log.push_back("idle " + std::to_string(count));
        if (count < m_idleTurns)
            return TRUE;
        if (--m_rounds == 0)
            ::PostQuitMessage(33);
        else
            ::PostThreadMessage(::GetCurrentThreadId(), WM_USER, 0, 0);
        return FALSE;
    }

protected:
    afx_msg void OnThreadMessage(WPARAM wParam, LPARAM lParam)
    {
        m_log.push_back("thread message " + std::to_string(wParam) + " " + std::to_string(lParam));
    }
    DECLARE_MESSAGE_MAP()

private:
    int m_rounds = 2;
};

BEGIN_MESSAGE_MAP(ScriptedThread, CWinThread)
    ON_THREAD_MESSAGE(WM_USER + 9, &ScriptedThread::OnThreadMessage)
END_MESSAGE_MAP()

TEST(MessageLoop, IdleCountsUpWhileItIsWantedAndStartsOverAfterAMessage)
{
    PumpPending();
    ScriptedThread thread;
    EXPECT_EQ(thread.Run(), 33);
    EXPECT_EQ(thread.m_log, (Log{"idle 0", "idle 1", "idle 2", "idle 0", "idle 1", "idle 2"}));
}

TEST(MessageLoop, AThreadHasNothingToDoInItsFirstIdleTurn)
{
    CWinThread* const thread = AfxGetApp();
    EXPECT_TRUE(thread->CWinThread::OnIdle(-1));
    EXPECT_FALSE(thread->CWinThread::OnIdle(0));
    EXPECT_FALSE(thread->CWinThread::OnIdle(1));
}

TEST(MessageLoop, ThreadMessagesReachTheThreadsMap)
{
    ScriptedThread thread;
    MSG message = {};
    message.message = WM_USER + 9;
    message.wParam = 4;
    message.lParam = 5;
    EXPECT_TRUE(thread.PreTranslateMessage(&message));
    EXPECT_EQ(thread.m_log, Log{"thread message 4 5"});
    message.message = WM_USER + 10;
    EXPECT_FALSE(thread.PreTranslateMessage(&message));
}

TEST(MessageLoop, RepeatedMouseMovesAndTheCaretDoNotStartIdleTime)
{
    MSG message = {};
    message.message = WM_KEYDOWN;
    EXPECT_TRUE(AfxIsIdleMessage(&message));
    message.message = WM_MOUSEMOVE;
    message.pt = {3, 4};
    EXPECT_TRUE(AfxIsIdleMessage(&message));
    EXPECT_FALSE(AfxIsIdleMessage(&message)) << "the same point again";
    message.pt.x = 5;
    EXPECT_TRUE(AfxIsIdleMessage(&message));
    message.message = WM_NCMOUSEMOVE;
    EXPECT_TRUE(AfxIsIdleMessage(&message));
    message.message = 0x0118;
    EXPECT_FALSE(AfxIsIdleMessage(&message));
    message.message = WM_PAINT;
    EXPECT_FALSE(AfxIsIdleMessage(&message));
}

TEST(MessageLoop, TheApplicationIsTheThreadThatMadeIt)
{
    ASSERT_NE(AfxGetApp(), nullptr);
    EXPECT_EQ(AfxGetThread(), AfxGetApp());
    EXPECT_EQ(AfxGetApp()->m_nThreadID, ::GetCurrentThreadId());
    EXPECT_STREQ(AfxGetAppName(), AfxGetApp()->m_pszAppName);
}

} // namespace
} // namespace quor::test
