// CWinThread: the message loop of a thread.
#include "afxpriv.h"
#include "dispatch/MessageMap.h"
#include "thread/Pump.h"
#include "handlemap/TemporaryLevel.h"
#include "threadstate/ThreadState.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

CWinThread* AFXAPI AfxGetThread()
{
    if (CWinThread* const thread = CurrentThreadState().thread)
        return thread;
    CWinApp* const app = AfxGetApp();
    return app != nullptr && app->m_nThreadID == ::GetCurrentThreadId() ? app : nullptr;
}

CWnd* AFXAPI AfxGetMainWnd()
{
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
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
    // A thread that ends without a loop of its own has last seen some message of a dialog.
    const MSG& last = CurrentThreadState().pumpedMessage;
    return last.message == WM_QUIT ? static_cast<int>(last.wParam) : 0;
}

namespace
{

bool QueueIsEmpty()
{
    MSG message;
    return !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE);
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
    if (pMsg->hwnd == nullptr && DispatchThreadMessageEx(pMsg))
        return TRUE;
    return PreTranslateForWindows(pMsg);
}

BOOL CWinThread::DispatchThreadMessageEx(MSG* pMsg)
{
    const AFX_MSGMAP_ENTRY* const entry = FindMessageEntry(GetMessageMap(), pMsg->message);
    if (entry == nullptr)
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
    if (main->GetSafeHwnd() == nullptr || !main->IsWindowVisible())
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
        ::ValidateRect(pMsg->hwnd, nullptr);
    return 0;
}
