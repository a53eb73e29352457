// CWnd: the end of a window.
#include "afxwin.h"
#include "threadstate/ThreadState.h"
#include "window/ToolTips.h"
#include "window/WindowMap.h"

BOOL CWnd::DestroyWindow()
{
    if (m_hWnd == nullptr)
        return FALSE;
    // WM_NCDESTROY may delete this object: afterwards only its former handle and address are used.
    const HWND window = m_hWnd;
    CWnd* const object = this;
    const BOOL destroyed = ::DestroyWindow(window);
    // An object that was attached without receiving messages did not see WM_NCDESTROY.
    if (destroyed && FromHandlePermanent(window) == object)
        object->Detach();
    return destroyed;
}

namespace
{

void LeaveThread(CWnd* window)
{
    CWinThread* const thread = AfxGetThread();
    if (thread == nullptr)
        return;
    if (thread->m_pActiveWnd == window)
        thread->m_pActiveWnd = nullptr;
    if (thread->m_pMainWnd == window)
    {
        thread->m_pMainWnd = nullptr;
        AfxPostQuitMessage(0);
    }
}

// A modal loop whose window goes away ends with the next message.
void StopModalLoops(const CWnd* window)
{
    for (ModalFrame* frame = CurrentThreadState().modalLoop; frame != nullptr; frame = frame->outer)
    {
        if (frame->window == window && !frame->windowIsGone)
        {
            frame->windowIsGone = true;
            ::PostThreadMessage(::GetCurrentThreadId(), WM_NULL, 0, 0);
        }
    }
}

} // namespace

void CWnd::OnNcDestroy()
{
    LeaveThread(this);
    ForgetToolTips(this);
    StopModalLoops(this);
    const HWND window = m_hWnd;
    Default();
    WNDPROC* const super = GetSuperWndProcAddr();
    const LONG_PTR procedure = ::GetWindowLongPtr(window, GWLP_WNDPROC);
    if (*super != nullptr && reinterpret_cast<WNDPROC>(procedure) == AfxGetAfxWndProc())
        ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    *super = nullptr;
    Detach();
    PostNcDestroy();
}

void CWnd::PostNcDestroy() {}
