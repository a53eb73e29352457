// CWinThread: the message loop of a thread.
#include "afxpriv.h"
#include "dispatch/MessageMap.h"
#include "thread/Pump.h"
#include "handlemap/TemporaryLevel.h"
#include "thread/ThreadState.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

CWinThread::CWinThread() : m_pMainWnd(NULL), m_pActiveWnd(NULL), m_hThread(NULL), m_nThreadID(0) {}

CWinThread::~CWinThread()
{
    ThreadState& state = CurrentThreadState();
    if (state.thread == this)
        state.thread = nullptr;
}

CWinThread* AFXAPI AfxGetThread()
{
    CWinThread* const thread = CurrentThreadState().thread;
    return thread != NULL ? thread : AfxGetApp();
}

CWnd* AFXAPI AfxGetMainWnd()
{
    CWinThread* const thread = AfxGetThread();
    return thread != NULL ? thread->GetMainWnd() : NULL;
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pMainWnd;
}

BOOL CWinThread::InitInstance()
{
    return FALSE;
}

int CWinThread::ExitInstance()
{
    return static_cast<int>(CurrentThreadState().pumpedMessage.wParam);
}

namespace
{

bool QueueIsEmpty()
{
    MSG message;
    return !::PeekMessage(&message, NULL, 0, 0, PM_NOREMOVE);
}

} // namespace

int CWinThread::Run()
{
    LONG idleCount = 0;
    bool isIdle = true;
    for (;;)
    {
        while (isIdle && QueueIsEmpty())
            isIdle = OnIdle(idleCount++) != FALSE;
        if (!PumpMessage())
            return ExitInstance();
        if (IsIdleMessage(&CurrentThreadState().pumpedMessage))
        {
            isIdle = true;
            idleCount = 0;
        }
    }
}

BOOL CWinThread::PumpMessage()
{
    return PumpOneMessage();
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg)
{
    return IsIdleMessageOfThread(*pMsg);
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->hwnd == NULL && DispatchThreadMessageEx(pMsg))
        return TRUE;
    return PreTranslateForWindows(pMsg);
}

BOOL CWinThread::DispatchThreadMessageEx(MSG* pMsg)
{
    const AFX_MSGMAP_ENTRY* const entry = FindMessageEntry(GetMessageMap(), pMsg->message);
    if (entry == NULL)
        return FALSE;
    using Handler = void (CWinThread::*)(WPARAM, LPARAM);
    const Handler handler = reinterpret_cast<Handler>(static_cast<AFX_PMSGT>(entry->pfn));
    (this->*handler)(pMsg->wParam, pMsg->lParam);
    return TRUE;
}

namespace
{

void UpdateUserInterface(CWnd* main)
{
    if (main->GetSafeHwnd() == NULL || !main->IsWindowVisible())
        return;
    AfxCallWndProc(main, main->m_hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
    main->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
}

} // namespace

BOOL CWinThread::OnIdle(LONG lCount)
{
    if (lCount <= 0)
        UpdateUserInterface(m_pMainWnd);
    // A loop inside a handler must not delete what that handler still uses.
    const ThreadState& state = CurrentThreadState();
    if (lCount >= 0 && state.currentMessage == state.loopMessage)
        DeleteTemporaryObjects();
    return lCount < 0;
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG)
{
    return FALSE;
}

LRESULT CWinThread::ProcessWndProcException(CException*, const MSG* pMsg)
{
    if (pMsg->message == WM_CREATE)
        return -1;
    if (pMsg->message == WM_PAINT)
        ::ValidateRect(pMsg->hwnd, NULL);
    return 0;
}
