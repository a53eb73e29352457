// CWinThread: the start and the end of threads that the framework creates.
#include "afxwin.h"
#include "handlemap/TemporaryLevel.h"
#include "threadstate/ThreadState.h"
#include "window/ToolTips.h"

#include <memory>
#include <process.h>

// What the creating thread hands to the new one.
struct ThreadStart
{
    CWinThread* thread;
    AFX_MODULE_STATE* moduleState;
    HWND mainWindow;
    HANDLE hasStarted; // set by the new thread when messages may be posted to it
    HANDLE mayRun;     // set by the creating thread, closed by the new one
};

CWinThread::CWinThread() : CWinThread(nullptr, nullptr) {}

CWinThread::CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam)
    : m_pMainWnd(nullptr),
      m_pActiveWnd(nullptr),
      m_bAutoDelete(FALSE),
      m_hThread(nullptr),
      m_nThreadID(0),
      m_pfnThreadProc(pfnThreadProc),
      m_pThreadParam(pParam)
{
}

CWinThread::~CWinThread()
{
    if (m_hThread != nullptr)
        ::CloseHandle(m_hThread);
    ThreadState& state = CurrentThreadState();
    if (state.thread == this)
        state.thread = nullptr;
}

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    ASSERT(m_hThread == nullptr);
    ThreadStart start = {this, CurrentThreadState().moduleState, AfxGetMainWnd()->GetSafeHwnd(),
                         ::CreateEvent(nullptr, TRUE, FALSE, nullptr),
                         ::CreateEvent(nullptr, TRUE, FALSE, nullptr)};
    // Suspended, so that the handle is there before the thread uses it.
    const uintptr_t created =
        ::_beginthreadex(lpSecurityAttrs, nStackSize, &CWinThread::ThreadMain, &start,
                         dwCreateFlags | CREATE_SUSPENDED, reinterpret_cast<unsigned*>(&m_nThreadID));
    if (created != 0)
    {
        m_hThread = reinterpret_cast<HANDLE>(created);
        ::ResumeThread(m_hThread);
        ::WaitForSingleObject(start.hasStarted, INFINITE);
        if ((dwCreateFlags & CREATE_SUSPENDED) != 0)
            ::SuspendThread(m_hThread);
    }
    ::CloseHandle(start.hasStarted);
    // From here on the thread may be over, and this object deleted.
    if (created != 0)
        ::SetEvent(start.mayRun);
    else
        ::CloseHandle(start.mayRun);
    return created != 0;
}

namespace
{

void MakeMessageQueue()
{
    MSG message;
    ::PeekMessage(&message, nullptr, WM_USER, WM_USER, PM_NOREMOVE);
}

// What has to go with a thread, beside its object.
void LeaveThread()
{
    DestroyToolTipControl();
    DeleteTemporaryObjects();
}

// Stands for the main window of the creating thread in the new one, as objects of windows belong to a thread.
class BorrowedWindow
{
public:
    explicit BorrowedWindow(HWND window)
    {
        if (window != nullptr)
            m_window.Attach(window);
    }
    ~BorrowedWindow() { m_window.Detach(); }
    BorrowedWindow(const BorrowedWindow&) = delete;
    BorrowedWindow& operator=(const BorrowedWindow&) = delete;

    CWnd* Get() { return m_window.m_hWnd != nullptr ? &m_window : nullptr; }

private:
    CWnd m_window;
};

} // namespace

unsigned __stdcall CWinThread::ThreadMain(void* start)
{
    // What the creating thread gave goes away when it is told of the start.
    const ThreadStart given = *static_cast<ThreadStart*>(start);
    CWinThread* const thread = given.thread;
    CurrentThreadState().thread = thread;
    CurrentThreadState().moduleState = given.moduleState;
    MakeMessageQueue();
    ::SetEvent(given.hasStarted);
    ::WaitForSingleObject(given.mayRun, INFINITE);
    ::CloseHandle(given.mayRun);
    UINT exitCode = 0;
    {
        // Only a worker inherits the window: the loop of another thread must not translate messages for it.
        BorrowedWindow mainWindow(thread->m_pfnThreadProc != nullptr ? given.mainWindow : nullptr);
        if (thread->m_pMainWnd == nullptr)
            thread->m_pMainWnd = mainWindow.Get();
        exitCode = thread->RunToEnd();
        if (thread->m_pMainWnd == mainWindow.Get())
            thread->m_pMainWnd = nullptr;
    }
    LeaveThread();
    if (thread->m_bAutoDelete)
        delete thread;
    return exitCode;
}

UINT CWinThread::RunToEnd()
{
    if (m_pfnThreadProc != nullptr)
        return m_pfnThreadProc(m_pThreadParam);
    const int exitCode = InitInstance() ? Run() : ExitInstance();
    return static_cast<UINT>(exitCode);
}

namespace
{

// Starts the thread of the object. The priority is set before the thread runs.
CWinThread* Start(std::unique_ptr<CWinThread> thread, int priority, UINT stackSize, DWORD flags,
                  LPSECURITY_ATTRIBUTES security)
{
    thread->m_bAutoDelete = TRUE;
    if (!thread->CreateThread(flags | CREATE_SUSPENDED, stackSize, security))
        return nullptr;
    thread->SetThreadPriority(priority);
    CWinThread* const started = thread.release();
    if ((flags & CREATE_SUSPENDED) == 0)
        started->ResumeThread();
    return started;
}

} // namespace

CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority, UINT nStackSize,
                                  DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    ASSERT(pfnThreadProc != nullptr);
    return Start(std::unique_ptr<CWinThread>(new CWinThread(pfnThreadProc, pParam)), nPriority, nStackSize,
                 dwCreateFlags, lpSecurityAttrs);
}

CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority, UINT nStackSize,
                                  DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    ASSERT(pThreadClass->IsDerivedFrom(RUNTIME_CLASS(CWinThread)));
    CWinThread* const thread = static_cast<CWinThread*>(pThreadClass->CreateObject());
    if (thread == nullptr)
        AfxThrowMemoryException();
    return Start(std::unique_ptr<CWinThread>(thread), nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete)
{
    CWinThread* const thread = AfxGetThread();
    LeaveThread();
    CurrentThreadState().thread = nullptr;
    if (thread != nullptr && bDelete && thread->m_bAutoDelete)
        delete thread;
    ::_endthreadex(nExitCode);
}
