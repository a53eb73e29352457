// The message pump that all loops of a thread share.
#include "afxpriv.h"
#include "thread/Pump.h"
#include "threadstate/ThreadState.h"
#include "FrameworkAccess.h"

void AFXAPI AfxPostQuitMessage(int nExitCode)
{
    ::PostQuitMessage(nExitCode);
}

BOOL PumpOneMessage()
{
    MSG& message = CurrentThreadState().pumpedMessage;
    if (!::GetMessage(&message, nullptr, 0, 0))
        return FALSE;
    if (message.message != WM_KICKIDLE && !AfxPreTranslateMessage(&message))
    {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return TRUE;
}

BOOL IsIdleMessageOfThread(const MSG& message)
{
    constexpr UINT CaretBlink = 0x0118;
    if (message.message == WM_PAINT || message.message == CaretBlink)
        return FALSE;
    if (message.message != WM_MOUSEMOVE && message.message != WM_NCMOUSEMOVE)
        return TRUE;
    // Windows repeats the last move when windows change under the mouse.
    ThreadState& state = CurrentThreadState();
    const bool isRepeated = state.lastIdleMessage == message.message &&
                            state.lastIdleCursor.x == message.pt.x && state.lastIdleCursor.y == message.pt.y;
    state.lastIdleMessage = message.message;
    state.lastIdleCursor = message.pt;
    return !isRepeated;
}

BOOL PreTranslateForWindows(MSG* message)
{
    CWnd* const main = AfxGetMainWnd();
    if (FrameworkAccess::WalkPreTranslateTree(main->GetSafeHwnd(), message))
        return TRUE;
    if (main == nullptr || message->hwnd == nullptr)
        return FALSE;
    // A main window outside the chain of parents, for instance of a modeless dialog, gets a last chance.
    CWnd* const top = CWnd::FromHandle(message->hwnd)->GetTopLevelParent();
    return top != main && main->PreTranslateMessage(message);
}

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg)
{
    for (HWND window = pMsg->hwnd; window != nullptr; window = ::GetParent(window))
    {
        CWnd* const object = FromHandlePermanent(window);
        if (object != nullptr && object->PreTranslateMessage(pMsg))
            return TRUE;
        if (window == hWndStop)
            break;
    }
    return FALSE;
}

namespace
{

BOOL PreTranslate(MSG* message)
{
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->PreTranslateMessage(message) : PreTranslateForWindows(message);
}

} // namespace

BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg)
{
    // A message whose translation failed half way is not dispatched as well.
    try
    {
        return PreTranslate(pMsg);
    }
    catch (CException* exception)
    {
        if (CWinThread* const thread = AfxGetThread())
            thread->ProcessWndProcException(exception, pMsg);
        exception->Delete();
    }
    return TRUE;
}

BOOL AFXAPI AfxPumpMessage()
{
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->PumpMessage() : PumpOneMessage();
}

BOOL AFXAPI AfxIsIdleMessage(MSG* pMsg)
{
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->IsIdleMessage(pMsg) : IsIdleMessageOfThread(*pMsg);
}
