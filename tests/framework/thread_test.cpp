// Threads: workers, threads with a message loop, their objects and their ends.
#include "tests/framework/WindowLog.h"

#include <afxmt.h>
#include <gtest/gtest.h>

#include <atomic>

namespace quor::test
{
namespace
{

constexpr DWORD deadline = 10'000;
constexpr UINT addMessage = WM_APP + 1;

bool HasEnded(HANDLE thread)
{
    return ::WaitForSingleObject(thread, deadline) == WAIT_OBJECT_0;
}

DWORD ExitCodeOf(HANDLE thread)
{
    DWORD code = 0;
    ::GetExitCodeThread(thread, &code);
    return code;
}

// A thread whose object stays until the test deletes it.
class KeptThread
{
public:
    explicit KeptThread(CWinThread* thread) : m_thread(thread) { m_thread->m_bAutoDelete = FALSE; }
    ~KeptThread()
    {
        EXPECT_TRUE(HasEnded(m_thread->m_hThread));
        delete m_thread;
    }
    KeptThread(const KeptThread&) = delete;
    KeptThread& operator=(const KeptThread&) = delete;
    CWinThread* operator->() const { return m_thread; }

private:
    CWinThread* m_thread;
};

UINT ReturnNumber(LPVOID number)
{
    return *static_cast<UINT*>(number);
}

TEST(WorkerThread, RunsItsFunctionWhoseResultIsItsExitCode)
{
    UINT number = 1234;
    const KeptThread thread(
        AfxBeginThread(ReturnNumber, &number, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED));
    EXPECT_EQ(thread->ResumeThread(), 1u);
    ASSERT_TRUE(HasEnded(thread->m_hThread));
    EXPECT_EQ(ExitCodeOf(thread->m_hThread), 1234u);
}

struct Seen
{
    CWinThread* thread = nullptr;
    DWORD id = 0;
    HWND mainWindow = NULL;
    CWinApp* app = nullptr;
};

UINT LookAround(LPVOID result)
{
    Seen& seen = *static_cast<Seen*>(result);
    seen.thread = AfxGetThread();
    seen.id = AfxGetThread()->m_nThreadID;
    seen.mainWindow = AfxGetMainWnd()->GetSafeHwnd();
    seen.app = AfxGetApp();
    return 0;
}

TEST(WorkerThread, KnowsItselfTheApplicationAndTheMainWindowOfItsMaker)
{
    ParentWindow window;
    CWnd* const before = AfxGetApp()->m_pMainWnd;
    AfxGetApp()->m_pMainWnd = &window;
    Seen seen;
    {
        const KeptThread thread(
            AfxBeginThread(LookAround, &seen, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED));
        const DWORD id = thread->m_nThreadID;
        CWinThread* const object = thread.operator->();
        thread->ResumeThread();
        ASSERT_TRUE(HasEnded(thread->m_hThread));
        EXPECT_EQ(seen.thread, object);
        EXPECT_EQ(seen.id, id);
        EXPECT_NE(seen.id, ::GetCurrentThreadId());
    }
    EXPECT_EQ(seen.mainWindow, window.m_hWnd);
    EXPECT_EQ(seen.app, AfxGetApp());
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_hWnd), &window) << "the window is still this thread's";
    AfxGetApp()->m_pMainWnd = before;
}

DWORD WINAPI AskForThread(LPVOID)
{
    return AfxGetThread() == NULL ? 1 : 2;
}

TEST(WorkerThread, AThreadOfTheSystemHasNoObject)
{
    const HANDLE thread = ::CreateThread(NULL, 0, AskForThread, NULL, 0, NULL);
    ASSERT_TRUE(HasEnded(thread));
    EXPECT_EQ(ExitCodeOf(thread), 1u);
    ::CloseHandle(thread);
}

TEST(WorkerThread, StaysSuspendedUntilResumed)
{
    UINT number = 1;
    const KeptThread thread(
        AfxBeginThread(ReturnNumber, &number, THREAD_PRIORITY_BELOW_NORMAL, 0, CREATE_SUSPENDED));
    EXPECT_EQ(::WaitForSingleObject(thread->m_hThread, 50), static_cast<DWORD>(WAIT_TIMEOUT));
    EXPECT_EQ(thread->GetThreadPriority(), THREAD_PRIORITY_BELOW_NORMAL);
    EXPECT_EQ(thread->SuspendThread(), 1u);
    EXPECT_EQ(thread->ResumeThread(), 2u);
    EXPECT_EQ(thread->ResumeThread(), 1u);
}

UINT EndInTheMiddle(LPVOID)
{
    AfxEndThread(77, FALSE);
    return 1;
}

