// The way of a message: window procedure, current message, CWnd::WindowProc, map or default processing.
#include "dispatch/MessageMap.h"
#include "threadstate/ThreadState.h"
#include "window/WindowMap.h"
#include "FrameworkAccess.h"

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    CWnd* const window = CWnd::FromHandlePermanent(hWnd);
    if (window == nullptr)
        return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    return AfxCallWndProc(window, hWnd, nMsg, wParam, lParam);
}

WNDPROC AFXAPI AfxGetAfxWndProc()
{
    return AfxWndProc;
}

namespace
{

// What the sender gets when the handler threw: the creation of a window fails, and painting does not start
// over.
LRESULT ResultAfterException(const MSG& message)
{
    if (message.message == WM_CREATE)
        return -1;
    if (message.message == WM_PAINT)
        ::ValidateRect(message.hwnd, nullptr);
    return 0;
}

LRESULT ProcessException(CException* exception, const MSG& message)
{
    LRESULT result = ResultAfterException(message);
    try
    {
        if (CWinThread* const thread = AfxGetThread())
            result = thread->ProcessWndProcException(exception, &message);
        else
            TRACE(L"An exception was thrown while handling message %x.\n", message.message);
        exception->Delete();
    }
    catch (...)
    {
        TRACE(L"Reporting an exception failed.\n");
    }
    return result;
}

} // namespace

LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    const CurrentMessageScope current(hWnd, nMsg, wParam, lParam);
    // Windows has frames below this one that an exception must not cross. The object may be gone after its
    // call.
    try
    {
        return FrameworkAccess::CallWindowProc(*pWnd, nMsg, wParam, lParam);
    }
    catch (CException* exception)
    {
        return ProcessException(exception, current.Message());
    }
    catch (...)
    {
        TRACE(L"An unknown exception was thrown while handling message %x.\n", nMsg);
        return ResultAfterException(current.Message());
    }
}

const MSG* PASCAL CWnd::GetCurrentMessage()
{
    ThreadState& state = CurrentThreadState();
    MSG& message = state.currentMessage != nullptr ? state.currentMessage->message : state.noMessage;
    message.time = static_cast<DWORD>(::GetMessageTime());
    const DWORD position = ::GetMessagePos();
    message.pt = {GET_X_LPARAM(position), GET_Y_LPARAM(position)};
    return &message;
}

LRESULT CWnd::Default()
{
    MessageFrame* const current = CurrentThreadState().currentMessage;
    if (current == nullptr)
        return 0;
    current->passedToDefault = true;
    return DefWindowProc(current->message.message, current->message.wParam, current->message.lParam);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result))
        return result;
    return DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC super = *GetSuperWndProcAddr();
    if (super == nullptr)
        return ::DefWindowProc(m_hWnd, message, wParam, lParam);
    return ::CallWindowProc(super, m_hWnd, message, wParam, lParam);
}

WNDPROC* CWnd::GetSuperWndProcAddr()
{
    return &m_pfnSuper;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT result = 0;
    BOOL handled = FALSE;
    if (message == WM_COMMAND)
    {
        handled = OnCommand(wParam, lParam);
        result = handled ? 1 : 0;
    }
    else if (message == WM_NOTIFY)
    {
        const NMHDR* const header = reinterpret_cast<const NMHDR*>(lParam);
        handled = header->hwndFrom != nullptr && OnNotify(wParam, lParam, &result);
    }
    else
    {
        const bool isColor = message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
        const AFX_MSGMAP_ENTRY* const entry =
            FindMessageEntry(GetMessageMap(), isColor ? WM_CTLCOLOR : message);
        handled = entry != nullptr && CallMessageHandler(*this, *entry, message, wParam, lParam, result);
    }
    if (handled && pResult != nullptr)
        *pResult = result;
    return handled;
}