TEST(WorkerThread, AfxEndThread_EndsItFromWithin)
{
    const KeptThread thread(
        AfxBeginThread(EndInTheMiddle, NULL, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED));
    thread->ResumeThread();
    ASSERT_TRUE(HasEnded(thread->m_hThread));
    EXPECT_EQ(ExitCodeOf(thread->m_hThread), 77u);
}

// ---- Threads with a message loop.

// Adds up what is posted to it.
class AddingThread : public CWinThread
{
    DECLARE_DYNCREATE(AddingThread)

public:
    static std::atomic<int> live;
    static std::atomic<WPARAM> sum;
    static std::atomic<int> exits;
    bool runs = true;

    AddingThread() { ++live; }
    ~AddingThread() override { --live; }

    BOOL InitInstance() override { return runs; }
    int ExitInstance() override
    {
        ++exits;
        return CWinThread::ExitInstance();
    }

protected:
    afx_msg void OnAdd(WPARAM wParam, LPARAM lParam) { sum += wParam + static_cast<WPARAM>(lParam); }

    DECLARE_MESSAGE_MAP()
};

std::atomic<int> AddingThread::live{0};
std::atomic<WPARAM> AddingThread::sum{0};
std::atomic<int> AddingThread::exits{0};

IMPLEMENT_DYNCREATE(AddingThread, CWinThread)

BEGIN_MESSAGE_MAP(AddingThread, CWinThread)
    ON_THREAD_MESSAGE(addMessage, OnAdd)
END_MESSAGE_MAP()

HANDLE OwnHandle(HANDLE thread)
{
    HANDLE copy = NULL;
    ::DuplicateHandle(::GetCurrentProcess(), thread, ::GetCurrentProcess(), &copy, 0, FALSE,
                      DUPLICATE_SAME_ACCESS);
    return copy;
}

class MessageThread : public testing::Test
{
protected:
    void SetUp() override
    {
        AddingThread::sum = 0;
        AddingThread::exits = 0;
    }
};

TEST_F(MessageThread, MessagesArePostedToItAsSoonAsItHasBegun)
{
    CWinThread* const thread = AfxBeginThread(RUNTIME_CLASS(AddingThread));
    ASSERT_NE(thread, nullptr);
    const HANDLE handle = OwnHandle(thread->m_hThread);
    EXPECT_TRUE(thread->PostThreadMessage(addMessage, 3, 4));
    EXPECT_TRUE(thread->PostThreadMessage(addMessage, 10, 0));
    EXPECT_TRUE(thread->PostThreadMessage(WM_QUIT, 5, 0));
    ASSERT_TRUE(HasEnded(handle));
    EXPECT_EQ(AddingThread::sum, 17u);
    EXPECT_EQ(AddingThread::exits, 1);
    EXPECT_EQ(ExitCodeOf(handle), 5u) << "what the loop was ended with";
    EXPECT_EQ(AddingThread::live, 0) << "the object deletes itself";
    ::CloseHandle(handle);
}

TEST_F(MessageThread, CreateThread_StartsAnObjectThatStays)
{
    {
        AddingThread thread;
        EXPECT_FALSE(thread.m_bAutoDelete);
        ASSERT_TRUE(thread.CreateThread());
        EXPECT_TRUE(thread.PostThreadMessage(WM_QUIT, 0, 0));
        ASSERT_TRUE(HasEnded(thread));
        EXPECT_EQ(AddingThread::live, 1);
    }
    EXPECT_EQ(AddingThread::live, 0);
}

TEST_F(MessageThread, EndsWithoutALoopWhenItDidNotStart)
{
    AddingThread thread;
    thread.runs = false;
    ASSERT_TRUE(thread.CreateThread(CREATE_SUSPENDED));
    EXPECT_EQ(thread.ResumeThread(), 1u);
    ASSERT_TRUE(HasEnded(thread));
    EXPECT_EQ(AddingThread::exits, 1);
}

// A thread with a window of its own ends with it.
class WindowThread : public CWinThread
{
public:
    CWnd m_window;
    CEvent m_isOpen;

    BOOL InitInstance() override
    {
        m_window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 50, 50, NULL, NULL);
        m_pMainWnd = &m_window;
        m_isOpen.SetEvent();
        return TRUE;
    }
};

TEST_F(MessageThread, EndsWhenItsMainWindowCloses)
{
    WindowThread thread;
    ASSERT_TRUE(thread.CreateThread());
    ASSERT_TRUE(thread.m_isOpen.Lock(deadline));
    EXPECT_EQ(CWnd::FromHandlePermanent(thread.m_window.m_hWnd), nullptr) << "not a window of this thread";
    ::PostMessage(thread.m_window.m_hWnd, WM_CLOSE, 0, 0);
    ASSERT_TRUE(HasEnded(thread));
    EXPECT_EQ(thread.m_window.m_hWnd, nullptr);
    EXPECT_EQ(thread.m_pMainWnd, nullptr);
}

} // namespace
} // namespace quor::test
